#include "store/DialectFuzz.h"

#include <cstdio>
#include <cstdlib>

#include "store/Database.h"
#include "store/dialect/Plan.h"
#include "support/TestFolder.h"

using namespace Qt::StringLiterals;
using namespace store;
using namespace store::dialect;

namespace {

template <typename Compile, typename Run>
QString FaultOf(const Compile& compile, const Run& run) {
    try {
        const Query first = compile();
        const Query second = compile();
        if (first.plan != second.plan || first.values != second.values) return u"compiled twice, unlike"_s;
        if (first.values.size() != first.plan->targets.size()) return u"values and targets differ"_s;
        run(*first.plan);
    } catch (const QueryError& error) {
        return error.Rendered().endsWith(u'^') || !error.NearNames().empty() ? QString() : u"an error without place"_s;
    } catch (const StoreError& error) {
        return u"refused by the engine: "_s + error.Description();
    }
    return {};
}

}  // namespace

QString DialectFaultOn(const QString& text) {
    static const QTemporaryDir folder(FolderTemplate());
    static const auto store = Database::Create(folder.filePath(u"ORVA.pos"_s), MainSchema());
    static auto products = store->OpenRecordset(u"SELECT * FROM Products"_s);
    static Compiler compiler(MainSchema());
    const QString fault = FaultOf([&] { return compiler.Compile(text); },
                                  [&](const Plan& plan) {
                                      if (plan.kind == Plan::Kind::Select)
                                          store->OpenSnapshot(text);
                                      else
                                          store->Execute(text);
                                  });
    if (!fault.isEmpty()) return fault;
    return FaultOf([&] { return compiler.CompileCriteria(text, *MainSchema().Find(u"Products")); },
                   [&](const Plan&) { products.FindFirst(text); });
}

// An input whose first byte is 0xFF is UTF-16, so that halves of surrogate pairs come up as well; any other is UTF-8.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, size_t size) {
    const bool utf16 = size > 0 && data[0] == 0xFF;
    QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    if (utf16) {
        text.clear();
        for (size_t i = 1; i + 1 < size; i += 2) text += QChar(static_cast<char16_t>(data[i] | data[i + 1] << 8));
    }
    const QString fault = DialectFaultOn(text);
    if (fault.isEmpty()) return 0;
    std::fprintf(stderr, "%s\n", qPrintable(fault));
    std::abort();
}
