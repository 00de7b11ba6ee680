#include "upkeep/Advice.h"

#include "upkeep/Words.h"

namespace upkeep {

namespace {

struct Known {
    const char16_t* beginning;  // of the kind
    const char* meaning;
    const char* advice;
};

constexpr auto Nothing = QT_TRANSLATE_NOOP("upkeep", "Nothing has to be done.");
constexpr auto CutOff = QT_TRANSLATE_NOOP(
    "upkeep", "The till was cut off while it stored this sale. Compare it with the receipt on paper.");

constexpr Known All[] = {
    {u"Invoices.InvoiceID that has no", QT_TRANSLATE_NOOP("upkeep", "Invoices without a line"), CutOff},
    {u"SalesDetails.InvoiceID that has no", QT_TRANSLATE_NOOP("upkeep", "Lines of invoices that are not there"),
     CutOff},
    {u"invoices whose t", nullptr, CutOff},
    {u"periods whose total", nullptr,
     QT_TRANSLATE_NOOP("upkeep",
                       "Two registers sold at the same time, or a till was cut off. The sum of the invoices counts.")},
    {u"Invoices.InvoiceID that stands", QT_TRANSLATE_NOOP("upkeep", "Invoice numbers that were given twice"),
     QT_TRANSLATE_NOOP("upkeep", "Two registers share the shop; both invoices are there.")},
    {u"Sales.SalesID that stands", QT_TRANSLATE_NOOP("upkeep", "Work periods that were opened twice"),
     QT_TRANSLATE_NOOP("upkeep", "Two registers began at the same time; the End Report closes both.")},
    {u"Invoices.SalesID", QT_TRANSLATE_NOOP("upkeep", "Invoices of a work period that is not there"), CutOff},
    {u"SalesDetails.ProdCode", QT_TRANSLATE_NOOP("upkeep", "Products that were sold and are not there any more"),
     Nothing},
    {u"Invoices.CashierID", QT_TRANSLATE_NOOP("upkeep", "Cashiers who sold and are not there any more"), Nothing},
    {u"SalesDetails.TaxID", QT_TRANSLATE_NOOP("upkeep", "Taxes of sales that are not there any more"), Nothing},
    {u"products with a stock below zero", nullptr,
     QT_TRANSLATE_NOOP("upkeep", "More was sold than was there. Enter the delivery, or count the goods.")},
    {u"products on a button", nullptr, QT_TRANSLATE_NOOP("upkeep", "Give it another button at the till: Click table.")},
    {u"buttons of the click table", nullptr,
     QT_TRANSLATE_NOOP("upkeep", "Only one of them is seen. Give the others another button.")},
    {u"goods with a tax", nullptr,
     QT_TRANSLATE_NOOP("upkeep", "Add the tax on the page Set-up, or give the goods another.")},
    {u"goods with another rate", nullptr,
     QT_TRANSLATE_NOOP("upkeep", "Press \"Give goods the rates of their taxes\" on the page Prices.")},
    {u"goods with a unit", nullptr, QT_TRANSLATE_NOOP("upkeep", "Choose a unit for them in Products at the till.")},
    {u"goods ", nullptr,
     QT_TRANSLATE_NOOP("upkeep", "Correct them in Products at the till, or take them in anew on the page Goods.")},
    {u"invoices that are not on the ribbon", nullptr,
     QT_TRANSLATE_NOOP(
         "upkeep",
         "A printer failed, or another register sold them. Print them anew from Invoices if the paper is missing.")},
    {u"indexes that are missing", nullptr,
     QT_TRANSLATE_NOOP("upkeep", "Somebody changed the store with another program. Ask whoever helps you.")},
    {u"settings without a value", nullptr,
     QT_TRANSLATE_NOOP("upkeep",
                       "The till may not start. Save the settings once at the till, or ask whoever helps you.")},
};

}  // namespace

Advice AdviceOn(const QString& kind) {
    for (const Known& known : All)
        if (kind.startsWith(QStringView(known.beginning)))
            return {.meaning = known.meaning == nullptr ? QString() : Words::tr(known.meaning),
                    .advice = Words::tr(known.advice)};
    return {.meaning = {}, .advice = Words::tr("Ask whoever helps you; the file below tells what is needed.")};
}

}  // namespace upkeep
