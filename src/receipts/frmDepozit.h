#pragma once

#include "receipts/FiscalEntry.h"

// Money into the drawer of the fiscal printer, and out of it: twins that differ in their words and in the record.
class DepositEntry : public FiscalEntry {
protected:
    explicit DepositEntry(const Words& words);
};

class frmDepozit : public DepositEntry {
    Q_OBJECT

public:
    frmDepozit();

protected:
    QString Record(const QString& number) const override;
};

class frmDepozitIsplata : public DepositEntry {
    Q_OBJECT

public:
    frmDepozitIsplata();

protected:
    QString Record(const QString& number) const override;
};
