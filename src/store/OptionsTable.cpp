#include "store/OptionsTable.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace store {

namespace {

using Row = OptionsRow;
using enum AtStart;

OptionsColumn Text(const QString& name, QString Row::*member, const QString& delivered, AtStart atStart = Required) {
    return {name, member, Type::Text, delivered, atStart};
}
OptionsColumn Whole(const QString& name, qint16 Row::*member, int delivered, AtStart atStart = Required) {
    return {name, member, Type::Whole, delivered, atStart};
}
OptionsColumn YesNo(const QString& name, bool Row::*member, bool delivered) {
    return {name, member, Type::YesNo, delivered};
}

}  // namespace

const QList<OptionsColumn>& OptionsColumns() {
    static const QList<OptionsColumn> columns{
        Text(u"MjestoProdaje"_s, &Row::MjestoProdaje, u""_s, EmptyIfNull),
        Text(u"PrinterZaIzvjestaj"_s, &Row::PrinterZaIzvjestaj, u"1"_s),
        Text(u"VelFont"_s, &Row::VelFont, u"9"_s),
        Text(u"Font"_s, &Row::Font, u"Courier New"_s),
        Text(u"Currency"_s, &Row::Currency, u"KM"_s),
        Whole(u"PraznihLinijaPoslijeRacuna"_s, &Row::PraznihLinijaPoslijeRacuna, 3),
        Text(u"StanjeKaseVidljivo"_s, &Row::StanjeKaseVidljivo, u"1"_s),
        Text(u"PrintKasir"_s, &Row::PrintKasir, u"1"_s),
        Text(u"TipRacuna"_s, &Row::TipRacuna, u"1"_s),
        Whole(u"Kasa"_s, &Row::Kasa, 1, EmptyIfNull),
        Text(u"ServerName"_s, &Row::ServerName, u""_s, EmptyIfNull),
        Text(u"RekapPoreza"_s, &Row::RekapPoreza, u"1"_s),
        Text(u"PrinterZaRacun"_s, &Row::PrinterZaRacun, u"1"_s),
        Text(u"Emulacija"_s, &Row::Emulacija, u"1"_s),
        Text(u"RezacPapira"_s, &Row::RezacPapira, u"1"_s),
        Text(u"SkenerPrimarno"_s, &Row::SkenerPrimarno, u"1"_s),
        Text(u"TrakaRacunaFile"_s, &Row::TrakaRacunaFile, u"invoices.txt"_s, AsDelivered),
        YesNo(u"TrakaRacunaFileDA"_s, &Row::TrakaRacunaFileDA, true),
        Text(u"FiskalniFile"_s, &Row::FiskalniFile, u"fiscal.txt"_s),
        Text(u"FiskalniRacunDA"_s, &Row::FiskalniRacunDA, u"0"_s),
        Text(u"Footer"_s, &Row::Footer, u"Thank you for your visit"_s),
        YesNo(u"DisplejKupca"_s, &Row::DisplejKupca, false),
        YesNo(u"Kusur"_s, &Row::Kusur, true),
        Text(u"POSMonitor"_s, &Row::POSMonitor, u"2"_s),
        YesNo(u"Kupac"_s, &Row::Kupac, false),
        YesNo(u"PonudiZakljucak"_s, &Row::PonudiZakljucak, true),
        Text(u"ChangeUser"_s, &Row::ChangeUser, u"1"_s),
        YesNo(u"NoviRacunAutomatski"_s, &Row::NoviRacunAutomatski, true),
        {.name = u"PrikaziOdmah"_s, .member = {}, .type = Type::YesNo, .delivered = true, .atStart = NotRead},
    };
    return columns;
}

const QString& ColumnOf(const OptionsMember& member) {
    return std::ranges::find(OptionsColumns(), member, &OptionsColumn::member)->name;
}

}  // namespace store
