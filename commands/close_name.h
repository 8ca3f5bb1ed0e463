// commands/close_name.h
//
// Which known name may have been meant by one that is not known.

#pragma once

#include <optional>
#include <vector>

#include "foundation/text.h"

namespace lv {

/// The only name that begins with the word, if that has three characters; else the one that is the fewest typing slips
/// away: letters left out, added, or changed; letter case has no meaning.
/// Nothing if more than a third of the word would have to be another; two slips are few in any word of four.
std::optional<Text> CloseName(TextView word, const std::vector<Text>& names);

/// " Did you mean "--launch"?"; empty if nothing is close.
Text MeantWords(TextView word, const std::vector<Text>& names);

}  // namespace lv
