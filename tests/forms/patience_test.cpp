#include "tests/forms/patience.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "foundation/forms/wx_user.h"
#include "foundation/question_box.h"
#include "foundation/run.h"
#include "platform/memory/memory_platform.h"
#include "tests/forms/form_driver.h"

namespace lv {
namespace {

/// The failures that a driver of little patience finds.
class Patience_ : public ::testing::Test {
  protected:
    std::vector<std::string> Watching(const std::function<void()>& hang) {
        const ::testing::TestInfo& test = *::testing::UnitTest::GetInstance()->current_test_info();
        ::testing::TestPartResultArray found;
        {
            const ::testing::ScopedFakeTestPartResultReporter reporter(&found);
            Patience hurried(600);
            hurried.OnTestStart(test);
            hang();
            hurried.OnTestEnd(test);
        }
        std::vector<std::string> messages;
        for (int i = 0; i < found.size(); ++i) {
            const std::string message = found.GetTestPartResult(i).message();
            messages.push_back(message.substr(message.rfind('\n') + 1));
        }
        return messages;
    }

    MemoryPlatform system;
    WxUser user{system.Disk};
    lv::Run run{system.Services, user};
};

TEST_F(Patience_, LeavesAWindowThatNobodyAnswers) {
    const auto failures = Watching([this] { AskUser(run, "Title", "Question", "&Yes,&No"); });
    EXPECT_EQ(failures, (std::vector<std::string>{"nobody answered QuestionBox_Frm"}));
}

TEST_F(Patience_, LeavesTheSystemsOwnDialog) {
    std::optional<Text> chosen = "something";
    const auto failures = Watching([&] { chosen = user.ChooseFile({}).Value; });
    EXPECT_EQ(failures.size(), 1U) << ::testing::PrintToString(failures);
    EXPECT_EQ(chosen, std::nullopt);
}

TEST_F(Patience_, TellsOfAWindowThatDidNotCome) {
    const auto failures = Watching([] { WhenModal([] {}); });
    EXPECT_EQ(failures, (std::vector<std::string>{"modal windows that were expected did not come"}));
}

TEST_F(Patience_, IsQuietAboutWhatIsAnswered) {
    const auto failures = Watching([this] {
        WhenModal([] {
            Settle(1200);
            PressKey(WXK_RETURN);
        });
        AskUser(run, "Title", "Question", "&OK");
    });
    EXPECT_EQ(failures, std::vector<std::string>());
}

}  // namespace
}  // namespace lv
