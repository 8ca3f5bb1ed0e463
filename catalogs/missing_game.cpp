#include "catalogs/missing_game.h"

#include <algorithm>

#include "catalogs/catalog_store.h"
#include "catalogs/moved_engine.h"
#include "catalogs/unused_seats.h"
#include "foundation/browse.h"
#include "foundation/field_strings.h"
#include "foundation/question_box.h"
#include "games/engines/engine_seats.h"
#include "games/games.h"

namespace lv {

namespace {

constexpr Index kDeleted = 0;
constexpr Index kMoved = 1;

// The path's directory with the "\" behind it, so that C:\QUAKE is not found in C:\QUAKE2. Empty without one.
Text DirectoryWithSlash(TextView path) {
    return Text(path.substr(0, path.rfind('\\') + 1));
}

bool LiesIn(TextView path, TextView directory) {
    return !directory.empty() && SameText(path.substr(0, directory.size()), directory);
}

// The records that stay, as a list.
template <class Goes>
Text Without(const CatalogRows& rows, const Goes& goes) {
    Text kept;
    for (std::size_t i = 0; i < rows.Count(); ++i) {
        if (!goes(rows.Field(i, 0), rows.Field(i, 1))) {
            AppendRecord(kept, Join(rows.Field(i, 0), ";", rows.Field(i, 1)));
        }
    }
    return kept;
}

bool DirectoryIsThere(Run& run, const Text& directory) {
    return directory.empty() || run.System.Disk.DirectoryExists(directory);
}

void ForgetGame(Run& run, const GameRecord& game) {
    const auto rows = SplitRows(CatalogValue(run, kExecutables), kExecutables.RecordSize);
    if (!rows) {
        return;
    }
    StoreCatalog(run, kExecutables.Key, Without(*rows, [&](const Text& title, const Text& path) {
                     return title == game.Title && path == game.Path;
                 }));
}

void ForgetDirectory(Run& run, const Text& directory) {
    const auto lies = [&](const Text&, const Text& path) { return LiesIn(OnDisk(path), directory); };
    if (const auto games = SplitRows(CatalogValue(run, kExecutables), kExecutables.RecordSize)) {
        StoreCatalog(run, kExecutables.Key, Without(*games, lies));
    }
    const Text value = CatalogValue(run, kScripts);
    const auto scripts = SplitRows(value, kScripts.RecordSize);
    if (!scripts) {
        ReportDamage(run, "scriptSettings", value);
        EndProgram(run);
        return;
    }
    StoreCatalog(run, kScripts.Key, Without(*scripts, lies));
}

void Forget(Run& run, const GameRecord& game) {
    const Text directory = DirectoryWithSlash(OnDisk(game.Path));
    if (DirectoryIsThere(run, directory)) {
        ForgetGame(run, game);
    } else {
        ForgetDirectory(run, directory);
    }
    LeaveUnusedSeats(run);
}

bool IsTheNewPlace(Run& run, TextView candidate) {
    return AskUser(run, "Lookie Here...", Join(candidate, NewLine, "Is this the new location?"),
                   "&Yep - that's it!,&No way") == 0;
}

// The same path on another drive, if the user says that it is the one.
Text FindOnOtherDrives(Run& run, TextView path) {
    for (const Text& drive : run.System.Disk.Drives()) {
        if (SameText(drive, "A:") || SameText(drive, "B:") || run.System.Disk.ProbeDrive(drive)) {
            continue;
        }
        const Text candidate = Join(drive.substr(0, 2), DropLeft(path, 2));
        if (run.System.Disk.FileExists(candidate) && IsTheNewPlace(run, candidate)) {
            return candidate;
        }
    }
    return {};
}

Text ChooseNewPlace(Run& run, TextView path) {
    const Text fileName = LastPathPart(path);
    const Text filter = Join("Game Executable [", fileName, "](", fileName, ")|", fileName, "|All Files (*.*)|*.*");
    return BrowseForFile(run, filter, BrowseStart(run, path)).value_or("");
}

void MoveGame(Run& run, TextView path, TextView place) {
    const Text from = DirectoryWithSlash(path);
    const Text to = DirectoryWithSlash(place);
    if (from.empty() || to.empty()) {
        return;
    }
    StoreCatalog(run, kExecutables.Key, MovePaths(CatalogValue(run, kExecutables), from, to));
    StoreCatalog(run, kScripts.Key, MovePaths(CatalogValue(run, kScripts), from, to));
}

// A program of that name where this system keeps its programs, if the user says that it is the one.
Text FindAmongPrograms(Run& run, TextView program) {
    if (run.System.Places == nullptr) {
        return {};
    }
    for (const Text& directory : run.System.Places->Programs()) {
        const Text candidate = Join(directory, directory.ends_with('\\') ? "" : "\\", LastPathPart(program));
        if (!SameText(candidate, program) && run.System.Disk.FileExists(candidate) && IsTheNewPlace(run, candidate)) {
            return candidate;
        }
    }
    return {};
}

// The engine `program` that had the seat is elsewhere now, or it has gone with the game's directory.
void RelocateEngine(Run& run, const EngineTable* engines, const Text& seat, const Text& program) {
    Files& disk = run.System.Disk;
    Text place = FindAmongPrograms(run, program);
    if (place.empty()) {
        place = ChooseNewPlace(run, program);
    }
    if (place.empty()) {
        return;
    }
    const bool movedWithTheGame =
        !disk.DirectoryExists(DirectoryOf(seat)) && FactsOfDirectory(disk, DirectoryOf(place)).GameKind != Game::None;
    if (movedWithTheGame) {
        MoveGame(run, seat, place);
        LeaveUnusedSeats(run);
    } else {
        SeatAnew(run, engines, seat, place);
    }
}

void Relocate(Run& run, const EngineTable* engines, const GameRecord& game) {
    const Text path = OnDisk(game.Path);
    if (const Text program = ProgramOfSeat(run, path); !program.empty()) {
        RelocateEngine(run, engines, path, program);
        return;
    }
    Text place = FindOnOtherDrives(run, path);
    if (place.empty()) {
        place = ChooseNewPlace(run, path);
    }
    MoveGame(run, path, place);
}

}  // namespace

Text OnDisk(TextView path) {
    return ReplaceSameLength(path, "/", "\\");
}

Text AboutGame(const GameRecord& game) {
    return Join(game.Title, TwoBlanks, game.Path, NewLine, "This Game -->", NewLine);
}

MissingGame AskForMissingGame(Run& run, const EngineTable* engines, const GameRecord& game) {
    const Text engine = AboutGoneEngine(run, engines, OnDisk(game.Path));
    const Index answer =
        AskUser(run, "Game Not Found...",
                Join(AboutGame(game), "was not found.", engine.empty() ? Text() : Join(NewLine, NewLine, engine)),
                "I &deleted this Game,I &moved this Game, I&gnore");
    if (answer == kDeleted) {
        Forget(run, game);
    } else if (answer == kMoved) {
        Relocate(run, engines, game);
    } else {
        return MissingGame::Ignored;
    }
    return MissingGame::ReadAgain;
}

Text MovePaths(TextView list, TextView from, TextView to) {
    Text moved;
    for (std::size_t begin = 0; begin <= list.size();) {
        const std::size_t end = std::min(list.find(';', begin), list.size());
        const TextView field = list.substr(begin, end - begin);
        const std::size_t blanks = std::min(field.find_first_not_of(' '), field.size());
        const bool moves = LiesIn(OnDisk(field.substr(blanks)), from);
        moved.append(moves ? Join(to, field.substr(blanks + from.size())) : Text(field));
        if (end < list.size()) {
            moved += ';';
        }
        begin = end + 1;
    }
    return moved;
}

}  // namespace lv
