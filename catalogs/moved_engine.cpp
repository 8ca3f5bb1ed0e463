#include "catalogs/moved_engine.h"

#include "catalogs/catalog_store.h"
#include "catalogs/missing_game.h"
#include "catalogs/unused_seats.h"
#include "foundation/field_strings.h"
#include "foundation/question_box.h"
#include "games/engines/engine_seats.h"
#include "games/engines/start_rules.h"

namespace lv {

namespace {

// Entries of the one path become entries of the other; where that has one already they go.
void ChangePath(Run& run, TextView from, const Text& to) {
    const auto rows = SplitRows(CatalogValue(run, kExecutables), kExecutables.RecordSize);
    if (!rows) {
        return;
    }
    bool isListed = false;
    for (std::size_t i = 0; i < rows->Count(); ++i) {
        isListed = isListed || SameText(OnDisk(rows->Field(i, 1)), to);
    }
    Text changed;
    for (std::size_t i = 0; i < rows->Count(); ++i) {
        const bool changes = SameText(OnDisk(rows->Field(i, 1)), from);
        if (!changes || !isListed) {
            AppendRecord(changed, Join(rows->Field(i, 0), ";", changes ? to : rows->Field(i, 1)));
        }
    }
    StoreCatalog(run, kExecutables.Key, changed);
}

// Another engine in place of the one that has gone has a seat of its own: an engine is known by its seat's name.
Text SeatOf(const EngineTable* engines, TextView seat, TextView program) {
    const Engine* const engine = engines != nullptr ? EngineOf(*engines, LastPathPart(program)) : nullptr;
    const bool isAnother = engine != nullptr && engine != EngineOf(*engines, LastPathPart(seat));
    return isAnother ? Join(DirectoryOf(seat), "\\", LastPathPart(program)) : Text(seat);
}

}  // namespace

void SeatAnew(Run& run, const EngineTable* engines, const Text& seat, const Text& program) {
    Files& disk = run.System.Disk;
    const Engine* const engine = engines != nullptr ? EngineOf(*engines, LastPathPart(program)) : nullptr;
    const Text taken = SeatOf(engines, seat, program);
    if (!FitsAField(program)) {
        AskUser(run, "", Join("A path with a semicolon cannot be kept:", NewLine, NewLine, TabChar, program));
        return;
    }
    if (!disk.FileExists(taken) &&
        !SeatEngine(run, taken, engine != nullptr ? ProgramToStart(disk, *engine, program) : program)) {
        return;
    }
    if (!SameText(taken, seat)) {
        ChangePath(run, seat, taken);
    }
    LeaveUnusedSeats(run);
}

}  // namespace lv
