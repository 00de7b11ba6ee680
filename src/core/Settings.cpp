#include "core/Settings.h"

#include "values/Numbers.h"

using namespace Qt::StringLiterals;

namespace {

// Puts the value of a column into its member.
struct Taking {
    const values::Value& value;

    void operator()(std::monostate) const {}
    void operator()(QString store::OptionsRow::*member) const { TheSettings.*member = value.ToText(); }
    void operator()(bool store::OptionsRow::*member) const { TheSettings.*member = value.ToBool(); }
    void operator()(qint16 store::OptionsRow::*member) const { TheSettings.*member = values::CInt16(value.ToDouble()); }
};

void Read(const store::OptionsColumn& column, store::Recordset& options) {
    using store::AtStart;
    if (column.atStart == AtStart::NotRead) return;
    const values::Value value = column.atStart == AtStart::AsDelivered ? column.delivered : options[column.name].Get();
    if (value.IsNull() && column.atStart == AtStart::EmptyIfNull) return;
    OfSetting(column.name, [&] { std::visit(Taking{value}, column.member); });
}

}  // namespace

void ReadSettings(store::Recordset& options) {
    const qint16 separator = TheSettings.DecimalSeparator;
    TheSettings = {};
    TheSettings.DecimalSeparator = separator;
    for (const store::OptionsColumn& column : store::OptionsColumns()) Read(column, options);
}

const Heading& BuiltInHeading() {
    static const Heading heading{.NazivFirme = u"VELTON Shop"_s,
                                 .Adresa = u"Main Street 1"_s,
                                 .JIB = u"ID: 4200000000000"_s,
                                 .Tel = u"Tel: 000 000 000"_s};
    return heading;
}
