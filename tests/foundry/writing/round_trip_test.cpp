// What must hold of every script: reading what was written gives the same document, and writing that the same bytes.

#include "foundation/field_strings.h"
#include "foundry/writing/compose_script.h"
#include "tests/foundry/made_up_scripts.h"
#include "tests/foundry/reading.h"
#include "tests/foundry/rounds.h"

namespace lv {
namespace {

template <std::size_t Count>
Text Rows(const std::array<ListBox, Count>& lists) {
    Text rows;
    for (const ListBox& list : lists) {
        rows += Join(list.Selected(), "|");
    }
    return rows;
}

/// Everything that the user sees of a document, as lines.
Text Told(const ScriptDocument& d) {
    Text told = Join("name ", d.Name_Txt.Text, "\nrate ", d.Rate_Txt.Text, "\nteam ", d.UnrealTeamName_Txt.Text,
                     "\npassword ", d.UnrealPassword_Txt.Text, "\n");
    for (const ListBox* const list : {&d.Sex_Cbo,
                                      &d.Skin_Cbo,
                                      &d.PlayerClass_Cbo,
                                      &d.Handed_Cbo,
                                      &d.Crosshair_Cbo,
                                      &d.CrossHairColor_Cbo,
                                      &d.snd_mixahead_Cbo,
                                      &d.bgmvolume_Cbo,
                                      &d.volume_Cbo,
                                      &d.cl_backspeed_Cbo,
                                      &d.cl_forwardspeed_Cbo,
                                      &d.cl_sidespeed_Cbo,
                                      &d.cl_bob_Cbo,
                                      &d.cl_bobcycle_Cbo,
                                      &d.gamma_Cbo,
                                      &d.cl_bobup_Cbo,
                                      &d.cl_pitchspeed_Cbo,
                                      &d.cl_rollangle_Cbo,
                                      &d.cl_rollspeed_Cbo,
                                      &d.cl_yawspeed_Cbo,
                                      &d.fov_Cbo,
                                      &d.m_filter_Cbo,
                                      &d.m_forward_Cbo,
                                      &d.m_pitch_Cbo,
                                      &d.m_yaw_Cbo,
                                      &d.m_side_Cbo,
                                      &d.scr_centerspeed_Cbo,
                                      &d.scr_conspeed_Cbo,
                                      &d.MouseSensitivity_Cbo,
                                      &d.v_kickpitch_Cbo,
                                      &d.v_kickroll_Cbo,
                                      &d.v_kicktime_Cbo,
                                      &d.viewsize_Cbo,
                                      &d.vidmode_Cbo}) {
        told += Join(list->Selected(), "|");
    }
    for (const CheckBox* const box :
         {&d.NoColors_Chk, &d.MLook_Chk, &d.JoyStick_Chk, &d.LookStrafe_Chk, &d.LookSpring_Chk, &d.Speed_Chk,
          &d.NoAim_Chk, &d.ShowTurtle_Chk, &d.ShowRAM_Chk, &d.ShowPause_Chk, &d.InvertMouse_Chk, &d.Q2_EnableCD_Chk,
          &d.Q2_WaveOnly_Chk, &d.Unbindall_Chk}) {
        told += std::to_string(box->Value);
    }
    told += Join("\ncolors ", std::to_string(d.PlayerColor_Lbl[0].Tag), " ", std::to_string(d.PlayerColor_Lbl[1].Tag),
                 "\n", Rows(d.UnrealAudio_Cbo), "\n", Rows(d.PlayerPawn_Cbo), "\n", Rows(d.MouseBind_Cbo), "\n");
    for (const Text& weapon : d.WeaponsPriority_Lst.Items) {
        told += Join("weapon ", weapon, "\n");
    }
    for (std::size_t key = 0; key < d.KeyBinding.size(); ++key) {
        told += d.KeyBinding[key].empty() ? Text() : Join("key ", std::to_string(key), " ", d.KeyBinding[key], "\n");
    }
    for (std::size_t i = 0; i < d.AliasTable.AliasCount(); ++i) {
        const Alias& alias = d.AliasTable[i];
        told += Join("alias ", alias.Name, " ", alias.Body, "\n");
    }
    for (const ScriptSection& section : d.Sections) {
        told += Join("section ", section.Name, "\n", section.Text, "\n");
    }
    return told;
}

Text Written(const ScriptDocument& document) {
    return ComposeScript(document, kScriptDay);
}

void ExpectRest(const ScriptDialect& dialect, unsigned seed, int scripts) {
    MadeUpScripts madeUp(seed);
    for (int i = 0; i < scripts; ++i) {
        const Text script = madeUp.Next(dialect);
        const ScriptDocument first = ReadScript(dialect, script);
        const Text written = Written(first);
        const ScriptDocument second = ReadScript(dialect, written);
        ASSERT_EQ(Told(second), Told(first)) << script;
        ASSERT_EQ(Written(second), written) << script;
    }
}

constexpr int kScripts = Rounds(250);

TEST(RoundTrip, OfQuake) {
    ExpectRest(kQuakeDialect, 1, kScripts);
}

TEST(RoundTrip, OfQuakeWorld) {
    ExpectRest(kQuakeWorldDialect, 2, kScripts);
}

TEST(RoundTrip, OfHexen2) {
    ExpectRest(kHexen2Dialect, 3, kScripts);
}

TEST(RoundTrip, OfQuake2) {
    ExpectRest(kQuake2Dialect, 4, kScripts);
}

TEST(RoundTrip, OfSin) {
    ExpectRest(kSinDialect, 5, kScripts);
}

TEST(RoundTrip, OfHeretic2) {
    ExpectRest(kHeretic2Dialect, 6, kScripts);
}

TEST(RoundTrip, OfHalfLife) {
    ExpectRest(kHalfLifeDialect, 9, kScripts);
}

TEST(RoundTrip, OfUnreal) {
    ExpectRest(kUnrealDialect, 7, kScripts);
}

TEST(RoundTrip, WhereACommaSeparates) {
    ScriptDialect dialect = kQuake2Dialect;
    dialect.DecimalSeparator = ',';
    ExpectRest(dialect, 8, kScripts);
    dialect = kUnrealDialect;
    dialect.DecimalSeparator = ',';
    ExpectRest(dialect, 10, kScripts);
}

TEST(RoundTrip, TheScriptIsTheSameInAnyLocale) {
    ScriptDialect comma = kQuakeDialect;
    comma.DecimalSeparator = ',';
    MadeUpScripts madeUp(11);
    for (int i = 0; i < kScripts; ++i) {
        const Text written = Written(ReadScript(kQuakeDialect, madeUp.Next(kQuakeDialect)));
        ASSERT_EQ(Written(ReadScript(comma, written)), written);
    }
}

TEST(RoundTrip, KeepsEveryFreeFormLineAndEveryBinding) {
    const ScriptDocument d = ReadScript(kQuakeDialect,
                                        "r_mirroralpha 1\nbind q \"echo my own\"\n// mine\nbind w zoom\n"
                                        "alias zoom \"fov 30\"\n");
    const Text written = Written(d);
    EXPECT_EQ(CountLines(written, "r_mirroralpha 1"), 1);
    EXPECT_EQ(CountLines(written, "// mine"), 1);
    EXPECT_EQ(CountLines(written, "bind \"q\"             \"echo my own\""), 1);
    EXPECT_EQ(CountLines(written, "bind \"w\"             \"zoom\""), 1);
    EXPECT_EQ(CountLines(written, "alias \"zoom\" \"fov 30\""), 1);
}

TEST(RoundTrip, WritesACommandInItsGamesOwnWords) {
    EXPECT_EQ(CountLines(Written(ReadScript(kQuakeDialect, "bind q \"use blaster\"\nbind \"a\" \"+ATTACK\"\n")),
                         "bind \"q\"             \"impulse 1\""),
              1);
    EXPECT_EQ(CountLines(Written(ReadScript(kQuake2Dialect, "bind NumPad7 +attack\n")),
                         "bind \"kp_home\"       \"+attack\"  //* key pad 7"),
              1);
}

TEST(RoundTrip, SetJoystickKeepsItsSetInQuake2AndSin) {
    for (const ScriptDialect& dialect : {kQuake2Dialect, kSinDialect}) {
        for (const TextView line : {"set joystick 1\n", "joystick 1\n"}) {
            const Text written = Written(ReadScript(dialect, line));
            EXPECT_EQ(CountLines(written, "set joystick 1"), 1) << static_cast<int>(dialect.GameKind);
            EXPECT_EQ(CountLines(written, "joystick 1"), 0) << static_cast<int>(dialect.GameKind);
            EXPECT_EQ(ReadScript(dialect, written).JoyStick_Chk.Value, 1) << static_cast<int>(dialect.GameKind);
        }
    }
}

TEST(RoundTrip, SetJoystickLosesItsSetInHeretic2AndTheOthers) {
    for (const ScriptDialect& dialect : {kHeretic2Dialect, kHalfLifeDialect, kQuakeDialect, kHexen2Dialect}) {
        const Text written = Written(ReadScript(dialect, "set joystick 1\n"));
        EXPECT_EQ(CountLines(written, "joystick 1"), 1) << static_cast<int>(dialect.GameKind);
        EXPECT_EQ(CountLines(written, "set joystick 1"), 0) << static_cast<int>(dialect.GameKind);
        EXPECT_EQ(ReadScript(dialect, written).JoyStick_Chk.Value, 1) << static_cast<int>(dialect.GameKind);
    }
}

TEST(RoundTrip, WritesACommandInCapitalsInItsOwnCase) {
    const ScriptDocument d = ReadScript(kQuakeDialect, "bind \"a\" \"+ATTACK\"\n");
    EXPECT_EQ(d.Setting_Lbl[111].Caption, "{A}");
    EXPECT_EQ(CountLines(Written(d), "bind \"a\"             \"+attack\""), 1);
}

TEST(RoundTrip, KeepsAVideoModeBeyondTheList) {
    const ScriptDocument d = ReadScript(kQuakeDialect, "name a\nvid_mode 15\n");
    EXPECT_EQ(d.vidmode_Cbo.Selected(), "15) Custom VESA Mode");
    const Text written = Written(d);
    EXPECT_EQ(CountLines(written, "vid_mode 15"), 1);
    EXPECT_EQ(written.find("vid_mode"), written.rfind("vid_mode"));
    const ScriptDocument read = ReadScript(kQuakeDialect, written);
    EXPECT_EQ(read.vidmode_Cbo.Selected(), "15) Custom VESA Mode");
    EXPECT_EQ(read.vidmode_Cbo.Items.size(), d.vidmode_Cbo.Items.size());
    EXPECT_EQ(Written(read), written);
}

TEST(RoundTrip, TakesAnInisGammaFromAnySectionButTheInputsAndWritesItNowhere) {
    const ScriptDocument d = ReadScript(kUnrealDialect, "[Any]\nGamma=0.5\nOther=1\n");
    EXPECT_EQ(d.gamma_Cbo.Selected(), "0.5");
    EXPECT_EQ(d.Sections[0].Text, "Other=1");
    EXPECT_EQ(LowerCase(Written(d)).find("gamma"), Text::npos);
    const ScriptDocument input = ReadScript(kUnrealDialect, "[Engine.Input]\nGamma=0.5\n");
    EXPECT_FALSE(input.gamma_Cbo.HasSelection());
    EXPECT_NE(LowerCase(input.Sections[0].Text).find("gamma=0.5"), Text::npos);
}

TEST(RoundTrip, WritesAColorBeyondAllColors) {
    const Text written = Written(ReadScript(kQuakeDialect, "color 2147483647 1\n"));
    EXPECT_EQ(CountLines(written, "color 2147483647 1"), 1);
    EXPECT_EQ(CountLines(written, "_cl_color 34359738353"), 1);
}

TEST(RoundTrip, BringsTheSecondEnterOfAnIniBackAsTheFirst) {
    ScriptDocument d = ReadScript(kUnrealDialect,
                                  "[Engine.Input]\nMouseX=Axis aMouseX Speed=2.0\n"
                                  "MouseY=Axis aMouseY Speed=2.0\n");
    Bind(d, 93, "Fire");
    const ScriptDocument read = ReadScript(kUnrealDialect, Written(d));
    EXPECT_EQ(read.KeyBinding[75], "Fire");
    EXPECT_EQ(read.KeyBinding[93], "");
}

// Kept on purpose: the format's own first name counts when the player has none.
TEST(RoundTrip, APlayerWithoutANameIsCalledPlayer) {
    EXPECT_EQ(ReadScript(kQuakeDialect, Written(ReadScript(kQuakeDialect, "bind w +forward"))).Name_Txt.Text, "player");
}

TEST(RoundTrip, AHandThatWasNotChosenStaysSo) {
    for (const ScriptDialect& dialect : {kQuake2Dialect, kSinDialect, kHeretic2Dialect}) {
        const Text written = Written(ReadScript(dialect, "name a"));
        EXPECT_EQ(CountLines(written, "hand \"-1\""), 1);
        const ScriptDocument read = ReadScript(dialect, written);
        EXPECT_EQ(read.Handed_Cbo.Items.size(), 3U) << static_cast<int>(dialect.GameKind);
        EXPECT_EQ(Written(read), written) << static_cast<int>(dialect.GameKind);
    }
}

// Kept on purpose: the older games don't tell the keypad from the main keys.
TEST(RoundTrip, TheOlderGamesLoseTheirKeypad) {
    const ScriptDocument d = ReadScript(kQuakeDialect, "bind kp_home +forward");
    EXPECT_EQ(d.KeyBinding[84], "+forward");
    EXPECT_EQ(ReadScript(kQuakeDialect, Written(d)).KeyBinding[84], "");
}

TEST(RoundTrip, SurvivesHostileScripts) {
    std::mt19937 random(12);
    const Text pieces[] = {
        "bind ",      "alias ",        "name ",       "set ", "\"",        " ",           "//",
        "//*",        "\r\n",          "\n",          "=",    "[",         "]",           "[Engine.Input]\n",
        "Aliases[",   "MouseX=",       "+mlook",      "w ",   "vid_mode ", "99999999999", "skin ",
        "m_pitch --", "color -1 -1\n", Text(1, '\0'), "\xA0", "\xFF",      ";",           "exec ",
        "say "};
    for (int round = 0; round < Rounds(150); ++round) {
        Text script;
        for (std::size_t left = random() % 120; left > 0; --left) {
            script += random() % 8 == 0 ? Text(1, static_cast<char>(random() % 256)) : pieces[random() % 29];
        }
        for (const ScriptDialect& dialect : {kQuakeWorldDialect, kSinDialect, kHalfLifeDialect, kUnrealDialect}) {
            const Text written = Written(ReadScript(dialect, script));
            EXPECT_FALSE(Written(ReadScript(dialect, written)).empty());
            EXPECT_LT(written.size(), 6 * script.size() + 12000);
        }
    }
}

TEST(RoundTrip, AnUnrealIniKeepsTheCommandThatIsWrittenWithABlankAhead) {
    const Text first = ComposeScript(ReadScript(Game::Unreal,
                                                "[Engine.Input]\nF10=Cancel\nF9=Taunt Wave\n"
                                                "MouseX=Axis aMouseX Speed=6.0\nMouseY=Axis aMouseY Speed=6.0\n"),
                                     kScriptDay);
    EXPECT_NE(first.find("F10= Cancel\r\n"), Text::npos) << first;
    const ScriptDocument again = ReadScript(Game::Unreal, first);
    EXPECT_EQ(again.Setting_Lbl[411].Caption, "{F10}");
    EXPECT_EQ(ComposeScript(again, kScriptDay), first);
}

}  // namespace
}  // namespace lv
