#include "launch/unreal_ini.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <ostream>
#include <random>

#include "tests/support/launch_input.h"

namespace lv {
namespace {

constexpr TextView kDirectory = "C:\\UNREAL\\SYSTEM";

UnrealIniResult Rewritten(TextView ini, const ProfileSnapshot& profile = {}, bool noCdNeeded = false,
                          TextView directory = kDirectory) {
    return RewriteUnrealIni({ini, profile, noCdNeeded, directory});
}

Text IniOf(TextView ini, const ProfileSnapshot& profile = {}) {
    return Rewritten(ini, profile).Ini;
}

/// The lines as the section's content, with another section behind them.
Text InSection(TextView lines) {
    return Join("[WinDrv.WindowsClient]\r\n", lines, "[Engine.Engine]\r\n");
}

void UseResolution(ProfileSnapshot& profile, TextView content, Index flag = 1) {
    profile.UseRez = flag;
    profile.ResolutionsPos_Content = content;
}

/// Every setting in use, each with a value of its own.
ProfileSnapshot FullProfile() {
    ProfileSnapshot profile;
    UseResolution(profile, Padded("640x480", "-width 640"));
    Use(profile, "UnrealBrightness", "0.7");
    Use(profile, "UnrealMipFactor", "1.3");
    Use(profile, "UnrealUseDirectDraw", "False");
    Use(profile, "UnrealCurvedSurfaces", "True");
    Use(profile, "UnrealLowDetailTextures", "true of textures");
    Use(profile, "UnrealScreenFlashes", "true of flashes");
    Use(profile, "UnrealNoLighting", "true of lighting");
    Use(profile, "UnrealSlowVideoBuffering", "true of buffering");
    Use(profile, "UnrealDeadZoneXYZ", "true of XYZ");
    Use(profile, "UnrealDeadZoneRUV", "true of RUV");
    Use(profile, "UnrealScaleXYZ", "1500");
    Use(profile, "UnrealScaleRUV", "3000");
    return profile;
}

struct KeyCase {
    const char* Upper;    // as the ini may have it
    const char* Flag;     // "": none
    const char* NewLine;  // with FullProfile
};

std::ostream& operator<<(std::ostream& out, const KeyCase& row) {
    return out << row.Upper;
}

constexpr KeyCase kKeyCases[] = {
    {"VIEWPORTX=", "UseRez", "ViewPortX=640\r\n"},
    {"VIEWPORTY=", "UseRez", "ViewPortY=480\r\n"},
    {"BRIGHTNESS=", "UnrealBrightness", "Brightness=0.7\r\n"},
    {"MIPFACTOR=", "UnrealMipFactor", "MipFactor=1.3\r\n"},
    {"USEDIRECTDRAW=", "UnrealUseDirectDraw", "UseDirectDraw=False\r\n"},
    {"STARTUPFULLSCREEN=", "", "StartupFullScreen=True\r\n"},
    {"CURVEDSURFACES=", "UnrealCurvedSurfaces", "CurvedSurfaces=True\r\n"},
    {"LOWDETAILTEXTURES=", "UnrealLowDetailTextures", "LowDetailTextures=true of textures\r\n"},
    {"SCREENFLASHES=", "UnrealScreenFlashes", "ScreenFlashes=true of flashes\r\n"},
    {"NOLIGHTING=", "UnrealNoLighting", "NoLighting=true of lighting\r\n"},
    {"SLOWVIDEOBUFFERING=", "UnrealSlowVideoBuffering", "SlowVideoBuffering=true of buffering\r\n"},
    {"DEADZONEXYZ=", "UnrealDeadZoneXYZ", "DeadZoneXYZ=true of XYZ\r\n"},
    {"DEADZONERUV=", "UnrealDeadZoneRUV", "DeadZoneRUV=true of RUV\r\n"},
    {"SCALEXYZ=", "UnrealScaleXYZ", "ScaleXYZ=1500\r\n"},
    {"SCALERUV=", "UnrealScaleRUV", "ScaleRUV=3000\r\n"},
};

/// What a section gets that has none of the keys.
constexpr TextView kAllAdded =
    "Brightness=0.7\r\nMipFactor=1.3\r\nUseDirectDraw=False\r\nCurvedSurfaces=True\r\n"
    "LowDetailTextures=true of textures\r\nScreenFlashes=true of flashes\r\nNoLighting=true of lighting\r\n"
    "SlowVideoBuffering=true of buffering\r\nDeadZoneXYZ=true of XYZ\r\nDeadZoneRUV=true of RUV\r\n"
    "ScaleXYZ=1500\r\nScaleRUV=3000\r\nStartupFullScreen=True\r\n";

void SetFlag(ProfileSnapshot& profile, TextView flag, Index value) {
    if (flag == "UseRez") {
        profile.UseRez = value;
        return;
    }
    Use(profile, flag, profile.Value(flag), 0, value);
}

class UnrealIniKey : public ::testing::TestWithParam<KeyCase> {};

// The section is the file's last one, so that nothing is added.
TEST_P(UnrealIniKey, IsReplacedInAnyLetterCase) {
    const ProfileSnapshot profile = FullProfile();
    for (const Text& key : {Text(GetParam().Upper), LowerCase(GetParam().Upper)}) {
        const UnrealIniResult result =
            Rewritten(Join("[WinDrv.WindowsClient]\r\n", key, "a value longer than any other\r\n"), profile);
        const Text expected = Join("[WinDrv.WindowsClient]\r\n", GetParam().NewLine);
        EXPECT_EQ(result.Ini.substr(0, expected.size()), expected);
        EXPECT_EQ(result.ChangedIniLines, GetParam().NewLine);
    }
}

TEST_P(UnrealIniKey, StaysWhenItsFlagIsNotOne) {
    if (Text(GetParam().Flag).empty()) {  // always set
        EXPECT_EQ(Rewritten(Join("[WinDrv.WindowsClient]\r\n", GetParam().Upper)).ChangedIniLines, GetParam().NewLine);
        return;
    }
    for (const Index flag : {Index(0), Index(2), Index(-1)}) {
        ProfileSnapshot profile = FullProfile();
        SetFlag(profile, GetParam().Flag, flag);
        const Text ini = Join("[WinDrv.WindowsClient]\r\n", GetParam().Upper, "old\r\n");
        EXPECT_EQ(IniOf(ini, profile), ini) << flag;
        EXPECT_EQ(Rewritten(ini, profile).ChangedIniLines, "") << flag;
    }
}

TEST_P(UnrealIniKey, IsReplacedEachTimeItIsThere) {
    const Text two = Join(GetParam().Upper, "\r\n", GetParam().Upper, "\r\n");
    EXPECT_EQ(Rewritten(Join("[WinDrv.WindowsClient]\r\n", two), FullProfile()).ChangedIniLines,
              Join(GetParam().NewLine, GetParam().NewLine));
}

TEST_P(UnrealIniKey, IsNotAddedWhenItIsThere) {
    const Text result = IniOf(InSection(Join(GetParam().Upper, "\r\n")), FullProfile());
    const std::size_t first = result.find(GetParam().NewLine);
    ASSERT_NE(first, Text::npos);
    EXPECT_EQ(result.find(GetParam().NewLine, first + 1), Text::npos);
}

TEST_P(UnrealIniKey, IsLeftAloneAheadOfTheSectionAndBehindIt) {
    const Text line = Join(GetParam().Upper, "old\r\n");
    const Text result = IniOf(Join(line, InSection(""), line), FullProfile());
    EXPECT_EQ(result, Join(line, "[WinDrv.WindowsClient]\r\n", kAllAdded, "[Engine.Engine]\r\n", line));
}

INSTANTIATE_TEST_SUITE_P(All, UnrealIniKey, ::testing::ValuesIn(kKeyCases));

TEST(UnrealIni, OfAGameByteForByte) {
    ProfileSnapshot profile;
    UseResolution(profile, Padded("800x600", "-width 800"));
    Use(profile, "UnrealBrightness", "0.8");
    Use(profile, "UnrealCurvedSurfaces", "False");
    const UnrealIniResult result = Rewritten(
        "[URL]\r\nProtocol=unreal\r\n\r\n"
        "[Core.System]\r\nCdPath=D:\\\r\n\r\n"
        "[WinDrv.WindowsClient]\r\nViewportX=640\r\nViewportY=480\r\nBrightness=0.500000\r\nMouse=True\r\n"
        "StartupFullscreen=False\r\n\r\n"
        "[Engine.Engine]\r\nBrightness=1\r\n",
        profile);
    EXPECT_EQ(result.Ini,
              "[URL]\r\nProtocol=unreal\r\n\r\n"
              "[Core.System]\r\nCdPath=D:\\\r\n\r\n"
              "[WinDrv.WindowsClient]\r\nViewPortX=800\r\nViewPortY=600\r\nBrightness=0.8\r\nMouse=True\r\n"
              "StartupFullScreen=True\r\n\r\nCurvedSurfaces=False\r\n"
              "[Engine.Engine]\r\nBrightness=1\r\n");
    EXPECT_EQ(result.ChangedIniLines,
              "ViewPortX=800\r\nViewPortY=600\r\nBrightness=0.8\r\nStartupFullScreen=True\r\n"
              "CurvedSurfaces=False\r\n");
}

TEST(UnrealIni, GetsTheMissingKeysInTheirOrderAheadOfTheNextSection) {
    const UnrealIniResult result = Rewritten(InSection("Mouse=True\r\n"), FullProfile());
    EXPECT_EQ(result.Ini, Join("[WinDrv.WindowsClient]\r\nMouse=True\r\n", kAllAdded, "[Engine.Engine]\r\n"));
    EXPECT_EQ(result.ChangedIniLines, kAllAdded);
}

TEST(UnrealIni, NeverGetsAViewPortThatItLacks) {
    ProfileSnapshot profile;
    UseResolution(profile, "640x480 ");
    EXPECT_EQ(IniOf(InSection(""), profile), InSection("StartupFullScreen=True\r\n"));
}

TEST(UnrealIni, GetsNoKeysWhenTheSectionIsTheLast) {
    const Text ini = "[Engine.Engine]\r\n[WinDrv.WindowsClient]\r\nMouse=True\r\n";
    EXPECT_EQ(IniOf(ini, FullProfile()), ini);
    EXPECT_EQ(Rewritten(ini, FullProfile()).ChangedIniLines, "");
}

TEST(UnrealIni, WithoutTheSectionIsOnlyTrimmed) {
    // Six blanks go, so six bytes of the old file stay at the end.
    EXPECT_EQ(IniOf("  [URL]  \r\n Brightness=1 \r\nx\r\nyz\r\n", FullProfile()),
              "[URL]\r\nBrightness=1\r\nx\r\nyz\r\n\r\nyz\r\n");
}

TEST(UnrealIni, OfNoBytesStaysOne) {
    EXPECT_EQ(IniOf("", FullProfile()), "");
    EXPECT_EQ(Rewritten("", FullProfile()).ChangedIniLines, "");
}

TEST(UnrealIni, TakesTheSectionHeadInAnyLetterCaseAndTrimmed) {
    for (const char* head : {"[WINDRV.WINDOWSCLIENT]", "[windrv.windowsclient]", "[WinDrv.WindowsClient]"}) {
        EXPECT_EQ(IniOf(Join(head, "\r\n[URL]\r\n")), Join(head, "\r\nStartupFullScreen=True\r\n[URL]\r\n"));
    }
    EXPECT_EQ(IniOf("   [WinDrv.WindowsClient] \r\n[URL]\r\n"),
              "[WinDrv.WindowsClient]\r\nStartupFullScreen=True\r\n[URL]\r\n");
}

TEST(UnrealIni, TakesNoOtherHeadForTheSection) {
    for (const char* head : {"[WinDrv.WindowsClient]x", "[WinDrv.WindowsClients]", "WinDrv.WindowsClient",
                             "[ WinDrv.WindowsClient]", "\t[WinDrv.WindowsClient]"}) {
        const Text ini = Join(head, "\r\nBrightness=1\r\n[URL]\r\n");
        EXPECT_EQ(IniOf(ini, FullProfile()), ini);
    }
}

TEST(UnrealIni, ChangesOnlyTheFirstOfTwoSuchSections) {
    EXPECT_EQ(IniOf(Join(InSection(""), InSection("StartupFullScreen=False\r\n"))),
              Join(InSection("StartupFullScreen=True\r\n"), InSection("StartupFullScreen=False\r\n")));
}

TEST(UnrealIni, EndsTheSectionAtItsOwnHeadToo) {
    EXPECT_EQ(IniOf("[WinDrv.WindowsClient]\r\n[WinDrv.WindowsClient]\r\nStartupFullScreen=False\r\n"),
              "[WinDrv.WindowsClient]\r\nStartupFullScreen=True\r\n[WinDrv.WindowsClient]\r\n"
              "StartupFullScreen=False\r\n");
}

TEST(UnrealIni, EndsTheSectionAtAnIndentedHead) {
    EXPECT_EQ(IniOf("[WinDrv.WindowsClient]\r\n  [URL]\r\nStartupFullScreen=False\r\n"),
              "[WinDrv.WindowsClient]\r\nStartupFullScreen=True\r\n[URL]\r\nStartupFullScreen=False\r\n");
}

TEST(UnrealIni, KeepsWhatItDoesNotKnowInTheSection) {
    const Text lines =
        "\r\n; a word\r\n=\r\nBrightness\r\nBrightness =1\r\nxBrightness=1\r\nColorDepth=16\r\nA=B=C\r\n"
        "StartupFullScreen=True\r\n";
    EXPECT_EQ(IniOf(InSection(lines)), InSection(lines));
}

TEST(UnrealIni, KnowsAKeyByItsFirstEqualsSign) {
    EXPECT_EQ(IniOf("[WinDrv.WindowsClient]\r\nStartupFullScreen==True=\r\n[URL]\r\n"),
              "[WinDrv.WindowsClient]\r\nStartupFullScreen=True\r\n[URL]\r\n\r\n");
}

TEST(UnrealIni, FindsAnIndentedKey) {
    EXPECT_EQ(IniOf("[WinDrv.WindowsClient]\r\n   StartupFullScreen=1\r\n[URL]\r\n"),
              "[WinDrv.WindowsClient]\r\nStartupFullScreen=True\r\n[URL]\r\n");
}

TEST(UnrealIni, StartsInAWindowWithAWindowedProfileOnly) {
    ProfileSnapshot profile;
    for (const Index windowed : {Index(0), Index(2), Index(-1)}) {
        profile.Windowed = windowed;
        EXPECT_EQ(IniOf(InSection("StartupFullScreen=\r\n"), profile), InSection("StartupFullScreen=True\r\n"));
        EXPECT_EQ(IniOf(InSection(""), profile), InSection("StartupFullScreen=True\r\n"));
    }
    profile.Windowed = 1;
    EXPECT_EQ(IniOf(InSection("StartupFullScreen=True\r\n"), profile), InSection("StartupFullScreen=False\r\n"));
    EXPECT_EQ(IniOf(InSection(""), profile), InSection("StartupFullScreen=False\r\n"));
}

TEST(UnrealIni, GetsAValueWhateverItsPlaceInTheList) {
    ProfileSnapshot profile;
    Use(profile, "UnrealScaleXYZ", "700", -1);
    EXPECT_EQ(IniOf(InSection("ScaleXYZ=500\r\n"), profile), InSection("ScaleXYZ=700\r\nStartupFullScreen=True\r\n"));
}

TEST(UnrealIni, KeepsItsValueForATickWithoutASelection) {
    ProfileSnapshot profile;
    Use(profile, "UnrealBrightness", "", -1);
    EXPECT_EQ(IniOf(InSection("Brightness=0.7\r\n"), profile),
              InSection("Brightness=0.7\r\nStartupFullScreen=True\r\n"));
    EXPECT_EQ(IniOf(InSection(""), profile), InSection("StartupFullScreen=True\r\n"));
}

struct ViewPortCase {
    const char* Content;
    const char* Lines;
};

TEST(UnrealIni, TakesTheViewPortFromTheResolutionsCaption) {
    const ViewPortCase cases[] = {
        {"320x200 ", "ViewPortX=320\r\nViewPortY=200\r\n"},
        {"1280x1024      -width 1280", "ViewPortX=1280\r\nViewPortY=1024\r\n"},
        {"", "ViewPortX=512\r\nViewPortY=384\r\n"},
        {"640x480", "ViewPortX=640\r\nViewPortY=480\r\n"},
        {"640x480x32 ", "ViewPortX=640\r\nViewPortY=480x32\r\n"},
        {"max 640x480 ", "ViewPortX=ma\r\nViewPortY=\r\n"},
        {"x 480", "ViewPortX=\r\nViewPortY=\r\n"},
        {"640x", "ViewPortX=640\r\nViewPortY=\r\n"},
    };
    for (const ViewPortCase& one : cases) {
        ProfileSnapshot profile;
        UseResolution(profile, one.Content);
        EXPECT_EQ(Rewritten("[WinDrv.WindowsClient]\r\nViewportX=1\r\nViewportY=2\r\n", profile).ChangedIniLines,
                  one.Lines)
            << one.Content;
    }
}

TEST(UnrealIni, KeepsItsViewPortForAResolutionWithoutSides) {
    const Text ini = "[WinDrv.WindowsClient]\r\nViewportX=1\r\nViewportY=2\r\n";
    for (const char* content : {"the biggest", "640X480 ", " "}) {
        ProfileSnapshot profile;
        UseResolution(profile, content);
        EXPECT_EQ(IniOf(ini, profile), ini) << content;
    }
}

TEST(UnrealIni, KeepsItsViewPortWithoutUseRez) {
    const Text ini = InSection("ViewportX=1\r\nViewportY=2\r\nStartupFullScreen=True\r\n");
    ProfileSnapshot profile;
    UseResolution(profile, "640x480 ", 0);
    EXPECT_EQ(IniOf(ini, profile), ini);
    EXPECT_EQ(Rewritten(ini, profile).ChangedIniLines, "StartupFullScreen=True\r\n");
}

// Each of these has the length of the new line, "CdPath=C:\UNREAL\", or is shorter.
TEST(UnrealIniCdPath, BecomesTheDirectoryAboveSystem) {
    for (const char* line : {"CdPath=D:\\", "CDPATH=", "cdpath=somewhere", "  CdPath=D:\\"}) {
        const UnrealIniResult result = Rewritten(Join("[Core.System]\r\n", line, "\r\n"), {}, true);
        EXPECT_EQ(result.Ini, "[Core.System]\r\nCdPath=C:\\UNREAL\\\r\n");
        EXPECT_EQ(result.ChangedIniLines, "");
    }
}

TEST(UnrealIniCdPath, StaysWhenTheCdIsNeeded) {
    EXPECT_EQ(IniOf("CdPath=D:\\\r\n"), "CdPath=D:\\\r\n");
}

TEST(UnrealIniCdPath, StaysInTheSectionAndBehindIt) {
    const Text ini =
        "[WinDrv.WindowsClient]\r\nCdPath=D:\\\r\nStartupFullScreen=True\r\n[Core.System]\r\nCdPath=D:\\\r\n";
    EXPECT_EQ(Rewritten(ini, {}, true).Ini, ini);
}

TEST(UnrealIniCdPath, IsWrittenEachTimeItIsThere) {
    EXPECT_EQ(Rewritten("CdPath=D:\\\r\nCdPath=E:\\\r\n", {}, true).Ini,
              "CdPath=C:\\UNREAL\\\r\nCdPath=C:\\UNREAL\\\r\n");
}

TEST(UnrealIniCdPath, IsKnownByItsFirstSevenCharacters) {
    for (const char* line : {"CdPath =D:\\\r\n", "xCdPath=D:\\\r\n", "CdPath\r\n", "CdPat\r\n"}) {
        EXPECT_EQ(Rewritten(line, {}, true).Ini, line);
    }
}

TEST(UnrealIniCdPath, OfADirectoryShorterThanItsLastWordIsEmpty) {
    EXPECT_EQ(Rewritten("CdPath=\r\n", {}, true, "C:\\U").Ini, "CdPath=\r\n");
    EXPECT_EQ(Rewritten("CdPath=\r\n", {}, true, "").Ini, "CdPath=\r\n");
}

TEST(UnrealIniLength, LeavesTheOldEndBehindAShorterText) {
    ProfileSnapshot profile;
    UseResolution(profile, "640x480 ");
    EXPECT_EQ(IniOf("[WinDrv.WindowsClient]\r\nViewportX=1024\r\n", profile),
              "[WinDrv.WindowsClient]\r\nViewPortX=640\r\n\n");
    EXPECT_EQ(IniOf("[URL]     \r\nName=Player\r\n"), "[URL]\r\nName=Player\r\nyer\r\n");
}

TEST(UnrealIniLength, GrowsWithALongerText) {
    ProfileSnapshot profile;
    UseResolution(profile, "1024x768 ");
    EXPECT_EQ(IniOf("[WinDrv.WindowsClient]\r\nViewportX=1\r\n", profile),
              "[WinDrv.WindowsClient]\r\nViewPortX=1024\r\n");
}

TEST(UnrealIniLength, OfBlanksOnlyKeepsTheRestOfThem) {
    EXPECT_EQ(IniOf("     "), "\r\n   ");
    EXPECT_EQ(IniOf(" "), "\r\n");
}

TEST(UnrealIniLines, EndInCrLfOrLfAndAreWrittenWithCrLf) {
    EXPECT_EQ(IniOf("[WinDrv.WindowsClient]\nStartupFullScreen=False\nA=1\n\n[URL]\nB=2\r\n\r\nC=3\n"),
              "[WinDrv.WindowsClient]\r\nStartupFullScreen=True\r\nA=1\r\n\r\n[URL]\r\nB=2\r\n\r\nC=3\r\n");
}

TEST(UnrealIniLines, GetAnEndWhereTheLastOneHasNone) {
    EXPECT_EQ(IniOf("[URL]\r\nA=1"), "[URL]\r\nA=1\r\n");
    EXPECT_EQ(IniOf("[WinDrv.WindowsClient]"), "[WinDrv.WindowsClient]\r\n");
    EXPECT_EQ(IniOf("[WinDrv.WindowsClient]\r\nStartupFullScreen="),
              "[WinDrv.WindowsClient]\r\nStartupFullScreen=True\r\n");
}

TEST(UnrealIniLines, OfNothingAreKept) {
    EXPECT_EQ(IniOf("\r\n\r\n"), "\r\n\r\n");
    EXPECT_EQ(IniOf("\n"), "\r\n");
}

TEST(UnrealIniLines, KeepALoneCarriageReturn) {
    EXPECT_EQ(IniOf("a\rb\r\n\r\r\nc\r"), "a\rb\r\n\r\r\nc\r\r\n");
}

/// The literal with its bytes 0.
template <std::size_t size>
Text Bytes(const char (&literal)[size]) {
    return Text(literal, size - 1);
}

TEST(UnrealIniLines, KeepByte0AndTheEndMarkOfDos) {
    const Text ini = Bytes("[URL]\r\nA=\0B\r\n\0\r\n\x1A\r\nC\r\n");
    EXPECT_EQ(IniOf(ini), ini);
    const Text key = Bytes("[WinDrv.WindowsClient]\r\nBright\0ness=1\r\nBrightness=\0\r\n");
    EXPECT_EQ(IniOf(key), key);
}

TEST(UnrealIniLines, AreTrimmedOfBlanksOnly) {
    EXPECT_EQ(IniOf("\tA=1\t\r\n\xA0"
                    "B\xA0\r\n"),
              "\tA=1\t\r\n\xA0"
              "B\xA0\r\n");
    EXPECT_EQ(IniOf(" A = 1\n"), "A = 1\r\n");
}

TEST(UnrealIniLines, MayBeOfAnyLength) {
    const Text value(100000, 'v');
    const Text lines = Join("A=", value, "\r\n", value, "\r\n");
    EXPECT_EQ(
        IniOf(Join(lines, InSection(Join(lines, "StartupFullScreen=", value, "\r\n")), lines)),
        Join(lines, InSection(Join(lines, "StartupFullScreen=True\r\n")), lines, Text(value.size() - 6, 'v'), "\r\n"));
}

TEST(UnrealIniLines, MayBeMany) {
    Text lines;
    while (lines.size() < 2 << 20) {
        lines += "Key=Value\r\n";
    }
    EXPECT_TRUE(IniOf(Join(lines, InSection(Join(lines, "StartupFullScreen=True\r\n")), lines)) ==
                Join(lines, InSection(Join(lines, "StartupFullScreen=True\r\n")), lines));
}

// Random files.

class Dice {
  public:
    explicit Dice(unsigned seed) : engine_(seed) {}
    std::size_t Below(std::size_t end) { return std::uniform_int_distribution<std::size_t>(0, end - 1)(engine_); }

    /// Any bytes but a line feed. No "[" at the front, and no "=", so that it is neither head nor key.
    Text Line() {
        Text line(Below(20), ' ');
        for (char& c : line) {
            c = static_cast<char>(Below(4) == 0 ? ' ' : static_cast<char>(Below(256)));
            c = c == '\n' || c == '[' || c == '=' ? 'x' : c;
        }
        return line;
    }

    /// Pieces of inis and any bytes between them.
    Text Anything() {
        static const Text pieces[] = {
            "[WinDrv.WindowsClient]",
            "\r\n",
            "\n",
            "\r",
            " ",
            "=",
            "[",
            "Brightness=",
            "CdPath=",
            "ViewportX=9",
            "StartupFullScreen=",
            Text(1, '\0'),
            "\x1A",
        };
        Text any;
        for (std::size_t count = Below(40); count > 0; --count) {
            const std::size_t piece = Below(std::size(pieces) + 1);
            any += piece < std::size(pieces) ? pieces[piece] : Text(1, static_cast<char>(Below(256)));
        }
        return any;
    }

  private:
    std::mt19937 engine_;
};

Text WithoutOuterBlanks(Text line) {
    while (!line.empty() && line.front() == ' ') {
        line.erase(0, 1);
    }
    while (!line.empty() && line.back() == ' ') {
        line.pop_back();
    }
    return line;
}

/// Some lines as a file may have them and as they come out.
struct Lines {
    Text Old;
    Text New;

    void Add(const Text& line, TextView end) {
        const bool endsWithReturn = end == "\n" && line.ends_with('\r');
        Old += Join(line, end);
        New += Join(WithoutOuterBlanks(endsWithReturn ? line.substr(0, line.size() - 1) : line), "\r\n");
    }
    void AddSome(Dice& dice) {
        for (std::size_t count = dice.Below(6); count > 0; --count) {
            Add(dice.Line(), dice.Below(2) == 0 ? "\n" : "\r\n");
        }
    }
};

TEST(UnrealIniOfRandomBytes, LosesNothingButBlanksAroundItsLines) {
    for (unsigned seed = 0; seed < 2000; ++seed) {
        Dice dice(seed);
        Lines lines;
        lines.AddSome(dice);
        lines.Add("[WinDrv.WindowsClient]", "\r\n");
        lines.AddSome(dice);
        lines.New += "StartupFullScreen=True\r\n";
        lines.Add("[URL]", "\n");
        lines.AddSome(dice);
        Text expected = lines.New;
        if (expected.size() < lines.Old.size()) {
            expected += lines.Old.substr(expected.size());
        }
        ASSERT_EQ(IniOf(lines.Old), expected) << "seed " << seed;
    }
}

TEST(UnrealIniOfRandomBytes, NeverGetsShorter) {
    const ProfileSnapshot profile = FullProfile();
    for (unsigned seed = 0; seed < 5000; ++seed) {
        Dice dice(seed);
        const Text old = dice.Anything();
        ASSERT_GE(Rewritten(old, profile, seed % 2 == 0).Ini.size(), old.size()) << "seed " << seed;
    }
}

TEST(UnrealIniOfRandomBytes, IsTheSameAgainOnceTheOldEndIsDealtWith) {
    const ProfileSnapshot profile = FullProfile();
    for (unsigned seed = 0; seed < 2000; ++seed) {
        Dice dice(seed);
        Text ini = dice.Anything();
        Text again = Rewritten(ini, profile, true).Ini;
        for (std::size_t round = 0; round < 100 && again != ini; ++round) {
            ini = again;
            again = Rewritten(ini, profile, true).Ini;
        }
        ASSERT_EQ(again, ini) << "seed " << seed;
    }
}

TEST(UnrealIni, IsTheSameTheSecondTime) {
    const Text once = Rewritten(Join("CdPath=D:\\\r\n", InSection("Brightness=1\r\n")), FullProfile(), true).Ini;
    EXPECT_EQ(Rewritten(once, FullProfile(), true).Ini, once);
}

}  // namespace
}  // namespace lv
