#pragma once

namespace upkeep {

// What a finding is about, whatever its text says: advice goes by it.
enum class FindingKind {
    Other,
    // damage
    StoreMissing,
    StoreHeld,
    StoreOutOfReach,
    StoreReadOnly,
    StoreDamaged,
    RibbonAhead,
    SettingsNotOneRow,
    // sales
    NumberExpected,
    InvoiceTwice,
    InvoiceWithoutLines,
    InvoiceTotal,
    InvoiceTax,
    PeriodTwice,
    PeriodTotal,
    LineWithoutInvoice,
    InvoiceWithoutPeriod,
    SoldGoodsGone,
    CashierGone,
    SoldTaxGone,
    NotOnRibbon,
    // goods
    GoodsWithoutTax,
    GoodsWithOtherRate,
    GoodsWithoutRate,
    GoodsWithoutPrice,
    CodeWithApostrophe,
    CodeWithBlanks,
    CodeTooLong,
    NameTooLong,
    GoodsWithoutUnit,
    StockBelowZero,
    ButtonBeyond,
    ButtonShared,
    ComposedGoodsGone,
    // the store itself
    RowsNotAsDelivered,
    IndexMissing,
    SettingMissing,
};

}  // namespace upkeep
