#include "forms/Program.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QThread>
#include <QTimer>

#include "SampleForm.h"
#include "forms/FileDialog.h"
#include "forms/LongWork.h"
#include "forms/MsgBox.h"
#include "support/Files.h"
#include "support/ScreenTest.h"

using drivers::Boxes;
using drivers::Keys;
using drivers::Settle;
using testing::ElementsAre;

namespace {

class ProgramTest : public drivers::ScreenTest {};

class PrinterGone : public values::Error {
public:
    PrinterGone() : Error(57, u"Device error"_s) {}
    bool EndsProgram() const override { return true; }
};

TEST_F(ProgramTest, AnErrorThatNobodyTrapsIsToldAndTheProgramGoesOn) {
    frmSample form;
    form.onSave = [] { throw values::Error(3022, u"Duplicate key."_s); };
    form.FunctionKeys({{Qt::Key_F5, form.cmdSave}});
    form.Show();
    Settle();
    Boxes boxes;
    boxes.Expect(u"3022Duplicate key."_s).Titled(u"Sample"_s).WithIcon(QMessageBox::Information);
    Keys(u"{F5}");
    EXPECT_FALSE(forms::ProgramIsEnding());
    form.onSave = [] { throw std::runtime_error("out of paper: š"); };
    boxes.Expect(u"out of paper: š"_s).Titled(u"Sample"_s);
    Keys(u"{F5}");
    EXPECT_FALSE(forms::ProgramIsEnding());
    EXPECT_TRUE(form.isVisible());
}

TEST_F(ProgramTest, SomeErrorsEndTheProgram) {
    Boxes boxes;
    boxes.Expect(u"57Device error"_s).Titled(u"Till"_s).WithIcon(QMessageBox::Critical);
    forms::Run([] { throw PrinterGone(); }, u"Till"_s);
    EXPECT_TRUE(forms::ProgramIsEnding());
    EXPECT_EQ(forms::ProgramExitCode(), 1);

    forms::ResetProgramEnd();
    boxes.Expect(u"3021No current row."_s).WithIcon(QMessageBox::Critical);
    frmSample fatal;
    fatal.StoreErrorsEndProgram();
    fatal.onSave = [] { throw values::Error(3021, u"No current row."_s); };
    fatal.Load();
    fatal.cmdSave->click();
    EXPECT_TRUE(forms::ProgramIsEnding());
}

TEST_F(ProgramTest, EndingLeavesEveryHandlerAndLoopAtOnce) {
    QStringList trace;
    frmSample outer;
    outer.onSave = [&] {
        auto* inner = forms::Open<frmSample>();
        inner->onSave = [&] {
            trace << u"asks"_s;
            forms::Ask(u"really?"_s, u"Inner"_s);
            trace << u"not reached"_s;
        };
        inner->ShowModal();
        trace << u"not reached either"_s;
    };
    outer.Show();
    Settle();
    outer.cmdSave->setFocus();
    Boxes boxes;
    boxes.ExpectForm(u"frmSample"_s, [&](QWidget& form) {
        // The program ends while the box of the inner form is up.
        QTimer::singleShot(0, qApp, [] {
            forms::Run(
                [] {
                    ASSERT_TRUE(qobject_cast<QMessageBox*>(QApplication::activeModalWidget()));
                    forms::EndProgram(7);
                },
                {});
        });
        static_cast<frmSample&>(form).cmdSave->click();
        trace << u"script goes on"_s;
    });
    QTimer::singleShot(0, qApp, [] { Keys(u"{Enter}"); });
    EXPECT_EQ(QApplication::exec(), 7);
    EXPECT_THAT(trace, ElementsAre(u"asks"_s, u"script goes on"_s));
    EXPECT_TRUE(forms::ProgramIsEnding());
    EXPECT_EQ(forms::LoadedForms().size(), 1) << "the modal form is off the screen";

    bool ran = false;
    forms::Run([&] { ran = true; }, {});
    EXPECT_FALSE(ran) << "no handler starts while the program ends";
    EXPECT_THROW(forms::Tell(u"too late"_s), forms::ProgramEnds);
    frmSample late;
    EXPECT_THROW(late.ShowModal(), forms::ProgramEnds);
}

TEST_F(ProgramTest, EndingBeforeTheMainLoopLetsItLeaveAtItsFirstTurnAndAResetLivesAgain) {
    forms::Run([] { forms::EndProgram(3); }, {});
    EXPECT_EQ(QApplication::exec(), 3);
    forms::ResetProgramEnd();
    Boxes boxes;
    boxes.Expect(u"alive"_s);
    forms::Tell(u"alive"_s);
    EXPECT_EQ(forms::ProgramExitCode(), 0);
}

TEST_F(ProgramTest, QuestionsDefaultToYesAndEscMeansNo) {
    const struct {
        const char16_t* keys;
        bool answer;
    } cases[] = {{u"{Enter}", true}, {u"{Esc}", false}, {u"{Tab}{Enter}", false}, {u"{Alt+n}", false}};
    for (const auto& [keys, answer] : cases) {
        Boxes boxes;
        boxes.Expect(u"Delete?\nReally?"_s).Typing(QString::fromUtf16(keys));
        EXPECT_EQ(forms::Ask(u"Delete?\nReally?"_s, u"Sample"_s), answer) << QString::fromUtf16(keys).toStdString();
    }
}

TEST_F(ProgramTest, BoxesShowTheirTextAsItIs) {
    Boxes boxes;
    boxes.Expect(u"<b>a</b> & b\nline"_s).Titled(u"VELTON"_s).WithIcon(QMessageBox::NoIcon);
    forms::Tell(u"<b>a</b> & b\nline"_s);
}

TEST_F(ProgramTest, FileDialogsAnswerWithAPath) {
    const QString path = folder.filePath(u"list.txt"_s);
    drivers::WriteFile(path, {});
    Boxes boxes;
    boxes.ExpectFile(path);
    EXPECT_EQ(forms::AskSaveName(nullptr, u"Save as"_s, u"Report (*.txt)"_s), path) << "without a question";
    boxes.ExpectFile(folder.filePath(u"bare"_s));
    EXPECT_EQ(forms::AskSaveName(nullptr, u"Save as"_s, u"Report (*.txt)"_s), folder.filePath(u"bare"_s))
        << "as it is typed";
    boxes.ExpectFile({});
    EXPECT_EQ(forms::AskSaveName(nullptr, u"Save as"_s, u"Report (*.txt)"_s), QString());
    boxes.ExpectFile(folder.filePath(u"gone.bmp"_s));
    EXPECT_EQ(forms::AskOpenName(nullptr, u"Open"_s, u"Pictures (*.bmp *.gif)"_s), folder.filePath(u"gone.bmp"_s))
        << "the screens tell what is missing";
}

// Waits until somebody leaves, and acts once the notice lets events in, with a look at it between two acts.
void WaitFor(const QString& text, QList<std::function<void()>> acts) {
    forms::LongWork wait(text);
    std::function<void()> act = [&] {
        acts.takeFirst()();
        if (!acts.isEmpty()) QTimer::singleShot(100, qApp, act);
    };
    QTimer::singleShot(0, qApp, act);
    while (wait.GoesOn(text + u" /"_s + QString(200, u'x'))) QThread::msleep(5);
}

TEST_F(ProgramTest, AWaitSaysWhatItWaitsForAndEscLeavesTheInnermost) {
    frmSample below;
    below.Show();
    QPointer<frmSample> form = forms::Open<frmSample>();
    form->onKey = [&](QKeyEvent& key) { return form->log << QKeySequence(key.key()).toString(), false; };
    form->Show();
    Settle();
    form->txtCode->setFocus();
    form->log.clear();
    const auto notice = [](QWidget& over) { return over.findChild<QFrame*>(u"panelLongWork"_s); };
    const auto press = [](Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); };
    Boxes boxes;
    boxes.Expect(u"now?"_s).Typing(u"{Esc}"_s);
    const auto click = [&](QWidget* at) {
        QTest::mouseClick(form->windowHandle(), Qt::LeftButton, {}, at->mapTo(form, at->rect().center()));
    };
    const auto within = [&] {
        WaitFor(u"the inner one"_s, {[&] { press(Qt::Key_Escape); }});
        EXPECT_FALSE(notice(*form)) << "the outer one shows itself again at its next look";
    };
    const auto small = [&] {
        ASSERT_TRUE(notice(*form));
        EXPECT_TRUE(form->rect().contains(notice(*form)->geometry()));
        EXPECT_TRUE(notice(*form)->findChild<QLabel*>()->text().startsWith(u"the outer one /"));
        press(Qt::Key_F5);
        click(form->txtAmount);
        EXPECT_EQ(QApplication::focusWidget(), form->txtCode);
    };
    const auto leave = [&] {
        click(notice(*form)->findChild<QPushButton*>());
        QTimer::singleShot(0, qApp, [&] { press(Qt::Key_F5); });
    };
    WaitFor(u"the outer one"_s, {within, small, [] { forms::Tell(u"now?"_s); }, leave});
    EXPECT_FALSE(notice(*form));
    Settle();
    EXPECT_THAT(form->log, ElementsAre());
    WaitFor(u"another"_s, {[&] { delete form; }, [&] { EXPECT_TRUE(notice(below)); },
                           [&] { QTest::keyClick(&below, Qt::Key_Escape); }});
    EXPECT_THAT(below.log, testing::Not(testing::Contains(u"unload"_s)));
    EXPECT_FALSE(QApplication::overrideCursor());
}

}  // namespace
