#include "console/files/exec_rules.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

struct Listed {
    Console Of;
    bool LooseFirst;
    const char* Archives;
    const char* Bases;
    ExecEnding Ending;
    bool OneWord;
    bool EndsScripts;
};

constexpr bool kLooseFirst = true;
constexpr bool kOneWord = true;
constexpr bool kEnds = true;

}  // namespace

TEST(ExecRules, AreThoseOfEachConsole) {
    constexpr Listed kListed[] = {
        {Console::Quake, false, "pak%.pak:until gap", "", ExecEnding::None, kOneWord, false},
        {Console::QuakeWorld, false, "pak%.pak:until gap", "qw", ExecEnding::None, kOneWord, kEnds},
        {Console::Hexen2, kLooseFirst, "pak%.pak:to 9", "", ExecEnding::None, kOneWord, kEnds},
        {Console::Quake2, false, "pak%.pak:to 9", "", ExecEnding::None, false, false},
        {Console::Heretic2, false, "htic2-%.pak:to 9", "", ExecEnding::None, false, false},
        {Console::Sin, false, "pak%.sin:to 9", "", ExecEnding::None, false, false},
        {Console::EzQuake, false, "pak%.pak:until gap *.pk3", "ezquake;qw", ExecEnding::WithoutPoint, kOneWord, kEnds},
        {Console::Ironwail, false, "pak%.pak:until gap", "", ExecEnding::None, kOneWord, kEnds},
        {Console::QuakeSpasm, false, "pak%.pak:until gap", "", ExecEnding::None, kOneWord, kEnds},
        {Console::DarkPlaces, kLooseFirst, ":none *.pak;*.pk3", "", ExecEnding::None, false, kEnds},
        {Console::Fte, false, "pak%.pak:until gap *.pk3", "qw;fte", ExecEnding::WhenMissing, false, kEnds},
        {Console::Yamagi, false, "pak%.pak:to 9 *.pak;*.pk2;*.pk3;*.pkz;*.zip", "", ExecEnding::None, false, false},
        {Console::Q2Pro, false, "pak%.pak:to 9 *.pak;*.pkz", "", ExecEnding::WhenMissing, false, false},
        {Console::HalfLife, kLooseFirst, ":none *.pak;*.pk3", "", ExecEnding::WithoutPoint, kOneWord, kEnds},
        {Console::HexenWorld, kLooseFirst, "pak%.pak:to 9", "portals;hw", ExecEnding::None, kOneWord, kEnds},
        {Console::Unreal, kLooseFirst, ":none", "", ExecEnding::None, false, kEnds},
    };
    constexpr TextView kNumbers[] = {":until gap", ":to 9", ":none"};
    ASSERT_EQ(AllExecRules().size(), std::size(kListed));
    ASSERT_EQ(AllExecRules().size(), AllConsoles().size());
    for (const Listed& row : kListed) {
        const ExecRules& rules = ExecRulesOf(row.Of);
        SCOPED_TRACE(RulesOf(row.Of).Name);
        EXPECT_EQ(rules.Of, row.Of);
        EXPECT_EQ(rules.LooseFirst, row.LooseFirst);
        EXPECT_EQ(Join(rules.NumberedArchive, kNumbers[static_cast<int>(rules.Numbers)],
                       rules.MoreArchives.empty() ? "" : " ", rules.MoreArchives),
                  row.Archives);
        EXPECT_EQ(rules.MoreBases, row.Bases);
        EXPECT_EQ(rules.Ending, row.Ending);
        EXPECT_EQ(rules.OneWord, row.OneWord);
        EXPECT_EQ(rules.EndsScripts, row.EndsScripts);
    }
}

TEST(ExecRules, SayWhoseArchivesMindLetterCase) {
    Text exact;
    Text patterns;
    Text unsure;
    for (const ExecRules& rules : AllExecRules()) {
        const Text name = Join(RulesOf(rules.Of).Name, ";");
        exact += rules.ExactNames ? name : "";
        patterns += rules.Patterns ? name : "";
        unsure += rules.IsSure ? "" : name;
    }
    EXPECT_EQ(exact, "Quake;QuakeWorld;Hexen II;ezQuake;Ironwail;FTE;QuakeSpasm;HexenWorld;");
    EXPECT_EQ(patterns, "DarkPlaces;Half-Life;");
    EXPECT_EQ(unsure, "Sin;FTE;Yamagi;Q2PRO;Unreal;");
}

TEST(FilesOfEngine, AreListed) {
    constexpr const char* kListed[][5] = {
        {"QuakeSpasm", "\\.quakespasm", "quakespasm.pak", "", ""},
        {"QuakeSpasm-Spiked", "", "quakespasm.pak", "", ""},
        {"vkQuake", "\\.vkquake", "", "vkQuake.cfg", "beside"},
        {"Ironwail", "\\.ironwail", "", "ironwail.cfg", ""},
        {"DarkPlaces server", "\\.darkplaces", "", "", ""},
        {"FTEQW", "\\.local\\share\\%", "", "", ""},
        {"ezQuake", "\\.ezquake", "", "", ""},
        {"TyrQuake QuakeWorld", "\\.tyrquake", "", "", ""},
        {"Hammer of Thyrion server", "\\.hexen2", "", "", ""},
        {"Yamagi Quake II", "\\.yq2", "", "", ""},
        {"Heretic2R", "\\.Heretic2R", "", "", ""},
    };
    EXPECT_EQ(AllEngineFiles().size(), std::size(kListed));
    for (const auto& row : kListed) {
        const EngineFiles& files = FilesOfEngine(row[0]);
        EXPECT_EQ(files.UserDirectory, row[1]) << row[0];
        EXPECT_EQ(files.OwnArchive, row[2]) << row[0];
        EXPECT_EQ(files.Config, row[3]) << row[0];
        EXPECT_EQ(files.AlsoConfig, row[4][0] != '\0') << row[0];
    }
    EXPECT_EQ(FilesOfEngine("My Engine").UserDirectory, "");
    EXPECT_EQ(FilesOfEngine("").OwnArchive, "");
}

}  // namespace lv
