#include "store/dialectFuzz.h"

#include <cstdio>
#include <cstdlib>

#include "store/dialect/Lexer.h"
#include "store/dialect/Parser.h"
#include "store/dialect/Printer.h"
#include "store/dialectStore.h"

using namespace Qt::StringLiterals;
using namespace store;
using namespace store::dialect;

namespace {

QString TreeOf(const QString& text, Brackets brackets) {
    std::vector<Token> tokens;
    Lex(text, tokens);
    return Print(Parse(text, tokens), brackets);
}

QString FaultOfPrinting(const QString& text) {
    QString tree;
    try {
        tree = TreeOf(text, Brackets::All);
    } catch (const QueryError& error) {
        return error.Rendered().isEmpty() ? u"an error without words"_s : QString();
    }
    const QString printed = TreeOf(text, Brackets::Needed);
    if (printed.size() > 2 * text.size() + 1000) return {};
    try {
        if (TreeOf(printed, Brackets::All) == tree) return {};
    } catch (const QueryError& error) {
        return u"printed text is refused: "_s + error.Rendered();
    }
    return u"printed text is another tree: "_s + printed;
}

template <typename Compile>
QString FaultOfCompiling(const Compile& compile) {
    static DialectStore store(MainSchema());
    try {
        const Query first = compile();
        const Query second = compile();
        if (first.plan != second.plan || first.values != second.values) return u"compiled twice, unlike"_s;
        if (first.values.size() != first.plan->targets.size()) return u"values and targets differ"_s;
        const QString refusal = store.Refusal(*first.plan);
        return refusal.isEmpty() ? QString() : u"refused by the engine: "_s + refusal;
    } catch (const QueryError& error) {
        const Span span = error.GetSpan();
        return span.offset < 0 || span.length < 0 || error.Rendered().isEmpty() ? u"an error without place"_s
                                                                                : QString();
    }
}

}  // namespace

QString DialectFaultOn(const QString& text) {
    static Compiler compiler(MainSchema());
    const Table& products = *MainSchema().Find(u"Products");
    for (const QString& fault : {FaultOfPrinting(text), FaultOfCompiling([&] { return compiler.Compile(text); }),
                                 FaultOfCompiling([&] { return compiler.CompileCriteria(text, products); })}) {
        if (!fault.isEmpty()) return fault;
    }
    return {};
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
