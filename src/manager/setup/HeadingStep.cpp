#include "manager/setup/HeadingStep.h"

#include "core/Installation.h"
#include "core/dbModule.h"
#include "forms/MsgBox.h"
#include "forms/Program.h"
#include "output/CodePage.h"
#include "output/Folder.h"
#include "receipts/ReceiptLayout.h"
#include "receipts/SampleReceipt.h"
#include "values/IniEdit.h"

using namespace Qt::StringLiterals;

namespace manager {

namespace {

const auto OptionsQuery = u"SELECT * FROM Options"_s;

const QStringList Currencies{u"KM"_s, u"EUR"_s, u"GBP"_s, u"CHF"_s, u"RSD"_s, u"USD"_s};

}  // namespace

HeadingStep::HeadingStep() {
    ui.setupUi(this);
    setFocusProxy(ui.txtName);
    ui.cboCurrency->addItems(Currencies);
    for (const ReceiptLayout* layout : ReceiptLayouts())
        ui.cboLayout->addItem(tr("%1, %2 columns").arg(layout->tipRacuna, QString::number(layout->width)),
                              layout->tipRacuna);
    for (QLineEdit* box : {ui.txtName, ui.txtAddress, ui.txtIdent, ui.txtPhone})
        connect(box, &QLineEdit::textChanged, this, &HeadingStep::ShowReceipt);
    for (QComboBox* box : {ui.cboCurrency, ui.cboLayout})
        connect(box, &QComboBox::currentTextChanged, this, &HeadingStep::ShowReceipt);
}

void HeadingStep::Fill() {
    const Heading& heading = TheInstallation.heading;
    ui.txtName->setText(heading.NazivFirme);
    ui.txtAddress->setText(heading.Adresa);
    ui.txtIdent->setText(heading.JIB);
    ui.txtPhone->setText(heading.Tel);
    auto options = OptionsStore().OpenRecordset(OptionsQuery);
    ui.cboCurrency->setCurrentText(options[u"Currency"].TextOrEmpty());
    ui.cboLayout->setCurrentIndex(ui.cboLayout->findData(options[u"TipRacuna"].TextOrEmpty()));
    ShowReceipt();
}

Heading HeadingStep::Typed() const {
    return {.NazivFirme = ui.txtName->text().trimmed(),
            .Adresa = ui.txtAddress->text().trimmed(),
            .JIB = ui.txtIdent->text().trimmed(),
            .Tel = ui.txtPhone->text().trimmed()};
}

bool HeadingStep::Store() {
    const Heading heading = Typed();
    if (heading.NazivFirme.isEmpty()) {
        forms::Inform(tr("The shop needs a name."), window()->windowTitle());
        ui.txtName->setFocus();
        return false;
    }
    auto options = OptionsStore().OpenRecordset(OptionsQuery);
    options.Edit();
    options[u"Currency"] = ui.cboCurrency->currentText();
    values::IniEdit ini(output::InProgramFolder(u"velton.ini"_s));
    ini.Set(u"heading"_s, u"name"_s, heading.NazivFirme);
    ini.Set(u"heading"_s, u"address"_s, heading.Adresa);
    ini.Set(u"heading"_s, u"ident"_s, heading.JIB);
    ini.Set(u"heading"_s, u"phone"_s, heading.Tel);
    ini.Prepare();
    options.Update();
    ini.PutInPlace();
    TheSettings.Currency = ui.cboCurrency->currentText();
    static_cast<Heading&>(TheSettings) = TheInstallation.heading = heading;
    Q_EMIT ShopChanged();
    return true;
}

void HeadingStep::ShowReceipt() {
    TellOfWidth();
    Settings settings = TheSettings;
    static_cast<Heading&>(settings) = Typed();
    settings.Currency = ui.cboCurrency->currentText();
    settings.TipRacuna = ui.cboLayout->currentData().toString();
    try {
        ui.txtReceipt->ShowText(SampleReceipt(settings));
    } catch (const values::Error&) {
        ui.txtReceipt->Clear();  // what can't be printed now is told where it is printed
    }
}

void HeadingStep::TellOfWidth() {
    const Heading heading = Typed();
    qint32 width = 0;
    for (const QString& line : {heading.NazivFirme, heading.Adresa, heading.JIB, heading.Tel})
        width = std::max(width, output::Columns(line));
    ui.lblWidth->setText(tr("The longest line has %1 columns; paper has 32, 40 or 80.").arg(width));
}

}  // namespace manager
