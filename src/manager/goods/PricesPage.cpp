#include "manager/goods/PricesPage.h"

#include "core/dbModule.h"
#include "forms/MsgBox.h"
#include "forms/Scrollable.h"
#include "manager/goods/PreviewRows.h"
#include "upkeep/goods/GoodsRules.h"
#include "values/Numbers.h"

using namespace Qt::StringLiterals;
using upkeep::PriceEnding;
using upkeep::PriceWish;
using upkeep::RowKind;
using values::Money;

namespace manager {

namespace {

// Old and new in columns of their own, and what keeps goods from being changed.
class PriceRows : public PreviewRows {
public:
    using PreviewRows::PreviewRows;

    QString Text(int row, int column) const override {
        if (column < 2) return PreviewRows::Text(row, column == 0 ? Code : Name);
        if (column == 4) return At(row).reasons.join(u' ');
        if (At(row).change.columns.empty()) return {};
        const upkeep::ColumnChange& change = At(row).change.columns.front();
        return Whole().Shown(change.column, column == 2 ? change.before : change.after);
    }
};

// Two decimals, as the arithmetic of prices takes it.
bool IsPercent(const QString& text) {
    if (!values::IsNumeric(text)) return false;
    const Money percent = values::CMoney(text);
    return percent > -Money::FromWhole(100) && percent <= Money::FromWhole(1000) && percent.Units() % 100 == 0;
}

}  // namespace

PricesPage::PricesPage(QWidget* parent) : Page(parent) {
    ui.setupUi(this);
    forms::MakeScrollable(ui.panelWish);
    ShowColumns(false);
    ui.lstPrices->SetEmptyText(tr("Say what is to change, and press Look."));
    ui.cboWhat->addItem(tr("Prices by percent"));
    ui.cboWhat->addItem(tr("Tax rates"));
    HighlightOnFocus({ui.txtName, ui.txtPercent});
    NumericKeys({ui.txtPercent}, u"-"_s);
    connect(ui.cboWhat, &QComboBox::activated, this, Guarded(&PricesPage::ShowWhatCounts));
    On(ui.cmdLook, &PricesPage::cmdLook_Click);
    On(ui.cmdWrite, &PricesPage::cmdWrite_Click);
    On(ui.cmdUndo, &PricesPage::cmdUndo_Click);
    EnterMovesOn({ui.txtName, ui.txtPercent});
}

void PricesPage::ShowColumns(bool withReasons) {
    std::vector<forms::ListColumn> columns{{tr("Code"), Qt::AlignLeft, 132},
                                           {tr("Name"), Qt::AlignLeft, -1},
                                           {tr("Before"), Qt::AlignRight, 84},
                                           {tr("After"), Qt::AlignRight, 84}};
    if (withReasons) columns.push_back({tr("Why not"), Qt::AlignLeft, 140});
    ui.lstPrices->SetColumns(columns);
}

void PricesPage::Form_Load() {
    ui.cboEnding->addItem(tr("to the cent"), static_cast<int>(PriceEnding::Cent));
    ui.cboEnding->addItem(tr("by 0.05"), static_cast<int>(PriceEnding::FiveCents));
    ui.cboEnding->addItem(tr("by 0.10"), static_cast<int>(PriceEnding::TenCents));
    ui.cboEnding->addItem(tr("at .99"), static_cast<int>(PriceEnding::NinetyNine));
}

void PricesPage::Form_Activate() {
    ui.cmdUndo->setEnabled(GoodsWriting::CanTakeBack());
    OfferGoods();
    ShowWhatCounts();
}

bool PricesPage::IsAboutRates() const {
    return ui.cboWhat->currentIndex() == 1;
}

// The shop's taxes and groups as they are now; what was chosen stays.
void PricesPage::OfferGoods() {
    const QVariant tax = ui.cboTax->currentData(), group = ui.cboGroup->currentData();
    ui.cboTax->clear();
    ui.cboTax->addItem(tr("all"), QString());
    for (const upkeep::TaxRate& rate : upkeep::GoodsRules(MainStore()).taxes)
        ui.cboTax->addItem(tr("%1 (%2 %)").arg(rate.id, rate.percent.TextOrEmpty()), rate.id);
    ui.cboTax->setCurrentIndex(std::max(0, ui.cboTax->findData(tax)));
    ui.cboGroup->clear();
    ui.cboGroup->addItem(tr("all"), -1);
    for (int number = 0; const QString& name : upkeep::ClickGroups(MainStore()).names)
        ui.cboGroup->addItem(name, number++);
    ui.cboGroup->setCurrentIndex(std::max(0, ui.cboGroup->findData(group)));
}

void PricesPage::ShowWhatCounts() {
    const bool rates = IsAboutRates();
    for (QWidget* box : std::initializer_list<QWidget*>{ui.cboGroup, ui.txtName, ui.txtPercent, ui.cboEnding})
        box->setEnabled(!rates);
    ui.lblHint->setText(
        rates ? tr("Goods keep the rate that their tax had when they were entered. Those with another rate get "
                   "that of now. Prices hold the tax and stay.")
              : tr("Below zero the goods get cheaper. Of two prices as near the higher one is taken."));
}

PriceWish PricesPage::Wish() const {
    return {.tax = ui.cboTax->currentData().toString(),
            .group = ui.cboGroup->currentData().toInt(),
            .namePart = ui.txtName->text().trimmed(),
            .percent = values::CMoney(ui.txtPercent->text()),
            .ending = static_cast<PriceEnding>(ui.cboEnding->currentData().toInt())};
}

QString PricesPage::Title() const {
    if (IsAboutRates()) return tr("Tax rates");
    return tr("Prices by %1 %").arg(ui.txtPercent->text());
}

void PricesPage::cmdLook_Click() {
    if (!IsAboutRates() && !IsPercent(ui.txtPercent->text())) {
        forms::Tell(tr("The percent has to be a number above -100, up to 1000, with at most two decimals."),
                    forms::Icon::Warning, Caption());
        return ui.txtPercent->setFocus();
    }
    Look();
    ShowPreview();
}

void PricesPage::Look() {
    preview_.reset();
    title_ = Title();
    writing_.Do([&](const auto& goesOn) {
        preview_ = std::make_shared<const upkeep::Preview>(
            IsAboutRates() ? upkeep::PreviewRates(MainStore(), ui.cboTax->currentData().toString(), goesOn)
                           : upkeep::PreviewPrices(MainStore(), Wish(), goesOn));
    });
}

void PricesPage::ShowPreview() {
    ui.cmdWrite->setEnabled(preview_ && preview_->Count(RowKind::Changed) > 0);
    ui.lstPrices->Clear();
    ui.lblCounts->clear();
    if (!preview_) return;
    ShowColumns(preview_->Count(RowKind::Refused) > 0);
    ui.lstPrices->SetEmptyText(tr("Nothing would change."));
    ui.lstPrices->ShowRows(std::make_unique<PriceRows>(preview_, std::vector{RowKind::Changed, RowKind::Refused}));
    ui.lblCounts->setText(tr("%1 changed, %2 unchanged, %3 refused")
                              .arg(preview_->Count(RowKind::Changed))
                              .arg(preview_->Count(RowKind::Unchanged))
                              .arg(preview_->Count(RowKind::Refused)));
}

// Looked at again, prices would go up twice: what was written is over.
void PricesPage::cmdWrite_Click() {
    const bool isWritten = writing_.Write(title_, *preview_);
    ui.cmdUndo->setEnabled(GoodsWriting::CanTakeBack());
    if (!isWritten) return;
    preview_.reset();
    ShowPreview();
    Q_EMIT ShopChanged();
}

void PricesPage::cmdUndo_Click() {
    const bool isTakenBack = writing_.TakeBack();
    ui.cmdUndo->setEnabled(GoodsWriting::CanTakeBack());
    if (!isTakenBack) return;
    preview_.reset();
    ShowPreview();
    Q_EMIT ShopChanged();
}

}  // namespace manager
