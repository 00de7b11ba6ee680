#pragma once

#include "receipts/TextPreview.h"

// The ribbon of all printed receipts, as the receipt driver writes it.
class frmTrakaRacuna : public TextPreview {
    Q_OBJECT

public:
    frmTrakaRacuna();

protected:
    void Form_Load() override;
    QString FilePath() const override;
    QString NeededForSaving() const override;
};
