// platform/clipboard.h
//
// The clipboard's text, in code page 1252.

#pragma once

#include <string>
#include <string_view>

#include "platform/error.h"

namespace lv {

class Clipboard {
  public:
    virtual ~Clipboard() = default;
    virtual Error SetText(std::string_view text) = 0;
    /// Empty if there is no text.
    virtual std::string GetText() = 0;
};

}  // namespace lv
