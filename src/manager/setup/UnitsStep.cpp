#include "manager/setup/UnitsStep.h"

#include "core/dbModule.h"
#include "output/CodePage.h"

using namespace Qt::StringLiterals;

namespace manager {

namespace {

const auto UnitsQuery = u"SELECT * FROM Unit"_s;
const auto UnitQuery = u"SELECT * FROM Unit WHERE Abr = %1"_s;
const auto GoodsQuery = u"SELECT ProdCode FROM Products WHERE Unit = %1"_s;

// The till sells by the piece what has this unit, letter by letter, and asks for the quantity of all others.
const auto Pieces = u"pcs"_s;

// What receipts and reports leave for it.
constexpr qint32 WidestOnPaper = 3;

}  // namespace

UnitsStep::UnitsStep() {
    ui.setupUi(this);
    ui.lstUnits->SetColumns({{tr("Short name"), Qt::AlignLeft, 140}, {tr("Name"), Qt::AlignLeft, -1}});
    Begin({.list = ui.lstUnits,
           .boxes = {{u"Abr"_s, ui.txtAbr, tr("The unit needs a short name, such as kg."), {}},
                     {u"UnitName"_s, ui.txtUnitName, tr("The unit needs a name, such as kilogram."), {}}},
           .add = ui.cmdNewUnit,
           .remove = ui.cmdRemoveUnit,
           .query = UnitsQuery,
           .rowQuery = UnitQuery,
           .duplicate = tr("There is a unit with this short name already."),
           .isProtected = {},
           .question = tr("Remove the unit \"%1\"?"),
           .isKeyFree = true});
}

// An apostrophe would end the till's query for the unit of a product.
std::pair<QString, QWidget*> UnitsStep::Fault() const {
    const QString abr = ui.txtAbr->text().trimmed();
    if (ui.txtAbr->isReadOnly()) return {};
    if (abr.contains(u'\'')) return {tr("A short name has no apostrophe."), ui.txtAbr};
    if (output::Columns(abr) > WidestOnPaper)
        return {tr("A short name has at most %1 letters; paper has no more room.").arg(WidestOnPaper), ui.txtAbr};
    return {};
}

QString UnitsStep::WhyItStays(store::Recordset& unit) const {
    const QString abr = unit[u"Abr"].TextOrEmpty();
    if (abr == Pieces) return tr("The till sells by the piece what has this unit, so it stays.");
    const auto goods = MainStore().OpenSnapshot(GoodsQuery.arg(Quoted(abr)));
    return goods.AtEOF() ? QString()
                         : tr("%n product(s) have this unit.", nullptr, static_cast<int>(goods.RecordCount()));
}

}  // namespace manager
