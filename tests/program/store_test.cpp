// What the program does when another one holds its settings, and when its drives are broken.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "tests/program/program_run.h"
#include "tests/program/screen.h"

namespace lv {

namespace {

using ::testing::HasSubstr;

namespace fs = std::filesystem;

/// A shell that holds the store until it is killed.
class Shell : public OwnProcess {
  public:
    Shell(const ProgramHome& home, const std::string& begin)
        : OwnProcess(home, {"sqlite3", home.Settings.string(), begin, ".shell touch held; exec sleep 60"}) {
        EXPECT_TRUE(WaitUntil([&] { return fs::exists(home.Root / "held"); })) << "the store is not held";
        name_ = "the program \"sqlite3\" (process " + std::to_string(Id()) + ")";
    }
    [[nodiscard]] const std::string& Name() const { return name_; }

  private:
    std::string name_;
};

void KeepARollbackJournal(const ProgramHome& home) {
    OutputOf({"sqlite3", home.Settings.string(), "PRAGMA journal_mode = DELETE"});
}

bool IsGone(const std::string& box) {
    return WaitUntil([&] { return !IsShown(box); });
}

TEST(LockedStore, IsToldWithItsHolderAndRetryWaitsAgain) {
    ProgramHome home("locked_whole");
    home.Prepare();
    KeepARollbackJournal(home);
    Shell shell(home, "BEGIN EXCLUSIVE");
    ProgramRun program(home);
    const std::string box = program.WaitForDialog(kPlainTitle);
    KeepScreenshot("locked_whole");
    EXPECT_THAT(program.TextOfBox(box), HasSubstr("are locked by " + shell.Name()));
    PressKey("alt+r");
    ASSERT_TRUE(IsGone(box));
    const std::string again = program.WaitForDialog(kPlainTitle);
    shell.Kill();
    PressKey("alt+r");
    ASSERT_TRUE(IsGone(again));
    EXPECT_EQ(program.EndByF12(), 0);
}

TEST(LockedStore, IsNotWaitedForByWhoEndsTheStart) {
    ProgramHome home("locked_exit");
    home.Prepare();
    KeepARollbackJournal(home);
    Shell shell(home, "BEGIN EXCLUSIVE");
    ProgramRun program(home);
    ASSERT_NE(program.WaitForDialog(kPlainTitle), "");
    PressKey("alt+x");
    EXPECT_TRUE(program.WaitForEnd(3000).has_value());
}

TEST(LockedStore, ForWritingAloneIsToldAboveTheSplash) {
    ProgramHome home("locked_splash");
    home.Prepare();
    Shell shell(home, "BEGIN IMMEDIATE");
    ProgramRun program(home);
    const std::string box = program.WaitForDialog(kPlainTitle);
    KeepScreenshot("locked_splash");
    const std::string text = program.TextOfBox(box);
    EXPECT_THAT(text, HasSubstr("are locked by " + shell.Name()));
    EXPECT_THAT(text, HasSubstr("Retry waits for it once more."));
    PressKey("alt+c");
    ASSERT_TRUE(IsGone(box));
    ASSERT_NE(program.WaitForWindow(), "") << "the program goes on with what is stored";
    shell.Kill();
    EXPECT_EQ(program.EndByF12(), 0);
    EXPECT_EQ(home.Get("Options", "Executables"), "Quake;c:\\quake\\quake.exe");
    EXPECT_NE(home.Get("LV_Frm", "Top"), "(none)") << "what is saved behind the lock is saved";
}

TEST(Drives, WithoutZAreMendedAtTheStart) {
    ProgramHome home("drives_without_z");
    home.Prepare();
    const fs::path z = home.Root / "data/lorvane3d/drives/z:";
    fs::remove(z);
    ExpectAStartThatWorks(home);
    EXPECT_EQ(fs::read_symlink(z), "/");
}

TEST(Drives, WithABrokenZAreMendedAtTheStart) {
    ProgramHome home("drives_broken_z");
    home.Prepare();
    const fs::path z = home.Root / "data/lorvane3d/drives/z:";
    fs::remove(z);
    fs::create_symlink("/no such directory", z);
    ExpectAStartThatWorks(home);
    EXPECT_EQ(fs::read_symlink(z), "/");
}

TEST(Drives, ThatCannotBeMadeAreTold) {
    ProgramHome home("drives_nowhere");
    home.Prepare();
    const fs::path drives = home.Root / "data/lorvane3d/drives";
    fs::remove_all(drives);
    fs::create_symlink("gone", drives);
    ProgramRun program(home);
    const std::string box = program.WaitForDialog(kPlainTitle);
    EXPECT_THAT(program.TextOfBox(box), HasSubstr(drives.string()));
}

}  // namespace

}  // namespace lv
