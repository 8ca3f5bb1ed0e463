// foundry/versions/version_delta.h
//
// A text as what it shares with another one, and what is its own:
//   =FIRST COUNT\n         that many lines of the other text, from the one of that number (from 0)
//   +BYTES\n...            that many bytes of its own
// A line is what stands up to a line feed, that included, so that all bytes survive.

#pragma once

#include <optional>

#include "foundation/text.h"

namespace lv {

/// `text` as a delta to `base`.
Text MakeDelta(TextView base, TextView text);

/// Nothing if the delta is none, speaks of lines that `base` lacks, or gives more than `most` bytes.
std::optional<Text> ApplyDelta(TextView base, TextView delta, std::size_t most);

}  // namespace lv
