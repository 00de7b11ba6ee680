#include <QFile>
#include <QPointingDevice>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>

#include "core/Session.h"
#include "forms/ListView.h"
#include "support/Help.h"
#include "support/Office.h"
#include "support/ReadingView.h"
#include "support/frmAbout.h"

using namespace Qt::StringLiterals;
using drivers::Keys;
using testing::Test;

namespace {

class HelpTest : public drivers::OfficeTest {
protected:
    void Write(const QString& name, const QByteArray& text) const {
        QFile file(Path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    }
    // Shows a help text as every screen does; the script has to close it.
    void Help(const QString& file, std::function<void(QWidget& form, ReadingView& text)> script) {
        boxes_.ExpectForm(u"frmHelp"_s,
                          [&](QWidget& form) { script(form, *drivers::Get<ReadingView>(form, u"rtBox")); });
        ShowHelp(file);
    }
    static int Place(const ReadingView& text) { return text.verticalScrollBar()->value(); }
    // What stands at the upper edge of the view.
    static QString TopLine(const ReadingView& text) {
        return text.cursorForPosition(QPoint(text.viewport()->width() / 3, 2)).block().text();
    }
};

TEST_F(HelpTest, OpensFromTheTillAndTheMenuAndCloses) {
    LogIn();
    for (const QString& close : {u"{Esc}"_s, u"{F12}"_s}) {
        boxes_.ExpectForm(u"frmHelp"_s, [&](QWidget& form) {
            EXPECT_EQ(form.windowTitle(), u"Help");
            EXPECT_EQ(drivers::Box(form, u"cmdClose"), u"F12-Close");
            EXPECT_TRUE(drivers::Get<ReadingView>(form, u"rtBox")->toPlainText().startsWith(u"At the till"));
            Keys(close);
            EXPECT_FALSE(form.isVisible());
        });
        if (close == u"{Esc}")
            Keys(u"{F1}");
        else
            mdiORVA::Window().findChild<QAction*>(u"mnuHelp1"_s)->trigger();
    }
    EXPECT_EQ(HelpFileName, u"\\helpVELTON.rtf");
}

TEST_F(HelpTest, IsReadByKeysByContentsAndByLinks) {
    Help(u"\\helpVELTON.rtf"_s, [](QWidget& form, ReadingView& text) {
        drivers::Grab(form, u"frmHelp"_s);
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
        EXPECT_EQ(TopLine(text), u"When something goes wrong");
        drivers::Grab(form, u"frmHelp-scrolled"_s);

        text.anchorClicked(QUrl(u"../Lozinka.rtf"_s));
        EXPECT_TRUE(text.toPlainText().startsWith(u"Passwords and levels"));
        EXPECT_EQ(contents->Text(0), u"Passwords and levels");
        EXPECT_EQ(Place(text), 0);
        Keys(u"{Esc}");
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
        Keys(u"{Esc}");
    });
}

TEST_F(HelpTest, TellsWhatIsMissingOrDamaged) {
    const auto shown = [this](const QString& file) {
        QString words;
        Help(file, [&](QWidget& form, ReadingView& text) {
            words = text.toPlainText();
            EXPECT_FALSE(drivers::Get<QWidget>(form, u"lvContents")->isVisible());
            drivers::Grab(form, u"frmHelp-"_s + file.mid(1).section(u'.', 0, 0));
            Keys(u"{F12}");
        });
        return words;
    };
    const QString missing = shown(u"\\none.rtf"_s);
    EXPECT_TRUE(missing.startsWith(u"The help text is not there."));
    EXPECT_TRUE(missing.contains(Path(u"none.rtf"_s)));
    EXPECT_TRUE(shown(u""_s).startsWith(u"The help text is not there."));
    EXPECT_TRUE(shown(u"\\img"_s).startsWith(u"The help text is not there."));
    Write(u"plain.rtf"_s, "no RTF at all");
    EXPECT_EQ(shown(u"\\plain.rtf"_s), u"The help text is damaged: This is not a text in RTF.");
    Write(u"long.rtf"_s, "{\\rtf1 " + QByteArray(300000, 'x') + '}');
    EXPECT_TRUE(shown(u"\\long.rtf"_s).startsWith(u"The help text cannot be read: it is too long."));
    Write(u"cut.rtf"_s, "{\\rtf1 The beginning\\par and ");
    EXPECT_EQ(shown(u"\\cut.rtf"_s), u"The beginning\nand \nThe help text is damaged: The end of the text is missing.");
}

TEST_F(HelpTest, TheOtherTextsLookLikeIt) {
    for (const QString& name : {u"Lozinka"_s, u"Podesavanje"_s})
        Help(u'\\' + name + u".rtf"_s, [&](QWidget& form, ReadingView& text) {
            drivers::Grab(form, u"frmHelp-"_s + name);
            Keys(u"{PgDn}{PgDn}");
            drivers::Grab(form, u"frmHelp-"_s + name + u"-scrolled"_s);
            // No line is wider than the view, and on a large window none is too long to be read.
            for (const QSize size : {QSize(800, 600), QSize(1900, 1000)}) {
                form.resize(size);
                drivers::Settle();
                EXPECT_LE(text.document()->size().width(), text.viewport()->width() + 1);
                EXPECT_LE(text.document()->size().width(), 720);
            }
            Keys(u"{Esc}");
        });
}

TEST_F(HelpTest, AboutNamesVersionAndLicences) {
    LogIn();
    for (const QString& close : {u"{Enter}"_s, u"{Esc}"_s, u"{F12}"_s}) {
        boxes_.ExpectForm(u"frmAbout"_s, [&](QWidget& form) {
            EXPECT_EQ(form.windowTitle(), u"About program");
            EXPECT_EQ(drivers::Box(form, u"lblName"), u"VELTON");
            EXPECT_EQ(drivers::Box(form, u"lblVersion"), u"Version " VELTON_VERSION);
            const QString text = drivers::Get<ReadingView>(form, u"rtBox")->toPlainText();
            QFile licence(QString::fromUtf8(SOURCE_ROOT "/LICENSE"));
            ASSERT_TRUE(licence.open(QIODevice::ReadOnly));
            EXPECT_TRUE(text.simplified().contains(QString::fromUtf8(licence.readAll()).simplified()));
            for (const QString& part :
                 {u"Qt 6"_s, u"Lesser General Public License"_s, u"SQLite"_s, u"SQLiteCpp"_s, u"CLI11"_s})
                EXPECT_TRUE(text.contains(part)) << part.toStdString();
            if (close == u"{Enter}") drivers::Grab(form, u"frmAbout"_s);
            Keys(close);
            EXPECT_FALSE(form.isVisible());
        });
        mdiORVA::Window().findChild<QAction*>(u"mnuAbout"_s)->trigger();
    }
}

}  // namespace
