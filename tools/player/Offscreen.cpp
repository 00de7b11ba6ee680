#include "player/Offscreen.h"

#include <QFile>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace drivers {

namespace {

const auto Screen =
    u"{\"screens\": [{\"name\": \"till\", \"x\": 0, \"y\": 0, \"width\": %1, \"height\": %2,"
    " \"logicalDpi\": 96, \"logicalBaseDpi\": 96, \"dpr\": 1}]}"_s;

void WriteMessage(QtMsgType, const QMessageLogContext&, const QString& message) {
    if (!message.startsWith(u"This plugin does not support")) std::fprintf(stderr, "%s\n", qPrintable(message));
}

}  // namespace

void UseTillScreen(const QString& folder, QSize size) {
    if (qEnvironmentVariable("QT_QPA_PLATFORM", u"offscreen"_s) != u"offscreen") return;
    const QString path = folder + u"/screen.json"_s;
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) return;
    file.write(Screen.arg(size.width()).arg(size.height()).toUtf8());
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFile::encodeName(path));
}

void HushPlatform() {
    qInstallMessageHandler(WriteMessage);
}

}  // namespace drivers
