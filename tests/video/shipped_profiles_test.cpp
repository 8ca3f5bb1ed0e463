// The profiles that come with the program, key by key: what StoreShippedProfiles of video/profile_model stores.

#include <gtest/gtest.h>

#include "tests/video/profile_fixture.h"
#include "video/profile_model.h"

namespace lv {
namespace {

/// Each profile is loaded first, which stores every key; behind that stand its own rows.
class ShippedProfiles : public ProfileModel {
  protected:
    std::vector<Text> RowsOf(TextView section) {
        std::vector<Text> writes = WritesTo(section);
        constexpr std::ptrdiff_t kEveryKey = 139;
        EXPECT_GT(writes.size(), static_cast<std::size_t>(kEveryKey));
        if (writes.size() > static_cast<std::size_t>(kEveryKey)) {
            writes.erase(writes.begin(), writes.begin() + kEveryKey);
        }
        return writes;
    }
};

// clang-format off
TEST_F(ShippedProfiles, TheDefaultProfileStoresItsRowsInOrder) {
    StoreShippedProfiles(run);
    const std::vector<Text> expected = {
        "Shadows|0", "ShadowSetting|0", "ShadowSetting_Content|0",
        "Mirrors|0", "MirrorSetting|10", "MirrorSetting_Content|1",
        "WaterAlpha|0", "WaterAlphaSetting|10", "WaterAlphaSetting_Content|1",
        "GL_ROUND_DOWN|0", "GL_ROUND_DOWN_Setting|1", "GL_ROUND_DOWN_Setting_Content|1",
        "GL_PICMIP|0", "GL_PICMIP_Setting|0", "GL_PICMIP_Setting_Content|0",
        "GL_PLAYERMIP|0", "GL_PLAYERMIP_Setting|0", "GL_PLAYERMIP_Setting_Content|0",
        "gl_ztrick|0", "gl_ztrick_Setting|1", "gl_ztrick_Setting_Content|1",
        "gl_keeptjunctions|0", "gl_keeptjunctions_Setting|1", "gl_keeptjunctions_Setting_Content|1",
        "gl_polyblend|0", "gl_polyblend_Setting|1", "gl_polyblend_Setting_Content|1",
        "GL_TEXTUREMODE|0", "GL_TEXTUREMODE_Setting|2", "GL_TEXTUREMODE_Setting_Content|GL_LINEAR_MIPMAP_NEAREST",
        "GL_FINISH|0", "GL_FINISH_Setting|1", "GL_FINISH_Setting_Content|1",
        "GL_FLASHBLEND|0", "GL_FLASHBLEND_Setting|1", "GL_FLASHBLEND_Setting_Content|1",
        "FX_GLIDE_SWAPINTERVAL|0", "FX_GLIDE_SWAPINTERVAL_Setting|1", "FX_GLIDE_SWAPINTERVAL_Setting_Content|1",
        "FX_GLIDE_NO_SPLASH|0", "FX_GLIDE_NO_SPLASH_Setting|0", "FX_GLIDE_NO_SPLASH_Setting_Content|0",
        "SST_RGAMMA|0", "SST_RGAMMA_Setting|4", "SST_RGAMMA_Setting_Content|1.7",
        "SST_GGAMMA|0", "SST_GGAMMA_Setting|4", "SST_GGAMMA_Setting_Content|1.7",
        "SST_BGAMMA|0", "SST_BGAMMA_Setting|4", "SST_BGAMMA_Setting_Content|1.7",
        "SST_FASTMEM|0", "SST_FASTMEM_Setting|0", "SST_FASTMEM_Setting_Content|0",
        "SST_FASTPCIRD|0", "SST_FASTPCIRD_Setting|0", "SST_FASTPCIRD_Setting_Content|0",
        "SST_VIDEO_24BPP|0", "SST_VIDEO_24BPP_Setting|0", "SST_VIDEO_24BPP_Setting_Content|0",
        "SST_SWAP_EN_WAIT_ON_VSYNC|0", "SST_SWAP_EN_WAIT_ON_VSYNC_Setting|1",
            "SST_SWAP_EN_WAIT_ON_VSYNC_Setting_Content|1",
        "SST_SCREENREFRESH|0", "SST_SCREENREFRESH_Setting|0", "SST_SCREENREFRESH_Setting_Content|60",
        "SST_GRXCLK|0", "SST_GRXCLK_Setting|0", "SST_GRXCLK_Setting_Content|50",
        "SST_VIDEO_NOCLEAR|0", "SST_VIDEO_NOCLEAR_Setting|0", "SST_VIDEO_NOCLEAR_Setting_Content|0",
        "SST_VIDEO_FILTER_DISABLE|0", "SST_VIDEO_FILTER_DISABLE_Setting|0",
            "SST_VIDEO_FILTER_DISABLE_Setting_Content|0",
        "SST_VIDEO_FILTER_THRESHOLD|0", "SST_VIDEO_FILTER_THRESHOLD_Setting|1",
            "SST_VIDEO_FILTER_THRESHOLD_Setting_Content|1",
        "FX_GLIDE_SWAPINTERVAL_VOODOO2|0",
        "SSTV2_GRXCLK|0", "SSTV2_GRXCLK_Setting|2", "SSTV2_GRXCLK_Setting_Content|90",
    };
    EXPECT_EQ(RowsOf("Default"), expected);
}

TEST_F(ShippedProfiles, OptimizeForSpeedStoresItsRowsInOrder) {
    StoreShippedProfiles(run);
    const std::vector<Text> expected = {
        "Shadows|0", "ShadowSetting|0", "ShadowSetting_Content|0",
        "Mirrors|0", "MirrorSetting|1", "MirrorSetting_Content|.1",
        "WaterAlpha|0", "WaterAlphaSetting|10", "WaterAlphaSetting_Content|1",
        "GL_ROUND_DOWN|0", "GL_ROUND_DOWN_Setting|1", "GL_ROUND_DOWN_Setting_Content|1",
        "GL_PICMIP|0", "GL_PICMIP_Setting|0", "GL_PICMIP_Setting_Content|0",
        "GL_PLAYERMIP|1", "GL_PLAYERMIP_Setting|3", "GL_PLAYERMIP_Setting_Content|3",
        "gl_ztrick|1", "gl_ztrick_Setting|0", "gl_ztrick_Setting_Content|0",
        "gl_keeptjunctions|1", "gl_keeptjunctions_Setting|0", "gl_keeptjunctions_Setting_Content|0",
        "gl_polyblend|1", "gl_polyblend_Setting|0", "gl_polyblend_Setting_Content|0",
        "GL_TEXTUREMODE|0", "GL_TEXTUREMODE_Setting|2", "GL_TEXTUREMODE_Setting_Content|GL_LINEAR_MIPMAP_NEAREST",
        "GL_FINISH|1", "GL_FINISH_Setting|0", "GL_FINISH_Setting_Content|0",
        "GL_FLASHBLEND|0", "GL_FLASHBLEND_Setting|1", "GL_FLASHBLEND_Setting_Content|1",
        "FX_GLIDE_SWAPINTERVAL|1", "FX_GLIDE_SWAPINTERVAL_Setting|0", "FX_GLIDE_SWAPINTERVAL_Setting_Content|0",
        "FX_GLIDE_NO_SPLASH|1", "FX_GLIDE_NO_SPLASH_Setting|1", "FX_GLIDE_NO_SPLASH_Setting_Content|1",
        "SST_RGAMMA|0", "SST_RGAMMA_Setting|4", "SST_RGAMMA_Setting_Content|1.7",
        "SST_GGAMMA|0", "SST_GGAMMA_Setting|4", "SST_GGAMMA_Setting_Content|1.7",
        "SST_BGAMMA|0", "SST_BGAMMA_Setting|4", "SST_BGAMMA_Setting_Content|1.7",
        "SST_FASTMEM|1", "SST_FASTMEM_Setting|1", "SST_FASTMEM_Setting_Content|1",
        "SST_FASTPCIRD|1", "SST_FASTPCIRD_Setting|1", "SST_FASTPCIRD_Setting_Content|1",
        "SST_VIDEO_24BPP|0", "SST_VIDEO_24BPP_Setting|0", "SST_VIDEO_24BPP_Setting_Content|0",
        "SST_SWAP_EN_WAIT_ON_VSYNC|1", "SST_SWAP_EN_WAIT_ON_VSYNC_Setting|0",
            "SST_SWAP_EN_WAIT_ON_VSYNC_Setting_Content|0",
        "SST_SCREENREFRESH|1", "SST_SCREENREFRESH_Setting|0", "SST_SCREENREFRESH_Setting_Content|60",
        "SST_GRXCLK|1", "SST_GRXCLK_Setting|3", "SST_GRXCLK_Setting_Content|57",
        "SST_VIDEO_NOCLEAR|1", "SST_VIDEO_NOCLEAR_Setting|1", "SST_VIDEO_NOCLEAR_Setting_Content|1",
        "SST_VIDEO_FILTER_DISABLE|0", "SST_VIDEO_FILTER_DISABLE_Setting|0",
            "SST_VIDEO_FILTER_DISABLE_Setting_Content|0",
        "SST_VIDEO_FILTER_THRESHOLD|0", "SST_VIDEO_FILTER_THRESHOLD_Setting|1",
            "SST_VIDEO_FILTER_THRESHOLD_Setting_Content|1",
        "FX_GLIDE_SWAPINTERVAL_VOODOO2|1",
        "FX_LOD_DITHER|0",
        "SSTV2_GRXCLK_Setting|7", "SSTV2_GRXCLK_Setting_Content|95",
    };
    EXPECT_EQ(RowsOf("Optimize for Speed"), expected);
}

TEST_F(ShippedProfiles, OptimizeForBeautyStoresItsRowsInOrder) {
    StoreShippedProfiles(run);
    const std::vector<Text> expected = {
        "Shadows|1", "ShadowSetting|1", "ShadowSetting_Content|1",
        "Mirrors|1", "MirrorSetting|5", "MirrorSetting_Content|.5",
        "WaterAlpha|1", "WaterAlphaSetting|6", "WaterAlphaSetting_Content|.6",
        "GL_ROUND_DOWN|1", "GL_ROUND_DOWN_Setting|0", "GL_ROUND_DOWN_Setting_Content|0",
        "GL_PICMIP|0", "GL_PICMIP_Setting|0", "GL_PICMIP_Setting_Content|0",
        "GL_PLAYERMIP|1", "GL_PLAYERMIP_Setting|0", "GL_PLAYERMIP_Setting_Content|0",
        "gl_ztrick|1", "gl_ztrick_Setting|1", "gl_ztrick_Setting_Content|1",
        "gl_keeptjunctions|1", "gl_keeptjunctions_Setting|1", "gl_keeptjunctions_Setting_Content|1",
        "gl_polyblend|1", "gl_polyblend_Setting|0", "gl_polyblend_Setting_Content|0",
        "GL_TEXTUREMODE|1", "GL_TEXTUREMODE_Setting|3", "GL_TEXTUREMODE_Setting_Content|GL_LINEAR_MIPMAP_LINEAR",
        "GL_FINISH|1", "GL_FINISH_Setting|1", "GL_FINISH_Setting_Content|1",
        "GL_FLASHBLEND|0", "GL_FLASHBLEND_Setting|1", "GL_FLASHBLEND_Setting_Content|1",
        "FX_GLIDE_SWAPINTERVAL|1", "FX_GLIDE_SWAPINTERVAL_Setting|1", "FX_GLIDE_SWAPINTERVAL_Setting_Content|1",
        "FX_GLIDE_NO_SPLASH|0", "FX_GLIDE_NO_SPLASH_Setting|0", "FX_GLIDE_NO_SPLASH_Setting_Content|0",
        "SST_RGAMMA|0", "SST_RGAMMA_Setting|4", "SST_RGAMMA_Setting_Content|1.7",
        "SST_GGAMMA|0", "SST_GGAMMA_Setting|4", "SST_GGAMMA_Setting_Content|1.7",
        "SST_BGAMMA|0", "SST_BGAMMA_Setting|4", "SST_BGAMMA_Setting_Content|1.7",
        "SST_FASTMEM|1", "SST_FASTMEM_Setting|1", "SST_FASTMEM_Setting_Content|1",
        "SST_FASTPCIRD|1", "SST_FASTPCIRD_Setting|1", "SST_FASTPCIRD_Setting_Content|1",
        "SST_VIDEO_24BPP|1", "SST_VIDEO_24BPP_Setting|1", "SST_VIDEO_24BPP_Setting_Content|1",
        "SST_SWAP_EN_WAIT_ON_VSYNC|1", "SST_SWAP_EN_WAIT_ON_VSYNC_Setting|1",
            "SST_SWAP_EN_WAIT_ON_VSYNC_Setting_Content|1",
        "SST_SCREENREFRESH|1", "SST_SCREENREFRESH_Setting|2", "SST_SCREENREFRESH_Setting_Content|85",
        "SST_GRXCLK|1", "SST_GRXCLK_Setting|1", "SST_GRXCLK_Setting_Content|53",
        "SST_VIDEO_NOCLEAR|1", "SST_VIDEO_NOCLEAR_Setting|1", "SST_VIDEO_NOCLEAR_Setting_Content|1",
        "SST_VIDEO_FILTER_DISABLE|0", "SST_VIDEO_FILTER_DISABLE_Setting|0",
            "SST_VIDEO_FILTER_DISABLE_Setting_Content|0",
        "SST_VIDEO_FILTER_THRESHOLD|0", "SST_VIDEO_FILTER_THRESHOLD_Setting|1",
            "SST_VIDEO_FILTER_THRESHOLD_Setting_Content|1",
        "FX_GLIDE_SWAPINTERVAL_VOODOO2|0",
        "FX_LOD_DITHER|1",
        "SSTV2_GRXCLK_Setting|2", "SSTV2_GRXCLK_Setting_Content|90",
    };
    EXPECT_EQ(RowsOf("Optimize for Beauty"), expected);
}

// clang-format on

TEST_F(ShippedProfiles, EachHasTheKeysThatItsRowsDoNotNameToo) {
    StoreShippedProfiles(run);
    for (const char* profile : {"Default", "Optimize for Speed", "Optimize for Beauty"}) {
        EXPECT_EQ(Stored(profile, "ResolutionsPos_Content"), Item("320x200", "-width 320 -height 200")) << profile;
        EXPECT_EQ(Stored(profile, "Q2_ResolutionsPos_Content"), "640x480") << profile;
        EXPECT_EQ(Stored(profile, "BitsPos_Content"), Item("8 bit color", "-bpp 8")) << profile;
        EXPECT_EQ(Stored(profile, "UnrealScaleXYZSetting_Content"), "500") << profile;
        EXPECT_EQ(Stored(profile, "VidCard"), "(none)") << profile;
    }
    EXPECT_EQ(Stored("Default", "FX_LOD_DITHER"), "0");
    EXPECT_EQ(Stored("Optimize for Speed", "SSTV2_GRXCLK"), "1");
}

TEST_F(ShippedProfiles, CreatingTheShippedProfilesLeavesTheCurrentSectionAsItWas) {
    run.VideoProfileSection = "Mine";
    StoreShippedProfiles(run);
    EXPECT_EQ(run.VideoProfileSection, "Mine");
}

}  // namespace
}  // namespace lv
