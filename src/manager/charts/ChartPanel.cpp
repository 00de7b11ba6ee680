#include "manager/charts/ChartPanel.h"

#include <QLabel>
#include <QStackedLayout>
#include <QVBoxLayout>

#include "forms/Tokens.h"

using namespace Qt::StringLiterals;

namespace manager {

namespace {

constexpr int NarrowestAmount = 100;
constexpr int MostRows = 8;  // without scrolling

}  // namespace

ChartPanel::ChartPanel(QWidget* parent)
    : QFrame(parent), title_(new QLabel(this)), stack_(new QStackedLayout), list_(new forms::ListView(this)) {
    setProperty("role", u"panel"_s);
    title_->setProperty("role", u"heading"_s);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(10, 8, 10, 8);
    layout->setSpacing(4);
    layout->addWidget(title_);
    layout->addLayout(stack_);
    list_->MakeTight();
}

void ChartPanel::Take(Chart* chart, const QString& name) {
    chart_ = chart;
    chart->setObjectName(u"cht"_s + name);
    list_->setObjectName(u"lst"_s + name);
    stack_->addWidget(chart);
    stack_->addWidget(list_);
    list_->hide();
    SetHeading(Heading());
}

QString ChartPanel::Heading() const {
    return title_->text();
}

void ChartPanel::SetHeading(const QString& heading) {
    title_->setText(heading);
    if (chart_) chart_->setAccessibleName(heading);
    list_->setAccessibleName(heading);
}

void ChartPanel::SetLeastHeight(int height) {
    const QMargins edges = layout()->contentsMargins();
    const int others = edges.top() + edges.bottom() + title_->sizeHint().height() + layout()->spacing();
    chart_->setMinimumHeight(height - others);
}

void ChartPanel::ShowAsTable(bool asTable) {
    if (asTable) FillList();
    if (!asTable) list_->setMinimumHeight(0);
    stack_->setCurrentWidget(asTable ? static_cast<QWidget*>(list_) : chart_);
}

void ChartPanel::FiguresChanged() {
    if (stack_->currentWidget() == list_) FillList();
}

void ChartPanel::FillList() {
    const ChartTable table = chart_->Table();
    std::vector<forms::ListColumn> columns;
    for (const QString& heading : table.headings) {
        const bool isFirst = columns.empty();
        const int width = std::max(NarrowestAmount, list_->fontMetrics().horizontalAdvance(heading) + 26);
        columns.push_back({heading, isFirst ? Qt::AlignLeft : Qt::AlignRight, isFirst ? -1 : width});
    }
    list_->SetColumns(std::move(columns));
    list_->Clear();
    list_->BeginFill();
    for (const auto& row : table.rows) list_->Add(table.TextsOf(row));
    list_->EndFill();
    const int rows = std::clamp(list_->Count(), 2, MostRows) + 1;
    list_->setMinimumHeight(rows * (forms::TheTokens().TightRowHeight + 1));
}

}  // namespace manager
