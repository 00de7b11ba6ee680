#include "manager/printers/PortPanel.h"

#include <QStyledItemDelegate>

#include "forms/Program.h"
#include "manager/printers/TestPage.h"
#include "output/Channel.h"

using namespace Qt::StringLiterals;

namespace manager {

namespace {

constexpr int LinesBelow = 5;

QString Words(output::PrinterState state) {
    switch (state) {
        case output::PrinterState::Ready:
            return PortPanel::tr("It is ready, as far as it tells.");
        case output::PrinterState::NoPaper:
            return PortPanel::tr("It has no paper.");
        case output::PrinterState::CoverOpen:
            return PortPanel::tr("Its cover is open.");
        case output::PrinterState::Offline:
            return PortPanel::tr("It is offline or has an error.");
        case output::PrinterState::Silent:
            return PortPanel::tr("It does not answer. Many printers never do; then leave the box above empty.");
    }
    return {};
}

// Of an address as ports.ini has it.
QString Words(const QString& where) {
    const auto rest = [&where](int scheme) { return where.mid(scheme).trimmed(); };
    if (where.startsWith(u"file:", Qt::CaseInsensitive))
        return rest(5).startsWith(u'/') ? PortPanel::tr("File %1").arg(rest(5))
                                        : PortPanel::tr("File %1 in the folder of the register").arg(rest(5));
    if (where.startsWith(u"tcp:", Qt::CaseInsensitive))
        return PortPanel::tr("Printer on the network at %1").arg(rest(4));
    return where.isEmpty() ? PortPanel::tr("The usual device") : PortPanel::tr("Device %1").arg(where);
}

// The choices are told in words, while the box has the address that can be edited.
class ChoicesInWords : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QString displayText(const QVariant& where, const QLocale&) const override { return Words(where.toString()); }
};

}  // namespace

PortPanel::PortPanel(int number, std::function<output::PrinterFamily()> family)
    : number_(number), family_(std::move(family)) {
    ui.setupUi(this);
    ui.lblPort->setText(tr("Port &%1:").arg(number));
    ui.cboPort->setItemDelegate(new ChoicesInWords(ui.cboPort));
    connect(ui.cboPort, &QComboBox::editTextChanged, this,
            [this](const QString& where) { ui.lblWhere->setText(Words(where.trimmed())); });
    for (auto* control : findChildren<QWidget*>())
        if (!control->objectName().startsWith(u"qt_"))
            control->setObjectName(control->objectName() + QString::number(number));
    const std::pair<QPushButton*, void (PortPanel::*)()> buttons[] = {{ui.cmdTest, &PortPanel::Test},
                                                                      {ui.cmdDrawer, &PortPanel::OpenDrawer},
                                                                      {ui.cmdCut, &PortPanel::Cut},
                                                                      {ui.cmdAsk, &PortPanel::Ask}};
    for (const auto& [button, handler] : buttons)
        connect(button, &QPushButton::clicked, this,
                [this, handler = handler] { forms::Run([&] { (this->*handler)(); }, window()->windowTitle()); });
}

// An ini that can't be used is told in the panel, and saving makes it good.
void PortPanel::Fill(const QStringList& found) {
    ui.lblState->clear();
    output::PortEntry entry;
    try {
        entry = output::EntryOf(u"lpt%1:"_s.arg(number_));
    } catch (const output::OutputError& error) {
        ui.lblState->setText(error.Description());
    }
    ui.cboPort->clear();
    ui.cboPort->addItems(found);
    ui.cboPort->addItem(u"file:lpt%1.prn"_s.arg(number_));
    ui.cboPort->setCurrentText(entry.where);
    ui.lblWhere->setText(Words(entry.where));
    ui.chkAsked->setChecked(entry.isAsked);
}

output::PortEntry PortPanel::Entry() const {
    return {.key = u"lpt%1"_s.arg(number_),
            .where = ui.cboPort->currentText().trimmed(),
            .isAsked = ui.chkAsked->isChecked()};
}

void PortPanel::Try(const std::function<QString()>& work) {
    ui.lblState->setText(tr("Working…"));
    try {
        output::PortEntry entry = Entry();
        entry.isAsked = true;
        output::Channel1().OpenPort(entry);
        const QString told = work();
        output::Channel1().Close();
        ui.lblState->setText(told);
    } catch (const values::Error& error) {
        output::Channel1().Drop();
        ui.lblState->setText(error.Description());
    }
}

void PortPanel::Test() {
    Try([this] {
        output::Channel& printer = output::Channel1();
        const output::PrinterCodes codes = output::CodesOf(family_());
        printer.WriteLine(tr("VELTON Manager, port %1").arg(number_));
        for (const QString& line : Rulers() + Alphabet()) printer.WriteLine(line);
        printer.WriteBytes(codes.bold);
        printer.WriteLine(tr("This line is bold, if the printer can."));
        printer.WriteBytes(codes.plain);
        for (int line = 0; line < LinesBelow; ++line) printer.WriteLine({});
        return tr(
            "A test page was sent. Each ruler should stand in one line if the paper is as wide; letters that are "
            "wrong want another code page in the printer.");
    });
}

void PortPanel::OpenDrawer() {
    Try([this] {
        output::Channel1().WriteBytes(output::CodesOf(family_()).drawer);
        return tr("The drawer was told to open.");
    });
}

void PortPanel::Cut() {
    Try([this] {
        output::Channel1().WriteBytes(output::CodesOf(family_()).cutter);
        return tr("The printer was told to cut.");
    });
}

void PortPanel::Ask() {
    Try([this] { return Words(output::Channel1().AskPrinter(family_())); });
}

}  // namespace manager
