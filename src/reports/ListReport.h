#pragma once

#include "reports/ReportFacts.h"
#include "store/Recordset.h"
#include "support/OfficeForm.h"
#include "ui_ListReport.h"

namespace forms {
class LongWork;
}

// A list from one query, with its sums, that can be printed and saved. A report reads the store and changes nothing.
class ListReport : public OfficeForm {
    Q_OBJECT

protected:
    explicit ListReport(ReportFacts facts);

    // Opens a query as the report's cursor, fills the list and sums it; the cursor stays open only where the list is
    // refreshed. False when the user left it.
    bool OpenAndSum(const QString& query);
    // The rows of the cursor into the list; a value that can't be shown leaves its cell empty.
    virtual void FillList();
    // These behind the rows of the list; they are of one moment, so that none can be gone.
    void AddRows(store::Recordset& rows);
    // The sums of the texts as they are shown.
    void SumList();
    values::Money SumOf(int column) const;
    // False, with the report's words, while the list is empty.
    bool HasItems() const;

    // Writes the report; mode "1" and "2" to channel 1, "3" to the page printer.
    virtual void PrintReport(const QString& mode);
    virtual const ReportLayout& Layout() const { return facts_.layouts.front(); }

    virtual void cmdPrint_Click();
    void cmdSacuvaj_Click();

    // The frame's own pair: F5 prints, F4 saves.
    void PrintAndSave();
    // The next button at the left of the bottom row, with the key that presses it (none: Key_unknown).
    template <typename Screen>
    QPushButton* AddButton(const QString& name, const QString& caption, Qt::Key key, void (Screen::*handler)()) {
        QPushButton* button = AddButton(name, caption, key);
        On(button, handler);
        return button;
    }
    QLineEdit* SumBox(const ReportSum& sum) const;

    Ui::ListReport ui;
    const ReportFacts facts_;
    store::Recordset rsList_;

private:
    // While a query runs and its rows come in.
    forms::LongWork* work_ = nullptr;

    void AddSumBoxes();
    QPushButton* AddButton(const QString& name, const QString& caption, Qt::Key key);
};
