#include "catalogs/sorted_names.h"

#include <gtest/gtest.h>

namespace lv {

TEST(SortedDirectories, AreSortedBlindToCase) {
    const std::vector<DirectoryEntry> entries = {{".", true},     {"..", true}, {"zeta", true},  {"Beta", true},
                                                 {"ALPHA", true}, {"a", true},  {"file", false}, {"alpha", true}};
    EXPECT_EQ(SortedDirectories(entries), (std::vector<Text>{"a", "ALPHA", "alpha", "Beta", "zeta"}));
}

}  // namespace lv
