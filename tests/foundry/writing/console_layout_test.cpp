#include "foundation/field_strings.h"
#include "foundry/writing/compose_script.h"
#include "tests/foundry/full_script.h"

namespace lv {
namespace {

Text Written(const ScriptDocument& document) {
    return ComposeScript(document, kScriptDay);
}

int Lines(const ScriptDocument& document, TextView line) {
    return CountLines(Written(document), line);
}

bool Says(const ScriptDocument& document, TextView part) {
    return Holds(Written(document), part);
}

TEST(ConsoleScript, OfNothingHasAllItsBannersAndTwoNames) {
    EXPECT_EQ(Written(EmptyDocument(kQuakeDialect)), Crlf(Join(kHead, R"(name ""
color 0 0
_cl_color 0
joystick 0
lookstrafe 0
lookspring 0
noaim 0
showturtle 0
showram 0
showpause 0
)",
                                                               kBindingsBanner, kEnd)));
}

TEST(ConsoleScript, OfNothingInTheNewerFamily) {
    EXPECT_EQ(Written(EmptyDocument(kQuake2Dialect)), Crlf(Join(kHead, R"(name ""
skin "/"
hand "-1"
set freelook 0
set joystick 0
set lookstrafe 0
set lookspring 0
set sv_aim 0
set showturtle 0
set showram 0
set showpause 0
set cd_nocd 1
set s_wavonly 0
)",
                                                                kBindingsBanner, kEnd)));
}

TEST(ConsoleScript, OfQuakeByteForByte) {
    EXPECT_EQ(Written(FullDocument(kQuakeDialect)), OldScript("", "", ""));
}

TEST(ConsoleScript, OfQuakeWorldHasSkinCrosshairColorAndRate) {
    EXPECT_EQ(Written(FullDocument(kQuakeWorldDialect)),
              OldScript("skin Base\n", "crosshaircolor 079\n", "rate 2500.5\n"));
}

TEST(ConsoleScript, OfHexen2HasThePlayersClass) {
    EXPECT_EQ(Written(FullDocument(kHexen2Dialect)), OldScript("_cl_playerclass \"3\"\n", "crosshaircolor 079\n", ""));
}

TEST(ConsoleScript, OfQuake2SetsItsVariables) {
    EXPECT_EQ(Written(FullDocument(kQuake2Dialect)), NewScript("set freelook 1\n", "set "));
}

TEST(ConsoleScript, OfSinSetsItsVariables) {
    EXPECT_EQ(Written(FullDocument(kSinDialect)), NewScript("set freelook 1\n", "set "));
}

TEST(ConsoleScript, OfHeretic2HasNoPrefix) {
    EXPECT_EQ(Written(FullDocument(kHeretic2Dialect)), NewScript("freelook 1\n", ""));
}

TEST(ConsoleScript, OfHalfLifeLooksByMlookAndRestoresTheCaseOfOneWeapon) {
    Text script = NewScript("+mlook\n", "");
    script.replace(script.find("weapon_9mmar"), 12, "weapon_9mmAR");
    EXPECT_EQ(Written(FullDocument(kHalfLifeDialect)), script);
}

TEST(ConsoleScript, RestoresTheCaseOfThatWeaponEverywhere) {
    ScriptDocument d = EmptyDocument(kHalfLifeDialect);
    d.AliasTable.Insert({false, "gun", "weapon_9mmar;weapon_9mmar"});
    d.Sections.front().Text = "weapon_9mmar";
    EXPECT_EQ(Lines(d, "alias \"gun\" \"weapon_9mmAR;weapon_9mmAR\""), 1);
    EXPECT_EQ(Lines(d, "weapon_9mmAR"), 1);
}

TEST(ConsoleScript, WritesTheFixedNameAndThenThePlayers) {
    ScriptDocument d = EmptyDocument(kQuakeDialect);
    d.Name_Txt.Text = "player";
    EXPECT_EQ(Lines(d, "name \"player\""), 2);
}

TEST(ConsoleScript, LeavesTheBytesOfANameAsTheyAre) {
    ScriptDocument d = EmptyDocument(kQuakeDialect);
    d.Name_Txt.Text = "\x9F\x80\xFF\x01";
    EXPECT_EQ(Lines(d, "name \"\x9F\x80\xFF\x01\""), 1);
}

TEST(ConsoleScript, SaysThatColorsAreNotSpecified) {
    ScriptDocument d = FullDocument(kQuakeDialect);
    d.NoColors_Chk.Value = 1;
    EXPECT_EQ(Lines(d, "setupfoundry_info specifycolors 0"), 1);
    EXPECT_FALSE(Says(d, "color 4"));
    EXPECT_FALSE(Says(d, "_cl_color"));
}

TEST(ConsoleScript, OfTheNewerFamilyNeverSpeaksOfColors) {
    ScriptDocument d = FullDocument(kQuake2Dialect);
    d.NoColors_Chk.Value = 1;
    EXPECT_FALSE(Says(d, "specifycolors"));
}

TEST(ConsoleScript, WritesASkinFileOnlyForQuakeWorldAndOnlyWhenOneIsSelected) {
    ScriptDocument d = EmptyDocument(kQuakeWorldDialect);
    Choose(d.Skin_Fil, "base.skn");
    EXPECT_EQ(Lines(d, "skin base.skn"), 1);
    d.Skin_Fil.ListIndex = -1;
    EXPECT_FALSE(Says(d, "skin "));
    EXPECT_FALSE(Says(FullDocument(kQuakeDialect), "skin "));
}

TEST(ConsoleScript, AnOptionThatIsOffHasItsLineButLookAndRunHaveNone) {
    const ScriptDocument d = EmptyDocument(kQuakeDialect);
    EXPECT_EQ(Lines(d, "joystick 0"), 1);
    EXPECT_FALSE(Says(d, "mlook"));
    EXPECT_FALSE(Says(d, "speed"));
    EXPECT_FALSE(Says(EmptyDocument(kHalfLifeDialect), "look 0"));
    EXPECT_FALSE(Says(EmptyDocument(kSinDialect), "cl_run"));
}

TEST(ConsoleScript, EachCheckHasItsOwnLine) {
    struct Row {
        CheckBox ScriptSettings::*Box;
        TextView Old;  // empty: the older family has no such line
        TextView New;
    };
    const Row rows[] = {
        {&ScriptSettings::MLook_Chk, "+mlook", "set freelook 1"},
        {&ScriptSettings::JoyStick_Chk, "joystick 1", "set joystick 1"},
        {&ScriptSettings::LookStrafe_Chk, "lookstrafe 1", "set lookstrafe 1"},
        {&ScriptSettings::LookSpring_Chk, "lookspring 1", "set lookspring 1"},
        {&ScriptSettings::Speed_Chk, "+speed", "set cl_run 1"},
        {&ScriptSettings::NoAim_Chk, "noaim 1", "set sv_aim 1"},
        {&ScriptSettings::ShowTurtle_Chk, "showturtle 1", "set showturtle 1"},
        {&ScriptSettings::ShowRAM_Chk, "showram 1", "set showram 1"},
        {&ScriptSettings::ShowPause_Chk, "showpause 1", "set showpause 1"},
        {&ScriptSettings::Q2_EnableCD_Chk, "", "set cd_nocd 0"},
        {&ScriptSettings::Q2_WaveOnly_Chk, "", "set s_wavonly 1"},
    };
    for (const Row& row : rows) {
        ScriptDocument old = EmptyDocument(kQuakeDialect);
        ScriptDocument fresh = EmptyDocument(kQuake2Dialect);
        EXPECT_EQ(Lines(fresh, row.New), 0) << row.New;
        (old.*row.Box).Value = 1;
        (fresh.*row.Box).Value = 1;
        EXPECT_EQ(Lines(fresh, row.New), 1) << row.New;
        if (row.Old.empty()) {
            EXPECT_EQ(Written(old), Written(EmptyDocument(kQuakeDialect))) << row.New;
        } else {
            EXPECT_EQ(Lines(old, row.Old), 1) << row.Old;
        }
    }
}

TEST(ConsoleScript, EachListHasItsOwnLineWithAPoint) {
    struct Row {
        ListBox ScriptSettings::*List;
        TextView Old;
        TextView New;
    };
    const Row rows[] = {
        {&ScriptSettings::cl_forwardspeed_Cbo, "cl_forwardspeed", "cl_forwardspeed"},
        {&ScriptSettings::cl_backspeed_Cbo, "cl_backspeed", "cl_backspeed"},
        {&ScriptSettings::cl_sidespeed_Cbo, "cl_sidespeed", "cl_sidespeed"},
        {&ScriptSettings::cl_pitchspeed_Cbo, "cl_pitchspeed", "cl_pitchspeed"},
        {&ScriptSettings::cl_yawspeed_Cbo, "cl_yawspeed", "cl_yawspeed"},
        {&ScriptSettings::scr_conspeed_Cbo, "scr_conspeed", "scr_conspeed"},
        {&ScriptSettings::scr_centerspeed_Cbo, "scr_centerspeed", "scr_centerspeed"},
        {&ScriptSettings::MouseSensitivity_Cbo, "sensitivity", "sensitivity"},
        {&ScriptSettings::m_forward_Cbo, "m_forward", "m_forward"},
        {&ScriptSettings::m_pitch_Cbo, "m_pitch", "m_pitch"},
        {&ScriptSettings::m_side_Cbo, "m_side", "m_side"},
        {&ScriptSettings::m_yaw_Cbo, "m_yaw", "m_yaw"},
        {&ScriptSettings::m_filter_Cbo, "m_filter", "m_filter"},
        {&ScriptSettings::bgmvolume_Cbo, "bgmvolume", "bgmvolume"},
        {&ScriptSettings::volume_Cbo, "volume", "s_volume"},
        {&ScriptSettings::snd_mixahead_Cbo, "_snd_mixahead", "s_mixahead"},
        {&ScriptSettings::viewsize_Cbo, "viewsize", "viewsize"},
        {&ScriptSettings::gamma_Cbo, "gamma", "gamma"},
        {&ScriptSettings::fov_Cbo, "fov", "fov"},
        {&ScriptSettings::cl_rollangle_Cbo, "cl_rollangle", "cl_rollangle"},
        {&ScriptSettings::cl_rollspeed_Cbo, "cl_rollspeed", "cl_rollspeed"},
        {&ScriptSettings::v_kickpitch_Cbo, "v_kickpitch", "v_kickpitch"},
        {&ScriptSettings::v_kickroll_Cbo, "v_kickroll", "v_kickroll"},
        {&ScriptSettings::v_kicktime_Cbo, "v_kicktime", "v_kicktime"},
        {&ScriptSettings::cl_bob_Cbo, "cl_bob", "cl_bob"},
        {&ScriptSettings::cl_bobcycle_Cbo, "cl_bobcycle", "cl_bobcycle"},
        {&ScriptSettings::cl_bobup_Cbo, "cl_bobup", "cl_bobup"},
    };
    for (const Row& row : rows) {
        ScriptDocument old = EmptyDocument(kQuakeDialect);
        ScriptDocument fresh = EmptyDocument(kQuake2Dialect);
        old.Dialect.DecimalSeparator = ',';
        fresh.Dialect.DecimalSeparator = ',';
        EXPECT_FALSE(Says(fresh, Join(row.New, Blank))) << row.New;
        Choose(old.*row.List, "1,25");
        Choose(fresh.*row.List, "1,25");
        EXPECT_EQ(Lines(old, Join(row.Old, " 1.25")), 1) << row.Old;
        EXPECT_EQ(Lines(fresh, Join("set ", row.New, " 1.25")), 1) << row.New;
    }
}

TEST(ConsoleScript, KeepsACommaWhereAPointSeparates) {
    ScriptDocument d = EmptyDocument(kQuakeDialect);
    Choose(d.gamma_Cbo, "1,5");
    EXPECT_EQ(Lines(d, "gamma 1,5"), 1);
}

TEST(ConsoleScript, CrosshairIsTheRowsNumber) {
    ScriptDocument d = EmptyDocument(kHeretic2Dialect);
    ChooseRow(d.Crosshair_Cbo, 0);
    EXPECT_EQ(Lines(d, "crosshair 0"), 1);
}

TEST(ConsoleScript, CrosshairColorIsThreeCharactersBelowRow256OfTheCrosshair) {
    ScriptDocument d = EmptyDocument(kQuakeWorldDialect);
    Choose(d.CrossHairColor_Cbo, "151 -Purple");
    EXPECT_EQ(Lines(d, "crosshaircolor 151"), 1);
    ChooseRow(d.Crosshair_Cbo, 255);
    EXPECT_EQ(Lines(d, "crosshaircolor 151"), 1);
    ChooseRow(d.Crosshair_Cbo, 256);
    EXPECT_EQ(Lines(d, "crosshaircolor 151 -Purple"), 1);
}

TEST(ConsoleScript, PlainQuakeLeavesTheCrosshairsColorOut) {
    ScriptDocument d = EmptyDocument(kQuakeDialect);
    Choose(d.CrossHairColor_Cbo, "151 -Purple");
    EXPECT_FALSE(Says(d, "crosshaircolor"));
}

TEST(MPitch, WithInvertAndNoSelectionIsTheUsualOne) {
    ScriptDocument d = EmptyDocument(kQuakeDialect);
    d.InvertMouse_Chk.Value = 1;
    EXPECT_EQ(Lines(d, "m_pitch -0.022"), 1);
    d.Dialect.DecimalSeparator = ',';
    EXPECT_EQ(Lines(d, "m_pitch -0.022"), 1);
}

TEST(MPitch, LosesADoubleSignWhole) {
    ScriptDocument d = EmptyDocument(kQuakeDialect);
    Choose(d.m_pitch_Cbo, "-0.5");
    EXPECT_EQ(Lines(d, "m_pitch -0.5"), 1);
    d.InvertMouse_Chk.Value = 1;
    EXPECT_EQ(Lines(d, "m_pitch 0.5"), 1);
}

TEST(VidMode, IsWhatStandsBeforeTheBracket) {
    ScriptDocument d = EmptyDocument(kQuakeDialect);
    Choose(d.vidmode_Cbo, "15) Custom VESA Mode");
    EXPECT_EQ(Lines(d, "vid_mode 15"), 1);
    Choose(d.vidmode_Cbo, "-2) Custom VESA Mode");
    EXPECT_EQ(Lines(d, "vid_mode -2"), 1);
}

TEST(Rate, HasALineOnlyAboveNothing) {
    struct Row {
        TextView Typed;
        TextView Line;  // empty: none
    };
    const Row rows[] = {
        {"2500", "rate 2500"},
        {" 5 000 ", "rate 5000"},
        {"1.50", "rate 1.5"},
        {"0.5", "rate 0.5"},
        {"", ""},
        {"0", ""},
        {"-100", ""},
        {"fast", ""},
        {"00", ""},
    };
    for (const Row& row : rows) {
        ScriptDocument d = EmptyDocument(kQuake2Dialect);
        d.Rate_Txt.Text = row.Typed;
        EXPECT_EQ(Says(d, "rate "), !row.Line.empty()) << row.Typed;
        if (!row.Line.empty()) {
            EXPECT_EQ(Lines(d, row.Line), 1) << row.Typed;
        }
    }
}

TEST(Rate, HasNoLineInPlainQuake) {
    ScriptDocument d = EmptyDocument(kQuakeDialect);
    d.Rate_Txt.Text = "2500";
    EXPECT_FALSE(Says(d, "rate "));
}

TEST(ConsoleScript, WithoutAliasesHasNoAliasesBanner) {
    ScriptDocument d = EmptyDocument(kQuakeDialect);
    EXPECT_EQ(Lines(d, "//* Aliases         *//"), 0);
    d.AliasTable.Insert({false, "a", "b"});
    EXPECT_EQ(Lines(d, "//* Aliases         *//"), 1);
}

TEST(ConsoleScript, WithoutFreeFormHasNoFreeFormBanner) {
    ScriptDocument d = EmptyDocument(kQuakeDialect);
    EXPECT_EQ(Lines(d, "//* Free Form       *//"), 0);
    d.Sections.clear();
    EXPECT_EQ(Lines(d, "//* Free Form       *//"), 0);
}

TEST(ConsoleScript, WritesTheFirstSectionsFreeFormOnly) {
    ScriptDocument d = EmptyDocument(kQuakeDialect);
    d.Sections.front().Text = "first";
    d.Sections.push_back({"[other]", "second"});
    EXPECT_EQ(Lines(d, "first"), 1);
    EXPECT_FALSE(Says(d, "second"));
}

TEST(ConsoleScript, WritesAnEmptyCommandAsEmptyQuotes) {
    ScriptDocument d = EmptyDocument(kQuakeDialect);
    Bind(d, 24, "\"\"");
    EXPECT_EQ(Lines(d, "bind \"x\"             \"\""), 1);
}

TEST(ConsoleScript, KeepsTheKeypadToTheNewerFamily) {
    for (KeyIndex key = 81; key <= 96; ++key) {
        ScriptDocument old = EmptyDocument(kHexen2Dialect);
        ScriptDocument fresh = EmptyDocument(kHeretic2Dialect);
        Bind(old, key, "echo keypad");
        Bind(fresh, key, "echo keypad");
        EXPECT_EQ(Says(old, "echo keypad"), key == 81 || key == 96) << key;
        EXPECT_TRUE(Says(fresh, "echo keypad")) << key;
    }
}

TEST(ConsoleScript, ExplainsTheKeypadsDigits) {
    ScriptDocument d = EmptyDocument(kQuake2Dialect);
    for (KeyIndex key = 82; key <= 95; ++key) {
        Bind(d, key, "k");
    }
    EXPECT_TRUE(Says(d, Crlf(R"(bind "kp_slash"      "k"
bind "kp_minus"      "k"
bind "kp_home"       "k"  //* key pad 7
bind "kp_uparrow"    "k"  //* key pad 8
bind "kp_pgup"       "k"  //* key pad 9
bind "kp_leftarrow"  "k"  //* key pad 4
bind "kp_5"          "k"  //* key pad 5
bind "kp_rightarrow" "k"  //* key pad 6
bind "kp_end"        "k"  //* key pad 1
bind "kp_downarrow"  "k"  //* key pad 2
bind "kp_pgdn"       "k"  //* key pad 3
bind "kp_enter"      "k"
bind "kp_ins"        "k"  //* key pad 0
bind "kp_del"        "k"
)")));
}

TEST(ConsoleScript, DiffersFromDayToDayInTheDateAlone) {
    const ScriptDocument d = FullDocument(kQuakeDialect);
    Text later = ComposeScript(d, {2026, 2, 3, 0, 0, 0});
    EXPECT_EQ(CountLines(later, "//* 02/03/2026      *//"), 1);
    later.replace(later.find("02/03/2026"), 10, "11/21/1999");
    EXPECT_EQ(later, Written(d));
}

}  // namespace
}  // namespace lv
