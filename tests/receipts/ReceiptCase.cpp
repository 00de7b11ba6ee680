#include "ReceiptCase.h"

#include "core/Settings.h"
#include "support/Files.h"

using namespace Qt::StringLiterals;

namespace {

QString ReadData(const QString& name) {
    return QString::fromUtf8(drivers::ReadFile(QStringLiteral(TEST_DATA "/receipts/") + name));
}

QString* SettingText(const QString& name) {
    static const QMap<QString, QString Settings::*> heading = {{u"NazivFirme"_s, &Settings::NazivFirme},
                                                               {u"Adresa"_s, &Settings::Adresa},
                                                               {u"JIB"_s, &Settings::JIB},
                                                               {u"Tel"_s, &Settings::Tel}};
    if (heading.contains(name)) return &(TheSettings.*heading[name]);
    for (const store::OptionsColumn& column : store::OptionsColumns())
        if (column.name == name && column.type == store::Type::Text)
            return &(TheSettings.*std::get<QString store::OptionsRow::*>(column.member));
    return nullptr;
}

QString* InvoiceField(InvoiceText& invoice, const QString& name) {
    if (name == u"orNo") return &invoice.orNo;
    if (name == u"customer") return &invoice.customer;
    if (name == u"ident") return &invoice.ident;
    if (name == u"cashier") return &invoice.cashier;
    if (name == u"total") return &invoice.total;
    if (name == u"taxTotal") return &invoice.taxTotal;
    return nullptr;
}

InvoiceText::Item ItemOf(const QStringList& cells) {
    return {cells[0], cells[1], cells[2], cells[3], cells[4], cells[5], cells[6], cells[7], cells[8], cells[9]};
}

// The first item of a text takes the place of those before it, and so does the first tax.
void Apply(const QString& text, InvoiceText& invoice) {
    bool hasItems = false;
    bool hasTaxes = false;
    for (const QString& line : text.split(u'\n', Qt::SkipEmptyParts)) {
        const QString name = line.section(u'=', 0, 0);
        const QString value = line.section(u'=', 1).replace(u"\\n"_s, u"\r\n"_s);
        const QStringList cells = value.split(u'|');
        if (name == u"item") {
            if (!std::exchange(hasItems, true)) invoice.items.clear();
            ASSERT_EQ(cells.size(), 10) << line.toStdString();
            invoice.items << ItemOf(cells);
        } else if (name == u"tax") {
            if (!std::exchange(hasTaxes, true)) invoice.taxes.clear();
            ASSERT_EQ(cells.size(), 4) << line.toStdString();
            invoice.taxes << InvoiceText::Tax{cells[0], cells[1], cells[2], cells[3]};
        } else if (name == u"locale") {
            values::SetUserLocale(QLocale(value));
        } else if (name == u"PraznihLinijaPoslijeRacuna") {
            TheSettings.PraznihLinijaPoslijeRacuna = value.toShort();
        } else if (name == u"TrakaRacunaFileDA") {
            TheSettings.TrakaRacunaFileDA = value == u"1";
        } else if (QString* field = SettingText(name)) {
            *field = value;
        } else if (QString* field = InvoiceField(invoice, name)) {
            *field = value;
        } else {
            ADD_FAILURE() << "unknown line: " << line.toStdString();
        }
    }
}

QString ShownLine(const QByteArray& line) {
    QString shown;
    for (const char byte : line) {
        const auto code = static_cast<uchar>(byte);
        if (byte == '\\') {
            shown += u"\\\\"_s;
        } else if (code < 32 || code > 126) {
            shown += u"\\x"_s + QString::number(code, 16).toUpper().rightJustified(2, u'0');
        } else {
            shown += QLatin1Char(byte);
        }
    }
    if (shown.endsWith(u' ')) shown.replace(shown.size() - 1, 1, u"\\x20"_s);
    return shown;
}

}  // namespace

InvoiceText LoadShop(const QString& changes) {
    TheSettings = {};
    TheSettings.TrakaRacunaFile = u"invoices.txt"_s;
    InvoiceText invoice;
    Apply(ReadData(u"shop"_s), invoice);
    Apply(changes, invoice);
    return invoice;
}

ReceiptCase LoadReceiptCase(const QString& name) {
    const QString text = ReadData(name + u".txt"_s);
    const QString separator = u"\n--\n"_s;
    EXPECT_EQ(text.count(separator), 1) << name.toStdString();
    ReceiptCase result{.invoice = LoadShop(text.section(separator, 0, 0)), .files = {}};
    QString file;
    for (const QString& line : text.section(separator, 1).chopped(1).split(u'\n')) {
        if (line.startsWith(u"== ")) {
            file = line.mid(3);
            result.files[file] = QString();
        } else {
            result.files[file] += line + u'\n';
        }
    }
    return result;
}

QString Shown(const QByteArray& bytes) {
    QString shown;
    qsizetype from = 0;
    for (qsizetype end; (end = bytes.indexOf("\r\n", from)) >= 0; from = end + 2)
        shown += ShownLine(bytes.mid(from, end - from)) + u'\n';
    if (from < bytes.size()) shown += ShownLine(bytes.mid(from)) + u"\\c\n"_s;
    return shown;
}
