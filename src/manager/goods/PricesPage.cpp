#include "manager/goods/PricesPage.h"

#include "core/dbModule.h"
#include "forms/MsgBox.h"
#include "manager/Texts.h"
#include "output/Folder.h"
#include "upkeep/goods/GoodsImport.h"
#include "values/Format.h"
#include "values/Numbers.h"

using namespace Qt::StringLiterals;
using upkeep::GoodsRow;
using upkeep::PriceChange;

namespace manager {

namespace {

const auto TaxesQuery = u"SELECT * FROM Tax"_s;
const auto TabsQuery = u"SELECT * FROM TabControl"_s;

constexpr qsizetype ShownRates = 12;

}  // namespace

PricesPage::PricesPage(QWidget* parent) : Page(parent) {
    ui.setupUi(this);
    ui.lstPrices->SetColumns({{tr("Code"), Qt::AlignLeft, 150},
                              {tr("Name"), Qt::AlignLeft, -1},
                              {tr("Price now"), Qt::AlignRight, 130},
                              {tr("New price"), Qt::AlignRight, 130}});
    ui.lstPrices->SetEmptyText(tr("Say by how many percent; what would be changed stands here before it is written."));
    ui.cboEnding->addItem(tr("to the cent"), static_cast<int>(PriceChange::Ending::Cents));
    ui.cboEnding->addItem(u".05"_s, static_cast<int>(PriceChange::Ending::Five));
    ui.cboEnding->addItem(u".10"_s, static_cast<int>(PriceChange::Ending::Ten));
    ui.cboEnding->addItem(u".99"_s, static_cast<int>(PriceChange::Ending::NinetyNine));
    NumericKeys({ui.txtPercent}, u"-"_s);
    EnterMovesOn();
    for (QComboBox* box : {ui.cboTax, ui.cboTab, ui.cboEnding}) OnChange(box, &PricesPage::Choice_Changed);
    for (QLineEdit* box : {ui.txtName, ui.txtPercent}) OnChange(box, &PricesPage::Choice_Changed);
    On(ui.cmdWrite, &PricesPage::cmdWrite_Click);
    On(ui.cmdUndo, &PricesPage::cmdUndo_Click);
    On(ui.cmdRates, &PricesPage::cmdRates_Click);
}

void PricesPage::Form_Load() {
    ui.cboTax->addItem(tr("all"), QString());
    auto taxes = MainStore().OpenSnapshot(TaxesQuery);
    for (auto& tax : taxes)
        ui.cboTax->addItem(tax[u"TaxID"].TextOrEmpty() + u"  "_s + tax[u"Name"].TextOrEmpty(),
                           tax[u"TaxID"].TextOrEmpty());
    ui.cboTab->addItem(tr("all"), -1);
    auto tabs = MainStore().OpenSnapshot(TabsQuery);
    for (int number = 0; auto& tab : tabs) ui.cboTab->addItem(tab[1].TextOrEmpty(), number++);
    Preview();
}

void PricesPage::Form_Activate() {
    ui.cmdUndo->setEnabled(upkeep::LastImport(output::ProgramFolder()).isValid());
}

PriceChange PricesPage::Chosen() const {
    return {.tax = ui.cboTax->currentData().toString(),
            .tab = ui.cboTab->currentData().toInt(),
            .namePart = ui.txtName->text().trimmed(),
            .percent = values::CMoney(ui.txtPercent->text()),
            .ending = static_cast<PriceChange::Ending>(ui.cboEnding->currentData().toInt())};
}

void PricesPage::Choice_Changed() {
    Preview();
}

void PricesPage::Preview() {
    const bool isSaid = values::IsNumeric(ui.txtPercent->text());
    preview_ = isSaid ? upkeep::PreviewPrices(MainStore(), Chosen()) : upkeep::GoodsPreview();
    ui.lstPrices->Clear();
    ui.lstPrices->BeginFill();
    for (const GoodsRow& row : preview_.rows)
        if (row.kind == GoodsRow::Kind::Changed)
            ui.lstPrices->Add({row.code, row.before.name, AmountText(row.before.price), AmountText(row.after.price)});
    ui.lstPrices->EndFill();
    const int changed = preview_.Count(GoodsRow::Kind::Changed);
    ui.lblCounts->setText(isSaid ? tr("%1 of %2 chosen goods would get another price.")
                                       .arg(QString::number(changed), QString::number(preview_.rows.size()))
                                 : QString());
    ui.cmdWrite->setEnabled(changed > 0);
    ui.cmdUndo->setEnabled(upkeep::LastImport(output::ProgramFolder()).isValid());
}

void PricesPage::cmdWrite_Click() {
    const int changed = preview_.Count(GoodsRow::Kind::Changed);
    if (!forms::Ask(tr("Write %n new price(s)?", nullptr, changed), Caption())) return;
    try {
        upkeep::ImportGoods(MainStore(), output::ProgramFolder(), preview_);
        ui.txtPercent->clear();
        ui.lblCounts->setText(tr("%n price(s) are written.", nullptr, changed));
    } catch (const values::Error& error) {
        forms::Inform(error.Description(), Caption());
        Preview();
    }
}

void PricesPage::cmdUndo_Click() {
    const QDateTime last = upkeep::LastImport(output::ProgramFolder());
    if (!last.isValid() || !forms::Ask(tr("Take back what was written at %1?").arg(MomentText(last)), Caption()))
        return;
    const upkeep::Written written = upkeep::UndoImport(MainStore(), output::ProgramFolder());
    Preview();
    ui.lblCounts->setText(tr("%n product(s) are as before.", nullptr, written.changed));
    if (!written.leftAlone.isEmpty())
        forms::Inform(tr("These were left alone:") + u'\n' + written.leftAlone.mid(0, 20).join(u'\n'), Caption());
}

// A tax that got another rate changes the goods only here.
void PricesPage::cmdRates_Click() {
    const auto changes = upkeep::PreviewRates(MainStore());
    if (changes.empty()) return forms::Inform(tr("All goods have the rate of their tax."), Caption());
    QStringList lines{tr("%n product(s) have another rate than their tax:", nullptr, static_cast<int>(changes.size()))};
    for (const upkeep::RateChange& change : changes)
        if (lines.size() <= ShownRates)
            lines << tr("%1  %2: %3 % → %4 %")
                         .arg(change.code, change.name, values::Format(change.before, u"0.00"),
                              values::Format(change.after, u"0.00"));
    if (changes.size() >= ShownRates) lines << u"…"_s;
    lines << tr("Give them that of their tax? Prices stay.");
    if (!forms::Ask(lines.join(u'\n'), Caption())) return;
    ui.lblCounts->setText(
        tr("%n product(s) have the rate of their tax now.", nullptr, upkeep::WriteRates(MainStore())));
}

}  // namespace manager
