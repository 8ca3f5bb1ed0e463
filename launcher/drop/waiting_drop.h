// launcher/drop/waiting_drop.h
//
// What was dropped, or named by a start, until the window has time to offer it.

#pragma once

#include "foundation/text.h"
#include "platform/error.h"

namespace lv {

struct WaitingDrop {
    Text Word;              // a path on the drives, or a server; empty: nothing waits
    std::size_t Count = 0;  // of what was dropped at once: this is the first
    Error Fault;            // why there is no path, in the place of one

    [[nodiscard]] bool IsThere() const { return Count > 0; }
};

}  // namespace lv
