#include "manager/labels/GoodsChoice.h"

#include <QHash>
#include <QScopedValueRollback>
#include <QVariant>
#include <algorithm>

#include "core/Settings.h"
#include "forms/RowSource.h"
#include "values/Format.h"

using namespace Qt::StringLiterals;

namespace manager {

namespace {

QString PriceOf(const upkeep::ShelfGood& good) {
    return good.price ? values::Format(*good.price, u"###,###,##0.00") : QString();
}

class FoundGoods : public forms::RowSource {
public:
    FoundGoods(std::shared_ptr<const upkeep::ShelfGoods> goods, std::vector<size_t> found)
        : goods_(std::move(goods)), found_(std::move(found)) {}

    int WaitFor(int, std::chrono::milliseconds) override { return static_cast<int>(found_.size()); }
    bool IsWhole() const override { return true; }
    QString Text(int row, int column) const override {
        const upkeep::ShelfGood& good = goods_->goods[found_[static_cast<size_t>(row)]];
        return column == 0 ? good.code : column == 1 ? good.name : PriceOf(good);
    }

private:
    std::shared_ptr<const upkeep::ShelfGoods> goods_;
    std::vector<size_t> found_;
};

// Fills a box anew and keeps what was chosen.
void FillBox(QComboBox& box, const std::vector<std::pair<QString, QVariant>>& entries) {
    const QVariant chosen = box.currentData();
    box.clear();
    for (const auto& [name, value] : entries) box.addItem(name, value);
    box.setCurrentIndex(std::max(0, box.findData(chosen)));
}

}  // namespace

GoodsChoice::GoodsChoice(QWidget* parent) : QWidget(parent) {
    ui.setupUi(this);
    ui.lstGoods->SetColumns(
        {{tr("Code"), Qt::AlignLeft, 150}, {tr("Name"), Qt::AlignLeft, -1}, {tr("Price"), Qt::AlignRight, 74}});
    ui.lstGoods->SetEmptyText(tr("There are no such goods."));
    ui.lstChosen->SetColumns({{tr("Copies"), Qt::AlignRight, 66}, {tr("Name"), Qt::AlignLeft, -1}});
    ui.lstChosen->SetEmptyText(tr("Add goods from the left."));
}

int GoodsChoice::SetGoods(upkeep::ShelfGoods goods) {
    goods_ = std::make_shared<upkeep::ShelfGoods>(std::move(goods));
    QHash<QString, const upkeep::ShelfGood*> byCode;
    if (!chosen_.empty())
        for (const upkeep::ShelfGood& good : goods_->goods) byCode.insert(good.code.toCaseFolded(), &good);
    const auto gone =
        std::erase_if(chosen_, [&](const Chosen& each) { return !byCode.contains(each.good.code.toCaseFolded()); });
    for (Chosen& each : chosen_) {
        each.good = *byCode.value(each.good.code.toCaseFolded());
        each.label = FactsOf(each.good, TheSettings.Currency);
    }
    FillFilters();
    Find();
    ShowChosen(ui.lstChosen->Selected());
    return static_cast<int>(gone);
}

void GoodsChoice::FillFilters() {
    const QScopedValueRollback<bool> filling(isFilling_, true);
    std::vector<std::pair<QString, QVariant>> groups{{tr("All"), {}}};
    for (qsizetype i = 0; i < goods_->groups.size(); ++i) groups.emplace_back(goods_->groups[i], static_cast<int>(i));
    groups.emplace_back(tr("Without a button"), -1);
    FillBox(*ui.cboGroup, groups);
    std::vector<std::pair<QString, QVariant>> taxes{{tr("All"), {}}};
    for (const auto& [code, name] : goods_->taxes) taxes.emplace_back(name, code);
    FillBox(*ui.cboTax, taxes);
}

void GoodsChoice::Find() {
    if (isFilling_) return;
    upkeep::GoodsFilter filter{.text = ui.txtSearch->text().trimmed(), .group = {}, .tax = {}};
    if (const QVariant group = ui.cboGroup->currentData(); group.isValid()) filter.group = group.toInt();
    if (const QVariant tax = ui.cboTax->currentData(); tax.isValid()) filter.tax = tax.toString();
    found_.clear();
    for (size_t i = 0; i < goods_->goods.size(); ++i)
        if (filter.Takes(goods_->goods[i])) found_.push_back(i);
    ui.lstGoods->ShowRows(std::make_unique<FoundGoods>(goods_, found_));
    ui.lblFound->setText(tr("Found: %n", nullptr, static_cast<int>(found_.size())));
    ui.cmdAdd->setEnabled(!found_.empty());
    ui.cmdAddAll->setEnabled(!found_.empty());
}

void GoodsChoice::Take(const upkeep::ShelfGood& good) {
    for (Chosen& each : chosen_)
        if (each.good.code == good.code) {
            each.copies = std::min(each.copies + 1, ui.spnCopies->maximum());
            return;
        }
    chosen_.push_back({good, FactsOf(good, TheSettings.Currency)});
}

void GoodsChoice::Add() {
    const int row = ui.lstGoods->Selected();
    if (row < 0) return;
    const upkeep::ShelfGood& good = goods_->goods[found_[static_cast<size_t>(row)]];
    Take(good);
    const auto at = std::ranges::find(chosen_, good.code, [](const Chosen& each) { return each.good.code; });
    ShowChosen(static_cast<int>(at - chosen_.begin()));
    ui.txtSearch->selectAll();
}

void GoodsChoice::AddAll() {
    QHash<QString, size_t> places;
    for (size_t i = 0; i < chosen_.size(); ++i) places.insert(chosen_[i].good.code, i);
    for (const size_t i : found_) {
        const upkeep::ShelfGood& good = goods_->goods[i];
        if (!places.contains(good.code)) chosen_.push_back({good, FactsOf(good, TheSettings.Currency)});
    }
    ShowChosen(0);
}

void GoodsChoice::Remove() {
    const int row = ui.lstChosen->Selected();
    if (row < 0) return;
    chosen_.erase(chosen_.begin() + row);
    ShowChosen(std::min(row, static_cast<int>(chosen_.size()) - 1));
}

void GoodsChoice::RemoveAll() {
    chosen_.clear();
    ShowChosen(-1);
}

void GoodsChoice::TakeCopies() {
    const int row = ui.lstChosen->Selected();
    if (isFilling_ || row < 0) return;
    chosen_[static_cast<size_t>(row)].copies = ui.spnCopies->value();
    ui.lstChosen->SetText(row, 0, QString::number(ui.spnCopies->value()));
    Q_EMIT Changed();
}

void GoodsChoice::ShowCopies() {
    const QScopedValueRollback<bool> filling(isFilling_, true);
    const int row = ui.lstChosen->Selected();
    for (QWidget* control : std::initializer_list<QWidget*>{ui.spnCopies, ui.cmdRemove}) control->setEnabled(row >= 0);
    ui.cmdRemoveAll->setEnabled(!chosen_.empty());
    ui.spnCopies->setValue(row < 0 ? 1 : chosen_[static_cast<size_t>(row)].copies);
}

void GoodsChoice::ShowChosen(int selected) {
    ui.lstChosen->BeginFill();
    ui.lstChosen->Clear();
    for (const Chosen& each : chosen_) ui.lstChosen->Add({QString::number(each.copies), each.good.name});
    ui.lstChosen->EndFill();
    ui.lstChosen->Select(std::min(selected, static_cast<int>(chosen_.size()) - 1));
    ShowCopies();
    Q_EMIT Changed();
}

}  // namespace manager
