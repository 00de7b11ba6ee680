#pragma once

#include <QTemporaryFile>

#include "forms/Form.h"
#include "ui_HealthReport.h"

namespace manager {

// The text for whoever helps, shown whole before it is saved.
class HealthReport : public forms::Form {
    Q_OBJECT

public:
    explicit HealthReport(const QString& text);

    Ui::HealthReport ui;

protected:
    void Form_Load() override;

private:
    void cmdSave_Click();
    void cmdClose_Click();

    QByteArray text_;
    QTemporaryFile shown_;
};

}  // namespace manager
