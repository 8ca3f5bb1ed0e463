#include "commands/transfer_command.h"

#include "tests/support/launcher_fixture.h"

namespace lv {
namespace {

class TransferCommand : public LauncherTest {
  protected:
    TransferCommand() {
        AddGames();
        system.Disk.AddDirectory("C:\\HOME");
    }
    CommandPlace place{system.Services};
};

TEST_F(TransferCommand, WhatIsExportedIsImportedAgain) {
    Save(run, kOptions, "NetServers", "Club;club.example;27910;3;Secret");
    const Text programs = Stored(kOptions, "Executables");
    const CommandResult exported = ExportToFile("C:\\HOME\\mine.lv3d", place);
    EXPECT_EQ(exported.Code, exit_code::kDone) << exported.Err;
    EXPECT_TRUE(exported.Out.find(" settings are in the file C:\\HOME\\mine.lv3d.") != Text::npos) << exported.Out;
    Save(run, kOptions, "NetServers", "");
    Save(run, kOptions, "Executables", "Only;C:\\HL\\HL.EXE");
    const CommandResult imported = ImportFromFile("C:\\HOME\\mine.lv3d", place);
    EXPECT_EQ(imported.Code, exit_code::kDone) << imported.Err;
    EXPECT_EQ(Stored(kOptions, "NetServers"), "Club;club.example;27910;3;Secret");
    EXPECT_EQ(Stored(kOptions, "Executables"), programs);
}

TEST_F(TransferCommand, ADamagedFileChangesNothingAndSaysSo) {
    (void)ExportToFile("C:\\HOME\\mine.lv3d", place);
    Text bytes = system.Disk.Bytes("C:\\HOME\\mine.lv3d");
    bytes[bytes.size() / 2] ^= 1;
    system.Disk.AddFile("C:\\HOME\\bad.lv3d", bytes);
    const std::size_t writes = system.Settings.Log.size();
    const CommandResult result = ImportFromFile("C:\\HOME\\bad.lv3d", place);
    EXPECT_EQ(result.Code, exit_code::kFailed);
    EXPECT_TRUE(result.Err.ends_with("The settings are as they were.\r\n")) << result.Err;
    EXPECT_EQ(system.Settings.Log.size(), writes);
}

TEST_F(TransferCommand, AFileThatIsNotThere) {
    const CommandResult result = ImportFromFile("C:\\HOME\\none.lv3d", place);
    EXPECT_EQ(result.Code, exit_code::kNothingCalledSo);
}

TEST_F(TransferCommand, APlaceThatIsNotHereIsLeftAndTold) {
    Save(run, kOptions, "Executables", "Far;D:\\FAR\\QUAKE.EXE");
    (void)ExportToFile("C:\\HOME\\far.lv3d", place);
    Save(run, kOptions, "Executables", "");
    const CommandResult result = ImportFromFile("C:\\HOME\\far.lv3d", place);
    EXPECT_EQ(result.Code, exit_code::kDone);
    EXPECT_TRUE(result.Out.find("Not here, and left as the file has them:\r\n  D:\\FAR") != Text::npos) << result.Out;
    EXPECT_EQ(Stored(kOptions, "Executables"), "Far;D:\\FAR\\QUAKE.EXE");
}

TEST_F(TransferCommand, ATerminalGetsTheHostsPaths) {
    place.PrintsHostPaths = true;
    (void)ExportToFile("C:\\HOME\\mine.lv3d", place);
    Save(run, kOptions, "NetServers", "Club;club.example;27910;3;");
    const CommandResult imported = ImportFromFile("C:\\HOME\\mine.lv3d", place);
    EXPECT_TRUE(imported.Out.find("What was there before is kept: /") != Text::npos) << imported.Out;
    system.Disk.Refused["c:\\home\\mine.lv3d"] = {error::kPermissionDenied, "Permission denied: C:\\HOME\\mine.lv3d"};
    EXPECT_EQ(ExportToFile("C:\\HOME\\mine.lv3d", place).Err,
              "\"C:\\HOME\\mine.lv3d\": Permission denied: /c:/home/mine.lv3d");
}

TEST_F(TransferCommand, AFileThatIsNoExportIsNotWrittenOver) {
    system.Disk.AddFile("C:\\HOME\\mine.txt", "my notes");
    const CommandResult result = ExportToFile("C:\\HOME\\mine.txt", place);
    EXPECT_EQ(result.Code, exit_code::kFailed);
    EXPECT_EQ(result.Out, "");
    EXPECT_EQ(result.Err, "\"C:\\HOME\\mine.txt\": The file exists and is no file of settings; give another name");
    EXPECT_EQ(system.Disk.Bytes("C:\\HOME\\mine.txt"), "my notes");
}

TEST_F(TransferCommand, AnExportIsWrittenOver) {
    system.Disk.AddFile("C:\\HOME\\mine.lv3d", "Lorvane 3D settings 1\n");
    EXPECT_EQ(ExportToFile("C:\\HOME\\mine.lv3d", place).Code, exit_code::kDone);
    EXPECT_EQ(ImportFromFile("C:\\HOME\\mine.lv3d", place).Code, exit_code::kDone);
}

TEST_F(TransferCommand, AWordThatNamesADirectoryTakesNoFile) {
    CommandPlace host = place;
    host.PathOfWord = [](TextView) { return Text("C:\\HOME\\nodir"); };
    const CommandResult result = ExportToFile("/home/nodir/", host);
    EXPECT_EQ(result.Code, exit_code::kFailed);
    EXPECT_EQ(result.Err, "\"/home/nodir/\": This names a directory; give the name of a file");
    EXPECT_FALSE(system.Disk.FileExists("C:\\HOME\\nodir"));
}

TEST_F(TransferCommand, ManyPlacesAreTheFirstTenAndACount) {
    Text programs;
    for (int i = 1; i <= 42; ++i) {
        programs += Join(i == 1 ? "" : ";", "Far;D:\\FAR", std::to_string(i), "\\QUAKE.EXE");
    }
    Save(run, kOptions, "Executables", TextView(programs));
    (void)ExportToFile("C:\\HOME\\far.lv3d", place);
    const CommandResult result = ImportFromFile("C:\\HOME\\far.lv3d", place);
    EXPECT_TRUE(result.Out.find("  D:\\FAR10\r\n  and 32 more\r\n") != Text::npos) << result.Out;
    EXPECT_TRUE(result.Out.starts_with("0 settings are others now.\r\nNot here, ")) << result.Out;
}

TEST_F(TransferCommand, ADirectoryThatIsNotThereTakesNoFile) {
    const CommandResult result = ExportToFile("C:\\NOWHERE\\mine.lv3d", place);
    EXPECT_EQ(result.Code, exit_code::kFailed) << result.Out;
    EXPECT_TRUE(result.Err.starts_with("\"C:\\NOWHERE\\mine.lv3d\": ")) << result.Err;
}

}  // namespace
}  // namespace lv
