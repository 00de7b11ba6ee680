#pragma once

#include "reports/ListReport.h"
#include "store/Recordset.h"

// What is in stock and what it is worth, as the products stand.
class frmStanjeArtikala : public ListReport {
    Q_OBJECT

public:
    frmStanjeArtikala();

protected:
    void Form_Load() override;
    store::Listing Read(const QString& query) override;

private:
    void cmdOsvjezi_Click();

    void TellTime();

    store::Recordset rsList_;
};
