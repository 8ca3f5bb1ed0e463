// video/overclock.h
//
// The warnings before a card's clock is set beyond what its maker meant.

#pragma once

#include "foundation/run.h"
#include "video/profile_settings.h"

namespace lv {

/// Whether the clock may be set to this value: asks once from the first threshold on and once more from the second.
/// Anything but a card's clock may be set without a question.
bool MayOverclock(Run& run, const ProfileTunable& tunable, Index megahertz);

}  // namespace lv
