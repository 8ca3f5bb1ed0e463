#include "games/engines/engine_seats.h"

#include <gtest/gtest.h>

#include "foundation/settings.h"
#include "platform/memory/memory_platform.h"
#include "tests/support/scripted_user.h"
#include "tests/support/shipped_engines.h"

namespace lv {

class EngineSeats : public ::testing::Test {
  protected:
    EngineSeats() {
        system.Disk.AddFile("C:\\BIN\\engine");
        system.Disk.AddFile("C:\\BIN\\other");
    }
    Text Kept() { return GetSetting(run, run.AppName, "Engines", "Seats"); }
    bool IsThere(TextView seat) { return system.Disk.FileExists(seat); }

    MemoryPlatform system;
    ScriptedUser user;
    lv::Run run{system.Services, user};
};

TEST_F(EngineSeats, AreKeptAndInForceAtOnce) {
    EXPECT_TRUE(SeatEngine(run, "c:\\quake\\engine", "C:\\BIN\\engine"));
    EXPECT_TRUE(SeatEngine(run, "c:\\quake\\other", "C:\\BIN\\other"));
    EXPECT_TRUE(IsThere("C:\\QUAKE\\ENGINE"));
    EXPECT_EQ(Kept(), "c:\\quake\\engine;C:\\BIN\\engine;c:\\quake\\other;C:\\BIN\\other");
}

TEST_F(EngineSeats, AreInForceAgainAtTheNextStart) {
    Save(run, "Engines", "Seats", "c:\\quake\\engine;C:\\BIN\\engine;c:\\quake\\other;C:\\BIN\\other");
    RestoreEngineSeats(run);
    EXPECT_TRUE(IsThere("C:\\QUAKE\\ENGINE"));
    EXPECT_TRUE(IsThere("C:\\QUAKE\\OTHER"));
}

TEST_F(EngineSeats, ASeatThatIsTakenAnewChangesItsProgram) {
    SeatEngine(run, "c:\\quake\\engine", "C:\\BIN\\engine");
    SeatEngine(run, "C:\\QUAKE\\engine", "C:\\BIN\\other");
    EXPECT_EQ(Kept(), "C:\\QUAKE\\engine;C:\\BIN\\other");
}

TEST_F(EngineSeats, AListThatIsDamagedGivesWhatItHolds) {
    Save(run, "Engines", "Seats", ";;c:\\quake\\engine;C:\\BIN\\engine;;c:\\quake\\other");
    RestoreEngineSeats(run);
    EXPECT_TRUE(IsThere("C:\\QUAKE\\ENGINE"));
    EXPECT_FALSE(IsThere("C:\\QUAKE\\OTHER"));
}

TEST_F(EngineSeats, AreRefusedWithASemicolonInAPath) {
    EXPECT_FALSE(SeatEngine(run, "c:\\qua;ke\\engine", "C:\\BIN\\engine"));
    EXPECT_FALSE(SeatEngine(run, "c:\\quake\\engine", "C:\\B;IN\\engine"));
    EXPECT_EQ(Kept(), "");
}

TEST_F(EngineSeats, AreNoneOnASystemWithoutStandIns) {
    system.Disk.KnowsStandIns = false;
    EXPECT_FALSE(SeatEngine(run, "c:\\quake\\engine", "C:\\BIN\\engine"));
    EXPECT_EQ(Kept(), "");
}

TEST_F(EngineSeats, TellTheirProgramInAnyLetterCase) {
    SeatEngine(run, "c:\\quake\\engine", "C:\\BIN\\engine");
    EXPECT_EQ(ProgramOfSeat(run, "C:\\Quake\\ENGINE"), "C:\\BIN\\engine");
    EXPECT_EQ(ProgramOfSeat(run, "C:\\BIN\\engine"), "");
}

TEST_F(EngineSeats, GoButForThoseThatAreWanted) {
    SeatEngine(run, "c:\\quake\\engine", "C:\\BIN\\engine");
    SeatEngine(run, "c:\\quake\\other", "C:\\BIN\\other");
    SeatEngine(run, "c:\\hexen2\\other", "C:\\BIN\\other");
    KeepSeatsOnly(run, {"C:\\QUAKE\\OTHER", "C:\\NOWHERE"});
    EXPECT_EQ(Kept(), "c:\\quake\\other;C:\\BIN\\other");
    EXPECT_FALSE(IsThere("C:\\QUAKE\\ENGINE"));
    EXPECT_TRUE(IsThere("C:\\QUAKE\\OTHER"));
    EXPECT_FALSE(IsThere("C:\\HEXEN2\\OTHER"));
}

TEST_F(EngineSeats, NothingIsWrittenWhereAllAreWanted) {
    KeepSeatsOnly(run, {});
    EXPECT_EQ(system.Settings.Count(), 0U);
}

TEST_F(EngineSeats, AGoneEngineIsNamedWithItsProgramAndItsPackage) {
    SeatEngine(run, "c:\\quake\\quakespasm", "Z:\\usr\\games\\quakespasm");
    EXPECT_EQ(AboutGoneEngine(run, &ShippedEngines(), "C:\\QUAKE\\quakespasm"),
              "QuakeSpasm plays this game from elsewhere, and its program is not there any more:\r\n\r\n"
              "\t/z:/usr/games/quakespasm\r\n\r\n"
              "In a terminal, \"apt install quakespasm\" installs it.");
}

TEST_F(EngineSeats, AGoneEngineWithoutAPackageIsNamedWithItsPage) {
    SeatEngine(run, "c:\\quake\\vkquake", "Z:\\opt\\vkquake");
    EXPECT_TRUE(AboutGoneEngine(run, &ShippedEngines(), "c:\\quake\\vkquake")
                    .ends_with("\t/z:/opt/vkquake\r\n\r\nIt is to be had from https://github.com/Novum/vkQuake"));
}

TEST_F(EngineSeats, AGoneEngineOfNoTableIsToldOfByItsProgram) {
    SeatEngine(run, "c:\\quake\\mine", "Z:\\opt\\mine");
    const Text told =
        "An engine plays this game from elsewhere, and its program is not there any more:\r\n\r\n\t/z:/opt/mine";
    EXPECT_EQ(AboutGoneEngine(run, &ShippedEngines(), "c:\\quake\\mine"), told);
    EXPECT_EQ(AboutGoneEngine(run, nullptr, "c:\\quake\\mine"), told);
}

TEST_F(EngineSeats, NothingIsToldOfAPathThatIsNoSeat) {
    EXPECT_EQ(AboutGoneEngine(run, &ShippedEngines(), "c:\\quake\\quakespasm"), "");
}

}  // namespace lv
