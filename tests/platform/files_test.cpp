// What every implementation of Files promises. Each is given a drive with nothing on it.

#include "platform/files.h"

#include <gtest/gtest.h>

#include "platform/linux/linux_files.h"
#include "platform/memory/memory_platform.h"
#include "tests/platform/scratch_directory.h"

namespace lv {

namespace {

struct MemoryDisk {
    MemoryFiles Disk;
    MemoryDisk() { Disk.AddDrive("C:"); }
};

struct LinuxDisk {
    ScratchDirectory Scratch;
    LinuxFiles Disk{{Scratch / "data/drives", Scratch / "wine", Scratch.Path()}};
};

}  // namespace

template <class T>
class AnyFiles : public testing::Test {
  protected:
    T made_;
    Files& disk_ = made_.Disk;
};

using AllFiles = testing::Types<MemoryDisk, LinuxDisk>;
TYPED_TEST_SUITE(AnyFiles, AllFiles);

TYPED_TEST(AnyFiles, ReadBackWhatWasReplaced) {
    const std::string all("\0\r\n\x1A\xFF", 5);
    EXPECT_EQ(this->disk_.Replace("C:\\A.CFG", all).Number, 0);
    EXPECT_EQ(this->disk_.Read("C:\\A.CFG").Value, all);
    EXPECT_EQ(this->disk_.Replace("C:\\A.CFG", "").Number, 0);
    EXPECT_EQ(this->disk_.Read("C:\\A.CFG").Value, "");
}

TYPED_TEST(AnyFiles, FindNamesBlindToCase) {
    EXPECT_EQ(this->disk_.MakeDirectory("C:\\Quake").Number, 0);
    EXPECT_EQ(this->disk_.Replace("C:\\QUAKE\\\xC9t\xE9.cfg", "x").Number, 0);
    EXPECT_TRUE(this->disk_.FileExists("c:\\quake\\\xE9T\xC9.CFG"));
    EXPECT_EQ(this->disk_.Read("c:\\quake\\\xE9T\xC9.CFG").Value, "x");
}

TYPED_TEST(AnyFiles, KeepTheSpellingOfAFileThatIsThere) {
    EXPECT_EQ(this->disk_.Replace("C:\\Autoexec.Cfg", "old").Number, 0);
    EXPECT_EQ(this->disk_.Replace("C:\\AUTOEXEC.CFG", "new").Number, 0);
    const auto entries = this->disk_.List("C:\\");
    ASSERT_EQ(entries.Value.size(), 3u);
    EXPECT_EQ(entries.Value[2].Name, "Autoexec.Cfg");
    EXPECT_EQ(this->disk_.Read("C:\\autoexec.cfg").Value, "new");
}

TYPED_TEST(AnyFiles, TellDirectoriesFromFiles) {
    EXPECT_EQ(this->disk_.MakeDirectory("C:\\DIR").Number, 0);
    EXPECT_EQ(this->disk_.Replace("C:\\FILE", "x").Number, 0);
    EXPECT_TRUE(this->disk_.DirectoryExists("C:\\DIR"));
    EXPECT_TRUE(this->disk_.DirectoryExists("C:\\DIR\\"));
    EXPECT_FALSE(this->disk_.DirectoryExists("C:\\FILE"));
    EXPECT_TRUE(this->disk_.FileExists("C:\\FILE"));
    EXPECT_FALSE(this->disk_.FileExists("C:\\DIR"));
    EXPECT_FALSE(this->disk_.FileExists(""));
    EXPECT_FALSE(this->disk_.DirectoryExists(""));
}

TYPED_TEST(AnyFiles, ListForAWalkWithAnIdentity) {
    EXPECT_EQ(this->disk_.MakeDirectory("C:\\Dir").Number, 0);
    EXPECT_EQ(this->disk_.MakeDirectory("C:\\Dir\\MAPS").Number, 0);
    const auto spelled = this->disk_.ListForWalk("C:\\Dir");
    const auto other = this->disk_.ListForWalk("c:\\DIR");
    ASSERT_EQ(spelled.Value.Entries.size(), 3u);
    EXPECT_EQ(spelled.Value.Entries[2].Name, "MAPS");
    EXPECT_EQ(spelled.Value.Identity, other.Value.Identity);
    EXPECT_NE(spelled.Value.Identity, this->disk_.ListForWalk("C:\\").Value.Identity);
    EXPECT_EQ(this->disk_.ListForWalk("C:\\NONE").Fault.Number, 76);
}

TYPED_TEST(AnyFiles, ListDotsFirst) {
    EXPECT_EQ(this->disk_.MakeDirectory("C:\\DIR").Number, 0);
    EXPECT_EQ(this->disk_.MakeDirectory("C:\\DIR\\MAPS").Number, 0);
    const auto entries = this->disk_.List("C:\\DIR");
    ASSERT_EQ(entries.Value.size(), 3u);
    EXPECT_EQ(entries.Value[0].Name, ".");
    EXPECT_TRUE(entries.Value[0].IsDirectory);
    EXPECT_EQ(entries.Value[1].Name, "..");
    EXPECT_TRUE(entries.Value[1].IsDirectory);
    EXPECT_EQ(entries.Value[2].Name, "MAPS");
    EXPECT_TRUE(entries.Value[2].IsDirectory);
}

TYPED_TEST(AnyFiles, TellWhyAListingFails) {
    EXPECT_EQ(this->disk_.Replace("C:\\FILE", "x").Number, 0);
    EXPECT_EQ(this->disk_.List("C:\\NONE").Fault.Number, 76);
    EXPECT_EQ(this->disk_.List("C:\\FILE").Fault.Number, 76);
    EXPECT_EQ(this->disk_.List("Q:\\").Fault.Number, 76);
}

TYPED_TEST(AnyFiles, TellWhyAReadFails) {
    EXPECT_EQ(this->disk_.MakeDirectory("C:\\DIR").Number, 0);
    EXPECT_EQ(this->disk_.Read("C:\\NONE").Fault.Number, 53);
    EXPECT_EQ(this->disk_.Read("C:\\NONE\\NONE").Fault.Number, 76);
    EXPECT_EQ(this->disk_.Read("C:\\DIR").Fault.Number, 75);
    EXPECT_EQ(this->disk_.Open("C:\\NONE").Fault.Number, 53);
    EXPECT_EQ(this->disk_.Open("C:\\DIR").Fault.Number, 75);
}

TYPED_TEST(AnyFiles, TellWhyAReplaceFails) {
    EXPECT_EQ(this->disk_.MakeDirectory("C:\\DIR").Number, 0);
    EXPECT_EQ(this->disk_.Replace("C:\\NONE\\A.CFG", "x").Number, 76);
    EXPECT_EQ(this->disk_.Replace("C:\\DIR", "x").Number, 75);
}

TYPED_TEST(AnyFiles, ReadFromAnyPlace) {
    EXPECT_EQ(this->disk_.Replace("C:\\PAK0.PAK", "PACK1234").Number, 0);
    const auto file = this->disk_.Open("C:\\pak0.pak");
    ASSERT_TRUE(file.Ok());
    EXPECT_EQ(file.Value->Size(), 8u);
    EXPECT_EQ(file.Value->Read(4, 2).Value, "12");
    EXPECT_EQ(file.Value->Read(0, 4).Value, "PACK");
    EXPECT_EQ(file.Value->Read(6, 100).Value, "34");
    EXPECT_EQ(file.Value->Read(6, static_cast<std::size_t>(-1)).Value, "34");
    EXPECT_EQ(file.Value->Read(8, 1).Value, "");
    EXPECT_EQ(file.Value->Read(~0ull, 1).Value, "");
}

TYPED_TEST(AnyFiles, Copy) {
    EXPECT_EQ(this->disk_.Replace("C:\\A", std::string(200000, 'x')).Number, 0);
    EXPECT_EQ(this->disk_.Replace("C:\\B", "old").Number, 0);
    EXPECT_EQ(this->disk_.Copy("C:\\a", "C:\\b").Number, 0);
    EXPECT_EQ(this->disk_.Read("C:\\B").Value, std::string(200000, 'x'));
    EXPECT_EQ(this->disk_.Copy("C:\\NONE", "C:\\B").Number, 53);
    EXPECT_EQ(this->disk_.Copy("C:\\A", "C:\\NONE\\B").Number, 76);
    EXPECT_EQ(this->disk_.Copy("C:\\A", "C:\\A").Number, 0);
    EXPECT_EQ(this->disk_.Read("C:\\A").Value, std::string(200000, 'x'));
}

TYPED_TEST(AnyFiles, DeleteFilesOnly) {
    EXPECT_EQ(this->disk_.Replace("C:\\A.CFG", "x").Number, 0);
    EXPECT_EQ(this->disk_.MakeDirectory("C:\\DIR").Number, 0);
    EXPECT_EQ(this->disk_.Delete("C:\\a.cfg").Number, 0);
    EXPECT_FALSE(this->disk_.FileExists("C:\\A.CFG"));
    EXPECT_EQ(this->disk_.Delete("C:\\A.CFG").Number, 53);
    EXPECT_EQ(this->disk_.Delete("C:\\DIR").Number, 53);
    EXPECT_TRUE(this->disk_.DirectoryExists("C:\\DIR"));
}

TYPED_TEST(AnyFiles, MakeAndRemoveDirectories) {
    EXPECT_EQ(this->disk_.MakeDirectory("C:\\DIR").Number, 0);
    EXPECT_EQ(this->disk_.MakeDirectory("C:\\dir").Number, 75);
    EXPECT_EQ(this->disk_.MakeDirectory("C:\\NONE\\DIR").Number, 76);
    EXPECT_EQ(this->disk_.Replace("C:\\DIR\\A", "x").Number, 0);
    EXPECT_EQ(this->disk_.RemoveDirectory("C:\\DIR").Number, 75);
    EXPECT_EQ(this->disk_.Delete("C:\\DIR\\A").Number, 0);
    EXPECT_EQ(this->disk_.RemoveDirectory("C:\\DIR").Number, 0);
    EXPECT_EQ(this->disk_.RemoveDirectory("C:\\DIR").Number, 76);
}

TYPED_TEST(AnyFiles, HoldACurrentDirectory) {
    EXPECT_EQ(this->disk_.MakeDirectory("C:\\Quake").Number, 0);
    EXPECT_EQ(this->disk_.MakeDirectory("C:\\Quake\\id1").Number, 0);
    EXPECT_EQ(this->disk_.ChangeDirectory("C:\\Quake\\id1").Number, 0);
    EXPECT_EQ(this->disk_.CurrentDirectory(), "C:\\Quake\\id1");
    EXPECT_EQ(this->disk_.Replace("a.cfg", "x").Number, 0);
    EXPECT_EQ(this->disk_.Read("..\\ID1\\.\\A.CFG").Value, "x");
    EXPECT_EQ(this->disk_.ChangeDirectory("NONE").Number, 76);
    EXPECT_EQ(this->disk_.CurrentDirectory(), "C:\\Quake\\id1");
    EXPECT_EQ(this->disk_.ChangeDirectory("\\").Number, 0);
    EXPECT_EQ(this->disk_.CurrentDirectory(), "C:\\");
}

TYPED_TEST(AnyFiles, ChangeTheDriveByTheStartOfAPath) {
    EXPECT_EQ(this->disk_.MakeDirectory("C:\\Quake").Number, 0);
    EXPECT_EQ(this->disk_.ChangeDirectory("C:\\Quake").Number, 0);
    EXPECT_EQ(this->disk_.ChangeDrive("c:\\").Number, 0);
    EXPECT_EQ(this->disk_.CurrentDirectory(), "C:\\Quake");
    EXPECT_EQ(this->disk_.ChangeDrive("Q:").Number, 68);
    EXPECT_EQ(this->disk_.ChangeDrive("").Number, 68);
    EXPECT_EQ(this->disk_.CurrentDirectory(), "C:\\Quake");
}

TYPED_TEST(AnyFiles, ProbeDrives) {
    EXPECT_EQ(this->disk_.ProbeDrive("C:").Number, 0);
    EXPECT_EQ(this->disk_.ProbeDrive("c:\\").Number, 0);
    EXPECT_EQ(this->disk_.ProbeDrive("Q:").Number, 68);
}

TYPED_TEST(AnyFiles, BringAPathToTheHostAndBack) {
    EXPECT_EQ(this->disk_.MakeDirectory("C:\\quake").Number, 0);
    EXPECT_EQ(this->disk_.Replace("C:\\quake\\\xE9.cfg", "x").Number, 0);
    EXPECT_EQ(this->disk_.FromHost(this->disk_.ToHost("C:\\quake\\\xE9.cfg")), "C:\\quake\\\xE9.cfg");
}

}  // namespace lv
