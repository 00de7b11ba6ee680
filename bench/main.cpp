// velton-bench DATA-FOLDER [--quick] [flags of Google Benchmark]: measures every figure beside its yardsticks in one
// run, the repetitions of all of them shuffled, and prints one table. Exit code 1 when something could not be measured.

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <CLI/CLI.hpp>
#include <QApplication>
#include <QDir>
#include <QLocale>
#include <cstdio>
#include <cstdlib>
#include <thread>

#include "bench/Figures.h"
#include "bench/TableReporter.h"
#include "forms/Theme.h"
#include "values/Locale.h"

using namespace Qt::StringLiterals;

namespace {

constexpr bench::ShopSize BigShop{100'000, 1'000'000};
constexpr bench::ShopSize SmallShop{1'000, 1'000};
constexpr bench::ShopSize QuickShop{2'000, 20'000};
constexpr bench::ShopSize OldShop{5'000, 3'000'000, 3'650};

struct Job {
    std::string dataFolder;
    bool quick = false;
    std::vector<std::string> benchmarkFlags;
};

void PrintLoad(const char* when) {
    double load[3] = {};
    getloadavg(load, 3);
    std::printf("%s: load %.2f %.2f %.2f on %u processors\n", when, load[0], load[1], load[2],
                std::thread::hardware_concurrency());
}

void PassFlags(const Job& job) {
    std::vector<std::string> words{"velton-bench", "--benchmark_enable_random_interleaving=true"};
    words.insert(words.end(), job.benchmarkFlags.begin(), job.benchmarkFlags.end());
    std::vector<char*> arguments;
    for (std::string& word : words) arguments.push_back(word.data());
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) std::exit(1);
}

int Measure(const Job& job) {
    const QString data = QDir(QString::fromStdString(job.dataFolder)).absolutePath();
    const bench::Shop shop(data, job.quick ? QuickShop : BigShop);
    const bench::Shop small(data, SmallShop);
    const QString till = data + u"/till"_s;
    shop.CopyTo(till);
    const bench::BusyTill busy(shop, data + u"/busy"_s);
    const bench::BusyTill office(shop, data + u"/office"_s);
    const bench::ServerShop server(shop, small, data + u"/server-till"_s, !job.quick);
    const bench::LateShop old(data, job.quick ? QuickShop : OldShop);

    std::vector figures{
        bench::LookupFigure(shop),
        bench::WalkFigure(shop),
        bench::PostingFigure(shop, till),
        bench::TaxReportFigure(shop),
        bench::OpeningFigure(shop, small),
        bench::StartupFigure(till),
        bench::TouchTableFigure(busy),
        bench::PreviewFigure(busy),
        bench::RegisterListsFigure(busy),
        bench::ProductListFigure(busy),
        bench::FirstFoundFigure(busy, false),
        bench::FirstFoundFigure(busy, true),
        bench::HoldFigure(busy, false),
        bench::HoldFigure(busy, true),
        bench::AllFoundFigure(busy, false),
        bench::AllFoundFigure(busy, true),
        bench::PlacementFigure(office),
        bench::RecipeFigure(office),
        bench::ServerLookupFigure(server),
        bench::ServerTaxReportFigure(server),
        bench::ServerOpeningFigure(server),
        bench::ServerPostingFigure(server),
        bench::RegistersFigure(server, job.quick ? 2 : 8, job.quick ? 0.1 : 3),
    };
    std::ranges::move(bench::ReportFigures(old), std::back_inserter(figures));
    bench::Register(figures, job.quick ? bench::Effort{2, 0.02, 10} : bench::Effort{15, 0.3, 5'000});

    std::printf("%d products, %d invoice lines; SQLite %s, Qt %s; medians, +- half the distance of the quartiles\n",
                shop.Size().products, shop.Size().lines, sqlite3_libversion(), qVersion());
    PrintLoad("before");
    std::fflush(stdout);
    bench::TableReporter reporter(figures);
    if (benchmark::RunSpecifiedBenchmarks(&reporter) == 0) return 1;
    const std::string filter = benchmark::GetBenchmarkFilter();
    bool weighed = !filter.empty() || (bench::PrintMemory(till, job.quick ? 5 : 100) && bench::PrintAllInvoices(old));
    if (filter.empty() || filter.starts_with("server")) weighed = bench::PrintFarServer(server) && weighed;
    PrintLoad("after");
    return weighed && reporter.Failures().empty() ? 0 : 1;
}

}  // namespace

int main(int argc, char* argv[]) {
    Job job;
    CLI::App commandLine("Figures of VELTON beside their yardsticks");
    commandLine.add_option("DATA-FOLDER", job.dataFolder, "where the big store lies, or is made")->required();
    commandLine.add_flag("--quick", job.quick, "a small store and few repetitions, to see that everything still runs");
    commandLine.allow_extras();
    CLI11_PARSE(commandLine, argc, argv);
    job.benchmarkFlags = commandLine.remaining();

    qputenv("QT_LOGGING_RULES", "*.warning=false");  // what the off-screen platform lacks
    QApplication application(argc, argv);
    forms::InstallTheme();
    const QLocale locale(u"en_US"_s);
    QLocale::setDefault(locale);
    values::SetUserLocale(locale);
    PassFlags(job);
    try {
        return Measure(job);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
