#include "catalogs/sorted_names.h"

#include <algorithm>

namespace lv {

namespace {

bool ComesBefore(const Text& a, const Text& b) {
    const auto [left, right] = std::mismatch(a.begin(), a.end(), b.begin(), b.end(),
                                             [](char x, char y) { return LowerCase(x) == LowerCase(y); });
    if (right == b.end()) {
        return left == a.end() && a.size() == b.size() && a < b;
    }
    if (left == a.end()) {
        return true;
    }
    return static_cast<unsigned char>(LowerCase(*left)) < static_cast<unsigned char>(LowerCase(*right));
}

}  // namespace

std::vector<Text> SortedDirectories(const std::vector<DirectoryEntry>& entries) {
    std::vector<Text> names;
    for (const DirectoryEntry& entry : entries) {
        if (entry.IsDirectory && entry.Name != "." && entry.Name != "..") {
            names.push_back(entry.Name);
        }
    }
    std::sort(names.begin(), names.end(), ComesBefore);
    return names;
}

}  // namespace lv
