// The table that the program carries, said a second time.

#include <gtest/gtest.h>

#include <map>
#include <vector>

#include "tests/support/shipped_engines.h"

namespace lv {
namespace {

using namespace engine_game;

struct EngineCase {
    const char* Name;
    const char* Programs;
    unsigned Games;
    EngineRole Role;
    const char* Data;
    const char* Debian;
    const char* Known;
};

constexpr EngineRole kClient = EngineRole::Client;
constexpr EngineRole kServer = EngineRole::Server;
constexpr EngineRole kBoth = EngineRole::Both;

constexpr unsigned kFteGames = kQuake | kQuakeWorld | kHexen2 | kQuake2;

// clang-format off
constexpr EngineCase kCases[] = {
    // name, programs, games, role, data, Debian, known
    {"QuakeSpasm", "quakespasm quakespasm-sdl12 quakespasm-sdl2 quakespasm*.appimage net.sourceforge.quakespasm.quakespasm", kQuake, kBoth, "cwd; -basedir", "quakespasm", "tried"},
    {"QuakeSpasm-Spiked", "quakespasm-spiked quakespasm-spiked-*.exe quakespasm-spiked*.appimage", kQuake, kBoth, "cwd; -basedir", "", "source"},
    {"vkQuake", "vkquake vkquake*.appimage", kQuake, kBoth, "cwd; -basedir", "", "source"},
    {"Ironwail", "ironwail ironwail*.appimage", kQuake, kBoth, "cwd; -basedir", "", "source"},
    {"DarkPlaces", "darkplaces darkplaces-sdl darkplaces-sdl2 darkplaces-sdl2-vs20* darkplaces-glx darkplaces*.appimage", kQuake | kQuakeWorld, kBoth, "cwd; -basedir", "darkplaces", "tried"},
    {"DarkPlaces server", "darkplaces-dedicated darkplaces-server", kQuake, kServer, "cwd; -basedir", "darkplaces-server", "tried"},
    {"FTEQW", "fteqw fteqw32 fteqw64 fteqw-gl fteqw-gl32 fteqw-gl64 fteqw-vk fteqw-vk32 fteqw-vk64 fteqw-sdl fteqw-sdl32 fteqw-sdl64 fteglqw fteglqw64 fted3dqw fted3dqw64 ftevkqw ftevkqw64 org.fteqw.fteqw info.triptohell.fteqw", kFteGames, kBoth, "cwd; -basedir", "", "source"},
    {"FTEQW server", "fteqw-sv fteqw-sv32 fteqw-sv64 fteqwsv fteqwsv64", kFteGames, kServer, "cwd; -basedir", "", "source"},
    {"ezQuake", "ezquake ezquake-linux-x86_64 ezquake-linux-aarch64 ezquake*.appimage io.github.ezquake", kQuakeWorld, kClient, "-basedir; cwd", "ezquake", "tried"},
    {"TyrQuake", "tyr-quake tyr-glquake", kQuake, kBoth, "-basedir", "", "source"},
    {"TyrQuake QuakeWorld", "tyr-qwcl tyr-glqwcl", kQuakeWorld, kClient, "-basedir", "", "source"},
    {"TyrQuake server", "tyr-qwsv", kQuakeWorld, kServer, "-basedir", "", "source"},
    {"mvdsv", "mvdsv mvdsv_linux_amd64", kQuakeWorld, kServer, "cwd; -basedir", "mvdsv", "tried"},
    {"Hammer of Thyrion", "hexen2 glhexen2", kHexen2, kBoth, "-basedir; cwd", "", "source"},
    {"Hammer of Thyrion server", "h2ded", kHexen2, kServer, "-basedir; cwd", "", "source"},
    {"Hammer of Thyrion HexenWorld", "hwcl glhwcl", kHexenWorld, kClient, "-basedir; cwd", "", "source"},
    {"Hammer of Thyrion HexenWorld server", "hwsv", kHexenWorld, kServer, "-basedir; cwd", "", "source"},
    {"Yamagi Quake II", "quake2 yquake2 yamagi-quake2 yquake2*.appimage", kQuake2, kBoth, "-datadir; +set basedir", "yamagi-quake2", "source"},
    {"Yamagi Quake II server", "q2ded", kQuake2, kServer, "-datadir; +set basedir", "yamagi-quake2", "source"},
    {"Q2PRO", "q2pro", kQuake2, kBoth, "+set basedir", "", "source"},
    {"Q2PRO server", "q2proded", kQuake2, kServer, "+set basedir", "", "source"},
    {"Quake II RTX", "q2rtx q2rtx.sh", kQuake2, kBoth, "+set basedir", "", "source"},
    {"Quake II RTX server", "q2rtxded", kQuake2, kServer, "+set basedir", "", "source"},
    {"Xash3D", "xash3d xash3d-fwgs*.appimage su.xash.engine.compat.i386", kHalfLife, kBoth, "env:XASH3D_BASEDIR", "", "source"},
    {"Xash3D server", "xash", kHalfLife, kServer, "env:XASH3D_BASEDIR", "", "source"},
    {"Heretic2R", "heretic2r", kHeretic2, kBoth, "cwd; -basedir", "", "source"},
    {"Heretic2R server", "heretic2r-server", kHeretic2, kServer, "cwd; -basedir", "", "source"},
    {"OldUnreal 227", "unreallinux.bin unreal-bin-amd64 unreal-bin-arm64 unreal-bin-x86", kUnreal, kClient, "cwd", "", "not tried"},
    {"OldUnreal 227 server", "ucclinux.bin ucc-bin ucc-bin-amd64 ucc-bin-arm64 ucc-bin-x86", kUnreal, kServer, "cwd", "", "not tried"},
};

struct HowCase {
    const char* Name;
    CommandEnd Ends;
    bool KeepsQuotes;
    SetCommand Set;
    std::size_t Longest;
    bool Autoexec;
    bool HomeOfAccount;
};

constexpr HowCase kHow[] = {
    // name, a command ends, quotes, set, limit, autoexec, home of the account
    {"QuakeSpasm",                          CommandEnd::AnyPlus,      false, SetCommand::No,    255, true,  true},
    {"QuakeSpasm-Spiked",                   CommandEnd::AnyPlus,      false, SetCommand::Yes,   255, true,  true},
    {"vkQuake",                             CommandEnd::AnyPlus,      false, SetCommand::Yes,   255, true,  true},
    {"Ironwail",                            CommandEnd::AnyPlus,      false, SetCommand::No,    255, true,  true},
    {"DarkPlaces",                          CommandEnd::ArgumentWord, true,  SetCommand::Yes,   0,   false, false},
    {"DarkPlaces server",                   CommandEnd::ArgumentWord, true,  SetCommand::Yes,   0,   false, false},
    {"FTEQW",                               CommandEnd::ArgumentWord, true,  SetCommand::Yes,   0,   false, false},
    {"FTEQW server",                        CommandEnd::ArgumentWord, true,  SetCommand::Yes,   0,   false, false},
    {"ezQuake",                             CommandEnd::AfterBlank,   false, SetCommand::Early, 0,   false, false},
    {"TyrQuake",                            CommandEnd::AnySign,      false, SetCommand::No,    0,   false, false},
    {"TyrQuake QuakeWorld",                 CommandEnd::AnySign,      false, SetCommand::No,    0,   false, false},
    {"TyrQuake server",                     CommandEnd::AnySign,      false, SetCommand::No,    0,   false, false},
    {"mvdsv",                               CommandEnd::AnySign,      false, SetCommand::Yes,   0,   false, false},
    {"Hammer of Thyrion",                   CommandEnd::Argument,     false, SetCommand::No,    0,   false, true},
    {"Hammer of Thyrion server",            CommandEnd::Argument,     false, SetCommand::No,    0,   false, true},
    {"Hammer of Thyrion HexenWorld",        CommandEnd::Argument,     false, SetCommand::No,    0,   false, true},
    {"Hammer of Thyrion HexenWorld server", CommandEnd::Argument,     false, SetCommand::No,    0,   false, true},
    {"Yamagi Quake II",                     CommandEnd::AnyPlus,      false, SetCommand::Early, 0,   false, false},
    {"Yamagi Quake II server",              CommandEnd::AnyPlus,      false, SetCommand::Early, 0,   false, false},
    {"Q2PRO",                               CommandEnd::ArgumentPlus, false, SetCommand::Early, 0,   false, false},
    {"Q2PRO server",                        CommandEnd::ArgumentPlus, false, SetCommand::Early, 0,   false, false},
    {"Quake II RTX",                        CommandEnd::ArgumentPlus, false, SetCommand::Early, 0,   false, false},
    {"Quake II RTX server",                 CommandEnd::ArgumentPlus, false, SetCommand::Early, 0,   false, false},
    {"Xash3D",                              CommandEnd::ArgumentWord, true,  SetCommand::Yes,   0,   false, false},
    {"Xash3D server",                       CommandEnd::ArgumentWord, true,  SetCommand::Yes,   0,   false, false},
    {"Heretic2R",                           CommandEnd::AnySign,      false, SetCommand::Early, 0,   false, false},
    {"Heretic2R server",                    CommandEnd::AnySign,      false, SetCommand::Early, 0,   false, false},
    {"OldUnreal 227",                       CommandEnd::Never,        true,  SetCommand::Yes,   0,   false, false},
    {"OldUnreal 227 server",                CommandEnd::Never,        true,  SetCommand::Yes,   0,   false, false},
};

struct RefusedCase {
    const char* Name;
    const char* Refused;
};

constexpr RefusedCase kRefused[] = {
    {"QuakeSpasm",          "-heapsize -winmem -mem -minmemory -zone"},
    {"QuakeSpasm-Spiked",   "-heapsize -winmem -mem -minmemory -zone"},
    {"vkQuake",             "-heapsize -winmem -mem -minmemory -zone -bpp"},
    {"Ironwail",            "-heapsize -winmem -mem -minmemory -zone -nocdaudio -bpp"},
    {"DarkPlaces",          "-heapsize -winmem -mem -minmemory -zone -nolan -noudp -bpp"},
    {"DarkPlaces server",   "-heapsize -winmem -mem -minmemory -zone -nolan -noudp -width -height -bpp -window -fullscreen -nosound -nocdaudio -listen"},
    {"FTEQW",               "-heapsize -winmem -mem -minmemory -zone -nolan -noudp -listen"},
    {"FTEQW server",        "-heapsize -winmem -mem -minmemory -zone -nolan -noudp -width -height -bpp -window -fullscreen -nosound -nocdaudio -listen -dedicated"},
    {"ezQuake",             "-heapsize -winmem -mem -minmemory -zone -nolan -noudp -listen -nocdaudio -dedicated"},
    {"TyrQuake",            "-heapsize -winmem -mem -minmemory"},
    {"TyrQuake QuakeWorld", "-heapsize -winmem -mem -minmemory -dedicated -listen"},
    {"TyrQuake server",     "-heapsize -winmem -mem -minmemory -width -height -bpp -window -fullscreen -nosound -nocdaudio -dedicated -listen"},
    {"mvdsv",               "-heapsize -winmem -mem -minmemory -zone -nolan -noudp -width -height -bpp -window -fullscreen -nosound -nocdaudio -dedicated -listen"},
    {"Hammer of Thyrion",   "-heapsize -winmem -mem -minmemory"},
    {"Hammer of Thyrion server",            "-heapsize -winmem -mem -minmemory -width -height -bpp -window -fullscreen -nosound -nocdaudio -dedicated -listen"},
    {"Hammer of Thyrion HexenWorld",        "-heapsize -winmem -mem -minmemory -dedicated -listen"},
    {"Hammer of Thyrion HexenWorld server", "-heapsize -winmem -mem -minmemory -width -height -bpp -window -fullscreen -nosound -nocdaudio -dedicated -listen"},
    {"Yamagi Quake II",        "-heapsize -winmem -mem -minmemory -zone -nolan -noudp -bpp -nocdaudio"},
    {"Yamagi Quake II server", "-heapsize -winmem -mem -minmemory -zone -nolan -noudp -bpp -nocdaudio -width -height -window -fullscreen -nosound -dedicated -listen"},
    {"Q2PRO",               "-heapsize -winmem -mem -minmemory -zone -*"},
    {"Q2PRO server",        "-heapsize -winmem -mem -minmemory -zone -*"},
    {"Quake II RTX",        "-heapsize -winmem -mem -minmemory -zone -*"},
    {"Quake II RTX server", "-heapsize -winmem -mem -minmemory -zone -*"},
    {"Xash3D",              "-heapsize -winmem -mem -minmemory -zone -nolan -bpp -nocdaudio -listen"},
    {"Xash3D server",       "-heapsize -winmem -mem -minmemory -zone -nolan -bpp -nocdaudio -listen -width -height -window -fullscreen -nosound -dedicated"},
    {"Heretic2R",           "-heapsize -winmem -mem -minmemory -zone -window -fullscreen -width -height -bpp -nolan -noudp -nocdaudio -nosound -listen"},
    {"Heretic2R server",    "-heapsize -winmem -mem -minmemory -zone -window -fullscreen -width -height -bpp -nolan -noudp -nocdaudio -nosound -listen"},
    {"OldUnreal 227",        ""},
    {"OldUnreal 227 server", ""},
};
// clang-format on

Text Listed(const std::vector<Text>& words) {
    Text all;
    for (const Text& word : words) {
        all += (all.empty() ? "" : " ") + word;
    }
    return all;
}

Text Listed(const std::vector<DataWay>& ways) {
    Text all;
    for (const DataWay& way : ways) {
        const std::map<DataWay::Sort, Text> starts = {{DataWay::Sort::WorkingDirectory, "cwd"},
                                                      {DataWay::Sort::Option, ""},
                                                      {DataWay::Sort::Variable, "+set "},
                                                      {DataWay::Sort::Environment, "env:"}};
        all += (all.empty() ? "" : "; ") + starts.at(way.How) + way.Word;
    }
    return all;
}

TEST(ShippedTable, HasNoFaults) {
    EXPECT_EQ(ReadEngines("", ShippedEngineText()).Faults, std::vector<Text>());
}

TEST(ShippedTable, HasTheseRowsInThisOrder) {
    const std::vector<Engine>& engines = ShippedEngines().Engines;
    ASSERT_EQ(engines.size(), std::size(kCases));
    for (std::size_t i = 0; i < engines.size(); ++i) {
        EXPECT_EQ(engines[i].Name, kCases[i].Name);
        EXPECT_EQ(Listed(engines[i].Programs), kCases[i].Programs) << kCases[i].Name;
        EXPECT_EQ(engines[i].Games, kCases[i].Games) << kCases[i].Name;
        EXPECT_EQ(engines[i].Role, kCases[i].Role) << kCases[i].Name;
        EXPECT_EQ(Listed(engines[i].DataWays), kCases[i].Data) << kCases[i].Name;
        EXPECT_EQ(engines[i].DebianPackage, kCases[i].Debian) << kCases[i].Name;
        EXPECT_EQ(engines[i].Known, kCases[i].Known) << kCases[i].Name;
        EXPECT_TRUE(engines[i].HomePage.starts_with("https://")) << kCases[i].Name;
        EXPECT_NE(engines[i].WithoutData, "") << kCases[i].Name;
    }
}

TEST(ShippedTable, SaysHowEachReadsItsCommandLine) {
    ASSERT_EQ(std::size(kHow), ShippedEngines().Engines.size());
    for (const HowCase& row : kHow) {
        const Engine& engine = ShippedEngine(row.Name);
        EXPECT_EQ(engine.Ends, row.Ends) << row.Name;
        EXPECT_EQ(engine.KeepsQuotes, row.KeepsQuotes) << row.Name;
        EXPECT_EQ(engine.Set, row.Set) << row.Name;
        EXPECT_EQ(engine.LongestLine, row.Longest) << row.Name;
        EXPECT_EQ(engine.MostArguments, row.Longest == 255 ? 50U : 0U) << row.Name;
        EXPECT_EQ(engine.SharewareNeedsAutoexec, row.Autoexec) << row.Name;
        EXPECT_EQ(engine.HomeOfAccount, row.HomeOfAccount) << row.Name;
    }
}

TEST(ShippedTable, SaysWhatEachMustNotGet) {
    ASSERT_EQ(std::size(kRefused), ShippedEngines().Engines.size());
    for (const RefusedCase& row : kRefused) {
        std::vector<Text> refused;
        for (const RefusedSwitch& each : ShippedEngine(row.Name).Refused) {
            refused.push_back(each.Switch);
            EXPECT_NE(each.Reason, "") << row.Name;
        }
        EXPECT_EQ(Listed(refused), row.Refused) << row.Name;
    }
}

TEST(ShippedTable, RunsEveryScriptButUnreals) {
    for (const Engine& engine : ShippedEngines().Engines) {
        EXPECT_EQ(engine.ScriptEnding, engine.Games == kUnreal ? ".ini" : "") << engine.Name;
    }
}

}  // namespace
}  // namespace lv
