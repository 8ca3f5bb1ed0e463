// What the reader makes of each keyword in each kind, beside the listing.

#include <gtest/gtest.h>

#include <map>
#include <set>

#include "foundation/field_strings.h"
#include "foundry/reading/script_reader.h"
#include "platform/memory/memory_platform.h"
#include "tests/foundry/listing_reader_keywords.h"
#include "tests/foundry/rounds.h"

namespace lv {
namespace {

constexpr TextView kScript = "C:\\GAME\\MY.CFG";

Dialect FamilyOf(Game kind) {
    return kind == Game::Unreal                          ? Dialect::Unreal
           : kind == Game::Quake || kind == Game::Hexen2 ? Dialect::Quake
                                                         : Dialect::Quake2;
}

ScriptDocument Read(const Text& script, ScriptDialect dialect) {
    MemoryFiles files;
    files.AddFile(kScript, script);
    ScriptDocument document = MakeScriptDocument(dialect);
    ScriptView view;
    const auto file = files.Open(kScript);
    EXPECT_TRUE(file.Ok());
    const auto firstWithoutAlias = ReadAliases(*file.Value, document);
    ReadLines(*file.Value, document, view, firstWithoutAlias, [] {});
    return document;
}

ScriptDocument Read(const Text& script, Game kind) {
    return Read(script, {.GameKind = kind, .ScriptFamily = FamilyOf(kind)});
}

Text LineOf(const listing::KeywordRow& row, Game kind) {
    if (kind == Game::Unreal) {
        return Join(row.Keyword, "=", row.Value);
    }
    return *row.Value ? Join(row.Keyword, " ", row.Value) : Text(row.Keyword);
}

/// A console script that is the line; an ini has it in a section.
ScriptDocument ReadRow(const listing::KeywordRow& row, Game kind) {
    return Read(Join(kind == Game::Unreal ? "[Some.Section]\r\n" : "", LineOf(row, kind), "\r\n"), kind);
}

Text FreeForm(const ScriptDocument& document) {
    Text all;
    for (const ScriptSection& section : document.Sections) {
        all += section.Text;
    }
    return all;
}

#define LV_CONTROL(name) \
    { #name, &ScriptSettings::name }
const std::map<Text, ListBox ScriptSettings::*> kLists = {
    LV_CONTROL(snd_mixahead_Cbo),
    LV_CONTROL(bgmvolume_Cbo),
    LV_CONTROL(volume_Cbo),
    LV_CONTROL(cl_backspeed_Cbo),
    LV_CONTROL(cl_forwardspeed_Cbo),
    LV_CONTROL(cl_sidespeed_Cbo),
    LV_CONTROL(cl_bob_Cbo),
    LV_CONTROL(cl_bobcycle_Cbo),
    LV_CONTROL(gamma_Cbo),
    LV_CONTROL(cl_bobup_Cbo),
    LV_CONTROL(cl_pitchspeed_Cbo),
    LV_CONTROL(cl_rollangle_Cbo),
    LV_CONTROL(cl_rollspeed_Cbo),
    LV_CONTROL(cl_yawspeed_Cbo),
    LV_CONTROL(fov_Cbo),
    LV_CONTROL(m_filter_Cbo),
    LV_CONTROL(m_forward_Cbo),
    LV_CONTROL(m_pitch_Cbo),
    LV_CONTROL(m_yaw_Cbo),
    LV_CONTROL(m_side_Cbo),
    LV_CONTROL(scr_centerspeed_Cbo),
    LV_CONTROL(scr_conspeed_Cbo),
    LV_CONTROL(MouseSensitivity_Cbo),
    LV_CONTROL(v_kickpitch_Cbo),
    LV_CONTROL(v_kickroll_Cbo),
    LV_CONTROL(v_kicktime_Cbo),
    LV_CONTROL(viewsize_Cbo),
    LV_CONTROL(vidmode_Cbo),
    LV_CONTROL(Sex_Cbo),
    LV_CONTROL(Skin_Cbo),
    LV_CONTROL(Handed_Cbo),
    LV_CONTROL(Crosshair_Cbo),
    LV_CONTROL(CrossHairColor_Cbo),
    LV_CONTROL(PlayerClass_Cbo),
};
const std::map<Text, CheckBox ScriptSettings::*> kBoxes = {
    LV_CONTROL(NoColors_Chk),    LV_CONTROL(MLook_Chk),     LV_CONTROL(JoyStick_Chk),    LV_CONTROL(LookStrafe_Chk),
    LV_CONTROL(LookSpring_Chk),  LV_CONTROL(Speed_Chk),     LV_CONTROL(NoAim_Chk),       LV_CONTROL(ShowTurtle_Chk),
    LV_CONTROL(ShowRAM_Chk),     LV_CONTROL(ShowPause_Chk), LV_CONTROL(InvertMouse_Chk), LV_CONTROL(Q2_EnableCD_Chk),
    LV_CONTROL(Q2_WaveOnly_Chk), LV_CONTROL(Unbindall_Chk),
};
const std::map<Text, TextBox ScriptSettings::*> kTexts = {
    LV_CONTROL(Name_Txt),
    LV_CONTROL(Rate_Txt),
    LV_CONTROL(UnrealTeamName_Txt),
    LV_CONTROL(UnrealPassword_Txt),
};
#undef LV_CONTROL

/// "UnrealAudio_Cbo(3)": what the control shows.
Text ShownBy(const ScriptDocument& document, const Text& control) {
    const std::size_t bracket = control.find('(');
    if (bracket != Text::npos) {
        const auto place = static_cast<std::size_t>(std::stoi(control.substr(bracket + 1)));
        const Text array = control.substr(0, bracket);
        return array == "UnrealAudio_Cbo"  ? document.UnrealAudio_Cbo.at(place).Selected()
               : array == "PlayerPawn_Cbo" ? document.PlayerPawn_Cbo.at(place).Selected()
               : array == "MouseBind_Cbo"  ? document.MouseBind_Cbo.at(place).Selected()
                                           : std::to_string(document.PlayerColor_Lbl.at(place).Tag);
    }
    if (kLists.contains(control)) {
        return (document.*kLists.at(control)).Selected();
    }
    if (kBoxes.contains(control)) {
        return std::to_string((document.*kBoxes.at(control)).Value);
    }
    return (document.*kTexts.at(control)).Text;
}

TEST(ReaderKeywordsTable, EachLineSetsItsControlOrIsKeptOrDropped) {
    for (const auto& row : listing::kKeywords) {
        int step = 0;
        for (const char digit : TextView(row.Kinds)) {
            if (!TakesStep(step++, 3)) {
                continue;
            }
            const Game kind = Game{static_cast<Index>(digit - '0')};
            const ScriptDocument document = ReadRow(row, kind);
            const Text line = LineOf(row, kind);
            if (row.Control == listing::kKept) {
                EXPECT_EQ(FreeForm(document), line) << NumberOf(kind);
                continue;
            }
            EXPECT_EQ(FreeForm(document), "") << line << " in " << NumberOf(kind);
            if (row.Control != listing::kDropped) {
                EXPECT_EQ(ShownBy(document, row.Control), row.Expected) << line << " in " << NumberOf(kind);
            }
        }
    }
}

TEST(ReaderKeywordsTable, AKeywordWithALetterTooManyOrTooFewIsNone) {
    std::set<Text> keywords;
    for (const auto& row : listing::kKeywords) {
        const TextView keyword = row.Keyword;
        if (row.Control != listing::kKept && keyword.find_first_of("/\"") == TextView::npos) {
            keywords.insert(LowerCase(keyword));
        }
    }
    EXPECT_EQ(keywords.size(), 95u);
    int step = 0;
    for (const Text& keyword : keywords) {
        for (const Text& other : {keyword + "x", "x" + keyword, keyword.substr(1)}) {
            if (!keywords.contains(other) && TakesStep(step++, 4)) {
                EXPECT_EQ(FreeForm(Read(Join(other, " 1\r\n"), Game::Quake)), Join(other, " 1"));
                EXPECT_EQ(FreeForm(Read(Join("[Some.Section]\r\n", other, "=1\r\n"), Game::Unreal)), Join(other, "=1"));
            }
        }
    }
}

TEST(ReaderKeywordsTable, BoxesKeepTheirStateOnAnyOtherValue) {
    for (const char* const keyword :
         {"freelook", "joystick", "lookspring", "lookstrafe", "noaim", "showpause", "showram", "showturtle"}) {
        const std::map<Text, Text> boxes = {{"freelook", "MLook_Chk"},        {"joystick", "JoyStick_Chk"},
                                            {"lookspring", "LookSpring_Chk"}, {"lookstrafe", "LookStrafe_Chk"},
                                            {"noaim", "NoAim_Chk"},           {"showpause", "ShowPause_Chk"},
                                            {"showram", "ShowRAM_Chk"},       {"showturtle", "ShowTurtle_Chk"}};
        const Text on = Join(keyword, " 1\r\n");
        EXPECT_EQ(ShownBy(Read(Join(on, keyword, " 2\r\n"), Game::Quake), boxes.at(keyword)), "1") << keyword;
        EXPECT_EQ(ShownBy(Read(Join(on, keyword, " yes\r\n"), Game::Quake), boxes.at(keyword)), "1") << keyword;
        EXPECT_EQ(ShownBy(Read(Join(on, keyword, "\r\n"), Game::Quake), boxes.at(keyword)), "1") << keyword;
        EXPECT_EQ(ShownBy(Read(Join(on, keyword, " 0\r\n"), Game::Quake), boxes.at(keyword)), "0") << keyword;
    }
}

TEST(ReaderKeywordsTable, RunAndAimGoOffOnAnyOtherValue) {
    EXPECT_EQ(Read("cl_run 1\r\ncl_run 2\r\n", Game::Quake2).Speed_Chk.Value, 0);
    EXPECT_EQ(Read("sv_aim 1\r\nsv_aim 2\r\n", Game::Quake2).NoAim_Chk.Value, 0);
    EXPECT_EQ(Read("s_wavonly 1\r\ns_wavonly 2\r\n", Game::Quake2).Q2_WaveOnly_Chk.Value, 0);
    EXPECT_EQ(Read("cd_nocd 1\r\ncd_nocd 2\r\n", Game::Quake2).Q2_EnableCD_Chk.Value, 1);
}

TEST(ReaderKeywordsTable, WeaponsAreKeptByTheirNumberAndJoinTheList) {
    const ScriptDocument document = Read(
        "[Engine.PlayerPawn]\r\nWeaponPriority[0]=Rifle\r\nweaponpriority[7]=RailGun\r\nWeaponPriority[8]=None\r\n",
        Game::Unreal);
    EXPECT_EQ(document.WeaponPriority[0], "Rifle");
    EXPECT_EQ(document.WeaponPriority[7], "RailGun");
    EXPECT_TRUE(document.WeaponPriority[8].empty() || document.WeaponPriority[8] == "None");
    EXPECT_EQ(FreeForm(document), "");
}

TEST(ReaderKeywordsTable, QuakeWorldHasARate) {
    const ScriptDialect quakeWorld = {.GameKind = Game::Quake, .ScriptFamily = Dialect::Quake, .IsQuakeWorld = true};
    const ScriptDocument document = Read("rate 2500\r\n", quakeWorld);
    EXPECT_EQ(document.Rate_Txt.Text, "2500");
    EXPECT_EQ(FreeForm(document), "");
}

TEST(ReaderKeywordsTable, TheLastOfTwoValuesStands) {
    EXPECT_EQ(Read("fov 90\r\nfov 120\r\n", Game::Quake).fov_Cbo.Selected(), "120");
    EXPECT_EQ(Read("name Joe\r\nname Jane\r\n", Game::Quake).Name_Txt.Text, "Jane");
}

TEST(ReaderKeywordsTable, NumbersFindTheirRowWhereTheLocaleHasAComma) {
    const ScriptDialect dialect = {.GameKind = Game::Quake, .ScriptFamily = Dialect::Quake, .DecimalSeparator = ','};
    EXPECT_EQ(Read("sensitivity 3.5\r\n", dialect).MouseSensitivity_Cbo.Selected(), "3,5");
    EXPECT_EQ(Read("m_pitch -0.022\r\n", dialect).m_pitch_Cbo.Selected(), "0,022");
}

}  // namespace
}  // namespace lv
