// launch/environment_lines.h
//
// The SET lines that carry a profile's settings to the Glide drivers of the Voodoo cards.

#pragma once

#include "launch/launch_selection.h"
#include "video/profile_model.h"

namespace lv {

/// The lines, each ended by NewLine. None without an accelerated executable and a Voodoo or Voodoo 2.
Text EnvironmentLines(const LaunchGame& game, const ProfileSnapshot& profile);

}  // namespace lv
