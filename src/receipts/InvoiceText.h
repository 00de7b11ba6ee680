#pragma once

#include <QList>
#include <QString>

// What a receipt shows of an invoice, as the texts that stand on the screen: whoever prints takes it from the controls.
struct InvoiceText {
    struct Item {
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
