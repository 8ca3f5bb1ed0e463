#include "launcher/menu/known_games.h"

#include "catalogs/catalog_store.h"
#include "catalogs/missing_game.h"
#include "foundation/field_strings.h"
#include "games/programs.h"

namespace lv {

std::optional<std::vector<KnownGame>> KnownGames(Run& run) {
    const auto rows = ReadCatalog(run, kExecutables);
    if (!rows) {
        return std::nullopt;
    }
    std::vector<KnownGame> known;
    for (std::size_t i = 0; i < rows->Count(); ++i) {
        const Text path = OnDisk(Trim(rows->Field(i, 1)));
        if (const auto row = WizardRowOf(LastPathPart(path))) {
            known.push_back({*row, DirectoryOf(path)});
        }
    }
    return known;
}

}  // namespace lv
