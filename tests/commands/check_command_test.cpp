#include "commands/check_command.h"

#include "tests/support/launcher_fixture.h"

namespace lv {
namespace {

class CheckCommand : public LauncherTest {
  protected:
    CheckCommand() { AddGames(); }
    CommandResult Check(TextView path) { return CheckOneScript(path, {system.Services}); }
};

TEST_F(CheckCommand, AFindingStandsWithItsFileAndLine) {
    system.Disk.AddFile("C:\\QUAKE\\ID1\\bad.cfg", "sensitivity 3\nbind x \"impulse 1\nexec gone.cfg\n");
    const CommandResult result = Check("C:\\QUAKE\\ID1\\bad.cfg");
    EXPECT_EQ(result.Code, exit_code::kFinds);
    EXPECT_TRUE(result.Out.find("bad.cfg:2: ") != Text::npos) << result.Out;
    EXPECT_TRUE(result.Out.find("gone.cfg") != Text::npos) << result.Out;
}

TEST_F(CheckCommand, AScriptInOrderSaysNothing) {
    system.Disk.AddFile("C:\\QUAKE\\ID1\\good.cfg", "sensitivity 3\nbind x \"impulse 1\"\n");
    const CommandResult result = Check("C:\\QUAKE\\ID1\\good.cfg");
    EXPECT_EQ(result.Code, exit_code::kDone) << result.Out;
    EXPECT_EQ(result.Out, "");
}

TEST_F(CheckCommand, OnlyItsOwnFindingsAreTold) {
    system.Disk.AddFile("C:\\QUAKE\\ID1\\autoexec.cfg", "bind y \"impulse 2\n");
    system.Disk.AddFile("C:\\QUAKE\\ID1\\good.cfg", "sensitivity 3\n");
    EXPECT_EQ(Check("C:\\QUAKE\\ID1\\good.cfg").Out, "");
}

TEST_F(CheckCommand, AScriptOutsideOfAGameIsCheckedByItsEnding) {
    system.Disk.AddFile("C:\\MINE\\bad.q2s", "bind x \"impulse 1\n");
    EXPECT_EQ(Check("C:\\MINE\\bad.q2s").Code, exit_code::kFinds);
}

TEST_F(CheckCommand, AScriptThatIsNotThere) {
    const CommandResult result = Check("C:\\QUAKE\\ID1\\gone\x1B.cfg");
    EXPECT_EQ(result.Code, exit_code::kNothingCalledSo);
    EXPECT_EQ(result.Err, "\"C:\\QUAKE\\ID1\\gone?.cfg\": File not found");
}

TEST_F(CheckCommand, ALargeFileIsNotRead) {
    system.Disk.AddSparseFile("C:\\QUAKE\\ID1\\huge.cfg", "x", 2U << 30U);
    EXPECT_EQ(Check("C:\\QUAKE\\ID1\\huge.cfg").Code, exit_code::kFailed);
}

TEST_F(CheckCommand, TheFileIsWhatTheWordNames) {
    system.Disk.AddFile("C:\\QUAKE\\ID1\\bad.cfg", "bind x \"impulse 1\n");
    const CommandPlace place{system.Services, {}, [](TextView word) { return Join("C:\\QUAKE\\ID1\\", word); }, {}};
    EXPECT_EQ(CheckOneScript("bad.cfg", place).Code, exit_code::kFinds);
}

}  // namespace
}  // namespace lv
