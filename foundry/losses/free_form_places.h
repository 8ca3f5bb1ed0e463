// foundry/losses/free_form_places.h
//
// Where a line of the file belongs among the free-form lines that came from the same file.

#pragma once

#include <cstddef>
#include <vector>

#include "foundation/text.h"

namespace lv {

/// Ahead of all lines, and behind them.
constexpr std::size_t kAheadOfAll = 0;
constexpr std::size_t kBehindAll = static_cast<std::size_t>(-1);

class FreeFormPlaces {
  public:
    /// Each free-form line is that of the file which has its text, behind that of the line before. One that the file
    /// lacks stays with the line before.
    FreeFormPlaces(TextView freeForm, TextView file);

    /// Ahead of the first line that stands further down in the file, from 1.
    void Insert(TextView line, std::size_t fileLine);
    /// What the reader has left of this line of the file stands no longer, as another line holds all of it.
    void Hide(std::size_t fileLine);
    /// Undoes the last Insert of the line, and what was hidden for it: what was left of that line of the file.
    void TakeBack(TextView line, std::size_t fileLine);

    /// The lines, parted by CR LF.
    [[nodiscard]] Text Joined() const;

  private:
    struct PlacedLine {
        Text Line;
        std::size_t FileLine = 0;
        bool IsOfFile = false;  // is what the reader has left of that line
        bool IsInserted = false;
        bool IsHidden = false;
    };

    Text original_;
    std::vector<PlacedLine> lines_;
};

}  // namespace lv
