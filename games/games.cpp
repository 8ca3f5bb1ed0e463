#include "games/games.h"

#include <algorithm>

#include "foundation/field_strings.h"

namespace lv {

namespace {

constexpr TextView kQuake2Demos = "Quake ][ Demonstrations (*.dm2)|*.dm2|All Files (*.*)|*.*";
constexpr TextView kPlainScripts = "Scripts (*.cfg)|*.cfg|All Files (*.*)|*.*";

constexpr GameFacts kNoGame{};

constexpr GameFacts kGames[] = {
    {.GameKind = Game::Quake,
     .ScriptFamily = Dialect::Quake,
     .Name = "Quake",
     .How = TreeTest::Below,
     .What = "\\id1",
     .BaseGameDir = "ID1",
     .ScriptFilter = "Quake Scripts (*.cfg, *.qs)|*.cfg;*.qs|All Files (*.*)|*.*",
     .DemoFilter = "Quake Demonstrations (*.dem;*.qwd)|*.dem;*.qwd|All Files (*.*)|*.*",
     .ScriptExtension = ".qs"},
    {.GameKind = Game::Hexen2,
     .ScriptFamily = Dialect::Quake,
     .Name = "Hexen2",
     .How = TreeTest::Below,
     .What = "\\data1",
     .BaseGameDir = "DATA1",
     .ScriptFilter = "Hexen Scripts (*.cfg, *.hs)|*.cfg;*.hs|All Files (*.*)|*.*",
     .DemoFilter = "Hexen Demonstrations (*.dem)|*.dem|All Files (*.*)|*.*",
     .ScriptExtension = ".hs"},
    {.GameKind = Game::Quake2,
     .ScriptFamily = Dialect::Quake2,
     .Name = "Quake2",
     .How = TreeTest::Below,
     .What = "\\baseq2",
     .BaseGameDir = "BASEQ2",
     .ScriptFilter = "Quake2 Scripts (*.cfg, *.q2s)|*.cfg;*.q2s|All Files (*.*)|*.*",
     .DemoFilter = kQuake2Demos,
     .ScriptExtension = ".q2s"},
    {.GameKind = Game::Unreal,
     .ScriptFamily = Dialect::Unreal,
     .Name = "Unreal",
     .How = TreeTest::PathHolds,
     .What = "UNREAL\\SYSTEM",
     .BaseGameDir = "MAPS",
     .ScriptFilter = "Unreal INIs (*.ini)|*.ini|All Files (*.*)|*.*",
     .DemoFilter = "",
     .ScriptExtension = ".ini"},
    {.GameKind = Game::Sin,
     .ScriptFamily = Dialect::Quake2,
     .Name = "Sin",
     .How = TreeTest::BaseAndHolds,
     .What = "sin",
     .BaseGameDir = "BASE",
     .ScriptFilter = "SIN Scripts (*.cfg, *.sns)|*.cfg;*.sns|All Files (*.*)|*.*",
     .DemoFilter = kQuake2Demos,
     .ScriptExtension = ".sns",
     .Archives = "*.sin",
     .ArchiveMark = "SPAK"},
    {.GameKind = Game::Heretic2,
     .ScriptFamily = Dialect::Quake2,
     .Name = "Heretic2",
     .How = TreeTest::BaseAndHolds,
     .What = "heretic",
     .BaseGameDir = "BASE",
     .ScriptFilter = kPlainScripts,
     .DemoFilter = kQuake2Demos,
     .ScriptExtension = ".cfg"},
    {.GameKind = Game::HalfLife,
     .ScriptFamily = Dialect::Quake2,
     .Name = "Half-Life",
     .How = TreeTest::Below,
     .What = "\\valve",
     .BaseGameDir = "VALVE",
     .ScriptFilter = kPlainScripts,
     .DemoFilter = kQuake2Demos,
     .ScriptExtension = ".cfg"},
};

bool IsHit(Files& files, TextView directory, const GameFacts& game) {
    switch (game.How) {
        case TreeTest::Below:
            return files.DirectoryExists(Join(directory, game.What));
        case TreeTest::PathHolds:
            return Holds(UpperCase(directory), game.What);
        case TreeTest::BaseAndHolds:
            return Holds(LowerCase(directory), game.What) && files.DirectoryExists(Join(directory, "\\base"));
    }
    return false;
}

}  // namespace

std::span<const GameFacts> AllGames() {
    return kGames;
}

const GameFacts& FactsOf(Game game, std::span<const GameFacts> games) {
    const auto row = std::ranges::find(games, game, &GameFacts::GameKind);
    return row == games.end() ? kNoGame : *row;
}

const GameFacts& FactsOfDirectory(Files& files, TextView directory, std::span<const GameFacts> games) {
    const auto row = std::ranges::find_if(games, [&](const GameFacts& game) { return IsHit(files, directory, game); });
    return row == games.end() ? kNoGame : *row;
}

}  // namespace lv
