#include "config/OptionButtons.h"

OptionButtons::OptionButtons(QString store::OptionsRow::*setting, std::vector<OptionButton> buttons)
    : setting_(setting), buttons_(std::move(buttons)) {
    for (const OptionButton& option : buttons_)
        if (option.sets)
            QObject::connect(option.button, &QRadioButton::clicked, option.button,
                             [setting, text = option.text] { TheSettings.*setting = text; });
}

void OptionButtons::Load(OptionsRecord& options) {
    QString& running = TheSettings.*setting_;
    running = options[setting_].TextOrEmpty();
    for (const OptionButton& option : buttons_)
        if (option.text == running) option.button->setChecked(true);
}

void OptionButtons::Save(OptionsRecord& options) const {
    options[setting_] = TheSettings.*setting_;
}
