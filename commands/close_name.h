// commands/close_name.h
//
// Which known name may have been meant by one that is not known, and names as a terminal may show them.

#pragma once

#include <optional>
#include <vector>

#include "foundation/text.h"

namespace lv {

/// Control characters become "?", so that a name never commands a terminal, and what is longer than 200 characters is
/// cut.
Text Shown(TextView name);

/// The name that is the fewest typing slips away: letters left out, added, or changed; letter case has no meaning.
/// Nothing if more than a third of the word would have to be another; two slips are few in any word of four.
std::optional<Text> CloseName(TextView word, const std::vector<Text>& names);

/// " Did you mean "--launch"?"; empty if nothing is close.
Text MeantWords(TextView word, const std::vector<Text>& names);

}  // namespace lv
