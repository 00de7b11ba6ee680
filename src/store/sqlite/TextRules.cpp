#include "store/sqlite/TextRules.h"

#include <sqlite3.h>

#include <QString>
#include <cmath>

#include "store/CaseFold.h"
#include "store/LikePattern.h"
#include "store/Words.h"
#include "store/sqlite/SqliteError.h"
#include "values/Numbers.h"

namespace store::sqlite {

namespace {

QByteArrayView TextOf(sqlite3_value* value) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
    return {text, qsizetype{sqlite3_value_bytes(value)}};
}

int Collate(void*, int leftLength, const void* left, int rightLength, const void* right) {
    return CompareFolded({static_cast<const char*>(left), qsizetype{leftLength}},
                         {static_cast<const char*>(right), qsizetype{rightLength}});
}

// Most keys are short runs of digits, which need no conversion of the text.
bool ReadShortDigits(QByteArrayView text, sqlite3_int64& number) {
    if (text.empty() || text.size() > 15) return false;
    number = 0;
    for (const char digit : text) {
        if (digit < '0' || digit > '9') return false;
        number = number * 10 + (digit - '0');
    }
    return true;
}

void ValFunction(sqlite3_context* context, int, sqlite3_value** arguments) {
    constexpr double largestExact = 9007199254740992.0;
    if (sqlite3_value_type(arguments[0]) == SQLITE_NULL) return;
    const QByteArrayView text = TextOf(arguments[0]);
    if (sqlite3_int64 whole; ReadShortDigits(text, whole)) return sqlite3_result_int64(context, whole);

    double number = 0;
    try {
        number = values::Val(QString::fromUtf8(text));
    } catch (const values::Error&) {  // too large a number, which must not be thrown through the library
        return sqlite3_result_error(context, "integer overflow", -1);
    }
    if (number == std::trunc(number) && std::abs(number) <= largestExact)
        sqlite3_result_int64(context, static_cast<sqlite3_int64>(number));
    else
        sqlite3_result_double(context, number);
}

void LikeFunction(sqlite3_context* context, int, sqlite3_value** arguments) {
    if (sqlite3_value_type(arguments[0]) == SQLITE_NULL || sqlite3_value_type(arguments[1]) == SQLITE_NULL) return;

    // The engine keeps the read pattern for as long as the argument stays the same.
    auto* pattern = static_cast<const LikePattern*>(sqlite3_get_auxdata(context, 0));
    const bool isNew = pattern == nullptr;
    if (isNew) pattern = new LikePattern(TextOf(arguments[0]));
    sqlite3_result_int(context, pattern->Matches(TextOf(arguments[1])) ? 1 : 0);
    if (isNew)
        sqlite3_set_auxdata(context, 0, const_cast<LikePattern*>(pattern),
                            [](void* data) { delete static_cast<LikePattern*>(data); });
}

}  // namespace

void RegisterTextRules(sqlite3* connection) {
    constexpr int pure = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
    int code = sqlite3_create_collation(connection, "VELTON", SQLITE_UTF8, nullptr, Collate);
    if (code == SQLITE_OK)
        code = sqlite3_create_function(connection, "velton_val", 1, pure, nullptr, ValFunction, nullptr, nullptr);
    if (code == SQLITE_OK)
        code = sqlite3_create_function(connection, "velton_like", 2, pure, nullptr, LikeFunction, nullptr, nullptr);
    if (code != SQLITE_OK) ThrowLast(connection, Words::tr("setting up the text rules"));
}

}  // namespace store::sqlite
