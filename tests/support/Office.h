#pragma once

#include <functional>

#include "forms/Program.h"
#include "support/Till.h"

namespace drivers {

// Screens that the menu opens, on a till where somebody is logged in.
class OfficeTest : public TillTest {
protected:
    // Shows a screen as its menu entry does and runs the script in it; a screen that is still open then is closed.
    template <typename Screen>
    void Use(std::function<void(Screen&)> script) {
        Screen screen;
        boxes_.ExpectForm(screen.objectName(), [&](QWidget&) {
            script(screen);
            if (!forms::ProgramIsEnding()) screen.Unload();
        });
        forms::Run([&] { screen.ShowModal(); }, QStringLiteral("VELTON POS"));
    }

    Boxes boxes_;
};

}  // namespace drivers
