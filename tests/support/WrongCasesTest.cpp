#include <gtest/gtest-spi.h>

#include "support/ScreenCase.h"

using namespace Qt::StringLiterals;
using drivers::ScreenCase;

namespace {

// The drivers have to notice what goes wrong, or every case is worth nothing.
class WrongCase : public ScreenCase {};

TEST_P(WrongCase, FailsWithTheseWordsAndItsLine) {
    drivers::Step steps = GetParam().steps;
    Form();
    const std::string words = steps.inner.front().text.section(u' ', 1).toStdString();
    steps.inner.erase(steps.inner.begin());
    testing::TestPartResultArray failures;
    {
        const testing::ScopedFakeTestPartResultReporter reporter(
            testing::ScopedFakeTestPartResultReporter::INTERCEPT_ONLY_CURRENT_THREAD, &failures);
        Play(steps);
        const drivers::Boxes leftOver;
    }
    ASSERT_GT(failures.size(), 0);
    const std::string message = failures.GetTestPartResult(0).message();
    EXPECT_NE(message.find(words), std::string::npos) << message;
    EXPECT_NE(message.find("screens/wrong.txt:"), std::string::npos) << message;
}

INSTANTIATE_TEST_SUITE_P(Drivers, WrongCase, testing::ValuesIn(drivers::ReadCases(u"screens"_s, {u"wrong"_s})),
                         [](const auto& info) { return info.param.name.toStdString(); });

}  // namespace

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(ScreenCase);
