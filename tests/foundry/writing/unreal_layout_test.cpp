#include "foundation/field_strings.h"
#include "foundry/writing/compose_script.h"
#include "tests/foundry/script_fixture.h"

namespace lv {
namespace {

constexpr TextView kIniEnd = R"(
[Lorvane 3D]
LastEdited=11/21/1999
)";

ScriptDocument Ini(std::initializer_list<ScriptSection> sections) {
    ScriptDocument document;
    document.Dialect = kUnrealDialect;
    document.Sections = sections;
    return document;
}

ScriptDocument InputIni() {
    ScriptDocument document = Ini({{"[Engine.Input]", ""}});
    Choose(document.MouseBind_Cbo[0], "2.0");
    Choose(document.MouseBind_Cbo[1], "3.0");
    return document;
}

Text Written(const ScriptDocument& document) {
    return ComposeScript(document, kScriptDay);
}

int Lines(const ScriptDocument& document, TextView line) {
    return CountLines(Written(document), line);
}

TEST(UnrealIni, OfNoSectionIsOursAlone) {
    EXPECT_EQ(Written(Ini({})), Crlf(kIniEnd));
    EXPECT_EQ(Written(Ini({{"", ""}})), Crlf(kIniEnd));
}

TEST(UnrealIni, KeepsASectionThatItDoesNotKnow) {
    EXPECT_EQ(Written(Ini({{"[Core.System]", "Paths=..\\System\\*.u\r\nPaths=..\\Maps\\*.unr"}, {"[URL]", ""}})),
              Crlf(Join(R"([Core.System]
Paths=..\System\*.u
Paths=..\Maps\*.unr

[URL]


)",
                        kIniEnd)));
}

TEST(UnrealIni, KeepsLinesThatStandBeforeTheFirstSection) {
    EXPECT_EQ(Written(Ini({{"", "; mine"}})), Crlf(Join("\n; mine\n\n", kIniEnd)));
}

TEST(UnrealIni, OfAPlayerByteForByte) {
    ScriptDocument d =
        Ini({{"[Galaxy.GalaxyAudioSubsystem]", "Extra=1"}, {"[ENGINE.PLAYERPAWN]", ""}, {"[Engine.Pawn]", ""}});
    for (std::size_t i = 0; i < d.UnrealAudio_Cbo.size(); ++i) {
        Choose(d.UnrealAudio_Cbo[i], Join("audio ", std::to_string(i)));
    }
    for (std::size_t i = 0; i < d.PlayerPawn_Cbo.size(); ++i) {
        Choose(d.PlayerPawn_Cbo[i], Join("player ", std::to_string(i)));
    }
    d.UnrealPassword_Txt.Text = "secret";
    d.UnrealTeamName_Txt.Text = "Red";
    d.Name_Txt.Text = "Zo\xEB";
    d.WeaponsPriority_Lst.Items = {"ASMD", "Rifle", "Minigun"};
    EXPECT_EQ(Written(d), Crlf(Join(R"([Galaxy.GalaxyAudioSubsystem]
UseDirectSound=audio 0
UseFilter=audio 1
UseSurround=audio 2
UseStereo=audio 3
UseCDMusic=audio 4
UseDigitalMusic=audio 5
UseSpatial=audio 6
UseReverb=audio 7
Use3dHardware=audio 8
LowSoundQuality=audio 9
ReverseStereo=audio 10
Latency=audio 11
OutputRate=audio 12
EffectsChannels=audio 13
DopplerSpeed=audio 14
MusicVolume=audio 15
SoundVolume=audio 16
AmbientFactor=audio 17
Extra=1

[ENGINE.PLAYERPAWN]
Password=secret
DodgeClickTime=player 0
Bob=player 1
MyAutoAim=player 2
Handedness=player 3
bLookUpStairs=player 4
bSnapToLevel=player 5
bAlwaysMouseLook=player 6
bKeyboardLook=player 7
bInvertMouse=player 8
MouseSensitivity=player 9
NetSpeed=player 10
ClientNetMinDelta=player 11
ServerNetMinDelta=player 12
WeaponPriority[0]=Minigun
WeaponPriority[1]=Rifle
WeaponPriority[2]=ASMD
WeaponPriority[3]=None
WeaponPriority[4]=None
WeaponPriority[5]=None
WeaponPriority[6]=None
WeaponPriority[7]=None
WeaponPriority[8]=None
WeaponPriority[9]=None
WeaponPriority[10]=None
WeaponPriority[11]=None
WeaponPriority[12]=None
WeaponPriority[13]=None
WeaponPriority[14]=None
WeaponPriority[15]=None
WeaponPriority[16]=None
WeaponPriority[17]=None
WeaponPriority[18]=None
WeaponPriority[19]=None


[Engine.Pawn]
PlayerName=Zo)"
                                    "\xEB"
                                    R"(
TeamName=Red


)",
                                    kIniEnd)));
}

TEST(UnrealIni, LeavesOutWhatIsNotSelectedButNotTheTexts) {
    EXPECT_EQ(Written(Ini({{"[galaxy.galaxyaudiosubsystem]", ""}, {"[engine.pawn]", ""}})),
              Crlf(Join(R"([galaxy.galaxyaudiosubsystem]


[engine.pawn]
PlayerName=
TeamName=


)",
                        kIniEnd)));
}

TEST(UnrealIni, WritesAPointWhereTheLocaleHasAComma) {
    ScriptDocument d = Ini({{"[engine.playerpawn]", ""}});
    d.Dialect.DecimalSeparator = ',';
    Choose(d.PlayerPawn_Cbo[1], "0,016000");
    EXPECT_EQ(Lines(d, "Bob=0.016000"), 1);
}

TEST(UnrealIni, WritesMoreThanTwentyWeaponsAllAndNoFreePlace) {
    ScriptDocument d = Ini({{"[engine.playerpawn]", ""}});
    for (int i = 0; i < 25; ++i) {
        d.WeaponsPriority_Lst.Items.push_back("W" + std::to_string(i));
    }
    EXPECT_EQ(Lines(d, "WeaponPriority[0]=W24"), 1);
    EXPECT_EQ(Lines(d, "WeaponPriority[24]=W0"), 1);
    EXPECT_FALSE(Holds(Written(d), "None"));
}

TEST(EngineInput, BeginsWithFortyAliases) {
    ScriptDocument d = InputIni();
    d.AliasTable.Insert({false, "zoom", "SetFOV 30"});
    d.AliasTable.Insert({false, "both", "Fire | AltFire"});
    Text expected =
        "[Engine.Input]\r\n"
        "Aliases[0]=(Command=\"Fire | AltFire\",Alias=both)\r\n"
        "Aliases[1]=(Command=\"SetFOV 30\",Alias=zoom)\r\n";
    for (int i = 2; i <= 39; ++i) {
        expected += "Aliases[" + std::to_string(i) + "]=(Command=\"\",Alias=None)\r\n";
    }
    expected += "Space=\r\n";
    EXPECT_TRUE(Written(d).starts_with(expected));
}

TEST(EngineInput, WritesMoreThanFortyAliasesAllAndNoFreePlace) {
    ScriptDocument d = InputIni();
    for (int i = 0; i < 45; ++i) {
        d.AliasTable.Insert({false, Join("a", std::to_string(10 + i)), "Fire"});
    }
    EXPECT_EQ(Lines(d, "Aliases[44]=(Command=\"Fire\",Alias=a54)"), 1);
    EXPECT_FALSE(Holds(Written(d), "None"));
}

TEST(EngineInput, WritesEveryKeyInOrderEvenTheFreeOnes) {
    ScriptDocument d = InputIni();
    Bind(d, 1, "Fire");
    Bind(d, 2, "\"\"");
    const Text script = Written(d);
    const std::size_t first = script.find("Space=");
    ASSERT_NE(first, Text::npos);
    Text expected = "Space=\r\nA=Fire\r\nB=\r\n";
    for (const TextView name : {"C",
                                "D",
                                "E",
                                "F",
                                "G",
                                "H",
                                "I",
                                "J",
                                "K",
                                "L",
                                "M",
                                "N",
                                "O",
                                "P",
                                "Q",
                                "R",
                                "S",
                                "T",
                                "U",
                                "V",
                                "W",
                                "X",
                                "Y",
                                "Z",
                                "0",
                                "1",
                                "2",
                                "3",
                                "4",
                                "5",
                                "6",
                                "7",
                                "8",
                                "9",
                                "F1",
                                "F2",
                                "F3",
                                "F4",
                                "F5",
                                "F6",
                                "F7",
                                "F8",
                                "F9",
                                "F10",
                                "F11",
                                "F12",
                                "Shift",
                                "Ctrl",
                                "Alt",
                                "Comma",
                                "Period",
                                "Slash",
                                "Semicolon",
                                "SingleQuote",
                                "Tab",
                                "LeftBracket",
                                "RightBracket",
                                "BackSlash",
                                "Tilde",
                                "Minus",
                                "Equals",
                                "Backspace",
                                "Insert",
                                "Delete",
                                "Home",
                                "End",
                                "PageUp",
                                "PageDown",
                                "Up",
                                "Down",
                                "Left",
                                "Right",
                                "Enter",
                                "GreyStar",
                                "GreyPlus",
                                "Pause",
                                "LeftMouse",
                                "RightMouse",
                                "MiddleMouse",
                                "GreySlash",
                                "GreyMinus",
                                "NumPad7",
                                "NumPad8",
                                "NumPad9",
                                "NumPad4",
                                "NumPad5",
                                "NumPad6",
                                "NumPad1",
                                "NumPad2",
                                "NumPad3",
                                "Enter",
                                "NumPad0",
                                "NumPadPeriod",
                                "MouseWheelUp",
                                "MouseWheelDown",
                                "Joy1",
                                "Joy2",
                                "Joy3",
                                "Joy4",
                                "Joy5",
                                "Joy6"}) {
        expected += Join(name, "=\r\n");
    }
    for (int i = 1; i <= 32; ++i) {
        expected += Join("Aux", std::to_string(i), "=\r\n");
    }
    expected += Crlf(R"(CapsLock=LookToggle
Escape=ShowMenu
MouseX=Axis aMouseX Speed=2.0
MouseY=Axis aMouseY Speed=3.0


)");
    expected += Crlf(kIniEnd);
    EXPECT_EQ(script.substr(first), expected);
}

TEST(EngineInput, HasTwoLinesForEnter) {
    ScriptDocument d = InputIni();
    Bind(d, 75, "Talk");
    Bind(d, 93, "Fire");
    EXPECT_EQ(Lines(d, "Enter=Talk"), 1);
    EXPECT_EQ(Lines(d, "Enter=Fire"), 1);
}

TEST(EngineInput, AMouseAxisWithoutASpeedDoesNotEndItsLine) {
    ScriptDocument d = InputIni();
    d.Sections.front().Text = "Unknown=1";
    d.MouseBind_Cbo[0].ListIndex = -1;
    EXPECT_EQ(Lines(d, "MouseX=MouseY=Axis aMouseY Speed=3.0"), 1);
    EXPECT_EQ(Lines(d, "Unknown=1"), 1);
    d.MouseBind_Cbo[1].ListIndex = -1;
    EXPECT_EQ(Lines(d, "MouseX=MouseY=Unknown=1"), 1);
}

TEST(EngineInput, AMouseAxisHasAPointInItsSpeed) {
    ScriptDocument d = InputIni();
    d.Dialect.DecimalSeparator = ',';
    Choose(d.MouseBind_Cbo[0], "2,5");
    EXPECT_EQ(Lines(d, "MouseX=Axis aMouseX Speed=2.5"), 1);
}

TEST(UnrealIni, DiffersFromDayToDayInTheLastLineAlone) {
    const ScriptDocument d = InputIni();
    Text later = ComposeScript(d, {2026, 2, 3, 0, 0, 0});
    EXPECT_TRUE(later.ends_with("[Lorvane 3D]\r\nLastEdited=02/03/2026\r\n"));
    later.replace(later.find("02/03/2026"), 10, "11/21/1999");
    EXPECT_EQ(later, Written(d));
}

TEST(UnrealIni, GivesEachOfTwoSectionsOfOneNameItsLines) {
    ScriptDocument d = Ini({{"[Engine.Pawn]", ""}, {"[engine.pawn]", ""}});
    d.Name_Txt.Text = "Z";
    EXPECT_EQ(Lines(d, "PlayerName=Z"), 2);
}

}  // namespace
}  // namespace lv
