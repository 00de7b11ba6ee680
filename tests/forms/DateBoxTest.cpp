#include "forms/DateBox.h"

#include <QLineEdit>
#include <QVBoxLayout>

#include "support/ScreenTest.h"

using namespace Qt::StringLiterals;
using drivers::Keys;

namespace {

// Typed into a box that shows 17.11.2026.
const struct DateCase {
    const char* keys;
    const char* date;
} DateCases[] = {
    {"31122026{Tab}", "31.12.2026"},
    {"29022028{Tab}", "29.02.2028"},
    {"31.12.2026{Tab}", "31.12.2026"},
    {"5.1.2027{Tab}", "05.01.2027"},
    {"01,02/28{Tab}", "01.02.2028"},
    {"3{Tab}", "03.11.2026"},
    {"31.12{Tab}", "31.12.2026"},
    {"31{Tab}", "17.11.2026"},
    {"29022027{Tab}", "17.11.2026"},
    {"31122026", "31.12.2026"},
    {"311220261", "01.12.2026"},
    {"01010001{Tab}", "17.11.2026"},
    {"..{Tab}", "17.11.2026"},
    {"x{Backspace}{Del}{Tab}", "17.11.2026"},
    {"319{Backspace}{Backspace}{Backspace}{Backspace}{Tab}", "17.11.2026"},
    {"31129{Backspace}{Backspace}2026{Tab}", "31.12.2026"},
    {"1812{Up}{Tab}", "19.12.2026"},
};

using DateBoxTest = drivers::ScreenTest;

TEST_F(DateBoxTest, TakesTheDateThatIsTyped) {
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* box = new forms::DateBox(&window);
    auto* next = new QLineEdit(&window);
    box->setDisplayFormat(u"dd.MM.yyyy"_s);
    box->setCalendarPopup(true);
    layout->addWidget(box);
    layout->addWidget(next);
    window.show();
    window.activateWindow();
    for (const auto& [keys, date] : DateCases) {
        next->setFocus();
        box->setDate(QDate(2026, 11, 17));
        box->setFocus(Qt::TabFocusReason);
        Keys(QString::fromLatin1(keys));
        EXPECT_EQ(next->hasFocus(), QByteArrayView(keys).endsWith("{Tab}")) << keys;
        next->setFocus();
        EXPECT_EQ(box->text(), QString::fromLatin1(date)) << keys;
        EXPECT_EQ(box->date().toString(u"dd.MM.yyyy"_s), QString::fromLatin1(date)) << keys;
    }
}

}  // namespace
