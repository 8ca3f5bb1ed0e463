// foundry/losses/free_form_places.h
//
// Where a line of the file belongs among the free-form lines that came from the same file.

#pragma once

#include <cstddef>
#include <vector>

#include "foundation/text.h"

namespace lv {

/// Behind all lines.
constexpr std::size_t kBehindAll = static_cast<std::size_t>(-1);

class FreeFormPlaces {
  public:
    /// Each free-form line is that of the file which has its text, behind that of the line before. One that the file
    /// lacks stays with the line before.
    FreeFormPlaces(TextView freeForm, TextView file);

    /// Ahead of the first line that stands further down in the file, from 1.
    void Insert(TextView line, std::size_t fileLine);

    /// The lines, parted by CR LF.
    [[nodiscard]] Text Joined();

  private:
    struct PlacedLine {
        Text Line;
        std::size_t FileLine = 0;
    };

    std::vector<PlacedLine> lines_;
};

}  // namespace lv
