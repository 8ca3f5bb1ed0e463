// catalogs/timed_file.h
//
// A file that is read for so long and no longer: a slow disk is not to hold up the window.

#pragma once

#include "platform/clock.h"
#include "platform/files.h"

namespace lv {

/// Reads like the file below it. Once its time is over, and as much has been read as any game's own archives need, a
/// read is error 71, disk not ready.
class TimedFile : public RandomAccessFile {
  public:
    /// The clock starts now.
    TimedFile(RandomAccessFile& file, Clock& clock, double seconds)
        : file_(file), clock_(clock), end_(clock.Seconds() + seconds) {}

    [[nodiscard]] std::uint64_t Size() const override { return file_.Size(); }
    Result<std::string> Read(std::uint64_t offset, std::size_t count) override;

    static constexpr std::size_t kReadInAnyCase = 256U << 10U;  // 4,096 entries of 64 bytes

  private:
    RandomAccessFile& file_;
    Clock& clock_;
    double end_;
    std::size_t read_ = 0;
};

}  // namespace lv
