#include "gamespy/spy_slots.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

struct Written {
    Text Game;
    const char* CheckBox;
    std::array<TextView, 4> Executables;
    SpyScripts Scripts;
    Text DataDirectory;
    Text Batch;
    Text Pif;
    Text PifTemplate;
    Text FileTag;
    const char* EmptyPathTitle;
};

class SpySlotTable : public ::testing::TestWithParam<std::pair<std::size_t, Written>> {};

TEST_P(SpySlotTable, HoldsThisRow) {
    const auto& [slot, written] = GetParam();
    const SpySlot& row = SpySlots()[slot];
    EXPECT_EQ(row.Game, written.Game);
    EXPECT_STREQ(row.CheckBox, written.CheckBox);
    for (const TextView file : written.Executables) {
        EXPECT_EQ(IsExecutableOf(slot, file), !file.empty()) << file;
    }
    EXPECT_EQ(row.Scripts, written.Scripts);
    EXPECT_EQ(DataDirectoryOf(row), written.DataDirectory);
    EXPECT_EQ(row.Batch, written.Batch);
    EXPECT_EQ(row.Pif, written.Pif);
    EXPECT_EQ(row.PifTemplate, written.PifTemplate);
    EXPECT_EQ(row.FileTag, written.FileTag);
    EXPECT_STREQ(row.EmptyPathTitle, written.EmptyPathTitle);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(All, SpySlotTable, ::testing::Values(
    std::pair<std::size_t, Written>{0, {"Quake", nullptr, {"quake.exe", "winquake.exe", "glquake.exe", "vquake.exe"}, SpyScripts::Of, "\\ID1", "QSL1_666.bat", "qsl1_666.pif", "lv_666.hid", "0000001 File = ", "Error in GameSpy Quake executable path"}},
    std::pair<std::size_t, Written>{1, {"QuakeWorld", "QWInstalled_Chk", {"qwcl.exe", "glqwcl.exe"}, SpyScripts::None, "\\ID1", "QSL2_666.bat", "qsl2_666.pif", "lv_666.hid", "0000002 File = ", "Error in GameSpy QuakeWorld executable path"}},
    std::pair<std::size_t, Written>{2, {"Hexen II", "Hexen2Installed_Chk", {"h2.exe", "glh2.exe"}, SpyScripts::Of, "\\DATA1", "QSL3_666.bat", "qsl3_666.pif", "lv_666.hid", "0000003 File = ", "Error in GameSpy Hexen ][ executable path"}},
    std::pair<std::size_t, Written>{3, {"Quake II", "Quake2Installed_Chk", {"quake2.exe"}, SpyScripts::Of, "\\BASEQ2", "QSL4_666.bat", "qsl4_666.pif", "lv_666_q2.hid", "0000004 File = ", "Error in GameSpy Quake ][ executable path"}},
    std::pair<std::size_t, Written>{4, {"Unreal", "UnRealInstalled_Chk", {"unreal.exe"}, SpyScripts::InisOf, "", "QSL5_666.bat", "qsl5_666.pif", "lv_666.hid", "0000016 File = ", "Error in GameSpy UnReal executable path"}},
    std::pair<std::size_t, Written>{5, {"Sin", "SinInstalled_Chk", {"sin.exe"}, SpyScripts::Of, "\\BASE", "QSL6_666.bat", "qsl6_666.pif", "lv_666_q2.hid", "0000005 File = ", "Error in GameSpy SIN executable path"}}));
// clang-format on

TEST(IsExecutableOf, LooksAtTheFileNameBlindToCase) {
    EXPECT_TRUE(IsExecutableOf(0, "C:\\QUAKE\\GLQUAKE.EXE"));
    EXPECT_TRUE(IsExecutableOf(0, "winquake.exe"));
    EXPECT_FALSE(IsExecutableOf(0, "C:\\QUAKE\\QWCL.EXE"));
    EXPECT_FALSE(IsExecutableOf(0, "C:\\QUAKE.EXE\\X.EXE"));
    EXPECT_FALSE(IsExecutableOf(0, "C:\\QUAKE\\"));
    EXPECT_FALSE(IsExecutableOf(5, ""));
}

}  // namespace
}  // namespace lv
