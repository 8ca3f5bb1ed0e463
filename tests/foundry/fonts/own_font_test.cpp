#include "foundry/fonts/own_font.h"

#include <map>
#include <set>

#include "foundry/fonts/latin_letters.h"
#include "tests/foundry/fonts/font_files.h"

namespace lv {
namespace {

/// Which of the cell's pixels are drawn.
Text Shape(const FontMap& map, int code) {
    Text shape;
    for (int i = 0; i < 256; ++i) {
        shape += PixelOf(map, code, i % 16, i / 16)[3] == 0 ? '.' : '#';
    }
    return shape;
}

/// The mean light of a cell's rows.
double Light(const FontMap& map, int code, int firstRow, int lastRow) {
    double light = 0;
    int count = 0;
    for (int i = firstRow * 16; i < (lastRow + 1) * 16; ++i) {
        const Pixel pixel = PixelOf(map, code, i % 16, i / 16);
        light += pixel[3] == 0 ? 0 : pixel[0] + pixel[1] + pixel[2];
        count += pixel[3] == 0 ? 0 : 1;
    }
    return light / count;
}

bool IsGolden(const FontMap& map, int code) {
    for (int i = 0; i < 256; ++i) {
        const Pixel pixel = PixelOf(map, code, i % 16, i / 16);
        if (pixel[3] != 0 && (pixel[0] <= pixel[1] || pixel[1] <= pixel[2])) {
            return false;
        }
    }
    return !IsEmpty(map, code);
}

TEST(OwnFont, HasAShapeOfItsOwnForEachPlainLetter) {
    const FontMap map = OwnFont(Game::Quake);
    std::map<Text, int> shapes;
    for (int code = 33; code <= 126; ++code) {
        EXPECT_FALSE(IsEmpty(map, code)) << code;
        const auto [other, fresh] = shapes.emplace(Shape(map, code), code);
        EXPECT_TRUE(fresh) << code << " looks like " << other->second;
    }
}

TEST(OwnFont, LeavesBlanksEmpty) {
    const FontMap map = OwnFont(Game::Quake);
    EXPECT_TRUE(IsEmpty(map, 32));
    EXPECT_TRUE(IsEmpty(map, 160));
    EXPECT_TRUE(IsEmpty(map, 0));
}

TEST(OwnFont, DrawsQuakesSpecialCells) {
    const FontMap map = OwnFont(Game::Quake);
    for (const int code : {5, 11, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28, 29, 30, 31}) {
        EXPECT_FALSE(IsEmpty(map, code)) << code;
    }
    for (const int code : {128, 129, 130, 131}) {
        EXPECT_FALSE(IsEmpty(map, code)) << code;
    }
    EXPECT_TRUE(IsEmpty(map, 10)) << "the cursor is off";
    EXPECT_EQ(Shape(map, 5), Shape(map, 14));
}

TEST(OwnFont, HasGoldenTwinsInTheUpperHalf) {
    for (const Game gameKind : std::vector<Game>{Game::Quake, Game::Hexen2, Game::Quake2, Game::Sin, Game::HalfLife}) {
        const FontMap map = OwnFont(gameKind);
        for (int code = 161; code <= 254; ++code) {
            ASSERT_EQ(Shape(map, code), Shape(map, code - 128)) << code;
            ASSERT_TRUE(IsGolden(map, code)) << code;
            ASSERT_FALSE(IsGolden(map, code - 128)) << code;
        }
        EXPECT_EQ(Shape(map, 141), Shape(map, 13));
    }
}

TEST(OwnFont, HasSmallDigitsInGold) {
    const FontMap map = OwnFont(Game::Quake);
    std::set<Text> shapes;
    for (int code = 18; code <= 27; ++code) {
        EXPECT_TRUE(IsGolden(map, code)) << code;
        EXPECT_NE(Shape(map, code), Shape(map, code + 30)) << code;
        shapes.insert(Shape(map, code));
    }
    EXPECT_EQ(shapes.size(), 10U);
}

TEST(OwnFont, IsDarkerAtTheBottom) {
    const FontMap map = OwnFont(Game::Quake);
    for (const int code : {65, 72, 120, 200}) {
        EXPECT_GT(Light(map, code, 0, 7), 1.2 * Light(map, code, 8, 15)) << code;
    }
}

TEST(OwnFont, IsOfPixelsTwoByTwo) {
    const Text shape = Shape(OwnFont(Game::Quake), 'Q');
    for (std::size_t y = 0; y < 16; y += 2) {
        for (std::size_t x = 0; x < 16; x += 2) {
            const char pixel = shape[y * 16 + x];
            EXPECT_EQ(shape[y * 16 + x + 1], pixel);
            EXPECT_EQ(shape[(y + 1) * 16 + x], pixel);
            EXPECT_EQ(shape[(y + 1) * 16 + x + 1], pixel);
        }
    }
}

TEST(OwnFont, HasTheLettersOfItsCodePageInHeretic2) {
    const FontMap map = OwnFont(Game::Heretic2);
    const std::set<int> none = {129, 141, 143, 144, 157, 160, 173};
    std::map<Text, int> shapes;
    for (int code = 128; code < 256; ++code) {
        EXPECT_EQ(IsEmpty(map, code), none.contains(code)) << code;
        EXPECT_FALSE(IsGolden(map, code)) << code;
        if (code >= 192) {
            const auto [other, fresh] = shapes.emplace(Shape(map, code), code);
            EXPECT_TRUE(fresh) << code << " looks like " << other->second;
        }
    }
    EXPECT_NE(Shape(map, 233), Shape(map, 'e'));
    EXPECT_EQ(Shape(map, 233).substr(64), Shape(map, 'e').substr(64)) << "an accent stands above";
    EXPECT_EQ(Shape(map, 231).substr(0, 224), Shape(map, 'c').substr(0, 224)) << "a cedilla hangs below";
}

TEST(OwnFont, HasUnrealsHoles) {
    const FontMap map = OwnFont(Game::Unreal);
    for (const int code : {5, 16, 32, 169, 192, 208, 223, 246, 255}) {
        EXPECT_TRUE(IsEmpty(map, code)) << code;
    }
    for (const int code : {33, 126, 168, 198, 224, 233, 250}) {
        EXPECT_FALSE(IsEmpty(map, code)) << code;
    }
}

TEST(OwnLetters, StandOnceEach) {
    std::set<int> codes;
    for (const OwnLetter& letter : kPlainLetters) {
        EXPECT_TRUE(codes.insert(letter.Code).second) << letter.Code;
    }
    for (const OwnLetter& cell : kDecorations) {
        EXPECT_TRUE(codes.insert(cell.Code).second) << cell.Code;
    }
    codes.clear();
    for (const OwnLetter& sign : kLatinSigns) {
        EXPECT_TRUE(codes.insert(sign.Code).second) << sign.Code;
    }
    for (const AccentedLetter& accented : kAccentedLetters) {
        EXPECT_TRUE(codes.insert(accented.Code).second) << accented.Code;
    }
}

TEST(OwnLetters, HaveTheAccentsInTheOrderOfTheirNames) {
    int number = 0;
    for (const OwnLetter& accent : kAccents) {
        EXPECT_EQ(accent.Code, number++);
    }
    EXPECT_EQ(number, 8);
}

TEST(OwnLetters, KnowTheLetterUnderEachAccent) {
    // clang-format off
    const std::map<int, std::pair<char, Accent>> letters = {
        {138, {'S', Accent::Caron}}, {142, {'Z', Accent::Caron}}, {154, {'s', Accent::Caron}},
        {158, {'z', Accent::Caron}}, {159, {'Y', Accent::Diaeresis}},
        {192, {'A', Accent::Grave}}, {193, {'A', Accent::Acute}}, {194, {'A', Accent::Circumflex}},
        {195, {'A', Accent::Tilde}}, {196, {'A', Accent::Diaeresis}}, {197, {'A', Accent::Ring}},
        {199, {'C', Accent::Cedilla}}, {200, {'E', Accent::Grave}}, {201, {'E', Accent::Acute}},
        {202, {'E', Accent::Circumflex}}, {203, {'E', Accent::Diaeresis}}, {204, {'I', Accent::Grave}},
        {205, {'I', Accent::Acute}}, {206, {'I', Accent::Circumflex}}, {207, {'I', Accent::Diaeresis}},
        {209, {'N', Accent::Tilde}}, {210, {'O', Accent::Grave}}, {211, {'O', Accent::Acute}},
        {212, {'O', Accent::Circumflex}}, {213, {'O', Accent::Tilde}}, {214, {'O', Accent::Diaeresis}},
        {217, {'U', Accent::Grave}}, {218, {'U', Accent::Acute}}, {219, {'U', Accent::Circumflex}},
        {220, {'U', Accent::Diaeresis}}, {221, {'Y', Accent::Acute}},
        {224, {'a', Accent::Grave}}, {225, {'a', Accent::Acute}}, {226, {'a', Accent::Circumflex}},
        {227, {'a', Accent::Tilde}}, {228, {'a', Accent::Diaeresis}}, {229, {'a', Accent::Ring}},
        {231, {'c', Accent::Cedilla}}, {232, {'e', Accent::Grave}}, {233, {'e', Accent::Acute}},
        {234, {'e', Accent::Circumflex}}, {235, {'e', Accent::Diaeresis}}, {236, {'i', Accent::Grave}},
        {237, {'i', Accent::Acute}}, {238, {'i', Accent::Circumflex}}, {239, {'i', Accent::Diaeresis}},
        {241, {'n', Accent::Tilde}}, {242, {'o', Accent::Grave}}, {243, {'o', Accent::Acute}},
        {244, {'o', Accent::Circumflex}}, {245, {'o', Accent::Tilde}}, {246, {'o', Accent::Diaeresis}},
        {249, {'u', Accent::Grave}}, {250, {'u', Accent::Acute}}, {251, {'u', Accent::Circumflex}},
        {252, {'u', Accent::Diaeresis}}, {253, {'y', Accent::Acute}}, {255, {'y', Accent::Diaeresis}},
    };
    // clang-format on
    std::map<int, std::pair<char, Accent>> listed;
    for (const AccentedLetter& accented : kAccentedLetters) {
        listed[accented.Code] = {accented.Letter, accented.With};
    }
    EXPECT_EQ(listed, letters);
}

}  // namespace
}  // namespace lv
