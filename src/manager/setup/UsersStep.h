#pragma once

#include "manager/setup/RowsStep.h"
#include "ui_UsersStep.h"

namespace manager {

// Who may log in, and what each may do.
class UsersStep : public RowsStep {
    Q_OBJECT

public:
    UsersStep();

protected:
    void Write(store::Recordset& user) const override;
    std::pair<QString, QWidget*> Fault() const override;
    QString WhyItStays(store::Recordset& user) const override;

private:
    Ui::UsersStep ui;
};

}  // namespace manager
