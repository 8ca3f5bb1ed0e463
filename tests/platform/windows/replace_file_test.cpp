#include "platform/windows/replace_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "platform/windows/file_read.h"
#include "tests/support/windows/test_drive.h"

namespace lv {

namespace {

Error Put(const std::wstring& path, std::string_view bytes) {
    return ReplaceSystemFile(path, [bytes](HANDLE made) { return WriteAll(made, bytes); });
}

Error PutOwn(const std::wstring& path, std::string_view bytes) {
    return ReplaceOwnSystemFile(path, [bytes](HANDLE made) { return WriteAll(made, bytes); });
}

/// What stands on the drive.
std::vector<std::string> Names() {
    std::vector<std::string> names;
    for (const DirectoryEntry& entry : ListSystemDirectory(L"T:\\").Value) {
        if (!entry.Name.starts_with('.') || entry.Name.size() > 2) {
            names.push_back(entry.Name);
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

using NameList = std::vector<std::string>;

}  // namespace

TEST(ReplaceSystemFile, MakesAndReplaces) {
    const TestDrive drive;
    EXPECT_EQ(Put(L"T:\\a.cfg", "one").Number, 0);
    EXPECT_EQ(BytesOf(L"T:\\a.cfg"), "one");
    EXPECT_EQ(Put(L"T:\\a.cfg", "").Number, 0);
    EXPECT_EQ(BytesOf(L"T:\\a.cfg"), "");
    EXPECT_EQ(Names(), NameList{"a.cfg"});
}

TEST(ReplaceSystemFile, PutsAnotherFileInTheOldOnesPlace) {
    const TestDrive drive;
    WriteBytes(L"T:\\a.cfg", "old");
    ASSERT_NE(CreateHardLinkW(L"T:\\still the old one", L"T:\\a.cfg", nullptr), 0);
    EXPECT_EQ(Put(L"T:\\a.cfg", "new").Number, 0);
    EXPECT_EQ(BytesOf(L"T:\\a.cfg"), "new");
    EXPECT_EQ(BytesOf(L"T:\\still the old one"), "old");
}

TEST(ReplaceSystemFile, KeepsTheSpellingOfTheName) {
    const TestDrive drive;
    WriteBytes(L"T:\\Config.CFG", "old");
    EXPECT_EQ(Put(L"T:\\config.cfg", "new").Number, 0);
    EXPECT_EQ(PutOwn(L"T:\\CONFIG.cfg", "own").Number, 0);
    EXPECT_EQ(Names(), NameList{"Config.CFG"});
}

TEST(ReplaceSystemFile, KeepsTheAttributesOfTheOldFile) {
    const TestDrive drive;
    WriteBytes(L"T:\\a.cfg", "old");
    SetFileAttributesW(L"T:\\a.cfg", FILE_ATTRIBUTE_HIDDEN);
    EXPECT_EQ(Put(L"T:\\a.cfg", "new").Number, 0);
    EXPECT_EQ(BytesOf(L"T:\\a.cfg"), "new");
    EXPECT_NE(GetFileAttributesW(L"T:\\a.cfg") & FILE_ATTRIBUTE_HIDDEN, 0u);
}

TEST(ReplaceSystemFile, RefusesADirectoryAndAReadOnlyFile) {
    const TestDrive drive;
    CreateDirectoryW(L"T:\\directory", nullptr);
    WriteBytes(L"T:\\mine.cfg", "mine");
    SetFileAttributesW(L"T:\\mine.cfg", FILE_ATTRIBUTE_READONLY);
    for (const wchar_t* const path : {L"T:\\directory", L"T:\\mine.cfg"}) {
        EXPECT_EQ(Put(path, "x").Number, 75);
        EXPECT_EQ(PutOwn(path, "x").Number, 75);
    }
    EXPECT_EQ(BytesOf(L"T:\\mine.cfg"), "mine");
    EXPECT_EQ(Names(), (NameList{"directory", "mine.cfg"}));
}

TEST(ReplaceSystemFile, TellsADirectoryThatIsNotThere) {
    const TestDrive drive;
    EXPECT_EQ(Put(L"T:\\none\\a.cfg", "x").Number, 76);
    EXPECT_EQ(PutOwn(L"T:\\none\\a.cfg", "x").Number, 76);
}

TEST(ReplaceSystemFile, LeavesTheOldFileAndNothingElseWhenFillingFails) {
    const TestDrive drive;
    WriteBytes(L"T:\\a.cfg", "old");
    const auto fill = [](HANDLE made) -> DWORD {
        (void)WriteAll(made, "half");
        return ERROR_DISK_FULL;
    };
    EXPECT_EQ(ReplaceSystemFile(L"T:\\a.cfg", fill).Number, 61);
    EXPECT_EQ(ReplaceOwnSystemFile(L"T:\\a.cfg", fill).Number, 61);
    EXPECT_EQ(BytesOf(L"T:\\a.cfg"), "old");
    EXPECT_EQ(Names(), NameList{"a.cfg"});
}

TEST(ReplaceSystemFile, RemovesWhatEndedWritersHaveLeft) {
    const TestDrive drive;
    WriteBytes(L"T:\\.lv_666_4294967280_0", "half");  // no process has such a number
    EXPECT_EQ(Put(L"T:\\a.cfg", "new").Number, 0);
    EXPECT_EQ(Names(), NameList{"a.cfg"});
}

TEST(ReplaceOwnSystemFile, MakesAndReplaces) {
    const TestDrive drive;
    EXPECT_EQ(PutOwn(L"T:\\a.bat", "one").Number, 0);
    SetFileAttributesW(L"T:\\a.bat", FILE_ATTRIBUTE_HIDDEN);
    EXPECT_EQ(PutOwn(L"T:\\a.bat", "two").Number, 0);
    EXPECT_EQ(BytesOf(L"T:\\a.bat"), "two");
    EXPECT_EQ(GetFileAttributesW(L"T:\\a.bat") & FILE_ATTRIBUTE_HIDDEN, 0u) << "it is a new one";
    EXPECT_EQ(Names(), NameList{"a.bat"});
}

TEST(WriteAll, TellsWhyItCouldNot) {
    const TestDrive drive;
    WriteBytes(L"T:\\a.cfg", "old");
    const FileHandle read(CreateFileW(L"T:\\a.cfg", GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    EXPECT_EQ(WriteAll(read.Get(), "x"), static_cast<DWORD>(ERROR_ACCESS_DENIED));
    EXPECT_EQ(WriteAll(read.Get(), ""), static_cast<DWORD>(ERROR_SUCCESS));
}

}  // namespace lv
