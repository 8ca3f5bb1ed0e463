// A file of Steam's.

#include "games/trees/vdf_file.h"

#include "tests/fuzz/readers.h"

namespace lv {

namespace {

std::size_t CountEntries(const std::vector<VdfEntry>& entries, std::size_t depth) {
    MustHold(depth < kDeepestVdf, "no block lies deeper than is read");
    std::size_t count = entries.size();
    for (const VdfEntry& entry : entries) {
        count += CountEntries(entry.Block, depth + 1);
    }
    return count;
}

}  // namespace

void FuzzVdf(TextView input) {
    const auto entries = ReadVdf(input);
    MustHold(CountEntries(entries, 0) <= kMostVdfEntries, "there are no more entries than are read");
    for (const VdfEntry& entry : entries) {
        const VdfEntry* found = FindVdf(entries, entry.Key);
        MustHold(found != nullptr && SameText(found->Key, entry.Key), "each key is found");
    }
}

}  // namespace lv
