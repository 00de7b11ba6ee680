#include "support/Files.h"
#include "support/Help.h"

#include <QPointingDevice>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>

#include "forms/ListView.h"
#include "support/ReadingView.h"
#include "support/ScreenCase.h"

using namespace Qt::StringLiterals;
using drivers::Keys;
using drivers::ScreenCase;
using drivers::Step;

namespace {

class HelpTest : public drivers::TillTest {
protected:
    // Shows a help text as every screen does; Esc closes it.
    void Help(const QString& file, std::function<void(QWidget& form, ReadingView& text)> script) {
        boxes_.ExpectForm(u"frmHelp"_s, [&](QWidget& form) {
            script(form, *drivers::Get<ReadingView>(form, u"rtBox"));
            Keys(u"{Esc}");
        });
        ShowHelp(file);
    }
    static int Place(const ReadingView& text) { return text.verticalScrollBar()->value(); }

    drivers::Boxes boxes_;
};

TEST_F(HelpTest, IsReadByKeysByContentsAndByLinks) {
    Help(u"\\helpVELTON.rtf"_s, [](QWidget& form, ReadingView& text) {
        EXPECT_EQ(Place(text), 0);
        Keys(u"{Down}{PgDn}");
        const int below = Place(text);
        EXPECT_GT(below, text.height() / 2);
        Keys(u"{PgUp}{Up}");
        EXPECT_LT(Place(text), below);

        auto* contents = drivers::Get<forms::ListView>(form, u"lvContents");
        const int row = contents->Find(u"    When something goes wrong");
        ASSERT_GE(row, 0);
        drivers::ClickRow(contents, row);
        const QPoint edge(text.viewport()->width() / 3, 2);
        EXPECT_EQ(text.cursorForPosition(edge).block().text(), u"When something goes wrong");

        text.anchorClicked(QUrl(u"../Lozinka.rtf"_s));
        EXPECT_TRUE(text.toPlainText().startsWith(u"Passwords and levels"));
        EXPECT_EQ(contents->Text(0), u"Passwords and levels");
        EXPECT_EQ(Place(text), 0);
    });
}

TEST_F(HelpTest, FollowsAFinger) {
    Help(u"\\helpVELTON.rtf"_s, [](QWidget&, ReadingView& text) {
        const std::unique_ptr<QPointingDevice> screen(QTest::createTouchDevice());
        QWidget* view = text.viewport();
        QPoint finger = view->rect().center();
        QTest::touchEvent(view, screen.get()).press(1, finger, view);
        for (int step = 0; step < 20; ++step) {
            finger.ry() -= 8;
            QTest::qWait(10);
            QTest::touchEvent(view, screen.get()).move(1, finger, view);
        }
        QTest::touchEvent(view, screen.get()).release(1, finger, view);
        EXPECT_GT(Place(text), 80);
    });
}

// No line is wider than the view, and on a large window none is too long to be read.
TEST_F(HelpTest, LinesFitTheViewAndTheEye) {
    for (const QString& name : {u"\\Lozinka.rtf"_s, u"\\Podesavanje.rtf"_s})
        Help(name, [&](QWidget& form, ReadingView& text) {
            for (const QSize size : {QSize(800, 600), QSize(1900, 1000)}) {
                form.resize(size);
                drivers::Settle();
                EXPECT_LE(text.document()->size().width(), text.viewport()->width() + 1);
                EXPECT_LE(text.document()->size().width(), 720);
            }
        });
}

[[maybe_unused]] const bool added = ScreenCase::AddWords({
    {u"text"_s,
     [](auto& at, auto& rest, auto&) {
         at.Form();
         ShowHelp(rest);
     }},
    {u"long-text"_s, [](auto& at, auto& rest,
                        auto&) { drivers::WriteFile(at.Path(rest), "{\\rtf1 " + QByteArray(300000, 'x') + '}'); }},
    // The version, the program's own licence and what else is named here.
    {u"licences"_s,
     [](auto& at, auto& rest, auto&) {
         EXPECT_EQ(drivers::Box(at.Form(), u"lblVersion"), u"Version " VELTON_VERSION);
         const QString text = drivers::Box(at.Form(), u"rtBox").simplified();
         const QByteArray licence = drivers::ReadFile(QStringLiteral(SOURCE_ROOT "/LICENSE"));
         const QStringList parts = QStringList(rest.split(u" | "_s)) << QString::fromUtf8(licence).simplified();
         for (const QString& part : parts) EXPECT_TRUE(text.contains(part)) << part.toStdString();
     }},
});

}  // namespace

INSTANTIATE_SCREEN_CASES(Help, u"help"_s);
