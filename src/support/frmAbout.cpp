#include "support/frmAbout.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

QString Supplied(const QString& name) {
    QFile file(u":/about/"_s + name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// A text of fixed lines, flowing.
QString AsParagraphs(const QString& text) {
    QString html;
    for (const QString& paragraph : text.split(u"\n\n"_s))
        html += u"<p>"_s + paragraph.simplified().toHtmlEscaped() + u"</p>"_s;
    return html;
}

}  // namespace

frmAbout::frmAbout() {
    ui.setupUi(this);
    ui.lblVersion->setText(tr("Version %1").arg(QStringLiteral(VELTON_VERSION)));
    ui.rtBox->setHtml(Supplied(u"licences.html"_s).arg(AsParagraphs(Supplied(u"LICENSE"_s))));
    FunctionKeys({{Qt::Key_Escape, ui.cmdOK}, {Qt::Key_F12, ui.cmdOK}});
    ControlKeys(ui.rtBox, {{Qt::Key_Return, ui.cmdOK}});
    On(ui.cmdOK, &frmAbout::cmdOK_Click);
}

void frmAbout::cmdOK_Click() {
    Unload();
}
