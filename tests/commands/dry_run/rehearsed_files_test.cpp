#include "commands/dry_run/rehearsed_files.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_platform.h"

namespace lv {
namespace {

struct RehearsedFilesTest : ::testing::Test {
    RehearsedFilesTest() {
        below.AddFile("C:\\QUAKE\\old.cfg", "old");
        below.AddDirectory("C:\\QUAKE\\ID1");
        writes = below.Log.size();
    }
    ~RehearsedFilesTest() override { EXPECT_EQ(below.Log.size(), writes) << "the disk was touched"; }

    MemoryFiles below;
    std::size_t writes = 0;
};

TEST_F(RehearsedFilesTest, WhatIsWrittenIsReadBackAndNotOnTheDisk) {
    RehearsedFiles disk(below);
    EXPECT_FALSE(disk.Replace("C:\\QUAKE\\new.cfg", "one"));
    EXPECT_FALSE(disk.ReplaceOwn("c:\\quake\\NEW.cfg", "two"));
    EXPECT_EQ(disk.Read("C:\\Quake\\new.cfg").Value, "two");
    EXPECT_TRUE(disk.FileExists("C:\\QUAKE\\NEW.CFG"));
    EXPECT_FALSE(below.FileExists("C:\\QUAKE\\new.cfg"));
    ASSERT_EQ(disk.Changes().size(), 1U);
    EXPECT_EQ(disk.Changes()[0].Bytes, "two");
}

TEST_F(RehearsedFilesTest, AnOpenFileHasTheWrittenBytes) {
    RehearsedFiles disk(below);
    (void)disk.Replace("C:\\QUAKE\\old.cfg", "0123456789");
    const auto file = disk.Open("C:\\QUAKE\\old.cfg");
    ASSERT_TRUE(file.Ok());
    EXPECT_EQ(file.Value->Size(), 10U);
    EXPECT_EQ(file.Value->Read(8, 10).Value, "89");
    EXPECT_EQ(file.Value->Read(20, 1).Value, "");
    EXPECT_EQ(disk.Open("C:\\QUAKE\\none").Fault.Number, error::kFileNotFound);
}

TEST_F(RehearsedFilesTest, WhatIsDeletedIsGoneAndStaysOnTheDisk) {
    RehearsedFiles disk(below);
    EXPECT_FALSE(disk.Delete("C:\\QUAKE\\old.cfg"));
    EXPECT_FALSE(disk.FileExists("C:\\QUAKE\\old.cfg"));
    EXPECT_EQ(disk.Read("C:\\QUAKE\\old.cfg").Fault.Number, error::kFileNotFound);
    EXPECT_EQ(disk.Delete("C:\\QUAKE\\old.cfg").Number, error::kFileNotFound);
    EXPECT_TRUE(below.FileExists("C:\\QUAKE\\old.cfg"));
}

TEST_F(RehearsedFilesTest, ALinkOfTheRehearsalIsNoPlainFile) {
    RehearsedFiles disk(below);
    (void)disk.Replace("C:\\QUAKE\\new.cfg", "x");
    (void)disk.Link("C:\\QUAKE\\old.cfg", "C:\\QUAKE\\link.cfg");
    EXPECT_TRUE(disk.IsPlainFile("C:\\QUAKE\\old.cfg"));
    EXPECT_TRUE(disk.IsPlainFile("C:\\QUAKE\\new.cfg"));
    EXPECT_FALSE(disk.IsPlainFile("C:\\QUAKE\\link.cfg"));
    (void)disk.Delete("C:\\QUAKE\\old.cfg");
    EXPECT_FALSE(disk.IsPlainFile("C:\\QUAKE\\old.cfg"));
}

TEST_F(RehearsedFilesTest, AFileOfTheRehearsalThatIsDeletedAgainIsNoChange) {
    RehearsedFiles disk(below);
    (void)disk.Replace("C:\\QUAKE\\new.cfg", "x");
    EXPECT_FALSE(disk.Delete("C:\\QUAKE\\new.cfg"));
    EXPECT_TRUE(disk.Changes().empty());
}

TEST_F(RehearsedFilesTest, CopiesAndLinks) {
    RehearsedFiles disk(below);
    EXPECT_FALSE(disk.CopyOwn("C:\\QUAKE\\old.cfg", "C:\\QUAKE\\ID1\\a.cfg"));
    EXPECT_EQ(disk.Read("C:\\QUAKE\\ID1\\a.cfg").Value, "old");
    EXPECT_FALSE(disk.Link("C:\\QUAKE\\old.cfg", "C:\\QUAKE\\ID1\\b.cfg"));
    EXPECT_EQ(disk.Read("C:\\QUAKE\\ID1\\b.cfg").Value, "old");
    EXPECT_TRUE(disk.IsLinkTo("C:\\QUAKE\\ID1\\b.cfg", "c:\\quake\\OLD.cfg"));
    EXPECT_EQ(disk.Link("C:\\QUAKE\\gone", "C:\\QUAKE\\c").Number, error::kFileNotFound);
    EXPECT_EQ(disk.Link("C:\\QUAKE\\old.cfg", "C:\\QUAKE\\ID1\\b.cfg").Number, error::kPathFileAccess);
}

TEST_F(RehearsedFilesTest, DirectoriesAreMadeInMemory) {
    RehearsedFiles disk(below);
    EXPECT_EQ(disk.Replace("C:\\NEW\\a.cfg", "x").Number, error::kPathNotFound);
    EXPECT_FALSE(disk.MakeDirectory("C:\\NEW"));
    EXPECT_FALSE(disk.Replace("C:\\NEW\\a.cfg", "x"));
    EXPECT_EQ(disk.MakeDirectory("C:\\QUAKE").Number, error::kPathFileAccess);
    EXPECT_FALSE(disk.RemoveDirectory("C:\\NEW"));
    EXPECT_FALSE(disk.DirectoryExists("C:\\NEW"));
    EXPECT_FALSE(below.DirectoryExists("C:\\NEW"));
}

TEST_F(RehearsedFilesTest, WhatTheDiskWouldRefuseIsRefused) {
    below.ReadOnly.insert("c:\\quake");
    RehearsedFiles disk(below);
    EXPECT_EQ(disk.Replace("C:\\QUAKE\\a.cfg", "x").Number, error::kPermissionDenied);
    EXPECT_EQ(disk.Replace("C:\\QUAKE\\ID1", "x").Number, error::kPathFileAccess);
}

TEST_F(RehearsedFilesTest, APathWithoutADriveIsOfTheCurrentDirectoryWhichComesBack) {
    const std::string before = below.CurrentDirectory();
    {
        RehearsedFiles disk(below);
        ASSERT_FALSE(disk.ChangeDrive("C:"));
        ASSERT_FALSE(disk.ChangeDirectory("C:\\QUAKE"));
        (void)disk.Replace("new.cfg", "x");
        EXPECT_TRUE(disk.FileExists("C:\\QUAKE\\new.cfg"));
    }
    EXPECT_EQ(below.CurrentDirectory(), before);
}

TEST_F(RehearsedFilesTest, ChangesStandInTheOrderOfTheirFiles) {
    RehearsedFiles disk(below);
    (void)disk.Replace("C:\\QUAKE\\z", "1");
    (void)disk.Replace("C:\\QUAKE\\a", "1");
    (void)disk.Replace("C:\\QUAKE\\z", "2");
    ASSERT_EQ(disk.Changes().size(), 2U);
    EXPECT_EQ(disk.Changes()[0].Path, "C:\\QUAKE\\z");
    EXPECT_EQ(disk.Changes()[0].Bytes, "2");
}

}  // namespace
}  // namespace lv
