#include "platform/starting/program_search.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_platform.h"

namespace lv {

namespace {

struct Disk : MemoryFiles {
    Disk() { AddDirectory("C:\\QUAKE"); }
    void Add(const std::string& name, const std::string& bytes = "MZ") { AddFile("C:\\QUAKE\\" + name, bytes); }
};

const std::string kWindowsProgram = "MZ" + std::string(0x3A, '\0') + std::string("\x40\0\0\0PE\0\0", 8);

}  // namespace

TEST(FindProgram, FindsANameInAnyCase) {
    Disk disk;
    disk.Add("glquake.exe");
    const auto found = FindProgram(disk, "C:\\QUAKE", "GLQUAKE.EXE -zone 512");
    EXPECT_EQ(found.Value.Path, "C:\\QUAKE\\GLQUAKE.EXE");
    EXPECT_EQ(found.Value.Arguments, "-zone 512");
}

TEST(FindProgram, FindsANameWithBlanks) {
    Disk disk;
    disk.Add("MY GAME.EXE");
    const auto found = FindProgram(disk, "C:\\QUAKE", "MY GAME.EXE -zone 512");
    EXPECT_EQ(found.Value.Path, "C:\\QUAKE\\MY GAME.EXE");
    EXPECT_EQ(found.Value.Arguments, "-zone 512");
}

TEST(FindProgram, TakesTheFewestWordsThatNameAFile) {
    Disk disk;
    disk.Add("MY.EXE");
    disk.Add("MY GAME.EXE");
    EXPECT_EQ(FindProgram(disk, "C:\\QUAKE", "MY GAME.EXE").Value.Path, "C:\\QUAKE\\MY.exe");
}

TEST(FindProgram, TakesAQuotedName) {
    Disk disk;
    disk.Add("MY GAME.EXE");
    const auto found = FindProgram(disk, "C:\\QUAKE", "\"MY GAME.EXE\" \"a b\"");
    EXPECT_EQ(found.Value.Path, "C:\\QUAKE\\MY GAME.EXE");
    EXPECT_EQ(found.Value.Arguments, "\"a b\"");
}

TEST(FindProgram, LetsTheExtensionBeLeftOff) {
    Disk disk;
    disk.Add("A.EXE");
    disk.Add("B.COM");
    disk.Add("C.BAT");
    EXPECT_EQ(FindProgram(disk, "C:\\QUAKE", "A x").Value.Path, "C:\\QUAKE\\A.exe");
    EXPECT_EQ(FindProgram(disk, "C:\\QUAKE", "B x").Value.Path, "C:\\QUAKE\\B.com");
    EXPECT_EQ(FindProgram(disk, "C:\\QUAKE", "C x").Value.Path, "C:\\QUAKE\\C.bat");
}

TEST(FindProgram, PrefersTheNameAsItIs) {
    Disk disk;
    disk.Add("quake");
    disk.Add("quake.exe");
    EXPECT_EQ(FindProgram(disk, "C:\\QUAKE", "QUAKE").Value.Path, "C:\\QUAKE\\QUAKE");
}

TEST(FindProgram, TakesAPath) {
    Disk disk;
    disk.AddDirectory("D:\\BIN");
    disk.AddFile("D:\\BIN\\Q.EXE", "MZ");
    disk.AddDirectory("C:\\QUAKE\\SUB");
    disk.Add("SUB\\R.EXE");
    EXPECT_EQ(FindProgram(disk, "C:\\QUAKE", "D:\\BIN\\Q.EXE -a").Value.Path, "D:\\BIN\\Q.EXE");
    EXPECT_EQ(FindProgram(disk, "C:\\QUAKE", "SUB\\R.EXE -a").Value.Path, "C:\\QUAKE\\SUB\\R.EXE");
    EXPECT_EQ(FindProgram(disk, "C:\\QUAKE", "\\QUAKE\\SUB\\R.EXE").Value.Path, "C:\\QUAKE\\SUB\\R.EXE");
}

TEST(FindProgram, SaysWhatItDidNotFind) {
    Disk disk;
    const auto found = FindProgram(disk, "C:\\QUAKE", "QUAKE.EXE -zone 512");
    EXPECT_EQ(found.Fault.Number, 53);
    EXPECT_EQ(found.Fault.Text, "File not found: C:\\QUAKE\\QUAKE.EXE");
}

TEST(FindProgram, TakesNoDirectoryForAProgram) {
    Disk disk;
    disk.AddDirectory("C:\\QUAKE\\ID1");
    EXPECT_EQ(FindProgram(disk, "C:\\QUAKE", "ID1").Fault.Number, 53);
}

TEST(FindGame, PassesOverAMissingNetworkWrapper) {
    Disk disk;
    disk.Add("quake.exe",
             "\x7F"
             "ELF");
    const auto found = FindGame(disk, "C:\\QUAKE", "qlaunch quakeudp.dll QUAKE.EXE -noipx -zone 512");
    EXPECT_TRUE(found.Value.WrapperMissing);
    EXPECT_EQ(found.Value.Program.Path, "C:\\QUAKE\\QUAKE.EXE");
    EXPECT_EQ(found.Value.Program.Arguments, "-noipx -zone 512");
    EXPECT_EQ(found.Value.Command, "QUAKE.EXE -noipx -zone 512");
}

TEST(FindGame, KeepsANetworkWrapperThatIsThere) {
    Disk disk;
    disk.Add("quake.exe",
             "\x7F"
             "ELF");
    disk.Add("qlaunch.exe");
    const auto found = FindGame(disk, "C:\\QUAKE", "qlaunch quakeudp.dll QUAKE.EXE -noipx");
    EXPECT_FALSE(found.Value.WrapperMissing);
    EXPECT_EQ(found.Value.Program.Path, "C:\\QUAKE\\qlaunch.exe");
    EXPECT_EQ(found.Value.Program.Arguments, "quakeudp.dll QUAKE.EXE -noipx");
    EXPECT_EQ(found.Value.Command, "qlaunch quakeudp.dll QUAKE.EXE -noipx");
}

TEST(FindGame, PassesOverTheWrapperOfAWindowsGame) {
    Disk disk;
    disk.Add("quake.exe", kWindowsProgram);
    EXPECT_EQ(FindGame(disk, "C:\\QUAKE", "qlaunch quakeudp.dll QUAKE.EXE -a").Value.Command, "QUAKE.EXE -a");
}

TEST(FindGame, MissesTheWrapperOfADosGame) {
    Disk disk;
    disk.Add("quake.exe");
    const auto found = FindGame(disk, "C:\\QUAKE", "qlaunch quakeudp.dll QUAKE.EXE");
    EXPECT_EQ(found.Fault.Number, 53);
    EXPECT_EQ(found.Fault.Text, "File not found: C:\\QUAKE\\qlaunch");
}

TEST(FindGame, NamesTheGameThatIsMissingBehindAWrapper) {
    Disk disk;
    EXPECT_EQ(FindGame(disk, "C:\\QUAKE", "qlaunch quakeudp.dll QUAKE.EXE").Fault.Text,
              "File not found: C:\\QUAKE\\QUAKE.EXE");
    EXPECT_EQ(FindGame(disk, "C:\\QUAKE", "qlaunch").Fault.Number, 53);
}

TEST(JoinPath, PutsOneSeparatorBetween) {
    EXPECT_EQ(JoinPath("C:\\", "A"), "C:\\A");
    EXPECT_EQ(JoinPath("C:\\B", "A"), "C:\\B\\A");
    EXPECT_EQ(JoinPath("C:\\B", "D:\\A"), "D:\\A");
    EXPECT_EQ(JoinPath("C:\\B", "\\A"), "C:\\A");
}

}  // namespace lv
