#pragma once

#include <QFile>

#include "support/Office.h"

// Screens of receipts on a till where somebody is logged in.
class ReceiptScreenTest : public drivers::OfficeTest {
protected:
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
};
