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
     .BaseGameDir = "ID1",
     .Data = {.FullWithin = {"pak1.pak"},
              .FullBeside = {"quakeex.kpf"},
              .MissionPacks = {"hipnotic", "rogue", "dopa", "mg1"}},
     .WizardRow = wizard_row::kQuake,
     .ScriptFilter = "Quake Scripts (*.cfg, *.qs)|*.cfg;*.qs|All Files (*.*)|*.*",
     .DemoFilter = "Quake Demonstrations (*.dem;*.qwd)|*.dem;*.qwd|All Files (*.*)|*.*",
     .ScriptExtension = ".qs"},
    {.GameKind = Game::Hexen2,
     .ScriptFamily = Dialect::Quake,
     .Name = "Hexen2",
     .How = TreeTest::Below,
     .BaseGameDir = "DATA1",
     .Data = {.FullWithin = {"pak1.pak"}, .MissionPacks = {"portals", "hw"}},
     .WizardRow = wizard_row::kHexen2,
     .ScriptFilter = "Hexen Scripts (*.cfg, *.hs)|*.cfg;*.hs|All Files (*.*)|*.*",
     .DemoFilter = "Hexen Demonstrations (*.dem)|*.dem|All Files (*.*)|*.*",
     .ScriptExtension = ".hs"},
    {.GameKind = Game::Quake2,
     .ScriptFamily = Dialect::Quake2,
     .Name = "Quake2",
     .How = TreeTest::Below,
     .BaseGameDir = "BASEQ2",
     .Data = {.FullWithin = {"pak1.pak"}, .FullBeside = {"q2game.kpf"}, .MissionPacks = {"xatrix", "rogue"}},
     .WizardRow = wizard_row::kQuake2,
     .ScriptFilter = "Quake2 Scripts (*.cfg, *.q2s)|*.cfg;*.q2s|All Files (*.*)|*.*",
     .DemoFilter = kQuake2Demos,
     .ScriptExtension = ".q2s"},
    {.GameKind = Game::Unreal,
     .ScriptFamily = Dialect::Unreal,
     .Name = "Unreal",
     .How = TreeTest::PathHolds,
     .What = "UNREAL\\SYSTEM",
     .BaseGameDir = "MAPS",
     .Data = {.Directory = "system",
              .Within = {"unreal.exe", "unrealshare.u"},
              .NotThere = "botpack.u",
              .Beside = "maps",
              .AnyCase = true},
     .WizardRow = wizard_row::kUnreal,
     .ScriptFilter = "Unreal INIs (*.ini)|*.ini|All Files (*.*)|*.*",
     .DemoFilter = "",
     .ScriptExtension = ".ini"},
    {.GameKind = Game::Sin,
     .ScriptFamily = Dialect::Quake2,
     .Name = "Sin",
     .How = TreeTest::BaseAndHolds,
     .What = "sin",
     .BaseGameDir = "BASE",
     .Data = {.MissionPacks = {"2015"}},
     .WizardRow = wizard_row::kSin,
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
     .Data = {.Within = {"htic2-*"}, .FullWithin = {"htic2-1.pak"}},
     .WizardRow = wizard_row::kHeretic2,
     .ScriptFilter = kPlainScripts,
     .DemoFilter = kQuake2Demos,
     .ScriptExtension = ".cfg"},
    {.GameKind = Game::HalfLife,
     .ScriptFamily = Dialect::Quake2,
     .Name = "Half-Life",
     .How = TreeTest::Below,
     .BaseGameDir = "VALVE",
     .Data = {.Within = {"liblist.gam", "*.pak", "*.wad"},
              .MissionPacks = {"gearbox", "bshift"},
              .InPack = {"liblist.gam", "*.pak"}},
     .WizardRow = wizard_row::kHalfLife,
     .ScriptFilter = kPlainScripts,
     .DemoFilter = kQuake2Demos,
     .ScriptExtension = ".cfg"},
};

bool IsHit(Files& files, TextView directory, const GameFacts& game) {
    const auto hasBase = [&] { return files.DirectoryExists(Join(directory, "\\", BaseDirectoryOf(game))); };
    switch (game.How) {
        case TreeTest::Below:
            return hasBase();
        case TreeTest::PathHolds:
            return Holds(UpperCase(directory), game.What);
        case TreeTest::BaseAndHolds:
            return Holds(LowerCase(directory), game.What) && hasBase();
    }
    return false;
}

}  // namespace

std::span<const GameFacts> AllGames() {
    return kGames;
}

Text BaseDirectoryOf(const GameFacts& game) {
    return LowerCase(game.BaseGameDir);
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
