// app/passed_output.h
//
// What a game has printed, passed on to this program's own standard output, where a terminal or a log may stand.

#pragma once

#include <string_view>

namespace lv {

class PassedOutput {
  public:
    /// A reader that takes nothing is waited for once, for a second; from then on it gets what it has room for, so that
    /// the game does not wait with it. One that has gone gets nothing more. SIGPIPE must be ignored.
    void Pass(std::string_view bytes);

  private:
    bool gone_ = false;
    bool slow_ = false;
};

}  // namespace lv
