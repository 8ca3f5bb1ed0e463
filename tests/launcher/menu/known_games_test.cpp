#include "launcher/menu/known_games.h"

#include "tests/support/launcher_fixture.h"

namespace lv {

using KnownGames_ = LauncherTest;

TEST(WizardRowOf, KnowsSeventeenPrograms) {
    const std::vector<std::pair<const char*, int>> rows = {
        {"quake.exe", 0},    {"winquake.exe", 0}, {"vquake.exe", 0}, {"glquake.exe", 0}, {"qwcl.exe", 0},
        {"glqwcl.exe", 0},   {"quake2.exe", 2},   {"h2.exe", 1},     {"h2mp.exe", 1},    {"glh2.exe", 1},
        {"glh2mp.exe", 1},   {"hwcl.exe", 1},     {"unreal.exe", 3}, {"sin.exe", 4},     {"sindemo.exe", 4},
        {"heretic2.exe", 5}, {"hl.exe", 8},
    };
    for (const auto& [file, row] : rows) {
        EXPECT_EQ(WizardRowOf(file), row) << file;
    }
    EXPECT_EQ(WizardRowOf("HL.EXE"), 8);
    EXPECT_EQ(WizardRowOf("shogo.exe"), std::nullopt);
    EXPECT_EQ(WizardRowOf("glhwcl.exe"), std::nullopt);
}

TEST_F(KnownGames_, AreTheCatalogsWithTheirDirectories) {
    Save(run, kOptions, "Executables", "A;C:\\QUAKE\\QUAKE.EXE;B;C:\\X\\OTHER.EXE;C;D:/hl/hl.exe");
    const auto known = KnownGames(run);
    ASSERT_TRUE(known);
    ASSERT_EQ(known->size(), 2u);
    EXPECT_EQ(known->at(0).Row, 0);
    EXPECT_EQ(known->at(0).Directory, "C:\\QUAKE");
    EXPECT_EQ(known->at(1).Row, 8);
    EXPECT_EQ(known->at(1).Directory, "D:\\hl");
}

TEST_F(KnownGames_, ADamagedCatalogEndsTheProgram) {
    Save(run, kOptions, "Executables", "only one field");
    user.Expect({"Lorvane 3D", "Error : defaultExes = only one field"});
    EXPECT_FALSE(KnownGames(run));
    EXPECT_TRUE(run.Ended);
}

}  // namespace lv
