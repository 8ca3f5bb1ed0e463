// platform/linux/files/walked_drive.h
//
// The drive that a walk is on. It asks for directories as it has found them listed, so that their host paths follow
// from the text: looking for each from the root on took as long as reading it.

#pragma once

#include <string>
#include <string_view>

namespace lv {

class WalkedDrive {
  public:
    /// The walk begins here; `root` is the drive's entry.
    void Enter(char letter, std::string root);

    /// Where a path of this drive lies if it is there as it is spelled; empty if only a look at the disk could tell.
    [[nodiscard]] std::string HostPathOf(std::string_view path) const;

  private:
    char letter_ = '\0';
    std::string root_;
};

}  // namespace lv
