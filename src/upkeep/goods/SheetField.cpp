#include "upkeep/goods/SheetField.h"

#include <QRegularExpression>
#include <array>

#include "upkeep/Words.h"
#include "values/FileError.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

struct Fact {
    SheetField field;
    QString word;
    const char* name;
    // Headings in small letters without accents, the surest first; each may also be the first words of a longer one.
    QStringList headings;
};

const std::array<Fact, 8>& Facts() {
    static const std::array<Fact, 8> facts{{
        {SheetField::Code, u"code"_s, QT_TRANSLATE_NOOP("upkeep", "Code"),
         u"ean,ean code,ean13,ean 13,gtin,barcode,bar code,barkod,bar kod,bar-kod,strichcode,codice a barre,"
         "codigo de barras,code barre,code barres,code a barres,code,prodcode,productid - barcode,productid,"
         "product code,item code,item no,item number,sku,plu,sifra,sifra artikla,sif,sifra robe,kod,kat broj,"
         "kataloski broj,oznaka,artikelnummer,artikelnr,artikel nr,art "
         "nr,artnr,artikel-nr,nummer,bestellnummer,reference,"
         "code article,ref,codice,codice articolo,codigo,cod,referencia"_s.split(u',')},
        {SheetField::Name, u"name"_s, QT_TRANSLATE_NOOP("upkeep", "Name"),
         u"name,proddescription,product name,item name,description,product,item,title,naziv,naziv artikla,naziv robe,"
         "ime,opis,artikl,artikal,roba,bezeichnung,artikelbezeichnung,artikelname,beschreibung,artikel,produkt,"
         "designation,libelle,nom,descrizione,nome,prodotto,articolo,articulo,nombre,descripcion,producto,denominacion"_s
             .split(u',')},
        {SheetField::Price, u"price"_s, QT_TRANSLATE_NOOP("upkeep", "Price"),
         u"price,unitprice,unit price,retail price,selling price,sales price,mpc,maloprodajna cijena,maloprodajna cena,"
         "prodajna cijena,prodajna cena,cijena s pdv,cijena sa pdv,cijena,cena,vk,vk preis,vk-preis,verkaufspreis,"
         "bruttopreis,preis,prix ttc,prix de vente,prix,prezzo al pubblico,prezzo di vendita,prezzo,pvp,"
         "precio de venta,precio"_s.split(u',')},
        {SheetField::Quantity, u"quantity"_s, QT_TRANSLATE_NOOP("upkeep", "Quantity"),
         u"quantity,qty,stock,stock level,on hand,in stock,zaliha,zalihe,stanje,kolicina,kol,bestand,lagerbestand,"
         "menge,anzahl,quantite,qte,quantita,qta,giacenza,cantidad,existencias"_s.split(u',')},
        {SheetField::Unit, u"unit"_s, QT_TRANSLATE_NOOP("upkeep", "Unit"),
         u"unit,uom,unit of measure,jm,j m,mj,jed mj,jed mjere,jedinica,jedinica mjere,jedinica mere,mjera,einheit,"
         "mengeneinheit,me,unite,unita,unita di misura,um,unidad,unidad de medida,ud"_s.split(u',')},
        {SheetField::Tax, u"tax"_s, QT_TRANSLATE_NOOP("upkeep", "Tax"),
         u"tax,taxid,tax id,tax code,tax rate,vat,vat rate,pdv,stopa pdv,porez,poreska stopa,porezna stopa,tarifa,"
         "tarifna grupa,mwst,mwst satz,ust,steuer,steuersatz,tva,taux tva,taux de tva,iva,aliquota,aliquota iva,"
         "tipo iva"_s.split(u',')},
        {SheetField::Group, u"group"_s, QT_TRANSLATE_NOOP("upkeep", "Group"),
         u"group,category,department,grupa,robna grupa,grupa artikala,kategorija,warengruppe,gruppe,kategorie,"
         "artikelgruppe,famille,categorie,rayon,groupe,categoria,reparto,gruppo,familia,grupo"_s.split(u',')},
        {SheetField::Picture, u"picture"_s, QT_TRANSLATE_NOOP("upkeep", "Picture"),
         u"picture,image,pict,icon,slika,bild,image,immagine,imagen"_s.split(u',')},
    }};
    return facts;
}

// Prices that are not those of the till.
const QStringList& OtherPrices() {
    static const QStringList words{u"nabavna"_s, u"nab"_s,      u"nc"_s,        u"vpc"_s,         u"vp"_s,
                                   u"ek"_s,      u"einkauf"_s,  u"netto"_s,     u"net"_s,         u"ht"_s,
                                   u"bez"_s,     u"without"_s,  u"excl"_s,      u"ohne"_s,        u"senza"_s,
                                   u"sin"_s,     u"purchase"_s, u"cost"_s,      u"achat"_s,       u"compra"_s,
                                   u"coste"_s,   u"acquisto"_s, u"old"_s,       u"stara"_s,       u"alter"_s,
                                   u"second"_s,  u"hors"_s,     u"wholesale"_s, u"veleprodajna"_s};
    return words;
}

// Small letters without accents, words divided by one blank.
QString Plain(const QString& heading) {
    QString text = heading.toLower();
    text.replace(u'đ', u'd');
    text.replace(u'ß', u's');
    QString plain;
    for (const QChar c : text.normalized(QString::NormalizationForm_KD))
        if (c.isMark())
            continue;
        else
            plain += c.isLetterOrNumber() ? c : u' ';
    return plain.simplified();
}

QString WithoutBlanks(QString heading) {
    return heading.remove(u' ');
}

struct KnownHeadings {
    QStringList plain;
    QStringList joined;  // "unitprice" is "unit price"
};

const KnownHeadings& HeadingsOf(const Fact& fact) {
    static const std::array<KnownHeadings, 8> known = [] {
        std::array<KnownHeadings, 8> all;
        for (size_t i = 0; i < all.size(); ++i)
            for (const QString& heading : Facts()[i].headings) {
                all[i].plain += Plain(heading);
                all[i].joined += WithoutBlanks(all[i].plain.last());
            }
        return all;
    }();
    return known[static_cast<size_t>(&fact - Facts().data())];
}

// 0: it can't be this. A whole heading says more than the beginning of one.
int Likeness(const Fact& fact, const QString& heading) {
    constexpr int whole = 1000, beginning = 500;
    if (heading.isEmpty()) return 0;
    // As it goes out, in the language of its reader.
    if (heading == Plain(QCoreApplication::translate("upkeep", fact.name))) return whole;
    const KnownHeadings& known = HeadingsOf(fact);
    if (const qsizetype place = known.joined.indexOf(WithoutBlanks(heading)); place >= 0)
        return whole - static_cast<int>(place);
    if (fact.field == SheetField::Price)
        for (const QString& word : heading.split(u' '))
            if (OtherPrices().contains(word)) return 0;
    for (qsizetype i = 0; i < known.plain.size(); ++i)
        if (heading.startsWith(known.plain[i] + u' ')) return beginning - static_cast<int>(i);
    return 0;
}

}  // namespace

const QList<SheetField>& SheetFields() {
    static const QList<SheetField> fields = [] {
        QList<SheetField> all;
        for (const Fact& fact : Facts()) all += fact.field;
        return all;
    }();
    return fields;
}

QString FieldWord(SheetField field) {
    for (const Fact& fact : Facts())
        if (fact.field == field) return fact.word;
    return u"none"_s;
}

QString FieldName(SheetField field) {
    for (const Fact& fact : Facts())
        if (fact.field == field) return QCoreApplication::translate("upkeep", fact.name);
    return {};
}

SheetField FieldOfWord(const QString& word) {
    QStringList known;
    for (const Fact& fact : Facts()) {
        if (fact.word == word.toLower()) return fact.field;
        known += fact.word;
    }
    if (word.toLower() == u"none") return SheetField::None;
    throw values::FileError(values::InvalidCall,
                            Words::tr("A column can't be '%1'. It can be %2 or none.").arg(word, known.join(u", ")));
}

QList<SheetField> GuessFields(const QStringList& headings) {
    QList<SheetField> fields(headings.size(), SheetField::None);
    QStringList plain;
    for (const QString& heading : headings) plain += Plain(heading);
    for (const Fact& fact : Facts()) {
        int best = 0;
        qsizetype at = -1;
        for (qsizetype i = 0; i < plain.size(); ++i) {
            const int likeness = fields[i] == SheetField::None ? Likeness(fact, plain[i]) : 0;
            if (likeness > best) {
                best = likeness;
                at = i;
            }
        }
        if (at >= 0) fields[at] = fact.field;
    }
    return fields;
}

}  // namespace upkeep
