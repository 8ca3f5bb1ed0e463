// foundry/reading/archived_skins.h
//
// Models and skins that lie in a game's archives, as they were shipped.

#pragma once

#include "foundation/game.h"
#include "foundry/document/script_document.h"
#include "platform/files.h"

namespace lv {

/// What goes with a model but is no skin for it: its icons, "pain" and "weapon".
bool IsModelSkin(TextView file);

// All names come in the order of the archives, each once whatever its letter case; skins without their ending.

std::vector<Text> ArchivedModels(Files& disk, TextView directory, Game gameKind);
std::vector<Text> ArchivedSkins(Files& disk, TextView directory, TextView model, Game gameKind);

/// With the ending ".pcx", as files are listed.
std::vector<Text> ArchivedQuakeWorldSkins(Files& disk, TextView directory);

}  // namespace lv
