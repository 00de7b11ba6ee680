#include "manager/reports/ReportsPage.h"

#include <QComboBox>

#include "core/dbModule.h"
#include "forms/LongWork.h"
#include "forms/MsgBox.h"
#include "manager/SaveAs.h"
#include "manager/Texts.h"
#include "values/Clock.h"

using namespace Qt::StringLiterals;

namespace manager {

namespace {

using Cell = upkeep::ShopReport::Cell;

// The rows as the list shows them.
class SheetRows : public forms::RowSource {
public:
    SheetRows(std::shared_ptr<const upkeep::Sheet> sheet, std::vector<upkeep::ShopReport::Column> columns)
        : sheet_(std::move(sheet)), columns_(std::move(columns)) {}

    int WaitFor(int, std::chrono::milliseconds) override { return static_cast<int>(sheet_->rows.size()); }
    bool IsWhole() const override { return true; }
    QString Text(int row, int column) const override {
        const auto place = static_cast<size_t>(column);
        const values::Value& value = sheet_->rows[static_cast<size_t>(row)][place];
        const bool isAmount = columns_[place].cell == Cell::Amount || columns_[place].cell == Cell::Price;
        return isAmount && !value.IsNull() ? AmountText(value.ToMoney()) : value.TextOrEmpty();
    }

private:
    const std::shared_ptr<const upkeep::Sheet> sheet_;
    const std::vector<upkeep::ShopReport::Column> columns_;
};

forms::ListColumn ListColumnOf(const upkeep::ShopReport::Column& column) {
    constexpr int dayWidth = 110, figureWidth = 110, textWidth = 130;
    switch (column.cell) {
        case Cell::Day:
            return {column.heading, Qt::AlignLeft, dayWidth};
        case Cell::Number:
        case Cell::Price:
        case Cell::Amount:
            return {column.heading, Qt::AlignRight, figureWidth};
        case Cell::Text:
            break;
    }
    return {column.heading, Qt::AlignLeft, textWidth};
}

}  // namespace

ReportsPage::ReportsPage(QWidget* parent) : Page(parent) {
    ui.setupUi(this);
    for (const upkeep::ShopReport& report : reports_) ui.cboReport->addItem(report.title);
    connect(ui.cboReport, &QComboBox::currentIndexChanged, this, Guarded(&ReportsPage::cboReport_Choice));
    for (forms::DateBox* box : {ui.dtpFrom, ui.dtpTo})
        connect(box, &QDateEdit::dateChanged, this, Guarded(&ReportsPage::Empty));
    EnterMovesOn({ui.dtpFrom, ui.dtpTo});
    On(ui.cmdShow, &ReportsPage::cmdShow_Click);
    On(ui.cmdSave, &ReportsPage::cmdSave_Click);
}

// The month so far.
void ReportsPage::Form_Load() {
    const QDate today = values::Today();
    ui.dtpFrom->setDate({today.year(), today.month(), 1});
    ui.dtpTo->setDate(today);
    cboReport_Choice();
}

const upkeep::ShopReport& ReportsPage::Chosen() const {
    return reports_[static_cast<size_t>(ui.cboReport->currentIndex())];
}

void ReportsPage::cboReport_Choice() {
    std::vector<forms::ListColumn> columns;
    for (const auto& column : Chosen().columns) columns.push_back(ListColumnOf(column));
    columns.back().width = -1;
    ui.lstRows->SetColumns(std::move(columns));
    for (QWidget* box : {static_cast<QWidget*>(ui.dtpFrom), static_cast<QWidget*>(ui.dtpTo)})
        box->setEnabled(Chosen().hasDays);
    Empty();
}

// What was shown belongs to other days, or to another report.
void ReportsPage::Empty() {
    sheet_.reset();
    ui.lstRows->Clear();
    ui.lstRows->SetEmptyText(tr("Choose a report and its days, then \"Show\"."));
    ui.lblSums->clear();
    ui.cmdSave->setEnabled(false);
}

void ReportsPage::cmdShow_Click() {
    if (Chosen().hasDays && ui.dtpFrom->date() > ui.dtpTo->date())
        return forms::Inform(tr("The first day lies behind the last."), Caption());
    Empty();
    try {
        forms::LongWork work(this);
        const store::Watch watch(MainStore(), [&work] { return work.GoesOn(); });
        sheet_ = std::make_shared<upkeep::Sheet>(
            upkeep::ReadReport(MainStore(), Chosen(), ui.dtpFrom->date(), ui.dtpTo->date()));
    } catch (const store::StoreError& error) {
        if (error.Number() != store::Cancelled) throw;
        return;
    }
    ShowSheet();
}

void ReportsPage::ShowSheet() {
    ui.lstRows->SetEmptyText(tr("There is nothing on these days."));
    ui.lstRows->ShowRows(std::make_unique<SheetRows>(sheet_, Chosen().columns));
    QStringList said{tr("%n row(s)", nullptr, static_cast<int>(sheet_->rows.size()))};
    for (size_t i = 0; i < Chosen().columns.size(); ++i)
        if (Chosen().columns[i].cell == Cell::Amount)
            said << tr("%1: %2").arg(Chosen().columns[i].heading, AmountText(upkeep::SumOf(*sheet_, i)));
    ui.lblSums->setText(said.join(u"   –   "_s));
    ui.cmdSave->setEnabled(!sheet_->rows.empty());
}

void ReportsPage::cmdSave_Click() {
    const QString path =
        AskSaveAs(this, Chosen().title, tr("Table as text (*.csv);;Workbook (*.xlsx)"), {u".csv"_s, u".xlsx"_s});
    if (path.isEmpty()) return;
    upkeep::WriteSheet(path, *sheet_);
    ui.lblSums->setText(tr("%n row(s) are saved as %1.", nullptr, static_cast<int>(sheet_->rows.size())).arg(path));
}

}  // namespace manager
