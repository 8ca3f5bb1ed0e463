#include "launcher/menu/known_games.h"

#include "catalogs/catalog_store.h"
#include "catalogs/missing_game.h"
#include "foundation/field_strings.h"

namespace lv {

namespace {

struct WizardProgram {
    TextView FileName;
    int Row;
};

constexpr WizardProgram kPrograms[] = {
    {"quake.exe", 0},    {"winquake.exe", 0}, {"vquake.exe", 0}, {"glquake.exe", 0}, {"qwcl.exe", 0},
    {"glqwcl.exe", 0},   {"quake2.exe", 2},   {"h2.exe", 1},     {"h2mp.exe", 1},    {"glh2.exe", 1},
    {"glh2mp.exe", 1},   {"hwcl.exe", 1},     {"unreal.exe", 3}, {"sin.exe", 4},     {"sindemo.exe", 4},
    {"heretic2.exe", 5}, {"hl.exe", 8},
};

}  // namespace

std::optional<int> WizardRowOf(TextView fileName) {
    for (const WizardProgram& program : kPrograms) {
        if (SameText(program.FileName, fileName)) {
            return program.Row;
        }
    }
    return std::nullopt;
}

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
