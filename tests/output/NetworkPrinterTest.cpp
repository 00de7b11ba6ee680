#include "NetworkPrinter.h"

#include <QElapsedTimer>

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
    EXPECT_LT(timer.elapsed(), 1400);
    EXPECT_EQ(printer.Taken(), "abc");
}

TEST_F(NetworkPrinterTest, APrinterThatIsSwitchedOffInTheMiddleIsReported) {
    for (const int size : {5000, 3'000'000}) {
        NetworkPrinter printer(Manner::IsSwitchedOff);
        SetPorts("lpt1=tcp:127.0.0.1:" + printer.Port());
        EXPECT_EQ(ErrorOf([&] { Print(QByteArray(size, 'x')); }), DeviceError) << size;
        Channel1().Abandon();
    }
}

TEST_F(NetworkPrinterTest, APrinterThatIsNotThereIsReported) {
    QByteArray port;
    {
        NetworkPrinter printer(Manner::TakesAll);
        port = printer.Port();
    }
    SetPorts("lpt1=tcp:127.0.0.1:" + port);
    EXPECT_EQ(ErrorOf([&] { Print("abc"); }), DeviceUnavailable);
}

}  // namespace
