#include "catalogs/executables.h"

#include <unordered_set>

#include "catalogs/catalog_store.h"
#include "catalogs/missing_game.h"
#include "foundation/field_strings.h"
#include "foundation/question_box.h"
#include "games/engines/engine_lookup.h"
#include "games/programs.h"

namespace lv {

namespace {

enum class Reading { Done, Again, Ended };

bool IsWhole(const std::optional<CatalogRows>& rows) {
    return rows && rows->Count() > 0;
}

// A value that does not read is healed of ";" at its end. A short one holds no record, and is not damaged.
std::optional<CatalogRows> ReadExecutables(Run& run) {
    Text value = CatalogValue(run, kExecutables);
    auto rows = SplitRows(value, kExecutables.RecordSize);
    bool healed = false;
    while (!IsWhole(rows) && value.ends_with(';')) {
        value.pop_back();
        rows = SplitRows(value, kExecutables.RecordSize);
        healed = true;
    }
    if (healed) {
        StoreCatalog(run, kExecutables.Key, value);
    }
    if (!rows) {
        ReportDamage(run, kExecutables.ErrorName, value);
        EndProgram(run);
    }
    return rows;
}

// An engine of today has the picture of the first game that it plays.
Text PictureOf(const EngineLookup& engines, const Text& fileName) {
    const Engine* const engine = engines.Of(fileName);
    if (engine != nullptr) {
        for (const Program& program : AllPrograms()) {
            if (Plays(*engine, program.GameKind)) {
                return Text(program.Picture);
            }
        }
    }
    return ImageKeyOf(LowerCase(fileName));
}

ImageComboItem MakeRow(const EngineLookup& engines, const GameRecord& game) {
    const Text image = PictureOf(engines, LastPathPart(OnDisk(game.Path)));
    return {game.Title, game.Path, image, image};
}

// What became of a missing file: its row is wanted all the same, or the catalog has changed under the reader.
MissingGame Resolve(Run& run, const EngineTable* engines, const GameRecord& game) {
    return run.System.Disk.FileExists(OnDisk(game.Path)) ? MissingGame::Ignored : AskForMissingGame(run, engines, game);
}

Reading ReadOnce(Run& run, CatalogLists& lists) {
    ImageCombo& list = lists.Exe_Cbo;
    list.Clear();
    const auto rows = ReadExecutables(run);
    if (!rows) {
        return Reading::Ended;
    }
    const EngineTable none;
    const EngineLookup engines(lists.Engines != nullptr ? *lists.Engines : none);
    std::unordered_set<Text> keys;
    for (std::size_t i = 0; i < rows->Count(); ++i) {
        const GameRecord game = {rows->Field(i, 0), rows->Field(i, 1)};
        if (Resolve(run, lists.Engines, game) == MissingGame::ReadAgain) {
            return run.Ended ? Reading::Ended : Reading::Again;
        }
        if (keys.insert(game.Path).second) {
            list.Items.push_back(MakeRow(engines, game));
            continue;
        }
        AskUser(run, "Duplicate Game", Join(AboutGame(game), "was listed twice. The second entry will be ignored."));
    }
    // A value with a duplicate is left as it is: the user is told at every start until the entry is removed.
    if (list.Items.size() == rows->Count() && !list.Items.empty()) {
        SaveCatalog(run, lists, kExecutables.Key, list);
    }
    return Reading::Done;
}

}  // namespace

bool LoadExes(Run& run, CatalogLists& lists) {
    Reading reading = Reading::Again;
    while (reading == Reading::Again) {
        reading = ReadOnce(run, lists);
    }
    if (reading == Reading::Ended) {
        return false;
    }
    ImageCombo& list = lists.Exe_Cbo;
    list.ListIndex = RepairedPosition(run, "ExecutablesPos", 0, list.Items.size());
    run.User.Refresh();
    return !run.Ended;
}

}  // namespace lv
