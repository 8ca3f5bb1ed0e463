#include "launch/name_check.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_platform.h"
#include "tests/support/scripted_user.h"

namespace lv {
namespace {

constexpr auto kNobody = LineReader::kNobody;
constexpr auto kCommandProcessor = LineReader::kCommandProcessor;
constexpr auto kDosShell = LineReader::kDosShell;

LaunchName Modification(const Text& name) {
    return {.Kind = NameKind::Modification, .Value = name, .Written = name, .InCommand = true, .ByConsole = true};
}

/// As Half-Life's command line has it.
LaunchName Password(const Text& password) {
    return {.Kind = NameKind::Password, .Value = password, .Written = password, .InCommand = true};
}

class NameCheck : public ::testing::Test {
  protected:
    NameCheck() { system.Disk.AddDirectory("C:\\QUAKE"); }

    bool AreText(const std::vector<LaunchName>& names, LineReader reader, TextView directory = "C:\\QUAKE") {
        return NamesAreText(run, names, reader, directory);
    }
    void ExpectTold(TextView part) { user.Expect({"Lorvane 3D", Text(part)}); }

    MemoryPlatform system;
    ScriptedUser user;
    lv::Run run{system.Services, user};
};

TEST_F(NameCheck, LetsPlainNamesPassWithoutAWord) {
    for (const LineReader reader : {kNobody, kCommandProcessor, kDosShell}) {
        EXPECT_TRUE(AreText({Modification("ctf")}, reader));
    }
    EXPECT_TRUE(NamesMayBeCommands(run, {Modification("ctf")}));
    EXPECT_TRUE(user.Asked.empty());
}

TEST_F(NameCheck, OfNoNamesHasNothingToSay) {
    EXPECT_TRUE(AreText({}, kCommandProcessor));
    EXPECT_TRUE(NamesMayBeCommands(run, {}));
}

TEST_F(NameCheck, TellsOfTheFirstNameThatTheReaderWouldTakeForMore) {
    ExpectTold("The modification \"m&calc\" comes from the directories of the game.");
    EXPECT_FALSE(AreText({Modification("ctf"), Modification("m&calc"), Modification("n&calc")}, kCommandProcessor));
    EXPECT_EQ(user.Asked.size(), 1U);
}

TEST_F(NameCheck, LooksForDosAtTheDirectoryAsTheHostHasIt) {
    system.Disk.AddDirectory("C:\\A\"B");
    EXPECT_TRUE(AreText({}, kCommandProcessor, "C:\\A\"B"));
    ExpectTold("DOS's shell would not read it as one word of text.");
    EXPECT_FALSE(AreText({}, kDosShell, "C:\\A\"B"));
}

TEST_F(NameCheck, TellsOfAFileThatAPasswordWouldRun) {
    const std::vector<LaunchName> names = {Password("secret")};
    EXPECT_TRUE(AreText(names, kCommandProcessor));
    system.Disk.AddFile("C:\\QUAKE\\CONNECT.BAT");
    EXPECT_TRUE(AreText(names, kNobody));
    ExpectTold("The file \"C:\\QUAKE\\connect.bat\" lies in the game's directory.");
    EXPECT_FALSE(AreText(names, kCommandProcessor));
}

TEST_F(NameCheck, AsksWhetherAGameMayCarryOutAName) {
    const std::vector<LaunchName> names = {Modification("x +connect evil.example")};
    user.Expect({"A Command In A Name", "\"x +connect evil.example\"", 0, false, false, "&Don't Start,&Start It"});
    EXPECT_FALSE(NamesMayBeCommands(run, names));
    user.Expect({"A Command In A Name", "\"x +connect evil.example\"", 1});
    EXPECT_TRUE(NamesMayBeCommands(run, names));
}

}  // namespace
}  // namespace lv
