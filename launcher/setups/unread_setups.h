// launcher/setups/unread_setups.h
//
// Entries of the list of setups that can't be read: why, and what helps.

#pragma once

#include <vector>

#include "foundation/text.h"

namespace lv {

enum class WhyUnread { NoEntry, TooMany, NumberTaken, NameTaken, NoSetup };

struct UnreadSetup {
    Text Entry;  // as stored, "32=QUAKE"
    WhyUnread Why = WhyUnread::NoEntry;
};

/// What the user is told of them: a line each, then what can be done.
Text UnreadText(const std::vector<UnreadSetup>& unread);

}  // namespace lv
