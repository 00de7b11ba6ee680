#include <QDir>
#include <QThread>
#include <thread>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "OutputFixture.h"
#include "output/Patience.h"

using namespace Qt::StringLiterals;
using namespace output;

namespace {

class ChannelTest : public OutputFixture {
protected:
    Channel& channel = Channel1();
};

TEST_F(ChannelTest, LinesEndWithCrLfAndBytesStandAsTheyAre) {
    channel.OpenForOutput(Path(u"a.txt"_s));
    channel.WriteBytes("\x1B\x70\x00\x3C\x78"_ba);
    channel.WriteLine(u"one"_s);
    channel.WriteLine({});
    channel.WriteLine(u"two\r\nthree\n"_s);
    channel.Close();
    EXPECT_EQ(Read(u"a.txt"_s), "\x1B\x70\x00\x3C\x78one\r\n\r\ntwo\r\nthree\n\r\n"_ba);
}

TEST_F(ChannelTest, OutputEmptiesAFileAndAppendKeepsIt) {
    const QString path = Path(u"a.txt"_s);
    for (const auto& line : {u"made"_s, u"more"_s}) {
        channel.OpenForAppend(path);
        channel.WriteLine(line);
        channel.Close();
    }
    EXPECT_EQ(Read(u"a.txt"_s), "made\r\nmore\r\n");
    channel.OpenForOutput(path);
    channel.WriteLine(u"new"_s);
    channel.Close();
    EXPECT_EQ(Read(u"a.txt"_s), "new\r\n");
}

TEST_F(ChannelTest, AFileThatIsOpenedAndClosedExists) {
    channel.OpenForAppend(Path(u"empty.txt"_s));
    channel.Close();
    EXPECT_EQ(Read(u"empty.txt"_s), "");
}

TEST_F(ChannelTest, MoreThanOneBufferGoesOutWhole) {
    QByteArray expected;
    channel.OpenForOutput(Path(u"long.txt"_s));
    for (int i = 0; i < 30000; ++i) {
        channel.WriteLine(QString::number(i));
        expected += QByteArray::number(i) + "\r\n";
    }
    channel.Sync();
    EXPECT_EQ(Read(u"long.txt"_s), expected);
    channel.Close();
    EXPECT_EQ(Read(u"long.txt"_s), expected);
}

TEST_F(ChannelTest, OnlyOneThingIsOpenAtATime) {
    EXPECT_EQ(ErrorOf([&] { channel.WriteLine(u"x"_s); }), values::ChannelNotOpen);
    EXPECT_EQ(ErrorOf([&] { channel.Close(); }), values::ChannelNotOpen);
    channel.OpenForOutput(Path(u"a.txt"_s));
    EXPECT_EQ(ErrorOf([&] { channel.OpenForAppend(Path(u"b.txt"_s)); }), values::ChannelInUse);
    EXPECT_FALSE(Exists(u"b.txt"_s));
    channel.WriteLine(u"still a"_s);
    channel.Close();
    EXPECT_FALSE(channel.IsOpen());
    EXPECT_EQ(Read(u"a.txt"_s), "still a\r\n");
}

TEST_F(ChannelTest, AbandonClosesAndKeepsWhatWasWritten) {
    channel.OpenForOutput(Path(u"a.txt"_s));
    channel.WriteLine(u"begun"_s);
    channel.Abandon();
    channel.Abandon();
    EXPECT_FALSE(channel.IsOpen());
    EXPECT_EQ(Read(u"a.txt"_s), "begun\r\n");
}

TEST_F(ChannelTest, PlacesThatCannotBeOpenedAreToldApart) {
    QDir(Path(u"."_s)).mkdir(u"folder"_s);
    Write(u"file"_s, "");
    EXPECT_EQ(ErrorOf([&] { channel.OpenForOutput(Path(u"missing/a.txt"_s)); }), values::PathNotFound);
    EXPECT_EQ(ErrorOf([&] { channel.OpenForAppend(Path(u"file/a.txt"_s)); }), values::PathNotFound);
    EXPECT_EQ(ErrorOf([&] { channel.OpenForAppend(Path(u"folder"_s)); }), values::PathFault);
    EXPECT_FALSE(channel.IsOpen());
}

TEST_F(ChannelTest, AFullDeviceIsReportedByWhoeverFindsIt) {
    for (const int lines : {1, 30000}) {
        const int error = ErrorOf([&] {
            channel.OpenForOutput(u"/dev/full"_s);
            for (int i = 0; i < lines; ++i) channel.WriteLine(u"a line"_s);
            channel.Close();
        });
        EXPECT_EQ(error, values::DiskFull) << lines;
        channel.Abandon();
    }
    channel.OpenForOutput(u"/dev/full"_s);
    channel.WriteLine(u"a line"_s);
    EXPECT_EQ(ErrorOf([&] { channel.Close(); }), values::DiskFull);
    EXPECT_FALSE(channel.IsOpen()) << "a failed close must not block the next output";

    // A file that may grow a little further takes no half of a piece.
    Write(u"file"_s, "before\r\n");
    channel.OpenForAppend(Path(u"file"_s));
    channel.WriteLine(u"longer than what is left"_s);
    {
        const drivers::NoMoreRoom little(20);
        EXPECT_EQ(ErrorOf([&] { channel.Close(); }), values::DiskFull);
    }
    EXPECT_EQ(Read(u"file"_s), "before\r\n");
}

TEST_F(ChannelTest, PortsFollowTheirEntries) {
    struct Case {
        QByteArray entries;
        QString port;
        QString file;
    };
    QDir(Path(u"."_s)).mkdir(u"spool"_s);
    const Case cases[] = {
        {"lpt1=file:lpt1.prn\nlpt2=file:lpt2.prn\n", u"lpt1:"_s, u"lpt1.prn"_s},
        {"lpt1=file:lpt1.prn\nlpt2=file:lpt2.prn\n", u"lpt2:"_s, u"lpt2.prn"_s},
        {"; lpt1=file:no.prn\r\nLPT1 = file:spool\\a, b.prn \r\n", u"LPT1:"_s, u"spool/a, b.prn"_s},
        {"\n[ports]\nlpt1=file:no.prn\nlpt1=file:last.prn\nlpt3=x\nlpt1.status=no\n", u"lpt1:"_s, u"last.prn"_s},
        {"lpt1=file:" + Path(u"absolute.prn"_s).toUtf8() + "\n[other]\nlpt1=file:no.prn\n", u"lpt1:"_s,
         u"absolute.prn"_s},
    };
    for (const auto& [entries, port, file] : cases) {
        SetPorts(entries);
        for (const auto& line : {u"first"_s, u"second"_s}) {
            channel.OpenPort(port);
            channel.WriteLine(line);
            channel.Close();
        }
        EXPECT_EQ(Read(file), "first\r\nsecond\r\n") << entries.toStdString();
        EXPECT_FALSE(Exists(u"no.prn"_s));
        QFile::remove(Path(file));
    }
}

TEST_F(ChannelTest, PortsWithoutAPrinterAreRefusedAndNothingIsMade) {
    const QByteArray entries[] = {"lpt1=/dev/no-such-printer\n",
                                  "lpt1=printer.dev\n",
                                  "lpt1=tcp:localhost\n",
                                  "lpt1=tcp::9100\n",
                                  "lpt1=tcp:host:99999\n",
                                  "lpt1=tcp:127.0.0.1:1\n",
                                  "lpt1=file:\n",
                                  "lpt1=tcp:\n",
                                  "lpt1=tcp:[::1\n",
                                  "lpt1=file:a\0b\n"_ba,
                                  "lpt1=file:a\nlpt1.status=perhaps\n"};
    for (const auto& entry : entries) {
        SetPorts(entry);
        EXPECT_EQ(ErrorOf([&] { channel.OpenPort(u"lpt1:"_s); }), values::DeviceUnavailable) << entry.toStdString();
    }
    EXPECT_EQ(ErrorOf([&] { channel.OpenPort(u"lpt3:"_s); }), values::DeviceUnavailable);
    EXPECT_FALSE(channel.IsOpen());
    EXPECT_FALSE(Exists(u"printer.dev"_s) || Exists(u"a"_s));
    SetPorts(QByteArray(100'000, '\n') + "lpt1=file:a\n");
    EXPECT_EQ(ErrorOf([&] { channel.OpenPort(u"lpt1:"_s); }), values::PathFault);
    ASSERT_TRUE(QFile::remove(Path(u"ports.ini"_s)) && QDir().mkdir(Path(u"ports.ini"_s)));
    EXPECT_EQ(ErrorOf([&] { channel.OpenPort(u"lpt1:"_s); }), values::PathFault);
}

TEST_F(ChannelTest, APipeWithoutAReaderIsRefusedAndOneThatHangsUpIsReported) {
    const QByteArray pipe = Path(u"pipe"_s).toUtf8();
    ASSERT_EQ(::mkfifo(pipe.constData(), 0600), 0);
    SetPorts("lpt1=pipe\n");
    EXPECT_EQ(ErrorOf([&] { channel.OpenPort(u"lpt1:"_s); }), values::DeviceUnavailable);
    EXPECT_EQ(ErrorOf([&] { channel.OpenForAppend(Path(u"pipe"_s)); }), values::DeviceUnavailable);

    const int reader = ::open(pipe.constData(), O_RDONLY | O_NONBLOCK);
    channel.OpenPort(u"lpt1:"_s);
    channel.WriteLine(u"nobody reads this"_s);
    ::close(reader);
    EXPECT_EQ(ErrorOf([&] { channel.Close(); }), values::DeviceError);
}

TEST_F(ChannelTest, ASlowPipeGetsEveryByte) {
    const QByteArray pipe = Path(u"pipe"_s).toUtf8();
    ASSERT_EQ(::mkfifo(pipe.constData(), 0600), 0);
    SetPorts("lpt2=pipe\n");
    const int reader = ::open(pipe.constData(), O_RDONLY | O_NONBLOCK);
    ::fcntl(reader, F_SETFL, 0);
    // Opened first: a read from a pipe that nobody writes to is its end.
    channel.OpenPort(u"lpt2:"_s);
    qsizetype taken = 0;
    std::thread slow([&] {
        char buffer[4096];
        for (ssize_t count; (count = ::read(reader, buffer, sizeof buffer)) != 0; taken += count) ::usleep(500);
    });
    channel.WriteBytes(QByteArray(500'000, 'x'));
    channel.Close();
    slow.join();
    ::close(reader);
    EXPECT_EQ(taken, 500'000);
}

TEST_F(ChannelTest, WhatTakesNothingFurtherIsLeftWhenTheUserSaysSo) {
    const QByteArray pipe = Path(u"pipe"_s).toUtf8();
    ASSERT_EQ(::mkfifo(pipe.constData(), 0600), 0);
    const int reader = ::open(pipe.constData(), O_RDONLY | O_NONBLOCK);
    SetPorts("lpt2=pipe\n");
    for (const bool isPort : {true, false}) {
        QString said;
        int begun = 0;
        SetPatience(
            [&] { return ++begun, [&](const QString& waitsFor) { return std::exchange(said, waitsFor).isEmpty(); }; });
        if (isPort)
            channel.OpenPort(u"lpt2:"_s);
        else
            channel.OpenForAppend(Path(u"pipe"_s));
        EXPECT_EQ(ErrorOf([&] { channel.WriteBytes(QByteArray(500'000, 'x')); }), values::DeviceError);
        EXPECT_TRUE(said.contains(isPort ? u"printer on LPT2 ("_s : Path(u"pipe"_s))) << said.toStdString();
        channel.Abandon();
        EXPECT_EQ(begun, 1) << "what has failed is not waited for again";
    }
    SetPatience({});
    ::close(reader);
}

TEST_F(ChannelTest, AWaitIsOverWhenNothingHasMovedForItsLimit) {
    Wait wait({u"Cannot write"_s, {}}, 20);
    const auto later = [&](qint64 taken) {
        QThread::msleep(25);
        return ErrorOf([&] { wait.GoOn(taken); });
    };
    EXPECT_EQ(later(1), 0);
    EXPECT_EQ(later(2), 0) << "a slow printer is no dead one";
    EXPECT_EQ(later(2), values::DeviceError);
}

}  // namespace
