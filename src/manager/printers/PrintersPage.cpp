#include "manager/printers/PrintersPage.h"

#include <QDir>
#include <QPrinterInfo>

#include "core/dbModule.h"
#include "forms/Scrollable.h"
#include "manager/printers/TestPage.h"
#include "output/Channel.h"
#include "output/Folder.h"
#include "output/PagePrinter.h"
#include "values/IniEdit.h"

using namespace Qt::StringLiterals;

namespace manager {

namespace {

const auto OptionsQuery = u"SELECT * FROM Options"_s;

// Where the system keeps what may be a receipt printer: parallel, USB, serial.
QStringList Devices() {
    QStringList found;
    for (const auto& [folder, names] : {std::pair{u"/dev/usb"_s, QStringList{u"lp*"_s}},
                                        std::pair{u"/dev"_s, QStringList{u"lp*"_s, u"ttyUSB*"_s, u"ttyACM*"_s}}})
        for (const QString& name : QDir(folder).entryList(names, QDir::System)) found << folder + u'/' + name;
    return found;
}

void Choose(QComboBox& box, const QString& value) {
    box.setCurrentIndex(box.findData(value));
}

}  // namespace

PrintersPage::PrintersPage(QWidget* parent) : PageOfBoxes(parent) {
    ui.setupUi(this);
    for (QComboBox* box : {ui.cboReceipts, ui.cboReports}) {
        box->addItem(tr("Port 1"), u"1"_s);
        box->addItem(tr("Port 2"), u"2"_s);
        box->addItem(tr("The page printer"), u"3"_s);
    }
    ui.cboFamily->addItem(tr("Epson (ESC/POS)"), u"1"_s);
    ui.cboFamily->addItem(tr("Star"), u"2"_s);
    for (int number : {1, 2}) {
        ports_ << new PortPanel(number, [this] { return Family(); });
        ui.layPorts->insertWidget(number, ports_.last());
    }
    TabLast({ui.cmdSave, ui.cmdLook, ui.cmdTestPage});
    ui.layPorts->addStretch(1);
    forms::MakeScrollable(ui.fraPorts);
    On(ui.cmdSave, &PrintersPage::cmdSave_Click);
    On(ui.cmdLook, &PrintersPage::cmdLook_Click);
    On(ui.cmdTestPage, &PrintersPage::cmdTestPage_Click);
}

void PrintersPage::Form_Load() {
    FillBoxes();
    TellOfPagePrinter();
}

void PrintersPage::Fill() {
    auto options = OptionsStore().OpenRecordset(OptionsQuery);
    Choose(*ui.cboReceipts, options[u"PrinterZaRacun"].TextOrEmpty());
    Choose(*ui.cboReports, options[u"PrinterZaIzvjestaj"].TextOrEmpty());
    Choose(*ui.cboFamily, options[u"Emulacija"].TextOrEmpty());
    ui.chkCutter->setChecked(options[u"RezacPapira"].TextOrEmpty() == u"1");
    for (PortPanel* port : ports_) port->Fill(Devices());
}

output::PrinterFamily PrintersPage::Family() const {
    return ui.cboFamily->currentData() == u"2"_s ? output::PrinterFamily::Star : output::PrinterFamily::Epson;
}

void PrintersPage::TellOfPagePrinter() {
    const QString name = QPrinterInfo::defaultPrinterName();
    ui.lblPagePrinter->setText(name.isEmpty() ? tr("No page printer: each page becomes a PDF in printouts.")
                                              : tr("Page printer: %1").arg(name));
}

void PrintersPage::cmdSave_Click() {
    ui.lblSaved->clear();
    StoreBoxes();
    ui.lblSaved->setText(tr("Saved."));
}

bool PrintersPage::Store() {
    values::IniEdit ini(output::InProgramFolder(u"ports.ini"_s));
    for (const PortPanel* port : ports_) {
        const output::PortEntry entry = port->Entry();
        ini.Set(u"ports"_s, entry.key, entry.where);
        ini.Set(u"ports"_s, entry.key + u".status"_s, entry.isAsked ? u"yes"_s : u"no"_s);
    }
    ini.Prepare();
    auto options = OptionsStore().OpenRecordset(OptionsQuery);
    options.Edit();
    for (const auto& [field, box] :
         {std::pair{u"PrinterZaRacun"_s, ui.cboReceipts}, std::pair{u"PrinterZaIzvjestaj"_s, ui.cboReports},
          std::pair{u"Emulacija"_s, ui.cboFamily}})
        if (box->currentIndex() >= 0) options[field] = box->currentData().toString();
    options[u"RezacPapira"] = ui.chkCutter->isChecked() ? u"1"_s : u"0"_s;
    options.Update();
    ini.PutInPlace();
    return true;
}

// What is typed stays.
void PrintersPage::cmdLook_Click() {
    for (PortPanel* port : ports_) {
        auto* box = port->findChild<QComboBox*>();
        const QString typed = box->currentText();
        for (const QString& device : Devices())
            if (box->findText(device) < 0) box->addItem(device);
        box->setCurrentText(typed);
    }
    TellOfPagePrinter();
}

void PrintersPage::cmdTestPage_Click() {
    try {
        for (const QString& line : QStringList{Caption()} + Rulers() + Alphabet())
            output::ThePagePrinter().PrintLine(line);
        output::ThePagePrinter().EndJob();
        ui.lblPagePrinter->setText(tr("A test page was sent."));
    } catch (const output::OutputError& error) {
        output::ThePagePrinter().Abandon();
        ui.lblPagePrinter->setText(error.Description());
    }
}

}  // namespace manager
