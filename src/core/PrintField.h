#pragma once

#include <QString>
#include <functional>
#include <vector>

// A printed line as its fields from left to right, each filled from a column of whatever is printed. Widths are in
// columns of the paper, as output::Columns counts them.

struct PrintField {
    enum class Side {
        Left,   // justified to the left, and cut
        Right,  // justified to the right, and whole when it is longer
        Whole,  // as wide as its text
        Fill,   // to the left, as far as the line is `width` wide, and cut; error 5 where it is wider already
    };
    static constexpr int NoColumn = -1;

    Side side = Side::Left;
    int width = 0;
    int column = NoColumn;
    QString date = {};    // a pattern for the column's date
    QString before = {};  // stands in the field before the text
};

using PrintFields = std::vector<PrintField>;

inline PrintField Left(int width, int column, const QString& date = {}, const QString& before = {}) {
    return {PrintField::Side::Left, width, column, date, before};
}
inline PrintField Right(int width, int column, const QString& date = {}) {
    return {PrintField::Side::Right, width, column, date};
}
inline PrintField Whole(int column) {
    return {PrintField::Side::Whole, 0, column};
}
inline PrintField FillTo(int width, int column) {
    return {PrintField::Side::Fill, width, column};
}
inline PrintField Words(const QString& text) {
    return {.side = PrintField::Side::Whole, .before = text};
}

// The line, with what `cell` gives for each column.
QString FilledLine(const PrintFields& fields, const std::function<QString(int column)>& cell);
// How wide it is as long as no text pushes it.
int WidthOf(const PrintFields& fields);
