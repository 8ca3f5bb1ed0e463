#include "console/engine_consoles.h"

#include <algorithm>
#include <iterator>

#include "foundation/field_strings.h"

namespace lv {

namespace {

struct EngineConsole {
    TextView Engine;  // how its name begins: the client's and the server's alike
    Console Has;
};

/// The first that fits.
constexpr EngineConsole kEngineConsoles[] = {
    {"QuakeSpasm-Spiked", Console::Ironwail},
    {"QuakeSpasm", Console::QuakeSpasm},
    {"vkQuake", Console::Ironwail},
    {"Ironwail", Console::Ironwail},
    {"DarkPlaces", Console::DarkPlaces},
    {"FTEQW", Console::Fte},
    {"ezQuake", Console::EzQuake},
    {"Hammer of Thyrion HexenWorld", Console::HexenWorld},
    {"Hammer of Thyrion", Console::Hexen2},
    {"Yamagi Quake II", Console::Yamagi},
    {"Q2PRO", Console::Q2Pro},
    {"Quake II RTX", Console::Q2Pro},
    {"Xash3D", Console::HalfLife},
    {"Heretic2R", Console::Heretic2},
};

}  // namespace

Console ConsoleOfEngine(const Engine& engine, Game game, bool isQuakeWorld) {
    const auto* const row = std::ranges::find_if(
        kEngineConsoles, [&](const EngineConsole& each) { return StartsWithText(engine.Name, each.Engine); });
    return row == std::end(kEngineConsoles) ? ConsoleOf(game, isQuakeWorld) : row->Has;
}

Console ConsoleOfProgram(const Engine* engine, TextView program, Game game, bool isQuakeWorld) {
    if (engine != nullptr) {
        return ConsoleOfEngine(*engine, game, isQuakeWorld);
    }
    const Text name = LowerCase(LastPathPart(program));
    const bool isHexenWorld =
        game == Game::Hexen2 && (name.find("hwcl") != Text::npos || name.find("hwsv") != Text::npos);
    return isHexenWorld ? Console::HexenWorld : ConsoleOf(game, isQuakeWorld);
}

}  // namespace lv
