#include "masterdata/products/ProductEntry.h"

#include <QSignalBlocker>
#include <algorithm>

#include "core/dbModule.h"
#include "forms/Controls.h"
#include "forms/FileDialog.h"
#include "forms/MsgBox.h"
#include "values/Format.h"
#include "values/Numbers.h"

using namespace Qt::StringLiterals;
using values::Format;

namespace {

const auto UnitsQuery = u"SELECT * FROM Unit"_s;
const auto TaxesQuery = u"SELECT * FROM Tax"_s;
const auto UnitQuery = u"SELECT * FROM Unit WHERE Abr = '%1'"_s;
const auto TaxQuery = u"SELECT * FROM Tax WHERE TaxID = '%1'"_s;

const auto PictureFilters =
    u"%1 (*.bmp *.gif *.jpg *.wmf *.emf *.ico *.cur)"
    ";;%2 (*.bmp; *.dib) (*.bmp *.dib)"
    ";;%3 (*.gif) (*.gif)"
    ";;%4 (*.jpg) (*.jpg)"_s;

// Nothing is chosen at first.
void FillChoices(QComboBox* list, const QString& query, QStringView field) {
    const QSignalBlocker quiet(list);
    auto rs = MainStore().OpenSnapshot(query);
    for (auto& row : rs) list->addItem(row[field].TextOrEmpty());
    list->setCurrentIndex(-1);
}

QString NameIn(const QString& path) {
    return path.sliced(std::max(path.lastIndexOf(u'/'), path.lastIndexOf(u'\\')) + 1);
}

}  // namespace

ProductEntry::ProductEntry(const Words& words) : words_(words) {
    setObjectName(words.name);
    ui.setupUi(this);
    setWindowTitle(words.title);
    ui.cmdSave->setObjectName(words.save);
    ui.cmdSecond->setObjectName(words.second);
    ui.cmdSecond->setText(words.secondCaption);
    for (QLabel* label : {ui.lblUnitPrice, ui.lblQuantity, ui.lblTax}) label->setText(label->text() + words.labelEnd);

    SaveHelpAndClose(ui.cmdSave, ui.cmdHelp, ui.cmdClose);
    HighlightOnFocus({ui.txtProdCode, ui.txtDescription, ui.txtQuantity});
    NumericKeys({ui.txtQuantity});
    Keypad({ui.txtProdCode}, forms::KeypadKeys::Code);
    for (QLineEdit* price : Prices()) {
        HighlightOnFocus({price});
        NumericKeys({price});
        OnLostFocus(price, &ProductEntry::txtPrice_LostFocus);
    }
    OnChoice(ui.txtUnit, &ProductEntry::txtUnit_Click);
    OnChoice(ui.cboTax, &ProductEntry::cboTax_Click);
    On(ui.cmdSelect, &ProductEntry::cmdSelect_Click);
    On(ui.cmdDelPic, &ProductEntry::cmdDelPic_Click);
    On(ui.cmdSave, &ProductEntry::cmdSave_Click);
}

void ProductEntry::FillTaxList() {
    FillChoices(ui.cboTax, TaxesQuery, u"TaxID");
}

void ProductEntry::FillUnitList() {
    FillChoices(ui.txtUnit, UnitsQuery, u"Abr");
}

// Only the box that is left can have changed since, so all of them may be written in full.
void ProductEntry::txtPrice_LostFocus() {
    for (QLineEdit* price : Prices()) price->setText(PriceIn(price));
}

void ProductEntry::txtUnit_Click() {
    auto unit = MainStore().OpenRecordset(UnitQuery.arg(ui.txtUnit->currentText()));
    ui.txtUnitName->setText(ValueOf(unit, u"UnitName").TextOrEmpty());
}

void ProductEntry::cboTax_Click() {
    auto tax = MainStore().OpenRecordset(TaxQuery.arg(ui.cboTax->currentText()));
    ShowTax(tax);
}

void ProductEntry::ShowTax(store::Recordset& tax) {
    ui.txtTaxPercent->setText(Format(ValueOf(tax, u"Percent"), u"0.00"));
}

// The file stays where it is; the other screens look for its name in the folder of pictures.
void ProductEntry::cmdSelect_Click() {
    const QString filters = PictureFilters.arg(words_.allPictures, tr("Bitmaps"), tr("GIF Images"), tr("JPEG Images"));
    for (;;) {
        const QString path = forms::AskOpenName(this, words_.pictureTitle, filters);
        if (path.isEmpty()) return;
        if (FileExists(path)) {
            ui.txtPicturePath->setText(NameIn(path));
            return ShowPicture(path);
        }
        forms::Tell(words_.pictureMissing, forms::Icon::Warning, tr("File Not Found"));
    }
}

void ProductEntry::cmdDelPic_Click() {
    ui.txtPicturePath->clear();
    ui.imgPicture->setText(tr("Thumbnail (icon)"));
}

void ProductEntry::cmdSave_Click() {
    if (!AllFilled({ui.txtProdCode, ui.txtDescription, ui.txtQuantity, ui.txtUnit, ui.txtUnitPrice, ui.cboTax}))
        return forms::GoTo(ui.txtProdCode);
    if (!values::IsNumeric(ui.txtUnitPrice->text())) {
        forms::Inform(tr("Price must be numeric."), Caption());
        return forms::GoTo(ui.txtUnitPrice);
    }
    const auto duplicate = tr("Product with this code-barcode already exists.Change ProductID!");
    if (Trapped([this] { StoreProduct(); }, duplicate, ui.txtProdCode)) ProductStored();
}

void ProductEntry::ShowPicture(const QString& path) {
    ui.imgPicture->setText(tr("Thumbnail (icon)"));
    if (!forms::LoadPicture(ui.imgPicture, path))
        throw values::Error(values::InvalidPicture, tr("The file %1 holds no picture that can be shown.").arg(path));
    constexpr int frame = 4;
    const QSize room = ui.imgPicture->maximumSize().shrunkBy({frame, frame, frame, frame});
    ui.imgPicture->setPixmap(ui.imgPicture->pixmap().scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

QList<QLineEdit*> ProductEntry::Prices() const {
    return {ui.txtUnitPrice, ui.txtUnitPricebezPDV, ui.txtVPUnitPrice, ui.txtVPUnitPricebezPDV};
}

QString ProductEntry::PriceIn(const QLineEdit* box) {
    return Format(box->text(), u"0.00");
}

values::Value ProductEntry::ValueOf(store::Recordset& row, QStringView field) {
    return row.AtEOF() ? values::Value() : row[field].Get();
}
