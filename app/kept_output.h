// app/kept_output.h
//
// The file that holds what a game has printed: never more than a megabyte, the first part and the last.

#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace lv {

constexpr std::size_t kMostKept = std::size_t{1024} * 1024;  // bytes of the file
constexpr std::size_t kFirstKept = std::size_t{64} * 1024;   // of them, that stay for good
constexpr std::size_t kLastKept = std::size_t{448} * 1024;   // that stay at least, of what came last

class KeptOutput {
  public:
    /// Makes the file, for this user's eyes alone. What stands at its name is never opened: nothing is kept then.
    explicit KeptOutput(std::string path);
    ~KeptOutput();
    KeptOutput(const KeptOutput&) = delete;
    KeptOutput& operator=(const KeptOutput&) = delete;

    /// Ends the keeping where the disk takes no more; what is there stays.
    void Append(std::string_view bytes);

    /// False from the moment on that another start has begun the file anew: it is another game's then.
    [[nodiscard]] bool IsOurs() const;

  private:
    void MakeRoom();

    std::string path_;
    int file_ = -1;
    bool keeping_ = true;
    std::size_t size_ = 0;
};

/// Puts a small file for this user's eyes alone in the place of whatever stands there, in one step.
bool PutInPlace(const std::string& path, std::string_view bytes);

}  // namespace lv
