#include "support/ErrorOf.h"
#include "support/Till.h"
#include "upkeep/CheckRegister.h"

using namespace Qt::StringLiterals;

namespace {

class HealthTest : public drivers::TillTest {};

}  // namespace

// At whichever step its user leaves, also while a store works.
TEST_F(HealthTest, ACheckCanBeLeftAtEachStep) {
    QStringList steps;
    upkeep::CheckRegister(Path({}), [&](const QString& doing) {
        if (steps.isEmpty() || steps.last() != doing) steps << doing;
        return true;
    });
    ASSERT_GE(steps.size(), 5);
    for (const QString& last : steps) {
        const auto leaves = [&] {
            upkeep::CheckRegister(Path({}), [&](const QString& doing) { return doing != last; });
        };
        EXPECT_EQ(ErrorOf(leaves), store::Cancelled) << last.toStdString();
    }
    EXPECT_TRUE(upkeep::CheckRegister(Path({})).IsSound());
}
