#include "console/engine_consoles.h"

#include <gtest/gtest.h>

#include "tests/support/shipped_engines.h"

namespace lv {
namespace {

struct EngineCase {
    const char* Program;
    Game GameKind;
    bool QuakeWorld;
    Console Has;
};

constexpr EngineCase kCases[] = {
    {"quakespasm", Game::Quake, false, Console::QuakeSpasm},
    {"quakespasm-spiked", Game::Quake, false, Console::Ironwail},
    {"vkquake", Game::Quake, false, Console::Ironwail},
    {"ironwail", Game::Quake, false, Console::Ironwail},
    {"darkplaces", Game::Quake, false, Console::DarkPlaces},
    {"darkplaces-server", Game::Quake, false, Console::DarkPlaces},
    {"fteqw", Game::Hexen2, false, Console::Fte},
    {"ezquake", Game::Quake, true, Console::EzQuake},
    {"tyr-quake", Game::Quake, false, Console::Quake},
    {"tyr-qwcl", Game::Quake, true, Console::QuakeWorld},
    {"glhexen2", Game::Hexen2, false, Console::Hexen2},
    {"glhwcl", Game::Hexen2, false, Console::HexenWorld},
    {"hwsv", Game::Hexen2, false, Console::HexenWorld},
    {"yquake2", Game::Quake2, false, Console::Yamagi},
    {"q2pro", Game::Quake2, false, Console::Q2Pro},
    {"q2rtx", Game::Quake2, false, Console::Q2Pro},
    {"xash3d", Game::HalfLife, false, Console::HalfLife},
    {"heretic2r", Game::Heretic2, false, Console::Heretic2},
    {"unreal-bin-amd64", Game::Unreal, false, Console::Unreal},
};

}  // namespace

TEST(ConsoleOfEngine, IsItsOwnOrThatOfItsGame) {
    const EngineTable& engines = ShippedEngines();
    for (const EngineCase& row : kCases) {
        const Engine* const engine = EngineOf(engines, row.Program);
        ASSERT_NE(engine, nullptr) << row.Program;
        EXPECT_EQ(ConsoleOfEngine(*engine, row.GameKind, row.QuakeWorld), row.Has) << row.Program;
    }
}

TEST(ConsoleOfProgram, KnowsHexenWorldsOwnProgramByItsName) {
    EXPECT_EQ(ConsoleOfProgram(nullptr, "C:\\HEXEN2\\HWCL.EXE", Game::Hexen2, false), Console::HexenWorld);
    EXPECT_EQ(ConsoleOfProgram(nullptr, "C:\\HEXEN2\\glhwcl.exe", Game::Hexen2, false), Console::HexenWorld);
    EXPECT_EQ(ConsoleOfProgram(nullptr, "C:\\HWCL\\GLH2.EXE", Game::Hexen2, false), Console::Hexen2);
    EXPECT_EQ(ConsoleOfProgram(nullptr, "C:\\QUAKE\\HWCL.EXE", Game::Quake, true), Console::QuakeWorld);
    EXPECT_EQ(ConsoleOfProgram(nullptr, "", Game::Hexen2, false), Console::Hexen2);
}

}  // namespace lv
