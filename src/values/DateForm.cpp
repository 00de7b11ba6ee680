#include "values/DateForm.h"

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace values {

namespace {

using Kind = DateField::Kind;

std::optional<Kind> FieldKind(QChar letter, qsizetype width) {
    switch (letter.unicode()) {
        case u'd':
            return Kind::Day;
        case u'M':
            return width > 2 ? Kind::MonthName : Kind::Month;
        case u'y':
            return Kind::Year;
        case u'H':
            return Kind::Hour;
        case u'h':
            return Kind::Hour12;
        case u'm':
            return Kind::Minute;
        case u's':
            return Kind::Second;
        case u't':
            return Kind::Zone;
        case u'A':
        case u'a':
        case u'B':
            return Kind::DayPeriod;
        default:
            return std::nullopt;
    }
}

void AddLiteral(DateForm& form, QChar c) {
    if (form.empty() || form.back().kind != Kind::Literal) form.push_back({Kind::Literal, 0, {}});
    form.back().literal += c;
}

// Reads from the opening quote; two quotes are one, inside a quoted text and outside. Gives the place after it.
qsizetype ParseQuoted(QStringView format, qsizetype at, DateForm& form) {
    if (format.sliced(at).startsWith(u"''")) {
        AddLiteral(form, u'\'');
        return at + 2;
    }
    for (++at; at < format.size(); ++at) {
        if (format[at] != u'\'') {
            AddLiteral(form, format[at]);
        } else if (format.sliced(at).startsWith(u"''")) {
            AddLiteral(form, format[at++]);
        } else {
            return at + 1;
        }
    }
    return at;
}

qsizetype FieldWidth(QStringView format, qsizetype at) {
    const QChar letter = format[at];
    if (letter.toLower() == u'a') return at + 1 < format.size() && format[at + 1].toLower() == u'p' ? 2 : 1;
    qsizetype end = at;
    while (end < format.size() && format[end] == letter) ++end;
    return end - at;
}

DateForm Parse(QStringView format) {
    DateForm form;
    for (qsizetype at = 0; at < format.size();) {
        if (format[at] == u'\'') {
            at = ParseQuoted(format, at, form);
            continue;
        }
        const qsizetype width = FieldWidth(format, at);
        if (const auto kind = FieldKind(format[at], width)) {
            form.push_back({*kind, static_cast<int>(width), {}});
            at += width;
        } else {
            AddLiteral(form, format[at++]);
        }
    }
    for (auto& field : form) field.literal = PlainText(field.literal);
    return form;
}

bool SetsOffZone(QChar c) {
    return c.isSpace() || u"()[],"_s.contains(c);
}

void RemoveZone(DateForm& form) {
    const auto zone = std::ranges::find(form, Kind::Zone, &DateField::kind);
    if (zone == form.end()) return;
    if (zone != form.begin()) {
        QString& before = std::prev(zone)->literal;
        while (!before.isEmpty() && SetsOffZone(before.back())) before.chop(1);
    }
    if (std::next(zone) != form.end()) {
        QString& after = std::next(zone)->literal;
        while (!after.isEmpty() && SetsOffZone(after.front())) after.remove(0, 1);
    }
    form.erase(zone);
}

}  // namespace

DateForm ParseDateForm(QStringView format) {
    DateForm form = Parse(format);
    for (auto& field : form)
        if (field.kind == Kind::Year) field.width = 4;
    return form;
}

DateForm ParseTimeForm(QStringView format) {
    DateForm form = Parse(format);
    RemoveZone(form);
    // Without a day period the small letter too counts to 24.
    if (std::ranges::find(form, Kind::DayPeriod, &DateField::kind) == form.end())
        for (auto& field : form)
            if (field.kind == Kind::Hour12) field.kind = Kind::Hour;
    return form;
}

QString PlainText(const QString& text) {
    QString plain;
    for (const QChar c : text) {
        if (c.category() == QChar::Other_Format) continue;
        plain += c.isSpace() ? QChar(u' ') : c;
    }
    return plain;
}

}  // namespace values
