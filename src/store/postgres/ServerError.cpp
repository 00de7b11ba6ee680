#include "store/postgres/ServerError.h"

#include "store/Words.h"

using namespace Qt::StringLiterals;

namespace store::postgres {

namespace {

QByteArray CodeOf(const PGresult* result) {
    return PQresultErrorField(result, PG_DIAG_SQLSTATE);
}

// The codes are those of the server's manual, appendix "Error Codes"; some stand for a class of them.
int NumberOf(const QByteArray& code) {
    static const std::pair<QByteArrayView, int> numbers[] = {
        {"23505", DuplicateKey},     {"23503", RelatedRows},  // a shop may have added relations of its own
        {"P0001", RelatedRows},                               // what its own triggers refuse
        {"22003", values::Overflow}, {"22", ConversionFailed}, {"23", ConversionFailed},
        {"55P03", StoreLocked},      {"40", StoreLocked},      {"57014", Cancelled},
        {"53100", DiskFull},         {"53", DiskError},  // too many connections, out of memory
        {"58", DiskError},           {"42501", ReadOnly},      {"25006", ReadOnly},
        {"XX00", NotAStore},         {"42703", NotAStore},     {"42", SyntaxError},
        {"54001", SyntaxError},
    };
    for (const auto& [beginning, number] : numbers)
        if (code.startsWith(beginning)) return number;
    return NotSupported;
}

QString RefusalOf(int number) {
    if (number == DiskFull) return Words::tr("There is no room left on the server's disk");
    if (number == DiskError) return Words::tr("The server refused the access");
    return Refusal(number);
}

}  // namespace

QString OneSentence(const QString& message) {
    QString sentence = message.section(u'\n', 0, 0).trimmed();
    while (sentence.endsWith(u'.')) sentence.chop(1);
    return sentence;
}

bool TellsOfTheEnd(const PGresult* result) {
    const QByteArray code = CodeOf(result);
    return code.startsWith("57P") || code.startsWith("08");
}

bool IsCancelled(const PGresult* result) {
    return CodeOf(result) == "57014";
}

void ThrowRefused(const PGresult* result) {
    const QByteArray code = CodeOf(result);
    const QString message = OneSentence(QString::fromUtf8(PQresultErrorField(result, PG_DIAG_MESSAGE_PRIMARY)));
    // The names of a statement are checked before, so its tables went while it was open.
    if (code == "42P01")
        throw FilesLost(Words::tr("The store was moved away on the server, with all that was stored until then (%1).")
                            .arg(message));
    const int number = NumberOf(code);
    // Of these the server adds only how or where it noticed.
    const bool saysAll = code == "55P03" || code == "53100";
    throw StoreError(number, saysAll ? RefusalOf(number) + u'.' : u"%1 (%2)."_s.arg(RefusalOf(number), message));
}

}  // namespace store::postgres
