#include "launcher/menu/known_games.h"

#include "games/places.h"
#include "tests/support/launcher_fixture.h"

namespace lv {

using KnownGames_ = LauncherTest;

TEST_F(KnownGames_, AreTheCatalogsWithTheirDirectories) {
    Save(run, kOptions, "Executables", "A;C:\\QUAKE\\QUAKE.EXE;B;C:\\X\\OTHER.EXE;C;D:/hl/hl.exe");
    const auto known = KnownGames(run);
    ASSERT_TRUE(known);
    ASSERT_EQ(known->size(), 2u);
    EXPECT_EQ(known->at(0).Row, wizard_row::kQuake);
    EXPECT_EQ(known->at(0).Directory, "C:\\QUAKE");
    EXPECT_EQ(known->at(1).Row, wizard_row::kHalfLife);
    EXPECT_EQ(known->at(1).Directory, "D:\\hl");
}

TEST_F(KnownGames_, ADamagedCatalogEndsTheProgram) {
    Save(run, kOptions, "Executables", "only one field");
    user.Expect({"Lorvane 3D", "Error : defaultExes = only one field"});
    EXPECT_FALSE(KnownGames(run));
    EXPECT_TRUE(run.Ended);
}

}  // namespace lv
