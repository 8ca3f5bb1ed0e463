#include "foundry/fonts/player_colors.h"

#include "tests/foundry/fonts/font_files.h"

namespace lv {
namespace {

// Of the test palette: red i, green 255 - i, blue i / 2, the lowest byte red.

TEST(QuakeColors, AreTheNinthEntriesOfTheirRows) {
    EXPECT_EQ(QuakeColors(TestPalette()),
              (PlayerColorList{0x04F708, 0x0CE718, 0x14D728, 0x1CC738, 0x24B748, 0x2CA758, 0x349768, 0x3C8778, 0x447788,
                               0x4C6798, 0x5457A8, 0x5C47B8, 0x6437C8, 0x6C27D8}));
}

/// The third block recolours 40 and 50; of 50, in the row of colour c, it makes 100 + c.
Text PlayerTable() {
    Text table = Zeros(256 + 3 * 14 * 256);
    const std::size_t block = 256 + 2 * 14 * 256;
    std::fill_n(table.begin() + static_cast<std::ptrdiff_t>(block), 256, '\xFF');
    table[block + 40] = 30;
    table[block + 50] = 50;
    for (std::size_t color = 1; color <= 12; ++color) {
        table[block + (1 + color) * 256 + 50] = static_cast<char>(100 + color);
    }
    return table;
}

TEST(Hexen2Colors, AreThoseOfTheLastIndexThatIsRecolored) {
    const auto colors = Hexen2Colors(TestPalette(), PlayerTable());
    ASSERT_TRUE(colors);
    EXPECT_EQ((*colors)[1], 0x329A65U);   // 101
    EXPECT_EQ((*colors)[10], 0x37916EU);  // 110
}

TEST(Hexen2Colors, AreTheClasssOwnForZeroAndBeyondTen) {
    const auto colors = Hexen2Colors(TestPalette(), PlayerTable());
    ASSERT_TRUE(colors);
    for (const std::size_t color : {0U, 11U, 12U, 13U}) {
        EXPECT_EQ((*colors)[color], 0x19CD32U) << color;  // 50
    }
}

TEST(Hexen2Colors, WantATableThatRecolors) {
    Text table = PlayerTable();
    std::fill_n(table.begin() + 256 + 2 * 14 * 256, 256, '\xFF');
    EXPECT_FALSE(Hexen2Colors(TestPalette(), table));
}

TEST(Hexen2Colors, WantTheWholeTable) {
    EXPECT_FALSE(Hexen2Colors(TestPalette(), PlayerTable().substr(1)));
    EXPECT_FALSE(Hexen2Colors(TestPalette(), ""));
}

}  // namespace
}  // namespace lv
