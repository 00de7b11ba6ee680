#include "config/OptionButtons.h"

OptionButtons::OptionButtons(QString& setting, QString field, std::vector<OptionButton> buttons)
    : setting_(&setting), field_(std::move(field)), buttons_(std::move(buttons)) {
    for (const auto& [button, text, sets] : buttons_)
        if (sets) QObject::connect(button, &QRadioButton::clicked, button, [&setting, text] { setting = text; });
}

void OptionButtons::Load(store::Recordset& options) {
    *setting_ = options[field_].TextOrEmpty();
    for (const OptionButton& option : buttons_)
        if (option.text == *setting_) option.button->setChecked(true);
}

void OptionButtons::Save(store::Recordset& options) const {
    options[field_] = *setting_;
}
