#include "commands/list_command.h"

#include "tests/support/launcher_fixture.h"

namespace lv {
namespace {

class ListCommand : public LauncherTest {
  protected:
    ListCommand() { AddGames(); }

    CommandResult Do(const std::vector<Text>& words) {
        const Result<Command> command = ReadCommand(words);
        EXPECT_TRUE(command.Ok()) << command.Fault.Text;
        return ListRows(command.Value, {system.Services});
    }
};

TEST_F(ListCommand, ProgramsWithTheirGamesAndPaths) {
    EXPECT_EQ(Do({"--list"}).Out,
              "Quake\tQuake\tC:\\QUAKE\\GLQUAKE.EXE\t\t\r\n"
              "Plain Quake\tQuake\tC:\\QUAKE\\QUAKE.EXE\t\t\r\n"
              "QuakeWorld\tQuake\tC:\\QUAKE\\QWCL.EXE\t\t\r\n"
              "Quake 2\tQuake2\tC:\\QUAKE2\\QUAKE2.EXE\t\t\r\n"
              "Unreal\tUnreal\tC:\\UNREAL\\SYSTEM\\UNREAL.EXE\t\t\r\n"
              "Half-Life\tHalf-Life\tC:\\HL\\HL.EXE\t\t\r\n");
}

TEST_F(ListCommand, AProgramThatIsGoneIsStillListed) {
    Save(run, kOptions, "Executables", "Gone;D:\\GONE\\GONE.EXE");
    EXPECT_EQ(Do({"--list"}).Out, "Gone\t\tD:\\GONE\\GONE.EXE\t\t\r\n");
}

TEST_F(ListCommand, WhatWasPlayedIsSaidBehindThePath) {
    Save(run, kOptions, "Executables", "Quake;C:\\QUAKE\\GLQUAKE.EXE;Gone;D:/GONE/GONE.EXE;New;D:\\NEW.EXE");
    Save(run, "Played", "c:\\quake\\glquake.exe", "2024-03-01 14:30:05;43500;12");
    Save(run, "Played", "d:\\gone\\gone.exe", "2024-03-01 14:30:05;0;1");
    Save(run, "Played", "d:\\new.exe", "nonsense\t;-1");
    EXPECT_EQ(Do({"--list"}).Out,
              "Quake\tQuake\tC:\\QUAKE\\GLQUAKE.EXE\t2024-03-01 14:30\t12:05\r\n"
              "Gone\t\tD:\\GONE\\GONE.EXE\t2024-03-01 14:30\t\r\n"
              "New\t\tD:\\NEW.EXE\t\t\r\n");
}

TEST_F(ListCommand, WithoutProgramsTheListIsEmpty) {
    Save(run, kOptions, "Executables", "");
    const CommandResult result = Do({"--list"});
    EXPECT_EQ(result.Out, "");
    EXPECT_EQ(result.Code, exit_code::kDone);
}

TEST_F(ListCommand, ADamagedCatalogIsToldAndLeftAsItIs) {
    Save(run, kOptions, "Executables", "Quake;C:\\Q;More");
    const CommandResult result = Do({"--list"});
    EXPECT_EQ(result.Code, exit_code::kFailed);
    EXPECT_EQ(result.Err, "The stored list of programs is damaged.");
    EXPECT_EQ(Stored(kOptions, "Executables"), "Quake;C:\\Q;More");
}

TEST_F(ListCommand, TheListsOfTheGameThatIsNamed) {
    EXPECT_EQ(Do({"--list", "mods", "--launch", "Quake"}).Out, "Capture the Flag\tCTF\r\nBase\tID1\r\n");
    EXPECT_EQ(Do({"--list", "maps", "--launch", "Quake"}).Out, "START\r\n");
    EXPECT_EQ(Do({"--list", "maps", "--launch", "Quake", "--mod", "ctf"}).Out, "CTF1\r\nSTART\r\n");
    EXPECT_EQ(Do({"--list", "profiles", "--launch", "Quake"}).Out,
              "Base\r\nOptimize for Speed\r\nOptimize for Beauty\r\nDefault\r\n");
}

TEST_F(ListCommand, ScriptsWithTheirPathsAndServersWithTheirAddresses) {
    Save(run, kOptions, "NetServers", "Club;club.example;27910;3;Secret;Home;10.0.0.1;;3;");
    const CommandResult scripts = Do({"--list", "scripts", "--launch", "Quake 2"});
    EXPECT_EQ(LowerCase(scripts.Out), "two.cfg\tc:\\quake2\\baseq2\\two.cfg\r\n");
    EXPECT_EQ(Do({"--list", "servers", "--launch", "Quake 2"}).Out, "Club\tclub.example:27910\r\nHome\t10.0.0.1\r\n");
}

TEST_F(ListCommand, AnUnknownGameIsToldWithAHint) {
    const CommandResult result = Do({"--list", "maps", "--launch", "Unreel"});
    EXPECT_EQ(result.Code, exit_code::kNothingCalledSo);
    EXPECT_EQ(result.Err, "No program is called \"Unreel\". Did you mean \"Unreal\"?\r\n");
}

TEST_F(ListCommand, StoresNothing) {
    const std::size_t writes = system.Settings.Log.size();
    (void)Do({"--list", "maps", "--launch", "Quake"});
    EXPECT_EQ(system.Settings.Log.size(), writes);
}

}  // namespace
}  // namespace lv
