#include "catalogs/game_identification.h"

#include "catalogs/catalog_store.h"
#include "catalogs/modifications.h"
#include "catalogs/scripts.h"
#include "catalogs/servers.h"
#include "foundation/field_strings.h"
#include "foundation/question_box.h"
#include "foundation/settings.h"

namespace lv {

namespace {

bool EndsInPortals(TextView row) {
    return LowerCase(row).ends_with("-game portals");
}

void HideAll(Run& run, const Catalog& catalog, ListBox& list, Text& hidden) {
    list.Clear();
    hidden = CatalogValue(run, catalog);
    if (hidden.size() < kShortestCatalog) {
        hidden.clear();
    }
}

// No game's rows are shown, so every record is another game's: an entry added now loses none of them.
void ClearForNoGame(Run& run, CatalogLists& lists) {
    HideAll(run, kGames, lists.Game_Cbo, lists.HiddenGames);
    HideAll(run, kScripts, lists.Script_Cbo, lists.HiddenScripts);
    HideAll(run, kServers, lists.Server_Cbo, lists.HiddenServers);
}

void ReportEmptyPath(Run& run, TextView path) {
    Text title = run.AppName;
    AskUser(run, title,
            Join(DoubleQuote, path, DoubleQuote, TabChar, NewLine, "There is a problem with this path:", NewLine,
                 "DefaultGameDirectory not found and was NOT SET - YOU WILL NOT BE ABLE TO LAUNCH."));
}

// The modification was one of the old game. A start has no old game: it finds the tick as it was left.
void DropModification(Run& run, CatalogLists& lists, Game before) {
    lists.Game_Chk.Value = 0;
    if (before != Game::None || run.MainFormLoaded) {
        Save(run, kOptions, "UseGames", 0);
    }
}

// Which worlds an engine of today plays in.
ExecutableFlags FlagsOfEngine(const Engine& engine, Game gameKind) {
    return {.IsQuakeWorld = gameKind == Game::Quake && (engine.Games & engine_game::kQuake) == 0,
            .IsHexenWorld = gameKind == Game::Hexen2 && (engine.Games & engine_game::kHexen2) == 0};
}

bool EnterDirectory(Run& run, CatalogLists& lists, TextView path, const RegistryToScript& toScript) {
    run.DefaultGameDirectory = DirectoryOf(path);
    const PlayedBy program = WhatPlays(run.System.Disk, lists.Engines, path);
    const GameFacts& facts = *program.Facts;
    run.BaseGameDir = facts.BaseGameDir;
    run.CurrentGameDir = facts.BaseGameDir;
    run.GameKind = facts.GameKind;
    if (facts.GameKind == Game::None) {
        ClearForNoGame(run, lists);
        return true;
    }
    run.ScriptFamily = facts.ScriptFamily;
    run.IsQuakeWorld = program.Flags.IsQuakeWorld;
    run.IsHexenWorld = program.Flags.IsHexenWorld;
    run.IsMissionPack = program.Flags.IsMissionPack;
    run.UsesAccelerator = program.Flags.UsesAccelerator;
    if (facts.GameKind == Game::HalfLife && toScript) {
        toScript(Join(run.DefaultGameDirectory, "\\", BaseDirectoryOf(facts), "\\lv3dhlrg.cfg"));
    }
    return !run.Ended && FillGamesCombo(run, lists) && FillScriptsCombo(run, lists) && FillServerCombo(run, lists);
}

}  // namespace

PlayedBy WhatPlays(Files& files, const EngineTable* engines, TextView program) {
    const GameFacts& facts = FactsOfDirectory(files, DirectoryOf(program));
    const Engine* const engine = engines != nullptr ? EngineOf(*engines, LastPathPart(program)) : nullptr;
    return {&facts, engine != nullptr ? FlagsOfEngine(*engine, facts.GameKind) : FlagsOfPath(facts.GameKind, program),
            engine};
}

bool IdentifyGame(Run& run, CatalogLists& lists, const RegistryToScript& toScript) {
    if (!lists.Exe_Cbo.HasSelection()) {
        return !run.Ended;
    }
    const Game before = run.GameKind;
    const Text& key = lists.Exe_Cbo.Items[static_cast<std::size_t>(lists.Exe_Cbo.ListIndex)].Key;
    const Text path = ReplaceSameLength(LowerCase(key), "/", "\\");
    Save(run, kOptions, "ExecutablesPos", lists.Exe_Cbo.ListIndex);

    run.UsesAccelerator = true;
    run.IsQuakeWorld = false;
    run.IsHexenWorld = false;
    run.IsMissionPack = false;
    if (path.empty()) {
        ReportEmptyPath(run, path);
        run.DefaultGameDirectory.clear();
    } else if (!EnterDirectory(run, lists, path, toScript)) {
        return false;
    }
    if (run.GameKind != before) {
        DropModification(run, lists, before);
    }
    return !run.Ended;
}

void ApplyMissionPackRule(Run& run, CatalogLists& lists) {
    ListBox& list = lists.Game_Cbo;
    if (!run.IsMissionPack) {
        if (run.GameKind == Game::Hexen2 && EndsInPortals(list.Selected())) {
            lists.Game_Chk.Value = 0;
        }
        return;
    }
    for (std::size_t i = 0; i < list.Items.size(); ++i) {
        if (EndsInPortals(list.Items[i])) {
            list.ListIndex = static_cast<int>(i);
            lists.Game_Chk.Value = 1;
            return;
        }
    }
}

}  // namespace lv
