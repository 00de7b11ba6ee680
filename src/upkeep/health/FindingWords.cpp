#include "upkeep/health/FindingWords.h"

#include <QMap>

#include "upkeep/Words.h"

namespace upkeep {

namespace {

struct Entry {
    const char* what;
    const char* advice;
};

using enum FindingKind;

#define SAID(text) QT_TRANSLATE_NOOP("upkeep", text)

const QMap<FindingKind, Entry>& Entries() {
    static const QMap<FindingKind, Entry> entries{
        {StoreMissing,
         {SAID("A file of the shop is not there."),
          SAID("Don't sell on this till. Look whether the disk or the network drive is connected. If the file is gone, "
               "restore the last good backup, on the page Backup.")}},
        {StoreHeld,
         {SAID("Another program holds the shop's data for itself."),
          SAID("Close other programs that work with the shop, such as a backup, and look again.")}},
        {StoreOutOfReach,
         {SAID("The computer with the shop's data does not answer."),
          SAID("Look whether that computer and the network are switched on, then look again. Nothing is lost.")}},
        {StoreReadOnly,
         {SAID("The shop's data can be read but not changed."),
          SAID("The files belong to another user of the computer, or the disk is write-protected. Whoever set up the "
               "computer can put that right.")}},
        {StoreDamaged,
         {SAID("A file of the shop is damaged."),
          SAID("Stop selling on this till. Copy the whole folder of the register before anything else, then restore "
               "the last good backup, on the page Backup. Damage comes from a failing disk or a power cut: have the "
               "disk looked at.")}},
        {RibbonAhead,
         {SAID("There are printed receipts that the shop's data lacks."),
          SAID("Sales were lost, after a power cut or when an older backup was restored. The receipts can be read in "
               "invoices.txt in the register's folder: tell the book-keeper their numbers.")}},
        {SettingsNotOneRow,
         {SAID("The settings of this till are damaged."), SAID("Restore the last good backup, on the page Backup.")}},
        {NumberExpected,
         {SAID("Numbers in the sales that are no numbers: %n."),
          SAID("Tables were brought in from elsewhere, or changed by hand. The till works on; reports may leave such "
               "rows out.")}},
        {InvoiceTwice,
         {SAID("Invoice numbers that stand twice: %n."),
          SAID("Two tills sold under the same number; both invoices are there. Look that each till has a number of its "
               "own, and tell the book-keeper the invoices.")}},
        {InvoiceWithoutLines,
         {SAID("Invoices without lines: %n."),
          SAID("A posting was cut short, by a power cut for instance. Look for the receipt on paper or in invoices.txt "
               "and tell the book-keeper.")}},
        {InvoiceTotal,
         {SAID("Invoices that don't agree with the sum of their lines: %n."),
          SAID(
              "A posting was cut short, by a power cut for instance. Look for the receipt on paper or in invoices.txt: "
              "what is printed there counts. Tell the book-keeper.")}},
        {InvoiceTax,
         {SAID("Invoices whose tax is not that of their lines: %n."),
          SAID("A posting was cut short. Look for the receipt on paper or in invoices.txt and tell the book-keeper.")}},
        {PeriodTwice,
         {SAID("Periods between two End Reports that stand twice: %n."),
          SAID("Two tills worked under the same number. Look that each till has a number of its own.")}},
        {PeriodTotal,
         {SAID("Periods whose takings are not the sum of their invoices: %n."),
          SAID("A posting was cut short, or several tills sold at once. The End Report goes by the takings, the tax "
               "book by the invoices: tell the book-keeper of the difference.")}},
        {LineWithoutInvoice,
         {SAID("Invoices that are gone while their lines are there: %n."),
          SAID("A posting was cut short. Look for the receipt on paper or in invoices.txt and tell the book-keeper.")}},
        {InvoiceWithoutPeriod,
         {SAID("Periods that are gone while their invoices are there: %n."),
          SAID("Rows were deleted by hand, or a backup was mixed with newer data. The invoices stand in the tax book "
               "but in no End Report: tell the book-keeper.")}},
        {SoldGoodsGone,
         {SAID("Products that were sold and have been deleted since: %n."),
          SAID("Nothing has to be done: reports show them as they were sold.")}},
        {CashierGone,
         {SAID("Cashiers who sold and have been deleted since: %n."),
          SAID("Nothing has to be done: reports show them by their number.")}},
        {SoldTaxGone,
         {SAID("Taxes that goods were sold under and that are gone: %n."),
          SAID("Nothing has to be done for what is sold; see under Set-up that today's taxes are complete.")}},
        {NotOnRibbon,
         {SAID("Invoices that were never printed on this till: %n."),
          SAID(
              "Another till sold them, or the printer failed. Print them once more from the list of invoices where the "
              "customer or the tax office needs the paper.")}},
        {GoodsWithoutTax,
         {SAID("Products with a tax that is not there: %n."),
          SAID("Choose one of today's taxes for them under Settings, Products, or add the tax on the page Set-up.")}},
        {GoodsWithOtherRate,
         {SAID("Products with another rate than that of their tax: %n."),
          SAID("The rate was changed after they were saved. Give them the rate of their tax on the page Prices.")}},
        {GoodsWithoutRate,
         {SAID("Products without a tax rate, which can't be sold: %n."),
          SAID("Choose their tax under Settings, Products, and save.")}},
        {GoodsWithoutPrice,
         {SAID("Products without a price, which can't be sold: %n."),
          SAID("Give them a price under Settings, Products, or take them in anew on the page Goods.")}},
        {CodeWithApostrophe,
         {SAID("Products with an apostrophe in the code, which the till can't look up: %n."),
          SAID("Make the product anew under a code without it, and delete this one.")}},
        {CodeWithBlanks,
         {SAID("Products whose code begins or ends with a blank: %n."),
          SAID("A scanner doesn't find them. Make the product anew without the blank, and delete this one.")}},
        {CodeTooLong,
         {SAID("Products whose code is longer than the till's box takes: %n."),
          SAID("They can be sold from the touch table or the list alone. Give them a code of at most 13 characters.")}},
        {NameTooLong,
         {SAID("Products whose name is longer than the till's box takes: %n."),
          SAID("Receipts cut it. Shorten it to 40 characters under Settings, Products.")}},
        {GoodsWithoutUnit,
         {SAID("Products with a unit that the till does not know: %n."),
          SAID("Choose one of the units under Settings, Products.")}},
        {StockBelowZero,
         {SAID("Products with a stock below zero: %n."),
          SAID("More was sold than was entered. Enter the delivery, or count them and correct the stock under "
               "Settings, Products.")}},
        {ButtonBeyond,
         {SAID("Products on a touch button that is not there: %n."),
          SAID("Give them another button under Settings, Click table.")}},
        {ButtonShared,
         {SAID("Touch buttons with more than one product: %n."),
          SAID("The button sells one of them alone. Give the others another button under Settings, Click table.")}},
        {ComposedGoodsGone,
         {SAID("Products that compositions name and that are gone: %n."),
          SAID("Selling such a composition takes nothing from the stock of what is gone. Open the composition under "
               "Settings, Products and mend it.")}},
        {RowsNotAsDelivered,
         {SAID("Small tables with more or fewer rows than in a new shop: %n."),
          SAID("Tables were changed by hand. The touch table may lack a tab; whoever looks after the till can add the "
               "row.")}},
        {IndexMissing,
         {SAID("Missing indexes, so that the till gets slow: %n."),
          SAID("Whoever looks after the till can make them anew: a backup that is restored has them again.")}},
        {SettingMissing,
         {SAID("Settings of this till without a value, at which it stops when it starts: %n."),
          SAID("Set them under Settings on the till, or on the page Set-up here.")}},
        {Other, {SAID("Something was found."), SAID("Show it to whoever looks after the till.")}},
    };
    return entries;
}

#undef SAID

}  // namespace

FindingWords WordsOf(FindingKind kind, int cases) {
    const Entry entry = Entries().value(kind, Entries().value(Other));
    return {Words::tr(entry.what, nullptr, cases), Words::tr(entry.advice)};
}

}  // namespace upkeep
