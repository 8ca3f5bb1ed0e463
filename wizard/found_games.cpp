#include "wizard/found_games.h"

#include <algorithm>
#include <iterator>

#include "games/programs.h"
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

Text CrowdedText(const FoundGames& found) {
    return found.Crowded.empty() ? Text()
                                 : Join(" ", Listed(found.Crowded),
                                        " holds too much for a quick look: 'Do An Auto-Search' looks through it all.");
}

Text NamelessText(const FoundGames& found) {
    const bool one = found.Nameless == 1;
    return found.Nameless == 0
               ? Text()
               : Join(" ", std::to_string(found.Nameless), one ? " directory has a name" : " directories have names",
                      " that the games could not open: rename ", one ? "it" : "them",
                      " with Western letters if there is a game in ", one ? "it." : "them.");
}

bool IsForRow(const Engine& engine, std::size_t row) {
    return std::ranges::any_of(
        AllGames(), [&](const GameFacts& game) { return game.WizardRow == row && Plays(engine, game.GameKind); });
}

}  // namespace

FoundGames LookAround(Run& run, const EngineTable& engines) {
    FoundGames found;
    KnownPlaces* const places = run.System.Places;
    if (places == nullptr) {
        return found;
    }
    found.HasLooked = true;
    TreeSearch search(run.System.Disk, places);
    while (search.Step()) {
    }
    found.Trees = search.Found();
    found.Crowded = search.Crowded();
    found.Nameless = search.Nameless();
    std::erase_if(found.Trees, [](const GameTree& tree) {
        return std::ranges::any_of(tree.Directory, [](char c) { return static_cast<unsigned char>(c) < 0x20; });
    });
    found.Engines = EnginesHere(run, engines);
    for (const GameTree& tree : found.Trees) {
        if (HoldsItsProgram(run.System.Disk, engines, tree)) {
            found.Playable.push_back(FactsOf(tree.GameKind).WizardRow);
        }
    }
    return found;
}

std::vector<FoundEngine> EnginesHere(Run& run, const EngineTable& engines) {
    KnownPlaces* const places = run.System.Places;
    return places == nullptr || !run.System.Disk.StandIn("", "")
               ? std::vector<FoundEngine>()
               : FindEngines(run.System.Disk, places->Programs(), engines).Engines;
}

bool HoldsItsProgram(Files& disk, const EngineTable& engines, const GameTree& tree) {
    const Text directory = ProgramDirectoryOf(tree);
    const auto isHere = [&](const Program& program) {
        return program.GameKind == tree.GameKind && disk.FileExists(Join(directory, "\\", program.FileName));
    };
    const auto plays = [&](const FoundEngine& engine) {
        return engine.Its->Role != EngineRole::Server && Plays(*engine.Its, tree.GameKind);
    };
    return std::ranges::any_of(AllPrograms(), isHere) ||
           std::ranges::any_of(FindEngines(disk, {directory}, engines).Engines, plays);
}

std::vector<const GameTree*> TreesOfRow(const FoundGames& found, std::size_t row) {
    std::vector<const GameTree*> trees;
    for (const GameTree& tree : found.Trees) {
        if (FactsOf(tree.GameKind).WizardRow == row) {
            trees.push_back(&tree);
        }
    }
    return trees;
}

const GameTree* TreeOfRow(const FoundGames& found, std::size_t row) {
    const std::vector<const GameTree*> trees = TreesOfRow(found, row);
    const auto full = std::ranges::find_if(trees, &GameTree::IsFull);
    return full != trees.end() ? *full : trees.empty() ? nullptr : trees.front();
}

bool PlaysRow(const Engine& engine, std::size_t row) {
    return engine.Role != EngineRole::Server && IsForRow(engine, row);
}

bool ServesRow(const Engine& engine, std::size_t row) {
    return engine.Role == EngineRole::Server && IsForRow(engine, row);
}

Text FoundText(const FoundGames& found) {
    std::vector<Text> games;
    std::vector<Text> engines;
    std::vector<Text> unplayed;
    for (std::size_t row = 0; row < kWizardRows; ++row) {
        const std::size_t places = TreesOfRow(found, row).size();
        if (places == 0) {
            continue;
        }
        games.push_back(
            Join(InstallRows()[row].Name, places == 1 ? Text() : Join(" (", std::to_string(places), " places)")));
        if (std::ranges::find(found.Playable, row) == found.Playable.end() &&
            std::ranges::none_of(found.Engines,
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
        std::ranges::transform(found.Engines, std::back_inserter(engines), &FoundEngine::Title);
        return !found.HasLooked ? Text()
                                : Join("No game found in the usual places.",
                                       engines.empty() ? Text() : Join(" Here to play with: ", Listed(engines), "."),
                                       CrowdedText(found), NamelessText(found),
                                       " Tick yours, and press 'Browse' or 'Do An Auto-Search'.");
    }
    return Join("Found: ", Listed(games), ".", engines.empty() ? Text() : Join(" Plays here: ", Listed(engines), "."),
                unplayed.empty() ? Text() : Join(" No engine here for: ", Listed(unplayed), "."), CrowdedText(found),
                NamelessText(found), " Click 'OK' to go on.");
}

Text SearchText(const std::vector<Text>& found, const std::vector<Text>& missing) {
    if (found.empty()) {
        return Join("Nothing found of: ", Listed(missing), ". Click 'Browse' to show where a game lies.");
    }
    return Join(std::to_string(found.size()), found.size() == 1 ? " game found: " : " games found: ", Listed(found),
                ".", missing.empty() ? Text() : Join(" Not found: ", Listed(missing), "."), " Click 'OK' to go on.");
}

std::optional<EngineAdvice> AdviceFor(const EngineTable& engines, std::size_t row, bool packages) {
    const Engine* page = nullptr;
    for (const Engine& engine : engines.Engines) {
        if (!PlaysRow(engine, row)) {
            continue;
        }
        if (packages && !engine.DebianPackage.empty()) {
            return EngineAdvice{Join("apt install ", engine.DebianPackage), true, engine.Name, engine.DebianPart};
        }
        if (page == nullptr && !engine.HomePage.empty()) {
            page = &engine;
        }
    }
    return page == nullptr ? std::nullopt : std::optional(EngineAdvice{page->HomePage, false, page->Name, {}});
}

}  // namespace lv
