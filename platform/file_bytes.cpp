#include "platform/file_bytes.h"

#include <algorithm>
#include <exception>

#include "platform/files.h"

namespace lv {

namespace {

constexpr std::size_t kFirstBlock = 4096;

Result<std::string> Range(std::uint64_t offset, std::size_t count, const ReadSome& readSome) {
    std::string bytes(count, '\0');
    std::size_t done = 0;
    while (done < bytes.size()) {
        const Result<std::size_t> got = readSome(bytes.data() + done, bytes.size() - done, offset + done);
        if (!got.Ok()) {
            return got.Fault;
        }
        if (got.Value == 0) {
            break;
        }
        done += got.Value;
    }
    bytes.resize(done);
    return bytes;
}

Result<std::string> Whole(std::uint64_t size, const ReadSome& readSome) {
    std::string bytes;
    std::size_t done = 0;
    while (size <= kLargestWholeFile && done <= kLargestWholeFile) {
        if (done == bytes.size()) {
            const bool sized = done == 0 && size > 0;
            bytes.resize(sized ? static_cast<std::size_t>(size) + 1 : done + std::max(done, kFirstBlock));
        }
        const Result<std::size_t> got = readSome(bytes.data() + done, bytes.size() - done, done);
        if (!got.Ok()) {
            return got.Fault;
        }
        if (got.Value == 0) {
            bytes.resize(done);
            return bytes;
        }
        done += got.Value;
    }
    return MakeTooLarge(kLargestWholeFile);
}

}  // namespace

Result<std::string> ReadRange(std::uint64_t size, std::uint64_t offset, std::size_t count, const ReadSome& readSome) {
    if (offset >= size) {
        return std::string();
    }
    try {
        return Range(offset, static_cast<std::size_t>(std::min<std::uint64_t>(count, size - offset)), readSome);
    } catch (const std::exception& thrown) {
        return ErrorOfException(thrown);
    }
}

Result<std::string> ReadWhole(std::uint64_t size, const ReadSome& readSome) {
    try {
        return Whole(size, readSome);
    } catch (const std::exception& thrown) {
        return ErrorOfException(thrown);
    }
}

}  // namespace lv
