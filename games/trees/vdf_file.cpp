#include "games/trees/vdf_file.h"

#include <algorithm>
#include <optional>

namespace lv {

namespace {

enum class Mark { kEnd, kText, kOpen, kClose };

struct Token {
    Mark Is = Mark::kEnd;
    Text Said{};
};

class Reader {
  public:
    explicit Reader(TextView bytes) : rest_(bytes.substr(0, kLargestVdf)) {
        constexpr TextView kByteOrderMark = "\xEF\xBB\xBF";
        if (rest_.starts_with(kByteOrderMark)) {
            rest_.remove_prefix(kByteOrderMark.size());
        }
    }

    std::vector<VdfEntry> ReadBlock(std::size_t depth) {
        std::vector<VdfEntry> entries;
        std::optional<Text> key;
        for (Token token = Next(); token.Is != Mark::kEnd && made_ < kMostVdfEntries; token = Next()) {
            if (token.Is == Mark::kClose) {
                if (depth > 0) {
                    break;
                }
            } else if (token.Is == Mark::kOpen) {
                AddBlock(entries, key.value_or(""), depth);
                key.reset();
            } else if (!key) {
                key = std::move(token.Said);
            } else {
                entries.push_back({*key, std::move(token.Said), {}});
                key.reset();
                ++made_;
            }
        }
        return entries;
    }

  private:
    void AddBlock(std::vector<VdfEntry>& entries, Text key, std::size_t depth) {
        if (depth + 1 < kDeepestVdf) {
            ++made_;
            entries.push_back({std::move(key), "", ReadBlock(depth + 1)});
        } else {
            PassBlock();
        }
    }

    void PassBlock() {
        std::size_t open = 1;
        for (Token token = Next(); token.Is != Mark::kEnd; token = Next()) {
            open += token.Is == Mark::kOpen ? 1 : 0;
            open -= token.Is == Mark::kClose ? 1 : 0;
            if (open == 0) {
                return;
            }
        }
    }

    // Blanks, comments, and the conditions behind a value: [$WIN32].
    void PassBlanks() {
        while (!rest_.empty()) {
            if (static_cast<unsigned char>(rest_.front()) <= ' ') {
                rest_.remove_prefix(1);
            } else if (rest_.starts_with("//")) {
                rest_.remove_prefix(std::min(rest_.find('\n'), rest_.size()));
            } else if (rest_.starts_with("[")) {
                rest_.remove_prefix(std::min(rest_.find_first_of("]\n"), rest_.size() - 1) + 1);
            } else {
                return;
            }
        }
    }

    Token Next() {
        PassBlanks();
        if (rest_.empty()) {
            return {};
        }
        const char first = rest_.front();
        if (first == '{' || first == '}') {
            rest_.remove_prefix(1);
            return {first == '{' ? Mark::kOpen : Mark::kClose};
        }
        return {Mark::kText, first == '"' ? Quoted() : Bare()};
    }

    Text Bare() {
        const std::size_t size = std::min(rest_.find_first_of(" \t\r\n\"{}"), rest_.size());
        Text said(rest_.substr(0, size));
        rest_.remove_prefix(std::max<std::size_t>(size, 1));
        return said;
    }

    // A "\" that begins no escape stands for itself: old files hold plain paths.
    Text Quoted() {
        Text said;
        rest_.remove_prefix(1);
        while (!rest_.empty() && rest_.front() != '"') {
            const bool escapes = rest_.front() == '\\' && rest_.size() > 1 && (rest_[1] == '\\' || rest_[1] == '"');
            rest_.remove_prefix(escapes ? 1 : 0);
            said.push_back(rest_.front());
            rest_.remove_prefix(1);
        }
        rest_.remove_prefix(rest_.empty() ? 0 : 1);
        return said;
    }

    TextView rest_;
    std::size_t made_ = 0;
};

}  // namespace

std::vector<VdfEntry> ReadVdf(TextView bytes) {
    return Reader(bytes).ReadBlock(0);
}

const VdfEntry* FindVdf(const std::vector<VdfEntry>& entries, TextView key) {
    const auto found = std::ranges::find_if(entries, [&](const VdfEntry& entry) { return SameText(entry.Key, key); });
    return found == entries.end() ? nullptr : &*found;
}

Text VdfValue(const std::vector<VdfEntry>& entries, TextView key) {
    const VdfEntry* entry = FindVdf(entries, key);
    return entry == nullptr ? Text() : entry->Value;
}

}  // namespace lv
