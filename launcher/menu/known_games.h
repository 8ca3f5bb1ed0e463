// launcher/menu/known_games.h
//
// The executables of the catalog that the setup wizard would look for: it need not do so again.

#pragma once

#include <optional>
#include <vector>

#include "foundation/run.h"

namespace lv {

struct KnownGame {
    std::size_t Row = 0;  // of the wizard
    Text Directory;       // without a "\" at the end
};

/// The catalog's, in its order. Nothing if it is damaged: the user was told, and the program is at its end.
std::optional<std::vector<KnownGame>> KnownGames(Run& run);

}  // namespace lv
