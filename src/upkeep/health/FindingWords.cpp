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
               "take back the last backup.")}},
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
          SAID("Stop selling on this till. Copy the whole folder of the register before anything else, then take back "
               "the last backup. Damage comes from a failing disk or a power cut: have the disk looked at.")}},
        {RibbonAhead,
         {SAID("There are printed receipts that the shop's data lacks."),
          SAID("Sales were lost, after a power cut or when an older backup was taken back. The receipts can be read in "
               "invoices.txt in the register's folder: tell the book-keeper their numbers.")}},
        {SettingsNotOneRow,
         {SAID("The settings of this till are damaged."),
          SAID("Take back the file opt.pos from the last backup of the register's folder.")}},
        {NumberExpected,
         {SAID("%n number(s) in the sales hold something else than digits."),
          SAID("Tables were brought in from elsewhere, or changed by hand. The till works on; reports may leave such "
               "rows out.")}},
        {InvoiceTwice,
         {SAID("%n invoice number(s) stand twice."),
          SAID("Two tills sold under the same number. Look that each till has a number of its own, and tell the "
               "book-keeper the invoices.")}},
        {InvoiceWithoutLines,
         {SAID("%n invoice(s) have no lines."),
          SAID("A posting was cut short, by a power cut for instance. Look for the receipt on paper or in invoices.txt "
               "and tell the book-keeper.")}},
        {InvoiceTotal,
         {SAID("%n invoice(s) don't agree with the sum of their lines."),
          SAID(
              "A posting was cut short, by a power cut for instance. Look for the receipt on paper or in invoices.txt: "
              "what is printed there counts. Tell the book-keeper.")}},
        {InvoiceTax,
         {SAID("The tax of %n invoice(s) is not that of their lines."),
          SAID("A posting was cut short. Look for the receipt on paper or in invoices.txt and tell the book-keeper.")}},
        {PeriodTwice,
         {SAID("%n period(s) between two End Reports stand twice."),
          SAID("Two tills worked under the same number. Look that each till has a number of its own.")}},
        {PeriodTotal,
         {SAID("The takings of %n period(s) are not the sum of their invoices."),
          SAID("A posting was cut short, or several tills sold at once. The End Report goes by the takings, the tax "
               "book by the invoices: tell the book-keeper of the difference.")}},
        {LineWithoutInvoice,
         {SAID("Lines of %n invoice(s) are there without the invoice."),
          SAID("A posting was cut short. Look for the receipt on paper or in invoices.txt and tell the book-keeper.")}},
        {InvoiceWithoutPeriod,
         {SAID("Invoices belong to %n period(s) that are not there."),
          SAID("Rows were deleted by hand, or a backup was mixed with newer data. The invoices stand in the tax book "
               "but in no End Report: tell the book-keeper.")}},
        {SoldGoodsGone,
         {SAID("%n product(s) were sold and have been deleted since."),
          SAID("Nothing has to be done: reports show them as they were sold.")}},
        {CashierGone,
         {SAID("%n cashier(s) sold and have been deleted since."),
          SAID("Nothing has to be done: reports show them by their number.")}},
        {SoldTaxGone,
         {SAID("Goods were sold under %n tax(es) that are no longer there."),
          SAID("Nothing has to be done for what is sold; see under Set-up that today's taxes are complete.")}},
        {NotOnRibbon,
         {SAID("%n invoice(s) were never printed on this till."),
          SAID(
              "Another till sold them, or the printer failed. Print them once more from the list of invoices where the "
              "customer or the tax office needs the paper.")}},
        {GoodsWithoutTax,
         {SAID("%n product(s) have a tax that is not there."),
          SAID("Choose one of today's taxes for them under Settings, Products.")}},
        {GoodsWithOtherRate,
         {SAID("%n product(s) keep another rate than that of their tax."),
          SAID("The rate was changed after they were saved. Open each under Settings, Products and save it again, or "
               "change them together on the page of prices.")}},
        {GoodsWithoutRate,
         {SAID("%n product(s) have no tax rate and can't be sold."),
          SAID("Choose their tax under Settings, Products, and save.")}},
        {GoodsWithoutPrice,
         {SAID("%n product(s) have no price and can't be sold."), SAID("Give them a price under Settings, Products.")}},
        {CodeWithApostrophe,
         {SAID("The code of %n product(s) holds an apostrophe; the till can't look them up."),
          SAID("Make the product anew under a code without it, and delete this one.")}},
        {CodeWithBlanks,
         {SAID("The code of %n product(s) begins or ends with a blank."),
          SAID("A scanner doesn't find them. Make the product anew without the blank, and delete this one.")}},
        {CodeTooLong,
         {SAID("The code of %n product(s) is longer than the till's box takes."),
          SAID("They can be sold from the touch table or the list alone. Give them a code of at most 13 characters.")}},
        {NameTooLong,
         {SAID("The name of %n product(s) is longer than the till's box takes."),
          SAID("Receipts cut it. Shorten it to 40 characters under Settings, Products.")}},
        {GoodsWithoutUnit,
         {SAID("%n product(s) have a unit that the till does not know."),
          SAID("Choose one of the units under Settings, Products.")}},
        {StockBelowZero,
         {SAID("%n product(s) have a stock below zero."),
          SAID("More was sold than was entered. Count them and correct the stock under Settings, Products.")}},
        {ButtonBeyond,
         {SAID("%n product(s) lie on a touch button that is not there."),
          SAID("Give them another button under Settings, Click table.")}},
        {ButtonShared,
         {SAID("%n touch button(s) have more than one product."),
          SAID("The button sells one of them alone. Give the others another button under Settings, Click table.")}},
        {ComposedGoodsGone,
         {SAID("Compositions name %n product(s) that are not there."),
          SAID("Selling such a composition takes nothing from the stock of what is gone. Open the composition under "
               "Settings, Products and mend it.")}},
        {RowsNotAsDelivered,
         {SAID("%n small table(s) have more or fewer rows than a new shop."),
          SAID("Tables were changed by hand. The touch table may lack a tab; whoever looks after the till can add the "
               "row.")}},
        {IndexMissing,
         {SAID("%n index(es) are missing, so that the till gets slow."),
          SAID("Whoever looks after the till can make them anew: a backup that is taken back has them again.")}},
        {SettingMissing,
         {SAID("%n setting(s) of this till have no value; the till stops at them when it starts."),
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
