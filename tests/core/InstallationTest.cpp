#include "core/Installation.h"

#include <QDir>
#include <QFile>

#include "output/Folder.h"
#include "support/Files.h"
#include "support/ScreenTest.h"
#include "values/FileError.h"

using namespace Qt::StringLiterals;

namespace {

class InstallationTest : public drivers::ScreenTest {
protected:
    InstallationTest() { output::SetProgramFolder(folder.path()); }
    ~InstallationTest() override { TheInstallation = {}; }

    QStringList Read(const QByteArray& text) {
        drivers::WriteFile(folder.filePath(u"velton.ini"_s), text);
        return ReadInstallation();
    }
};

TEST_F(InstallationTest, AMissingKeyIsAsDeliveredAndAWrongValueIsToldWithItsLine) {
    EXPECT_TRUE(ReadInstallation().isEmpty()) << "without the file";
    EXPECT_TRUE(TheInstallation.sound);

    EXPECT_TRUE(Read("[till]\nsound = NO\r\ncontrast=high\n").isEmpty());
    EXPECT_FALSE(TheInstallation.sound);
    EXPECT_EQ(TheInstallation.contrast, forms::Contrast::High);

    EXPECT_EQ(Read("; how this till is\r\n[till]\r\n\r\nsound=perhaps\r\ncontrast=dark\r\n"),
              QStringList{u"velton.ini, line 4: sound can't be \"perhaps\", only yes or no."_s});
    EXPECT_TRUE(TheInstallation.sound) << "as if the key were missing";
    EXPECT_EQ(TheInstallation.contrast, forms::Contrast::Dark);
    EXPECT_EQ(Read("[till]\ncontrst=dark\n"), QStringList{u"velton.ini, line 2: there is no contrst in [till]."_s});

    QFile::remove(folder.filePath(u"velton.ini"_s));
    QDir(folder.path()).mkdir(u"velton.ini"_s);
    EXPECT_THROW(ReadInstallation(), values::FileError);
}

TEST_F(InstallationTest, AFolderForBackupsIsTakenFromTheRegistersAndAWrongNumberStaysAsUsual) {
    EXPECT_EQ(Read("[backup]\nfolder=../stick\ndays=0\nWeeks=2\n"),
              QStringList{u"velton.ini, line 3: days can't be \"0\", only a number from 1 to 1000."_s});
    EXPECT_EQ(TheInstallation.backup.folder, QDir::cleanPath(folder.path() + u"/../stick"_s));
    EXPECT_EQ(TheInstallation.backup.days, 14);
    EXPECT_EQ(TheInstallation.backup.weeks, 2);
    EXPECT_EQ(Read("[backup]\nday=3\n"), QStringList{u"velton.ini, line 2: there is no day in [backup]."_s});
}

}  // namespace
