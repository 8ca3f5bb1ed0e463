#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "tests/program/program_run.h"
#include "tests/program/screen.h"
#include "tests/support/game_yard.h"
#include "tests/support/virtual_display.h"

namespace lv {

namespace {

using ::testing::HasSubstr;

namespace fs = std::filesystem;

// Mounts are made in tables of the program's own; without the right to make them nothing here can be tested.
class Mounted : public ::testing::Test {
  protected:
    void SetUp() override {
        const ProgramHome home("mounts");
        ExpectMountsOfOnesOwn(home);
    }
};

std::string ReadOnly(const fs::path& directory) {
    const std::string name = "'" + directory.string() + "'";
    return "mount --bind " + name + " " + name + "\nmount -o remount,ro,bind " + name + "\n";
}

/// The directory with what it holds on a disk of that size.
std::string OnASmallDisk(const fs::path& directory, const std::string& size) {
    const std::string name = "'" + directory.string() + "'";
    const std::string aside = "'" + directory.string() + ".aside'";
    return "cp -a " + name + " " + aside + "\nmount -t tmpfs -o size=" + size + " none " + name + "\ncp -a " + aside +
           "/. " + name + "\n";
}

/// Of a store on the program's own disk. SQLite would follow the way there to this system's own disk: it gets a copy.
std::map<std::string, std::string> RowsSeen(const ProgramHome& home, const ProgramRun& program) {
    const fs::path copy = home.Root / "copy";
    fs::remove_all(copy);
    fs::copy(program.Seen(home.Settings.parent_path()), copy);
    fs::remove(copy / "settings.sqlite-shm");
    return RowsOf(copy / "settings.sqlite");
}

void FillUp(const fs::path& directory) {
    std::ofstream file(directory / "fill", std::ios::binary);
    while (file.write("0123456789abcdef", 16) && file.flush()) {
    }
}

void WriteBytes(const fs::path& file, const std::string& bytes) {
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << bytes;
}

/// Presses Enter in every box of that program until it has ended; the exit code.
std::optional<int> EnterUntilTheEnd(ProgramRun& program) {
    WaitUntil([&] {
        for (const std::string& window : ShownWindowsOf(program.Id(), kPlainTitle)) {
            if (IsDialog(window) && ActiveWindow() == window) {
                PressKey("Return");
            }
        }
        return !program.IsRunning();
    });
    return program.WaitForEnd(0);
}

TEST(Display, GoneDuringALaunchEndsTheProgram) {
    ProgramHome home("display_gone");
    home.Prepare();
    home.Set("Options", "UseCustomCommandLine", "1");
    home.Set("Options", "CustomCommandLineText", "-wait 100");
    auto display = std::make_unique<VirtualDisplay>(WindowManager::kOpenbox);
    ASSERT_NE(display->Name(), "");
    ProgramRun program(home);
    ASSERT_TRUE(Activate(program.WaitForWindow()));
    PressKey("F2");
    display.reset();
    EXPECT_TRUE(program.WaitForEnd(5000).has_value());
    const auto rows = RowsOf(home.Settings);
    EXPECT_EQ(rows.at("Options/Executables"), "Quake;c:\\quake\\quake.exe");
    EXPECT_EQ(rows.at("LV-Stuff/RunCount"), "1");
    ExpectAStartThatWorks(home);
}

TEST_F(Mounted, SettingsDirectoryWithoutPermissionToWriteIsToldAndEndsTheStart) {
    ProgramHome home("config_read_only");
    home.Prepare();
    const std::string before = ReadBytes(home.Settings);
    ProgramRun program(home, ReadOnly(home.Config));
    const std::string box = program.WaitForDialog(kPlainTitle);
    KeepScreenshot("config_read_only");
    EXPECT_THAT(program.TextOfBox(box), HasSubstr(home.Settings.string()));
    PressKey("Escape");
    EXPECT_TRUE(program.WaitForEnd().has_value());
    EXPECT_EQ(ReadBytes(home.Settings), before);
}

TEST_F(Mounted, GameDirectoryWithoutPermissionToWriteIsToldAndKeepsTheOldFiles) {
    ProgramHome home("game_read_only");
    home.Prepare();
    WriteBytes(home.Quake / "lv_666.bat", "old batch");
    WriteBytes(home.Quake / "ID1/lv_666.qs", "old script");
    ProgramRun program(home, ReadOnly(home.Quake));
    const std::string window = program.WaitForWindow();
    ASSERT_TRUE(Activate(window));
    PressKey("F2");
    const std::string box = program.WaitForDialog(kPlainTitle);
    KeepScreenshot("game_read_only");
    EXPECT_THAT(program.TextOfBox(box), HasSubstr("Error Number = "));
    PressKey("Escape");
    EXPECT_EQ(ReadBytes(home.Quake / "lv_666.bat"), "old batch");
    EXPECT_EQ(ReadBytes(home.Quake / "ID1/lv_666.qs"), "old script");
    EXPECT_EQ(program.EndByF12(), 0);
}

TEST_F(Mounted, FullDiskDuringASaveIsToldAndTheOldValueStays) {
    ProgramHome home("config_full");
    home.Prepare();
    ProgramRun program(home, OnASmallDisk(home.Config, "2m"));
    const std::string window = program.WaitForWindow();
    const fs::path seen = program.Seen(home.Config);
    ASSERT_EQ(RowsSeen(home, program)["Options/ShowAll"], "Yes");
    FillUp(seen);
    ASSERT_TRUE(Activate(window));
    PressKey("alt+o");
    PressKey("b");  // "Show &Buttons Only"
    const std::string box = program.WaitForDialog(kPlainTitle);
    KeepScreenshot("config_full");
    const std::string text = program.TextOfBox(box);
    EXPECT_THAT(text, HasSubstr("This setting could not be saved; the old one is still there."));
    EXPECT_THAT(text, HasSubstr("Error Number = 61"));
    PressKey("Escape");
    EXPECT_TRUE(WaitUntil([&] { return !IsShown(box); }));
    EXPECT_TRUE(program.IsRunning());
    fs::remove(seen / "fill");
    EXPECT_EQ(RowsSeen(home, program)["Options/ShowAll"], "Yes");
    EXPECT_EQ(program.EndByF12(), 0);
}

TEST_F(Mounted, FullDiskAtTheStartIsToldAndTheProgramWorksOnWhatIsStored) {
    ProgramHome home("config_full_at_start");
    home.Prepare();
    ProgramRun program(home, OnASmallDisk(home.Config, "2m") + "cat /dev/zero > '" + home.Config.string() +
                                 "/fill' 2>/dev/null || true\n");
    const std::string box = program.WaitForDialog(kPlainTitle);
    KeepScreenshot("config_full_at_start");
    const std::string text = program.TextOfBox(box);
    EXPECT_THAT(text, HasSubstr(home.Settings.string()));
    EXPECT_THAT(text, HasSubstr("nothing that"));
    PressKey("Return");
    const std::string window = program.WaitForWindow();
    ASSERT_TRUE(Activate(window));
    PressKey("F2");
    EXPECT_FALSE(WaitForOutput(home.Quake / "output.txt").empty()) << "the stored game is started";
    EXPECT_EQ(RowsSeen(home, program).count("LV-Stuff/RunCount"), 0U);
    ASSERT_TRUE(Activate(window));
    EXPECT_EQ(program.EndByF12(), 0);
}

TEST_F(Mounted, FullDiskAtTheEndDoesNotKeepTheProgramFromEnding) {
    ProgramHome home("config_full_at_end");
    home.Prepare();
    ProgramRun program(home, OnASmallDisk(home.Config, "2m"));
    const std::string window = program.WaitForWindow();
    ASSERT_TRUE(Activate(window));
    FillUp(program.Seen(home.Config));
    PressKey("F12");
    ASSERT_NE(program.WaitForDialog(kPlainTitle), "");
    EXPECT_EQ(EnterUntilTheEnd(program), 0);
}

TEST_F(Mounted, FullDiskDuringALaunchIsToldAndKeepsTheOldFiles) {
    ProgramHome home("game_full");
    home.Prepare();
    WriteBytes(home.Quake / "lv_666.bat", "old batch");
    WriteBytes(home.Quake / "ID1/lv_666.qs", "old script");
    ProgramRun program(home, OnASmallDisk(home.Quake, "8m"));
    const std::string window = program.WaitForWindow();
    const fs::path seen = program.Seen(home.Quake);
    FillUp(seen);
    ASSERT_TRUE(Activate(window));
    PressKey("F2");
    const std::string box = program.WaitForDialog(kPlainTitle);
    KeepScreenshot("game_full");
    EXPECT_THAT(program.TextOfBox(box), HasSubstr("Error Number = 61"));
    PressKey("Escape");
    EXPECT_EQ(ReadBytes(seen / "lv_666.bat"), "old batch");
    EXPECT_EQ(ReadBytes(seen / "ID1/lv_666.qs"), "old script");
    EXPECT_FALSE(fs::exists(seen / "output.txt"));
    EXPECT_EQ(program.EndByF12(), 0);
}

void ExpectARefusal(ProgramHome& home) {
    const std::string before = ReadBytes(home.Settings);
    ProgramRun program(home);
    const std::string box = program.WaitForDialog(kPlainTitle);
    EXPECT_THAT(program.TextOfBox(box), HasSubstr(home.Settings.string()));
    PressKey("Escape");
    EXPECT_TRUE(program.WaitForEnd().has_value());
    EXPECT_FALSE(program.WindowIsShown());
    EXPECT_EQ(ReadBytes(home.Settings), before);
}

TEST(SettingsFile, ThatIsNoDatabaseIsToldAndLeftAlone) {
    ProgramHome home("no_database");
    WriteBytes(home.Settings, "These are somebody's notes, and they are to stay.\n");
    ExpectARefusal(home);
}

TEST(SettingsFile, OfANewerVersionIsToldAndLeftAlone) {
    ProgramHome home("newer_version");
    home.Prepare();
    std::string bytes = ReadBytes(home.Settings);
    bytes[63] = 2;  // the lowest byte of user_version
    WriteBytes(home.Settings, bytes);
    ExpectARefusal(home);
}

}  // namespace

}  // namespace lv
