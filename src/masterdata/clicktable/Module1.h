#pragma once

#include <QString>

#include "values/Value.h"

namespace forms {
class Form;
}

// The loaders of the click table, for the till and for the screen that sets it up: both have a ClickTable.

// Captions of the tabs, in the order of the rows of TabControl; shows the first tab.
void LoadTabCaptions(const forms::Form* form);
// Every product with a place goes onto its button, the last row winning; a place without a button is Error 9.
void LoadClickTable(const forms::Form* form);
// The text without blanks at its ends, "" for null.
QString TrimNull(const values::Value& text);
