#include "games/engines/engine_seats.h"

#include <gtest/gtest.h>

#include "foundation/settings.h"
#include "platform/memory/memory_platform.h"
#include "tests/support/scripted_user.h"

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

}  // namespace lv
