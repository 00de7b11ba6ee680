// bench-empty [--text] [--memory]: an empty window, or one with a line of text, until it is painted; with --memory,
// what such a process takes.

#include <QApplication>
#include <QLabel>

#include "bench/FirstPaint.h"
#include "bench/MemoryUse.h"

using namespace Qt::StringLiterals;

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    bench::QuitWhenPainted(u"empty"_s);
    QWidget window;
    window.setObjectName(u"empty"_s);
    if (QApplication::arguments().contains(u"--text"_s)) new QLabel(u"VELTON"_s, &window);
    window.show();
    const int code = QApplication::exec();
    if (QApplication::arguments().contains(u"--memory"_s)) bench::PrintMemoryUse();
    return code;
}
