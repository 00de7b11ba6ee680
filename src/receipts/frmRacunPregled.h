#pragma once

#include "receipts/TextPreview.h"

// The text preview of the whole system: shows the file that its caller puts into lblNazivFajla, as a path below the
// program's folder.
class frmRacunPregled : public TextPreview {
    Q_OBJECT

public:
    frmRacunPregled();

    // Shows a file ("\Report.txt") as a modal dialog, under the form's own title unless another one is given.
    static void Preview(const QString& file, const QString& title = {});

protected:
    void Form_Activate() override;
    QString FilePath() const override;
};
