#include "platform/linux/files/host_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>

#include "tests/support/game_yard.h"

namespace lv {

TEST(WriteHostFile, MakesDirectoriesAndReplacesTheFile) {
    GameYard yard("host_file");
    const auto file = yard.Root / "a/b/file.conf";
    ASSERT_FALSE(WriteHostFile(file, "a longer first text"));
    ASSERT_FALSE(WriteHostFile(file, std::string("x\0\r\n", 4)));
    EXPECT_EQ(ReadBytes(file), std::string("x\0\r\n", 4));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(yard.Root / "a/b"), {}), 1);
}

TEST(WriteHostFile, NamesTheFileItCannotWrite) {
    GameYard yard("host_file_refused");
    yard.AddFile("plain", "x");
    const auto file = yard.Drive / "plain/file.conf";
    const Error fault = WriteHostFile(file, "x");
    EXPECT_EQ(fault.Number, 76);
    EXPECT_EQ(fault.Text, "Path not found: " + file.string());
}

TEST(DropOldHostFiles, DropsOnlyOldFilesOfThatName) {
    GameYard yard("host_file_old");
    const auto tenDaysAgo = std::filesystem::file_time_type::clock::now() - std::chrono::hours(240);
    for (const char* name : {"lv_666_1.bat", "lv_666_2.bat", "other.bat"}) {
        yard.AddFile(name, "x");
    }
    std::filesystem::last_write_time(yard.Drive / "lv_666_1.bat", tenDaysAgo);
    std::filesystem::last_write_time(yard.Drive / "other.bat", tenDaysAgo);
    DropOldHostFiles(yard.Drive, "lv_666_", 7);
    EXPECT_FALSE(std::filesystem::exists(yard.Drive / "lv_666_1.bat"));
    EXPECT_TRUE(std::filesystem::exists(yard.Drive / "lv_666_2.bat"));
    EXPECT_TRUE(std::filesystem::exists(yard.Drive / "other.bat"));
    DropOldHostFiles(yard.Drive / "none", "lv_666_", 7);
}

TEST(WriteHostFile, KeepsDirectoryAndFileToThisUser) {
    using std::filesystem::perms;
    GameYard yard("host_file_private");
    const auto mode = [](const std::filesystem::path& path) { return std::filesystem::status(path).permissions(); };
    ASSERT_FALSE(WriteHostFile(yard.Root / "made/lorvane3d/a.conf", "x"));
    EXPECT_EQ(mode(yard.Root / "made/lorvane3d"), perms::owner_all);
    EXPECT_EQ(mode(yard.Root / "made/lorvane3d/a.conf"), perms::owner_read | perms::owner_write);
    std::filesystem::create_directory(yard.Root / "open");
    std::filesystem::permissions(yard.Root / "open", perms::all);
    ASSERT_FALSE(WriteHostFile(yard.Root / "open/a.conf", "x"));
    EXPECT_EQ(mode(yard.Root / "open"), perms::owner_all);
}

TEST(WriteHostFile, ReplacesALink) {
    GameYard yard("host_file_link");
    const auto mine = yard.AddFile("mine", "mine");
    std::filesystem::create_directory(yard.Root / "cache");
    std::filesystem::create_symlink(mine, yard.Root / "cache/a.conf");
    ASSERT_FALSE(WriteHostFile(yard.Root / "cache/a.conf", "new"));
    EXPECT_EQ(ReadBytes(mine), "mine");
    EXPECT_EQ(ReadBytes(yard.Root / "cache/a.conf"), "new");
}

}  // namespace lv
