#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QTabWidget>
#include <QTimer>
#include <QToolBar>

#include "forms/Program.h"
#include "masterdata/products/frmSastav.h"
#include "support/Disk.h"
#include "support/ScreenCase.h"

using drivers::Get;
using drivers::ScreenCase;
using drivers::Step;
using namespace Qt::StringLiterals;

namespace {

forms::ListView& List(ScreenCase& at) {
    return *Get<forms::ListView>(at.Form(), u"lv1");
}

// Products with the codes FROM to TO behind those of the shop, of one name, at 1.00.
void AddProducts(ScreenCase& at, const QString& rest, const Step&) {
    const QStringList words = rest.split(u' ');
    QStringList rows;
    for (int code = words[0].toInt(); code <= words[1].toInt(); ++code)
        rows += u"ProdCode=%1 | ProdDescription=%2 | UnitPrice=1"_s.arg(code).arg(words.value(2));
    const auto main = at.OpenMain();
    store::Database::Batch batch(*main);
    drivers::AddRows(*main, u"Products"_s, rows);
    batch.Commit();
}

// Behind the shop's products those that AddProducts has added, and nothing else.
void SeeProducts(ScreenCase& at, const QString& rest, const Step&) {
    const QStringList words = rest.split(u' ');
    const int from = words[0].toInt();
    const auto rows = drivers::List(at.Form(), u"lv1");
    ASSERT_EQ(rows.size(), static_cast<size_t>(words[1].toInt() - from + 6));
    for (size_t row = 5; row < rows.size(); ++row)
        ASSERT_EQ(rows[row].mid(0, 2), (QStringList{QString::number(row - 5 + static_cast<size_t>(from)), words[2]}));
}

// The composition of a product, beside a screen that shows the product.
void Compose(ScreenCase& at, const QString& rest, const Step&) {
    at.Form();
    forms::Form editor;
    editor.setObjectName(u"frmEditProduct"_s);
    auto* code = new QLineEdit(rest, &editor);
    code->setObjectName(u"txtProdCode"_s);
    editor.Load();
    forms::Run([] { frmSastav().ShowModal(); }, {});
    editor.Unload();
}

void DrawPicture(ScreenCase& at, const QString& rest, const Step&) {
    const QStringList words = rest.split(u' ');
    const qsizetype last = words.size() - 1;
    QImage image(words[last - 1].toInt(), words[last].toInt(), QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    EXPECT_TRUE(image.save(at.Path(u"img/"_s + words.mid(0, last - 1).join(u' '))));
}

// A bitmap that claims 200 million points.
void DrawHuge(ScreenCase& at, const QString& rest, const Step& step) {
    DrawPicture(at, rest + u" 8 8"_s, step);
    QFile file(at.Path(u"img/"_s + rest));
    const qint32 sides[] = {20000, 10000};
    EXPECT_TRUE(file.open(QIODevice::ReadWrite) && file.seek(18));
    file.write(reinterpret_cast<const char*>(sides), sizeof sides);
}

// Whether a picture is shown, and that it keeps its shape within its frame.
void SeePicture(ScreenCase& at, const QString& rest, const Step&) {
    const auto& frame = *Get<QLabel>(at.Form(), u"imgPicture");
    const QPixmap picture = frame.pixmap();
    EXPECT_EQ(picture.isNull(), rest == u"none");
    EXPECT_TRUE(picture.isNull() || frame.rect().contains(picture.rect()));
    EXPECT_TRUE(rest != u"wide" || picture.width() == 2 * picture.height());
}

// The dialog of pictures has this title and offers these kinds first; it is left without a choice.
void SeeDialog(ScreenCase& at, const QString& rest, const Step&) {
    at.Coming().ExpectFile({});
    QTimer::singleShot(0, &at.Form(), [words = rest.split(u" | "_s)] {
        const QWidget* dialog = QApplication::activeModalWidget();
        const auto* kinds = Get<QComboBox>(*dialog, u"fileTypeCombo");
        EXPECT_EQ(dialog->windowTitle(), words[0]);
        for (int kind = 1; kind < words.size(); ++kind) EXPECT_EQ(kinds->itemText(kind - 1).trimmed(), words[kind]);
    });
    Get<QAbstractButton>(at.Form(), u"cmdSelect")->click();
}

[[maybe_unused]] const bool added = ScreenCase::AddWords({
    {u"products"_s, AddProducts},
    {u"see-products"_s, SeeProducts},
    {u"compose"_s, Compose},
    {u"picture"_s, DrawPicture},
    {u"huge"_s, DrawHuge},
    {u"shape"_s, SeePicture},
    {u"dialog"_s, SeeDialog},
    {u"select"_s, [](auto& at, auto& rest, auto&) { List(at).Select(List(at).Find(rest)); }},
    {u"parts"_s,
     [](auto& at, auto& rest, auto&) {
         for (int part = 1; part <= rest.toInt(); ++part)
             List(at).Add({u"part %1"_s.arg(part), u"Part"_s, u"1.000"_s, u"pcs"_s, u"1.00"_s});
     }},
    // What the keys write is not brought to the disk row by row.
    {u"at-once"_s,
     [](auto&, auto& rest, auto&) {
         const int before = drivers::diskSyncs;
         drivers::Keys(rest);
         EXPECT_LE(drivers::diskSyncs - before, 10);
     }},
    {u"typed-rows"_s,
     [](auto& at, auto& rest, auto&) {
         Get<QLineEdit>(at.Form(), u"cboTemp")->setText(rest.section(u" | "_s, 0, 0));
         EXPECT_EQ(List(at).model()->rowCount(), rest.section(u" | "_s, 1).toInt());
     }},
    {u"pictures"_s,
     [](auto& at, auto& rest, auto&) {
         for (const QString& name : rest.split(u" | "_s))
             EXPECT_FALSE(Get<QAction>(at.Form(), name)->icon().isNull()) << name.toStdString();
     }},
    {u"tabs"_s,
     [](auto& at, auto& rest, auto&) { EXPECT_EQ(Get<QTabWidget>(at.Form(), u"SSTab1")->tabText(0), rest); }},
    {u"tips"_s,
     [](auto& at, auto& rest, auto&) {
         const auto* tabs = Get<QTabWidget>(at.Form(), u"SSTab1");
         EXPECT_EQ((QStringList{tabs->tabToolTip(0), tabs->tabToolTip(1), tabs->tabToolTip(2)}).join(u" | "), rest);
     }},
});

}  // namespace

INSTANTIATE_SCREEN_CASES(Masterdata, u"click-table"_s, u"composition"_s, u"customers"_s, u"product-list"_s,
                         u"products"_s, u"shop"_s, u"taxes"_s, u"users"_s);
