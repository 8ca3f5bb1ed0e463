#include "wizard/found_games.h"

#include <algorithm>
#include <array>

#include "games/trees/tree_search.h"
#include "wizard/install_frm.h"

namespace lv {

namespace {

Text Listed(const std::vector<Text>& names) {
    Text list;
    for (const Text& name : names) {
        list += Join(list.empty() ? "" : ", ", name);
    }
    return list;
}

}  // namespace

FoundGames LookAround(Run& run, const EngineTable& engines) {
    FoundGames found;
    KnownPlaces* const places = run.System.Places;
    if (places == nullptr) {
        return found;
    }
    found.Trees = QuickLook(run.System.Disk, places);
    found.Engines = FindEngines(run.System.Disk, places->Programs(), engines).Engines;
    std::erase_if(found.Engines, [](const FoundEngine& engine) { return engine.Its->Role == EngineRole::Server; });
    return found;
}

const GameTree* TreeOfRow(const FoundGames& found, std::size_t row) {
    const GameTree* first = nullptr;
    for (const GameTree& tree : found.Trees) {
        if (FactsOf(tree.GameKind).WizardRow != row) {
            continue;
        }
        if (tree.IsFull) {
            return &tree;
        }
        first = first == nullptr ? &tree : first;
    }
    return first;
}

bool PlaysRow(const Engine& engine, std::size_t row) {
    return engine.Role != EngineRole::Server && std::ranges::any_of(AllGames(), [&](const GameFacts& game) {
               return game.WizardRow == row && Plays(engine, game.GameKind);
           });
}

Text FoundText(const FoundGames& found) {
    std::vector<Text> games;
    std::vector<Text> engines;
    std::vector<Text> unplayed;
    for (std::size_t row = 0; row < kWizardRows; ++row) {
        if (TreeOfRow(found, row) == nullptr) {
            continue;
        }
        games.emplace_back(InstallRows()[row].Name);
        if (std::ranges::none_of(found.Engines,
                                 [row](const FoundEngine& engine) { return PlaysRow(*engine.Its, row); })) {
            unplayed.emplace_back(InstallRows()[row].Name);
        }
        for (const FoundEngine& engine : found.Engines) {
            if (PlaysRow(*engine.Its, row) && std::ranges::find(engines, engine.Title) == engines.end()) {
                engines.push_back(engine.Title);
            }
        }
    }
    if (games.empty()) {
        return {};
    }
    return Join("Found: ", Listed(games), ".", engines.empty() ? Text() : Join(" Plays here: ", Listed(engines), "."),
                unplayed.empty() ? Text() : Join(" No engine here for: ", Listed(unplayed), "."),
                " Click 'OK' to go on.");
}

std::optional<EngineAdvice> AdviceFor(const EngineTable& engines, std::size_t row) {
    const Engine* page = nullptr;
    for (const Engine& engine : engines.Engines) {
        if (!PlaysRow(engine, row)) {
            continue;
        }
        if (!engine.DebianPackage.empty()) {
            return EngineAdvice{Join("apt install ", engine.DebianPackage), true, engine.Name};
        }
        if (page == nullptr && !engine.HomePage.empty()) {
            page = &engine;
        }
    }
    return page == nullptr ? std::nullopt : std::optional(EngineAdvice{page->HomePage, false, page->Name});
}

}  // namespace lv
