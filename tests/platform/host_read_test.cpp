#include "platform/linux/files/host_read.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>

#include "tests/platform/scratch_directory.h"

namespace lv {

namespace fs = std::filesystem;

TEST(IsDirectoryAt, FollowsLinks) {
    const ScratchDirectory scratch;
    WriteBytes(scratch / "file", "");
    fs::create_symlink(scratch.Path(), scratch / "link");
    fs::create_symlink(scratch / "none", scratch / "nowhere");
    EXPECT_TRUE(IsDirectoryAt(scratch.Path().string()));
    EXPECT_TRUE(IsDirectoryAt((scratch / "link").string()));
    for (const char* const name : {"file", "none", "nowhere"}) {
        EXPECT_FALSE(IsDirectoryAt((scratch / name).string())) << name;
    }
}

TEST(OpenHostFile, TellsAMissingFileFromAMissingDirectory) {
    const ScratchDirectory scratch;
    EXPECT_EQ(OpenHostFile((scratch / "none").string()).Fault.Number, 53);
    EXPECT_EQ(OpenHostFile((scratch / "none/none").string()).Fault.Number, 76);
}

TEST(OpenHostFile, RefusesADirectoryAndAPipeWithoutWaiting) {
    const ScratchDirectory scratch;
    ASSERT_EQ(mkfifo((scratch / "pipe").c_str(), 0600), 0);
    EXPECT_EQ(OpenHostFile(scratch.Path().string()).Fault.Number, 75);
    EXPECT_EQ(OpenHostFile((scratch / "pipe").string()).Fault.Number, 75);
    EXPECT_EQ(OpenHostFile("/dev/null").Fault.Number, 75);
}

TEST(ReadToEnd, GivesTheRestOfTheFile) {
    const ScratchDirectory scratch;
    WriteBytes(scratch / "a", "abcdef");
    const auto file = OpenHostFile((scratch / "a").string());
    ASSERT_TRUE(file.Ok());
    ASSERT_EQ(lseek(file.Value->Number(), 2, SEEK_SET), 2);
    EXPECT_EQ(ReadToEnd(file.Value->Number()).Value, "cdef");
    EXPECT_EQ(ReadToEnd(file.Value->Number()).Value, "");
}

TEST(OpenHostFileAnywhere, ReadsStretchesAndNothingBehindTheEnd) {
    const ScratchDirectory scratch;
    WriteBytes(scratch / "a", "abcdef");
    const auto file = OpenHostFileAnywhere((scratch / "a").string());
    ASSERT_TRUE(file.Ok());
    EXPECT_EQ(file.Value->Size(), 6U);
    EXPECT_EQ(file.Value->Read(4, 100).Value, "ef");
    EXPECT_EQ(file.Value->Read(1, 2).Value, "bc");
    EXPECT_EQ(file.Value->Read(6, 1).Value, "");
}

TEST(ListHostDirectory, BeginsWithItselfAndTheOneAbove) {
    const ScratchDirectory scratch;
    const auto listed = ListHostDirectory(scratch.Path().string());
    ASSERT_TRUE(listed.Ok());
    ASSERT_EQ(listed.Value.size(), 2U);
    EXPECT_EQ(listed.Value[0].Name, ".");
    EXPECT_EQ(listed.Value[1].Name, "..");
}

TEST(ListHostDirectory, TellsWhatEachEntryIs) {
    const ScratchDirectory scratch;
    WriteBytes(scratch / "file", "x");
    fs::create_directory(scratch / "directory");
    fs::create_directory_symlink("directory", scratch / "link");
    fs::create_symlink("none", scratch / "dangling");
    ASSERT_EQ(mkfifo((scratch / "pipe").c_str(), 0600), 0);
    WriteBytes(scratch / "\xE6\x97\xA5", "a name that code page 1252 cannot say");
    const auto listed = ListHostDirectory(scratch.Path().string());
    ASSERT_EQ(listed.Value.size(), 7U);
    const auto entry = [&](const char* name) { return *std::ranges::find(listed.Value, name, &DirectoryEntry::Name); };
    EXPECT_TRUE(entry("directory").IsDirectory);
    EXPECT_TRUE(entry("link").IsDirectory);
    EXPECT_FALSE(entry("file").IsDirectory);
    EXPECT_FALSE(entry("file").IsDevice);
    EXPECT_FALSE(entry("dangling").IsDirectory);
    EXPECT_FALSE(entry("dangling").IsDevice);
    EXPECT_TRUE(entry("pipe").IsDevice);
}

TEST(ListHostDirectory, IsNotPossibleWhereThereIsNone) {
    const ScratchDirectory scratch;
    EXPECT_EQ(ListHostDirectory((scratch / "none").string()).Fault.Number, 76);
}

}  // namespace lv
