#include "support/frmHelp.h"

#include <QAbstractTextDocumentLayout>
#include <QFile>
#include <QFileInfo>
#include <QScrollBar>

#include "core/Session.h"
#include "forms/Tokens.h"
#include "output/Folder.h"
#include "support/RtfReader.h"
#include "values/Language.h"

using namespace Qt::StringLiterals;

namespace {

// A text beyond this is no help to anybody, and could take long to lay out.
constexpr qint64 LongestText = qint64{256} * 1024;

void Add(QTextDocument& document, const QString& fault) {
    QTextCursor cursor(&document);
    cursor.movePosition(QTextCursor::End);
    if (!document.isEmpty()) cursor.insertBlock(QTextBlockFormat());
    QTextCharFormat letters;
    letters.setForeground(forms::TheTokens().Danger);
    cursor.insertText(frmHelp::tr("The help text is damaged: %1").arg(fault), letters);
}

// A language's own text is in the program, the one without a language in the folder of the register.
QString PathOf(const QString& helpFile) {
    const QString own = u":/help/"_s + values::LanguageOf(values::Shown::OnScreens) + u'/' + helpFile.mid(1);
    return QFileInfo(own).isFile() ? own : output::InProgramFolder(helpFile);
}

}  // namespace

frmHelp::frmHelp() {
    ui.setupUi(this);
    ui.lvContents->SetColumns({{tr("Contents"), Qt::AlignLeft, -1}});
    FunctionKeys({{Qt::Key_Escape, ui.cmdClose}, {Qt::Key_F12, ui.cmdClose}});
    On(ui.cmdClose, &frmHelp::cmdClose_Click);
    connect(ui.rtBox, &QTextBrowser::anchorClicked, this,
            [this](const QUrl& link) { Run([&] { rtBox_AnchorClicked(link); }); });
    connect(ui.lvContents, &QAbstractItemView::clicked, this, Guarded(&frmHelp::lvContents_Choice));
    connect(ui.lvContents->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            Guarded(&frmHelp::lvContents_Choice));
}

void frmHelp::Form_Load() {
    ShowText();
}

// The other help texts are beside this one; what lies elsewhere is not for the till.
void frmHelp::rtBox_AnchorClicked(const QUrl& link) {
    HelpFileName = u'\\' + link.fileName();
    ShowText();
}

void frmHelp::ShowText() {
    ReadText();
    ListHeadings();
    ui.rtBox->moveCursor(QTextCursor::Start);
}

void frmHelp::ReadText() {
    QFile file(PathOf(HelpFileName));
    if (!QFileInfo(file).isFile())
        return ui.rtBox->setPlainText(
            tr("The help text is not there.\n\nIt should be in this file:\n%1").arg(file.fileName()));
    if (!file.open(QIODevice::ReadOnly))
        return ui.rtBox->setPlainText(
            tr("The help text cannot be read: %1\n\nIt is in this file:\n%2").arg(file.errorString(), file.fileName()));
    if (file.size() > LongestText)
        return ui.rtBox->setPlainText(
            tr("The help text cannot be read: it is too long.\n\nIt is in this file:\n%1").arg(file.fileName()));
    const QString fault = ReadRtf(file.read(LongestText), *ui.rtBox->document());
    if (!fault.isEmpty()) Add(*ui.rtBox->document(), fault);
}

void frmHelp::ListHeadings() {
    headings_.clear();
    ui.lvContents->Clear();
    const QTextDocument& text = *ui.rtBox->document();
    for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() == 0) continue;
        headings_.push_back(block);
        const int depth = block.blockFormat().headingLevel() - 1;
        ui.lvContents->Add({QString(qsizetype{4} * depth, u' ') + block.text()});
    }
    ui.lvContents->setVisible(headings_.size() > 1);
}

void frmHelp::lvContents_Choice() {
    const int chosen = ui.lvContents->Selected();
    if (chosen < 0 || chosen >= std::ssize(headings_)) return;
    const QTextBlock& heading = headings_[static_cast<size_t>(chosen)];
    const QRectF place = ui.rtBox->document()->documentLayout()->blockBoundingRect(heading);
    ui.rtBox->verticalScrollBar()->setValue(static_cast<int>(place.top()));
}

void frmHelp::cmdClose_Click() {
    Unload();
}
