#include <gmock/gmock.h>

#include <QApplication>
#include <QTest>

#include "SampleForm.h"
#include "forms/Controls.h"
#include "forms/Frame.h"
#include "forms/MsgBox.h"
#include "forms/WindowPlace.h"
#include "support/ErrorOf.h"
#include "support/Files.h"
#include "support/ScreenTest.h"

using drivers::Boxes;
using drivers::Keys;
using drivers::Settle;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class FormTest : public drivers::ScreenTest {};

TEST_F(FormTest, LoadsOnceAndBeforeItIsShown) {
    frmSample form;
    form.onLoad = [&] { EXPECT_FALSE(form.isVisible()); };
    form.Load();
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(forms::FindForm(u"frmSample"), &form);
    form.Show();
    Settle();
    EXPECT_THAT(form.log, ElementsAre(u"load"_s, u"activate"_s));
    EXPECT_EQ(form.objectName(), u"frmSample"_s);
}

TEST_F(FormTest, UnloadsUnlessItRefusesAndCanBeLoadedAgain) {
    frmSample form;
    form.Show();
    Settle();
    form.refusesUnload = true;
    EXPECT_FALSE(form.Unload());
    EXPECT_FALSE(form.close());
    EXPECT_TRUE(form.isVisible());
    EXPECT_TRUE(forms::IsFormLoaded(&form));

    form.refusesUnload = false;
    EXPECT_TRUE(form.close());
    EXPECT_FALSE(form.isVisible());
    EXPECT_FALSE(forms::IsFormLoaded(&form));
    EXPECT_EQ(forms::FindForm(u"frmSample"), nullptr);

    form.log.clear();
    form.Show();
    Settle();
    EXPECT_THAT(form.log, ElementsAre(u"load"_s, u"activate"_s));
}

TEST_F(FormTest, AWindowIsCentredAndItsFrameStaysOnTheScreen) {
    const QMargins frame(4, 30, 4, 4);
    const QRect screen(0, 24, 1024, 576);
    const auto framed = [&](QSize size, QPoint centre) {
        const QRect place = forms::WindowPlace(size, centre, frame, screen);
        EXPECT_EQ(place.size(), size.boundedTo({1016, 542}));
        EXPECT_TRUE(screen.contains(place.marginsAdded(frame)));
        return place;
    };
    EXPECT_EQ(framed({400, 200}, {512, 312}), QRect(313, 213, 400, 200));
    EXPECT_EQ(framed({1016, 542}, {512, 312}), QRect(4, 54, 1016, 542));
    EXPECT_EQ(framed({1400, 900}, {512, 312}), QRect(4, 54, 1016, 542));
    EXPECT_EQ(framed({400, 200}, {0, 0}), QRect(4, 54, 400, 200));
    EXPECT_EQ(framed({400, 200}, {1024, 600}), QRect(620, 396, 400, 200));
}

TEST_F(FormTest, AControlThatIsNotThereIsAnError) {
    frmSample form;
    EXPECT_EQ(forms::Control<QLineEdit>(&form, u"txtCode"), form.txtCode);
    EXPECT_EQ(ErrorOf([&] { forms::Control(&form, u"txtNone"); }), values::NotSupported);
    EXPECT_EQ(ErrorOf([&] { forms::Control<QPushButton>(&form, u"txtCode"); }), values::NotSupported);
    EXPECT_EQ(ErrorOf([] { forms::Control(nullptr, u"txtCode"); }), values::NoObject);
}

TEST_F(FormTest, ShownModallyBlocksUntilUnloadedAndGivesTheFocusBack) {
    frmSample below;
    below.Show();
    Settle();
    below.txtAmount->setFocus();
    below.FunctionKeys({{Qt::Key_F2, [&] {
                             frmSample above;
                             above.ShowModal();
                             below.log << u"back"_s;
                         }}});
    Boxes boxes;
    boxes.ExpectForm(u"frmSample"_s, [&](QWidget& form) {
        EXPECT_NE(&form, &below);
        EXPECT_TRUE(form.isModal());
        EXPECT_EQ(QApplication::activeWindow(), &form);
        Keys(u"abc");
        EXPECT_EQ(drivers::Box(form, u"txtCode"), u"abc"_s);
        static_cast<frmSample&>(form).Unload();
    });
    below.log.clear();
    Keys(u"{F2}");
    EXPECT_EQ(QApplication::focusWidget(), below.txtAmount);
    EXPECT_THAT(below.log, ElementsAre(u"back"_s, u"activate"_s));
}

TEST_F(FormTest, TheFocusThatAHandlerGaveAwayMeanwhileStaysThere) {
    frmSample below;
    below.Show();
    Settle();
    below.onSave = [&] {
        frmSample above;
        above.ShowModal();
    };
    Boxes boxes;
    boxes.ExpectForm(u"frmSample"_s, [&](QWidget& form) {
        below.txtAmount->setFocus();
        static_cast<frmSample&>(form).Unload();
    });
    below.cmdSave->setFocus();
    Keys(u"{Enter}");
    EXPECT_EQ(QApplication::focusWidget(), below.txtAmount);
}

TEST_F(FormTest, AModalFormThatUnloadsWhileLoadingNeverShows) {
    auto* form = forms::Open<frmSample>();
    const QPointer<frmSample> alive = form;
    form->onLoad = [form] { form->Unload(); };
    form->ShowModal();
    ASSERT_TRUE(alive);
    EXPECT_FALSE(form->isVisible());
    EXPECT_THAT(form->log, ElementsAre(u"load"_s, u"unload"_s));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(alive);
}

TEST_F(FormTest, AFormThatFailsToLoadIsNotShown) {
    frmSample form;
    form.onLoad = [] { throw values::Error(3343, u"no store"_s); };
    EXPECT_THROW(form.ShowModal(), values::Error);
    EXPECT_FALSE(form.isVisible());
    EXPECT_FALSE(forms::IsFormLoaded(&form));
}

TEST_F(FormTest, AnOpenedFormIsStillThereForItsCallerAndThenDeletesItself) {
    frmSample below;
    below.Show();
    QPointer<frmSample> opened;
    below.onSave = [&] {
        opened = forms::Open<frmSample>();
        opened->ShowModal();
        forms::Tell(u"in between"_s);
        ASSERT_TRUE(opened);
        below.log << opened->txtCode->text();
    };
    Boxes boxes;
    boxes.ExpectForm(u"frmSample"_s, [](QWidget&) { Keys(u"77{Tab}{Tab}{Tab}{Tab}{Tab}{Tab}{Enter}"); });
    boxes.Expect(u"in between"_s);
    below.cmdSave->setFocus();
    Keys(u"{Enter}");
    EXPECT_TRUE(below.log.contains(u"77"_s));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(opened);
}

TEST_F(FormTest, ActivatesOncePerComingToTheFrontAndNotAfterAMessageBox) {
    frmSample first;
    frmSample second;
    first.Show();
    Settle();
    second.Show();
    Settle();
    EXPECT_EQ(first.log.count(u"activate"_s), 1);
    EXPECT_EQ(second.log.count(u"activate"_s), 1);
    first.activateWindow();
    Settle();
    EXPECT_EQ(first.log.count(u"activate"_s), 2);

    first.onSave = [] { forms::Tell(u"saved"_s); };
    Boxes boxes;
    boxes.Expect(u"saved"_s);
    first.cmdSave->setFocus();
    Keys(u"{Enter}");
    Settle();
    EXPECT_EQ(QApplication::activeWindow(), &first);
    EXPECT_EQ(first.log.count(u"activate"_s), 2);

    first.Unload();
    Settle();
    second.activateWindow();
    Settle();
    EXPECT_EQ(second.log.count(u"activate"_s), 2);
}

TEST_F(FormTest, AFrameShowsItsChildAndPassesItsKeysOn) {
    forms::Frame frame;
    frame.show();
    Settle();
    EXPECT_EQ(frame.ActiveChild(), nullptr);
    frmSample child;
    child.FunctionKeys({{Qt::Key_F5, child.cmdSave}});
    child.onLoad = [&] { child.txtAmount->setFocus(); };
    frame.ShowChild(&child);
    Settle();
    EXPECT_EQ(frame.ActiveChild(), &child);
    EXPECT_EQ(QApplication::focusWidget(), child.txtAmount);
    EXPECT_EQ(child.log.count(u"activate"_s), 1);
    EXPECT_EQ(child.size(), frame.centralWidget()->size());

    QTest::keyClick(&frame, Qt::Key_F5);
    EXPECT_EQ(child.log.count(u"save"_s), 1);

    EXPECT_FALSE(frame.close());
    EXPECT_TRUE(frame.isVisible());

    child.Unload();
    EXPECT_EQ(frame.ActiveChild(), nullptr);
    EXPECT_EQ(child.parentWidget(), nullptr);
}

TEST_F(FormTest, AChildOfAFrameActivatesOnTheReturnFromADialog) {
    forms::Frame frame;
    frame.show();
    frmSample child;
    frame.ShowChild(&child);
    child.onSave = [] {
        frmSample dialog;
        dialog.ShowModal();
    };
    Settle();
    Boxes boxes;
    boxes.ExpectForm(u"frmSample"_s, [](QWidget& form) { static_cast<frmSample&>(form).Unload(); });
    child.cmdSave->setFocus();
    child.log.clear();
    Keys(u"{Enter}");
    EXPECT_THAT(child.log, ElementsAre(u"save"_s, u"activate"_s));
    child.Unload();
}

TEST_F(FormTest, FocusHandlersIgnoreWindowsAndMenus) {
    frmSample form;
    form.WatchCode();
    form.onSave = [] { forms::Tell(u"box"_s); };
    form.FunctionKeys({{Qt::Key_F5, form.cmdSave}});
    form.Show();
    Settle();
    form.log.clear();

    Boxes boxes;
    boxes.Expect(u"box"_s);
    Keys(u"{F5}");
    frmSample other;
    other.Show();
    Settle();
    other.Unload();
    Settle();
    form.activateWindow();
    Settle();
    ASSERT_EQ(QApplication::focusWidget(), form.txtCode);
    form.log.removeAll(u"activate"_s);
    EXPECT_THAT(form.log, ElementsAre(u"save"_s));

    Keys(u"{Tab}");
    Keys(u"{Shift+Tab}");
    EXPECT_THAT(form.log, ElementsAre(u"save"_s, u"lost"_s));
}

TEST_F(FormTest, AComboBoxKeepsTheFocusWhileItsListIsOpen) {
    frmSample form;
    form.WatchCode();
    form.cboTemp->addItems({u"one"_s, u"two"_s});
    form.FunctionKeys({{Qt::Key_Escape, form.cmdClose}});
    form.Show();
    Settle();
    form.cboTemp->setFocus();
    form.log.clear();
    form.cboTemp->showPopup();
    Settle();
    Keys(u"{Esc}");
    EXPECT_TRUE(form.isVisible()) << "Esc closes the list, not the form";
    EXPECT_THAT(form.log, IsEmpty());
    Keys(u"{Esc}");
    EXPECT_FALSE(form.isVisible());
}

TEST_F(FormTest, LeavingABoxMayTellAndMoveTheFocus) {
    class frmStrict : public frmSample {
    public:
        frmStrict() { OnLostFocus(txtCode, &frmStrict::txtCode_LostFocus); }
        void txtCode_LostFocus() {
            if (txtCode->text().isEmpty()) return;
            forms::Inform(u"unknown"_s, Caption());
            txtCode->clear();
        }
    } form;
    form.Show();
    Settle();
    Boxes boxes;
    boxes.Expect(u"unknown"_s).Titled(u"Sample"_s).WithIcon(QMessageBox::Information);
    Keys(u"123{Tab}");
    EXPECT_EQ(boxes.Left(), 0);
    EXPECT_EQ(form.txtCode->text(), QString());
    EXPECT_EQ(QApplication::focusWidget(), form.txtAmount);

    // The click that leads away from the box is used up by the message.
    boxes.Expect(u"unknown"_s);
    form.txtCode->setFocus();
    Keys(u"123");
    drivers::Click(form.cmdSave);
    EXPECT_FALSE(form.cmdSave->isDown());
    EXPECT_FALSE(form.log.contains(u"save"_s));
    drivers::Click(form.cmdSave);
    EXPECT_TRUE(form.log.contains(u"save"_s));
}

TEST_F(FormTest, PicturesLoadByContentAndAMissingOneChangesNothing) {
    frmSample form;
    QPixmap dot(4, 4);
    dot.fill(Qt::red);
    const QString path = folder.filePath(u"dot.bmp"_s);
    ASSERT_TRUE(dot.save(path, "PNG"));
    EXPECT_TRUE(forms::LoadPicture(form.cmdSave, path));
    EXPECT_FALSE(form.cmdSave->icon().isNull());

    QLabel label;
    EXPECT_TRUE(forms::LoadPicture(&label, path));
    EXPECT_FALSE(forms::LoadPicture(&label, folder.filePath(u"gone.png"_s)));
    drivers::WriteFile(folder.filePath(u"text.png"_s), "no picture");
    EXPECT_FALSE(forms::LoadPicture(&label, folder.filePath(u"text.png"_s)));
    EXPECT_EQ(label.pixmap().size(), QSize(4, 4));

    // What costs a till its time to look at is none either; what changed on the disk is read anew.
    QImage big(3000, 3000, QImage::Format_Mono);
    big.fill(0);
    ASSERT_TRUE(big.save(path, "PNG"));
    EXPECT_FALSE(forms::LoadPicture(&label, path));
    ASSERT_TRUE(big.copy(0, 0, 4, 900).save(path, "PNG"));
    EXPECT_TRUE(forms::LoadPicture(&label, path));
    EXPECT_GT(label.pixmap().height(), 4);
}

}  // namespace
