#include "bench/ProductRow.h"

namespace bench {

namespace {

constexpr QStringView Names[ProductColumns] = {
    u"ID",          u"ProdCode",          u"ProdDescription", u"Qty",        u"Unit", u"UnitPrice", u"UnitPricebezPDV",
    u"VPUnitPrice", u"VPUnitPricebezPDV", u"TaxID",           u"TaxPercent", u"Pict", u"Tab"};

constexpr bool IsText[ProductColumns] = {false, true,  true, false, true, false, false,
                                         false, false, true, false, true, false};

qint64 DigestOf(const QString& text) {
    return text.isEmpty() ? 0 : text[0].unicode();
}

qint64 DigestOf(const values::Value& value) {
    switch (value.GetKind()) {
        case values::Value::Kind::Text:
            return DigestOf(value.As<QString>());
        case values::Value::Kind::Money:
            return value.As<values::Money>().Units();
        case values::Value::Kind::Whole:
            return value.As<qint64>();
        default:
            return 0;
    }
}

}  // namespace

qint64 DigestOf(const QVariant& value) {
    if (value.typeId() == QMetaType::QString) return DigestOf(*static_cast<const QString*>(value.constData()));
    return value.toLongLong();
}

qint64 ReadByName(store::Recordset& row) {
    qint64 digest = 0;
    for (const QStringView name : Names) digest += DigestOf(row[name].Get());
    return digest;
}

qint64 ReadAsQtValues(RawStatement& row) {
    qint64 digest = 0;
    for (int column = 0; column < ProductColumns; ++column)
        digest += IsText[column] ? DigestOf(row.Text(column)) : row.Integer(column);
    return digest;
}

qint64 ReadAsQtValues(const RawAnswer& answer, int firstColumn) {
    qint64 digest = 0;
    for (int column = 0; column < ProductColumns; ++column)
        digest +=
            IsText[column] ? DigestOf(answer.Text(0, firstColumn + column)) : answer.Integer(0, firstColumn + column);
    return digest;
}

qint64 ReadBare(RawStatement& row) {
    qint64 digest = 0;
    for (int column = 0; column < ProductColumns; ++column)
        digest += IsText[column] ? row.Bytes(column)[0] : row.Integer(column);
    return digest;
}

}  // namespace bench
