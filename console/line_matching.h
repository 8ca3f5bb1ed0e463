// console/line_matching.h
//
// The longest run of lines that two texts have in common, or nearly the longest one where that would take long.

#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace lv {

struct LineMatch {
    std::size_t Left = 0;
    std::size_t Right = 0;
};

/// Equal numbers are equal lines. The matches ascend on both sides. Time and memory stay within bounds whatever the
/// texts are.
std::vector<LineMatch> MatchLines(std::span<const std::uint32_t> left, std::span<const std::uint32_t> right);

}  // namespace lv
