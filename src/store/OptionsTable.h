#pragma once

#include <QList>
#include <QString>
#include <variant>

#include "store/Schema.h"

namespace store {

// The settings of one register, a row of Options: one member a column and named after it. Texts of digits are compared
// as texts.
struct OptionsRow {
    QString MjestoProdaje;
    QString PrinterZaIzvjestaj;
    QString VelFont;
    QString Font;
    QString Currency;
    qint16 PraznihLinijaPoslijeRacuna = 0;
    QString StanjeKaseVidljivo;
    QString PrintKasir;
    QString TipRacuna;
    qint16 Kasa = 0;
    QString ServerName;
    QString RekapPoreza;
    QString PrinterZaRacun;
    QString Emulacija;
    QString RezacPapira;
    QString SkenerPrimarno;
    QString TrakaRacunaFile;
    bool TrakaRacunaFileDA = false;
    QString FiskalniFile;
    QString FiskalniRacunDA;
    QString Footer;
    bool DisplejKupca = false;
    bool Kusur = false;
    QString POSMonitor;
    bool Kupac = false;
    bool PonudiZakljucak = false;
    QString ChangeUser;
    bool NoviRacunAutomatski = false;
};

// None for a column that only screens read, from the row.
using OptionsMember = std::variant<std::monostate, QString OptionsRow::*, qint16 OptionsRow::*, bool OptionsRow::*>;

// What becomes of a column when the program starts.
enum class AtStart {
    Required,     // read; a null is error 94
    EmptyIfNull,  // read; a null leaves the member empty
    AsDelivered,  // the member takes the delivered value, whatever the column holds
    NotRead,
};

struct OptionsColumn {
    QString name;
    OptionsMember member;
    Type type;
    values::Value delivered;
    AtStart atStart = AtStart::Required;
};

// The one table of settings, in the order in which they are read: it makes the table of the store and its delivered
// row, and serves the start and the dialogs.
const QList<OptionsColumn>& OptionsColumns();
// The name of the column that a member stands for.
const QString& ColumnOf(const OptionsMember& member);

}  // namespace store
