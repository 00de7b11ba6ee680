#pragma once

#include <QString>

// The settings of this register, one field a column of Options and named after it: read once at start, changed by the
// settings dialog, read by every screen. Texts of digits are compared as texts.
struct Settings {
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

    // The shop's heading lines: fixed texts of the installation at each start, then what frmFirma wrote.
    QString NazivFirme;
    QString Adresa;
    QString JIB;
    QString Tel;

    // Character code of the user's decimal separator.
    qint16 DecimalSeparator = '.';
};

inline Settings TheSettings;

// One fixed text of the system, the last line of fiscal sales and of the tax book.
inline const QString WebAddressLine = QStringLiteral("www.velton.example");
