// platform/linux/starting/last_game.h
//
// The game that was started last, under the helper that keeps what it prints and how it ends.

#pragma once

#include <optional>
#include <string>

#include "platform/linux/child_process.h"
#include "platform/linux/starting/game_start.h"
#include "platform/processes.h"

namespace lv {

class LastGame {
  public:
    /// Starts it, without the helper where that cannot be run; its errors are those of StartDetached.
    Error Start(HostCommand command, const HostPlaces& places);

    /// Whether its end is still to be told.
    [[nodiscard]] bool IsWatched() const { return watched_; }
    std::optional<GameEnd> TakeEnd(const HostPlaces& places);

  private:
    bool watched_ = false;
    std::string token_;
};

/// What the last game has printed, of this run or one before.
std::optional<std::string> OutputOfLastGame(const HostPlaces& places);

}  // namespace lv
