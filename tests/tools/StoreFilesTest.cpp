#include <gmock/gmock.h>

#include <QDir>
#include <QFile>

#include "delivery/Delivery.h"
#include "store/StorePath.h"
#include "tools/StoreTool.h"

using namespace Qt::StringLiterals;
using testing::StartsWith;

namespace {

class StoreFilesTest : public ShopTest {
protected:
    void SetUp() override {
        ShopTest::SetUp();
        delivery::MakeProgramFolder(Path(u"server, main"_s), false);
        ASSERT_EQ(Tool({u"insert"_s, Path(u"server, main"_s), u"Unit"_s, u"Abr=far"_s}), Done());
    }
    void WriteIni(const QByteArray& text) const { WriteFile(folder_ + u"/store.ini"_s, text); }

    static QByteArray InTwoBytes(const QByteArray& text) {
        QByteArray wide;
        for (const char c : text) wide += QByteArray(1, c) + '\0';
        return wide;
    }

    const Answer near_ = Done("Abr\npcs\nkg\nl\nm\n");
    const Answer far_ = Done("Abr\npcs\nkg\nl\nm\nfar\n");
};

}  // namespace

TEST_F(StoreFilesTest, StoreIniNamesTheMainStoreOnly) {
    const QByteArray server = Path(u"server, main"_s).toUtf8();
    const QList<std::pair<QByteArray, Answer>> inis{
        {"", near_},
        {"[main]\n;path=" + server + "\n", near_},
        {"[main]\npath=\n", near_},
        {"[main]\npath=" + server + "\n", far_},
        {"[Main]\r\n Path = \"" + server + "/ORVA.pos\" \r\n", far_},
        {"[main]\npath=../server, main\n", far_},
        {"[main]\npath=..\\server, main\\ORVA.pos\n", far_},
        {"\xFF\xFE" + InTwoBytes("[main]\rpath=../server, main\r"), far_},
        {"[main]\rpath=../gone\r[ MAIN ]\r#path=../gone\rPATH=../server, main\r[main\rpath=../gone\r", far_},
    };
    for (const auto& [ini, expected] : inis) {
        WriteIni(ini);
        EXPECT_EQ(Sql(u"SELECT Abr FROM Unit"_s), expected) << ini.constData();
    }
    EXPECT_EQ(Tool({u"sql"_s, folder_, u"SELECT Kasa FROM Options"_s, u"--options"_s}), Done("Kasa\n1\n"));
    EXPECT_EQ(Insert(u"Unit"_s, {u"Abr=more"_s}), Done());
    EXPECT_EQ(Tool({u"sql"_s, Path(u"server, main"_s), u"SELECT Abr FROM Unit WHERE Abr = 'more'"_s}),
              Done("Abr\nmore\n"));
}

TEST_F(StoreFilesTest, AStoreIniThatPointsNowhereIsAnErrorAndNotTheStoreBeside) {
    WriteIni("[main]\npath=../gone\n");
    EXPECT_THAT(Sql(u"SELECT Abr FROM Unit"_s).err.toStdString(), StartsWith("3024: "));
    EXPECT_FALSE(QFile::exists(Path(u"gone"_s)));
    const QByteArray path = "path=../server, main\n";
    for (const QByteArray& slip : {path, "[other]\n" + path, "[main]\nurl=x\n"_ba, "\x01\x02junk"_ba,
                                   QByteArray(100'000, '\n') + "[main]\n" + path}) {
        WriteIni(slip);
        EXPECT_THAT(Sql(u"SELECT Abr FROM Unit"_s).err.toStdString(), StartsWith("3051: "))
            << slip.left(40).constData();
    }
    QFile::remove(folder_ + u"/store.ini"_s);
    QDir(folder_).mkdir(u"store.ini"_s);
    EXPECT_THAT(Sql(u"SELECT Abr FROM Unit"_s).err.toStdString(), StartsWith("3051: "));
}

TEST_F(StoreFilesTest, AFileThatIsNoStoreIsRefusedAndStaysAsItIs) {
    const QString main = folder_ + u"/ORVA.pos"_s;
    const QList<QStringList> calls{{u"sql"_s, folder_, u"SELECT * FROM Users"_s},
                                   {u"sql"_s, folder_, u"DELETE * FROM Users"_s},
                                   {u"insert"_s, folder_, u"Unit"_s, u"Abr=x"_s},
                                   {u"load"_s, folder_, u"Unit"_s, folder_ + u"/ports.ini"_s},
                                   {u"check"_s, folder_},
                                   {u"backup"_s, folder_, Path(u"copy.pos"_s)}};
    const QStringList filesBefore = QDir(folder_).entryList();
    const auto refuses = [&](const char* number, const QByteArray& content) {
        for (const QStringList& call : calls) {
            const Answer answer = Tool(call);
            EXPECT_EQ(answer.exitCode, 1) << call.join(u' ').toStdString();
            EXPECT_THAT(answer.err.toStdString(), StartsWith(number)) << call.join(u' ').toStdString();
            EXPECT_EQ(ReadFile(main), content);
            EXPECT_EQ(QDir(folder_).entryList(), filesBefore);
            EXPECT_FALSE(QFile::exists(Path(u"copy.pos"_s)));
        }
    };
    const QByteArray options = ReadFile(folder_ + u"/opt.pos"_s);
    for (const QByteArray& content : {QByteArray(), QByteArray("not a store"), QByteArray(8192, 'x'), options}) {
        WriteFile(main, content);
        refuses("3343: ", content);
    }
}

TEST_F(StoreFilesTest, AMissingStoreIsNotMadeAnew) {
    for (const QString& store : {u"ORVA.pos"_s, u"opt.pos"_s}) ASSERT_TRUE(QFile::remove(folder_ + u'/' + store));
    const QStringList filesBefore = QDir(folder_).entryList();
    for (const QStringList& call :
         {QStringList{u"sql"_s, folder_, u"SELECT * FROM Users"_s}, QStringList{u"check"_s, folder_},
          QStringList{u"sql"_s, folder_, u"SELECT * FROM Options"_s, u"--options"_s},
          QStringList{u"insert"_s, folder_, u"Unit"_s, u"Abr=x"_s}, QStringList{u"backup"_s, folder_, Path(u"c"_s)},
          QStringList{u"sql"_s, Path(u"no folder"_s), u"SELECT * FROM Users"_s}}) {
        const Answer answer = Tool(call);
        EXPECT_EQ(answer.exitCode, 1);
        EXPECT_THAT(answer.err.toStdString(), StartsWith("3024: "));
    }
    EXPECT_EQ(QDir(folder_).entryList(), filesBefore);
    EXPECT_FALSE(QFile::exists(Path(u"no folder"_s)));
}

TEST_F(StoreFilesTest, AStoreThatSomebodyHoldsForHimselfIsToldSo) {
    const auto database = store::Database::Open(folder_ + u"/ORVA.pos"_s, store::MainSchema());
    const store::Database::Batch held(*database);
    EXPECT_THAT(Insert(u"Unit"_s, {u"Abr=x"_s}).err.toStdString(), StartsWith("3356: "));
}
