#pragma once

#include <QRadioButton>
#include <vector>

#include "config/OptionsRecord.h"

// An option button and the text that it stands for.
struct OptionButton {
    QRadioButton* button;
    QString text;
    bool sets = true;  // false: a click on it does nothing
};

// A setting that is chosen by option buttons: the running setting is taken from the row on load and from each click at
// once, and it is what a save writes.
class OptionButtons {
public:
    OptionButtons() = default;
    OptionButtons(QString store::OptionsRow::*setting, std::vector<OptionButton> buttons);

    // A text that no button stands for selects none.
    void Load(OptionsRecord& options);
    void Save(OptionsRecord& options) const;

private:
    QString store::OptionsRow::*setting_ = nullptr;
    std::vector<OptionButton> buttons_;
};
