#pragma once

class QWidget;

namespace forms {

// Brings the sizes that designs fix in pixels (smallest, largest, of a button's icon), and the columns of lists, to the
// step of type in use; of this widget and all within.
void ScaleFixedSizes(QWidget& widget);

}  // namespace forms
