#pragma once

#include "forms/Form.h"
#include "ui_SupportForm.h"

namespace manager {

// The text for whoever helps, shown whole before it is saved.
class SupportForm : public forms::Form {
    Q_OBJECT

public:
    explicit SupportForm(const QString& text);

    Ui::SupportForm ui;

protected:
    void Form_Load() override;

private:
    void cmdSave_Click();
    void cmdClose_Click();

    const QString text_;
};

}  // namespace manager
