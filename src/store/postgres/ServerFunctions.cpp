#include <QString>

#include "store/CaseFold.h"
#include "store/postgres/ServerSchema.h"

using namespace Qt::StringLiterals;

namespace store::postgres {

namespace {

struct Letters {
    std::u32string capitals, small;
};

// The letters from U+0080 on that fold to others; the server folds ASCII by itself.
Letters FoldedLetters(char32_t below) {
    Letters letters;
    for (char32_t letter = 0x80; letter < below; ++letter) {
        if (FoldCase(letter) == letter) continue;
        letters.capitals += letter;
        letters.small += FoldCase(letter);
    }
    return letters;
}

QString Translated(char32_t below) {
    const Letters letters = FoldedLetters(below);
    return u"translate(folded, '%1', '%2')"_s.arg(QString::fromStdU32String(letters.capitals),
                                                  QString::fromStdU32String(letters.small));
}

// Each letter of a text is looked for in the whole list, so most texts get a short one.
QString FoldSql() {
    constexpr char32_t latin = 0x180, cyrillic = 0x530, all = 0x20000;
    return uR"sql(
CREATE FUNCTION velton_fold(t text) RETURNS text LANGUAGE plpgsql IMMUTABLE STRICT PARALLEL SAFE AS $velton$
DECLARE
    folded text := lower(t COLLATE "C");
BEGIN
    IF octet_length(folded) = char_length(folded) THEN
        RETURN folded;
    ELSIF folded !~ '[^\u0001-\u017F]' THEN
        RETURN %1;
    ELSIF folded !~ '[^\u0001-\u052F]' THEN
        RETURN %2;
    END IF;
    RETURN %3;
END $velton$)sql"_s.arg(Translated(latin), Translated(cyrillic), Translated(all));
}

// Powers that no double can hold count as nothing, too large ones are an overflow. Nearly all texts are plain numbers
// of invoices, which every row of a list asks for.
const auto ValSql =
    uR"sql(
CREATE FUNCTION velton_val(t text) RETURNS double precision LANGUAGE plpgsql IMMUTABLE STRICT PARALLEL SAFE AS $velton$
DECLARE
    plain text;
    power text;
BEGIN
    IF t ~ '^[0-9]{1,15}$' THEN
        RETURN t::double precision;
    END IF;
    plain := substring(ltrim(t, E' \t\r\n') from '^[+-]?[0-9]*(?:\.[0-9]*)?');
    IF plain !~ '[0-9]' THEN
        RETURN 0;
    END IF;
    power := substring(ltrim(t, E' \t\r\n') from '^[+-]?[0-9]*(?:\.[0-9]*)?([Ee][+-]?[0-9]+)');
    IF power IS NULL AND length(plain) < 300 THEN
        RETURN plain::double precision;
    END IF;
    BEGIN
        RETURN (plain || COALESCE(power, ''))::double precision;
    EXCEPTION WHEN numeric_value_out_of_range THEN
        IF log(abs(plain::numeric)) + COALESCE(substr(power, 2), '0')::numeric < 0 THEN
            RETURN 0;
        END IF;
        RAISE;
    END;
END $velton$)sql"_s;

// Gives "=" and a pattern for LIKE, or "~" and a regular expression where a set or a digit asks for one.
const auto PatternSql =
    uR"sql(
CREATE FUNCTION velton_pattern(t text) RETURNS text LANGUAGE plpgsql IMMUTABLE STRICT PARALLEL SAFE AS $velton$
DECLARE
    p text := velton_fold(t);
    simple text := '';
    regular text := '';
    is_simple boolean := true;
    at integer := 1;
    c text;
    inside text;
    ranges text;
    is_outside boolean;
    low text;
    high text;
    set_end integer;
BEGIN
    WHILE at <= char_length(p) LOOP
        c := substr(p, at, 1);
        at := at + 1;
        set_end := CASE WHEN c = '[' THEN strpos(substr(p, at), ']') ELSE 0 END;
        IF set_end > 0 THEN
            inside := substr(p, at, set_end - 1);
            at := at + set_end;
            CONTINUE WHEN inside = '';
            is_simple := false;
            is_outside := left(inside, 1) = '!' AND char_length(inside) > 1;
            IF is_outside THEN
                inside := substr(inside, 2);
            END IF;
            ranges := '';
            WHILE inside <> '' LOOP
                low := left(inside, 1);
                high := low;
                inside := substr(inside, 2);
                IF left(inside, 1) = '-' AND char_length(inside) > 1 THEN
                    high := substr(inside, 2, 1);
                    inside := substr(inside, 3);
                END IF;
                IF ascii(low) <= ascii(high) THEN
                    ranges := ranges || '\U' || lpad(to_hex(ascii(low)), 8, '0') || '-\U' ||
                        lpad(to_hex(ascii(high)), 8, '0');
                END IF;
            END LOOP;
            regular := regular || CASE WHEN ranges <> '' AND is_outside THEN '[^' || ranges || ']'
                WHEN ranges <> '' THEN '[' || ranges || ']' WHEN is_outside THEN '.' ELSE '(?!)' END;
        ELSIF c = '*' THEN
            simple := simple || '%';
            regular := regular || '.*';
        ELSIF c = '?' THEN
            simple := simple || '_';
            regular := regular || '.';
        ELSIF c = '#' THEN
            is_simple := false;
            regular := regular || '[0-9]';
        ELSE
            simple := simple || CASE WHEN c IN ('%', '_', '\') THEN '\' || c ELSE c END;
            regular := regular || '\U' || lpad(to_hex(ascii(c)), 8, '0');
        END IF;
    END LOOP;
    RETURN CASE WHEN is_simple THEN '=' || simple ELSE '~^' || regular || '$' END;
END $velton$)sql"_s;

const auto RoundedSql =
    uR"sql(
CREATE FUNCTION velton_rounded(number bigint, divisor bigint) RETURNS bigint
    LANGUAGE plpgsql IMMUTABLE STRICT PARALLEL SAFE AS $velton$
DECLARE
    quotient bigint := number / divisor;
    twice bigint := 2 * abs(number % divisor);
BEGIN
    IF twice > divisor OR (twice = divisor AND quotient % 2 <> 0) THEN
        quotient := quotient + sign(number)::bigint;
    END IF;
    RETURN quotient;
END $velton$)sql"_s;

const auto ScaledSql =
    uR"sql(
CREATE FUNCTION velton_scaled(number double precision, factor bigint) RETURNS bigint
    LANGUAGE plpgsql IMMUTABLE STRICT PARALLEL SAFE AS $velton$
BEGIN
    RETURN round(number * factor)::bigint;
END $velton$)sql"_s;

}  // namespace

std::vector<std::string> FunctionsSql() {
    std::vector<std::string> sql;
    for (const QString& function : {FoldSql(), ValSql, PatternSql, RoundedSql, ScaledSql})
        sql.push_back(function.toStdString());
    return sql;
}

}  // namespace store::postgres
