#include <gmock/gmock.h>

#include <QApplication>
#include <QClipboard>
#include <QMenu>

#include "SampleForm.h"
#include "support/ScreenTest.h"
#include "values/Locale.h"

using drivers::Keys;
using drivers::Settle;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class KeysTest : public drivers::ScreenTest {
protected:
    void Show() {
        form.Show();
        Settle();
        form.log.clear();
    }
    frmSample form;
};

TEST_F(KeysTest, TheFormSeesAKeyBeforeTheControl) {
    form.onKey = [this](QKeyEvent& key) {
        form.log << u"form"_s;
        return key.key() == Qt::Key_F5;
    };
    form.ControlKeys(form.txtCode,
                     {{Qt::Key_F5, form.Note(u"control F5"_s)}, {Qt::Key_F4, form.Note(u"control F4"_s)}});
    form.FunctionKeys({{Qt::Key_F5, form.cmdSave}});
    Show();
    Keys(u"{F5}");
    EXPECT_THAT(form.log, ElementsAre(u"form"_s));
    Keys(u"{F4}");
    EXPECT_THAT(form.log, ElementsAre(u"form"_s, u"form"_s, u"control F4"_s));
    Keys(u"{F3}");
    EXPECT_EQ(form.log.size(), 4) << "a key that nobody takes goes on to the parents, but is asked about once";
    Keys(u"x");
    EXPECT_EQ(form.txtCode->text(), u"x"_s);
}

TEST_F(KeysTest, FunctionKeysPressButtonsFromAnyControl) {
    form.FunctionKeys({{Qt::Key_F5, form.cmdSave}, {Qt::Key_F6, form.cmdDelete}, {Qt::Key_F12, form.cmdClose}});
    form.lv1->Add({u"1"_s});
    Show();
    for (QWidget* control : {static_cast<QWidget*>(form.txtCode), static_cast<QWidget*>(form.cboTemp),
                             static_cast<QWidget*>(form.lv1), static_cast<QWidget*>(form.cmdDelete)}) {
        control->setFocus();
        form.log.clear();
        Keys(u"{F5}{Ctrl+F5}{F3}");
        EXPECT_THAT(form.log, ElementsAre(u"save"_s)) << qPrintable(control->objectName());
    }
    form.log.clear();
    form.cmdDelete->setEnabled(false);
    Keys(u"{F6}");
    EXPECT_THAT(form.log, IsEmpty()) << "a disabled button does nothing";
    Keys(u"{F12}");
    EXPECT_FALSE(form.isVisible());
}

TEST_F(KeysTest, AHeldFunctionKeyActsOnce) {
    form.FunctionKeys({{Qt::Key_F5, form.cmdSave}});
    form.ControlKeys(form.txtCode, {{Qt::Key_Return, form.Note(u"enter"_s)}});
    Show();
    drivers::HoldKey(Qt::Key_F5, 5);
    drivers::HoldKey(Qt::Key_Return, 5);
    EXPECT_THAT(form.log, ElementsAre(u"save"_s, u"enter"_s));
}

TEST_F(KeysTest, AFunctionKeyIsNoShortcutOfAMenu) {
    QAction action;
    action.setShortcut(Qt::Key_F5);
    form.addAction(&action);
    QObject::connect(&action, &QAction::triggered, &form, form.Note(u"menu"_s));
    form.FunctionKeys({{Qt::Key_F5, form.cmdSave}});
    Show();
    Keys(u"{F5}");
    EXPECT_THAT(form.log, ElementsAre(u"save"_s));
}

TEST_F(KeysTest, KeysOfAnOpenMenuStayThere) {
    form.FunctionKeys({{Qt::Key_F5, form.cmdSave}, {Qt::Key_Escape, form.cmdClose}});
    Show();
    QMenu menu;
    menu.addAction(u"entry"_s);
    menu.popup(form.mapToGlobal(QPoint(5, 5)));
    Settle();
    Keys(u"{F5}{Esc}");
    EXPECT_THAT(form.log, IsEmpty());
    EXPECT_FALSE(menu.isVisible());
    EXPECT_TRUE(form.isVisible());
}

TEST_F(KeysTest, EnterPressesAButton) {
    Show();
    form.cmdSave->setFocus();
    Keys(u"{Enter}{Space}");
    EXPECT_THAT(form.log, ElementsAre(u"save"_s, u"save"_s));
}

TEST_F(KeysTest, EnterMovesOnInTheBoxesGiven) {
    form.EnterMovesOn({form.txtCode, form.cboTemp});
    Show();
    Keys(u"{Enter}");
    EXPECT_EQ(QApplication::focusWidget(), form.txtAmount);
    Keys(u"{Enter}");
    EXPECT_EQ(QApplication::focusWidget(), form.txtAmount);
    form.cboTemp->setFocus();
    Keys(u"{Enter}");
    EXPECT_EQ(QApplication::focusWidget(), form.lv1);
}

TEST_F(KeysTest, EnterMovesOnAnywhereAndSpaceStillPressesAButton) {
    form.EnterMovesOn();
    Show();
    Keys(u"{Enter}{Enter}{Enter}{Enter}");
    ASSERT_EQ(QApplication::focusWidget(), form.cmdSave);
    Keys(u"{Space}{Enter}");
    EXPECT_EQ(QApplication::focusWidget(), form.cmdDelete);
    EXPECT_THAT(form.log, ElementsAre(u"save"_s));
    Keys(u"{Enter}{Enter}");
    EXPECT_EQ(QApplication::focusWidget(), form.txtCode) << "the last control leads to the first";
}

TEST_F(KeysTest, ListKeysNeedRows) {
    form.ListKeys(form.lv1, {{Qt::Key_Delete, form.cmdDelete}, {Qt::Key_Return, form.cmdSave}});
    Show();
    form.lv1->setFocus();
    Keys(u"{Del}{Enter}");
    EXPECT_THAT(form.log, IsEmpty());
    form.lv1->Add({u"1"_s});
    Keys(u"{Del}{Enter}");
    EXPECT_THAT(form.log, ElementsAre(u"delete"_s, u"save"_s));
}

struct NumericCase {
    const char16_t* locale;
    const char16_t* also;
    const char16_t* keys;
    const char16_t* text;
};

TEST_F(KeysTest, NumericBoxesTakeDigitsAndTheUsersSeparator) {
    const NumericCase cases[] = {
        {u"en_US", u"", u"1a2b3", u"123"},
        {u"en_US", u"", u"12,5", u"12.5"},
        {u"en_US", u"", u"12.5", u"12.5"},
        {u"hr_HR", u"", u"12.5", u"12,5"},
        {u"hr_HR", u"", u"12,5,", u"12,5,"},
        {u"hr_HR", u"", u"-1 +2e", u"12"},
        {u"hr_HR", u"-", u"-1-", u"-1-"},
        {u"en_US", u"", u"123{Backspace}4", u"124"},
        {u"en_US", u"", u"123{Home}{Del}{End}4", u"234"},
        {u"en_US", u"", u"čš²7", u"7"},
    };
    form.NumericKeys({form.txtAmount});
    frmSample signedForm;
    signedForm.NumericKeys({signedForm.txtAmount}, u"-"_s);
    for (const auto& [locale, also, keys, text] : cases) {
        values::SetUserLocale(QLocale(QString::fromUtf16(locale)));
        frmSample& shown = QStringView(also).isEmpty() ? form : signedForm;
        shown.Show();
        shown.txtAmount->clear();
        drivers::Type(shown, u"txtAmount", keys);
        EXPECT_EQ(shown.txtAmount->text(), QString::fromUtf16(text)) << QString::fromUtf16(keys).toStdString();
        shown.Unload();
    }
}

TEST_F(KeysTest, NumericBoxesHonourSelectionLengthAndPaste) {
    form.NumericKeys({form.txtAmount});
    form.txtAmount->setMaxLength(4);
    Show();
    form.txtAmount->setText(u"99"_s);
    drivers::Type(form, u"txtAmount", u",12345");
    EXPECT_EQ(form.txtAmount->text(), u".123"_s);
    QGuiApplication::clipboard()->setText(u"1x"_s);
    drivers::Type(form, u"txtAmount", u"{Ctrl+v}");
    EXPECT_EQ(form.txtAmount->text(), u"1x"_s);
    form.txtAmount->setReadOnly(true);
    Keys(u".");
    EXPECT_EQ(form.txtAmount->text(), u"1x"_s);
}

TEST_F(KeysTest, PastedLineBreaksStayOutside) {
    Show();
    QGuiApplication::clipboard()->setText(u"385\r\n"_s);
    drivers::Type(form, u"txtCode", u"{Ctrl+v}1");
    EXPECT_EQ(form.txtCode->text(), u"3851"_s);
    QGuiApplication::clipboard()->setText(u"a\nb\n"_s);
    drivers::Type(form, u"txtCode", u"{Ctrl+v}");
    EXPECT_EQ(form.txtCode->text(), u"a b"_s);
}

TEST_F(KeysTest, ABoxIsSelectedHoweverItGetsTheFocus) {
    form.HighlightOnFocus({form.txtCode, form.txtAmount});
    form.txtAmount->setText(u"12,50"_s);
    Show();
    Keys(u"{Tab}");
    EXPECT_EQ(form.txtAmount->selectedText(), u"12,50"_s);
    form.cmdSave->setFocus();
    form.txtAmount->deselect();
    form.txtAmount->setFocus();
    EXPECT_EQ(form.txtAmount->selectedText(), u"12,50"_s);
    form.cmdSave->setFocus();
    form.txtAmount->deselect();
    drivers::Click(form.txtAmount);
    EXPECT_EQ(form.txtAmount->selectedText(), u"12,50"_s);
    drivers::Click(form.txtAmount);
    EXPECT_FALSE(form.txtAmount->hasSelectedText()) << "a second click sets the caret";
}

TEST_F(KeysTest, ABoxThatKeepsItsCaretIsNotSelected) {
    form.HighlightOnFocus({form.cboTemp, form.txtAmount}, forms::OnFocus::KeepCaret);
    Show();
    form.cboTemp->setEditText(u"abc"_s);
    Keys(u"{Tab}{Tab}");
    EXPECT_EQ(QApplication::focusWidget(), form.cboTemp);
    Keys(u"d");
    EXPECT_EQ(form.cboTemp->currentText(), u"abcd"_s);
}

TEST_F(KeysTest, MouseHandlersSeeTheRowThatWasClicked) {
    form.WatchList();
    for (int i = 0; i < 3; ++i) form.lv1->Add({QString::number(i)});
    form.resize(400, 600);
    Show();
    drivers::ClickRow(form.lv1, 1);
    drivers::ClickRow(form.lv1, 2, Qt::RightButton);
    drivers::ClickRow(form.lv1, -1);
    EXPECT_THAT(form.log, ElementsAre(u"left:1"_s, u"right:2"_s, u"left:2"_s));
    form.log.clear();
    drivers::DoubleClickRow(form.lv1, 0);
    EXPECT_TRUE(form.log.contains(u"double:0"_s));
}

}  // namespace
