#include "foundation/padded_item.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

Text Row(TextView title, TextView value) {
    Text row(title);
    row.resize(100, ' ');
    return row.append(value);
}

TEST(MakeItem, PutsTheValueBehindAHundredCharacters) {
    const Text item = MakeItem("Quake", "-game ctf");
    EXPECT_EQ(item.size(), 109U);
    EXPECT_EQ(item.substr(0, 6), "Quake ");
    EXPECT_EQ(item.substr(100), "-game ctf");
}

TEST(MakeItem, CutsALongTitle) {
    EXPECT_EQ(MakeItem(Text(120, 'x'), "value"), Text(100, 'x') + "value");
}

TEST(ItemTitle, IsTheNameWithoutItsBlanks) {
    EXPECT_EQ(ItemTitle(Row(" Capture the Flag ", "-game ctf")), "Capture the Flag");
    EXPECT_EQ(ItemTitle(Text(100, 'x') + "value"), Text(100, 'x'));
}

TEST(ItemTitle, OfAShortTextIsTheWholeText) {
    EXPECT_EQ(ItemTitle("abc"), "abc");
    EXPECT_EQ(ItemTitle(""), "");
}

TEST(ItemValue, IsWhatStandsBehindTheTitleWithoutItsBlanks) {
    EXPECT_EQ(ItemValue(Row("Quake", " -game ctf ")), "-game ctf");
    EXPECT_EQ(ItemValue(Text(100, 'x') + "value"), "value");
}

TEST(ItemValue, OfAShortTextIsEmpty) {
    EXPECT_EQ(ItemValue("abc"), "");
    EXPECT_EQ(ItemValue(Text(100, 'x')), "");
}

TEST(StoredItemValue, KeepsItsBlanks) {
    EXPECT_EQ(StoredItemValue(Row("Work", " 10.0.0.1;26000;0;pass ")), " 10.0.0.1;26000;0;pass ");
    EXPECT_EQ(StoredItemValue("abc"), "");
}

TEST(FindItemValue, IsTheFirstRowOfThatValueInAnyLetterCase) {
    const std::vector<Text> items = {Row("a.cfg", "c:\\a.cfg"), Row("b.cfg", "C:\\B.cfg"), Row("b", "c:\\b.cfg")};
    EXPECT_EQ(FindItemValue(items, "c:\\b.CFG"), Index(1));
}

TEST(FindItemValue, LooksAtTheWholeValueAndNotAtTheTitle) {
    const std::vector<Text> items = {Row("ctf", "-game ctf2"), Row("Longer", "-game ctf ")};
    EXPECT_EQ(FindItemValue(items, "-game ctf"), std::nullopt);
    EXPECT_EQ(FindItemValue({}, "-game ctf"), std::nullopt);
}

TEST(FindItemValue, SkipsWhatEveryValueBeginsWith) {
    const std::vector<Text> items = {Row("Arena", "-game arena"), Row("Capture the Flag", "-game CTF")};
    EXPECT_EQ(FindItemValue(items, "ctf", 6), Index(1));
    EXPECT_EQ(FindItemValue(items, "ctf", 5), std::nullopt);
}

}  // namespace
}  // namespace lv
