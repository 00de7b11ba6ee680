#pragma once

#include <QStringList>
#include <string>
#include <vector>

// Cases of screens as texts, one file a topic under tests/data/screens.
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
// \r, \s (a blank), \0 (nothing) and \\.
std::vector<CaseText> ReadCases(const QStringList& topics);

}  // namespace drivers
