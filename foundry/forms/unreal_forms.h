// foundry/forms/unreal_forms.h
//
// Unreal's three pages of settings: player, audio, weapon preference.

#pragma once

#include "foundry/forms/fig_parts.h"

namespace lv {

/// Makes page 1, 2 or 3 of Options_Tab for Unreal; false, and nothing is made, for any other game or page.
bool MakeUnrealPage(FigParts& parts, wxWindow* page, int which);

}  // namespace lv
