#include "console/engine_consoles.h"

#include <algorithm>
#include <iterator>

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

}  // namespace lv
