#include "manager/labels/LabelChoice.h"

#include <QScopedValueRollback>

#include "forms/Scrollable.h"
#include "values/Error.h"
#include "values/IniEdit.h"
#include "values/IniFile.h"
#include "values/Locale.h"

using namespace Qt::StringLiterals;

namespace manager {

namespace {

// Data of the sheets' box: a place in CommonSheets, or one of these.
constexpr int OwnOnA4 = -1, OwnSingle = -2;

const auto Section = u"labels"_s;

QString Millimetres(double number) {
    return values::UserLocale().toString(number, 'f', QLocale::FloatingPointShortest);
}

}  // namespace

void ShowTurning(const PagePreview& preview, QLabel& told, QPushButton& before, QPushButton& next) {
    told.setText(preview.Count() == 0
                     ? LabelChoice::tr("Nothing to print yet")
                     : LabelChoice::tr("Page %1 of %2")
                           .arg(QString::number(preview.Page() + 1), QString::number(preview.Count())));
    before.setEnabled(preview.Page() > 0);
    next.setEnabled(preview.Page() + 1 < preview.Count());
}

LabelChoice::LabelChoice(QWidget* parent) : QWidget(parent) {
    ui.setupUi(this);
    forms::MakeScrollable(ui.pnlChoices);
    const auto& sheets = upkeep::CommonSheets();
    for (size_t i = 0; i < sheets.size(); ++i) {
        const QString width = Millimetres(sheets[i].label.width()), height = Millimetres(sheets[i].label.height());
        ui.cboSheet->addItem(sheets[i].IsSingle()
                                 ? tr("%1 x %2 mm, one at a time").arg(width, height)
                                 : tr("%1 x %2 mm, %3 on A4").arg(width, height, QString::number(sheets[i].Count())),
                             static_cast<int>(i));
    }
    ui.cboSheet->addItem(tr("Own size on A4"), OwnOnA4);
    ui.cboSheet->addItem(tr("Own size, one at a time"), OwnSingle);
    ui.cboDots->addItem(tr("600 an inch, office printer"), 600);
    ui.cboDots->addItem(tr("300 an inch, label printer"), 300);
    ui.cboDots->addItem(tr("203 an inch, label printer"), 203);
    ui.spnWidth->setValue(70);
    ui.spnHeight->setValue(37);
    for (QComboBox* box : {ui.cboSheet, ui.cboDots})
        connect(box, &QComboBox::currentIndexChanged, this, &LabelChoice::ShowSheet);
    for (QSpinBox* box : {ui.spnFirst, ui.spnAcross, ui.spnDown})
        connect(box, &QSpinBox::valueChanged, this, &LabelChoice::ShowSheet);
    for (QDoubleSpinBox* box : findChildren<QDoubleSpinBox*>())
        connect(box, &QDoubleSpinBox::valueChanged, this, &LabelChoice::ShowSheet);
    const auto turn = [this](int pages) {
        ui.preview->Turn(pages);
        ShowTurning(*ui.preview, *ui.lblPages, *ui.cmdBefore, *ui.cmdNext);
    };
    connect(ui.cmdBefore, &QPushButton::clicked, this, [turn] { turn(-1); });
    connect(ui.cmdNext, &QPushButton::clicked, this, [turn] { turn(1); });
    connect(ui.preview, &PagePreview::Pressed, this, &LabelChoice::TakePlace);
    ShowSheet();
}

upkeep::LabelSheet LabelChoice::Sheet() const {
    const int chosen = ui.cboSheet->currentData().toInt();
    if (chosen >= 0) return upkeep::CommonSheets()[static_cast<size_t>(chosen)];
    const QSizeF label(ui.spnWidth->value(), ui.spnHeight->value());
    if (chosen == OwnSingle) return upkeep::SingleLabel(label);
    return {.paper = upkeep::A4,
            .label = label,
            .columns = ui.spnAcross->value(),
            .rows = ui.spnDown->value(),
            .first = {ui.spnLeft->value(), ui.spnTop->value()},
            .gap = {ui.spnGapAcross->value(), ui.spnGapDown->value()}};
}

QString LabelChoice::Fault() const {
    return upkeep::FaultOf(Sheet());
}

std::shared_ptr<LabelPages> LabelChoice::MakePages() const {
    return std::make_shared<LabelPages>(Sheet(), ui.spnFirst->value() - 1, ui.cboDots->currentData().toInt(), labels_);
}

std::shared_ptr<const LabelPages> LabelChoice::Pages() const {
    return MakePages();
}

void LabelChoice::SetLabels(std::vector<LabelCopies> labels) {
    labels_ = std::move(labels);
    ShowPages();
}

void LabelChoice::ShowSheet() {
    if (isFilling_) return;
    const QScopedValueRollback<bool> filling(isFilling_, true);
    const upkeep::LabelSheet sheet = Sheet();
    const int chosen = ui.cboSheet->currentData().toInt();
    ui.spnFirst->setMaximum(sheet.Count());
    ui.spnFirst->setEnabled(sheet.Count() > 1);
    ui.lblHint->setVisible(sheet.Count() > 1);
    ui.pnlOwn->setVisible(chosen < 0);
    for (QWidget* box : std::initializer_list<QWidget*>{ui.spnAcross, ui.spnDown, ui.spnLeft, ui.spnTop,
                                                        ui.spnGapAcross, ui.spnGapDown})
        box->setEnabled(chosen == OwnOnA4);
    ShowPages();
}

void LabelChoice::ShowPages() {
    if (Fault().isEmpty()) {
        const auto pages = MakePages();
        pages->ShowPlaces();
        ui.preview->Show(pages);
    } else {
        ui.preview->Show(nullptr);
    }
    ShowTurning(*ui.preview, *ui.lblPages, *ui.cmdBefore, *ui.cmdNext);
    Q_EMIT Changed();
}

void LabelChoice::TakePlace(QPointF place) {
    const upkeep::LabelSheet sheet = Sheet();
    if (ui.preview->Page() > 0) return;
    for (int i = 0; i < sheet.Count(); ++i)
        if (upkeep::CellOf(sheet, i).contains(place)) return ui.spnFirst->setValue(i + 1);
}

void LabelChoice::Recall(const QString& iniFile) {
    try {
        const auto ini = values::IniFile::Read(iniFile);
        for (QComboBox* box : {ui.cboSheet, ui.cboDots}) {
            const auto entry = ini.Entry(Section, box->objectName().mid(3).toLower());
            if (const int at = entry ? box->findData(entry->toInt()) : -1; at >= 0) box->setCurrentIndex(at);
        }
        const auto take = [&](auto* box) {
            bool isNumber = false;
            const double number =
                ini.Entry(Section, box->objectName().mid(3).toLower()).value_or(QString()).toDouble(&isNumber);
            if (isNumber && number >= box->minimum() && number <= box->maximum())
                box->setValue(static_cast<decltype(box->value())>(number));
        };
        for (QDoubleSpinBox* box : findChildren<QDoubleSpinBox*>()) take(box);
        for (QSpinBox* box : {ui.spnAcross, ui.spnDown}) take(box);
    } catch (const values::Error&) {
        return;
    }
}

void LabelChoice::Remember(const QString& iniFile) const {
    try {
        values::IniEdit ini(iniFile);
        for (const QComboBox* box : {ui.cboSheet, ui.cboDots})
            ini.Set(Section, box->objectName().mid(3).toLower(), QString::number(box->currentData().toInt()));
        for (const QDoubleSpinBox* box : findChildren<QDoubleSpinBox*>())
            ini.Set(Section, box->objectName().mid(3).toLower(), QString::number(box->value()));
        for (const QSpinBox* box : {ui.spnAcross, ui.spnDown})
            ini.Set(Section, box->objectName().mid(3).toLower(), QString::number(box->value()));
        ini.Save();
    } catch (const values::Error&) {
        return;
    }
}

}  // namespace manager
