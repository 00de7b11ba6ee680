#include <gmock/gmock.h>

#include <QDir>
#include <QFile>

#include "tools/StoreTool.h"

using namespace Qt::StringLiterals;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

// A tool of its own, since it copies the program that lies beside it.
class NewTest : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(QFile::copy(ToolPath(), Path(u"velton-store"_s)));
        WriteFile(Path(u"velton"_s), "the program");
    }

    QString Path(const QString& name) const { return room_.filePath(name); }
    Answer New(const QStringList& arguments) const {
        return Shell(u"exec \"$@\""_s, QStringList{Path(u"velton-store"_s), u"new"_s} + arguments);
    }
    QStringList FilesIn(const QString& folder) const {
        QStringList names = QDir(Path(folder)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
        names.sort();
        return names;
    }

    QTemporaryDir room_;
};

}  // namespace

TEST_F(NewTest, MakesAFolderThatAProgramCanStartIn) {
    EXPECT_EQ(New({Path(u"a/b/shop"_s)}), Done());
    EXPECT_EQ(FilesIn(u"a/b/shop"_s),
              (QStringList{u"Lozinka.rtf"_s, u"ORVA.pos"_s, u"Podesavanje.rtf"_s, u"helpVELTON.rtf"_s, u"images"_s,
                           u"img"_s, u"opt.pos"_s, u"ports.ini"_s, u"velton"_s}));
    EXPECT_EQ(ReadFile(Path(u"a/b/shop/velton"_s)), "the program");
    EXPECT_EQ(Tool({u"sql"_s, Path(u"a/b/shop"_s), u"SELECT Max(ProdCode) AS Code FROM Products"_s}), Done("Code\n\n"));
    EXPECT_EQ(Tool({u"sql"_s, Path(u"a/b/shop"_s), u"SELECT UserName FROM Users"_s}), Done("UserName\nadmin\nkasir\n"));
}

TEST_F(NewTest, FillsTheDemoShopWhenAskedTo) {
    EXPECT_EQ(New({Path(u"shop"_s), u"--demo"_s}), Done());
    EXPECT_EQ(Tool({u"sql"_s, Path(u"shop"_s), u"SELECT Count(*) AS N FROM Products"_s}), Done("N\n120\n"));
}

TEST_F(NewTest, RefusesAFolderThatHoldsAStoreAndLeavesItAlone) {
    for (const QString& held : {u"ORVA.pos"_s, u"opt.pos"_s, u"ORVA.pos-wal"_s}) {
        const QString folder = u"with "_s + held;
        QDir(room_.path()).mkdir(folder);
        WriteFile(Path(folder + u'/' + held), "precious");
        const Answer answer = New({Path(folder)});
        EXPECT_EQ(answer.exitCode, 1);
        EXPECT_THAT(answer.err.toStdString(), StartsWith("3204: "));
        EXPECT_EQ(FilesIn(folder), QStringList{held});
        EXPECT_EQ(ReadFile(Path(folder + u'/' + held)), "precious");
    }
}

TEST_F(NewTest, KeepsWhatLiesInAFolderWithoutAStoreButRenewsTheProgram) {
    QDir(room_.path()).mkdir(u"shop"_s);
    WriteFile(Path(u"shop/ports.ini"_s), "[ports]\nlpt1=/dev/usb/lp0\n");
    WriteFile(Path(u"shop/velton"_s), "an older program");
    EXPECT_EQ(New({Path(u"shop"_s)}), Done());
    EXPECT_EQ(ReadFile(Path(u"shop/ports.ini"_s)), "[ports]\nlpt1=/dev/usb/lp0\n");
    EXPECT_EQ(ReadFile(Path(u"shop/velton"_s)), "the program");
}

// A newer program is known by its time, which may lie before the day on which the copy was made.
TEST_F(NewTest, CopiesTheProgramWithItsTime) {
    const QDateTime built(QDate(2026, 1, 5), QTime(12, 0, 0));
    QFile program(Path(u"velton"_s));
    ASSERT_TRUE(program.open(QIODevice::ReadWrite) && program.setFileTime(built, QFileDevice::FileModificationTime));
    EXPECT_EQ(New({Path(u"shop"_s)}), Done());
    EXPECT_EQ(QFileInfo(Path(u"shop/velton"_s)).lastModified(), built);
}

TEST_F(NewTest, MakesWhatBelongsToItsUserAloneAndClearsAwayWhatAKilledOneLeft) {
    QDir(room_.path()).mkpath(u"shop/velton-new-Ab12Cd/img"_s);
    EXPECT_EQ(Shell(u"umask 0; exec \"$1\" new \"$2\""_s, {Path(u"velton-store"_s), Path(u"shop"_s)}), Done());
    EXPECT_FALSE(QFile::exists(Path(u"shop/velton-new-Ab12Cd"_s)));
    EXPECT_EQ(Shell(u"cd \"$1\" && find img images * -perm /077; stat -c %a velton ORVA.pos img"_s, {Path(u"shop"_s)}),
              Done("700\n600\n700\n"));
}

TEST_F(NewTest, LeavesNothingBehindWhenItFails) {
    QFile::remove(Path(u"velton"_s));
    const Answer noProgram = New({Path(u"a/shop"_s)});
    EXPECT_EQ(noProgram.exitCode, 1);
    EXPECT_THAT(noProgram.err.toStdString(), StartsWith("53: The program is missing"));
    EXPECT_FALSE(QFile::exists(Path(u"a"_s)));

    WriteFile(Path(u"velton"_s), "the program");
    WriteFile(Path(u"file"_s), "");
    EXPECT_THAT(New({Path(u"file/shop"_s)}).err.toStdString(), StartsWith("75: "));

    // A file where a folder must be stops it in the middle of its work.
    QDir(room_.path()).mkdir(u"blocked"_s);
    WriteFile(Path(u"blocked/img"_s), "in the way");
    const Answer blocked = New({Path(u"blocked"_s)});
    EXPECT_EQ(blocked.exitCode, 1);
    EXPECT_THAT(blocked.err.toStdString(), StartsWith("75: "));
    EXPECT_EQ(FilesIn(u"blocked"_s), QStringList{u"img"_s});
}

TEST_F(NewTest, LeavesNoStoreBehindOnAFullDisk) {
    // A small ceiling for the size of any file stands for a disk without room.
    const Answer answer = Shell(u"trap '' XFSZ; ulimit -f 40; exec \"$1\" new \"$2\" --demo"_s,
                                {Path(u"velton-store"_s), Path(u"shop"_s)});
    EXPECT_EQ(answer.exitCode, 1);
    EXPECT_THAT(answer.err.toStdString(), HasSubstr(": "));
    EXPECT_FALSE(QFile::exists(Path(u"shop"_s)));
}
