#include "foundry/document/script_messages.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_platform.h"
#include "tests/support/scripted_user.h"

namespace lv {
namespace {

class ScriptMessages : public ::testing::Test {
  protected:
    ScriptMessages() { system.Disk.AddFile("C:\\QUAKE\\ID1\\my.cfg", "bind w +forward"); }
    void ExpectNotOpened(TextView lines) {
        user.Expect({"Script Not Opened", Join("Error opening specified script file.\r\n\r\n", lines), 0, false, true});
    }

    MemoryPlatform system;
    ScriptedUser user;
    lv::Run run{system.Services, user};
};

TEST_F(ScriptMessages, CallTheEditorByTheScriptWithTheOtherSlash) {
    EXPECT_EQ(EditorCaption("c:\\quake\\id1\\my.cfg"), "Setup Foundry - [c:/quake/id1/my.cfg]");
    EXPECT_EQ(EditorCaption(""), "Setup Foundry - []");
}

TEST_F(ScriptMessages, AreNotWantedForAScriptThatOpens) {
    const auto file = OpenScriptFile(run, "C:\\QUAKE\\ID1\\my.cfg");
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(file->Read(0, 6).Value, "bind w");
}

TEST_F(ScriptMessages, TellOfAScriptThatIsNotThere) {
    ExpectNotOpened("Error Number = 53\r\nError String = File not found");
    EXPECT_EQ(OpenScriptFile(run, "C:\\QUAKE\\ID1\\gone.cfg"), nullptr);
}

TEST_F(ScriptMessages, TellOfAScriptThatIsLargerThanWasAskedFor) {
    EXPECT_NE(OpenScriptFile(run, "C:\\QUAKE\\ID1\\my.cfg", 15), nullptr);
    user.Expect({"Script Not Opened", "Error Number = 7\r\nError String = The file is larger than"});
    EXPECT_EQ(OpenScriptFile(run, "C:\\QUAKE\\ID1\\my.cfg", 14), nullptr);
}

TEST_F(ScriptMessages, AllowAScriptOf256Megabytes) {
    system.Disk.AddSparseFile("C:\\QUAKE\\ID1\\large.cfg", "bind w +forward", 268'435'456);
    EXPECT_NE(OpenScriptFile(run, "C:\\QUAKE\\ID1\\large.cfg"), nullptr);
    system.Disk.AddSparseFile("C:\\QUAKE\\ID1\\large.cfg", "bind w +forward", 268'435'457);
    user.Expect({"Script Not Opened", "The file is larger than 256 MB"});
    EXPECT_EQ(OpenScriptFile(run, "C:\\QUAKE\\ID1\\large.cfg"), nullptr);
}

}  // namespace
}  // namespace lv
