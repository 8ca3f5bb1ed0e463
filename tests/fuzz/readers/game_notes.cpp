// Other launchers' notes. The first byte chooses the launcher's format.

#include "platform/linux/game_notes.h"

#include "platform/known_places.h"
#include "tests/fuzz/readers.h"

namespace lv {

void FuzzGameNotes(TextView input) {
    std::vector<std::string> paths;
    switch (TakeChoice(input, 3)) {
        case 0:
            paths = DirectoriesOfHeroic(input);
            break;
        case 1:
            paths = DirectoriesOfLutris(std::string(input));
            break;
        default:
            if (std::string prefix = PrefixOfLutris(input); !prefix.empty()) {
                paths.push_back(std::move(prefix));
            }
    }
    MustHold(paths.size() <= kMostKnownPlaces, "there are no more paths than are taken");
    for (const std::string& path : paths) {
        MustHold(IsPlainPath(path), "each path is one that may be looked at");
    }
}

}  // namespace lv
