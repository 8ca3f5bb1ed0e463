// platform/stand_ins.h
//
// Programs that stand in for files which are not there, by the files' paths in any letter case.

#pragma once

#include <map>
#include <string>
#include <string_view>

namespace lv {

class StandIns {
  public:
    /// An empty `real` takes the stand-in away.
    void Set(std::string_view path, std::string_view real);

    /// The program's path, or null.
    [[nodiscard]] const std::string* Of(std::string_view path) const;

  private:
    std::map<std::string, std::string> real_;
};

}  // namespace lv
