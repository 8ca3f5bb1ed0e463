// launcher/window/option_rules.h
//
// Which option excludes which, and which control is there for which game: rules over the states of the check boxes.

#pragma once

#include "foundation/game.h"
#include "games/engines/engine_table.h"
#include "launcher/window/lv_frm.h"

namespace lv {

/// The boxes that are cleared when `option` is set to 1. Empty for a box that excludes nothing.
OptionSet ExcludedBy(Option option);

/// What the panels depend on.
struct PanelGame {
    Game GameKind = Game::None;
    Dialect ScriptFamily = Dialect::None;
    bool IsQuakeWorld = false;
    bool IsHexenWorld = false;
};

/// Lays the window out for the game: what is enabled, shown, cleared and greyed. Writes no keys, so what the user has
/// ticked for other games is there again at the next start. Applying it twice changes nothing more.
void ApplyGamePanels(LV_Frm& window, const PanelGame& game);

/// Greys the memory for an engine of today that sees to its own, and says so. Null for any other program. For after
/// ApplyGamePanels.
void ApplyEngine(LV_Frm& window, const Engine* engine);

/// The files of a GameSpy launch are not the user's to view: the buttons for them follow LaunchQspy_Chk.
void ApplyGameSpyRule(LV_Frm& window);

}  // namespace lv
