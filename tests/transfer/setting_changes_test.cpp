#include "transfer/setting_changes.h"

#include <gtest/gtest.h>

namespace lv {

namespace {

using Values = std::vector<StoredValue>;

Text Between(const Values& before, const Values& after) {
    return ChangesText(ChangesBetween(before, after));
}

}  // namespace

TEST(SettingChanges, AreNoneBetweenTheSame) {
    const Values values = {{"Options", "Games", "Capture;-game ctf"}};
    EXPECT_FALSE(ChangesBetween(values, values).Any());
    EXPECT_FALSE(ChangesBetween({}, {}).Any());
    EXPECT_EQ(Between(values, {{"OPTIONS", "GAMES", "Capture;-game ctf"}}), "nothing");
}

TEST(SettingChanges, CountTheEntriesOfLists) {
    const Values before = {{"Options", "Executables", "Quake;C:\\Q.EXE;Hexen;C:\\H.EXE"}};
    EXPECT_EQ(Between(before, {{"Options", "Executables", "Quake;C:\\Q.EXE"}}), "1 list entry");
    EXPECT_EQ(Between(before, {{"Options", "Executables", "Quake;D:\\Q.EXE;Hexen;C:\\H.EXE"}}), "2 list entries");
    EXPECT_EQ(Between(before, {}), "2 list entries");
    EXPECT_EQ(Between(before, {{"Options", "Executables", "Hexen;C:\\H.EXE;Quake;C:\\Q.EXE"}}), "1 list entry");
    EXPECT_EQ(Between(before, {{"Options", "Executables", "damaged"}}), "2 list entries");
}

TEST(SettingChanges, CountAVideoProfileOnce) {
    const Values before = {{"Options", "VideoProfileList", "Base;Fast;Slow"},
                           {"Fast", "UseRez", "1"},
                           {"Fast", "UseBits", "1"},
                           {"Slow", "UseRez", "1"}};
    Values after = before;
    after[1].Value = "0";
    after[2].Value = "0";
    EXPECT_EQ(Between(before, after), "1 video profile");
    after[3].Value = "0";
    EXPECT_EQ(Between(before, after), "2 video profiles");
}

TEST(SettingChanges, CountAllElseAsSettings) {
    EXPECT_EQ(Between({{"Options", "UseGames", "1"}}, {}), "1 setting");
    EXPECT_EQ(Between({{"Options", "UseGames", "1"}, {"ShowMessage", "a", "1"}},
                      {{"Options", "UseGames", "0"}, {"ShowMessage", "a", "0"}}),
              "2 settings");
}

TEST(SettingChanges, AreSaidInOneSentence) {
    EXPECT_EQ(ChangesText({3, 1, 12}), "3 list entries, 1 video profile and 12 settings");
    EXPECT_EQ(ChangesText({0, 2, 1}), "2 video profiles and 1 setting");
    EXPECT_EQ(ChangesText({1, 0, 0}), "1 list entry");
    EXPECT_EQ(ChangesText({}), "nothing");
}

}  // namespace lv
