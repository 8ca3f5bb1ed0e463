// console/line_pairing.h
//
// The lines of two stretches that are about the same thing, and may stand beside each other as changed ones.

#pragma once

#include <span>
#include <vector>

#include "console/line_matching.h"
#include "foundation/text.h"

namespace lv {

class LinePairing {
  public:
    using Lines = std::span<const TextView>;

    /// The pairs ascend on both sides. Those that have a name in common are found first, "bind x" or "fov"; between
    /// them those that are alike, as long as that is within the bound of all calls together.
    std::vector<LineMatch> Pair(Lines left, Lines right);

  private:
    std::size_t looked_ = 0;  // pairs that have been looked at
};

}  // namespace lv
