#include "foundry/reading/list_finder.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

ListBox ListOf(std::vector<Text> items) {
    ListBox list;
    list.Items = std::move(items);
    return list;
}

/// What is selected once the text was looked for.
Text Selected(std::vector<Text> items, TextView text) {
    ListBox list = ListOf(std::move(items));
    SelectInList(list, text);
    return list.Selected();
}

TEST(SelectInList, FindsTheTextBlindToCase) {
    EXPECT_EQ(Selected({"True", "False"}, "FALSE"), "False");
    EXPECT_EQ(Selected({"male", "female"}, "Female"), "female");
}

TEST(SelectInList, FindsTheNumber) {
    EXPECT_EQ(Selected({"0.0", "0.1", "0.5"}, ".50"), "0.5");
    EXPECT_EQ(Selected({"200", "225"}, "225.000000"), "225");
    EXPECT_EQ(Selected({"11025Hz", "22050Hz"}, "22050"), "22050Hz");
    EXPECT_EQ(Selected({"0 (none)", "1 (crosshair on)"}, "1"), "1 (crosshair on)");
}

TEST(SelectInList, ReadsACommaAsThePoint) {
    EXPECT_EQ(Selected({"0,1", "0,5"}, "0.5"), "0,5");
    EXPECT_EQ(Selected({"0.1", "0.5"}, "0,5"), "0.5");
    EXPECT_EQ(Selected({",25"}, "0.25"), ",25");
}

TEST(SelectInList, TakesTheFirstOfSeveral) {
    ListBox list = ListOf({"1.0", "1", "1.00"});
    SelectInList(list, "1");
    EXPECT_EQ(list.ListIndex, 0);
    SelectInList(list, "1.00");
    EXPECT_EQ(list.ListIndex, 0);
}

TEST(SelectInList, AddsAValueThatTheListDoesNotOffer) {
    ListBox list = ListOf({"50", "75"});
    SelectInList(list, "60");
    EXPECT_EQ(list.Items, (std::vector<Text>{"50", "75", "60"}));
    EXPECT_EQ(list.ListIndex, 2);
    SelectInList(list, "60.0");
    EXPECT_EQ(list.Items.size(), 3);
    EXPECT_EQ(list.ListIndex, 2);
}

TEST(SelectInList, ReadsWhatIsNoNumberAsZero) {
    EXPECT_EQ(Selected({"0.0", "0.1"}, "loud"), "0.0");
    EXPECT_EQ(Selected({"15", "20"}, "wide"), "wide");
}

TEST(SelectInList, TakesAWordForNoNumber) {
    EXPECT_EQ(Selected({"male", "female"}, "cyborg"), "cyborg");
    EXPECT_EQ(Selected({"True", "False"}, "0"), "0");
    EXPECT_EQ(Selected({"-", "+."}, "0"), "0");
}

TEST(SelectInList, OfAnEmptyListAddsTheText) {
    EXPECT_EQ(Selected({}, "x"), "x");
    EXPECT_EQ(Selected({}, ""), "");
}

TEST(SelectInList, TellsMinusZeroFromNoOther) {
    EXPECT_EQ(Selected({"0", "1"}, "-0"), "0");
    EXPECT_EQ(Selected({"-0.0", "1"}, "0"), "-0.0");
}

TEST(ListFinder, GivesTheSameRowsAsASearchFromTheFront) {
    ListBox list = ListOf({"0.2", "0.1", "True"});
    ListFinder finder;
    for (const char* text : {"0.1", "true", "x", "0.10", "X", "7", "7.0", ",2"}) {
        finder.Select(list, text);
        ListBox fresh = ListOf({"0.2", "0.1", "True", "x", "7"});
        SelectInList(fresh, text);
        EXPECT_EQ(list.Selected(), fresh.Selected()) << text;
    }
    EXPECT_EQ(list.Items, (std::vector<Text>{"0.2", "0.1", "True", "x", "7"}));
}

TEST(ListFinder, PutsTheLastValueInTheLastRowOnceThereAreTooMany) {
    ListBox list = ListOf({"a", "b"});
    ListFinder finder;
    for (int number = 1; number <= 2500; ++number) {
        finder.Select(list, std::to_string(number));
        EXPECT_EQ(list.Selected(), std::to_string(number));
    }
    EXPECT_EQ(list.Items.size(), 1002);
    EXPECT_EQ(list.Items.back(), "2500");
    finder.Select(list, "999");
    EXPECT_EQ(list.ListIndex, 1000);
    finder.Select(list, "2499");  // is not there any more
    EXPECT_EQ(list.ListIndex, 1001);
    EXPECT_EQ(list.Items.back(), "2499");
}

TEST(ListFinder, AddsWhatDoesNotStandThere) {
    ListBox list = ListOf({"ASMD"});
    ListFinder finder;
    EXPECT_TRUE(finder.Add(list, "asmd"));
    EXPECT_TRUE(finder.Add(list, "Quadshot"));
    EXPECT_TRUE(finder.Add(list, "QUADSHOT"));
    EXPECT_EQ(list.Items, (std::vector<Text>{"ASMD", "Quadshot"}));
    EXPECT_EQ(list.ListIndex, -1);
}

TEST(ListFinder, RefusesToAddTooMany) {
    ListBox list;
    ListFinder finder;
    for (int number = 0; number < 1000; ++number) {
        EXPECT_TRUE(finder.Add(list, "w" + std::to_string(number)));
    }
    EXPECT_FALSE(finder.Add(list, "one more"));
    EXPECT_TRUE(finder.Add(list, "w5"));
    EXPECT_EQ(list.Items.size(), 1000);
}

TEST(RowOf, IsBlindToCaseAndBelowZeroWithoutAMatch) {
    EXPECT_EQ(RowOf(ListOf({"a.pcx", "b.pcx"}), "B.PCX"), 1);
    EXPECT_EQ(RowOf(ListOf({"a.pcx"}), "a"), -1);
}

}  // namespace
}  // namespace lv
