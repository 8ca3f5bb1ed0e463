// What every implementation of Files promises. Each is given a drive with nothing on it.

#include "platform/files.h"

#include <gtest/gtest.h>

#include "platform/code_page.h"
#include "platform/memory/memory_platform.h"
#include "this_system.h"

namespace lv {

namespace {

struct MemoryDisk {
    MemoryFiles Disk;
    char Letter = 'C';
    MemoryDisk() { Disk.AddDrive("C:"); }
};

}  // namespace

template <class T>
class AnyFiles : public testing::Test {
  protected:
    /// The path on C:, on the drive that is C: for the test; its letter keeps its case.
    std::string On(std::string path) {
        path[0] = path[0] == 'c' ? LowerCase(made_.Letter) : made_.Letter;
        return path;
    }

    T made_;
    Files& disk_ = made_.Disk;
};

TEST(MemoryFiles, TellAPlainFileFromWhatOnlyReadsLikeOne) {
    MemoryDisk made;
    made.Disk.AddFile("C:\\FILE");
    made.Disk.AddFileLink("C:\\LINK", "C:\\FILE");
    made.Disk.AddDevice("C:\\PIPE");
    EXPECT_TRUE(made.Disk.IsPlainFile("C:\\file"));
    EXPECT_FALSE(made.Disk.IsPlainFile("C:\\LINK"));
    EXPECT_FALSE(made.Disk.IsPlainFile("C:\\PIPE"));
    EXPECT_FALSE(made.Disk.IsPlainFile("C:\\"));
    EXPECT_FALSE(made.Disk.IsPlainFile("C:\\NONE"));
}

// Those of the operating system have real links, pipes and sizes in tests of their own.
TEST(MemoryFiles, ReplaceALinkByTheProgramsOwnFile) {
    MemoryDisk made;
    made.Disk.AddFile("C:\\HOME\\.bashrc", "mine");
    made.Disk.AddFileLink("C:\\QUAKE\\lv_666.bat", "C:\\HOME\\.bashrc");
    EXPECT_EQ(made.Disk.ReplaceOwn("C:\\QUAKE\\LV_666.BAT", "new").Number, 0);
    EXPECT_EQ(made.Disk.Bytes("C:\\HOME\\.bashrc"), "mine");
    EXPECT_EQ(made.Disk.Bytes("C:\\QUAKE\\lv_666.bat"), "new");
    EXPECT_TRUE(made.Disk.Private.contains("c:\\quake\\lv_666.bat"));
}

TEST(MemoryFiles, ReplaceAPipeByTheProgramsOwnFile) {
    MemoryDisk made;
    made.Disk.AddDevice("C:\\QUAKE\\lv_666.bat");
    EXPECT_EQ(made.Disk.Replace("C:\\QUAKE\\lv_666.bat", "new").Number, 75);
    EXPECT_EQ(made.Disk.ReplaceOwn("C:\\QUAKE\\lv_666.bat", "new").Number, 0);
    EXPECT_EQ(made.Disk.Bytes("C:\\QUAKE\\lv_666.bat"), "new");
}

TEST(MemoryFiles, LeaveALinkOfTheUsersALink) {
    MemoryDisk made;
    made.Disk.AddFile("C:\\HOME\\real.cfg", "old");
    made.Disk.AddFileLink("C:\\QUAKE\\my.cfg", "C:\\HOME\\real.cfg");
    EXPECT_EQ(made.Disk.Replace("C:\\QUAKE\\my.cfg", "new").Number, 0);
    EXPECT_EQ(made.Disk.Bytes("C:\\HOME\\real.cfg"), "new");
    EXPECT_EQ(made.Disk.Delete("C:\\QUAKE\\my.cfg").Number, 0);
    EXPECT_EQ(made.Disk.Bytes("C:\\HOME\\real.cfg"), "new");
    EXPECT_FALSE(made.Disk.FileExists("C:\\QUAKE\\my.cfg"));
}

TEST(MemoryFiles, SayWhereALinkLeadsOutOfHomeAndTree) {
    MemoryDisk made;
    made.Disk.AddFileLink("C:\\QUAKE\\a.cfg", "C:\\HOME\\a.cfg");
    made.Disk.AddFileLink("C:\\QUAKE\\b.cfg", "C:\\QUAKE\\ID1\\b.cfg");
    made.Disk.AddFileLink("C:\\QUAKE\\c.cfg", "C:\\ETC\\PASSWD");
    EXPECT_EQ(made.Disk.LeadsAway("C:\\QUAKE\\a.cfg", "C:\\QUAKE"), "");
    EXPECT_EQ(made.Disk.LeadsAway("C:\\QUAKE\\b.cfg", "C:\\QUAKE"), "");
    EXPECT_EQ(made.Disk.LeadsAway("C:\\QUAKE\\c.cfg", "C:\\QUAKE"), "c:\\etc\\passwd");
}

TEST(MemoryFiles, ReadNoDeviceAndNoFileWithoutEnd) {
    MemoryDisk made;
    made.Disk.AddDevice("C:\\pipe.cfg");
    made.Disk.AddSparseFile("C:\\huge.ini", "[x]", 1ULL << 40U);
    made.Disk.AddSparseFile("C:\\fits.ini", "[x]", 6);
    EXPECT_FALSE(made.Disk.FileExists("C:\\pipe.cfg"));
    EXPECT_EQ(made.Disk.Read("C:\\pipe.cfg").Fault.Number, 75);
    EXPECT_TRUE(made.Disk.List("C:\\").Value.at(2).IsDevice);
    EXPECT_EQ(made.Disk.Read("C:\\huge.ini").Fault.Number, 7);
    EXPECT_EQ(made.Disk.Open("C:\\huge.ini").Value->Size(), 1ULL << 40U);
    EXPECT_EQ(made.Disk.Read("C:\\fits.ini").Value, std::string("[x]\0\0\0", 6));
}

using AllFiles = testing::Types<MemoryDisk, SystemDisk>;
TYPED_TEST_SUITE(AnyFiles, AllFiles);

TYPED_TEST(AnyFiles, ReadBackWhatWasReplaced) {
    const std::string all("\0\r\n\x1A\xFF", 5);
    EXPECT_EQ(this->disk_.Replace(this->On("C:\\A.CFG"), all).Number, 0);
    EXPECT_EQ(this->disk_.Read(this->On("C:\\A.CFG")).Value, all);
    EXPECT_EQ(this->disk_.Replace(this->On("C:\\A.CFG"), "").Number, 0);
    EXPECT_EQ(this->disk_.Read(this->On("C:\\A.CFG")).Value, "");
}

TYPED_TEST(AnyFiles, FindNamesBlindToCase) {
    EXPECT_EQ(this->disk_.MakeDirectory(this->On("C:\\Quake")).Number, 0);
    EXPECT_EQ(this->disk_.Replace(this->On("C:\\QUAKE\\\xC9t\xE9.cfg"), "x").Number, 0);
    EXPECT_TRUE(this->disk_.FileExists(this->On("c:\\quake\\\xE9T\xC9.CFG")));
    EXPECT_EQ(this->disk_.Read(this->On("c:\\quake\\\xE9T\xC9.CFG")).Value, "x");
}

TYPED_TEST(AnyFiles, KeepTheSpellingOfAFileThatIsThere) {
    EXPECT_EQ(this->disk_.Replace(this->On("C:\\Autoexec.Cfg"), "old").Number, 0);
    EXPECT_EQ(this->disk_.Replace(this->On("C:\\AUTOEXEC.CFG"), "new").Number, 0);
    const auto entries = this->disk_.List(this->On("C:\\"));
    ASSERT_EQ(entries.Value.size(), 3u);
    EXPECT_EQ(entries.Value[2].Name, "Autoexec.Cfg");
    EXPECT_EQ(this->disk_.Read(this->On("C:\\autoexec.cfg")).Value, "new");
}

TYPED_TEST(AnyFiles, TellDirectoriesFromFiles) {
    EXPECT_EQ(this->disk_.MakeDirectory(this->On("C:\\DIR")).Number, 0);
    EXPECT_EQ(this->disk_.Replace(this->On("C:\\FILE"), "x").Number, 0);
    EXPECT_TRUE(this->disk_.DirectoryExists(this->On("C:\\DIR")));
    EXPECT_TRUE(this->disk_.DirectoryExists(this->On("C:\\DIR\\")));
    EXPECT_FALSE(this->disk_.DirectoryExists(this->On("C:\\FILE")));
    EXPECT_TRUE(this->disk_.FileExists(this->On("C:\\FILE")));
    EXPECT_FALSE(this->disk_.FileExists(this->On("C:\\DIR")));
    EXPECT_FALSE(this->disk_.FileExists(""));
    EXPECT_FALSE(this->disk_.DirectoryExists(""));
}

TYPED_TEST(AnyFiles, ListForAWalkWithAnIdentity) {
    EXPECT_EQ(this->disk_.MakeDirectory(this->On("C:\\Dir")).Number, 0);
    EXPECT_EQ(this->disk_.MakeDirectory(this->On("C:\\Dir\\MAPS")).Number, 0);
    const auto spelled = this->disk_.ListForWalk(this->On("C:\\Dir"));
    const auto other = this->disk_.ListForWalk(this->On("c:\\DIR"));
    ASSERT_EQ(spelled.Value.Entries.size(), 3u);
    EXPECT_EQ(spelled.Value.Entries[2].Name, "MAPS");
    EXPECT_EQ(spelled.Value.Identity, other.Value.Identity);
    EXPECT_NE(spelled.Value.Identity, this->disk_.ListForWalk(this->On("C:\\")).Value.Identity);
    EXPECT_EQ(this->disk_.ListForWalk(this->On("C:\\NONE")).Fault.Number, 76);
}

TYPED_TEST(AnyFiles, ListDotsFirst) {
    EXPECT_EQ(this->disk_.MakeDirectory(this->On("C:\\DIR")).Number, 0);
    EXPECT_EQ(this->disk_.MakeDirectory(this->On("C:\\DIR\\MAPS")).Number, 0);
    const auto entries = this->disk_.List(this->On("C:\\DIR"));
    ASSERT_EQ(entries.Value.size(), 3u);
    EXPECT_EQ(entries.Value[0].Name, ".");
    EXPECT_TRUE(entries.Value[0].IsDirectory);
    EXPECT_EQ(entries.Value[1].Name, "..");
    EXPECT_TRUE(entries.Value[1].IsDirectory);
    EXPECT_EQ(entries.Value[2].Name, "MAPS");
    EXPECT_TRUE(entries.Value[2].IsDirectory);
}

TYPED_TEST(AnyFiles, TellWhyAListingFails) {
    EXPECT_EQ(this->disk_.Replace(this->On("C:\\FILE"), "x").Number, 0);
    EXPECT_EQ(this->disk_.List(this->On("C:\\NONE")).Fault.Number, 76);
    EXPECT_EQ(this->disk_.List(this->On("C:\\FILE")).Fault.Number, 76);
    EXPECT_EQ(this->disk_.List("Q:\\").Fault.Number, 76);
}

TYPED_TEST(AnyFiles, TellWhyAReadFails) {
    EXPECT_EQ(this->disk_.MakeDirectory(this->On("C:\\DIR")).Number, 0);
    EXPECT_EQ(this->disk_.Read(this->On("C:\\NONE")).Fault.Number, 53);
    EXPECT_EQ(this->disk_.Read(this->On("C:\\NONE\\NONE")).Fault.Number, 76);
    EXPECT_EQ(this->disk_.Read(this->On("C:\\DIR")).Fault.Number, 75);
    EXPECT_EQ(this->disk_.Open(this->On("C:\\NONE")).Fault.Number, 53);
    EXPECT_EQ(this->disk_.Open(this->On("C:\\DIR")).Fault.Number, 75);
}

TYPED_TEST(AnyFiles, TellWhyAReplaceFails) {
    EXPECT_EQ(this->disk_.MakeDirectory(this->On("C:\\DIR")).Number, 0);
    EXPECT_EQ(this->disk_.Replace(this->On("C:\\NONE\\A.CFG"), "x").Number, 76);
    EXPECT_EQ(this->disk_.Replace(this->On("C:\\DIR"), "x").Number, 75);
}

TYPED_TEST(AnyFiles, ReadFromAnyPlace) {
    EXPECT_EQ(this->disk_.Replace(this->On("C:\\PAK0.PAK"), "PACK1234").Number, 0);
    const auto file = this->disk_.Open(this->On("C:\\pak0.pak"));
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
    EXPECT_EQ(this->disk_.Replace(this->On("C:\\A"), std::string(200000, 'x')).Number, 0);
    EXPECT_EQ(this->disk_.Replace(this->On("C:\\B"), "old").Number, 0);
    EXPECT_EQ(this->disk_.Copy(this->On("C:\\a"), this->On("C:\\b")).Number, 0);
    EXPECT_EQ(this->disk_.Read(this->On("C:\\B")).Value, std::string(200000, 'x'));
    EXPECT_EQ(this->disk_.Copy(this->On("C:\\NONE"), this->On("C:\\B")).Number, 53);
    EXPECT_EQ(this->disk_.Copy(this->On("C:\\A"), this->On("C:\\NONE\\B")).Number, 76);
    EXPECT_EQ(this->disk_.Copy(this->On("C:\\A"), this->On("C:\\A")).Number, 0);
    EXPECT_EQ(this->disk_.Read(this->On("C:\\A")).Value, std::string(200000, 'x'));
}

TYPED_TEST(AnyFiles, DeleteFilesOnly) {
    EXPECT_EQ(this->disk_.Replace(this->On("C:\\A.CFG"), "x").Number, 0);
    EXPECT_EQ(this->disk_.MakeDirectory(this->On("C:\\DIR")).Number, 0);
    EXPECT_EQ(this->disk_.Delete(this->On("C:\\a.cfg")).Number, 0);
    EXPECT_FALSE(this->disk_.FileExists(this->On("C:\\A.CFG")));
    EXPECT_EQ(this->disk_.Delete(this->On("C:\\A.CFG")).Number, 53);
    EXPECT_EQ(this->disk_.Delete(this->On("C:\\DIR")).Number, 53);
    EXPECT_TRUE(this->disk_.DirectoryExists(this->On("C:\\DIR")));
}

TYPED_TEST(AnyFiles, TakeNoNameForAPattern) {
    EXPECT_EQ(this->disk_.MakeDirectory(this->On("C:\\DIR")).Number, 0);
    for (const char* name : {"C:\\A.CFG", "C:\\B.CFG", "C:\\DIR\\A.CFG"}) {
        EXPECT_EQ(this->disk_.Replace(this->On(name), "mine").Number, 0);
    }
    for (const char* pattern : {"C:\\*", "C:\\*.*", "C:\\*.CFG", "C:\\?.CFG", "C:\\A.CF?", "C:\\D*\\A.CFG", "C:\\<.CFG",
                                "C:\\>.CFG", "C:\\A\"CFG", "C:\\DIR\\*"}) {
        const std::string path = this->On(pattern);
        EXPECT_FALSE(this->disk_.FileExists(path)) << pattern;
        EXPECT_FALSE(this->disk_.Read(path).Ok()) << pattern;
        EXPECT_FALSE(this->disk_.Open(path).Ok()) << pattern;
        EXPECT_NE(this->disk_.Delete(path).Number, 0) << pattern;
        EXPECT_NE(this->disk_.RemoveDirectory(path).Number, 0) << pattern;
        EXPECT_NE(this->disk_.ChangeDirectory(path).Number, 0) << pattern;
        EXPECT_FALSE(this->disk_.List(path).Ok()) << pattern;
        EXPECT_NE(this->disk_.Copy(path, this->On("C:\\B.CFG")).Number, 0) << pattern;
        // A file of that very name, or an error.
        (void)this->disk_.Replace(path, "theirs");
        (void)this->disk_.Copy(this->On("C:\\B.CFG"), path);
    }
    for (const char* name : {"C:\\A.CFG", "C:\\B.CFG", "C:\\DIR\\A.CFG"}) {
        EXPECT_EQ(this->disk_.Read(this->On(name)).Value, "mine") << name;
    }
}

TYPED_TEST(AnyFiles, MakeAndRemoveDirectories) {
    EXPECT_EQ(this->disk_.MakeDirectory(this->On("C:\\DIR")).Number, 0);
    EXPECT_EQ(this->disk_.MakeDirectory(this->On("C:\\dir")).Number, 75);
    EXPECT_EQ(this->disk_.MakeDirectory(this->On("C:\\NONE\\DIR")).Number, 76);
    EXPECT_EQ(this->disk_.Replace(this->On("C:\\DIR\\A"), "x").Number, 0);
    EXPECT_EQ(this->disk_.RemoveDirectory(this->On("C:\\DIR")).Number, 75);
    EXPECT_EQ(this->disk_.Delete(this->On("C:\\DIR\\A")).Number, 0);
    EXPECT_EQ(this->disk_.RemoveDirectory(this->On("C:\\DIR")).Number, 0);
    EXPECT_EQ(this->disk_.RemoveDirectory(this->On("C:\\DIR")).Number, 76);
}

TYPED_TEST(AnyFiles, HoldACurrentDirectory) {
    EXPECT_EQ(this->disk_.MakeDirectory(this->On("C:\\Quake")).Number, 0);
    EXPECT_EQ(this->disk_.MakeDirectory(this->On("C:\\Quake\\id1")).Number, 0);
    EXPECT_EQ(this->disk_.ChangeDirectory(this->On("C:\\Quake\\id1")).Number, 0);
    EXPECT_EQ(this->disk_.CurrentDirectory(), this->On("C:\\Quake\\id1"));
    EXPECT_EQ(this->disk_.Replace("a.cfg", "x").Number, 0);
    EXPECT_EQ(this->disk_.Read("..\\ID1\\.\\A.CFG").Value, "x");
    EXPECT_EQ(this->disk_.ChangeDirectory("NONE").Number, 76);
    EXPECT_EQ(this->disk_.CurrentDirectory(), this->On("C:\\Quake\\id1"));
    EXPECT_EQ(this->disk_.ChangeDirectory("\\").Number, 0);
    EXPECT_EQ(this->disk_.CurrentDirectory(), this->On("C:\\"));
}

TYPED_TEST(AnyFiles, ChangeTheDriveByTheStartOfAPath) {
    EXPECT_EQ(this->disk_.MakeDirectory(this->On("C:\\Quake")).Number, 0);
    EXPECT_EQ(this->disk_.ChangeDirectory(this->On("C:\\Quake")).Number, 0);
    EXPECT_EQ(this->disk_.ChangeDrive(this->On("c:\\")).Number, 0);
    EXPECT_EQ(this->disk_.CurrentDirectory(), this->On("C:\\Quake"));
    EXPECT_EQ(this->disk_.ChangeDrive("Q:").Number, 68);
    EXPECT_EQ(this->disk_.ChangeDrive("").Number, 68);
    EXPECT_EQ(this->disk_.CurrentDirectory(), this->On("C:\\Quake"));
}

TYPED_TEST(AnyFiles, ProbeDrives) {
    EXPECT_EQ(this->disk_.ProbeDrive(this->On("C:")).Number, 0);
    EXPECT_EQ(this->disk_.ProbeDrive(this->On("c:\\")).Number, 0);
    EXPECT_EQ(this->disk_.ProbeDrive("Q:").Number, 68);
}

TYPED_TEST(AnyFiles, BringAPathToTheHostAndBack) {
    EXPECT_EQ(this->disk_.MakeDirectory(this->On("C:\\quake")).Number, 0);
    EXPECT_EQ(this->disk_.Replace(this->On("C:\\quake\\\xE9.cfg"), "x").Number, 0);
    EXPECT_EQ(this->disk_.FromHost(this->disk_.ToHost(this->On("C:\\quake\\\xE9.cfg"))),
              this->On("C:\\quake\\\xE9.cfg"));
}

TYPED_TEST(AnyFiles, WriteTheProgramsOwnFiles) {
    EXPECT_EQ(this->disk_.ReplaceOwn(this->On("C:\\LV_666.BAT"), "one").Number, 0);
    EXPECT_EQ(this->disk_.ReplaceOwn(this->On("C:\\lv_666.bat"), "two").Number, 0);
    EXPECT_EQ(this->disk_.Read(this->On("C:\\LV_666.BAT")).Value, "two");
    EXPECT_EQ(this->disk_.CopyOwn(this->On("C:\\lv_666.bat"), this->On("C:\\lv_666.pif")).Number, 0);
    EXPECT_EQ(this->disk_.Read(this->On("C:\\lv_666.pif")).Value, "two");
    const auto entries = this->disk_.List(this->On("C:\\"));
    ASSERT_EQ(entries.Value.size(), 4u);
}

TYPED_TEST(AnyFiles, TellWhyAnOwnFileIsNotWritten) {
    EXPECT_EQ(this->disk_.MakeDirectory(this->On("C:\\DIR")).Number, 0);
    EXPECT_EQ(this->disk_.ReplaceOwn(this->On("C:\\NONE\\A.QS"), "x").Number, 76);
    EXPECT_EQ(this->disk_.ReplaceOwn(this->On("C:\\DIR"), "x").Number, 75);
    EXPECT_EQ(this->disk_.CopyOwn(this->On("C:\\NONE"), this->On("C:\\A.QS")).Number, 53);
    EXPECT_EQ(this->disk_.CopyOwn(this->On("C:\\DIR"), this->On("C:\\A.QS")).Number, 75);
}

TYPED_TEST(AnyFiles, LeadNowhereElseWithoutALink) {
    EXPECT_EQ(this->disk_.MakeDirectory(this->On("C:\\QUAKE")).Number, 0);
    EXPECT_EQ(this->disk_.Replace(this->On("C:\\A.CFG"), "x").Number, 0);
    EXPECT_EQ(this->disk_.LeadsAway(this->On("C:\\A.CFG"), this->On("C:\\QUAKE")), "");
    EXPECT_EQ(this->disk_.LeadsAway(this->On("C:\\NEW.CFG"), this->On("C:\\QUAKE")), "");
    EXPECT_EQ(this->disk_.LeadsAway(this->On("C:\\NONE\\NEW.CFG"), "Q:\\"), "");
}

TYPED_TEST(AnyFiles, ListPlainFilesAsNoDevices) {
    EXPECT_EQ(this->disk_.MakeDirectory(this->On("C:\\DIR")).Number, 0);
    EXPECT_EQ(this->disk_.Replace(this->On("C:\\FILE"), "x").Number, 0);
    for (const DirectoryEntry& entry : this->disk_.List(this->On("C:\\")).Value) {
        EXPECT_FALSE(entry.IsDevice) << entry.Name;
    }
}

TYPED_TEST(AnyFiles, LinkAFileSpelledAsItIsSaid) {
    EXPECT_EQ(this->disk_.MakeDirectory(this->On("C:\\TREE")).Number, 0);
    EXPECT_EQ(this->disk_.MakeDirectory(this->On("C:\\OWN")).Number, 0);
    EXPECT_EQ(this->disk_.Replace(this->On("C:\\TREE\\PAK0.PAK"), "PACK").Number, 0);
    EXPECT_EQ(this->disk_.Link(this->On("C:\\TREE\\PAK0.PAK"), this->On("C:\\OWN\\pak0.pak")).Number, 0);
    EXPECT_EQ(this->disk_.Read(this->On("C:\\OWN\\pak0.pak")).Value, "PACK");
    EXPECT_TRUE(this->disk_.FileExists(this->On("C:\\OWN\\pak0.pak")));
    const auto entries = this->disk_.List(this->On("C:\\OWN"));
    ASSERT_EQ(entries.Value.size(), 3u);
    EXPECT_EQ(entries.Value[2].Name, "pak0.pak");
}

TYPED_TEST(AnyFiles, TellWhatALinkLeadsTo) {
    EXPECT_EQ(this->disk_.MakeDirectory(this->On("C:\\TREE")).Number, 0);
    EXPECT_EQ(this->disk_.Replace(this->On("C:\\TREE\\a.pak"), "a").Number, 0);
    EXPECT_EQ(this->disk_.Replace(this->On("C:\\TREE\\b.pak"), "a").Number, 0);
    EXPECT_EQ(this->disk_.Link(this->On("C:\\TREE\\a.pak"), this->On("C:\\link.pak")).Number, 0);
    EXPECT_TRUE(this->disk_.IsLinkTo(this->On("C:\\link.pak"), this->On("C:\\TREE\\a.pak")));
    EXPECT_FALSE(this->disk_.IsLinkTo(this->On("C:\\link.pak"), this->On("C:\\TREE\\b.pak")));
    EXPECT_FALSE(this->disk_.IsLinkTo(this->On("C:\\TREE\\a.pak"), this->On("C:\\TREE\\a.pak")));
    EXPECT_FALSE(this->disk_.IsLinkTo(this->On("C:\\none.pak"), this->On("C:\\TREE\\a.pak")));
    EXPECT_EQ(this->disk_.LeadsInto(this->On("C:\\TREE\\a.pak"), this->On("C:\\TREE")), "");
    EXPECT_EQ(this->disk_.LeadsInto(this->On("C:\\none.pak"), this->On("C:\\TREE")), "");
}

TYPED_TEST(AnyFiles, DeleteALinkAndLeaveItsFile) {
    EXPECT_EQ(this->disk_.Replace(this->On("C:\\a.pak"), "a").Number, 0);
    EXPECT_EQ(this->disk_.Link(this->On("C:\\a.pak"), this->On("C:\\b.pak")).Number, 0);
    EXPECT_EQ(this->disk_.Delete(this->On("C:\\b.pak")).Number, 0);
    EXPECT_EQ(this->disk_.Read(this->On("C:\\a.pak")).Value, "a");
    EXPECT_FALSE(this->disk_.FileExists(this->On("C:\\b.pak")));
}

TYPED_TEST(AnyFiles, RefuseALinkWhereThereIsNoFileOrNoRoom) {
    EXPECT_EQ(this->disk_.MakeDirectory(this->On("C:\\DIR")).Number, 0);
    EXPECT_EQ(this->disk_.Replace(this->On("C:\\a.pak"), "a").Number, 0);
    EXPECT_EQ(this->disk_.Replace(this->On("C:\\b.pak"), "b").Number, 0);
    EXPECT_EQ(this->disk_.Link(this->On("C:\\none.pak"), this->On("C:\\c.pak")).Number, 53);
    EXPECT_EQ(this->disk_.Link(this->On("C:\\DIR"), this->On("C:\\c.pak")).Number, 75);
    EXPECT_EQ(this->disk_.Link(this->On("C:\\a.pak"), this->On("C:\\B.PAK")).Number, 75);
    EXPECT_EQ(this->disk_.Link(this->On("C:\\a.pak"), this->On("C:\\NONE\\c.pak")).Number, 76);
    EXPECT_EQ(this->disk_.Read(this->On("C:\\b.pak")).Value, "b");
}

TYPED_TEST(AnyFiles, TellWhereFilesCanBeMade) {
    EXPECT_EQ(this->disk_.MakeDirectory(this->On("C:\\DIR")).Number, 0);
    EXPECT_EQ(this->disk_.Replace(this->On("C:\\a.pak"), "a").Number, 0);
    EXPECT_TRUE(this->disk_.CanWrite(this->On("C:\\DIR")));
    EXPECT_TRUE(this->disk_.CanWrite(this->On("C:\\")));
    EXPECT_FALSE(this->disk_.CanWrite(this->On("C:\\a.pak")));
    EXPECT_FALSE(this->disk_.CanWrite(this->On("C:\\NONE")));
}

}  // namespace lv
