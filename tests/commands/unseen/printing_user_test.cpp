#include "commands/unseen/printing_user.h"

#include <gtest/gtest.h>

#include "foundation/question_box.h"
#include "platform/memory/memory_platform.h"

namespace lv {
namespace {

struct PrintingUserTest : ::testing::Test {
    MemoryPlatform system;
    PrintingUser user;
    lv::Run run{system.Services, user};
};

TEST_F(PrintingUserTest, WhatABoxTellsIsKept) {
    EXPECT_EQ(AskUser(run, "", "One."), 0);
    EXPECT_EQ(AskUser(run, "Title", "Two."), 0);
    EXPECT_EQ(user.Said(), "One.\r\nTwo.\r\n");
    user.Forget();
    EXPECT_EQ(user.Said(), "");
}

TEST_F(PrintingUserTest, AQuestionGetsTheAnswerThatChangesNothing) {
    EXPECT_EQ(AskUser(run, "", "Sure?", "&Yes,&No"), 1);
    EXPECT_EQ(AskUser(run, "", "Start it?", "&Don't Start,&Start It"), 0);
    EXPECT_EQ(AskUser(run, "", "Long.", "&That's OK,&Abort Launch"), 1);
    EXPECT_EQ(user.Said(),
              "Sure?\r\n(Answered without asking: No)\r\n"
              "Start it?\r\n(Answered without asking: Don't Start)\r\n"
              "Long.\r\n(Answered without asking: Abort Launch)\r\n");
}

TEST_F(PrintingUserTest, WhatIsSaidOverAndOverEnds) {
    for (int i = 0; i < 3000; ++i) {
        (void)AskUser(run, "", Text(100, 'x'));
    }
    EXPECT_LT(user.Said().size(), 101'000U);
}

TEST_F(PrintingUserTest, NoFileIsChosen) {
    const auto chosen = user.ChooseFile({});
    EXPECT_TRUE(chosen.Ok());
    EXPECT_EQ(chosen.Value, std::nullopt);
}

}  // namespace
}  // namespace lv
