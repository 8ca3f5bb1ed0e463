#include "foundry/reading/script_lines.h"

#include <algorithm>
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

}  // namespace

bool ScriptLines::Next(std::span<char>& line) {
    Release();
    if (emptyLines_ > kMostEmptyLines || (!TakeShort(line) && !TakeLong(line))) {
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

// The block at the next line, or at the one behind what is no text.
bool ScriptLines::LoadText() {
    for (bool passedOver = false; Load(next_); next_ += block_.size()) {
        if ((block_.size() < kBlock && !passedOver) || !IsZero(block_)) {
            return true;
        }
        passedOver = true;
    }
    return false;
}

// A line that ends within the block, or within the one that begins where the line does.
bool ScriptLines::TakeShort(std::span<char>& line) {
    for (const bool fresh : {false, true}) {
        if ((fresh || !loaded_ || next_ - begin_ >= block_.size()) && !LoadText()) {
            return false;
        }
        auto start = static_cast<std::size_t>(next_ - begin_);
        if (afterCarriageReturn_ && block_[start] == '\n') {
            ++start;
            ++next_;
        }
        afterCarriageReturn_ = false;
        const std::size_t end = FindLineEnd(block_, start);
        const bool endsFile = begin_ + end >= file_.Size();
        if (end == block_.size() && !endsFile) {
            continue;
        }
        if (start == block_.size()) {
            return false;
        }
        line = std::span(block_).subspan(start, end - start);
        afterCarriageReturn_ = end < block_.size() && block_[end] == '\r';
        next_ = begin_ + end + (end < block_.size() ? 1 : 0);
        return true;
    }
    return false;
}

// Its length is looked up first, so that it is held once, and in no more bytes than it has.
bool ScriptLines::TakeLong(std::span<char>& line) {
    const std::uint64_t start = next_;
    std::uint64_t end = start;
    bool found = false;
    while (!found && end < file_.Size()) {
        if (!Load(end)) {
            return false;
        }
        if (end > start && block_.size() == kBlock && IsZero(block_)) {
            loaded_ = false;
            break;
        }
        const std::size_t at = FindLineEnd(block_, 0);
        found = at < block_.size();
        afterCarriageReturn_ = found && block_[at] == '\r';
        end += at;
    }
    if (end == start) {
        return false;
    }
    auto read = file_.Read(start, static_cast<std::size_t>(end - start));
    if (!read.Ok() || read.Value.size() != end - start) {
        next_ = file_.Size();
        return false;
    }
    long_ = std::move(read.Value);
    line = std::span(long_);
    next_ = end + (found ? 1 : 0);
    return true;
}

}  // namespace lv
