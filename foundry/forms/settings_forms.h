// foundry/forms/settings_forms.h
//
// The pages of Options_Tab: groups of settings, the skins of QuakeWorld, the rate, and Unreal's three pages.

#pragma once

#include "foundry/forms/fig_parts.h"

namespace lv {

/// One of the five pages of Options_Tab.
void MakeOptionsPage(FigParts& parts, wxWindow* page, int which);

}  // namespace lv
