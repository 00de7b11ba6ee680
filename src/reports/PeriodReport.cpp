#include "reports/PeriodReport.h"

#include <QRadioButton>

#include "values/Clock.h"
#include "values/Format.h"

using namespace Qt::StringLiterals;
using values::Format;

namespace {

constexpr int DaysBefore = 7;

QString QueryDate(QDate day) {
    return Format(day, u"mm-dd-yyyy");
}

QString TitleDate(QDate day) {
    return Format(day, u"dd.mm.yyyy");
}

}  // namespace

PeriodReport::PeriodReport(ReportFacts facts) : ListReport(std::move(facts)) {
    ui.panelPeriod->show();
    const QString show = ui.Command1->text().remove(u'&');
    ui.lv1->SetEmptyText(tr("Choose a day in the calendar, or two days and \"%1\".").arg(show));
    AddOptions();
    // A click, and Enter on the day that the arrow keys have reached.
    const auto chosen = [this](QDate day) { Run([&] { mv1_DateClick(day); }); };
    connect(ui.mv1, &QCalendarWidget::clicked, this, chosen);
    connect(ui.mv1, &QCalendarWidget::activated, this, chosen);
    EnterMovesOn({ui.DTPicker1, ui.DTPicker2});
    On(ui.Command1, &PeriodReport::Command1_Click);
}

void PeriodReport::AddOptions() {
    QWidget* before = ui.Command1;
    for (const ReportVariant& variant : facts_.variants) {
        if (variant.option.isEmpty()) continue;
        auto* button = new QRadioButton(variant.caption, ui.panelOptions);
        button->setObjectName(variant.option);
        button->setChecked(options_.empty());
        ui.layoutOptions->addWidget(button);
        setTabOrder(before, button);
        before = button;
        options_.push_back(button);
        if (!facts_.optionsAreIdle) On(button, &PeriodReport::opt_Click);
    }
    ui.panelOptions->setVisible(!options_.empty());
}

size_t PeriodReport::ChosenVariant() const {
    const auto chosen = std::ranges::find_if(options_, &QRadioButton::isChecked);
    return chosen == options_.end() ? 0 : static_cast<size_t>(chosen - options_.begin());
}

const ReportLayout& PeriodReport::Layout() const {
    return facts_.layouts[static_cast<size_t>(facts_.variants[ChosenVariant()].layout)];
}

void PeriodReport::Form_Load() {
    TakeVariant(facts_.variants.front());
    const QDate today = values::Today();
    ui.mv1->setSelectedDate(today);
    ui.DTPicker1->setDate(today.addDays(-DaysBefore));
    ui.DTPicker2->setDate(today);
}

void PeriodReport::TakeVariant(const ReportVariant& variant) {
    queryHead_ = variant.head;
    queryGroup_ = variant.group;
}

bool PeriodReport::RunQuery() {
    return OpenAndSum(queryHead_ + queryWhere_ + queryGroup_);
}

void PeriodReport::mv1_DateClick(QDate day) {
    ShowDays(facts_.days.day + QueryDate(day) + u'#', TitleDate(day), TitleDate(day));
}

// Days in the wrong order just give an empty list.
void PeriodReport::Command1_Click() {
    const QDate first = ui.DTPicker1->date();
    const QDate last = ui.DTPicker2->date();
    const ReportDays& days = facts_.days;
    ShowDays(days.from + QueryDate(first) + days.to + QueryDate(last) + days.end,
             days.title.arg(TitleDate(first), TitleDate(last)),
             days.printedTitle.arg(TitleDate(first), TitleDate(last)));
}

void PeriodReport::ShowDays(const QString& where, const QString& title, const QString& printedTitle) {
    queryWhere_ = where;
    ui.lv1->SetEmptyText(tr("There is nothing on these days."));
    if (RunQuery()) ShowTitle(title, printedTitle);
    ui.lv1->setFocus();
}

// Another way to group takes effect at once when there is something to group.
void PeriodReport::opt_Click() {
    const bool hadItems = ui.lv1->Count() > 0;
    TakeVariant(facts_.variants[ChosenVariant()]);
    if (!hadItems) return;
    RunQuery();
    if (facts_.optionsLeadToList) ui.lv1->setFocus();
}
