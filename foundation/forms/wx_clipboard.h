// foundation/forms/wx_clipboard.h
//
// The clipboard through the toolkit, which owns the display connection that a clipboard needs.

#pragma once

#include "platform/clipboard.h"

namespace lv {

class WxClipboard : public Clipboard {
  public:
    Error SetText(std::string_view text) override;
    std::string GetText() override;
};

}  // namespace lv
