#pragma once

#include <optional>

#include "forms/Form.h"
#include "ui_NotesAndCoins.h"
#include "values/Money.h"

namespace manager {

// Asks which notes and coins a currency has.
class NotesAndCoins : public forms::Form {
    Q_OBJECT

public:
    NotesAndCoins(const QString& currency, const QList<values::Money>& worths);

    // None when nothing was saved.
    const std::optional<QList<values::Money>>& Chosen() const { return chosen_; }

    Ui::NotesAndCoins ui;

private:
    void cmdSave_Click();
    void cmdClose_Click();

    std::optional<QList<values::Money>> chosen_;
};

}  // namespace manager
