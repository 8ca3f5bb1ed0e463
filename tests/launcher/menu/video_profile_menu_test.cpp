#include "launcher/menu/video_profile_menu.h"

#include "tests/support/launcher_fixture.h"
#include "video/add_vid_profile.h"

namespace lv {

namespace {

constexpr const char* kShippedList = "Base;Optimize for Speed;Optimize for Beauty;Default";

Text Note(TextView name) {
    return Join("The Video Profiles window is now open and active for the following Video Profile:\r\n\r\n'", name,
                "'\r\n\r\nThis is a 'live' window.\r\n    -Everything changed is AUTOMATICALLY saved.\r\n",
                "    -There is no need to close the window when done - the main window still works.\r\n",
                "    -If you have the screen space, place the 2 windows side by side.");
}

class VideoProfileMenu : public LauncherTest {
  protected:
    VideoProfileMenu() {
        AddGames();
        Load();
    }

    void ExpectNote(TextView name, bool notAgain = false) {
        user.Expect({"Video Profiles", Note(name), 0, notAgain, true, "&OK"});
    }
    void ExpectMessage(TextView text) {
        ExpectedQuestion message;
        message.Title = "Lorvane 3D";
        message.Text_ = text;
        message.Whole = true;
        message.Buttons = "&OK";
        user.Expect(message);
    }
    void TypeName(TextView name) {
        user.In<AddVidProfile_Frm>([name = Text(name)](AddVidProfile_Frm& dialog) {
            dialog.NewVidProfileName_Txt.Text = name;
            AddVidProfile_NewVidProfileName_Txt_Change(dialog);
            AddVidProfile_OK_Cmd_Click(dialog);
        });
    }
    void Select(int row) {
        window.VideoProfiles_Cbo.ListIndex = row;
        VideoProfiles_Cbo_Click(launcher);
    }
    void Add(TextView name) {
        TypeName(name);
        ExpectNote(name);
        VideoProfilesAdd_Bar_Click(launcher);
    }

    VideoProfile_Frm& profile = launcher.VideoProfile;
};

}  // namespace

// Selecting

TEST_F(VideoProfileMenu, SelectingSavesThePositionAndMakesTheNameTheSection) {
    Select(1);
    EXPECT_EQ(Stored(kOptions, "VideoProfilePos"), "1");
    EXPECT_EQ(run.VideoProfileSection, "Optimize for Speed");
}

TEST_F(VideoProfileMenu, BaseAlwaysMeansTheSectionOfTheOptions) {
    Select(1);
    Select(0);
    EXPECT_EQ(run.VideoProfileSection, "Options");
}

TEST_F(VideoProfileMenu, SelectingWithTheWindowClosedTellsNothing) {
    Select(2);
    EXPECT_FALSE(profile.VideoProfileWindowOpen);
}

TEST_F(VideoProfileMenu, SelectingReloadsTheOpenWindowAndTellsSo) {
    ExpectNote("Base");
    VideoProfilesEdit_Bar_Click(launcher);
    Save(run, "Optimize for Beauty", "Mirrors", 1);
    ExpectNote("Optimize for Beauty");
    Select(2);
    EXPECT_EQ(profile.Caption, "Video Profile - 'Optimize for Beauty'");
    EXPECT_EQ(profile.BoxOf("Mirrors").Chk.Value, 1);
}

TEST_F(VideoProfileMenu, AQuietChangeReloadsWithoutTheNote) {
    ExpectNote("Base");
    VideoProfilesEdit_Bar_Click(launcher);
    launcher.ProfileChangeQuiet = true;
    Select(1);
    EXPECT_EQ(profile.Caption, "Video Profile - 'Optimize for Speed'");
}

TEST_F(VideoProfileMenu, TheNoteCanBeSwitchedOffForGood) {
    ExpectNote("Base", true);
    VideoProfilesEdit_Bar_Click(launcher);
    EXPECT_EQ(Stored("ShowMessage", "VideoProfiles"), "0");
    Select(1);
    VideoProfileEdit_Cmd_Click(launcher);
    EXPECT_EQ(user.Asked.size(), 1u);
}

TEST_F(VideoProfileMenu, TheNoteComesOnlyIfTheSettingIsOne) {
    for (const char* value : {"2", "x", ""}) {
        Save(run, "ShowMessage", "VideoProfiles", value);
        VideoProfileEdit_Cmd_Click(launcher);
        EXPECT_TRUE(user.Asked.empty()) << value;
    }
}

TEST_F(VideoProfileMenu, TheNoteOffersNotToComeAgain) {
    ExpectNote("Base");
    VideoProfileEdit_Cmd_Click(launcher);
    EXPECT_TRUE(user.Asked.back().NotAgain_Chk.Visible);
    EXPECT_EQ(Stored("ShowMessage", "VideoProfiles"), "(none)");
}

// Adding

TEST_F(VideoProfileMenu, AnAddedProfileIsListedSelectedAndOpen) {
    Add("Mine");
    EXPECT_EQ(Stored(kOptions, "VideoProfileList"), Join(kShippedList, ";Mine"));
    EXPECT_EQ(Stored(kOptions, "VideoProfilePos"), "4");
    EXPECT_EQ(window.VideoProfiles_Cbo.Selected(), "Mine");
    EXPECT_EQ(run.VideoProfileSection, "Mine");
    EXPECT_TRUE(profile.VideoProfileWindowOpen);
    EXPECT_EQ(profile.Caption, "Video Profile - 'Mine'");
}

TEST_F(VideoProfileMenu, AddingWithTheWindowOpenTellsOnce) {
    ExpectNote("Base");
    VideoProfilesEdit_Bar_Click(launcher);
    Add("Mine");
    EXPECT_EQ(user.Asked.size(), 2u);
    EXPECT_EQ(profile.Caption, "Video Profile - 'Mine'");
}

TEST_F(VideoProfileMenu, ANewProfileReadsTheDefaultsAndItsLoadStoresThem) {
    Add("Mine");
    EXPECT_EQ(Stored("Mine", "SSTV2_GRXCLK"), "1");
    EXPECT_EQ(Stored("Mine", "ResolutionsPos_Content").substr(0, 8), "320x200 ");
    EXPECT_EQ(profile.BoxOf("SSTV2_GRXCLK").Chk.Value, 1);
    EXPECT_EQ(profile.BoxOf("SSTV2_GRXCLK").Cbo.Selected(), "90");
    EXPECT_EQ(profile.BoxOf("Shadows").Chk.Value, 0);
}

TEST_F(VideoProfileMenu, ACancelledAddChangesNothing) {
    user.In<AddVidProfile_Frm>([](AddVidProfile_Frm& dialog) { AddVidProfile_Cancel_Cmd_Click(dialog); });
    VideoProfilesAdd_Bar_Click(launcher);
    EXPECT_EQ(Stored(kOptions, "VideoProfileList"), kShippedList);
    EXPECT_FALSE(profile.VideoProfileWindowOpen);
}

TEST_F(VideoProfileMenu, AnEmptyNameIsAskedForAgain) {
    TypeName("");
    ExpectMessage("A Video Profile must have a name.");
    TypeName("   ");
    ExpectMessage("A Video Profile must have a name.");
    Add("Mine");
    EXPECT_EQ(window.VideoProfiles_Cbo.Selected(), "Mine");
}

TEST_F(VideoProfileMenu, ANameThatDiffersInCaseOnlyIsNoNewOne) {
    for (const char* name : {"optimize for speed", "BASE", " default "}) {
        TypeName(name);
        ExpectMessage("A Video Profile by this name already exists.");
        VideoProfilesAdd_Bar_Click(launcher);
    }
    EXPECT_EQ(Stored(kOptions, "VideoProfileList"), kShippedList);
    EXPECT_EQ(window.VideoProfiles_Cbo.ListIndex, 0);
}

TEST_F(VideoProfileMenu, TheListIsSavedTrimmed) {
    window.VideoProfiles_Cbo.Items[1] = "  Optimize for Speed ";
    TypeName("  Mine  ");
    ExpectNote("Mine");
    VideoProfilesAdd_Bar_Click(launcher);
    EXPECT_EQ(Stored(kOptions, "VideoProfileList"), Join(kShippedList, ";Mine"));
}

// Deleting

TEST_F(VideoProfileMenu, TheFirstFourCannotBeDeletedWhateverTheirNames) {
    window.VideoProfiles_Cbo.Items[3] = "Mine";
    for (int row = 0; row < 4; ++row) {
        Select(row);
        ExpectMessage(
            "The original 4 profiles must be kept for administrative purposes. \r\n"
            " You may only delete Video Profiles you have added.");
        VideoProfilesDelete_Bar_Click(launcher);
    }
    EXPECT_EQ(window.VideoProfiles_Cbo.Items.size(), 4u);
}

TEST_F(VideoProfileMenu, CoolDeletesAndSelectsTheFirst) {
    Add("Mine");
    user.Expect(
        {"Lorvane 3D", "The selected Video Profile:\r\n'Mine'\r\nwas deleted.", 0, false, true, "&Cool,&Not Cool"});
    ExpectNote("Base");
    VideoProfilesDelete_Bar_Click(launcher);
    EXPECT_EQ(Stored(kOptions, "VideoProfileList"), kShippedList);
    EXPECT_EQ(Stored(kOptions, "VideoProfilePos"), "0");
    EXPECT_EQ(run.VideoProfileSection, "Options");
    EXPECT_EQ(profile.Caption, "Video Profile - 'Base'");
}

TEST_F(VideoProfileMenu, NotCoolKeepsTheListAndSaysSoMisspelt) {
    Add("Mine");
    user.Expect({"Lorvane 3D", "The selected Video Profile:", 1, false, false, "&Cool,&Not Cool"});
    ExpectMessage("The the deletion was canceled");
    VideoProfilesDelete_Bar_Click(launcher);
    EXPECT_EQ(Stored(kOptions, "VideoProfileList"), Join(kShippedList, ";Mine"));
    EXPECT_EQ(window.VideoProfiles_Cbo.Selected(), "Mine");
}

TEST_F(VideoProfileMenu, ANewProfileOfADeletedNameFindsTheOldKeys) {
    Add("Mine");
    profile.BoxOf("Mirrors").Chk.Value = 1;
    Profile_Chk_Click(profile, profile.BoxOf("Mirrors"));
    user.Expect({"Lorvane 3D", "was deleted.", 0});
    ExpectNote("Base");
    VideoProfilesDelete_Bar_Click(launcher);
    EXPECT_EQ(profile.BoxOf("Mirrors").Chk.Value, 0);
    Add("Mine");
    EXPECT_EQ(profile.BoxOf("Mirrors").Chk.Value, 1);
}

TEST_F(VideoProfileMenu, WithNothingSelectedNothingIsDeleted) {
    window.VideoProfiles_Cbo.ListIndex = -1;
    user.Expect({"Lorvane 3D", "The original 4 profiles must be kept", 0});
    VideoProfilesDelete_Bar_Click(launcher);
}

// Editing

TEST_F(VideoProfileMenu, EditingTwiceBringsTheWindowToTheFront) {
    ExpectNote("Base");
    VideoProfilesEdit_Bar_Click(launcher);
    profile.Raise = false;
    ExpectNote("Base");
    VideoProfileEdit_Cmd_Click(launcher);
    EXPECT_TRUE(profile.Raise);
}

TEST_F(VideoProfileMenu, ABrokenListEndsTheProgramWithoutTheNote) {
    Save(run, kOptions, "Bits", TextView("8 bit color;-bpp 8;odd"));
    user.Expect({"Lorvane 3D", "Error : defaultBits = 8 bit color;-bpp 8;odd", 0});
    VideoProfilesEdit_Bar_Click(launcher);
    EXPECT_TRUE(run.Ended);
}

TEST_F(VideoProfileMenu, AChangeOfGameChangesWhatTheOpenWindowShows) {
    ExpectNote("Base");
    VideoProfilesEdit_Bar_Click(launcher);
    PickExe("C:\\UNREAL\\SYSTEM\\UNREAL.EXE");
    EXPECT_TRUE(profile.PanelOf(ProfilePanel::UnrealVideo).Visible);
    PickExe("C:\\QUAKE2\\QUAKE2.EXE");
    EXPECT_FALSE(profile.PanelOf(ProfilePanel::UnrealVideo).Visible);
    EXPECT_TRUE(profile.Q2_Rez_Cbo.Visible);
}

}  // namespace lv
