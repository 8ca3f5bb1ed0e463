#include "foundry/fonts/name_codes.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

namespace lv {
namespace {

std::set<int> Refused(Game gameKind) {
    std::set<int> refused;
    for (int code = 0; code < 256; ++code) {
        if (!NameTakes(gameKind, code)) {
            refused.insert(code);
        }
    }
    return refused;
}

TEST(NameTakes, AllButZeroAndLineEnds) {
    for (const Game gameKind :
         std::vector<Game>{Game::Quake, Game::Hexen2, Game::Sin, Game::Heretic2, Game::HalfLife}) {
        EXPECT_EQ(Refused(gameKind), (std::set<int>{0, 10, 13})) << NumberOf(gameKind);
    }
}

TEST(NameTakes, NoBackslashInQuake2) {
    EXPECT_EQ(Refused(Game::Quake2), (std::set<int>{0, 10, 13, 92}));
}

TEST(NameTakes, WhatUnrealsFontHas) {
    const std::set<int> holes = {0,   1,   2,   3,   4,   5,   6,   7,   8,   9,   10,  11,  12,  13,  14,  15,  16,
                                 17,  18,  19,  20,  21,  22,  23,  24,  25,  26,  27,  28,  29,  30,  31,  32,  169,
                                 170, 171, 172, 174, 175, 176, 177, 178, 179, 180, 184, 185, 186, 187, 188, 189, 191,
                                 192, 193, 194, 195, 196, 197, 200, 201, 202, 203, 204, 205, 208, 209, 217, 218, 219,
                                 220, 221, 223, 240, 241, 243, 244, 246, 251, 252, 253, 254, 255};
    EXPECT_EQ(Refused(Game::Unreal), holes);
}

}  // namespace
}  // namespace lv
