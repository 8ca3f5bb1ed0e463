#include "launcher/played/played_games.h"

#include <limits>

#include "tests/support/launcher_fixture.h"

namespace lv {
namespace {

constexpr double kForever = std::numeric_limits<double>::infinity();

struct ValueRow {
    const char* Value;
    PlayRecord Game;
};

// clang-format off
const ValueRow kWhole[] = {
    {";0;0", {}},
    {"1999-11-21 12:30:05;0;1", {"1999-11-21 12:30:05", 0, 1}},
    {"1999-11-21 12:30:05;359996400;999999", {"1999-11-21 12:30:05", 359'996'400, 999'999}},
};
const ValueRow kDamaged[] = {
    {"", {}},
    {";", {}},
    {";;;;;;;", {}},
    {"1999-11-21 12:30:05", {"1999-11-21 12:30:05", 0, 0}},
    {"1999-11-31 12:30:05;60;1", {"", 60, 1}},
    {"yesterday;60;1", {"", 60, 1}},
    {";-60;-1", {"", 0, 0}},
    {";60 s;1e3", {"", 0, 0}},
    {"; 60 ; 2 ;more", {"", 60, 2}},
    {";99999999999999999999999;1000000", {"", 359'996'400, 999'999}},
    {";-99999999999999999999999;1", {"", 0, 1}},
};
// clang-format on

TEST(ReadPlayed, IsWhatPlayedValueWrote) {
    for (const ValueRow& row : kWhole) {
        EXPECT_EQ(ReadPlayed(row.Value), row.Game) << row.Value;
        EXPECT_EQ(PlayedValue(row.Game), row.Value);
    }
}

TEST(ReadPlayed, TakesOfADamagedValueWhatMakesSense) {
    for (const ValueRow& row : kDamaged) {
        EXPECT_EQ(ReadPlayed(row.Value), row.Game) << row.Value;
    }
}

TEST(WithStart, CountsAndBelievesTheClock) {
    const PlayRecord first = WithStart({}, {2024, 3, 1, 14, 30, 5});
    EXPECT_EQ(first, (PlayRecord{"2024-03-01 14:30:05", 0, 1}));
    const PlayRecord second = WithStart(first, {2023, 1, 1, 0, 0, 0});
    EXPECT_EQ(second, (PlayRecord{"2023-01-01 00:00:00", 0, 2}));
    EXPECT_EQ(WithStart({"", 0, 999'999}, {2024, 3, 1}).Starts, 999'999);
}

TEST(WithTime, AddsTheSecondsOfAGameThatCanBe) {
    EXPECT_EQ(WithTime({"", 60, 1}, 29.6).Seconds, 90);
    EXPECT_EQ(WithTime({"", 60, 1}, 0).Seconds, 60);
    EXPECT_EQ(WithTime({"", 60, 1}, -3600).Seconds, 60);
    EXPECT_EQ(WithTime({"", 60, 1}, kForever).Seconds, 60);
    EXPECT_EQ(WithTime({"", 60, 1}, std::numeric_limits<double>::quiet_NaN()).Seconds, 60);
    EXPECT_EQ(WithTime({"", 60, 1}, 1e300).Seconds, 60 + 7LL * 24 * 3600);
    EXPECT_EQ(WithTime({"", 359'996'399, 1}, 3600).Seconds, 359'996'400);
}

class PlayedGames : public LauncherTest {};

TEST_F(PlayedGames, AreKeptByTheProgramsPath) {
    NotePlayStart(run, "C:/Quake/GLQUAKE.EXE ");
    EXPECT_EQ(Stored("Played", "c:\\quake\\glquake.exe"), "1999-11-21 12:30:00;0;1");
    NotePlayEnd(run, "c:\\QUAKE\\glquake.exe", 61);
    EXPECT_EQ(PlayedOf(run, "C:\\QUAKE\\GLQUAKE.EXE"), (PlayRecord{"1999-11-21 12:30:00", 61, 1}));
    EXPECT_EQ(PlayedOf(run, "C:\\QUAKE\\QUAKE.EXE"), PlayRecord());
}

TEST_F(PlayedGames, WithoutAPathNothingIsKept) {
    const std::size_t writes = system.Settings.Log.size();
    NotePlayStart(run, " ");
    NotePlayEnd(run, "", 60);
    EXPECT_EQ(PlayedOf(run, ""), PlayRecord());
    EXPECT_EQ(system.Settings.Log.size(), writes);
}

TEST_F(PlayedGames, AnEndWithoutASecondWritesNothing) {
    NotePlayStart(run, "C:\\Q.EXE");
    const std::size_t writes = system.Settings.Log.size();
    NotePlayEnd(run, "C:\\Q.EXE", -1);
    EXPECT_EQ(system.Settings.Log.size(), writes);
}

TEST_F(PlayedGames, AStoreThatTakesNothingKeepsNobodyFromAGame) {
    system.Settings.RefuseWrites = MakeError(error::kDiskFull);
    NotePlayStart(run, "C:\\Q.EXE");
    EXPECT_EQ(PlayedOf(run, "C:\\Q.EXE"), PlayRecord());
}

}  // namespace
}  // namespace lv
