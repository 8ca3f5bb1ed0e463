#include "platform/windows/file_read.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/windows/system.h"
#include "tests/support/windows/test_drive.h"

namespace lv {

namespace {

using Names = std::vector<std::string>;

Names NamesOf(const std::vector<DirectoryEntry>& entries) {
    Names names;
    for (const DirectoryEntry& entry : entries) {
        names.push_back(entry.Name + (entry.IsDirectory ? "\\" : ""));
    }
    std::sort(names.begin() + std::min<std::ptrdiff_t>(2, std::ssize(names)), names.end());
    return names;
}

struct FileRead : testing::Test {
    FileRead() {
        CreateDirectoryW(L"T:\\Quake", nullptr);
        WriteBytes(L"T:\\Quake\\a.cfg", "abcdef");
    }
    TestDrive Drive;
};

}  // namespace

TEST_F(FileRead, TellsAMissingFileFromAMissingDirectory) {
    EXPECT_EQ(OpenPlainFile(L"T:\\Quake\\none").Fault.Number, 53);
    EXPECT_EQ(OpenPlainFile(L"T:\\none\\none").Fault.Number, 76);
    EXPECT_EQ(OpenPlainFileAnywhere(L"T:\\Quake\\none").Fault.Number, 53);
}

TEST_F(FileRead, RefusesADirectoryAndADevice) {
    EXPECT_EQ(OpenPlainFile(L"T:\\Quake").Fault.Number, 75);
    EXPECT_EQ(OpenPlainFile(L"NUL").Fault.Number, 75);
    EXPECT_EQ(OpenPlainFileAnywhere(L"T:\\Quake").Fault.Number, 75);
}

TEST_F(FileRead, GivesTheRestOfTheFile) {
    const auto file = OpenPlainFile(L"T:\\QUAKE\\A.CFG");
    ASSERT_TRUE(file.Ok());
    SetFilePointer(file.Value->Get(), 2, nullptr, FILE_BEGIN);
    EXPECT_EQ(ReadToEnd(file.Value->Get()).Value, "cdef");
    EXPECT_EQ(ReadToEnd(file.Value->Get()).Value, "");
}

TEST_F(FileRead, GivesAnEmptyFile) {
    WriteBytes(L"T:\\empty", "");
    const auto file = OpenPlainFile(L"T:\\empty");
    ASSERT_TRUE(file.Ok());
    const auto bytes = ReadToEnd(file.Value->Get());
    EXPECT_TRUE(bytes.Ok());
    EXPECT_EQ(bytes.Value, "");
}

TEST_F(FileRead, ReadsStretchesAndNothingBehindTheEnd) {
    const auto file = OpenPlainFileAnywhere(L"T:\\Quake\\a.cfg");
    ASSERT_TRUE(file.Ok());
    EXPECT_EQ(file.Value->Size(), 6u);
    EXPECT_EQ(file.Value->Read(4, 100).Value, "ef");
    EXPECT_EQ(file.Value->Read(0, 3).Value, "abc");
    EXPECT_EQ(file.Value->Read(6, 1).Value, "");
    EXPECT_EQ(file.Value->Read(1u << 20, 1).Value, "");
}

TEST_F(FileRead, ListsADirectoryWithTheTwoFirst) {
    CreateDirectoryW(L"T:\\Quake\\id1", nullptr);
    EXPECT_EQ(NamesOf(ListSystemDirectory(L"T:\\QUAKE").Value), (Names{".\\", "..\\", "a.cfg", "id1\\"}));
    EXPECT_EQ(NamesOf(ListSystemDirectory(L"T:\\QUAKE\\").Value), (Names{".\\", "..\\", "a.cfg", "id1\\"}));
}

TEST_F(FileRead, ListsTheTwoAtADrivesRootToo) {
    EXPECT_EQ(NamesOf(ListSystemDirectory(L"T:\\").Value), (Names{".\\", "..\\", "Quake\\"}));
}

TEST_F(FileRead, ListsNoDirectoryThatIsNotThere) {
    EXPECT_EQ(ListSystemDirectory(L"T:\\none").Fault.Number, 76);
    EXPECT_EQ(ListSystemDirectory(L"T:\\Quake\\a.cfg").Fault.Number, 76);
}

TEST_F(FileRead, KnowsADirectoryByAnyPathToIt) {
    CreateDirectoryW(L"T:\\other", nullptr);
    const auto quake = IdentityOfDirectory(L"T:\\Quake");
    ASSERT_TRUE(quake.Ok());
    EXPECT_EQ(IdentityOfDirectory(L"T:\\other\\..\\QUAKE").Value, quake.Value);
    EXPECT_NE(IdentityOfDirectory(L"T:\\other").Value, quake.Value);
}

TEST_F(FileRead, GivesNoIdentityToWhatIsNoDirectory) {
    EXPECT_EQ(IdentityOfDirectory(L"T:\\Quake\\a.cfg").Fault.Number, 76);
    EXPECT_EQ(IdentityOfDirectory(L"T:\\none").Fault.Number, 76);
}

TEST_F(FileRead, KnowsAFileByEachOfItsNames) {
    WriteBytes(L"T:\\same.cfg", "abcdef");
    ASSERT_NE(CreateHardLinkW(L"T:\\linked.cfg", L"T:\\Quake\\a.cfg", nullptr), 0);
    EXPECT_TRUE(IsSameFile(L"T:\\Quake\\a.cfg", L"T:\\QUAKE\\A.CFG"));
    EXPECT_TRUE(IsSameFile(L"T:\\linked.cfg", L"T:\\Quake\\a.cfg"));
    EXPECT_FALSE(IsSameFile(L"T:\\same.cfg", L"T:\\Quake\\a.cfg"));
    EXPECT_FALSE(IsSameFile(L"T:\\none", L"T:\\none"));
    EXPECT_FALSE(IsSameFile(L"T:\\Quake", L"T:\\Quake"));
}

TEST_F(FileRead, SpellsANameAsItIsFound) {
    EXPECT_EQ(NameAsFound(L"T:\\QUAKE"), L"Quake");
    EXPECT_EQ(NameAsFound(L"T:\\QUAKE\\A.CFG"), L"a.cfg");
    EXPECT_EQ(NameAsFound(L"T:\\QUAKE\\None.Cfg"), L"None.Cfg");
    for (const wchar_t* const pattern : {L"*", L"?.cfg", L"<", L">", L"a\"cfg"}) {
        EXPECT_EQ(NameAsFound(std::wstring(L"T:\\Quake\\") + pattern), pattern);
    }
}

}  // namespace lv
