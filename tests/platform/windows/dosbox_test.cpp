#include "platform/windows/dosbox.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/windows/system.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/windows_processes.h"
#include "tests/support/windows/own_window.h"
#include "tests/support/windows/scoped_variable.h"
#include "this_system.h"

namespace lv {

namespace {

using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;

/// A game for DOS in T:\QUAKE, and nothing on PATH.
struct DosYard {
    DosYard() {
        EXPECT_EQ(Made.Disk.MakeDirectory("T:\\QUAKE").Number, 0);
        EXPECT_EQ(Made.Disk.MakeDirectory("T:\\TOOLS").Number, 0);
        EXPECT_EQ(Made.Disk.Replace("T:\\QUAKE\\QUAKE.EXE", "MZ").Number, 0);
        EXPECT_EQ(Made.Disk.Replace("T:\\QUAKE\\lv_666.bat", "SET LV_A=1\r\nT:\r\ncd T:\\QUAKE\r\nQUAKE.EXE -a").Number,
                  0);
    }
    /// A stand-in that says how it was started.
    void Install(const std::string& file) {
        const std::wstring program = ToWide(Made.Disk.ProgramDirectory() + "\\..\\standins\\show_windows.exe");
        EXPECT_NE(CopyFileW(program.c_str(), ToWide(file).c_str(), FALSE), 0) << GetLastError();
    }

    SystemDisk Made;
    WindowsProcesses Programs{Made.Disk};
    ScopedVariable Path{L"PATH", L"T:\\TOOLS"};
    ScopedVariable Installed{L"ProgramFiles", L"T:\\PROGRAMS"};
};

std::string WindowsHeader() {
    return "MZ" + std::string(0x3A, '\0') + std::string("\x40\0\0\0PE\0\0", 8);
}

std::string Told() {
    std::array<wchar_t, MAX_PATH + 1> directory{};
    GetTempPathW(static_cast<DWORD>(directory.size()), directory.data());
    return BytesOf(std::wstring(directory.data()) + L"dosbox_lv_666.conf");
}

}  // namespace

TEST(DosBox, StartsADosProgramWhereWindowsCannot) {
    ASSERT_FALSE(RunsDosPrograms());
    DosYard yard;
    yard.Install("T:\\TOOLS\\dosbox.exe");
    const Error fault = yard.Programs.StartBatch("T:\\QUAKE", "lv_666.bat");
    ASSERT_FALSE(fault) << fault.Text;
    WaitUntil([] { return BytesOf(L"T:\\QUAKE\\output.txt").ends_with("end\n"); });
    const std::string said = BytesOf(L"T:\\QUAKE\\output.txt");
    EXPECT_THAT(said, HasSubstr("ARGUMENT=-userconf\nARGUMENT=-conf\nARGUMENT="));
    EXPECT_THAT(said, HasSubstr("\\dosbox_lv_666.conf\n"));
    EXPECT_THAT(Told(), EndsWith("@SET LV_A=1\n@C:\n@cd \\\n@QUAKE.EXE -a\n@exit\n"));
}

TEST(DosBox, IsLookedForWhereProgramsAreInstalled) {
    DosYard yard;
    EXPECT_EQ(FindDosBox(), L"");
    EXPECT_EQ(yard.Made.Disk.MakeDirectory("T:\\PROGRAMS").Number, 0);
    EXPECT_EQ(yard.Made.Disk.MakeDirectory("T:\\PROGRAMS\\DOSBox-0.74-3").Number, 0);
    yard.Install("T:\\PROGRAMS\\DOSBox-0.74-3\\dosbox.exe");
    EXPECT_EQ(FindDosBox(), L"T:\\PROGRAMS\\DOSBox-0.74-3\\dosbox.exe");
}

TEST(DosBox, IsWhatADosProgramNeedsToStart) {
    DosYard yard;
    EXPECT_EQ(yard.Made.Disk.Replace("T:\\QUAKE\\GLQUAKE.EXE", WindowsHeader()).Number, 0);
    EXPECT_FALSE(yard.Programs.HasRunnerFor("T:\\QUAKE\\QUAKE.EXE"));
    EXPECT_TRUE(yard.Programs.HasRunnerFor("T:\\QUAKE\\GLQUAKE.EXE"));
    yard.Install("T:\\TOOLS\\dosbox.exe");
    EXPECT_TRUE(yard.Programs.HasRunnerFor("T:\\QUAKE\\QUAKE.EXE"));
}

TEST(DosBox, MissingIsSaidWithWhatHelps) {
    DosYard yard;
    const Error fault = yard.Programs.StartBatch("T:\\QUAKE", "lv_666.bat");
    EXPECT_EQ(fault.Number, 53);
    EXPECT_EQ(
        fault.Text,
        "This is a DOS program, which Windows cannot start by itself any more: T:\\QUAKE\\QUAKE.EXE. Install "
        "DOSBox, DOSBox Staging or DOSBox-X, and start the game again; or pick a program of the game that is made "
        "for Windows.");
}

TEST(DosBox, AGivenWordThatDosWouldMisreadStartsNothing) {
    DosYard yard;
    yard.Install("T:\\TOOLS\\dosbox.exe");
    EXPECT_EQ(yard.Programs.StartBatch("T:\\QUAKE", "lv_666.bat", {"QUAKE.EXE", {{46, "a>b", "a>b"}}}).Number, 75);
    EXPECT_EQ(yard.Programs.ReaderOf("T:\\QUAKE", "QUAKE.EXE -a", "QUAKE.EXE"), LineReader::kDosShell);
}

}  // namespace lv
