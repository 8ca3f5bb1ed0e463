#include "platform/windows/shell_link.h"

#include <gtest/gtest.h>

#include "tests/support/windows/test_drive.h"

namespace lv {
namespace {

constexpr const wchar_t* kFile = L"T:\\a.lnk";

TEST(ShellLink, SaysWhatWasPutIntoIt) {
    const TestDrive drive;
    const Result<std::string> bytes =
        BytesOfShellLink({L"T:\\\u00E4 b\\lorvane3d.exe", L"\"--setup=Du el\"", L"Quake, \u20AC", L"T:\\quake.ico"});
    ASSERT_TRUE(bytes.Ok()) << bytes.Fault.Text;
    WriteBytes(kFile, bytes.Value);
    const auto link = ReadShellLink(kFile);
    ASSERT_TRUE(link);
    EXPECT_EQ(link->Program, L"T:\\\u00E4 b\\lorvane3d.exe");
    EXPECT_EQ(link->Arguments, L"\"--setup=Du el\"");
    EXPECT_EQ(link->Description, L"Quake, \u20AC");
    EXPECT_EQ(link->Icon, L"T:\\quake.ico");
}

TEST(ShellLink, SaysAProgramBeyondTheCodePage) {
    const TestDrive drive;
    WriteBytes(kFile, BytesOfShellLink({L"T:\\\u0433\\lorvane3d.exe", L"", L"", L""}).Value);
    const std::wstring program = ReadShellLink(kFile).value_or(LinkFacts{}).Program;
    if (program == L"T:\\?\\lorvane3d.exe") {
        GTEST_SKIP() << "Wine keeps the path of a link's program in its code page alone";
    }
    EXPECT_EQ(program, L"T:\\\u0433\\lorvane3d.exe");
}

TEST(ShellLink, WithoutAnIconShowsTheProgramsOwn) {
    const TestDrive drive;
    WriteBytes(kFile, BytesOfShellLink({L"T:\\lorvane3d.exe", L"", L"", L""}).Value);
    EXPECT_EQ(ReadShellLink(kFile).value_or(LinkFacts{}).Icon, L"T:\\lorvane3d.exe");
}

TEST(ShellLink, CutsALongDescription) {
    const TestDrive drive;
    WriteBytes(kFile, BytesOfShellLink({L"T:\\lorvane3d.exe", L"", std::wstring(2000, L'x'), L""}).Value);
    EXPECT_EQ(ReadShellLink(kFile).value_or(LinkFacts{}).Description, std::wstring(250, L'x'));
}

TEST(ShellLink, IsNothingElse) {
    const TestDrive drive;
    EXPECT_FALSE(ReadShellLink(kFile));
    EXPECT_FALSE(ReadShellLink(L"T:\\"));
    for (const std::string bytes : {"", "mine", "L\0\0\0"}) {
        WriteBytes(kFile, bytes);
        EXPECT_FALSE(ReadShellLink(kFile)) << bytes;
    }
    const std::string link = BytesOfShellLink({L"T:\\lorvane3d.exe", L"", L"", L""}).Value;
    WriteBytes(kFile, link + std::string(70'000, 'x'));
    EXPECT_FALSE(ReadShellLink(kFile));
}

}  // namespace
}  // namespace lv
