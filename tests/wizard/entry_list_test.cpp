#include "wizard/entry_list.h"

#include <gtest/gtest.h>

#include "foundation/field_strings.h"

namespace lv {

namespace {
constexpr const char* kQuakeSpasm = "QuakeSpasm;c:\\home\\games\\quake\\quakespasm";
}  // namespace

TEST(TitleOfEntry, StaysWhereItIsTheOnlyOne) {
    EXPECT_EQ(TitleOfEntry("", "QuakeSpasm", "C:\\Q", {}), "QuakeSpasm");
    EXPECT_EQ(TitleOfEntry("DarkPlaces;c:\\q\\darkplaces;", "QuakeSpasm", "C:\\Q", {"C:\\Q2"}), "QuakeSpasm");
}

TEST(TitleOfEntry, IsNoPath) {
    EXPECT_EQ(TitleOfEntry("DarkPlaces;quakespasm", "QuakeSpasm", "C:\\Q", {}), "QuakeSpasm");
}

TEST(TitleOfEntry, NamesTheDirectoryOfTheSecondTree) {
    EXPECT_EQ(TitleOfEntry(kQuakeSpasm, "QuakeSpasm", "D:\\Quake\\rerelease", {"C:\\HOME\\games\\quake"}),
              "QuakeSpasm (rerelease)");
    EXPECT_EQ(TitleOfEntry(kQuakeSpasm, "quakespasm", "D:\\Q\\", {"C:\\HOME\\games\\quake"}), "quakespasm (Q)");
}

TEST(TitleOfEntry, TakesAsMuchOfThePathAsTellsTwoTreesApart) {
    EXPECT_EQ(TitleOfEntry(kQuakeSpasm, "QuakeSpasm", "D:\\old\\Quake", {"C:\\HOME\\games\\quake"}),
              "QuakeSpasm (old\\Quake)");
    EXPECT_EQ(TitleOfEntry(kQuakeSpasm, "QuakeSpasm", "D:\\games\\Quake", {"C:\\HOME\\games\\quake"}),
              "QuakeSpasm (D:\\games\\Quake)");
}

TEST(TitleOfEntry, OfATreeOfSteamsNamesSteam) {
    EXPECT_EQ(TitleOfEntry(kQuakeSpasm, "QuakeSpasm", "C:\\HOME\\.steam\\steamapps\\common\\Quake",
                           {"C:\\HOME\\games\\quake"}),
              "QuakeSpasm (Steam\\Quake)");
}

TEST(TitleOfEntry, HoldsNothingThatAListCouldNotKeep) {
    const Text title = TitleOfEntry(kQuakeSpasm, "QuakeSpasm", "D:\\a,b;c\"d\x01", {});
    EXPECT_EQ(title, "QuakeSpasm (a?b?c?d?)");
}

TEST(TitleOfEntry, IsNumberedWhereNoPathTellsItApart) {
    const Text list = Join(kQuakeSpasm, ";QuakeSpasm (Q);c:\\a;QuakeSpasm (D:\\Q);c:\\b;QuakeSpasm (2);c:\\c");
    EXPECT_EQ(TitleOfEntry(list, "QuakeSpasm", "D:\\Q", {}), "QuakeSpasm (3)");
    EXPECT_EQ(TitleOfEntry(kQuakeSpasm, "QuakeSpasm", Join("D:\\", Text(200, 'x')), {}), "QuakeSpasm (2)");
}

}  // namespace lv
