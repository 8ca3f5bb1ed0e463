#include "foundry/half_life/registry_script.h"

#include <random>

#include "foundation/field_strings.h"
#include "platform/memory/memory_platform.h"
#include "tests/foundry/rounds.h"
#include "tests/foundry/script_fixture.h"

namespace lv {
namespace {

constexpr TextView kHead = R"(//*/////////////////*//
//*                 *//
//* Setup Foundry   *//
//*  Half-Life      *//
//*  Registry       *//
//*  Conversion     *//
//*                 *//
//* 11/21/1999      *//
//*                 *//
//*/////////////////*//

echo |========================|
echo |........................|
echo |..Setup Foundry ROCKS!..|
echo |........................|
echo |========================|

//*/////////////////*//
//*                 *//
//* Bindings        *//
//*                 *//
//*/////////////////*//

)";

constexpr TextView kMiddle = R"(//*/////////////////*//
//*                 *//
//* Settings        *//
//*                 *//
//*/////////////////*//
)";

constexpr TextView kEnd = R"(//*/////////////////*//
//*                 *//
//* SetupFoundry    *//
//*                 *//
//*/////////////////*//
)";

void SetCvar(HalfLifePlayer& player, TextView name, TextView value) {
    for (std::size_t i = 0; i < kHalfLifeCvars.size(); ++i) {
        if (kHalfLifeCvars[i] == name) {
            player.Cvars[i] = value;
            return;
        }
    }
    FAIL() << "no such setting: " << name;
}

Text Cvar(const HalfLifePlayer& player, TextView name) {
    for (std::size_t i = 0; i < kHalfLifeCvars.size(); ++i) {
        if (kHalfLifeCvars[i] == name) {
            return player.Cvars[i];
        }
    }
    return "(no such setting)";
}

Text Written(const HalfLifePlayer& player) {
    return HalfLifeScript(player, kScriptDay);
}

HalfLifePlayer Read(TextView script) {
    MemoryFiles files;
    files.AddFile("C:\\a.cfg", script);
    const auto file = files.Open("C:\\a.cfg");
    ScriptLines lines(*file.Value);
    return ReadHalfLifeScript(lines);
}

int Set(const HalfLifePlayer& player) {
    int count = player.Nickname.empty() ? 0 : 1;
    for (const Text& command : player.Keys) {
        count += command.empty() ? 0 : 1;
    }
    for (const Text& value : player.Cvars) {
        count += value.empty() ? 0 : 1;
    }
    return count;
}

TEST(HalfLifeScript, OfNothingHasItsBannersAndAName) {
    EXPECT_EQ(Written({}), Crlf(Join(kHead, kMiddle, "name \"\"\n", kEnd)));
}

TEST(HalfLifeScript, OfAPlayerByteForByte) {
    HalfLifePlayer player;
    player.Nickname = "Gordon";
    for (std::size_t i = 0; i < kHalfLifeCvars.size(); ++i) {
        player.Cvars[i] = std::to_string(100 + i);
    }
    SetCvar(player, "mlook", "1");
    player.Keys['w'] = "+forward";
    player.Keys[9] = "+showscores";
    player.Keys[133] = "+duck";
    player.Keys[200] = "+attack";
    player.Keys[96] = "toggleconsole";
    player.Keys[255] = "pause";
    EXPECT_EQ(Written(player), Crlf(Join(kHead, R"(bind "tab"           "+showscores"
bind "~"             "toggleconsole"
bind "w"             "+forward"
bind "ctl"           "+duck"
bind "mouse1"        "+attack"
bind "pause"         "pause"
)",
                                         kMiddle, R"(name "Gordon"
a3d 100
autoaim 101
bgmvolume 102
brightness 103
crosshair 104
gamma 105
himodels 106
hisound 107
joystick 108
lookspring 109
lookstrafe 110
m_pitch 111
mfilter 112
+mlook
model 114
plate_color 115
Rate 116
s_eax 117
sensitivity 118
suit_color 119
suitvolume 120
viewsize 121
volume 122
windowed_mouse 123
)",
                                         kEnd)));
}

TEST(HalfLifeScript, SpellsPlateColorWithAnUnderscore) {
    HalfLifePlayer player;
    SetCvar(player, "plate color", "30");
    SetCvar(player, "suit color", "6");
    const Text script = Written(player);
    EXPECT_EQ(CountLines(script, "plate_color 30"), 1);
    EXPECT_EQ(CountLines(script, "suit_color 6"), 1);
    EXPECT_FALSE(Holds(script, "plate color"));
    EXPECT_FALSE(Holds(script, "suit color"));
}

TEST(HalfLifeScript, LooksAtFourRunsOfKeyCodes) {
    for (int code = 0; code < 256; ++code) {
        HalfLifePlayer player;
        player.Keys[static_cast<std::size_t>(code)] = "x";
        // A line feed names no key: it would end the line in the middle of the name.
        const bool converted =
            (code <= 32 && code != 10) || (code >= 42 && code <= 152) || (code >= 200 && code <= 240) || code == 255;
        EXPECT_EQ(Holds(Written(player), "\"x\"\r\n"), converted) << code;
    }
}

TEST(HalfLifeScript, TurnsMlookIntoACommand) {
    HalfLifePlayer player;
    SetCvar(player, "mlook", "0");
    EXPECT_EQ(CountLines(Written(player), "-mlook"), 1);
    player.Keys['m'] = "mlook 1";
    EXPECT_EQ(CountLines(Written(player), "bind \"m\"             \"+mlook\""), 1);
}

TEST(HalfLifeScript, KeepsAValueOnItsLine) {
    HalfLifePlayer player;
    player.Nickname = "a\"\r\nquit\r\n";
    player.Keys['w'] = "one\ntwo";
    SetCvar(player, "model", "gordon\rquit");
    const Text script = Written(player);
    EXPECT_EQ(CountLines(script, "name \"a\"  quit  \""), 1);
    EXPECT_EQ(CountLines(script, "bind \"w\"             \"one two\""), 1);
    EXPECT_EQ(CountLines(script, "model gordon quit"), 1);
}

TEST(ReadHalfLifeScript, TakesBindingsByTheirKeysCode) {
    const HalfLifePlayer player = Read("bind w +forward\r\nBIND \"MOUSE1\" \"+attack\"\nbind ctrl \"+Duck\"\n");
    EXPECT_EQ(player.Keys['w'], "+forward");
    EXPECT_EQ(player.Keys[200], "+attack");
    EXPECT_EQ(player.Keys[133], "+Duck");
    EXPECT_EQ(Set(player), 3);
}

TEST(ReadHalfLifeScript, TheLastBindingOfAKeyStands) {
    EXPECT_EQ(Read("bind w one\nbind W two\n").Keys['w'], "two");
}

TEST(ReadHalfLifeScript, PassesOverKeysThatItDoesNotKnow) {
    EXPECT_EQ(Set(Read("bind kp_home x\nbind joy5 x\nbind ctl x\nbind escape x\nbind w\nbind \"\" x\nbind\n")), 0);
}

TEST(ReadHalfLifeScript, TakesEachSettingToItsValue) {
    struct Row {
        TextView Line;
        TextView Cvar;
        TextView Value;
    };
    const Row rows[] = {
        {"a3d 1", "a3d", "1"},
        {"autoaim 0", "autoaim", "0"},
        {"bgmvolume 0.5", "bgmvolume", "0.5"},
        {"brightness 2", "brightness", "2"},
        {"crosshair 1", "crosshair", "1"},
        {"Gamma \"2.5\"", "gamma", "2.5"},
        {"himodels 1", "himodels", "1"},
        {"lookspring 1", "lookspring", "1"},
        {"lookstrafe 1", "lookstrafe", "1"},
        {"m_pitch -0.022", "m_pitch", "-0.022"},
        {"mfilter 1", "mfilter", "1"},
        {"+mlook", "mlook", "1"},
        {"model Gordon", "model", "Gordon"},
        {"plate_color 30", "plate color", "30"},
        {"\"plate color\" 31", "plate color", "31"},
        {"rate 2500", "Rate", "2500"},
        {"RATE 2500", "Rate", "2500"},
        {"s_eax 1", "s_eax", "1"},
        {"sensitivity 5", "sensitivity", "5"},
        {"suitvolume 0.25", "suitvolume", "0.25"},
        {"viewsize 120", "viewsize", "120"},
        {"volume 0.8", "volume", "0.8"},
        {"s_volume 0.7", "volume", "0.7"},
        {"volume\t\"0.8\"", "volume", "0.8"},
        {"windowed_mouse 1", "windowed_mouse", "1"},
        {"set gamma 3", "gamma", "3"},
        {"SET plate_color 7", "plate color", "7"},
    };
    for (const Row& row : rows) {
        const HalfLifePlayer player = Read(row.Line);
        EXPECT_EQ(Cvar(player, row.Cvar), row.Value) << row.Line;
        EXPECT_EQ(Set(player), 1) << row.Line;
    }
}

TEST(ReadHalfLifeScript, KnowsNoWayBackForTheOthers) {
    EXPECT_EQ(Set(Read("hisound 1\njoystick 1\nsuit_color 3\nmlook 1\n-mlook\nfov 90\nalias w \"bind x y\"\n")), 0);
}

TEST(ReadHalfLifeScript, TakesTheName) {
    EXPECT_EQ(Read("name \"player\"\r\nname \" Zo\xEB the 1st \"\r\n").Nickname, "Zo\xEB the 1st");
    EXPECT_EQ(Read("name \"\"").Nickname, "");
}

TEST(ReadHalfLifeScript, CutsALineAtItsComment) {
    EXPECT_EQ(Set(Read("// bind w x\n  //gamma 2\n")), 0);
    EXPECT_EQ(Cvar(Read("gamma 2//3"), "gamma"), "2");
    EXPECT_EQ(Read("bind w \"say http://x\"").Keys['w'], "say http:");
}

TEST(ReadHalfLifeScript, EndsAtTheHundredAndFirstEmptyLine) {
    EXPECT_EQ(Cvar(Read(Join(Text(100, '\n'), "gamma 2")), "gamma"), "2");
    EXPECT_EQ(Cvar(Read(Join(Text(101, '\n'), "gamma 2")), "gamma"), "");
}

TEST(ReadHalfLifeScript, TakesNoValueThatIsTooLongToBeOne) {
    const Text longest(16000, 'x');
    EXPECT_EQ(Read(Join("bind w ", longest)).Keys['w'], longest);
    EXPECT_EQ(Set(Read(Join("bind w ", longest, "x"))), 0);
    EXPECT_EQ(Set(Read(Join("name ", Text(1000000, 'n'), "\nmodel ", Text(1000000, 'm')))), 0);
}

TEST(ReadHalfLifeScript, PassesOverZeroBytes) {
    EXPECT_EQ(Cvar(Read(TextView("model a\0b", 9)), "model"), "ab");
    EXPECT_EQ(Cvar(Read(TextView("mod\0el \0b", 9)), "model"), "b");
}

TEST(ReadHalfLifeScript, BringsBackWhatTheOtherDirectionWrote) {
    HalfLifePlayer player;
    player.Nickname = "Gordon";
    SetCvar(player, "mlook", "1");
    SetCvar(player, "plate color", "30");
    SetCvar(player, "Rate", "2500");
    SetCvar(player, "hisound", "1");
    player.Keys['w'] = "+forward";
    player.Keys[96] = "toggleconsole";
    player.Keys[238] = "impulse 100";
    const HalfLifePlayer read = Read(Written(player));
    EXPECT_EQ(read.Nickname, "Gordon");
    EXPECT_EQ(Cvar(read, "mlook"), "1");
    EXPECT_EQ(Cvar(read, "plate color"), "30");
    EXPECT_EQ(Cvar(read, "Rate"), "2500");
    EXPECT_EQ(Cvar(read, "hisound"), "");
    EXPECT_EQ(read.Keys, player.Keys);
}

// Whatever a script holds, no value breaks the bounds that the registry's side relies on.
TEST(ReadHalfLifeScript, SurvivesHostileScripts) {
    std::mt19937 random(20);
    const Text pieces[] = {
        "bind ",  "name ",  "set ",           "\"",          " ",    "//",   "\r",      "\n",     "w",
        "+mlook", "gamma ", "plate_color ",   Text(1, '\0'), "\xA0", "\xFF", "mouse1 ", "alias ", "[",
        "\\",     "..\\",   "bind bind bind "};
    for (int round = 0; round < Rounds(2000); ++round) {
        Text script;
        for (std::size_t left = random() % 200; left > 0; --left) {
            script += random() % 8 == 0 ? Text(1, static_cast<char>(random() % 256)) : pieces[random() % 21];
        }
        const HalfLifePlayer player = Read(script);
        for (const Text& value : player.Keys) {
            EXPECT_LE(value.size(), 16000u);
            EXPECT_EQ(value.find_first_of(TextView("\0\r\n", 3)), Text::npos);
        }
        for (const Text& value : player.Cvars) {
            EXPECT_EQ(value.find_first_of(TextView("\0\r\n", 3)), Text::npos);
        }
    }
}

TEST(ReadHalfLifeScript, HoldsOneOfManyBindingsOfAKey) {
    Text script;
    for (int i = 0; i < Rounds(200000); ++i) {
        script += "bind w x\n";
    }
    EXPECT_EQ(Set(Read(script)), 1);
}

}  // namespace
}  // namespace lv
