#include "NetworkPrinter.h"

#include <QElapsedTimer>

#include <pty.h>

#include "OutputFixture.h"

using namespace Qt::StringLiterals;
using namespace output;
using Manner = NetworkPrinter::Manner;

namespace {

class NetworkPrinterTest : public OutputFixture {
protected:
    void Print(const QByteArray& bytes) {
        Channel1().OpenPort(u"lpt1:"_s);
        Channel1().WriteBytes(bytes);
        Channel1().Close();
    }
};

TEST_F(NetworkPrinterTest, AJobOfAnyLengthArrivesWhole) {
    for (const int size : {10, 3'000'000}) {
        NetworkPrinter printer(Manner::TakesAll);
        SetPorts("lpt1=tcp:localhost:" + printer.Port());
        const QByteArray job(size, 'x');
        Print(job);
        EXPECT_EQ(printer.Taken(), job);
    }
}

TEST_F(NetworkPrinterTest, AddressesOfTheNewKindStandInBrackets) {
    NetworkPrinter printer(Manner::TakesAll, AF_INET6);
    if (!printer.IsListening()) GTEST_SKIP() << "this machine has no IPv6";
    SetPorts("lpt1=tcp:[::1]:" + printer.Port());
    Print("abc");
    EXPECT_EQ(printer.Taken(), "abc");
}

TEST_F(NetworkPrinterTest, APrinterThatKeepsTheLineOpenDoesNotHoldTheTill) {
    NetworkPrinter printer(Manner::KeepsTheLineOpen);
    SetPorts("lpt1=tcp:127.0.0.1:" + printer.Port());
    QElapsedTimer timer;
    timer.start();
    Print("abc");
    EXPECT_LT(timer.elapsed(), 20'000);
    EXPECT_EQ(printer.Taken(), "abc");
}

TEST_F(NetworkPrinterTest, APrinterThatIsSwitchedOffInTheMiddleIsReported) {
    for (const int size : {5000, 3'000'000}) {
        NetworkPrinter printer(Manner::IsSwitchedOff);
        SetPorts("lpt1=tcp:127.0.0.1:" + printer.Port());
        EXPECT_EQ(ErrorOf([&] { Print(QByteArray(size, 'x')); }), values::DeviceError) << size;
        Channel1().Abandon();
    }
}

TEST_F(NetworkPrinterTest, APrinterIsAskedHowItDoesInItsOwnWords) {
    struct Case {
        PrinterFamily family;
        QList<QByteArray> answers;
        PrinterState state;
    };
    const auto epson = PrinterFamily::Epson;
    const auto star = PrinterFamily::Star;
    const Case cases[] = {
        {epson, {"\x12", "\x12", "\x12"}, PrinterState::Ready},
        {epson, {"\x12", "\x14\x7F\x12", "\x1E"}, PrinterState::Ready},  // news of its own, the roll near its end
        {epson, {"\x1A", "\x32", "\x72"}, PrinterState::NoPaper},
        {epson, {"\x12", "\x12", "\x72"}, PrinterState::NoPaper},
        {epson, {"\x1A", "\x16", "\x12"}, PrinterState::CoverOpen},
        {epson, {"\x1A", "\x12", "\x12"}, PrinterState::Offline},
        {epson, {"\x12", "\x52", "\x12"}, PrinterState::Offline},
        {epson, {}, PrinterState::Silent},
        {epson, {"hello"}, PrinterState::Silent},
        {epson, {"\x12", NetworkPrinter::HangsUp}, PrinterState::Silent},
        {star, {"\x0F\x06\0\0\0\0\0"_ba}, PrinterState::Ready},
        {star, {"\0\x23\x06\0\0\0\x04\0\0\0"_ba}, PrinterState::Ready},
        {star, {"\x0F\x06\x08\0\0\x08\0"_ba}, PrinterState::NoPaper},
        {star, {"\x0F\x06\x28\0\0\0\0"_ba}, PrinterState::CoverOpen},
        {star, {"\x0F\x06\x08\0\0\0\0"_ba}, PrinterState::Offline},
        {star, {"\x0F\x06\0\x08\0\0\0"_ba}, PrinterState::Offline},
        {star, {"\x0F\x06\0"_ba}, PrinterState::Silent},
        {star, {QByteArray(9000, 'e')}, PrinterState::Silent},
    };
    for (const auto& [family, answers, state] : cases) {
        NetworkPrinter printer(answers);
        SetPorts("lpt1=tcp:127.0.0.1:" + printer.Port() + "\nLPT1.Status = Yes\n");
        Channel1().OpenPort(u"lpt1:"_s);
        EXPECT_EQ(Channel1().AskPrinter(family), state)
            << (answers + QList<QByteArray>{{}}).first().toHex().toStdString();
        Channel1().Drop();
    }
}

TEST_F(NetworkPrinterTest, APrinterOnASerialLineIsAskedAsWell) {
    int line = -1;
    int device = -1;
    char name[100];
    ASSERT_EQ(::openpty(&line, &device, name, nullptr, nullptr), 0);
    std::thread printer([line] {
        char question[3];
        for (const char answer : {'\x12', '\x16', '\x12'})
            if (::read(line, question, 3) != 3 || ::write(line, &answer, 1) != 1) return;
    });
    for (const bool isAsked : {false, true}) {
        SetPorts(QByteArray("lpt1=") + name + (isAsked ? "\nlpt1.status=yes\n" : "\nlpt1.status=no\n"));
        Channel1().OpenPort(u"lpt1:"_s);
        EXPECT_EQ(Channel1().AskPrinter(PrinterFamily::Epson), isAsked ? PrinterState::CoverOpen : PrinterState::Ready);
        Channel1().Drop();
    }
    printer.join();
    ::close(line);
    ::close(device);
}

}  // namespace
