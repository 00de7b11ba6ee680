#include "manager/goods/ImportChoices.h"

#include "forms/Scrollable.h"
#include "upkeep/goods/TextDecoder.h"

using namespace Qt::StringLiterals;
using upkeep::ImportOptions;
using upkeep::SheetField;

namespace manager {

namespace {

void Choose(QComboBox* box, const QVariant& data) {
    box->setCurrentIndex(box->findData(data));
}

// What stands first stands for none.
void Offer(QComboBox* box, const QStringList& texts) {
    const QString before = box->currentData().toString();
    box->clear();
    box->addItem(ImportChoices::tr("(none)"), QString());
    for (const QString& text : texts) box->addItem(text, text);
    box->setCurrentIndex(std::max(0, box->findData(before)));
}

}  // namespace

ImportChoices::ImportChoices(QWidget* parent) : QWidget(parent) {
    ui.setupUi(this);
    forms::MakeScrollable(this);
    for (const QString& encoding : upkeep::KnownEncodings()) ui.cboEncoding->addItem(encoding, encoding);
    for (const auto& [name, sign] :
         {std::pair{tr("Semicolon ;"), u';'}, std::pair{tr("Comma ,"), u','}, std::pair{tr("Tab"), u'\t'}})
        ui.cboSeparator->addItem(name, QChar(sign));
    for (const auto& [name, sign] :
         {std::pair{tr("not known"), u'\0'}, std::pair{tr("Comma ,"), u','}, std::pair{tr("Point ."), u'.'}})
        ui.cboDecimal->addItem(name, QChar(sign));
    ui.cboRows->addItem(tr("New and known goods"), static_cast<int>(ImportOptions::Rows::All));
    ui.cboRows->addItem(tr("Only new goods"), static_cast<int>(ImportOptions::Rows::OnlyNew));
    ui.cboRows->addItem(tr("Only known goods"), static_cast<int>(ImportOptions::Rows::OnlyKnown));
    for (QComboBox* box : {ui.cboEncoding, ui.cboSeparator, ui.cboDecimal})
        connect(box, &QComboBox::activated, this, &ImportChoices::ChooseForm);
    for (const SheetField field : upkeep::SheetFields())
        connect(BoxOf(field), &QComboBox::activated, this, [this, field] { ChooseField(field); });
    for (QComboBox* box : {ui.cboRows, ui.cboUnit, ui.cboTax})
        connect(box, &QComboBox::activated, this, &ImportChoices::OptionChosen);
    for (QCheckBox* box : {ui.chkKeepPrice, ui.chkKeepQuantity})
        connect(box, &QCheckBox::clicked, this, &ImportChoices::OptionChosen);
}

QComboBox* ImportChoices::BoxOf(SheetField field) const {
    switch (field) {
        case SheetField::Code:
            return ui.cboFieldCode;
        case SheetField::Name:
            return ui.cboFieldName;
        case SheetField::Price:
            return ui.cboFieldPrice;
        case SheetField::Quantity:
            return ui.cboFieldQuantity;
        case SheetField::Unit:
            return ui.cboFieldUnit;
        case SheetField::Tax:
            return ui.cboFieldTax;
        case SheetField::Group:
            return ui.cboFieldGroup;
        default:
            return ui.cboFieldPicture;
    }
}

void ImportChoices::BeginAnew() {
    wish_ = {};
}

void ImportChoices::OfferDefaults(const upkeep::GoodsRules& rules) {
    QStringList taxes;
    for (const upkeep::TaxRate& tax : rules.taxes) taxes += tax.id;
    Offer(ui.cboUnit, rules.units);
    Offer(ui.cboTax, taxes);
}

void ImportChoices::Show(const upkeep::GoodsSheet& sheet) {
    Choose(ui.cboEncoding, sheet.table.form.encoding);
    Choose(ui.cboSeparator, sheet.table.form.separator);
    Choose(ui.cboDecimal, sheet.decimal);
    for (const SheetField field : upkeep::SheetFields()) {
        QComboBox* box = BoxOf(field);
        box->clear();
        // By their numbers: a heading may stand twice, or be empty.
        box->addItem(tr("(none)"), QString());
        for (qsizetype i = 0; i < sheet.Headings().size(); ++i) {
            const QString number = QString::number(i + 1);
            const QString heading = sheet.Headings()[i].simplified();
            box->addItem(heading.isEmpty() ? tr("Column %1").arg(number) : heading, number);
        }
        box->setCurrentIndex(static_cast<int>(sheet.ColumnOf(field)) + 1);
    }
}

// A box that was not touched goes on being guessed.
void ImportChoices::ChooseForm() {
    const QObject* box = sender();
    if (box == ui.cboEncoding) wish_.form.encoding = ui.cboEncoding->currentData().toString();
    if (box == ui.cboSeparator) wish_.form.separator = ui.cboSeparator->currentData().toChar();
    if (box == ui.cboDecimal) wish_.decimal = ui.cboDecimal->currentData().toChar();
    // The columns are others then.
    if (box != ui.cboDecimal) wish_.columns.clear();
    Q_EMIT FormChosen();
}

void ImportChoices::ChooseField(SheetField field) {
    // The last word on a field counts, so that what it took from another on the way is given back.
    wish_.columns.removeIf([field](const upkeep::ColumnChoice& choice) { return choice.field == field; });
    wish_.columns.append({BoxOf(field)->currentData().toString(), field});
    Q_EMIT FormChosen();
}

ImportOptions ImportChoices::Options() const {
    return {.rows = static_cast<ImportOptions::Rows>(ui.cboRows->currentData().toInt()),
            .keepPrice = ui.chkKeepPrice->isChecked(),
            .keepQuantity = ui.chkKeepQuantity->isChecked(),
            .unit = ui.cboUnit->currentData().toString(),
            .tax = ui.cboTax->currentData().toString()};
}

}  // namespace manager
