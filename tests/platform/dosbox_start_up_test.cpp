#include "platform/starting/dosbox_start_up.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lv {

namespace {

using testing::HasSubstr;

BatchGame GameIn(const std::string& directory, const std::string& program) {
    BatchGame game;
    game.Directory = directory;
    game.Game.Program.Path = directory + "\\" + program;
    game.Game.Command = program + " -a";
    return game;
}

// As Windows has its paths.
std::string Itself(std::string_view path) {
    return std::string(path);
}

}  // namespace

TEST(IsShortName, KnowsWhatDosAllows) {
    for (const char* name : {"QUAKE", "quake", "ABCDEFGH.IJK", "A.B", "QUAKE_2", "Q~1", "#1", "12345678"}) {
        EXPECT_TRUE(IsShortName(name)) << name;
    }
    for (const char* name :
         {"", ".", "..", ".A", "A.", "ABCDEFGHI", "A.BCDE", "A B", "A.B.C", "A+B", "\xC9", "A[B]", "A;B"}) {
        EXPECT_FALSE(IsShortName(name)) << name;
    }
}

TEST(DosBoxStartUp, SaysTheBatch) {
    BatchPlan plan;
    plan.environment = {{"A", "1"}, {"B", "x & y"}};
    plan.command = "QUAKE.EXE -zone 512";
    EXPECT_EQ(DosBoxStartUp(plan, 'C', "/games/my drive", "\\QUAKE"),
              "[autoexec]\n"
              "@mount -u C >nul\n"
              "@mount C \"/games/my drive\"\n"
              "@SET A=1\n"
              "@SET B=x & y\n"
              "@C:\n"
              "@cd \\QUAKE\n"
              "@QUAKE.EXE -zone 512\n"
              "@exit\n");
}

TEST(DosBoxStartUp, ShowsTheEnvironmentAheadOfTheGame) {
    BatchPlan plan;
    plan.environment = {{"A", "1"}};
    plan.showsEnvironment = true;
    plan.command = "QUAKE.EXE";
    EXPECT_THAT(DosBoxStartUp(plan, 'C', "/g", "\\"), HasSubstr("@SET A=1\n@SET\n@PAUSE\n@C:\n"));
}

TEST(DosBoxStartUp, DoublesPercentSigns) {
    BatchPlan plan;
    plan.environment = {{"A", "50% x"}};
    plan.command = "QUAKE.EXE %1";
    EXPECT_EQ(DosBoxStartUp(plan, 'D', "/100%/d", "\\Q%"),
              "[autoexec]\n"
              "@mount -u D >nul\n"
              "@mount D \"/100%%/d\"\n"
              "@SET A=50%%%% x\n"
              "@D:\n"
              "@cd \\Q%%\n"
              "@QUAKE.EXE %%1\n"
              "@exit\n");
}

TEST(DosBoxConfiguration, MountsTheDirectoryWhereTheDriveIsAWholeDisk) {
    const auto text = DosBoxConfiguration(GameIn("C:\\QUAKE", "QUAKE.EXE"), Itself);
    ASSERT_TRUE(text.Ok()) << text.Fault.Text;
    EXPECT_EQ(text.Value,
              "[autoexec]\n"
              "@mount -u C >nul\n"
              "@mount C \"C:\\QUAKE\"\n"
              "@C:\n"
              "@cd \\\n"
              "@QUAKE.EXE -a\n"
              "@exit\n");
}

TEST(DosBoxConfiguration, MountsTheDirectoryOfAShare) {
    const auto text = DosBoxConfiguration(GameIn("\\\\server\\games\\QUAKE", "QUAKE.EXE"), Itself);
    ASSERT_TRUE(text.Ok()) << text.Fault.Text;
    EXPECT_THAT(text.Value, HasSubstr("@mount C \"\\\\server\\games\\QUAKE\"\n@C:\n@cd \\\n"));
}

TEST(DosBoxConfiguration, MountsADriveThatIsADirectory) {
    const auto text = DosBoxConfiguration(GameIn("D:\\GAMES\\QUAKE", "QUAKE.EXE"), [](std::string_view path) {
        return "/home/zoe/" + std::string(path.substr(0, 1));
    });
    ASSERT_TRUE(text.Ok()) << text.Fault.Text;
    EXPECT_THAT(text.Value, HasSubstr("@mount D \"/home/zoe/D\"\n@D:\n@cd \\GAMES\\QUAKE\n"));
}

}  // namespace lv
