#include "core/PrintField.h"

#include "core/dbModule.h"
#include "output/CodePage.h"
#include "values/Format.h"

namespace {

QString TextOf(const PrintField& field, const std::function<QString(int column)>& cell) {
    if (field.column == PrintField::NoColumn) return field.before;
    const QString text = cell(field.column);
    return field.before + (field.date.isEmpty() ? text : values::Format(text, field.date));
}

QString Justified(const PrintField& field, const QString& text, const QString& line) {
    switch (field.side) {
        case PrintField::Side::Left:
            return PadRight(field.width, text);
        case PrintField::Side::Right:
            return PadLeft(field.width, text);
        case PrintField::Side::Fill:
            return PadRight(field.width - output::Columns(line), text);
        case PrintField::Side::Whole:
            break;
    }
    return text;
}

}  // namespace

QString FilledLine(const PrintFields& fields, const std::function<QString(int column)>& cell) {
    QString line;
    for (const PrintField& field : fields) line += Justified(field, TextOf(field, cell), line);
    return line;
}

int WidthOf(const PrintFields& fields) {
    return output::Columns(FilledLine(fields, [](int) { return QString(); }));
}
