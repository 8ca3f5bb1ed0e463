// launch/launch_selection.h
//
// All that one launch reads: what is ticked and picked at the moment of the click, and what game it is for.

#pragma once

#include <optional>

#include "foundation/game.h"
#include "foundation/text.h"
#include "launch/option_boxes.h"

namespace lv {

/// A tick counts only when the box's value is exactly 1; a list counts only when a row is selected.
struct LaunchSelection {
    Text ExecutablePath;  // "\" as the separator

    OptionSet Ticked;

    // The selected rows' payloads: what stands behind the padded name, trimmed.
    std::optional<Text> Server;  // "host;port;type;password"
    std::optional<Text> Game;    // "-game ctf"
    std::optional<Text> Memory;  // "-winmem 16"
    std::optional<Text> Script;  // full path
    std::optional<Text> Demo;    // "playdemo demo1.dem"
    std::optional<Text> Map;     // the row's text, "START"

    Text CommandLineAdditions_Txt;
};

/// The game that the selection is for.
struct LaunchGame {
    Game GameKind = Game::None;
    Dialect ScriptFamily = Dialect::None;
    Text DefaultGameDirectory;
    Text CurrentGameDir;
    bool UsesAccelerator = true;
    Index CardClass = 1;  // 0 no 3D card, 1 Voodoo, 2 Voodoo 2, 100 other
    Index VidCard = 1;    // as stored
};

}  // namespace lv
