#include "wizard/engine_entries.h"

#include <algorithm>

#include "foundation/field_strings.h"
#include "foundation/question_box.h"
#include "games/engines/engine_seats.h"
#include "games/engines/playing_directory.h"
#include "games/engines/start_rules.h"
#include "games/trees/tree_room.h"
#include "wizard/entry_list.h"

namespace lv {

namespace {

/// Which engines are wanted for a row.
using Wanted = bool (*)(const Engine& engine, std::size_t row);

void AddThoseInside(Run& run, const EngineTable& engines, std::size_t row, TextView path, Wanted wanted,
                    std::vector<EngineEntry>& entries) {
    for (const FoundEngine& engine : FindEngines(run.System.Disk, {Text(path)}, engines).Engines) {
        if (wanted(*engine.Its, row)) {
            entries.push_back({engine.Title, LowerCase(engine.Path)});
        }
    }
}

void TellNoLinks(Run& run, TextView path, const Error& fault) {
    AskUser(run, "",
            Join("This game cannot be played where it lies:", NewLine, NewLine, TabChar, path, NewLine, NewLine,
                 "and links to it could not be made in ", LinkedTreeDirectory(path), ".", NewLine, fault.Text));
}

std::vector<EngineEntry> EntriesOf(Run& run, const EngineTable& engines, const FoundGames& found, std::size_t row,
                                   TextView path, Wanted wanted) {
    std::vector<EngineEntry> entries;
    AddThoseInside(run, engines, row, path, wanted, entries);
    if (!run.System.Disk.StandIn("", "")) {
        return entries;  // this system starts no program from elsewhere
    }
    for (const FoundEngine& engine : found.Engines) {
        if (!wanted(*engine.Its, row) || !TakesDataOf(*engine.Its, path) || !TreeIn(run.System.Disk, path)) {
            continue;
        }
        const Result<Text> directory = PlayingDirectory(run, *engine.Its, path);
        if (!directory.Ok()) {
            TellNoLinks(run, path, directory.Fault);
            break;
        }
        const Text seat = LowerCase(Join(directory.Value, "\\", LastPathPart(engine.Path)));
        run.System.Disk.StandIn(seat, "");  // of an earlier run
        if (run.System.Disk.FileExists(seat)) {
            continue;  // the tree has a program of that name itself
        }
        if (SeatEngine(run, seat, ProgramToStart(run.System.Disk, *engine.Its, engine.Path))) {
            entries.push_back({engine.Title, seat});
        }
    }
    return entries;
}

}  // namespace

std::vector<EngineEntry> EngineEntries(Run& run, const EngineTable& engines, const FoundGames& found, std::size_t row,
                                       TextView path) {
    return EntriesOf(run, engines, found, row, path, PlaysRow);
}

std::vector<EngineEntry> ServerEntries(Run& run, const EngineTable& engines, const FoundGames& found, std::size_t row,
                                       TextView path) {
    std::vector<EngineEntry> entries = EntriesOf(run, engines, found, row, path, ServesRow);
    for (EngineEntry& entry : entries) {
        entry.Title += Holds(LowerCase(entry.Title), "server") ? "" : " server";
    }
    return entries;
}

bool HasNewEngine(Run& run, const EngineTable& engines, const FoundGames& found, std::size_t row, TextView path,
                  TextView list) {
    std::vector<EngineEntry> inside;
    AddThoseInside(run, engines, row, path, PlaysRow, inside);
    if (std::ranges::any_of(inside, [list](const EngineEntry& entry) { return !IsListed(list, entry.Path); })) {
        return true;
    }
    return run.System.Disk.StandIn("", "") && std::ranges::any_of(found.Engines, [&](const FoundEngine& engine) {
               const Text name = LowerCase(Join("\\", LastPathPart(engine.Path)));
               return PlaysRow(*engine.Its, row) && TakesDataOf(*engine.Its, path) &&
                      !IsListed(list, LowerCase(Join(path, name))) &&
                      !IsListed(list, Join(LinkedTreeDirectory(path), name));
           });
}

}  // namespace lv
