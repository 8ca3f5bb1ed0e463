#include "foundry/editor/settings_pages.h"

#include "foundry/editor/kind_layout.h"
#include "tests/foundry/editor/fig_fixture.h"
#include "tests/foundry/kinds.h"
#include "tests/foundry/reading.h"

namespace lv {
namespace {

class SettingsPagesTest : public FigTest {
  protected:
    void Load(const ScriptDialect& dialect, TextView script = "") {
        Open(dialect, script);
        ApplyGameKind(form);
        form.Document.ScriptClean = true;
    }
    [[nodiscard]] Text Hint(TextView name) {
        for (const SettingRow& row : SettingRows()) {
            if (name == row.Name) {
                return HintOf(form, row);
            }
        }
        return "no such row";
    }
    ListBox& Fov() { return form.Document.fov_Cbo; }
};

using F = Fig_Frm;

struct ListedList {
    const char* Name;
    ListBox ScriptSettings::*List;
    Panel Fig_Frm::*Group;
    const char* Caption;
    const char* Hint;
};

#define LISTED(control, group, caption, hint) \
    { #control, &ScriptSettings::control, &F::group, caption, hint }

// clang-format off
const ListedList kListedLists[] = {
    LISTED(Crosshair_Cbo,        Other_Pic,  "Crosshair",           ""),
    LISTED(CrossHairColor_Cbo,   Other_Pic,  "Crosshair Color (2)", ""),
    LISTED(Handed_Cbo,           Other_Pic,  "Handedness",          ""),
    LISTED(viewsize_Cbo,         Screen_Pic, "View Size",           "(default 100)"),
    LISTED(vidmode_Cbo,          Screen_Pic, "Vid Mode (non-GL)",   "(default 320x200)"),
    LISTED(gamma_Cbo,            Screen_Pic, "Gamma",               "(default 1)"),
    LISTED(fov_Cbo,              Screen_Pic, "Field Of View",       "(default 90)"),
    LISTED(cl_forwardspeed_Cbo,  Speeds_Pic, "Forward Speed",       "(default 200)"),
    LISTED(cl_backspeed_Cbo,     Speeds_Pic, "Backward Speed",      "(default 160)"),
    LISTED(cl_sidespeed_Cbo,     Speeds_Pic, "Strafe Speed",        "(default 350)"),
    LISTED(cl_pitchspeed_Cbo,    Speeds_Pic, "Pitch Speed (Keyb)",  "(default 100)"),
    LISTED(cl_yawspeed_Cbo,      Speeds_Pic, "Yaw Speed",           "(default 140)"),
    LISTED(scr_conspeed_Cbo,     Speeds_Pic, "Console Speed",       "(default 300)"),
    LISTED(scr_centerspeed_Cbo,  Speeds_Pic, "Message Speed",       "(default 8)"),
    LISTED(MouseSensitivity_Cbo, Mouse_Pic,  "Overall Master",      "(default 3)"),
    LISTED(m_forward_Cbo,        Mouse_Pic,  "Forward & Backward",  "(default 1)"),
    LISTED(m_pitch_Cbo,          Mouse_Pic,  "Look Up & Down",      "(default 0.022)"),
    LISTED(m_yaw_Cbo,            Mouse_Pic,  "Turning Speed (yaw)", "(default 0.022)"),
    LISTED(m_side_Cbo,           Mouse_Pic,  "Lookstrafe Speed",    "(default 0.8)"),
    LISTED(m_filter_Cbo,         Mouse_Pic,  "Mouse Filter",        "(default 0)"),
    LISTED(cl_rollangle_Cbo,     Angle_Pic,  "Roll Angle",          "(default 2)"),
    LISTED(cl_rollspeed_Cbo,     Angle_Pic,  "Roll Speed",          "(default 200)"),
    LISTED(v_kickpitch_Cbo,      Angle_Pic,  "Kick Pitch",          "(default 0.6)"),
    LISTED(v_kickroll_Cbo,       Angle_Pic,  "Kick Roll",           "(default 0.6)"),
    LISTED(v_kicktime_Cbo,       Angle_Pic,  "Kick Time",           "(default 0.5)"),
    LISTED(cl_bob_Cbo,           Bob_Pic,    "Weapon Bob",          "(default 0.02)"),
    LISTED(cl_bobcycle_Cbo,      Bob_Pic,    "Bob Speed",           "(default 0.6)"),
    LISTED(cl_bobup_Cbo,         Bob_Pic,    "Bob Cycle Height",    "(default 0.5)"),
    LISTED(bgmvolume_Cbo,        Sound_Pic,  "CD Volume",           "(default 1)"),
    LISTED(volume_Cbo,           Sound_Pic,  "Sound Volume",        "(default 1)"),
    LISTED(snd_mixahead_Cbo,     Sound_Pic,  "Sound Mixahead",      "(default 0.1)"),
};

struct ListedCheck {
    const char* Name;
    CheckBox ScriptSettings::*Box;
    Panel Fig_Frm::*Group;
    const char* Caption;
    const char* ToolTip;
};

const ListedCheck kListedChecks[] = {
    LISTED(NoAim_Chk,       Checkables_Pic, "No Auto Aiming",        "Turn off auto aiming (on the y axis)"),
    LISTED(ShowPause_Chk,   Checkables_Pic, "Show Pause Icon",       "An Icon pops up if the games is paused."),
    LISTED(ShowRAM_Chk,     Checkables_Pic, "Show RAM Icon",         "An Icon pops up if your RAM is low."),
    LISTED(ShowTurtle_Chk,  Checkables_Pic, "Show Turtle Icon",      "An Icon pops up if your Frames Per Second drops below 10."),
    LISTED(Speed_Chk,       Checkables_Pic, "Always Run !",          "Your speed is always at max."),
    LISTED(JoyStick_Chk,    Checkables_Pic, "Joystick",              "Says that you are using a joystick."),
    LISTED(LookStrafe_Chk,  Checkables_Pic, "Look Strafe",           "When MLook is on, the mouses right and left motions strafe."),
    LISTED(LookSpring_Chk,  Checkables_Pic, "Look Spring",           "When use release the MLook key your view centers automatically."),
    LISTED(MLook_Chk,       Checkables_Pic, "Mouse Look (Mlook)",    " If selected, your mouse\x92s forward and backward movement translate to looking up and down"),
    LISTED(InvertMouse_Chk, Checkables_Pic, "Invert Mouse",          "Switches the forward/backward directions for mouse look."),
    LISTED(NoColors_Chk,    Other_Pic,      "Don't Specify Colors",  "Sometimes, you do not want your script to set your colors"),
    LISTED(Q2_EnableCD_Chk, Sound_Pic,      "Enable CD Music",       "Allow the game to play music from the CD-ROM"),
    LISTED(Q2_WaveOnly_Chk, Sound_Pic,      "Allow Wave Sound Only", "Only allow wave sounds"),
};

constexpr TextView kListedAudio[] = {
    "Use Direct Sound", "Use Filter", "Use Surround", "Use Stereo", "Use CD Music", "Use Digital Music", "Use Spatial",
    "Use Reverb", "Use 3D Hardware", "Low Sound Quality", "Reverse Stereo", "Latency", "Output Rate",
    "Effects Channels", "Doppler Speed", "Music Volume", "Sound Volume", "Ambient Factor"};
constexpr TextView kListedPawn[] = {
    "Dodge Click Time", "Bob", "My Auto Aim", "Handedness", "Look Up Stairs", "Snap To Level", "Always Mouse Look",
    "Keyboard Look", "Invert Mouse", "Mouse Sensitivity", "Net Speed", "Client Net Min Delta", "Server Net Min Delta"};
// clang-format on

std::vector<TextView> All(std::span<const TextView> texts) {
    return {texts.begin(), texts.end()};
}

TEST_F(SettingsPagesTest, TheListsStandWhereTheyAreListed) {
    Load(kQuakeDialect);
    const auto rows = SettingRows();
    ASSERT_EQ(rows.size(), std::size(kListedLists));
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const ListedList& listed = kListedLists[i];
        EXPECT_STREQ(rows[i].Name, listed.Name);
        EXPECT_TRUE(rows[i].List == listed.List) << listed.Name;
        EXPECT_TRUE(rows[i].Group == listed.Group) << listed.Name;
        EXPECT_EQ(rows[i].Caption, listed.Caption) << listed.Name;
        EXPECT_EQ(HintOf(form, rows[i]), listed.Hint) << listed.Name;
        EXPECT_FALSE((form.Document.*rows[i].List).ToolTip.empty()) << listed.Name;
    }
}

TEST_F(SettingsPagesTest, TheCheckBoxesStandWhereTheyAreListed) {
    Load(kQuakeDialect);
    const auto rows = CheckRows();
    ASSERT_EQ(rows.size(), std::size(kListedChecks));
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const ListedCheck& listed = kListedChecks[i];
        EXPECT_STREQ(rows[i].Name, listed.Name);
        EXPECT_TRUE(rows[i].Box == listed.Box) << listed.Name;
        EXPECT_TRUE(rows[i].Group == listed.Group) << listed.Name;
        EXPECT_EQ((form.Document.*listed.Box).Caption, listed.Caption);
        EXPECT_EQ((form.Document.*listed.Box).ToolTip, listed.ToolTip);
    }
}

TEST_F(SettingsPagesTest, TheUnrealListsAreCaptionedInOrder) {
    EXPECT_EQ(All(UnrealAudioCaptions()), All(kListedAudio));
    EXPECT_EQ(UnrealAudioCaptions().size(), form.Document.UnrealAudio_Cbo.size());
    EXPECT_EQ(All(PlayerPawnCaptions()), All(kListedPawn));
    EXPECT_EQ(PlayerPawnCaptions().size(), form.Document.PlayerPawn_Cbo.size());
    EXPECT_EQ(All(MouseBindCaptions()), (std::vector<TextView>{"Mouse X-Axis Speed", "Mouse Y-Axis Speed"}));
    EXPECT_STREQ(kTeamNameCaption, " Team Name");
    EXPECT_STREQ(kPasswordCaption, " Password");
    EXPECT_STREQ(kWeaponsAvailableCaption, "Unselected Weapons");
    EXPECT_STREQ(kWeaponsPriorityCaption, "Weapon Preferance Order");
}

TEST_F(SettingsPagesTest, TheTipsOfCrosshairAndHandAreTheirOwn) {
    Load(kQuake2Dialect);
    EXPECT_EQ(form.Document.Crosshair_Cbo.ToolTip, "Puts a targeting cross on your screen.");
    EXPECT_EQ(form.Document.Handed_Cbo.ToolTip, " Pick right of left handed. (Quake2 only)");
}

TEST_F(SettingsPagesTest, AllGroupsHaveAHeading) {
    PaintLabels(form);
    EXPECT_EQ(form.WeaponPriority_Pic.Caption, "Weapon Preference");
    for (const Panel* const group :
         {&form.Checkables_Pic, &form.Other_Pic, &form.Screen_Pic, &form.Speeds_Pic, &form.Mouse_Pic, &form.Angle_Pic,
          &form.Bob_Pic, &form.Sound_Pic, &form.UnrealAudio_Pic, &form.PlayerPawn_Pic}) {
        EXPECT_FALSE(group->Caption.empty());
    }
}

TEST_F(SettingsPagesTest, HintsAndListsShowACommaWhereTheLocaleHasOne) {
    ScriptDialect german = kQuakeDialect;
    german.DecimalSeparator = ',';
    Load(german);
    EXPECT_EQ(Hint("m_pitch_Cbo"), "(default 0,022)");
    EXPECT_EQ(Hint("snd_mixahead_Cbo"), "(default 0,1)");
    EXPECT_EQ(Hint("fov_Cbo"), "(default 90)");
    EXPECT_EQ(form.Document.m_pitch_Cbo.Items[0], "0,005");
}

TEST_F(SettingsPagesTest, Quake2AndSinMixFurtherAhead) {
    for (const Game kind : kKinds) {
        Load(DialectOf(kind));
        EXPECT_EQ(Hint("snd_mixahead_Cbo"),
                  kind == Game::Quake2 || kind == Game::Sin ? "(default 0.2)" : "(default 0.1)")
            << NumberOf(kind);
    }
}

TEST_F(SettingsPagesTest, Quake2AndSinHaveNoVideoModeAndNoHintForIt) {
    for (const Game kind : kKinds) {
        Load(DialectOf(kind));
        const bool none = kind == Game::Quake2 || kind == Game::Sin;
        EXPECT_EQ(form.Document.vidmode_Cbo.Visible, !none) << NumberOf(kind);
        EXPECT_EQ(Hint("vidmode_Cbo"), none ? "" : "(default 320x200)") << NumberOf(kind);
        EXPECT_TRUE(form.Document.gamma_Cbo.Visible);
    }
}

TEST_F(SettingsPagesTest, AChangeOfASettingIsAnEdit) {
    Load(kQuakeDialect);
    Setting_Change(form);
    EXPECT_FALSE(form.Document.ScriptClean);
}

TEST_F(SettingsPagesTest, ATypedTextThatIsListedSelectsItsRow) {
    Load(kQuakeDialect);
    const std::size_t rows = Fov().Items.size();
    TypeIntoList(form, Fov(), "90");
    EXPECT_EQ(Fov().Selected(), "90");
    EXPECT_EQ(Fov().Items.size(), rows);
    EXPECT_FALSE(form.Document.ScriptClean);
}

TEST_F(SettingsPagesTest, AnotherTextGetsARowThatTheNextOneTakes) {
    Load(kQuakeDialect);
    const std::size_t rows = Fov().Items.size();
    TypeIntoList(form, Fov(), "9");
    EXPECT_EQ(Fov().Selected(), "9");
    TypeIntoList(form, Fov(), "91");
    EXPECT_EQ(Fov().Selected(), "91");
    EXPECT_EQ(Fov().Items.size(), rows + 1);
    TypeIntoList(form, Fov(), "90");
    TypeIntoList(form, Fov(), "901");
    EXPECT_EQ(Fov().Selected(), "901");
    EXPECT_EQ(Fov().Items.size(), rows + 1);
}

TEST_F(SettingsPagesTest, ARowThatTheScriptBroughtIsNotTaken) {
    Load(kQuakeDialect, "fov 91\n");
    TypeIntoList(form, Fov(), "92");
    EXPECT_EQ(Fov().Selected(), "92");
    EXPECT_EQ(Fov().Items[Fov().Items.size() - 2], "91");
}

TEST_F(SettingsPagesTest, TypedTextsOfTwoListsDoNotMeet) {
    Load(kQuakeDialect);
    TypeIntoList(form, Fov(), "91");
    TypeIntoList(form, form.Document.viewsize_Cbo, "91");
    TypeIntoList(form, Fov(), "92");
    EXPECT_EQ(Fov().Selected(), "92");
    EXPECT_EQ(form.Document.viewsize_Cbo.Selected(), "91");
}

TEST_F(SettingsPagesTest, ATypedTextIsNotTakenForANumberOfTheSameValue) {
    Load(kQuakeDialect);
    TypeIntoList(form, form.Document.gamma_Cbo, "1");
    EXPECT_EQ(form.Document.gamma_Cbo.Selected(), "1");
}

TEST_F(SettingsPagesTest, AnEmptyTextSelectsNothing) {
    Load(kQuakeDialect, "fov 90\n");
    TypeIntoList(form, Fov(), "");
    EXPECT_EQ(Fov().ListIndex, -1);
    EXPECT_FALSE(form.Document.ScriptClean);
}

TEST_F(SettingsPagesTest, TheSameTextAgainIsNoEdit) {
    Load(kQuakeDialect, "fov 90\n");
    TypeIntoList(form, Fov(), "90");
    TypeIntoList(form, form.Document.viewsize_Cbo, "");
    EXPECT_TRUE(form.Document.ScriptClean);
}

TEST_F(SettingsPagesTest, ARowsOwnTextMayBeTyped) {
    Load(kQuakeDialect);
    TypeIntoList(form, Fov(), "91");
    TypeIntoList(form, Fov(), TextView(Fov().Items.back()).substr(0, 1));
    EXPECT_EQ(Fov().Selected(), "9");
}

TEST_F(SettingsPagesTest, ATypedCrosshairTurnsItsColorOnAndOff) {
    Load(kQuakeWorldDialect);
    TypeIntoList(form, form.Document.Crosshair_Cbo, "2");
    EXPECT_TRUE(form.Document.CrossHairColor_Cbo.Enabled);
    TypeIntoList(form, form.Document.Crosshair_Cbo, "27");
    EXPECT_FALSE(form.Document.CrossHairColor_Cbo.Enabled);
}

TEST_F(SettingsPagesTest, AClickShowsAnOptionsPageThatTheGameHas) {
    Load(kQuakeDialect);
    Options_Tab_Click(form, 2);
    EXPECT_EQ(form.Document.Options_Tab.Tab, 2);
    Options_Tab_Click(form, 3);
    EXPECT_EQ(form.Document.Options_Tab.Tab, 2);
    Options_Tab_Click(form, 5);
    Options_Tab_Click(form, -1);
    EXPECT_EQ(form.Document.Options_Tab.Tab, 2);
    EXPECT_TRUE(form.Document.ScriptClean);
    Load(kQuakeWorldDialect);
    Options_Tab_Click(form, 3);
    EXPECT_EQ(form.Document.Options_Tab.Tab, 3);
}

}  // namespace
}  // namespace lv
