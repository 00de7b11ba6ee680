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

const QMap<FindingKind, Entry>& Entries() {
    static const QMap<FindingKind, Entry> entries{
        {StoreMissing,
         {QT_TRANSLATE_NOOP("upkeep", "A file of the shop is not there."),
          QT_TRANSLATE_NOOP("upkeep",
                            "Don't sell on this till. Look whether the disk or the network drive is connected. If the "
                            "file is gone, restore the last good backup, on the page Backup.")}},
        {StoreHeld,
         {QT_TRANSLATE_NOOP("upkeep", "Another program holds the shop's data for itself."),
          QT_TRANSLATE_NOOP("upkeep",
                            "Close other programs that work with the shop, such as a backup, and look again.")}},
        {StoreOutOfReach,
         {QT_TRANSLATE_NOOP("upkeep", "The computer with the shop's data does not answer."),
          QT_TRANSLATE_NOOP(
              "upkeep",
              "Look whether that computer and the network are switched on, then look again. Nothing is lost.")}},
        {StoreReadOnly,
         {QT_TRANSLATE_NOOP("upkeep", "The shop's data can be read but not changed."),
          QT_TRANSLATE_NOOP("upkeep",
                            "The files belong to another user of the computer, or the disk is write-protected. Whoever "
                            "set up the computer can put that right.")}},
        {StoreDamaged,
         {QT_TRANSLATE_NOOP("upkeep", "A file of the shop is damaged."),
          QT_TRANSLATE_NOOP("upkeep",
                            "Stop selling on this till. Copy the whole folder of the register before anything else, "
                            "then restore the last good backup, on the page Backup. Damage comes from a failing disk "
                            "or a power cut: have the disk looked at.")}},
        {RibbonAhead,
         {QT_TRANSLATE_NOOP("upkeep", "There are printed receipts that the shop's data lacks."),
          QT_TRANSLATE_NOOP("upkeep",
                            "Sales were lost, after a power cut or when an older backup was restored. The receipts can "
                            "be read in invoices.txt in the register's folder: tell the book-keeper their numbers.")}},
        {SettingsNotOneRow,
         {QT_TRANSLATE_NOOP("upkeep", "The settings of this till are damaged."),
          QT_TRANSLATE_NOOP("upkeep", "Restore the last good backup, on the page Backup.")}},
        {NumberExpected,
         {QT_TRANSLATE_N_NOOP("upkeep", "Numbers in the sales that are no numbers: %n."),
          QT_TRANSLATE_NOOP("upkeep",
                            "Tables were brought in from elsewhere, or changed by hand. The till works on; reports may "
                            "leave such rows out.")}},
        {InvoiceTwice,
         {QT_TRANSLATE_N_NOOP("upkeep", "Invoice numbers that stand twice: %n."),
          QT_TRANSLATE_NOOP("upkeep",
                            "Two tills sold under the same number; both invoices are there. Look that each till has a "
                            "number of its own, and tell the book-keeper the invoices.")}},
        {InvoiceWithoutLines,
         {QT_TRANSLATE_N_NOOP("upkeep", "Invoices without lines: %n."),
          QT_TRANSLATE_NOOP("upkeep",
                            "A posting was cut short, by a power cut for instance. Look for the receipt on paper or in "
                            "invoices.txt and tell the book-keeper.")}},
        {InvoiceTotal,
         {QT_TRANSLATE_N_NOOP("upkeep", "Invoices that don't agree with the sum of their lines: %n."),
          QT_TRANSLATE_NOOP("upkeep",
                            "A posting was cut short, by a power cut for instance. Look for the receipt on paper or in "
                            "invoices.txt: what is printed there counts. Tell the book-keeper.")}},
        {InvoiceTax,
         {QT_TRANSLATE_N_NOOP("upkeep", "Invoices whose tax is not that of their lines: %n."),
          QT_TRANSLATE_NOOP(
              "upkeep",
              "A posting was cut short. Look for the receipt on paper or in invoices.txt and tell the book-keeper.")}},
        {PeriodTwice,
         {QT_TRANSLATE_N_NOOP("upkeep", "Periods between two End Reports that stand twice: %n."),
          QT_TRANSLATE_NOOP("upkeep",
                            "Two tills worked under the same number. Look that each till has a number of its own.")}},
        {PeriodTotal,
         {QT_TRANSLATE_N_NOOP("upkeep", "Periods whose takings are not the sum of their invoices: %n."),
          QT_TRANSLATE_NOOP("upkeep",
                            "A posting was cut short, or several tills sold at once. The End Report goes by the "
                            "takings, the tax book by the invoices: tell the book-keeper of the difference.")}},
        {LineWithoutInvoice,
         {QT_TRANSLATE_N_NOOP("upkeep", "Invoices that are gone while their lines are there: %n."),
          QT_TRANSLATE_NOOP(
              "upkeep",
              "A posting was cut short. Look for the receipt on paper or in invoices.txt and tell the book-keeper.")}},
        {InvoiceWithoutPeriod,
         {QT_TRANSLATE_N_NOOP("upkeep", "Periods that are gone while their invoices are there: %n."),
          QT_TRANSLATE_NOOP("upkeep",
                            "Rows were deleted by hand, or a backup was mixed with newer data. The invoices stand in "
                            "the tax book but in no End Report: tell the book-keeper.")}},
        {SoldGoodsGone,
         {QT_TRANSLATE_N_NOOP("upkeep", "Products that were sold and have been deleted since: %n."),
          QT_TRANSLATE_NOOP("upkeep", "Nothing has to be done: reports show them as they were sold.")}},
        {CashierGone,
         {QT_TRANSLATE_N_NOOP("upkeep", "Cashiers who sold and have been deleted since: %n."),
          QT_TRANSLATE_NOOP("upkeep", "Nothing has to be done: reports show them by their number.")}},
        {SoldTaxGone,
         {QT_TRANSLATE_N_NOOP("upkeep", "Taxes that goods were sold under and that are gone: %n."),
          QT_TRANSLATE_NOOP(
              "upkeep", "Nothing has to be done for what is sold; see under Set-up that today's taxes are complete.")}},
        {NotOnRibbon,
         {QT_TRANSLATE_N_NOOP("upkeep", "Invoices that were never printed on this till: %n."),
          QT_TRANSLATE_NOOP("upkeep",
                            "Another till sold them, or the printer failed. Print them once more from the list of "
                            "invoices where the customer or the tax office needs the paper.")}},
        {GoodsWithoutTax,
         {QT_TRANSLATE_N_NOOP("upkeep", "Products with a tax that is not there: %n."),
          QT_TRANSLATE_NOOP("upkeep",
                            "Choose one of today's taxes for them at the till under Products, View - Edit - Delete "
                            "Products, or add the tax on the page Set-up.")}},
        {GoodsWithOtherRate,
         {QT_TRANSLATE_N_NOOP("upkeep", "Products with another rate than that of their tax: %n."),
          QT_TRANSLATE_NOOP(
              "upkeep",
              "The rate was changed after they were saved. Give them the rate of their tax on the page Prices.")}},
        {GoodsWithoutRate,
         {QT_TRANSLATE_N_NOOP("upkeep", "Products without a tax rate, which can't be sold: %n."),
          QT_TRANSLATE_NOOP("upkeep",
                            "Choose their tax at the till under Products, View - Edit - Delete Products, and save.")}},
        {GoodsWithoutPrice,
         {QT_TRANSLATE_N_NOOP("upkeep", "Products without a price, which can't be sold: %n."),
          QT_TRANSLATE_NOOP("upkeep",
                            "Give them a price at the till under Products, View - Edit - Delete Products, or take them "
                            "in anew on the page Goods.")}},
        {CodeWithApostrophe,
         {QT_TRANSLATE_N_NOOP("upkeep", "Products with an apostrophe in the code, which the till can't look up: %n."),
          QT_TRANSLATE_NOOP("upkeep", "Make the product anew under a code without it, and delete this one.")}},
        {CodeWithBlanks,
         {QT_TRANSLATE_N_NOOP("upkeep", "Products whose code begins or ends with a blank: %n."),
          QT_TRANSLATE_NOOP(
              "upkeep", "A scanner doesn't find them. Make the product anew without the blank, and delete this one.")}},
        {CodeTooLong,
         {QT_TRANSLATE_N_NOOP("upkeep", "Products whose code is longer than the till's box takes: %n."),
          QT_TRANSLATE_NOOP(
              "upkeep",
              "They can be sold from the touch table or the list alone. Give them a code of at most 13 characters.")}},
        {NameTooLong,
         {QT_TRANSLATE_N_NOOP("upkeep", "Products whose name is longer than the till's box takes: %n."),
          QT_TRANSLATE_NOOP("upkeep",
                            "Receipts cut it. Shorten it to 40 characters at the till under Products, View - Edit - "
                            "Delete Products.")}},
        {GoodsWithoutUnit,
         {QT_TRANSLATE_N_NOOP("upkeep", "Products with a unit that the till does not know: %n."),
          QT_TRANSLATE_NOOP("upkeep",
                            "Choose one of the units for them at the till under Products, View - Edit - Delete "
                            "Products, or add the unit on the page Set-up.")}},
        {StockBelowZero,
         {QT_TRANSLATE_N_NOOP("upkeep", "Products with a stock below zero: %n."),
          QT_TRANSLATE_NOOP("upkeep",
                            "More was sold than was entered. Enter the delivery, or count them and correct the stock "
                            "at the till under Products, View - Edit - Delete Products.")}},
        {ButtonBeyond,
         {QT_TRANSLATE_N_NOOP("upkeep", "Products on a touch button that is not there: %n."),
          QT_TRANSLATE_NOOP("upkeep", "Give them another button at the till under Settings, Click Table.")}},
        {ButtonShared,
         {QT_TRANSLATE_N_NOOP("upkeep", "Touch buttons with more than one product: %n."),
          QT_TRANSLATE_NOOP("upkeep",
                            "The button sells one of them alone. Give the others another button at the till under "
                            "Settings, Click Table.")}},
        {ComposedGoodsGone,
         {QT_TRANSLATE_N_NOOP("upkeep", "Products that compositions name and that are gone: %n."),
          QT_TRANSLATE_NOOP("upkeep",
                            "Selling such a composition takes nothing from the stock of what is gone. Open the "
                            "composition at the till under Products, View - Edit - Delete Products, and mend it.")}},
        {RowsNotAsDelivered,
         {QT_TRANSLATE_N_NOOP("upkeep", "Small tables with more or fewer rows than in a new shop: %n."),
          QT_TRANSLATE_NOOP("upkeep",
                            "Tables were changed by hand. The touch table may lack a tab; whoever looks after the till "
                            "can add the row.")}},
        {IndexMissing,
         {QT_TRANSLATE_N_NOOP("upkeep", "Missing indexes, so that the till gets slow: %n."),
          QT_TRANSLATE_NOOP(
              "upkeep", "Whoever looks after the till can make them anew: a backup that is restored has them again.")}},
        {SettingMissing,
         {QT_TRANSLATE_N_NOOP("upkeep", "Settings of this till without a value, at which it stops when it starts: %n."),
          QT_TRANSLATE_NOOP("upkeep", "Set them under Settings on the till, or on the page Set-up here.")}},
        {Other,
         {QT_TRANSLATE_NOOP("upkeep", "Something was found."),
          QT_TRANSLATE_NOOP("upkeep", "Show it to whoever looks after the till.")}},
    };
    return entries;
}

}  // namespace

FindingWords WordsOf(FindingKind kind, int cases) {
    const Entry entry = Entries().value(kind, Entries().value(Other));
    return {Words::tr(entry.what, nullptr, cases), Words::tr(entry.advice)};
}

}  // namespace upkeep
