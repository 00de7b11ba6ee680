#include "manager/setup/TaxesStep.h"

#include "core/dbModule.h"
#include "values/Numbers.h"

using namespace Qt::StringLiterals;

namespace manager {

namespace {

const auto TaxesQuery = u"SELECT * FROM Tax"_s;
const auto TaxQuery = u"SELECT * FROM Tax WHERE TaxID = %1"_s;
const auto GoodsQuery = u"SELECT ProdCode FROM Products WHERE TaxID = %1"_s;

}  // namespace

TaxesStep::TaxesStep() {
    ui.setupUi(this);
    ui.lstTaxes->SetColumns({{tr("Code"), Qt::AlignLeft, 100},
                             {tr("Name"), Qt::AlignLeft, -1},
                             {tr("Rate in percent"), Qt::AlignRight, 160}});
    Begin({.list = ui.lstTaxes,
           .boxes = {{u"TaxID"_s, ui.txtTaxID, tr("The tax needs a code, such as P."), {}},
                     {u"Name"_s, ui.txtTaxName, tr("The tax needs a name."), {}},
                     {u"Percent"_s, ui.txtPercent, {}, u"0.00"_s}},
           .add = ui.cmdNewTax,
           .remove = ui.cmdRemoveTax,
           .query = TaxesQuery,
           .rowQuery = TaxQuery,
           .duplicate = tr("There is a tax with this code or this name already."),
           .isProtected = tr("This tax can't be removed, but its name and rate can be changed."),
           .question = tr("Remove the tax \"%1\"?")});
}

void TaxesStep::Write(store::Recordset& tax) const {
    RowsStep::Write(tax);
    tax[u"Name"] = ProperCase(ui.txtTaxName->text().trimmed());
}

std::pair<QString, QWidget*> TaxesStep::Fault() const {
    const QString percent = ui.txtPercent->text();
    if (!values::IsNumeric(percent) || values::CDouble(percent) < 0 || values::CDouble(percent) >= 100)
        return {tr("The rate is a number of percent, from 0 to less than 100."), ui.txtPercent};
    return {};
}

// Products name a tax by its code.
QString TaxesStep::WhyItStays(store::Recordset& tax) const {
    const QString code = tax[u"TaxID"].TextOrEmpty();
    const auto goods = MainStore().OpenSnapshot(GoodsQuery.arg(Quoted(code)));
    return goods.AtEOF() ? QString()
                         : tr("%n product(s) belong to this tax.", nullptr, static_cast<int>(goods.RecordCount()));
}

}  // namespace manager
