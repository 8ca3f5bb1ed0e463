#include "catalogs/timed_file.h"

namespace lv {

Result<std::string> TimedFile::Read(std::uint64_t offset, std::size_t count) {
    if (read_ >= kReadInAnyCase && clock_.Seconds() > end_) {
        return MakeError(error::kDiskNotReady);
    }
    Result<std::string> read = file_.Read(offset, count);
    read_ += read.Value.size();
    return read;
}

}  // namespace lv
