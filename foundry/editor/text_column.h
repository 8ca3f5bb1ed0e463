// foundry/editor/text_column.h
//
// Columns of a list whose font has letters of many widths: made of blanks, by the measure of the text.

#pragma once

#include "foundation/user_interface.h"

namespace lv {

/// The width of a tab in the windows' font, in pixels.
int TabWidth(UserInterface& user);

/// A column of this width, in pixels.
class TextColumn {
  public:
    TextColumn(UserInterface& user, int width);

    /// With blanks at its end until it is as wide as the column.
    [[nodiscard]] Text Padded(TextView text) const;

  private:
    UserInterface& user_;
    int width_;
    int blank_;
};

}  // namespace lv
