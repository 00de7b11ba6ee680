#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>
#include <vector>

#include "core/PrintField.h"
#include "values/Language.h"  // Paper, for the layouts of each table

// What a report is, as a table of facts: what it asks the store, what its list shows, what is summed, how it is
// printed. ListReport and PeriodReport do the rest. The table is made with the form: its words are in the languages
// that screens and paper have by then.

enum class Look {
    Text,    // as it comes, left
    Number,  // as it comes, right
    Amount,  // "0.00", right
};

struct ReportColumn {
    QString heading;
    int width = 0;  // in pixels; 0 hides the column, a negative one takes what the others leave
    Look look = Look::Text;
    QString field = {};  // the query's column by name; without one, the column at the same position
};

// The column of a box whose figure the report reckons itself.
constexpr int OwnFigure = -1;

// A box that shows the sum of a column of the list, with a caption in front of it.
struct ReportSum {
    QString caption;
    QString box;
    int column = 0;
};

struct ReportLayout {
    QStringList title;
    bool tellsTime = false;  // when it was printed, instead of an empty line
    QStringList head;
    std::vector<PrintFields> item;  // its lines, from the columns of the list
    QString total = {};             // in front of the sums; without it there is no line of totals
    QStringList foot = {};
};

// One of the ways to group a report, chosen by an option button.
struct ReportVariant {
    QString option = {};  // name of the button; empty when there is but one way
    QString caption = {};
    QString head;   // SELECT ... FROM ...
    QString group;  // GROUP BY ...
    int layout = 0;
};

// Conditions that choose the days, each up to the date and from behind it.
struct ReportDays {
    QString day;
    QString from;
    QString to;
    QString end = QStringLiteral("#");
    // Of two days, above the list and on paper.
    QString title = QCoreApplication::translate("PeriodReport", "from %1 to %2");
    //: at most 20 columns without %1 and %2, the days
    QString printedTitle = QCoreApplication::translate("Paper", "from %1 to %2");
};

struct ReportFacts {
    QString name;  // of the form
    QString caption;
    std::vector<ReportVariant> variants = {};
    ReportDays days = {};
    std::vector<ReportColumn> columns;
    std::vector<ReportSum> sums = {};
    QString emptySum = {};  // shown in the boxes while the list is empty
    std::vector<ReportLayout> layouts = {};
    QString emptyList = QCoreApplication::translate("ListReport", "List does not contain any item.Change date.");
    QString saveTitle = QCoreApplication::translate("ListReport", "Save as");
    bool optionsLeadToList = false;  // a choice of an option gives the list the focus
    bool optionsAreIdle = false;     // the option buttons stand there without effect
};
