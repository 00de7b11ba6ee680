#include "manager/goods/GoodsPage.h"

#include <QComboBox>
#include <QDir>
#include <QSignalBlocker>

#include "core/dbModule.h"
#include "forms/FileDialog.h"
#include "forms/LongWork.h"
#include "forms/MsgBox.h"
#include "manager/Texts.h"
#include "output/Folder.h"
#include "upkeep/goods/GoodsExport.h"
#include "upkeep/goods/GoodsImport.h"

using namespace Qt::StringLiterals;
using upkeep::GoodsField;
using upkeep::GoodsRow;

namespace manager {

namespace {

const auto UnitsQuery = u"SELECT * FROM Unit"_s;
const auto TaxesQuery = u"SELECT * FROM Tax"_s;

const QByteArray Encodings[] = {"UTF-8", "windows-1250", "windows-1252", "IBM852", "UTF-16LE", "UTF-16BE"};

QString Word(GoodsRow::Kind kind) {
    switch (kind) {
        case GoodsRow::Kind::New:
            return GoodsPage::tr("new");
        case GoodsRow::Kind::Changed:
            return GoodsPage::tr("changed");
        case GoodsRow::Kind::Unchanged:
            return GoodsPage::tr("unchanged");
        case GoodsRow::Kind::LeftOut:
            return GoodsPage::tr("left out");
        case GoodsRow::Kind::Refused:
            return GoodsPage::tr("refused");
    }
    return {};
}

void Choose(QComboBox& box, const QVariant& value) {
    box.setCurrentIndex(box.findData(value));
}

void FillFrom(QComboBox& box, const QString& query) {
    const QString before = box.currentText();
    const QSignalBlocker quiet(&box);
    box.clear();
    auto rows = MainStore().OpenSnapshot(query);
    for (auto& row : rows) box.addItem(row[0].TextOrEmpty());
    box.setCurrentIndex(std::max(0, box.findText(before)));
}

}  // namespace

GoodsPage::GoodsPage(QWidget* parent) : Page(parent) {
    ui.setupUi(this);
    ui.lstRows->SetColumns({{tr("Line"), Qt::AlignRight, 70},
                            {tr("What"), Qt::AlignLeft, 100},
                            {tr("Code"), Qt::AlignLeft, 140},
                            {tr("Name"), Qt::AlignLeft, 220},
                            {tr("What changes, or why not"), Qt::AlignLeft, -1}});
    ui.lstRows->SetEmptyText(tr("Choose a table: nothing is written before you have seen what would be done."));
    for (const QByteArray& encoding : Encodings) ui.cboEncoding->addItem(QString::fromLatin1(encoding), encoding);
    ui.cboSeparator->addItem(tr("semicolon"), QChar(u';'));
    ui.cboSeparator->addItem(tr("comma"), QChar(u','));
    ui.cboSeparator->addItem(tr("tab"), QChar(u'\t'));
    ui.cboDecimal->addItem(tr("comma"), static_cast<int>(upkeep::DecimalSign::Comma));
    ui.cboDecimal->addItem(tr("point"), static_cast<int>(upkeep::DecimalSign::Point));
    ui.cboShow->addItem(tr("all but unchanged"), -1);
    for (const auto kind : {GoodsRow::Kind::New, GoodsRow::Kind::Changed, GoodsRow::Kind::Refused})
        ui.cboShow->addItem(Word(kind), static_cast<int>(kind));

    On(ui.cmdFile, &GoodsPage::cmdFile_Click);
    for (QComboBox* box : {ui.cboEncoding, ui.cboSeparator}) OnChange(box, &GoodsPage::cboForm_Choice);
    for (QComboBox* box : {ui.cboDecimal, ui.cboUnit, ui.cboTax}) OnChange(box, &GoodsPage::Choice_Changed);
    for (const auto& [field, box] : ColumnBoxes()) OnChange(box, &GoodsPage::Choice_Changed);
    for (QCheckBox* box : {ui.chkAdd, ui.chkUpdate, ui.chkKeepPrice, ui.chkKeepQuantity})
        On(box, &GoodsPage::Choice_Changed);
    OnChange(ui.cboShow, &GoodsPage::cboShow_Choice);
    On(ui.cmdWrite, &GoodsPage::cmdWrite_Click);
    On(ui.cmdUndo, &GoodsPage::cmdUndo_Click);
    On(ui.cmdExport, &GoodsPage::cmdExport_Click);
    On(ui.cmdExportCustomers, &GoodsPage::cmdExportCustomers_Click);
}

void GoodsPage::Form_Load() {
    FillUnitsAndTaxes();
    ShowForm();
    ShowChoice();
    ShowRows();
}

// Units and taxes may be others now, and so may the goods.
void GoodsPage::Form_Activate() {
    FillUnitsAndTaxes();
    ui.cmdUndo->setEnabled(upkeep::LastImport(output::ProgramFolder()).isValid());
}

void GoodsPage::FillUnitsAndTaxes() {
    FillFrom(*ui.cboUnit, UnitsQuery);
    FillFrom(*ui.cboTax, TaxesQuery);
}

QList<std::pair<GoodsField, QComboBox*>> GoodsPage::ColumnBoxes() const {
    return {{GoodsField::Code, ui.cboCode},     {GoodsField::Name, ui.cboName},
            {GoodsField::Price, ui.cboPrice},   {GoodsField::Unit, ui.cboUnitColumn},
            {GoodsField::Tax, ui.cboTaxColumn}, {GoodsField::Quantity, ui.cboQuantity}};
}

void GoodsPage::cmdFile_Click() {
    const QString path =
        forms::AskOpenName(this, tr("A table of goods"), tr("Tables (*.csv *.txt *.tsv);;All files (*)"));
    if (path.isEmpty()) return;
    ui.txtFile->setText(QDir::toNativeSeparators(path));
    Read({});
}

void GoodsPage::cboForm_Choice() {
    if (ui.txtFile->text().isEmpty()) return;
    Read({.encoding = ui.cboEncoding->currentData().toByteArray(),
          .separator = ui.cboSeparator->currentData().toChar()});
}

void GoodsPage::Read(const upkeep::TableForm& form) {
    table_ = {};
    preview_ = {};
    try {
        table_ = upkeep::ReadTable(ui.txtFile->text(), form);
        ShowForm();
        Preview({.adds = ui.chkAdd->isChecked(),
                 .updates = ui.chkUpdate->isChecked(),
                 .keepsPrice = ui.chkKeepPrice->isChecked(),
                 .keepsQuantity = ui.chkKeepQuantity->isChecked(),
                 .unit = ui.cboUnit->currentText(),
                 .tax = ui.cboTax->currentText()});
    } catch (const values::Error& error) {
        ShowRows();
        ui.lblCounts->setText(error.Description());
    }
}

// A column that is not known yet must not keep the boxes from being filled.
void GoodsPage::Preview(const upkeep::ImportChoice& choice) {
    preview_ = {
        .choice = choice, .headings = table_.rows.empty() ? QStringList() : table_.rows.front().cells, .rows = {}};
    QString told;
    try {
        forms::LongWork wait(this);
        preview_ = upkeep::PreviewGoods(MainStore(), table_, choice, [&wait](int, int) { return wait.GoesOn(); });
    } catch (const values::Error& error) {
        told = error.Description();
    }
    ShowChoice();
    ShowRows();
    if (!told.isEmpty()) ui.lblCounts->setText(told);
}

void GoodsPage::ShowForm() {
    const QSignalBlocker quietEncoding(ui.cboEncoding), quietSeparator(ui.cboSeparator);
    const bool isRead = !table_.rows.empty();
    if (isRead && ui.cboEncoding->findData(table_.form.encoding) < 0)
        ui.cboEncoding->addItem(QString::fromLatin1(table_.form.encoding), table_.form.encoding);
    if (isRead) Choose(*ui.cboEncoding, table_.form.encoding);
    if (isRead) Choose(*ui.cboSeparator, table_.form.separator);
    for (QComboBox* box : {ui.cboEncoding, ui.cboSeparator}) box->setEnabled(!ui.txtFile->text().isEmpty());
}

void GoodsPage::ShowChoice() {
    const bool isRead = !table_.rows.empty();
    for (const auto& [field, box] : ColumnBoxes()) {
        const QSignalBlocker quiet(box);
        box->clear();
        box->addItem(tr("(none)"), -1);
        for (int column = 0; column < preview_.headings.size(); ++column)
            box->addItem(preview_.headings[column].simplified(), column);
        Choose(*box, preview_.choice.columns.key(field, -1));
        box->setEnabled(isRead);
    }
    const QSignalBlocker quiet(ui.cboDecimal);
    if (preview_.choice.decimal) Choose(*ui.cboDecimal, static_cast<int>(*preview_.choice.decimal));
    ui.cboDecimal->setEnabled(isRead);
}

upkeep::ImportChoice GoodsPage::Chosen() const {
    upkeep::ImportChoice choice{.decimal = static_cast<upkeep::DecimalSign>(ui.cboDecimal->currentData().toInt()),
                                .adds = ui.chkAdd->isChecked(),
                                .updates = ui.chkUpdate->isChecked(),
                                .keepsPrice = ui.chkKeepPrice->isChecked(),
                                .keepsQuantity = ui.chkKeepQuantity->isChecked(),
                                .unit = ui.cboUnit->currentText(),
                                .tax = ui.cboTax->currentText()};
    for (const auto& [field, box] : ColumnBoxes())
        if (const int column = box->currentData().toInt(); column >= 0) choice.columns[column] = field;
    return choice;
}

void GoodsPage::Choice_Changed() {
    if (!table_.rows.empty()) Preview(Chosen());
}

void GoodsPage::cboShow_Choice() {
    ShowRows();
}

void GoodsPage::ShowRows() {
    using Kind = GoodsRow::Kind;
    const int shown = ui.cboShow->currentData().toInt();
    ui.lstRows->Clear();
    ui.lstRows->BeginFill();
    for (const GoodsRow& row : preview_.rows) {
        if (shown < 0 ? row.kind == Kind::Unchanged : static_cast<int>(row.kind) != shown) continue;
        ui.lstRows->Add({QString::number(row.line), Word(row.kind), row.code, row.after.name,
                         (row.why.isEmpty() ? row.Changes() : row.why).join(u"; "_s)});
    }
    ui.lstRows->EndFill();
    const int written = preview_.Count(Kind::New) + preview_.Count(Kind::Changed);
    ui.lblCounts->setText(
        table_.rows.empty()
            ? QString()
            : tr("%1 new, %2 changed, %3 unchanged, %4 left out, %5 refused")
                  .arg(QString::number(preview_.Count(Kind::New)), QString::number(preview_.Count(Kind::Changed)),
                       QString::number(preview_.Count(Kind::Unchanged)), QString::number(preview_.Count(Kind::LeftOut)),
                       QString::number(preview_.Count(Kind::Refused))));
    ui.cmdWrite->setEnabled(written > 0);
    ui.cmdUndo->setEnabled(upkeep::LastImport(output::ProgramFolder()).isValid());
}

void GoodsPage::cmdWrite_Click() {
    using Kind = GoodsRow::Kind;
    const int refused = preview_.Count(Kind::Refused);
    const QString question =
        tr("Write %1 new and %2 changed goods?")
            .arg(QString::number(preview_.Count(Kind::New)), QString::number(preview_.Count(Kind::Changed)));
    const QString left = refused > 0 ? u'\n' + tr("%n refused row(s) will be left out.", nullptr, refused) : QString();
    if (!forms::Ask(question + left, Caption())) return;
    upkeep::Written written;
    try {
        forms::LongWork wait(this);
        written = upkeep::ImportGoods(MainStore(), output::ProgramFolder(), preview_,
                                      [&wait](int, int) { return wait.GoesOn(); });
    } catch (const values::Error& error) {
        if (error.Number() != store::Cancelled) forms::Inform(error.Description(), Caption());
        return Preview(Chosen());
    }
    Preview(Chosen());
    ui.lblCounts->setText(
        tr("Written: %1 new, %2 changed.").arg(QString::number(written.added), QString::number(written.changed)));
}

void GoodsPage::cmdUndo_Click() {
    const QDateTime last = upkeep::LastImport(output::ProgramFolder());
    if (!last.isValid() || !forms::Ask(tr("Take back the import of %1?").arg(MomentText(last)), Caption())) return;
    const upkeep::Written written = upkeep::UndoImport(MainStore(), output::ProgramFolder());
    if (!table_.rows.empty()) Preview(Chosen());
    ShowRows();
    QString told =
        tr("Undone: %1 removed, %2 as before.").arg(QString::number(written.removed), QString::number(written.changed));
    ui.lblCounts->setText(told);
    if (!written.leftAlone.isEmpty())
        forms::Inform(tr("These were left alone:") + u'\n' + written.leftAlone.mid(0, 20).join(u'\n'), Caption());
}

void GoodsPage::cmdExport_Click() {
    const QString path = forms::AskSaveName(this, tr("Export goods"), tr("Table (*.csv);;Workbook (*.xlsx)"));
    if (path.isEmpty()) return;
    const bool isBook = path.endsWith(u".xlsx", Qt::CaseInsensitive);
    const QString named = isBook || path.endsWith(u".csv", Qt::CaseInsensitive) ? path : path + u".csv"_s;
    const int rows = isBook ? upkeep::ExportGoodsXlsx(MainStore(), named) : upkeep::ExportGoodsCsv(MainStore(), named);
    ui.lblCounts->setText(tr("%n product(s) stand in %1 now.", nullptr, rows).arg(QDir::toNativeSeparators(named)));
}

void GoodsPage::cmdExportCustomers_Click() {
    const QString path = forms::AskSaveName(this, tr("Export customers"), tr("Table (*.csv)"));
    if (path.isEmpty()) return;
    const QString named = path.endsWith(u".csv", Qt::CaseInsensitive) ? path : path + u".csv"_s;
    const int rows = upkeep::ExportCustomersCsv(MainStore(), named);
    ui.lblCounts->setText(tr("%n customer(s) stand in %1 now.", nullptr, rows).arg(QDir::toNativeSeparators(named)));
}

}  // namespace manager
