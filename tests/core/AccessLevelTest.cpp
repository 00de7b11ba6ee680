#include <QMenu>
#include <QMenuBar>

#include "support/Till.h"

using namespace Qt::StringLiterals;

namespace {

class AccessLevelTest : public drivers::TillTest {
protected:
    void LogInAtLevel(const QString& level) {
        Run(u"UPDATE Users SET AccLevel = '%1' WHERE UserName = 'kasir'"_s.arg(level));
        LogIn();
    }

    // Names of what can't be chosen: switched-off menus and entries.
    QStringList SwitchedOff() const {
        QStringList names;
        for (const auto* menu : mdiORVA::Window().menuBar()->findChildren<QMenu*>())
            if (!menu->menuAction()->isEnabled()) names << menu->objectName();
        for (const auto* action : mdiORVA::Window().findChildren<QAction*>())
            if (!action->objectName().isEmpty() && !action->isEnabled()) names << action->objectName();
        names.sort();
        return names;
    }
};

TEST_F(AccessLevelTest, LevelOneKeepsTheFiscalMenuAndHelp) {
    LogInAtLevel(u"1"_s);
    EXPECT_EQ(SwitchedOff(), (QStringList{u"mnuDatabase"_s, u"mnuPodesavanje"_s, u"mnuPorez"_s, u"mnuRac"_s,
                                          u"mnuUsers"_s, u"mnuView"_s, u"mnuZakljucak"_s}));
}

TEST_F(AccessLevelTest, LevelTwoKeepsTheEndReportButOnePreview) {
    LogInAtLevel(u" 2"_s);
    EXPECT_EQ(SwitchedOff(), (QStringList{u"mnuDatabase"_s, u"mnuPodesavanje"_s, u"mnuPorez"_s,
                                          u"mnuPregledZakljucaka1"_s, u"mnuRac"_s, u"mnuUsers"_s, u"mnuView"_s}));
}

TEST_F(AccessLevelTest, AnyOtherLevelSeesEverything) {
    for (const auto& level : {u"3"_s, u""_s, u"x"_s}) {
        LogInAtLevel(level);
        EXPECT_EQ(SwitchedOff(), QStringList()) << level.toStdString();
        Crash();
    }
}

TEST_F(AccessLevelTest, TheWindowRefusesToClose) {
    LogIn();
    EXPECT_FALSE(mdiORVA::Window().close());
    EXPECT_TRUE(mdiORVA::Window().isVisible());
    EXPECT_TRUE(forms::FindForm(u"frmORVAtouch"));
}

TEST_F(AccessLevelTest, TheRunningTotalWorksHidden) {
    Setting(u"StanjeKaseVidljivo"_s, u"0"_s);
    LogIn();
    EXPECT_FALSE(mdiORVA::Window().findChild<QWidget*>(u"st1Panel4"_s)->isVisible());
    EXPECT_FALSE(mdiORVA::Window().findChild<QWidget*>(u"st1Panel5"_s)->isVisible());
    drivers::Keys(u"100{Enter}{F5}");
    EXPECT_EQ(mdiORVA::Window().RunningTotal(), u"1.50");
    EXPECT_EQ(Rows(u"SELECT TotalSales FROM Sales"_s), QStringList{u"1.5"_s});
}

}  // namespace
