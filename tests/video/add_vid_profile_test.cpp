#include "video/add_vid_profile.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_platform.h"
#include "tests/support/scripted_user.h"

namespace lv {
namespace {

class AddVidProfile : public ::testing::Test {
  protected:
    MemoryPlatform system;
    ScriptedUser user;
    lv::Run run{system.Services, user};
    AddVidProfile_Frm form{run};
};

TEST_F(AddVidProfile, SaysWhatItAsks) {
    EXPECT_EQ(form.Caption, "Add a Video Profile");
    EXPECT_EQ(form.NewVidProfileName_Lbl.Caption, "Video Profile Name");
    EXPECT_EQ(form.OK_Cmd.Caption, "&OK");
    EXPECT_EQ(form.Cancel_Cmd.Caption, "&Cancel");
}

TEST_F(AddVidProfile, TakesExactlyTheCharactersThatMakeAGoodSectionName) {
    const std::string taken =
        "\b !#$%&()*+,-.0123456789:<=>?@ABCDEFGHIJKLMNOPQRSTUVWXYZ[]^_`abcdefghijklmnopqrstuvwxyz{}~";
    for (int code = 0; code < 256; ++code) {
        const char character = static_cast<char>(code);
        const bool expected = code != 0 && taken.find(character) != std::string::npos;
        EXPECT_EQ(TakesProfileNameCharacter(character), expected) << code;
    }
}

TEST_F(AddVidProfile, RefusesWhatWouldBreakTheListOrTheSection) {
    for (const char character : {'"', '\'', '/', ';', '\\', '|'}) {
        EXPECT_FALSE(TakesProfileNameCharacter(character)) << character;
    }
}

TEST_F(AddVidProfile, PastedTextLosesWhatCannotBeTyped) {
    form.NewVidProfileName_Txt.Text = "a;b|c\"d'e/f\\g\b\r\n\xe9h";
    AddVidProfile_NewVidProfileName_Txt_Change(form);
    EXPECT_EQ(form.NewVidProfileName_Txt.Text, "abcdefgh");
}

TEST_F(AddVidProfile, OkHandsTheTextOver) {
    form.NewVidProfileName_Txt.Text = "Mine";
    AddVidProfile_OK_Cmd_Click(form);
    EXPECT_TRUE(form.DialogResult);
    EXPECT_EQ(form.LastEntry, "Mine");
    EXPECT_TRUE(form.Closed);
}

TEST_F(AddVidProfile, CancelHandsNothingOver) {
    form.DialogResult = true;
    form.NewVidProfileName_Txt.Text = "Mine";
    AddVidProfile_Cancel_Cmd_Click(form);
    EXPECT_FALSE(form.DialogResult);
    EXPECT_EQ(form.LastEntry, "");
    EXPECT_TRUE(form.Closed);
}

}  // namespace
}  // namespace lv
