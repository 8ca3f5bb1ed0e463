#include "wizard/first_pick.h"

#include "tests/support/shipped_engines.h"
#include "tests/wizard/wizard_fixture.h"

namespace lv {

class FirstPick : public WizardTest {
  protected:
    Text Picked(TextView list) {
        PickWhatStarts(run, launcher.Engines, list);
        return Stored(kOptions, "ExecutablesPos");
    }
};

TEST_F(FirstPick, LeavesAnEntryThatStarts) {
    system.Programs.WithoutRunner = {"c:\\quake\\vquake.exe"};
    EXPECT_EQ(Picked("Quake;c:\\quake\\quake.exe;V Quake;c:\\quake\\vquake.exe"), "(none)");
}

TEST_F(FirstPick, PassesOverWhatNothingRunsHere) {
    system.Programs.WithoutRunner = {"c:\\quake\\quake.exe", "c:\\quake\\vquake.exe"};
    EXPECT_EQ(Picked("Quake;c:\\quake\\quake.exe;V Quake;c:\\quake\\vquake.exe;GL Quake;c:\\quake\\glquake.exe"), "2");
}

TEST_F(FirstPick, StaysWhereNothingStarts) {
    system.Programs.WithoutRunner = {"c:\\quake\\quake.exe"};
    EXPECT_EQ(Picked("Quake;c:\\quake\\quake.exe"), "(none)");
}

TEST_F(FirstPick, IsNoServer) {
    launcher.Engines = ShippedEngines();
    system.Programs.WithoutRunner = {"c:\\quake\\quake.exe"};
    EXPECT_EQ(Picked("Quake;c:\\quake\\quake.exe;Server;c:\\quake\\mvdsv"), "(none)");
    EXPECT_EQ(Picked("Quake;c:\\quake\\quake.exe;Server;c:\\quake\\mvdsv;Spasm;c:\\quake\\quakespasm"), "2");
}

TEST_F(FirstPick, LooksAtThePositionThatIsStored) {
    system.Programs.WithoutRunner = {"c:\\quake\\quake.exe"};
    Save(run, kOptions, "ExecutablesPos", 1);
    EXPECT_EQ(Picked("Quake;c:\\quake\\quake.exe;GL Quake;c:\\quake\\glquake.exe;Sin;c:\\sin\\sin.exe"), "1");
    Save(run, kOptions, "ExecutablesPos", 0);
    EXPECT_EQ(Picked("Quake;c:\\quake\\quake.exe;GL Quake;c:\\quake\\glquake.exe;Sin;c:\\sin\\sin.exe"), "1");
}

TEST_F(FirstPick, OfNoListIsNone) {
    EXPECT_EQ(Picked(""), "(none)");
    EXPECT_EQ(Picked("a;b;c"), "(none)");
}

}  // namespace lv
