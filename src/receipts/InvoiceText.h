#pragma once

#include <QList>
#include <QString>
#include <array>

// What a receipt shows of an invoice, as the texts that stand on the screen: whoever prints takes it from the controls.
struct InvoiceText {
    struct Item {
        // The columns of a line in the lists that show it and in the layouts that print it.
        enum Column { Code, Description, UnitPrice, Quantity, Amount, TaxPercent, TaxAmount, Unit, TaxID, ProductID };

        QString code;
        QString description;
        QString unitPrice;
        QString quantity;
        QString amount;
        QString taxPercent;
        QString taxAmount;
        QString unit;
        QString taxID;
        QString productID;
    };
    struct Tax {
        QString taxID;
        QString percent;
        QString amount;
        QString taxAmount;
    };

    QString orNo;
    QString customer;  // txtKupac
    QString ident;     // txtIB
    QString cashier;
    QString total;
    QString taxTotal;
    QList<Item> items;
    QList<Tax> taxes;
};

// What stands in each column of a line.
inline constexpr std::array LineTexts{&InvoiceText::Item::code,      &InvoiceText::Item::description,
                                      &InvoiceText::Item::unitPrice, &InvoiceText::Item::quantity,
                                      &InvoiceText::Item::amount,    &InvoiceText::Item::taxPercent,
                                      &InvoiceText::Item::taxAmount, &InvoiceText::Item::unit,
                                      &InvoiceText::Item::taxID,     &InvoiceText::Item::productID};
