#include "upkeep/goods/GoodsColumns.h"

#include "upkeep/Words.h"

using namespace Qt::StringLiterals;

namespace upkeep {

namespace {

struct Known {
    GoodsField field;
    const char* plain;      // on the command line
    const char16_t* words;  // of headings, the likeliest first: English, German, South Slavic, French, Italian, Spanish
};

constexpr Known Fields[] = {
    {GoodsField::Code, "code",
     u"code barcode ean gtin plu sku artikelnummer artikelnr artnr strichcode sifra barkod kod codebarre codice codigo "
     u"prodcode id article"},
    {GoodsField::Name, "name",
     u"name description bezeichnung artikelbezeichnung artikelname naziv opis libelle designation descrizione nome "
     u"nombre descripcion prodname proddescription artikel product"},
    {GoodsField::Price, "price",
     u"price unitprice retailprice verkaufspreis vkpreis vk preis bruttopreis mpc maloprodajnacijena cijena cena prix "
     u"prezzo precio"},
    {GoodsField::Unit, "unit", u"unit uom einheit mengeneinheit me jm jedinicamjere jedinica unite unita unidad mj"},
    {GoodsField::Tax, "tax", u"taxid tax vat mwst steuer steuersatz ust pdv porez poreskastopa tva iva taxrate"},
    {GoodsField::Quantity, "quantity",
     u"qty quantity stock bestand menge lagerbestand zaliha kolicina stanje kol quantite quantita cantidad "
     u"stocklevel"}};

// Letters and digits alone, small and without their marks.
QString Plain(const QString& heading) {
    QString plain;
    for (const QChar sign : heading.normalized(QString::NormalizationForm_D).toLower()) {
        if (sign == u'đ') plain += u'd';
        if (sign.isLetterOrNumber() && sign != u'đ') plain += sign;
    }
    return plain.replace(u"ß"_s, u"ss"_s);
}

// 0 where the heading says nothing of the field; the more, the likelier.
int Likeness(const QString& plain, const Known& known) {
    const QStringList words = QString::fromUtf16(known.words).split(u' ');
    const qsizetype exact = words.indexOf(plain);
    if (exact >= 0) return 1000 - static_cast<int>(exact);
    for (qsizetype word = 0; word < words.size(); ++word)
        if (words[word].size() > 2 && plain.startsWith(words[word])) return 500 - static_cast<int>(word);
    return 0;
}

}  // namespace

QString NameOf(GoodsField field) {
    switch (field) {
        case GoodsField::Code:
            return Words::tr("Code");
        case GoodsField::Name:
            return Words::tr("Name");
        case GoodsField::Price:
            return Words::tr("Price");
        case GoodsField::Unit:
            return Words::tr("Unit");
        case GoodsField::Tax:
            return Words::tr("Tax");
        case GoodsField::Quantity:
            return Words::tr("Quantity");
    }
    return {};
}

std::optional<GoodsField> FieldNamed(const QString& word) {
    for (const Known& known : Fields)
        if (word.compare(QLatin1StringView(known.plain), Qt::CaseInsensitive) == 0) return known.field;
    return std::nullopt;
}

QMap<int, GoodsField> GuessColumns(const QStringList& headings) {
    QMap<int, GoodsField> columns;
    for (const Known& known : Fields) {
        int best = -1, bestLikeness = 0;
        for (int column = 0; column < headings.size(); ++column) {
            const int likeness = columns.contains(column) ? 0 : Likeness(Plain(headings[column]), known);
            if (likeness <= bestLikeness) continue;
            bestLikeness = likeness;
            best = column;
        }
        if (best >= 0) columns[best] = known.field;
    }
    return columns;
}

}  // namespace upkeep
