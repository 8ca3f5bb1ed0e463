#include "console/checks/engine_words.h"

#include <gtest/gtest.h>

namespace lv {

TEST(EngineWord, IsOneByItsNameOrByHowItBegins) {
    for (const TextView word :
         {"hostname", "Samelevel", "TEAMPLAY", "r_wateralpha", "CL_anything", "gl_flashblend", "chase_active",
          "fps_max", "cancelselect", "slot3", "temp1", "dmflags", "_windowed_mouse", "InvLeft", "weapon_gauss"}) {
        EXPECT_TRUE(IsEngineWord(word)) << word;
    }
}

TEST(EngineWord, IsNoneByLookingLikeOne) {
    for (const TextView word : {"", "frobnicate", "hostnam", "hostnames", "wibble", "c", "sensitivty"}) {
        EXPECT_FALSE(IsEngineWord(word)) << word;
    }
}

}  // namespace lv
