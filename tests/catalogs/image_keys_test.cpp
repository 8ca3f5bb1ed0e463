#include "catalogs/image_keys.h"

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace lv
