#include "wizard/first_pick.h"

#include "catalogs/catalog_store.h"
#include "foundation/field_strings.h"
#include "foundation/settings.h"
#include "games/engines/engine_lookup.h"

namespace lv {

namespace {

constexpr TextView kPosition = "ExecutablesPos";

bool IsServer(const EngineLookup& engines, TextView path) {
    const Engine* const engine = engines.Of(LastPathPart(path));
    return engine != nullptr && engine->Role == EngineRole::Server;
}

}  // namespace

void PickWhatStarts(Run& run, const EngineTable& engines, TextView list) {
    const auto rows = SplitRows(list, kExecutables.RecordSize);
    if (!rows || rows->Count() == 0) {
        return;
    }
    const EngineLookup lookup(engines);
    const auto starts = [&](std::size_t row) {
        const Text& path = rows->Field(row, 1);
        return !IsServer(lookup, path) && run.System.Programs.HasRunnerFor(path);
    };
    if (starts(static_cast<std::size_t>(StoredPosition(run, kPosition, 0, rows->Count())))) {
        return;
    }
    for (std::size_t row = 0; row < rows->Count(); ++row) {
        if (starts(row)) {
            Save(run, kOptions, kPosition, static_cast<int>(row));
            return;
        }
    }
}

}  // namespace lv
