// Whole scripts as each kind of game gets them, byte for byte the files under golden/.

#include <gtest/gtest.h>

#include <algorithm>

#include "foundry/writing/compose_script.h"
#include "tests/foundry/golden_file.h"

namespace lv {
namespace {

constexpr LocalTime kDate = {1999, 3, 9, 13, 5, 0};

void Select(ListBox& list, const Text& text) {
    const auto found = std::ranges::find(list.Items, text);
    list.ListIndex = static_cast<int>(found - list.Items.begin());
    if (found == list.Items.end()) {
        list.Items.push_back(text);
    }
}

ScriptDocument Document(Game kind, Dialect family, char decimalSeparator = '.') {
    return MakeScriptDocument({.GameKind = kind, .ScriptFamily = family, .DecimalSeparator = decimalSeparator});
}

void Bind(ScriptDocument& document, std::initializer_list<std::pair<std::size_t, Text>> bindings) {
    for (const auto& [key, command] : bindings) {
        document.KeyBinding[key] = command;
    }
}

/// Something in every control that a console script knows.
void SetEverything(ScriptDocument& document) {
    const auto number = [&](Text text) {
        std::ranges::replace(text, '.', document.Dialect.DecimalSeparator);
        return text;
    };
    document.Name_Txt.Text = "  Big Joe ";
    document.PlayerColor_Lbl[0].Tag = 4;
    document.PlayerColor_Lbl[1].Tag = 11;
    Select(document.Sex_Cbo, "female");
    Select(document.Skin_Cbo, "athena");
    document.Handed_Cbo.Items = {"0 (right)", "1 (left)", "2 (none)"};
    document.Handed_Cbo.ListIndex = 1;
    document.MLook_Chk.Value = 1;
    document.JoyStick_Chk.Value = 1;
    document.LookSpring_Chk.Value = 1;
    document.Speed_Chk.Value = 1;
    document.NoAim_Chk.Value = 1;
    document.ShowRAM_Chk.Value = 1;
    document.InvertMouse_Chk.Value = 1;
    document.Q2_EnableCD_Chk.Value = 1;
    document.Q2_WaveOnly_Chk.Value = 1;
    document.Rate_Txt.Text = "2500";
    document.Crosshair_Cbo.ListIndex = 1;
    Select(document.CrossHairColor_Cbo, "079 -Red");
    Select(document.cl_forwardspeed_Cbo, "200");
    Select(document.cl_backspeed_Cbo, "160");
    Select(document.cl_sidespeed_Cbo, "350");
    Select(document.cl_pitchspeed_Cbo, "150");
    Select(document.cl_yawspeed_Cbo, "140");
    Select(document.scr_conspeed_Cbo, "300");
    Select(document.scr_centerspeed_Cbo, "8");
    Select(document.MouseSensitivity_Cbo, number("3.0"));
    Select(document.m_forward_Cbo, "1");
    Select(document.m_pitch_Cbo, number("0.022"));
    Select(document.m_side_Cbo, number("0.8"));
    Select(document.m_yaw_Cbo, number("0.030"));
    Select(document.m_filter_Cbo, "0");
    Select(document.bgmvolume_Cbo, number("1.0"));
    Select(document.volume_Cbo, number("0.7"));
    Select(document.snd_mixahead_Cbo, number("0.10"));
    Select(document.vidmode_Cbo, "3) 320x240");
    Select(document.viewsize_Cbo, "100");
    Select(document.gamma_Cbo, number("1.1"));
    Select(document.fov_Cbo, "90");
    Select(document.cl_rollangle_Cbo, "2");
    Select(document.cl_rollspeed_Cbo, "200");
    Select(document.v_kickpitch_Cbo, number("0.6"));
    Select(document.v_kickroll_Cbo, number("0.7"));
    Select(document.v_kicktime_Cbo, number("0.5"));
    Select(document.cl_bob_Cbo, number("0.02"));
    Select(document.cl_bobcycle_Cbo, number("0.6"));
    Select(document.cl_bobup_Cbo, number("0.5"));
}

void AddAliases(ScriptDocument& document) {
    document.AliasTable.Insert({false, "rj", "+jump;wait;+attack"});
    document.AliasTable.Insert({true, "gun", "use weapon_9mmar; +attack"});
}

TEST(GoldenScripts, QuakeWithoutTheCrosshairsColorThatQuakeWorldHas) {
    ScriptDocument document = Document(Game::Quake, Dialect::Quake);
    SetEverything(document);
    AddAliases(document);
    document.Unbindall_Chk.Value = 1;
    Bind(document, {{0, "+jump"},
                    {1, "impulse 1"},
                    {26, "say_team Help me!"},
                    {32, "rj"},
                    {37, "help"},
                    {48, "screenshot"},
                    {60, "\"\""},
                    {61, "toggleconsole"},
                    {70, "+moveup"},
                    {77, "sizeup"},
                    {79, "+attack"},
                    {84, "+left"},
                    {95, "+right"},
                    {96, "impulse 10"},
                    {103, "impulse 20"},
                    {135, "god"}});
    document.Sections = {{"", "// my own\r\nexec more.cfg"}};
    ExpectScript(ComposeScript(document, kDate), Golden("quake.cfg"));
}

TEST(GoldenScripts, AnEmptyDocument) {
    ExpectScript(ComposeScript(Document(Game::Quake, Dialect::Quake), {1998, 12, 31}), Golden("quake_empty.cfg"));
}

TEST(GoldenScripts, QuakeWorld) {
    ScriptDocument document = Document(Game::Quake, Dialect::Quake);
    document.Dialect.IsQuakeWorld = true;
    document.Name_Txt.Text = "Joe";
    document.NoColors_Chk.Value = 1;
    Select(document.Skin_Fil, "Base.PCX");
    document.Crosshair_Cbo.ListIndex = 2;
    Select(document.CrossHairColor_Cbo, "103 -Pink");
    document.Rate_Txt.Text = "2500.0";
    Bind(document, {{23, "+forward"}});
    ExpectScript(ComposeScript(document, kDate), Golden("quakeworld.cfg"));
}

TEST(GoldenScripts, Hexen2WhereTheLocaleHasAComma) {
    ScriptDocument document = Document(Game::Hexen2, Dialect::Quake, ',');
    SetEverything(document);
    document.PlayerClass_Cbo.ListIndex = 2;
    Bind(document, {{5, "impulse 100"}, {77, "impulse 103"}, {82, "+klook"}, {104, "+crouch"}});
    document.Sections = {{"", "cl_nobob 1"}};
    ExpectScript(ComposeScript(document, kDate), Golden("hexen2.cfg"));
}

TEST(GoldenScripts, Quake2WithTheKeypad) {
    ScriptDocument document = Document(Game::Quake2, Dialect::Quake2);
    SetEverything(document);
    AddAliases(document);
    document.Unbindall_Chk.Value = 1;
    Bind(document, {{0, "+moveup"},
                    {2, "use BFG10K"},
                    {77, "weapnext"},
                    {82, "wave 0"},
                    {83, "wave 1"},
                    {84, "+attack"},
                    {85, "+forward"},
                    {86, "+lookup"},
                    {87, "+left"},
                    {88, "centerview"},
                    {89, "+right"},
                    {90, "invprev"},
                    {91, "+back"},
                    {92, "+lookdown"},
                    {93, "invuse"},
                    {94, "+movedown"},
                    {95, "invdrop"}});
    document.Sections = {{"", "// my own\r\nexec more.cfg"}};
    ExpectScript(ComposeScript(document, kDate), Golden("quake2.cfg"));
}

TEST(GoldenScripts, SinWithLittleSelected) {
    ScriptDocument document = Document(Game::Sin, Dialect::Quake2);
    document.Name_Txt.Text = "Joe";
    Select(document.Sex_Cbo, "blade");
    Select(document.Skin_Cbo, "base");
    document.Handed_Cbo.ListIndex = 0;
    document.InvertMouse_Chk.Value = 1;
    Select(document.volume_Cbo, "1.1");
    Select(document.snd_mixahead_Cbo, "0.05");
    Select(document.vidmode_Cbo, "15) Custom VESA Mode");
    Bind(document, {{24, "cmd showmission"}, {77, "+use"}, {88, "use Fists"}});
    ExpectScript(ComposeScript(document, kDate), Golden("sin.cfg"));
}

TEST(GoldenScripts, Heretic2WithAPitchThatIsNegativeTwice) {
    ScriptDocument document = Document(Game::Heretic2, Dialect::Quake2);
    document.Name_Txt.Text = "Joe";
    Select(document.Sex_Cbo, "male");
    Select(document.Skin_Cbo, "Corvus");
    document.Handed_Cbo.ListIndex = 2;
    document.MLook_Chk.Value = 1;
    document.LookStrafe_Chk.Value = 1;
    document.Speed_Chk.Value = 1;
    document.ShowTurtle_Chk.Value = 1;
    document.ShowPause_Chk.Value = 1;
    document.InvertMouse_Chk.Value = 1;
    Select(document.m_pitch_Cbo, "-0.5");
    document.Q2_EnableCD_Chk.Value = 1;
    Select(document.fov_Cbo, "97");
    document.Rate_Txt.Text = "5000";
    Bind(document, {{24, "+creep"}, {77, "use Tome-of-Power"}, {94, "+autoaim"}});
    ExpectScript(ComposeScript(document, kDate), Golden("heretic2.cfg"));
}

TEST(GoldenScripts, HalfLifeWithTheWeaponThatHasCapitals) {
    ScriptDocument document = Document(Game::HalfLife, Dialect::Quake2);
    SetEverything(document);
    document.Handed_Cbo.ListIndex = 0;
    AddAliases(document);
    Bind(document, {{31, "use weapon_9mmar"}, {77, "slot1"}, {84, "slot2"}});
    document.Sections = {{"", "weapon_9mmar\r\nweapon_9mmAR"}};
    ExpectScript(ComposeScript(document, kDate), Golden("halflife.cfg"));
}

TEST(GoldenScripts, Unreal) {
    ScriptDocument document = Document(Game::Unreal, Dialect::Unreal);
    document.Name_Txt.Text = "Joe_Ranger";
    document.UnrealTeamName_Txt.Text = "Reds";
    document.UnrealPassword_Txt.Text = "SeCret";
    document.AliasTable.Insert({false, "hop", "Jump | AltFire"});
    document.AliasTable.Insert({true, "gun", "SwitchWeapon 1 | Fire"});
    Bind(document, {{0, "Jump"},
                    {23, "MoveForward"},
                    {37, "Help | FunctionKey 1"},
                    {60, "\"\""},
                    {62, "SwitchWeapon 4"},
                    {75, "InventoryActivate"},
                    {79, "Fire"},
                    {93, "Feigndeath"},
                    {98, "gun"},
                    {135, "god"}});
    Select(document.MouseBind_Cbo[0], "4.0");
    for (std::size_t i = 0; i < 11; ++i) {
        Select(document.UnrealAudio_Cbo[i], i % 2 == 0 ? "False" : "True");
    }
    Select(document.UnrealAudio_Cbo[11], "40");
    Select(document.UnrealAudio_Cbo[12], "22050Hz");
    Select(document.UnrealAudio_Cbo[13], "16");
    Select(document.UnrealAudio_Cbo[14], "6500.000000");
    Select(document.UnrealAudio_Cbo[15], "0.500000");
    Select(document.UnrealAudio_Cbo[16], "0.55");
    Select(document.UnrealAudio_Cbo[17], "0.700000");
    Select(document.PlayerPawn_Cbo[0], "0.675000");
    Select(document.PlayerPawn_Cbo[2], "0.850000");
    Select(document.PlayerPawn_Cbo[3], "-1.000000");
    Select(document.PlayerPawn_Cbo[4], "False");
    Select(document.PlayerPawn_Cbo[6], "True");
    Select(document.PlayerPawn_Cbo[8], "False");
    Select(document.PlayerPawn_Cbo[9], "3.500000");
    Select(document.PlayerPawn_Cbo[10], "2600");
    Select(document.PlayerPawn_Cbo[12], "0.100000");
    document.WeaponsPriority_Lst.Items = {"ASMD", "Minigun", "Rifle"};
    document.Sections = {{"[Core.System]", "PurgeCacheDays=30\r\nPaths=..\\System\\*.u"},
                         {"[Engine.Input]", "JoyX=Axis aStrafe"},
                         {"[Galaxy.GalaxyAudioSubsystem]", "Dummy=1"},
                         {"[Engine.PlayerPawn]", ""},
                         {"[Engine.Pawn]", ""}};
    for (const ScriptSection& section : document.Sections) {
        document.Section_Cbo.Items.push_back(section.Name);
    }
    ExpectScript(ComposeScript(document, kDate), Golden("unreal.ini"));
}

}  // namespace
}  // namespace lv
