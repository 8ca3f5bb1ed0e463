#include "foundry/fonts/wad.h"

#include "tests/foundry/fonts/font_files.h"

namespace lv {
namespace {

Text SmallWad() {
    return WadFile({{"PALETTE", "colours"}, {"CONCHARS", "letters"}});
}

TEST(FindWadLump, GoesByTheNameAndNotTheType) {
    EXPECT_EQ(FindWadLump(SmallWad(), "CONCHARS").value_or("none"), "letters");
    EXPECT_EQ(FindWadLump(WadFile({{"CONCHARS", "font", 70}}, "WAD3"), "CONCHARS").value_or("none"), "font");
}

TEST(FindWadLump, IsBlindToLetterCase) {
    EXPECT_EQ(FindWadLump(WadFile({{"conChars", "letters"}}), "CONCHARS").value_or("none"), "letters");
}

TEST(FindWadLump, KnowsNamesThatFillTheirField) {
    EXPECT_EQ(FindWadLump(WadFile({{"SIXTEEN_LETTERS_", "x"}}), "SIXTEEN_LETTERS_").value_or("none"), "x");
}

TEST(FindWadLump, FindsNothingOfAnotherName) {
    EXPECT_FALSE(FindWadLump(SmallWad(), "CONCHAR"));
    EXPECT_FALSE(FindWadLump(WadFile({}), "CONCHARS"));
}

TEST(FindWadLump, RefusesCompressedLumps) {
    EXPECT_FALSE(FindWadLump(WadFile({{"CONCHARS", "letters", 68, 1}}), "CONCHARS"));
}

TEST(FindWadLump, TakesTheFirstThatIsWhole) {
    EXPECT_EQ(FindWadLump(WadFile({{"A", "1"}, {"A", "2"}}), "A").value_or("none"), "1");
    EXPECT_EQ(FindWadLump(WadFile({{"A", "1", 68, 1}, {"A", "2"}}), "A").value_or("none"), "2");
}

TEST(FindWadLump, RefusesALumpThatLiesOutside) {
    Text wad = WadFile({{"A", "1234"}});
    wad.replace(16, 4, Bytes32(45));  // 48 bytes in all
    EXPECT_FALSE(FindWadLump(wad, "A"));
    wad.replace(16, 4, Bytes32(0xFFFFFFFF));
    EXPECT_FALSE(FindWadLump(wad, "A"));
    wad.replace(16, 4, Bytes32(44));
    EXPECT_TRUE(FindWadLump(wad, "A"));
    wad.replace(20, 4, Bytes32(0xFFFFFFFF));
    EXPECT_FALSE(FindWadLump(wad, "A"));
}

TEST(FindWadLump, RefusesADirectoryThatLiesOutside) {
    Text wad = SmallWad();
    wad.replace(8, 4, Bytes32(static_cast<std::uint32_t>(wad.size() - 63)));
    EXPECT_FALSE(FindWadLump(wad, "CONCHARS"));
    wad = SmallWad();
    wad.replace(4, 4, Bytes32(3));
    EXPECT_FALSE(FindWadLump(wad, "CONCHARS"));
    wad.replace(4, 4, Bytes32(0xFFFFFFFF));
    EXPECT_FALSE(FindWadLump(wad, "CONCHARS"));
}

TEST(FindWadLump, RefusesOtherFiles) {
    EXPECT_FALSE(FindWadLump("", "CONCHARS"));
    EXPECT_FALSE(FindWadLump("WAD2", "CONCHARS"));
    EXPECT_FALSE(FindWadLump(WadFile({{"CONCHARS", "letters"}}, "IWAD"), "CONCHARS"));
}

TEST(FindWadLump, StaysWithinTheFileHoweverItIsDamaged) {
    ForEachDamage(SmallWad(), 0, [](TextView bytes) {
        for (const TextView name : {"CONCHARS", "PALETTE"}) {
            if (const auto lump = FindWadLump(bytes, name)) {
                EXPECT_GE(lump->data(), bytes.data());
                EXPECT_LE(lump->data() + lump->size(), bytes.data() + bytes.size());
            }
        }
    });
}

}  // namespace
}  // namespace lv
