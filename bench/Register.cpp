// bench-register WHO PLACE NUMBER PRODUCTS SECONDS: one of several registers of a shop with so many products. It opens
// the store, says "ready", waits for a line, posts invoices of five lines for so long, and prints how many. WHO is
// "ours" with a program's folder, "hand" with the address of the store, or "rows", which commits rows one by one.

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QStringList>
#include <cstdio>
#include <functional>

#include "bench/HandTill.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int LinesEach = 5;

std::function<void(const bench::Invoices&)> Posting(const QString& who, const QString& place, const QString& period) {
    if (who == u"ours") {
        const auto till = std::make_shared<bench::PostingTill>(place, period);
        return [till](const bench::Invoices& invoice) { till->Post(invoice); };
    }
    if (who == u"hand") {
        const auto till = std::make_shared<bench::HandTill>(place, period);
        return [till](const bench::Invoices& invoice) { till->Post(invoice); };
    }
    const auto raw = std::make_shared<bench::RawServer>(place);
    raw->Prepare("row", R"(INSERT INTO "Login" DEFAULT VALUES)");
    return [raw](const bench::Invoices&) { raw->Ask({"row"}); };
}

}  // namespace

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    if (words.size() != 6) return 2;
    const std::vector<bench::Goods> products = bench::MakeGoods(words[4].toInt());
    bench::Invoices invoice(products, LinesEach, words[3].toInt());
    const auto post = Posting(words[1], words[2], invoice.Period());
    std::puts("ready");
    std::fflush(stdout);
    if (std::getchar() == EOF) return 3;

    const auto length = static_cast<qint64>(1e9 * words[5].toDouble());
    int posted = 0;
    QElapsedTimer time;
    time.start();
    for (; time.nsecsElapsed() < length; ++posted) {
        invoice.Next();
        post(invoice);
    }
    std::printf("%d\n", posted);
    return 0;
}
