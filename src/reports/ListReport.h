#pragma once

#include "reports/ReportFacts.h"
#include "store/Listing.h"
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

    // Reads the rows of a query, lists and sums them. False when the user left it.
    bool OpenAndSum(const QString& query);
    virtual store::Listing Read(const QString& query);
    // Gives the list these rows; a value that can't be shown leaves its cell empty.
    void ListRows(store::Listing rows);
    // The sums of the texts as they are shown.
    void SumList();
    // Which days the list covers, above it and in the language of paper.
    void ShowTitle(const QString& shown, const QString& printed);
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

private:
    QString printedTitle_;
    // While a query runs and its rows come in.
    forms::LongWork* work_ = nullptr;

    void AddSumBoxes();
    QPushButton* AddButton(const QString& name, const QString& caption, Qt::Key key);
};
