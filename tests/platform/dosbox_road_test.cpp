#include "platform/linux/starting/dosbox_road.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/linux/linux_processes.h"
#include "tests/support/game_yard.h"

namespace lv {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

struct DosYard : GameYard {
    explicit DosYard(const std::string& name) : GameYard(name) {
        Places.SearchPath = (Root / "tools").string();
        std::filesystem::create_directories(Root / "tools");
        std::filesystem::copy_file("/bin/true", Root / "tools/dosbox");
    }
    Result<HostCommand> Plan(const std::string& directory) {
        return LinuxProcesses(Disk, Places).PlanBatch(directory, "lv_666.bat");
    }
    std::string Written() { return ReadBytes(Places.Cache / "dosbox_lv_666.conf"); }
};

}  // namespace

TEST(DosBoxRoad, MountsTheDriveOfAGameWithShortNames) {
    DosYard yard("dos_short");
    yard.AddFile("quake/quake.exe", "MZ");
    yard.AddBatch("quake", {"C:", "cd C:\\QUAKE", "QUAKE.EXE -a"});
    const auto plan = yard.Plan("C:\\QUAKE");
    ASSERT_TRUE(plan.Ok()) << plan.Fault.Text;
    EXPECT_EQ(plan.Value.Program, yard.Places.SearchPath + "/dosbox");
    EXPECT_THAT(plan.Value.Arguments,
                ElementsAre("-userconf", "-conf", (yard.Places.Cache / "dosbox_lv_666.conf").string()));
    EXPECT_THAT(yard.Written(),
                HasSubstr("@mount C \"" + yard.Drive.string() + "\"\n@C:\n@cd \\QUAKE\n@QUAKE.EXE -a\n"));
}

TEST(DosBoxRoad, MountsTheDirectoryOfAGameWithALongName) {
    DosYard yard("dos_long");
    yard.AddFile("Quake Games/quake/quake.exe", "MZ");
    yard.AddBatch("Quake Games/quake", {"C:", "cd \"C:\\QUAKE GAMES\\QUAKE\"", "QUAKE.EXE"});
    ASSERT_TRUE(yard.Plan("C:\\QUAKE GAMES\\QUAKE").Ok());
    EXPECT_THAT(yard.Written(),
                HasSubstr("@mount C \"" + (yard.Drive / "Quake Games/quake").string() + "\"\n@C:\n@cd \\\n"));
}

TEST(DosBoxRoad, MountsTheDirectoryWhereTheDriveIsDosBoxesOwn) {
    DosYard yard("dos_z");
    yard.Disk.AddDrive('Z', yard.Drive);
    yard.AddFile("quake/quake.exe", "MZ");
    yard.AddBatch("quake", {"Z:", "cd Z:\\QUAKE", "QUAKE.EXE"});
    ASSERT_TRUE(yard.Plan("Z:\\QUAKE").Ok());
    EXPECT_THAT(yard.Written(), HasSubstr("@mount C \"" + (yard.Drive / "quake").string() + "\"\n@C:\n@cd \\\n"));
}

TEST(DosBoxRoad, RefusesADirectoryThatCannotBeQuoted) {
    DosYard yard("dos_quote");
    yard.Disk.AddDrive('D', yard.Drive / "a\"b");
    yard.AddFile("a\"b/quake/quake.exe", "MZ");
    yard.AddBatch("a\"b/quake", {"D:", "cd D:\\QUAKE", "QUAKE.EXE"});
    const auto plan = yard.Plan("D:\\QUAKE");
    EXPECT_EQ(plan.Fault.Number, 75);
    EXPECT_THAT(plan.Fault.Text, HasSubstr("DOSBox cannot use a directory with a double quote in its name: "));
}

TEST(DosBoxRoad, RefusesAGivenWordThatDosWouldMisread) {
    for (const char* const word :
         {"d>quake.exe", "d<x", "d|x", "d&x", "d%x", "d^x", "d\"x", "d;x", "d\tx", "d x", "d\x01"}) {
        DosYard yard("dos_given");
        yard.AddFile("quake/quake.exe", "MZ");
        yard.AddBatch("quake", {"C:", "cd C:\\QUAKE", std::string("QUAKE.EXE -game ") + word});
        const auto plan =
            LinuxProcesses(yard.Disk, yard.Places)
                .PlanBatch("C:\\QUAKE", "lv_666.bat", {"QUAKE.EXE", {GivenIn(yard.Drive / "quake/lv_666.bat", word)}});
        EXPECT_EQ(plan.Fault.Number, 75) << word;
        EXPECT_EQ(plan.Fault.Text,
                  std::string("DOS's shell would not read this as one word of text, and nothing was started: ") + word);
        EXPECT_FALSE(std::filesystem::exists(yard.Places.Cache)) << word;
    }
}

TEST(DosBoxRoad, RefusesAProgramWhoseNameDosWouldMisread) {
    DosYard yard("dos_program_name");
    yard.AddFile("quake/q>x.exe", "MZ");
    yard.AddBatch("quake", {"C:", "cd C:\\QUAKE", "Q>X.EXE -a"});
    EXPECT_EQ(yard.Plan("C:\\QUAKE").Fault.Text,
              "DOS's shell would not read this as one word of text, and nothing was started: Q>X.EXE");
    EXPECT_FALSE(std::filesystem::exists(yard.Places.Cache));
}

TEST(DosBoxRoad, SaysNoDirectoryThatDosWouldMisread) {
    DosYard yard("dos_directory_name");
    yard.AddFile("q&x%/quake.exe", "MZ");
    yard.AddBatch("q&x%", {"C:", "cd C:\\Q&X%", "QUAKE.EXE -a"});
    ASSERT_TRUE(yard.Plan("C:\\Q&X%").Ok());
    EXPECT_THAT(yard.Written(), HasSubstr("@mount C \"" + (yard.Drive / "q&x%%").string() + "\"\n@C:\n@cd \\\n"));
}

TEST(DosBoxRoad, RefusesAnArgumentThatDosWouldMisread) {
    DosYard yard("dos_argument");
    yard.AddFile("tools/edit.com", "\xB4\x4C\xCD\x21");
    LinuxProcesses processes(yard.Disk, yard.Places);
    EXPECT_EQ(processes.PlanProgram("C:\\TOOLS\\EDIT.COM", {"d>quake.cfg"}).Fault.Text,
              "DOS's shell would not read this as one word of text, and nothing was started: d>quake.cfg");
    EXPECT_FALSE(std::filesystem::exists(yard.Places.Cache));
}

TEST(DosBoxRoad, RefusesMoreThanDosBoxTakes) {
    DosYard yard("dos_much");
    yard.AddFile("quake/quake.exe", "MZ");
    yard.AddBatch("quake", {"SET A=" + std::string(4000, 'x'), "C:", "cd C:\\QUAKE", "QUAKE.EXE"});
    const auto plan = yard.Plan("C:\\QUAKE");
    EXPECT_EQ(plan.Fault.Number, 5);
    EXPECT_EQ(plan.Fault.Text, "DOSBox takes no more than 3800 characters of environment and command");
}

TEST(DosBoxRoad, StartsAProgramWithoutABatch) {
    DosYard yard("dos_program");
    yard.AddFile("tools/edit.com", "\xB4\x4C\xCD\x21");
    const auto plan = LinuxProcesses(yard.Disk, yard.Places).PlanProgram("C:\\TOOLS\\EDIT.COM", {"a", "b c"});
    ASSERT_TRUE(plan.Ok()) << plan.Fault.Text;
    EXPECT_THAT(yard.Written(), HasSubstr("@C:\n@cd \\tools\n@edit.com a \"b c\"\n@exit\n"));
}

TEST(DosBoxRoad, PassesALongCommandOn) {
    DosYard yard("dos_long_command");
    yard.AddFile("quake/quake.exe", "MZ");
    yard.AddBatch("quake", {"C:", "cd C:\\QUAKE", "QUAKE.EXE " + std::string(300, 'x')});
    ASSERT_TRUE(yard.Plan("C:\\QUAKE").Ok());
    EXPECT_THAT(yard.Written(), HasSubstr("@QUAKE.EXE " + std::string(300, 'x') + "\n"));
}

}  // namespace lv
