#pragma once

#include <QMap>
#include <QStringList>
#include <functional>
#include <string>
#include <vector>

// Cases as texts, one file a topic in a folder under tests/data.
namespace drivers {

// A line and the lines that are indented under it by four blanks.
struct Step {
    std::string file;
    int line = 0;
    QString text;
    // The form that comes up at this step: what stands behind " => ".
    QString form;
    std::vector<Step> inner;
};

struct CaseText {
    QString name;
    Step steps;
};

void PrintTo(const CaseText& text, std::ostream* out);

// "== Name" begins a case, "#" a remark; what stands before the first case begins them all. "let NAME = TEXT" puts the
// text for $NAME from there on; "each A | B" repeats the lines under it with $_ for each of them. Any text may hold \n,
// \r, \s (a blank), \0 (nothing), \\ and \u001B (a character by its number).
std::vector<CaseText> ReadCases(const QString& folder, const QStringList& topics);

using Function = std::function<QString(const QStringList& arguments)>;
// A line "FUNCTION & FUNCTION in LOCALE LOCALE" and a row a call under it, "ARGUMENT | ARGUMENT | WHAT IT GIVES", which
// may be "error NUMBER". Without a locale it is C.
void CheckRows(const Step& step, const QMap<QString, Function>& functions);

}  // namespace drivers
