#include "launcher/start/engine_load.h"

#include "tests/support/launcher_fixture.h"
#include "tests/support/shipped_engines.h"

namespace lv {

class EngineLoad : public LauncherTest {
  protected:
    EngineLoad() {
        launcher.ShippedEngines = ShippedEngineText();
        system.Places.IsConfig = "C:\\HOME\\.config";
    }
    static constexpr const char* kUsers = "C:\\HOME\\.config\\lorvane3d\\engines.tsv";
};

TEST_F(EngineLoad, KnowsTheProgramsOwnTable) {
    LoadEngines(launcher);
    EXPECT_NE(EngineOf(launcher.Engines, "quakespasm"), nullptr);
}

TEST_F(EngineLoad, AddsTheUsersRows) {
    system.Disk.AddFile(kUsers, "name\tprograms\tgames\nMyEngine\tmyengine\tquake\n");
    LoadEngines(launcher);
    ASSERT_NE(EngineOf(launcher.Engines, "myengine"), nullptr);
    EXPECT_NE(EngineOf(launcher.Engines, "quakespasm"), nullptr);
}

TEST_F(EngineLoad, TellsWhatIsWrongWithTheUsersRowsAndTakesTheRest) {
    system.Disk.AddFile(kUsers, "name\tprograms\tgames\nBad\tbad\tqake\nGood\tgood\tquake\n");
    user.Expect({"Table of Engines", "line 2: no such game: qake", 0});
    LoadEngines(launcher);
    EXPECT_EQ(EngineOf(launcher.Engines, "bad"), nullptr);
    EXPECT_NE(EngineOf(launcher.Engines, "good"), nullptr);
}

TEST_F(EngineLoad, WhatNoBoxCanShowOfATableIsShownAsQuestionMarks) {
    system.Disk.AddFile(kUsers, {"name\tprograms\tgames\nBad\tbad\tqa\0k\1e\n", 35});
    user.Expect({"Table of Engines", "line 2: no such game: qa?k?e", 0});
    LoadEngines(launcher);
}

TEST_F(EngineLoad, ATableThatIsTooLargeIsToldAndLeftOut) {
    system.Disk.AddSparseFile(kUsers, "name", 1U << 30U);
    user.Expect({"Table of Engines", "engines.tsv", 0});
    LoadEngines(launcher);
    EXPECT_NE(EngineOf(launcher.Engines, "quakespasm"), nullptr);
}

TEST_F(EngineLoad, PutsTheSeatsInForce) {
    system.Disk.AddFile("Z:\\usr\\games\\quakespasm");
    Save(run, "Engines", "Seats", "c:\\quake\\quakespasm;Z:\\usr\\games\\quakespasm");
    LoadEngines(launcher);
    EXPECT_TRUE(system.Disk.FileExists("C:\\QUAKE\\QUAKESPASM"));
}

}  // namespace lv
