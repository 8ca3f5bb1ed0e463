// platform/linux/files/new_file.h
//
// The name that a file has while it is made, ".lv_666_<process>_<number>" beside its place, and what becomes of those
// whose process was killed over them.

#pragma once

#include <string>

namespace lv {

/// Locked for as long as it is open; gone when the object goes, unless it has moved.
class NewFile {
  public:
    /// `mode` less the user's mask.
    NewFile(const std::string& directory, unsigned mode);
    ~NewFile();
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    /// Otherwise `errno` says why it could not be made.
    [[nodiscard]] bool IsOpen() const { return number_ >= 0; }
    [[nodiscard]] int Number() const { return number_; }

    /// Closes it and puts it in the target's place; an `errno`, or 0.
    int MoveTo(const std::string& target);

  private:
    std::string path_;
    int number_ = -1;
};

/// Removes the directory's new files of processes that are gone. Only plain files of this user's, and none that anybody
/// has locked: the process may run on another machine, or in a container, under a number that means nothing here.
void RemoveLeftovers(const std::string& directory);

}  // namespace lv
