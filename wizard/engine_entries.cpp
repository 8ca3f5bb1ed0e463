#include "wizard/engine_entries.h"

#include "foundation/field_strings.h"
#include "foundation/question_box.h"
#include "games/engines/engine_seats.h"
#include "games/engines/playing_directory.h"
#include "games/engines/start_rules.h"
#include "games/trees/tree_room.h"
#include "wizard/install_frm.h"

namespace lv {

namespace {

void AddThoseInside(Run& run, const EngineTable& engines, std::size_t row, TextView path,
                    std::vector<EngineEntry>& entries) {
    for (const FoundEngine& engine : FindEngines(run.System.Disk, {Text(path)}, engines).Engines) {
        if (PlaysRow(*engine.Its, row)) {
            entries.push_back({engine.Title, LowerCase(engine.Path)});
        }
    }
}

void TellNoLinks(Run& run, TextView path, const Error& fault) {
    AskUser(run, "",
            Join("This game cannot be played where it lies:", NewLine, NewLine, TabChar, path, NewLine, NewLine,
                 "and links to it could not be made in ", LinkedTreeDirectory(path), ".", NewLine, fault.Text));
}

}  // namespace

std::vector<EngineEntry> EngineEntries(Run& run, const EngineTable& engines, const FoundGames& found, std::size_t row,
                                       TextView path) {
    std::vector<EngineEntry> entries;
    AddThoseInside(run, engines, row, path, entries);
    if (!run.System.Disk.StandIn("", "")) {
        return entries;  // this system starts no program from elsewhere
    }
    for (const FoundEngine& engine : found.Engines) {
        if (!PlaysRow(*engine.Its, row) || !TreeIn(run.System.Disk, path)) {
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

void AdviseEngine(Run& run, const EngineTable& engines, std::size_t row, TextView path) {
    const auto advice = AdviceFor(engines, row);
    if (!advice) {
        return;
    }
    const int answer = AskUser(run, "Nothing Here to Play It With",
                               Join(InstallRows()[row].Name, " lies in", NewLine, NewLine, TabChar, path, NewLine,
                                    NewLine, "but there is no program here that plays it. ",
                                    advice->IsCommand ? "In a terminal," : Join(advice->Engine, " does:"), NewLine,
                                    NewLine, TabChar, advice->What, NewLine, NewLine,
                                    advice->IsCommand ? Join("installs ", advice->Engine, ", which does. ") : Text(),
                                    "Afterwards press OK once more, or call the setup again (Tools, Set Up Games)."),
                               "&OK,&Copy");
    if (answer == 1) {
        (void)run.System.Clip.SetText(advice->What);
    }
}

}  // namespace lv
