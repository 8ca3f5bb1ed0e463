#include "games/programs.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

namespace lv {
namespace {

struct ImageCase {
    const char* FileName;
    const char* Image;
};

class ImageKey : public ::testing::TestWithParam<ImageCase> {};

TEST_P(ImageKey, IsToldByTheFileName) {
    EXPECT_EQ(ImageKeyOf(GetParam().FileName), GetParam().Image);
}

INSTANTIATE_TEST_SUITE_P(EachRow, ImageKey,
                         ::testing::Values(ImageCase{"quake.exe", "QUAKE"}, ImageCase{"winquake.exe", "QUAKE"},
                                           ImageCase{"vquake.exe", "QUAKE"}, ImageCase{"glquake.exe", "QUAKE"},
                                           ImageCase{"qwcl.exe", "QUAKEWORLD"}, ImageCase{"glqwcl.exe", "QUAKEWORLD"},
                                           ImageCase{"quake2.exe", "QUAKE2"}, ImageCase{"h2.exe", "HEXEN2"},
                                           ImageCase{"h2mp.exe", "HEXEN2"}, ImageCase{"glh2.exe", "HEXEN2"},
                                           ImageCase{"glh2mp.exe", "HEXEN2"}, ImageCase{"hwcl.exe", "HEXEN2"},
                                           ImageCase{"glhwcl.exe", "HEXEN2"}, ImageCase{"unreal.exe", "UNREAL"},
                                           ImageCase{"sin.exe", "SIN"}, ImageCase{"sindemo.exe", "SIN"},
                                           ImageCase{"heretic2.exe", "HERETIC2"}, ImageCase{"hl.exe", "HALFLIFE"},
                                           ImageCase{"shogo.exe", "SHOGO"}, ImageCase{"blood2.exe", "BLOOD2"},
                                           ImageCase{"quake3.exe", "QUESTION"}, ImageCase{"", "QUESTION"},
                                           ImageCase{"quake", "QUESTION"}, ImageCase{"QUAKE2.EXE", "QUAKE2"}));

TEST(NewExeImageKeyOf, KnowsFewerProgramsThanTheNextStart) {
    const std::vector<std::pair<const char*, const char*>> rows = {
        {"quake.exe", "QUAKE"},       {"winquake.exe", "QUAKE"},  {"vquake.exe", "QUAKE"},
        {"glquake.exe", "QUAKE"},     {"qwcl.exe", "QUAKEWORLD"}, {"glqwcl.exe", "QUAKEWORLD"},
        {"quake2.exe", "QUAKE2"},     {"h2.exe", "HEXEN2"},       {"h2mp.exe", "HEXEN2"},
        {"glh2.exe", "HEXEN2"},       {"glh2mp.exe", "HEXEN2"},   {"hwcl.exe", "HEXEN2"},
        {"unreal.exe", "UNREAL"},     {"sin.exe", "SIN"},         {"sindemo.exe", "SIN"},
        {"heretic2.exe", "HERETIC2"}, {"hl.exe", "QUESTION"},     {"shogo.exe", "QUESTION"},
        {"blood2.exe", "QUESTION"},   {"glhwcl.exe", "QUESTION"}, {"other.exe", "QUESTION"},
        {"QUAKE.EXE", "QUAKE"},
    };
    for (const auto& [file, image] : rows) {
        EXPECT_EQ(NewExeImageKeyOf(file), image) << file;
    }
}

TEST(WizardRowOf, KnowsSeventeenPrograms) {
    const std::vector<std::pair<const char*, std::size_t>> rows = {
        {"quake.exe", 0},    {"winquake.exe", 0}, {"vquake.exe", 0}, {"glquake.exe", 0}, {"qwcl.exe", 0},
        {"glqwcl.exe", 0},   {"quake2.exe", 2},   {"h2.exe", 1},     {"h2mp.exe", 1},    {"glh2.exe", 1},
        {"glh2mp.exe", 1},   {"hwcl.exe", 1},     {"unreal.exe", 3}, {"sin.exe", 4},     {"sindemo.exe", 4},
        {"heretic2.exe", 5}, {"hl.exe", 8},
    };
    for (const auto& [file, row] : rows) {
        EXPECT_EQ(WizardRowOf(file), row) << file;
    }
    EXPECT_EQ(WizardRowOf("HL.EXE"), 8U);
    EXPECT_EQ(WizardRowOf("shogo.exe"), std::nullopt);
    EXPECT_EQ(WizardRowOf("glhwcl.exe"), std::nullopt);
}

TEST(WizardRowOf, KnowsNoProgramThatTheScanPassesOver) {
    for (const char* const file : {"blood2.exe", "b2demo.exe", "other.exe", ""}) {
        EXPECT_EQ(WizardRowOf(file), std::nullopt) << file;
    }
}

TEST(SearchedProgram, IsOneForEachRowOfTheWizard) {
    const char* const searched[] = {"quake.exe",    "h2.exe",    "quake2.exe", "unreal.exe", "sin.exe",
                                    "Heretic2.exe", "shogo.exe", "blood2.exe", "HL.exe"};
    ASSERT_EQ(std::size(searched), kWizardRows);
    for (std::size_t row = 0; row < kWizardRows; ++row) {
        EXPECT_EQ(SearchedProgram(row), searched[row]);
    }
    EXPECT_EQ(SearchedProgram(kWizardRows), "");
}

TEST(SpySlotOf, OffersElevenPrograms) {
    const std::vector<std::pair<const char*, std::size_t>> slots = {
        {"quake.exe", 0},  {"winquake.exe", 0}, {"glquake.exe", 0}, {"vquake.exe", 0},
        {"qwcl.exe", 1},   {"glqwcl.exe", 1},   {"h2.exe", 2},      {"glh2.exe", 2},
        {"quake2.exe", 3}, {"unreal.exe", 4},   {"SIN.EXE", 5},
    };
    for (const auto& [file, slot] : slots) {
        EXPECT_EQ(SpySlotOf(file), slot) << file;
    }
    const auto offered =
        std::ranges::count_if(AllPrograms(), [](const Program& each) { return each.SpySlot.has_value(); });
    EXPECT_EQ(offered, 11);
    for (const char* const file : {"hwcl.exe", "h2mp.exe", "sindemo.exe", "heretic2.exe", "hl.exe", ""}) {
        EXPECT_EQ(SpySlotOf(file), std::nullopt) << file;
    }
}

struct FlagCase {
    Game Kind;
    const char* Path;
    bool QuakeWorld;
    bool HexenWorld;
    bool MissionPack;
    bool Accelerator;
};

class PathFlags : public ::testing::TestWithParam<FlagCase> {};

TEST_P(PathFlags, AreToldByTheName) {
    const ExecutableFlags flags = FlagsOfPath(GetParam().Kind, GetParam().Path);
    EXPECT_EQ(flags.IsQuakeWorld, GetParam().QuakeWorld);
    EXPECT_EQ(flags.IsHexenWorld, GetParam().HexenWorld);
    EXPECT_EQ(flags.IsMissionPack, GetParam().MissionPack);
    EXPECT_EQ(flags.UsesAccelerator, GetParam().Accelerator);
}

INSTANTIATE_TEST_SUITE_P(EachExecutable, PathFlags,
                         ::testing::Values(FlagCase{Game::Quake, "c:\\q\\quake.exe", false, false, false, false},
                                           FlagCase{Game::Quake, "c:\\q\\glquake.exe", false, false, false, true},
                                           FlagCase{Game::Quake, "c:\\q\\winquake.exe", false, false, false, true},
                                           FlagCase{Game::Quake, "c:\\q\\qwcl.exe", true, false, false, false},
                                           FlagCase{Game::Quake, "c:\\q\\glqwcl.exe", true, false, false, true},
                                           FlagCase{Game::Quake, "c:\\q\\h2mp.exe", false, false, false, true},
                                           FlagCase{Game::Hexen2, "c:\\h\\h2.exe", false, false, false, false},
                                           FlagCase{Game::Hexen2, "c:\\h\\glh2.exe", false, false, false, true},
                                           FlagCase{Game::Hexen2, "c:\\h\\h2mp.exe", false, false, true, false},
                                           FlagCase{Game::Hexen2, "c:\\h\\glh2mp.exe", false, false, true, true},
                                           FlagCase{Game::Hexen2, "c:\\h\\hwcl.exe", false, false, false, false},
                                           FlagCase{Game::Hexen2, "c:\\h\\hwcl.exe +x", false, true, false, false},
                                           FlagCase{Game::Hexen2, "c:\\h\\glhwcl.exe +x", false, true, false, true},
                                           FlagCase{Game::Hexen2, "c:\\h\\h2mp.exe hwcl.exe ", false, false, true,
                                                    false},
                                           FlagCase{Game::Hexen2, "c:\\h\\qwcl.exe", false, false, false, true},
                                           FlagCase{Game::Quake2, "c:\\q2\\quake.exe", false, false, false, true},
                                           FlagCase{Game::None, "c:\\x\\qwcl.exe", false, false, false, true}));

/// The wizard's entries: a row, a title, a file.
struct EntryCase {
    std::size_t Row;
    const char* Title;
    const char* File;
};

TEST(AllPrograms, AreTheWizardsEntriesInItsOrder) {
    const EntryCase entries[] = {
        {0, "Quake", "quake.exe"},
        {0, "GL Quake", "glquake.exe"},
        {0, "QuakeWorld", "qwcl.exe"},
        {0, "GL QuakeWorld", "glqwcl.exe"},
        {0, "WinQuake", "winquake.exe"},
        {0, "V Quake", "vquake.exe"},
        {1, "Hexen 2", "h2.exe"},
        {1, "GL Hexen 2", "glh2.exe"},
        {1, "Hexen World", "hwcl.exe"},
        {1, "Hexen 2 - Portals", "h2mp.exe"},
        {1, "GL Hexen 2 - Portals", "glh2mp.exe"},
        {2, "Quake 2", "quake2.exe"},
        {3, "Unreal", "unreal.exe"},
        {4, "Sin", "sin.exe"},
        {5, "Heretic 2", "heretic2.exe"},
        {6, "Shogo", "shogo.exe"},
        {7, "Blood 2", "blood2.exe"},
        {7, "Blood 2", "b2demo.exe"},
        {8, "Half-Life", "hl.exe"},
    };
    std::vector<Program> made;
    std::ranges::copy_if(AllPrograms(), std::back_inserter(made),
                         [](const Program& each) { return !each.EntryTitle.empty(); });
    ASSERT_EQ(made.size(), std::size(entries));
    for (std::size_t i = 0; i < made.size(); ++i) {
        EXPECT_EQ(made[i].WizardRow, entries[i].Row) << entries[i].File;
        EXPECT_EQ(made[i].EntryTitle, entries[i].Title) << entries[i].File;
        EXPECT_EQ(made[i].FileName, entries[i].File);
    }
}

TEST(AllPrograms, AreListedOnceEach) {
    for (const Program& program : AllPrograms()) {
        EXPECT_EQ(ProgramOf(program.FileName), &program) << program.FileName;
        EXPECT_EQ(program.FileName, LowerCase(program.FileName));
    }
    EXPECT_EQ(AllPrograms().size(), 21U);
}

}  // namespace
}  // namespace lv
