#include "catalogs/unused_seats.h"

#include "catalogs/catalog_store.h"
#include "catalogs/missing_game.h"
#include "foundation/field_strings.h"
#include "games/engines/engine_seats.h"

namespace lv {

void LeaveUnusedSeats(Run& run) {
    const auto rows = SplitRows(CatalogValue(run, kExecutables), kExecutables.RecordSize);
    if (!rows) {
        return;
    }
    std::vector<Text> used;
    for (std::size_t i = 0; i < rows->Count(); ++i) {
        used.push_back(OnDisk(Trim(rows->Field(i, 1))));
    }
    KeepSeatsOnly(run, used);
}

}  // namespace lv
