#include "platform/linux/settings/settings_copy.h"

#include <gtest/gtest.h>

#include "tests/platform/store_files.h"

namespace lv {

namespace fs = std::filesystem;

namespace {

// Opens on a disk without a free byte; what the child finds is its exit code.
int OnAFullDisk(const std::function<int()>& work, off_t room = 0) {
    return ExitOf(InChild([&] {
        FillDiskAfter(room);
        _exit(work());
    }));
}

}  // namespace

TEST(SettingsCopy, TellAFullDiskAtTheStart) {
    const ScratchDirectory scratch;
    EXPECT_EQ(OpenStore(scratch / "s")->Write(kApp, "Options", "Games", "id1").Number, 0);
    for (const off_t room : {0, 3, 4096}) {
        EXPECT_EQ(OnAFullDisk([&] { return SqliteSettings::Open(scratch / "s").Fault.Number; }, room), 61) << room;
    }
    EXPECT_EQ(OpenStore(scratch / "s")->Read(kApp, "Options", "Games"), "id1");
}

TEST(SettingsCopy, TellAFullDiskAtTheStartOfAStoreMadeByHand) {
    const ScratchDirectory scratch;
    RunSql(scratch / "s", kHandMade);
    EXPECT_EQ(OnAFullDisk([&] { return SqliteSettings::Open(scratch / "s").Fault.Number; }), 61);
}

TEST(SettingsCopy, AreCopiedWhereNothingCanBeWritten) {
    const ScratchDirectory scratch;
    EXPECT_EQ(OpenStore(scratch / "s")->Write(kApp, "Options", "Games", "id1").Number, 0);
    const auto work = [&] {
        const auto copy = SqliteSettings::OpenCopy(scratch / "s");
        if (!copy.Ok() || copy.Value->Read(kApp, "options", "games") != "id1") {
            return 1;
        }
        if (copy.Value->Write(kApp, "Options", "Games", "ctf") || copy.Value->Read(kApp, "Options", "Games") != "ctf") {
            return 2;
        }
        return 0;
    };
    EXPECT_EQ(OnAFullDisk(work), 0);
    EXPECT_EQ(OpenStore(scratch / "s")->Read(kApp, "Options", "Games"), "id1");
}

TEST(SettingsCopy, AreCopiedWithWhatIsOnlyInTheLogYet) {
    const ScratchDirectory scratch;
    const pid_t child = InChild([&] {
        const auto store = SqliteSettings::Open(scratch / "s");
        (void)store.Value->Write(kApp, "Options", "Games", "id1");
        raise(SIGKILL);
    });
    ASSERT_EQ(ExitOf(child), 128 + SIGKILL);
    ASSERT_GT(fs::file_size(scratch / "s-wal"), 0u);
    fs::remove(scratch / "s-shm");
    EXPECT_EQ(OnAFullDisk([&] {
                  const auto copy = SqliteSettings::OpenCopy(scratch / "s");
                  return copy.Ok() && copy.Value->Read(kApp, "Options", "Games") == "id1" ? 0 : 1;
              }),
              0);
    EXPECT_EQ(OpenStore(scratch / "s")->Read(kApp, "Options", "Games"), "id1");
}

TEST(SettingsCopy, AreAnEmptyCopyWhereThereIsNoFile) {
    const ScratchDirectory scratch;
    const auto copy = SqliteSettings::OpenCopy(scratch / "no/s");
    ASSERT_TRUE(copy.Ok()) << copy.Fault.Text;
    EXPECT_EQ(copy.Value->Read(kApp, "Options", "Games"), std::nullopt);
    EXPECT_EQ(copy.Value->Write(kApp, "Options", "Games", "id1").Number, 0);
    EXPECT_EQ(copy.Value->Read(kApp, "Options", "Games"), "id1");
    EXPECT_FALSE(fs::exists(scratch / "no"));
}

TEST(SettingsCopy, AreNotCopiedFromWhatIsNoStore) {
    const ScratchDirectory scratch;
    RunSql(scratch / "s", "CREATE TABLE bookmarks(url TEXT); INSERT INTO bookmarks VALUES('x');");
    EXPECT_EQ(SqliteSettings::OpenCopy(scratch / "s").Fault.Number, 75);
}

TEST(SettingsCopy, AreCopiedFromAFileOfAnyName) {
    const ScratchDirectory scratch;
    const fs::path file = scratch / "50% of #1?";
    EXPECT_EQ(OpenStore(file)->Write(kApp, "Options", "Games", "id1").Number, 0);
    const auto copy = SqliteSettings::OpenCopy(file);
    ASSERT_TRUE(copy.Ok()) << copy.Fault.Text;
    EXPECT_EQ(copy.Value->Read(kApp, "Options", "Games"), "id1");
}

}  // namespace lv
