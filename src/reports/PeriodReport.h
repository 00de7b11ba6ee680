#pragma once

#include "reports/ListReport.h"

class QRadioButton;

// A report over the days that the user chooses: one day in the month view, or a period. Nothing is listed until then.
class PeriodReport : public ListReport {
    Q_OBJECT

public:
    // Facts of a report; one that has more handlers than the frame derives from this.
    explicit PeriodReport(ReportFacts facts);

protected:
    void Form_Load() override;
    const ReportLayout& Layout() const override;

    // Runs the query of the days chosen. False when the user left it.
    bool RunQuery();

    QString queryHead_;
    QString queryWhere_;
    QString queryGroup_;

private:
    void mv1_DateClick(QDate day);
    void Command1_Click();
    void opt_Click();

    void AddOptions();
    size_t ChosenVariant() const;
    void TakeVariant(const ReportVariant& variant);
    void ShowDays(const QString& where, const QString& title, const QString& printedTitle);

    std::vector<QRadioButton*> options_;
};
