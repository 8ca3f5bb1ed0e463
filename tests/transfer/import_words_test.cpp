#include "transfer/import_words.h"

#include <gtest/gtest.h>

namespace lv {

TEST(ImportWords, CountWhatIsAnotherNow) {
    EXPECT_EQ(ChangedText(0), "0 settings are others now.");
    EXPECT_EQ(ChangedText(1), "1 setting is another now.");
    EXPECT_EQ(ChangedText(575), "575 settings are others now.");
}

TEST(ImportWords, NameTheFirstTenAndCountTheRest) {
    std::vector<Text> names;
    EXPECT_TRUE(FirstFew(names).empty());
    for (int i = 1; i <= 10; ++i) {
        names.push_back(std::to_string(i));
    }
    EXPECT_EQ(FirstFew(names), names);
    names.resize(550, "x");
    const std::vector<Text> few = FirstFew(names);
    ASSERT_EQ(few.size(), 11u);
    EXPECT_EQ(few[9], "10");
    EXPECT_EQ(few[10], "and 540 more");
}

}  // namespace lv
