#pragma once

#include "receipts/FiscalEntry.h"

// Takes an invoice back on the fiscal printer, by its number; neither the stored invoice nor the stock changes.
class frmReklamiranjeRacuna : public FiscalEntry {
    Q_OBJECT

public:
    frmReklamiranjeRacuna();

protected:
    QString Record(const QString& number) const override;
};
