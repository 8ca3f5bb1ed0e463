#include "transfer/moved_places.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_platform.h"

namespace lv {

namespace {

std::vector<StoredValue> Catalog(TextView value) {
    return {{"Options", "Executables", Text(value)}};
}

class MovedPlaces : public ::testing::Test {
  protected:
    MovedPlaces() {
        disk.AddFile("C:\\QUAKE\\QUAKE.EXE");
        disk.AddDrive("D:");
    }
    /// "directory: title, title"
    std::vector<Text> Of(TextView catalog) {
        std::vector<Text> lines;
        for (const MovedPlace& place : MovedPlacesOf(disk, Catalog(catalog))) {
            Text line = place.Directory + ":";
            for (const Text& title : place.Games) {
                line += Join(" ", title);
            }
            lines.push_back(line);
        }
        return lines;
    }

    MemoryFiles disk;
};

using Lines = std::vector<Text>;

}  // namespace

TEST_F(MovedPlaces, AreTheDirectoriesThatAreNotHereEachOnce) {
    EXPECT_EQ(
        Of("Quake;C:\\QUAKE\\QUAKE.EXE;GL;C:\\GAMES\\Q2\\gl.exe;Quake2;c:\\games\\q2\\QUAKE2.EXE;HL;D:\\hl\\hl.exe"),
        (Lines{"C:\\GAMES\\Q2: GL Quake2", "D:\\hl: HL"}));
}

TEST_F(MovedPlaces, AreNoneWhereAllIsHere) {
    EXPECT_EQ(Of("Quake;C:\\QUAKE\\QUAKE.EXE;Gone;C:\\QUAKE\\GONE.EXE"), Lines());
    EXPECT_EQ(Of(""), Lines());
    EXPECT_EQ(Of("a damaged one;"), Lines());
    EXPECT_TRUE(MovedPlacesOf(disk, {}).empty());
}

TEST_F(MovedPlaces, TakeWhatLiesInThemAlong) {
    EXPECT_EQ(Of("Deep;C:\\Q2\\engines\\new\\q.exe;Q2;C:\\Q2\\QUAKE2.EXE;Other;C:\\Q2X\\q.exe"),
              (Lines{"C:\\Q2: Q2 Deep", "C:\\Q2X: Other"}));
}

TEST_F(MovedPlaces, AreReadWithBlanksAndEitherSeparator) {
    EXPECT_EQ(Of("Quake ; C:/QUAKE/QUAKE.EXE;HL; D:/hl/hl.exe "), Lines{"D:\\hl: HL"});
}

TEST_F(MovedPlaces, LookAtNoDisketteAndAtNoOtherMachine) {
    disk.AddFile("A:\\GAME\\G.EXE");
    EXPECT_EQ(Of("Disk;A:\\GAME\\G.EXE;Net;\\\\server\\games\\q.exe;Bare;quake.exe;Odd;:;Odder;C:quake.exe"),
              Lines{"A:\\GAME: Disk"});
}

TEST_F(MovedPlaces, AreLikelyWhereTheirNeighbourIs) {
    disk.AddDirectory("D:\\Play\\QUAKE2");
    const std::vector<PathMove> known = {{"C:\\GAMES\\QUAKE", "D:\\Play\\Quake"}};
    EXPECT_EQ(LikelyPlace(disk, {"C:\\GAMES\\QUAKE2", {}}, known), "D:\\Play\\QUAKE2");
    EXPECT_EQ(LikelyPlace(disk, {"C:\\GAMES\\HL", {}}, known), "");
    EXPECT_EQ(LikelyPlace(disk, {"C:\\OTHER\\QUAKE2", {}}, known), "");
    EXPECT_EQ(LikelyPlace(disk, {"C:\\GAMES\\QUAKE2", {}}, {}), "");
}

TEST_F(MovedPlaces, TellWhatIsHere) {
    EXPECT_TRUE(IsHere(disk, "C:\\QUAKE"));
    EXPECT_TRUE(IsHere(disk, "C:\\QUAKE\\QUAKE.EXE"));
    EXPECT_FALSE(IsHere(disk, "C:\\QUAKE2"));
    EXPECT_FALSE(IsHere(disk, "\\\\server\\games"));
    EXPECT_FALSE(IsHere(disk, "quake.exe"));
    EXPECT_FALSE(IsHere(disk, ""));
}

TEST_F(MovedPlaces, MissTheProgramsThatAreNotInTheNewDirectory) {
    const auto places =
        MovedPlacesOf(disk, Catalog("Q2;C:\\Q2\\QUAKE2.EXE;Again;c:\\q2\\quake2.exe;Deep;C:\\Q2\\new\\q.exe;GL;"
                                    "C:\\Q2\\gl.exe"));
    ASSERT_EQ(places.size(), 1u);
    disk.AddFile("D:\\play\\GL.EXE");
    disk.AddDirectory("D:\\play\\quake2.exe");
    EXPECT_EQ(MissingIn(disk, places[0], "D:\\play"), (Lines{"QUAKE2.EXE", "new\\q.exe"}));
    EXPECT_EQ(MissingIn(disk, places[0], "D:\\"), (Lines{"QUAKE2.EXE", "gl.exe", "new\\q.exe"}));
    disk.AddFile("D:\\all\\quake2.exe");
    disk.AddFile("D:\\all\\gl.exe");
    disk.AddFile("D:\\all\\new\\q.exe");
    EXPECT_EQ(MissingIn(disk, places[0], "D:\\all\\"), Lines());
    EXPECT_EQ(MissingIn(disk, places[0], "\\\\server\\share"), Lines());
    EXPECT_EQ(MissingIn(disk, places[0], "A:\\"), (Lines{"QUAKE2.EXE", "gl.exe", "new\\q.exe"}));
}

TEST_F(MovedPlaces, AreLookedForNearWhatIsCalledSo) {
    disk.AddFile("D:\\old\\Quake2\\QUAKE2.EXE");
    const MovedPlace place{"E:\\Games\\QUAKE2", {}, {}};
    constexpr TextView kBoth = "Quake;C:\\QUAKE\\QUAKE.EXE;Q2;D:\\old\\Quake2\\QUAKE2.EXE";
    EXPECT_EQ(WhereToLook(disk, place, kBoth), "D:\\old\\Quake2");
    EXPECT_EQ(WhereToLook(disk, {"E:\\Games\\HL", {}, {}}, kBoth), "C:\\");
    EXPECT_EQ(WhereToLook(disk, place, "Gone;D:\\gone\\quake2\\q.exe;Q2;D:\\old\\Quake2\\QUAKE2.EXE"),
              "D:\\old\\Quake2");
}

TEST_F(MovedPlaces, AreLookedForOnTheirOwnDriveWhereNoGameIsKnown) {
    EXPECT_EQ(WhereToLook(disk, {"D:\\Games\\QUAKE", {}, {}}, ""), "D:\\");
    EXPECT_EQ(WhereToLook(disk, {"E:\\Games\\QUAKE", {}, {}}, ""), "");
    EXPECT_EQ(WhereToLook(disk, {"A:\\QUAKE", {}, {}}, "a damaged one;"), "");
}

}  // namespace lv
