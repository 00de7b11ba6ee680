#include "store/postgres/ServerError.h"

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
        {"XX00", NotAStore},         {"42P01", UnknownTable},  {"42703", UnknownField},
        {"42", SyntaxError},         {"54001", SyntaxError},
    };
    for (const auto& [beginning, number] : numbers)
        if (code.startsWith(beginning)) return number;
    return NotSupported;
}

QString Words(int number) {
    switch (number) {
        case DuplicateKey:
            return u"A row with this key exists already"_s;
        case RelatedRows:
            return u"Other rows of the store refer to this one"_s;
        case values::Overflow:
            return u"Overflow"_s;
        case ConversionFailed:
            return u"A value does not fit the type of its column"_s;
        case StoreLocked:
            return u"The store is locked by another user"_s;
        case Cancelled:
            return u"The work was left"_s;
        case DiskFull:
            return u"There is no room left on the server's disk"_s;
        case DiskError:
            return u"The server refused the access"_s;
        case ReadOnly:
            return u"The store cannot be written to"_s;
        case NotAStore:
            return u"The store is damaged"_s;
        default:
            return u"The store refused the operation"_s;
    }
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
    const int number = NumberOf(code);
    const QString message = OneSentence(QString::fromUtf8(PQresultErrorField(result, PG_DIAG_MESSAGE_PRIMARY)));
    throw RefusedStatement(number, u"%1 (%2)."_s.arg(Words(number), message), code);
}

}  // namespace store::postgres
