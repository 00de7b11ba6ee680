#pragma once

#include <QFile>
#include <functional>

#include "forms/Program.h"
#include "support/Till.h"

// Screens of receipts on a till where somebody is logged in.
class ReceiptScreenTest : public drivers::TillTest {
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

    void Write(const QString& name, const QByteArray& bytes) {
        QFile file(Path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }
    void LosePort1() { Write(QStringLiteral("ports.ini"), "[ports]\nlpt1=/dev/no-such-printer\nlpt2=file:lpt2.prn\n"); }

    void ExpectEndOfProgram() {
        EXPECT_TRUE(forms::ProgramIsEnding());
        EXPECT_EQ(forms::ProgramExitCode(), 1);
    }

    drivers::Boxes boxes_;
};
