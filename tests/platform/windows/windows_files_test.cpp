#include "platform/windows/windows_files.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/windows/system.h"
#include "this_system.h"

namespace lv {

namespace {

using Names = std::vector<std::string>;

Names NamesOf(const std::vector<DirectoryEntry>& entries) {
    Names names;
    for (const DirectoryEntry& entry : entries) {
        names.push_back(entry.Name + (entry.IsDirectory ? "\\" : ""));
    }
    std::sort(names.begin(), names.end());
    return names;
}

// As a disk that keeps none.
std::wstring NoShortName(const std::wstring&) {
    return {};
}

// Keeps a file open, as the program does that made it.
class HeldOpen {
  public:
    HeldOpen(const std::wstring& file, DWORD shared)
        : handle_(CreateFileW(file.c_str(), GENERIC_READ, shared, nullptr, OPEN_EXISTING, 0, nullptr)) {}
    ~HeldOpen() { CloseHandle(handle_); }
    HeldOpen(const HeldOpen&) = delete;
    HeldOpen& operator=(const HeldOpen&) = delete;

  private:
    HANDLE handle_;
};

// A directory whose whole path has more than 260 characters.
std::string MakeDeepDirectory(Files& disk) {
    std::string path = "T:";
    for (int i = 0; i < 10; ++i) {
        path += "\\" + std::string(40, 'd');
        EXPECT_EQ(disk.MakeDirectory(path).Number, 0) << i;
    }
    return path;
}

}  // namespace

TEST(WindowsFiles, KnowTheSystemsDrives) {
    SystemDisk made;
    const Names drives = made.Disk.Drives();
    EXPECT_NE(std::find(drives.begin(), drives.end(), "C:"), drives.end());
    EXPECT_NE(std::find(drives.begin(), drives.end(), "T:"), drives.end());
    EXPECT_EQ(std::find(drives.begin(), drives.end(), "Q:"), drives.end());
    EXPECT_TRUE(std::is_sorted(drives.begin(), drives.end()));
}

TEST(WindowsFiles, ListNamesThatCannotBeSaidByTheirShortOnes) {
    SystemDisk made;
    WriteBytes(L"T:\\a.pak", "");
    WriteBytes(L"T:\\\u65E5\u672C.cfg", "found");
    WriteBytes(L"T:\\\u00E9\u20AC", "");
    const Names names = NamesOf(made.Disk.List("T:\\").Value);
    ASSERT_EQ(names.size(), 5u);
    EXPECT_TRUE(std::ranges::includes(names, Names{"..\\", ".\\", "a.pak", "\xE9\x80"}));
    const auto shortName =
        std::ranges::find_if(names, [](const std::string& name) { return name.find('~') != std::string::npos; });
    ASSERT_NE(shortName, names.end());
    EXPECT_EQ(made.Disk.Read("T:\\" + *shortName).Value, "found");
}

TEST(WindowsFiles, ReplaceAFileByItsShortNameAndKeepTheLong) {
    SystemDisk made;
    WriteBytes(L"T:\\\u65E5\u672C.cfg", "old");
    const std::string path = made.Disk.FromHost("T:\\\xE6\x97\xA5\xE6\x9C\xAC.cfg");
    EXPECT_EQ(made.Disk.Replace(path, "new").Number, 0);
    EXPECT_EQ(BytesOf(L"T:\\\u65E5\u672C.cfg"), "new");
    EXPECT_EQ(made.Disk.ReplaceOwn(made.Disk.FromHost("T:\\\xE6\x97\xA5\xE6\x9C\xAC.cfg"), "own").Number, 0);
    EXPECT_EQ(BytesOf(L"T:\\\u65E5\u672C.cfg"), "own");
}

TEST(WindowsFiles, WriteNamesInCodePage1252) {
    SystemDisk made;
    EXPECT_EQ(made.Disk.Replace("T:\\\x8CUF \x80.cfg", "x").Number, 0);
    EXPECT_EQ(BytesOf(L"T:\\\u0152UF \u20AC.cfg"), "x");
}

TEST(WindowsFiles, ReachPathsOfMoreThan260Characters) {
    SystemDisk made;
    const std::string deep = MakeDeepDirectory(made.Disk);
    EXPECT_GT(deep.size(), 400u);
    EXPECT_TRUE(made.Disk.DirectoryExists(deep));
    EXPECT_EQ(made.Disk.Replace(deep + "\\a.cfg", "old").Number, 0);
    EXPECT_EQ(made.Disk.Replace(deep + "\\A.CFG", "new").Number, 0);
    EXPECT_EQ(made.Disk.Read(deep + "\\a.cfg").Value, "new");
    EXPECT_EQ(NamesOf(made.Disk.List(deep).Value), (Names{"..\\", ".\\", "a.cfg"}));
    EXPECT_EQ(made.Disk.Copy(deep + "\\a.cfg", "T:\\copy.cfg").Number, 0);
    EXPECT_EQ(made.Disk.ChangeDirectory(deep).Number, 0);
    EXPECT_EQ(made.Disk.Read("a.cfg").Value, "new");
    EXPECT_EQ(made.Disk.Delete(deep + "\\a.cfg").Number, 0);
    EXPECT_EQ(made.Disk.RemoveDirectory(deep).Number, 0);
}

TEST(WindowsFiles, KeepAReadOnlyFile) {
    SystemDisk made;
    WriteBytes(L"T:\\readonly.cfg", "old");
    SetFileAttributesW(L"T:\\readonly.cfg", FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(made.Disk.Replace("T:\\readonly.cfg", "new").Number, 75);
    EXPECT_EQ(made.Disk.Delete("T:\\readonly.cfg").Number, 75);
    EXPECT_EQ(BytesOf(L"T:\\readonly.cfg"), "old");
}

TEST(WindowsFiles, SayThatAFileInUseIsNotForThem) {
    SystemDisk made;
    WriteBytes(L"T:\\used.cfg", "old");
    const HeldOpen held(L"T:\\used.cfg", 0);
    EXPECT_EQ(made.Disk.Read("T:\\used.cfg").Fault.Number, 70);
    EXPECT_EQ(made.Disk.Delete("T:\\used.cfg").Number, 70);
    EXPECT_EQ(made.Disk.Replace("T:\\used.cfg", "new").Number, 70);
    EXPECT_EQ(NamesOf(made.Disk.List("T:\\").Value), (Names{"..\\", ".\\", "used.cfg"}));
}

TEST(WindowsFiles, ReadWhatAnotherProgramIsWriting) {
    SystemDisk made;
    WriteBytes(L"T:\\log.txt", "so far");
    const HeldOpen held(L"T:\\log.txt", FILE_SHARE_READ | FILE_SHARE_WRITE);
    EXPECT_EQ(made.Disk.Read("T:\\log.txt").Value, "so far");
}

TEST(WindowsFiles, LeaveNothingBesideAReplacedFile) {
    SystemDisk made;
    EXPECT_EQ(made.Disk.Replace("T:\\a.cfg", "old").Number, 0);
    EXPECT_EQ(made.Disk.Replace("T:\\a.cfg", "new").Number, 0);
    EXPECT_EQ(made.Disk.Copy("T:\\a.cfg", "T:\\b.cfg").Number, 0);
    EXPECT_EQ(NamesOf(made.Disk.List("T:\\").Value), (Names{"..\\", ".\\", "a.cfg", "b.cfg"}));
}

TEST(WindowsFiles, TakeNoNameForAPattern) {
    SystemDisk made;
    EXPECT_EQ(made.Disk.Replace("T:\\a.cfg", "mine").Number, 0);
    for (const char* name : {"<", ">", "a:b", "a\"cfg", "a|b", "?.cfg", "*.cfg", "*\\a.cfg"}) {
        const std::string path = std::string("T:\\") + name;
        EXPECT_EQ(made.Disk.Replace(path, "x").Number, 52) << name;
        EXPECT_EQ(made.Disk.Copy("T:\\a.cfg", path).Number, 52) << name;
        EXPECT_EQ(made.Disk.Copy(path, "T:\\a.cfg").Number, 52) << name;
        EXPECT_EQ(made.Disk.Delete(path).Number, 52) << name;
        EXPECT_EQ(made.Disk.Read(path).Fault.Number, 52) << name;
        EXPECT_EQ(made.Disk.Open(path).Fault.Number, 52) << name;
        EXPECT_EQ(made.Disk.MakeDirectory(path).Number, 52) << name;
    }
    EXPECT_EQ(made.Disk.Delete("T:\\*").Text, "Bad file name or number");
    EXPECT_EQ(NamesOf(made.Disk.List("T:\\").Value), (Names{"..\\", ".\\", "a.cfg"}));
    EXPECT_EQ(BytesOf(L"T:\\a.cfg"), "mine");
}

TEST(WindowsFiles, TakeADeviceForNoFile) {
    SystemDisk made;
    EXPECT_EQ(made.Disk.Read("T:\\NUL").Fault.Number, 75);
    EXPECT_EQ(made.Disk.Open("T:\\NUL").Fault.Number, 75);
}

TEST(WindowsFiles, TakeAFileForADirectoryNowhere) {
    SystemDisk made;
    EXPECT_EQ(made.Disk.Replace("T:\\file", "x").Number, 0);
    EXPECT_EQ(made.Disk.Read("T:\\file\\a").Fault.Number, 76);
    EXPECT_EQ(made.Disk.Replace("T:\\file\\a", "x").Number, 76);
    EXPECT_EQ(made.Disk.MakeDirectory("T:\\file\\a").Number, 76);
    EXPECT_EQ(made.Disk.Replace("T:\\new\\", "x").Number, 75);
}

TEST(WindowsFiles, RemoveNoDrive) {
    SystemDisk made;
    EXPECT_EQ(made.Disk.RemoveDirectory("T:\\").Number, 75);
    EXPECT_EQ(made.Disk.Replace("T:\\", "x").Number, 75);
}

TEST(WindowsFiles, StartInTheProcesssDirectoryAndLeaveItAlone) {
    SystemDisk made;
    EXPECT_EQ(made.Disk.MakeDirectory("T:\\Quake").Number, 0);
    wchar_t before[MAX_PATH];
    GetCurrentDirectoryW(MAX_PATH, before);
    EXPECT_EQ(WindowsFiles().ToHost("."), WindowsFiles().CurrentDirectory());
    EXPECT_EQ(made.Disk.ChangeDirectory("T:\\QUAKE").Number, 0);
    EXPECT_EQ(made.Disk.CurrentDirectory(), "T:\\Quake");
    wchar_t after[MAX_PATH];
    GetCurrentDirectoryW(MAX_PATH, after);
    EXPECT_STREQ(after, before);
}

TEST(WindowsFiles, KnowWhereTheProgramLies) {
    SystemDisk made;
    const std::string program = made.Disk.ProgramDirectory();
    EXPECT_TRUE(made.Disk.FileExists(program + "\\lv_platform_tests.exe")) << program;
}

TEST(WindowsFiles, ReadWhatLiesBesideAProgramThatCannotBeSaid) {
    SystemDisk made;
    CreateDirectoryW(L"T:\\\u65E5", nullptr);
    WriteBytes(L"T:\\\u65E5\\lv_666.hid", "beside");
    WindowsFiles disk(L"T:\\\u65E5", NoShortName);
    const std::string program = disk.ProgramDirectory();
    EXPECT_EQ(program, "\\\\?\\lorvane3d");
    EXPECT_EQ(disk.Read(program + "\\lv_666.hid").Value, "beside");
    EXPECT_TRUE(disk.DirectoryExists(program));
    EXPECT_EQ(disk.ToHost(program + "\\lv_666.hid"), "T:\\\xE6\x97\xA5\\lv_666.hid");
    EXPECT_EQ(disk.Copy(program + "\\lv_666.hid", "T:\\copy").Number, 0);
    EXPECT_EQ(BytesOf(L"T:\\copy"), "beside");
}

TEST(WindowsFiles, KnowTheUsersHomeAndTakeTypedPathsAsTheyAre) {
    SystemDisk made;
    EXPECT_TRUE(made.Disk.DirectoryExists(made.Disk.UserHome())) << made.Disk.UserHome();
    EXPECT_EQ(made.Disk.FromTyped("~"), "~");
    EXPECT_EQ(made.Disk.FromTyped("/QUAKE"), "/QUAKE");
}

TEST(WindowsFiles, TellAPathThatNoDriveCanSay) {
    SystemDisk made;
    EXPECT_EQ(made.Disk.FromHost("T:\\new.cfg"), "T:\\new.cfg");
    EXPECT_EQ(made.Disk.FromHost("T:\\\xE6\x97\xA5.cfg"), "");
    EXPECT_EQ(made.Disk.FromHost("relative"), "");
    EXPECT_EQ(made.Disk.FromHost(""), "");
    EXPECT_EQ(made.Disk.FromHost("\xFF"), "");
}

TEST(WindowsFiles, TellWhyAPathCannotBeSaid) {
    SystemDisk made;
    WriteBytes(L"T:\\\u65E5.cfg", "");
    EXPECT_NE(made.Disk.FromHost("T:\\\xE6\x97\xA5.cfg"), "");
    EXPECT_EQ(WindowsFiles(L"C:\\", NoShortName).WhyNotFromHost("T:/\xE6\x97\xA5.cfg").Text,
              "These games can't read the letters that stand as ? here: T:\\?.cfg. Drive T: keeps no short name, like "
              "GAMES~1, to stand for them. Rename the file or the directory; or let the drive keep short names (as an "
              "administrator: fsutil 8dot3name set T: 0), and then rename it to something else and back.");
    EXPECT_EQ(made.Disk.WhyNotFromHost("").Text, "this file lies on none of the drives");
}

TEST(WindowsFiles, RemoveWhatEndedWritersHaveLeft) {
    SystemDisk made;
    constexpr const char* kLeft = "T:\\.lv_666_4294967280_0";  // no process has such a number
    constexpr const char* kNone = "T:\\.lv_666_4294967280_x";
    EXPECT_EQ(made.Disk.Replace(kNone, "x").Number, 0);
    EXPECT_EQ(made.Disk.Replace(kLeft, "half").Number, 0);
    EXPECT_TRUE(made.Disk.FileExists(kLeft));
    EXPECT_EQ(made.Disk.Replace("T:\\a.cfg", "new").Number, 0);
    EXPECT_FALSE(made.Disk.FileExists(kLeft));
    EXPECT_TRUE(made.Disk.FileExists(kNone));
}

}  // namespace lv
