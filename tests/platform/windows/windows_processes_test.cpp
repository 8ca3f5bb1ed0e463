#include "platform/windows/windows_processes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "platform/windows/system.h"
#include "platform/windows/wide_text.h"
#include "tests/support/test_paths.h"
#include "tests/support/windows/own_window.h"
#include "this_system.h"

namespace lv {

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::MatchesRegex;

// A game directory T:\QUAKE whose game says where and how it was started.
struct Yard {
    Yard() {
        EXPECT_EQ(Made.Disk.MakeDirectory("T:\\QUAKE").Number, 0);
        CopyGame("T:\\QUAKE\\GAME.EXE");
    }
    void CopyGame(const std::string& to) {
        const std::wstring game = ToWide(Made.Disk.ProgramDirectory() + "\\..\\standins\\show_windows.exe");
        EXPECT_NE(CopyFileW(game.c_str(), ToWide(to).c_str(), FALSE), 0) << GetLastError();
    }
    /// The lines of output.txt once it is complete.
    static std::vector<std::string> Said(const std::wstring& file = L"T:\\QUAKE\\output.txt") {
        WaitUntil([&] { return BytesOf(file).ends_with("end\n"); });
        std::vector<std::string> lines;
        std::string line;
        for (const char c : BytesOf(file)) {
            if (c == '\n') {
                lines.push_back(line);
                line.clear();
            } else {
                line += c;
            }
        }
        return lines;
    }

    SystemDisk Made;
    WindowsProcesses Programs{Made.Disk};
};

std::vector<std::string> After(const std::string& start, const std::vector<std::string>& lines) {
    std::vector<std::string> found;
    for (const std::string& line : lines) {
        if (line.starts_with(start)) {
            found.push_back(line.substr(start.size()));
        }
    }
    return found;
}

// Wine names what lies on no drive by such paths, and the program takes them for a network's.
std::wstring BuildDirectoryAsAShare() {
    std::wstring share = L"\\\\?\\unix";
    for (const char c : TestBinaryDir()) {
        share += c == '/' ? L'\\' : static_cast<wchar_t>(c);
    }
    return share;
}

}  // namespace

TEST(StartBatch, StartsTheGameWithItsDirectoryArgumentsAndEnvironment) {
    Yard yard;
    EXPECT_EQ(yard.Made.Disk
                  .Replace("T:\\QUAKE\\lv_666.bat",
                           "SET SST_RGAMMA=1.70\r\nT:\r\ncd \\QUAKE\r\nGAME.EXE -game \"a b\" +map e1m1\r\n")
                  .Number,
              0);
    EXPECT_EQ(yard.Programs.StartBatch("T:\\QUAKE", "lv_666.bat").Number, 0);
    const std::vector<std::string> lines = Yard::Said();
    EXPECT_THAT(After("DIRECTORY=", lines), ElementsAre("T:\\QUAKE"));
    EXPECT_THAT(After("ARGUMENT=", lines), ElementsAre("-game", "a b", "+map", "e1m1"));
    EXPECT_THAT(lines, Contains("SST_RGAMMA=1.70"));
}

TEST(StartBatch, StandsInTheDirectoryWhateverItIsCalled) {
    Yard yard;
    EXPECT_EQ(yard.Made.Disk.MakeDirectory("T:\\My & (own) \xE9 games").Number, 0);
    yard.CopyGame("T:\\My & (own) \xE9 games\\GAME.EXE");
    EXPECT_EQ(yard.Made.Disk.Replace("T:\\My & (own) \xE9 games\\lv_666.bat", "GAME.EXE\r\n").Number, 0);
    EXPECT_EQ(yard.Programs.StartBatch("T:\\My & (own) \xE9 games", "lv_666.bat").Number, 0);
    EXPECT_THAT(After("DIRECTORY=", Yard::Said(L"T:\\My & (own) \u00E9 games\\output.txt")),
                ElementsAre("T:\\My & (own) \xC3\xA9 games"));
}

TEST(StartBatch, ReadsTheBatchInTheCodePageItIsWrittenIn) {
    Yard yard;
    EXPECT_EQ(yard.Made.Disk
                  .Replace("T:\\QUAKE\\lv_666.bat",
                           "SET LV_A=caf\xE9 \x80\r\nGAME.EXE -basedir \"c:\\Jeux \xE9t\xE9\\Quake\"\r\n")
                  .Number,
              0);
    EXPECT_EQ(yard.Programs.StartBatch("T:\\QUAKE", "lv_666.bat").Number, 0);
    const std::vector<std::string> lines = Yard::Said();
    EXPECT_THAT(After("ARGUMENT=", lines), ElementsAre("-basedir", "c:\\Jeux \xC3\xA9t\xC3\xA9\\Quake"));
    EXPECT_THAT(After("LV_A=", lines), ElementsAre("caf\xC3\xA9 \xE2\x82\xAC"));
}

TEST(StartBatch, KnowsHowLongTheGameRan) {
    Yard yard;
    EXPECT_FALSE(yard.Programs.WatchesGame());
    EXPECT_EQ(yard.Made.Disk.Replace("T:\\QUAKE\\lv_666.bat", "GAME.EXE -a\r\n").Number, 0);
    EXPECT_EQ(yard.Programs.StartBatch("T:\\QUAKE", "lv_666.bat").Number, 0);
    EXPECT_TRUE(yard.Programs.WatchesGame());
    std::optional<GameEnd> end;
    for (int look = 0; look < 600 && !end; ++look) {
        Sleep(100);
        end = yard.Programs.EndOfLastGame();
    }
    ASSERT_TRUE(end);
    EXPECT_GE(end->Seconds, 0);
    EXPECT_LT(end->Seconds, 60);
    EXPECT_EQ(end->Code, 0);
    EXPECT_TRUE(end->OthersRun) << "so that nobody takes it for a game that failed";
    EXPECT_FALSE(yard.Programs.WatchesGame());
    EXPECT_FALSE(yard.Programs.EndOfLastGame());
    EXPECT_THAT(After("ARGUMENT=", Yard::Said()), ElementsAre("-a"));
}

TEST(StartBatch, TellsWhatIsNoProgram) {
    Yard yard;
    EXPECT_EQ(yard.Made.Disk.Replace("T:\\QUAKE\\lv_666.bat", "EMPTY.EXE\r\n").Number, 0);
    for (const std::string& bytes : {std::string(), std::string("a picture")}) {
        EXPECT_EQ(yard.Made.Disk.Replace("T:\\QUAKE\\EMPTY.EXE", bytes).Number, 0);
        const Error fault = yard.Programs.StartBatch("T:\\QUAKE", "lv_666.bat");
        EXPECT_EQ(fault.Number, 75);
        EXPECT_TRUE(fault.Text.starts_with("This is no program for Windows or DOS: ")) << fault.Text;
    }
}

TEST(StartBatch, TellsThatAProgramOf16BitsDoesNotRunHere) {
    Yard yard;
    EXPECT_EQ(yard.Made.Disk.Replace("T:\\QUAKE\\lv_666.bat", "OLD.EXE\r\n").Number, 0);
    const std::string header = "MZ" + std::string(0x3A, '\0') + std::string("\x40\0\0\0", 4);
    EXPECT_EQ(yard.Made.Disk.Replace("T:\\QUAKE\\OLD.EXE", header + "NE\x05\x0A").Number, 0);
    EXPECT_FALSE(yard.Programs.HasRunnerFor("T:\\QUAKE\\OLD.EXE"));
    const Error fault = yard.Programs.StartBatch("T:\\QUAKE", "lv_666.bat");
    EXPECT_EQ(fault.Number, 75);
    EXPECT_TRUE(fault.Text.starts_with("This is a program for the Windows of 16 bits")) << fault.Text;
}

// A game's directory may hold anything.
TEST(StartBatch, RunsNoProgramOfTheDirectoryAheadOfTheBatch) {
    Yard yard;
    yard.CopyGame("T:\\QUAKE\\chcp.exe");
    EXPECT_EQ(yard.Made.Disk.Replace("T:\\QUAKE\\lv_666.bat", "GAME.EXE -a\r\n").Number, 0);
    EXPECT_EQ(yard.Programs.StartBatch("T:\\QUAKE", "lv_666.bat").Number, 0);
    EXPECT_THAT(After("ARGUMENT=", Yard::Said()), ElementsAre("-a"));
}

TEST(StartBatch, TakesTheCurrentDirectoryWithoutOne) {
    Yard yard;
    EXPECT_EQ(yard.Made.Disk.Replace("T:\\QUAKE\\lv_666.bat", "GAME.EXE\r\n").Number, 0);
    EXPECT_EQ(yard.Made.Disk.ChangeDirectory("T:\\QUAKE").Number, 0);
    EXPECT_EQ(yard.Programs.StartBatch("", "lv_666.bat").Number, 0);
    EXPECT_THAT(After("DIRECTORY=", Yard::Said()), ElementsAre("T:\\QUAKE"));
}

// What part of the name would run, would run in the system's directory.
TEST(StartBatch, RunsNoPartOfADirectorysNameOnAShare) {
    Yard yard;
    std::wstring share = BuildDirectoryAsAShare();
    share += L"\\share&md lv_pwned&";
    CreateDirectoryW(share.c_str(), nullptr);
    WriteBytes(share + L"\\lv_666.bat", "exit\r\n");
    std::array<wchar_t, MAX_PATH> system{};
    GetSystemDirectoryW(system.data(), static_cast<UINT>(system.size()));
    const std::wstring pwned = std::wstring(system.data()) + L"\\lv_pwned";
    RemoveDirectoryW(pwned.c_str());
    EXPECT_EQ(yard.Programs.StartBatch(FromWideLossy(share), "lv_666.bat").Number, 0);
    EXPECT_FALSE(WaitUntil([&] { return GetFileAttributesW(pwned.c_str()) != INVALID_FILE_ATTRIBUTES; }, 3000));
    DeleteFileW((share + L"\\lv_666.bat").c_str());
    RemoveDirectoryW(share.c_str());
}

// LV_TEST_SHARE is the test drive as a share: scripts/under_wine says so, and on Windows itself `net share` makes one.
// Wine starts nothing in such a directory: the program comes up in that of Windows.
TEST(StartBatch, StartsAGameOnAShareInItsDirectory) {
    Yard yard;
    std::array<wchar_t, 200> share{};
    ASSERT_NE(GetEnvironmentVariableW(L"LV_TEST_SHARE", share.data(), static_cast<DWORD>(share.size())), 0u);
    const std::string place = FromWideLossy(share.data()) + "\\share (a & b) ^c";
    ASSERT_EQ(yard.Made.Disk.MakeDirectory(place).Number, 0);
    yard.CopyGame(place + "\\GAME.EXE");
    WriteBytes(ToWide(place) + L"\\lv_666.bat", "SET SST_RGAMMA=1.70\r\nSET LV_A=caf\xE9\r\n\\\\\r\ncd \"" + place +
                                                    "\"\r\nGAME.EXE -game \"a b\" +map e1m1&x");
    EXPECT_EQ(yard.Made.Disk.ChangeDrive(place.substr(0, 3)).Number, 0);
    EXPECT_EQ(yard.Made.Disk.ChangeDirectory(place).Number, 0);
    const std::wstring said = L"T:\\share (a & b) ^c\\output.txt";
    const std::wstring saidUnderWine = L"C:\\windows\\output.txt";
    DeleteFileW(saidUnderWine.c_str());
    EXPECT_EQ(yard.Programs.StartBatch(place, "lv_666.bat").Number, 0);
    const auto isThere = [](const std::wstring& file) {
        return GetFileAttributesW(file.c_str()) != INVALID_FILE_ATTRIBUTES;
    };
    EXPECT_TRUE(WaitUntil([&] { return isThere(said) || isThere(saidUnderWine); }));
    const std::vector<std::string> lines = Yard::Said(isThere(said) ? said : saidUnderWine);
    EXPECT_THAT(After("ARGUMENT=", lines), ElementsAre("-game", "a b", "+map", "e1m1&x"));
    EXPECT_THAT(lines, Contains("SST_RGAMMA=1.70"));
    EXPECT_THAT(lines, Contains("LV_A=caf\xC3\xA9"));
    DeleteFileW(saidUnderWine.c_str());
    EXPECT_EQ(yard.Made.Disk.ChangeDirectory("T:\\").Number, 0);
}

// A batch of the user's own needs a directory that the command processor can stand in.
TEST(StartBatch, RunsABatchOfTheUsersOnAShareInItsDirectory) {
    Yard yard;
    std::array<wchar_t, 200> share{};
    ASSERT_NE(GetEnvironmentVariableW(L"LV_TEST_SHARE", share.data(), static_cast<DWORD>(share.size())), 0u);
    const std::string place = FromWideLossy(share.data()) + "\\share (a & b) ^c 100%";
    ASSERT_EQ(yard.Made.Disk.MakeDirectory(place).Number, 0);
    yard.CopyGame(place + "\\GAME.EXE");
    WriteBytes(ToWide(place) + L"\\GO.BAT",
               "@echo off\r\necho %1>said.txt\r\ncd>>said.txt\r\necho [%LV_PLACE%]>>said.txt\r\n");
    WriteBytes(ToWide(place) + L"\\lv_666.bat", "\\\\\r\ncd \"" + place + "\"\r\nGO.BAT first");
    EXPECT_EQ(yard.Programs.StartBatch(place, "lv_666.bat").Number, 0);
    const std::wstring said = L"T:\\share (a & b) ^c 100%\\said.txt";
    EXPECT_TRUE(WaitUntil([&] { return BytesOf(said).ends_with("]\r\n"); }));
    // Windows stands there behind a letter, Wine without one.
    EXPECT_THAT(BytesOf(said), MatchesRegex("first\r\n.+\\\\share .a & b. .c 100%\r\n..\r\n"));
}

TEST(StartBatch, SaysWhatIsMissing) {
    Yard yard;
    EXPECT_EQ(yard.Programs.StartBatch("T:\\QUAKE", "lv_666.bat").Number, 53);
    const Error failed = yard.Programs.StartBatch("T:\\NONE", "lv_666.bat");
    EXPECT_EQ(failed.Number, 76);
    EXPECT_NE(failed.Text.find("T:\\NONE"), std::string::npos) << failed.Text;
}

TEST(ReaderOf, IsTheCommandProcessorAlways) {
    Yard yard;
    EXPECT_EQ(yard.Programs.ReaderOf("T:\\QUAKE", "GAME.EXE -a", "GAME.EXE"), LineReader::kCommandProcessor);
    EXPECT_EQ(yard.Programs.ReaderOf("T:\\QUAKE", "GO.BAT -a", "GO.BAT"), LineReader::kBatch);
    EXPECT_EQ(yard.Programs.ReaderOf("T:\\NONE", "", ""), LineReader::kCommandProcessor);
}

TEST(StartProgram, GivesABatchNoArgumentThatItWouldMisread) {
    Yard yard;
    WriteBytes(L"T:\\QUAKE\\go.bat", "@echo off\r\ncd /d T:\\QUAKE\r\nGAME.EXE %*\r\n");
    EXPECT_EQ(yard.Made.Disk.ChangeDirectory("T:\\QUAKE").Number, 0);
    for (const std::string word : {"a&md pwned", "%windir%", "a|b", "a\"b", "a^b"}) {
        const Error failed = yard.Programs.StartProgram("T:\\QUAKE\\go.bat", {word});
        EXPECT_EQ(failed.Number, 75) << word;
        EXPECT_EQ(failed.Text,
                  "The command processor would not read this as one word of text, and nothing was started: " + word);
    }
    EXPECT_EQ(yard.Programs.StartProgram("T:\\QUAKE\\go.bat", {"my best.cfg"}).Number, 0);
    EXPECT_THAT(After("ARGUMENT=", Yard::Said()), ElementsAre("my best.cfg"));
    EXPECT_EQ(GetFileAttributesW(L"T:\\QUAKE\\pwned"), INVALID_FILE_ATTRIBUTES);
}

TEST(StartProgram, HandsItsArgumentsOverAsTheyAre) {
    Yard yard;
    EXPECT_EQ(yard.Made.Disk.ChangeDirectory("T:\\QUAKE").Number, 0);
    const std::vector<std::string> arguments = {"a b", "", "x\"y", "T:\\dir\\", "c:\\a b\\", "\xE9"};
    EXPECT_EQ(yard.Programs.StartProgram("T:\\QUAKE\\GAME.EXE", arguments).Number, 0);
    const std::vector<std::string> lines = Yard::Said();
    EXPECT_THAT(After("ARGUMENT=", lines), ElementsAre("a b", "", "x\"y", "T:\\dir\\", "c:\\a b\\", "\xC3\xA9"));
    EXPECT_THAT(After("DIRECTORY=", lines), ElementsAre("T:\\QUAKE"));
}

TEST(StartProgram, FindsTheSystemsProgramsByTheirNames) {
    Yard yard;
    EXPECT_EQ(yard.Made.Disk.ChangeDirectory("T:\\QUAKE").Number, 0);
    EXPECT_EQ(yard.Programs.StartProgram("cmd.exe", {"/c", "GAME.EXE"}).Number, 0);
    EXPECT_FALSE(Yard::Said().empty());
}

TEST(StartHelpViewer, HandsItTheManual) {
    Yard yard;
    yard.CopyGame("T:\\QUAKE\\WINHLP32.EXE");
    EXPECT_EQ(yard.Made.Disk.ChangeDirectory("T:\\QUAKE").Number, 0);
    EXPECT_EQ(yard.Programs.StartHelpViewer("C:\\My games\\LV3D.hlp").Number, 0);
    EXPECT_THAT(After("ARGUMENT=", Yard::Said()), ElementsAre("C:\\My games\\LV3D.hlp"));
}

TEST(StartProgram, SaysWhichProgramIsMissing) {
    Yard yard;
    const Error failed = yard.Programs.StartProgram("T:\\NONE.EXE", {});
    EXPECT_EQ(failed.Number, 53);
    EXPECT_NE(failed.Text.find("T:\\NONE.EXE"), std::string::npos) << failed.Text;
    EXPECT_EQ(yard.Programs.StartProgram("no such program.exe", {}).Number, 53);
    EXPECT_EQ(yard.Programs.StartProgram("", {}).Number, 53);
}

}  // namespace lv
