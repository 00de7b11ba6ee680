#pragma once

#include "manager/setup/RowsStep.h"
#include "ui_UnitsStep.h"

namespace manager {

// What goods are counted or weighed in.
class UnitsStep : public RowsStep {
    Q_OBJECT

public:
    UnitsStep();

protected:
    std::pair<QString, QWidget*> Fault() const override;
    QString WhyItStays(store::Recordset& unit) const override;

private:
    Ui::UnitsStep ui;
};

}  // namespace manager
