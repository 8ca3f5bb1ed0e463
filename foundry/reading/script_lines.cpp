#include "foundry/reading/script_lines.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace lv {

namespace {

constexpr std::size_t kBlock = 65536;  // bytes
constexpr int kMostEmptyLines = 100;   // in a row

// A window at a time: a file of one kind of line end is not searched for the other kind to its end.
std::size_t FindLineEnd(TextView bytes, std::size_t at) {
    constexpr std::size_t kWindow = 256;
    for (; at < bytes.size(); at += kWindow) {
        const TextView window = bytes.substr(at, kWindow);
        const TextView line = window.substr(0, window.find('\n'));
        const std::size_t end = std::min(line.find('\r'), line.size());
        if (end < window.size()) {
            return at + end;
        }
    }
    return bytes.size();
}

bool IsZero(TextView bytes) {
    return !bytes.empty() && bytes.front() == '\0' && bytes.substr(1) == bytes.substr(0, bytes.size() - 1);
}

std::size_t ZerosAtStart(TextView bytes) {
    return IsZero(bytes) ? bytes.size() : std::min(bytes.find_first_not_of('\0'), bytes.size());
}

/// Zero bytes at the end are the most there are, in a hole, and are not looked at one by one.
TextView WithoutHole(TextView bytes) {
    const std::size_t first = bytes.find('\0');
    return first != TextView::npos && IsZero(bytes.substr(first)) ? bytes.substr(0, first) : bytes;
}

bool HasZeros(TextView bytes) {
    return bytes.find('\0') != TextView::npos;
}

std::size_t TextBytes(TextView bytes) {
    const TextView text = WithoutHole(bytes);
    return text.size() - (HasZeros(text) ? static_cast<std::size_t>(std::ranges::count(text, '\0')) : 0);
}

/// Moves what is text to the front.
std::span<char> WithoutZeros(std::span<char> bytes) {
    const TextView text = WithoutHole(TextView(bytes.data(), bytes.size()));
    bytes = bytes.first(text.size());
    if (!HasZeros(text)) {
        return bytes;
    }
    const auto end = std::remove(bytes.begin(), bytes.end(), '\0');
    return bytes.first(static_cast<std::size_t>(end - bytes.begin()));
}

}  // namespace

bool ScriptLines::Next(std::span<char>& line) {
    Release();
    if (emptyLines_ > kMostEmptyLines || !FindText() || (!TakeShort(line) && !TakeLong(line))) {
        return false;
    }
    ++number_;
    emptyLines_ = line.empty() ? emptyLines_ + 1 : 0;
    return emptyLines_ <= kMostEmptyLines;
}

void ScriptLines::Release() {
    Text().swap(long_);
}

bool ScriptLines::Load(std::uint64_t offset) {
    auto read = file_.Read(offset, kBlock);
    block_ = std::move(read.Value);
    begin_ = offset;
    loaded_ = read.Ok() && !block_.empty();
    if (!loaded_) {
        next_ = file_.Size();
    }
    return loaded_;
}

bool ScriptLines::HoldsNext() const {
    return loaded_ && next_ - begin_ < block_.size();
}

// Moves next_ to what is text, in the block that is loaded then. False at the end of the file.
bool ScriptLines::FindText() {
    while (HoldsNext() || Load(next_)) {
        const TextView rest = TextView(block_).substr(static_cast<std::size_t>(next_ - begin_));
        const std::size_t zeros = ZerosAtStart(rest);
        next_ += zeros;
        if (zeros == rest.size()) {
            continue;
        }
        if (!std::exchange(afterCarriageReturn_, false) || rest[zeros] != '\n') {
            return true;
        }
        ++next_;
    }
    return false;
}

// A line that ends within the block, or within the one that begins where the line does.
bool ScriptLines::TakeShort(std::span<char>& line) {
    for (const bool fresh : {false, true}) {
        if (fresh && !Load(next_)) {
            return false;
        }
        const auto start = static_cast<std::size_t>(next_ - begin_);
        const std::size_t end = FindLineEnd(block_, start);
        const bool endsFile = begin_ + end >= file_.Size();
        if (end == block_.size() && !endsFile) {
            continue;
        }
        line = WithoutZeros(std::span(block_).subspan(start, end - start));
        EndLine(begin_ + end, end < block_.size() ? block_[end] : '\0');
        return true;
    }
    return false;
}

// Its length is looked up first, so that it is held once, and in no more bytes than it has.
bool ScriptLines::TakeLong(std::span<char>& line) {
    std::uint64_t end = next_;
    std::size_t length = 0;
    char last = '\0';
    while (last == '\0' && end < file_.Size()) {
        if (!Load(end)) {
            return false;
        }
        const std::size_t at = FindLineEnd(block_, 0);
        last = at < block_.size() ? block_[at] : '\0';
        length += TextBytes(TextView(block_).substr(0, at));
        end += at;
    }
    if (end == next_ || !ReadLong(end, length)) {
        return false;
    }
    line = std::span(long_);
    EndLine(end, last);
    return true;
}

bool ScriptLines::ReadLong(std::uint64_t end, std::size_t length) {
    long_.reserve(length);
    for (std::uint64_t at = next_; at < end; at += block_.size()) {
        if (!Load(at)) {
            return false;
        }
        const auto most = static_cast<std::size_t>(std::min<std::uint64_t>(block_.size(), end - at));
        const std::span<char> text = WithoutZeros(std::span(block_).first(most));
        long_.append(text.data(), text.size());
    }
    loaded_ = false;  // its text was moved
    return true;
}

// `last` is the byte there, 0 at the end of the file.
void ScriptLines::EndLine(std::uint64_t at, char last) {
    next_ = at + (last == '\0' ? 0 : 1);
    afterCarriageReturn_ = last == '\r';
}

}  // namespace lv
