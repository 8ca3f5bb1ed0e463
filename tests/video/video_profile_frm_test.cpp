#include "video/video_profile_frm.h"

#include "tests/video/profile_fixture.h"
#include "video/profile_model.h"

namespace lv {
namespace {

class VideoProfileWindowTest : public ProfileModel {
  protected:
    std::vector<TextView> ShownPanels() {
        std::vector<TextView> shown;
        for (const ProfilePanelRow& row : ProfilePanelRows()) {
            if (form.PanelOf(row.Panel).Visible) {
                shown.emplace_back(row.Name);
            }
        }
        return shown;
    }

    VideoProfile_Frm form{run};
};

using VideoProfile = VideoProfileWindowTest;

TEST_F(VideoProfile, IsCalledVideoProfileUntilAProfileIsLoaded) {
    EXPECT_EQ(form.Caption, "Video Profile");
    Videop(form);
    EXPECT_EQ(form.Caption, "Video Profile - 'Base'");
}

struct SavedCase {
    const char* Name;
    const char* FlagKey;
    int Pick;
    const char* SettingKey;
    const char* Content;
};

// clang-format off
const SavedCase kSaved[] = {
    {"Shadows",                    "Shadows",                    1,  "ShadowSetting",                      "1"},
    {"Mirrors",                    "Mirrors",                    5,  "MirrorSetting",                      ".5"},
    {"WaterAlpha",                 "WaterAlpha",                 6,  "WaterAlphaSetting",                  ".6"},
    {"GL_ROUND_DOWN",              "GL_ROUND_DOWN",              0,  "GL_ROUND_DOWN_Setting",              "0"},
    {"GL_PICMIP",                  "GL_PICMIP",                  2,  "GL_PICMIP_Setting",                  "2"},
    {"D_MIPCAP",                   "D_MipCap",                   3,  "D_MipCap_Setting",                   "3"},
    {"GL_PLAYERMIP",               "GL_PLAYERMIP",               3,  "GL_PLAYERMIP_Setting",               "3"},
    {"gl_ztrick",                  "gl_ztrick",                  1,  "gl_ztrick_Setting",                  "1"},
    {"gl_keeptjunctions",          "gl_keeptjunctions",          1,  "gl_keeptjunctions_Setting",          "1"},
    {"gl_polyblend",               "gl_polyblend",               1,  "gl_polyblend_Setting",               "1"},
    {"GL_TEXTUREMODE",             "GL_TEXTUREMODE",             3,  "GL_TEXTUREMODE_Setting",             "GL_LINEAR_MIPMAP_LINEAR"},
    {"GL_FINISH",                  "GL_FINISH",                  0,  "GL_FINISH_Setting",                  "0"},
    {"GL_FLASHBLEND",              "GL_FLASHBLEND",              0,  "GL_FLASHBLEND_Setting",              "0"},
    {"FX_GLIDE_SWAPINTERVAL",      "FX_GLIDE_SWAPINTERVAL",      2,  "FX_GLIDE_SWAPINTERVAL_Setting",      "2"},
    {"FX_GLIDE_NO_SPLASH",         "FX_GLIDE_NO_SPLASH",         1,  "FX_GLIDE_NO_SPLASH_Setting",         "1"},
    {"SST_RGAMMA",                 "SST_RGAMMA",                 0,  "SST_RGAMMA_Setting",                 "1.3"},
    {"SST_GGAMMA",                 "SST_GGAMMA",                 7,  "SST_GGAMMA_Setting",                 "2.0"},
    {"SST_BGAMMA",                 "SST_BGAMMA",                 27, "SST_BGAMMA_Setting",                 "4.0"},
    {"SST_FASTMEM",                "SST_FASTMEM",                1,  "SST_FASTMEM_Setting",                "1"},
    {"SST_FASTPCIRD",              "SST_FASTPCIRD",              1,  "SST_FASTPCIRD_Setting",              "1"},
    {"SST_VIDEO_24BPP",            "SST_VIDEO_24BPP",            1,  "SST_VIDEO_24BPP_Setting",            "1"},
    {"SST_VIDEO_NOCLEAR",          "SST_VIDEO_NOCLEAR",          1,  "SST_VIDEO_NOCLEAR_Setting",          "1"},
    {"SST_VIDEO_FILTER_DISABLE",   "SST_VIDEO_FILTER_DISABLE",   1,  "SST_VIDEO_FILTER_DISABLE_Setting",   "1"},
    {"SST_VIDEO_FILTER_THRESHOLD", "SST_VIDEO_FILTER_THRESHOLD", 1,  "SST_VIDEO_FILTER_THRESHOLD_Setting", "1"},
    {"SST_SWAP_EN_WAIT_ON_VSYNC",  "SST_SWAP_EN_WAIT_ON_VSYNC",  0,  "SST_SWAP_EN_WAIT_ON_VSYNC_Setting",  "0"},
    {"SST_SCREENREFRESH",          "SST_SCREENREFRESH",          3,  "SST_SCREENREFRESH_Setting",          "120"},
    {"SST_GRXCLK",                 "SST_GRXCLK",                 0,  "SST_GRXCLK_Setting",                 "50"},
    {"SSTV2_GRXCLK",               "SSTV2_GRXCLK",               1,  "SSTV2_GRXCLK_Setting",               "85"},
    {"UnrealBrightness",           "UnrealBrightness",           10, "UnrealBrightnessSetting",            "10"},
    {"UnrealMipFactor",            "UnrealMipFactor",            19, "UnrealMipFactorSetting",             "2.0"},
    {"UnrealScaleXYZ",             "UnrealScaleXYZ",             2,  "UnrealScaleXYZSetting",              "1500"},
    {"UnrealScaleRUV",             "UnrealScaleRUV",             1,  "UnrealScaleRUVSetting",              "2000"},
    {"UnrealUseDirectDraw",        "UnrealUseDirectDraw",        1,  "UnrealUseDirectDrawSetting",         "False"},
    {"UnrealCurvedSurfaces",       "UnrealCurvedSurfaces",       1,  "UnrealCurvedSurfacesSetting",        "False"},
    {"UnrealLowDetailTextures",    "UnrealLowDetailTextures",    0,  "UnrealLowDetailTexturesSetting",     "True"},
    {"UnrealScreenFlashes",        "UnrealScreenFlashes",        1,  "UnrealScreenFlashesSetting",         "False"},
    {"UnrealNoLighting",           "UnrealNoLighting",           0,  "UnrealNoLightingSetting",            "True"},
    {"UnrealSlowVideoBuffering",   "UnrealSlowVideoBuffering",   1,  "UnrealSlowVideoBufferingSetting",    "False"},
    {"UnrealDeadZoneXYZ",          "UnrealDeadZoneXYZ",          0,  "UnrealDeadZoneXYZSetting",           "True"},
    {"UnrealDeadZoneRUV",          "UnrealDeadZoneRUV",          1,  "UnrealDeadZoneRUVSetting",           "False"},
};
// clang-format on

// Saving

TEST_F(VideoProfile, EachBoxAndEachListSavesItsOwnKeysAtOnceAndNoOthers) {
    run.VideoProfileSection = "Mine";
    for (const SavedCase& expected : kSaved) {
        system.Settings.Log.clear();
        ProfileBox& box = form.BoxOf(expected.Name);
        box.Chk.Value = 1;
        Profile_Chk_Click(form, box);
        EXPECT_EQ(WritesTo("Mine"), (std::vector<Text>{Join(expected.FlagKey, "|1")}));
        system.Settings.Log.clear();
        box.Cbo.ListIndex = expected.Pick;
        Profile_Cbo_Click(form, box);
        EXPECT_EQ(WritesTo("Mine"), (std::vector<Text>{Join(expected.SettingKey, "|", std::to_string(expected.Pick)),
                                                       Join(expected.SettingKey, "_Content|", expected.Content)}));
        system.Settings.Log.clear();
        box.Chk.Value = 0;
        Profile_Chk_Click(form, box);
        EXPECT_EQ(WritesTo("Mine"), (std::vector<Text>{Join(expected.FlagKey, "|0")}));
    }
}

TEST_F(VideoProfile, EachPlainFlagSavesItself) {
    run.VideoProfileSection = "Mine";
    for (const char* flag : {"FX_GLIDE_SWAPINTERVAL_VOODOO2", "FX_LOD_DITHER", "SSTV2_TMU_MEMSIZE",
                             "SSTV2_SWAPINTERVAL", "SSTV2_FORCE_TRILINEAR", "SSTV2_SLIDETECT"}) {
        system.Settings.Log.clear();
        ProfileBox& box = form.BoxOf(flag);
        box.Chk.Value = 1;
        Profile_Chk_Click(form, box);
        EXPECT_EQ(WritesTo("Mine"), (std::vector<Text>{Join(flag, "|1")}));
    }
}

TEST_F(VideoProfile, ResolutionColourDepthAndDriverSaveThemselves) {
    Videop(form);
    form.Rez_Cbo.ListIndex = 4;
    Rez_Cbo_Click(form);
    EXPECT_EQ(Stored(kOptions, "ResolutionsPos"), "4");
    EXPECT_EQ(Stored(kOptions, "ResolutionsPos_Content"), Item("640x480", "-width 640"));
    form.Bits_Cbo.ListIndex = 1;
    Bits_Cbo_Click(form);
    EXPECT_EQ(Stored(kOptions, "BitsPos"), "1");
    EXPECT_EQ(Stored(kOptions, "BitsPos_Content"), Item("16 bit color", "-bpp 16"));
    form.Q2_Rez_Cbo.ListIndex = 6;
    Q2_Rez_Cbo_Click(form);
    EXPECT_EQ(Stored(kOptions, "Q2_ResolutionsPos"), "6");
    EXPECT_EQ(Stored(kOptions, "Q2_ResolutionsPos_Content"), "1024x768");
    form.GraphicsDriver_Cbo.ListIndex = 3;
    GraphicsDriver_Cbo_Click(form);
    EXPECT_EQ(Stored(kOptions, "GraphicsDriver"), "3");
    form.GraphicsDriver_Chk.Value = 1;
    GraphicsDriver_Chk_Click(form);
    EXPECT_EQ(Stored(kOptions, "UseGraphicsDriver"), "1");
    form.Windowed_Chk.Value = 1;
    Windowed_Chk_Click(form);
    EXPECT_EQ(Stored(kOptions, "Windowed"), "1");
    form.GL_Chk[0].Value = 1;
    GL_Chk_Click(form, 0);
    EXPECT_EQ(Stored(kOptions, "UseRez"), "1");
    form.GL_Chk[1].Value = 1;
    GL_Chk_Click(form, 1);
    EXPECT_EQ(Stored(kOptions, "UseBits"), "1");
}

TEST_F(VideoProfile, TickingAResolutionThatWasNeverPickedStoresTheOneThatIsSeen) {
    Videop(form);
    form.GL_Chk[0].Value = 1;
    GL_Chk_Click(form, 0);
    EXPECT_EQ(Stored(kOptions, "ResolutionsPos_Content"), Item("320x200", "-width 320 -height 200"));
    EXPECT_EQ(Stored(kOptions, "Q2_ResolutionsPos_Content"), "640x480");
    form.GL_Chk[1].Value = 1;
    GL_Chk_Click(form, 1);
    EXPECT_EQ(Stored(kOptions, "BitsPos_Content"), Item("8 bit color", "-bpp 8"));
}

TEST_F(VideoProfile, TickingAResolutionLeavesOneThatWasPicked) {
    Store(kOptions, "ResolutionsPos", "4");
    Store(kOptions, "ResolutionsPos_Content", "as it was");
    Videop(form);
    form.GL_Chk[0].Value = 1;
    GL_Chk_Click(form, 0);
    EXPECT_EQ(Stored(kOptions, "ResolutionsPos_Content"), "as it was");
}

TEST_F(VideoProfile, ATickIsSavedEvenWhenItsListHasNoSelection) {
    Store(kOptions, "ShadowSetting", "-1");
    Videop(form);
    ProfileBox& box = form.BoxOf("Shadows");
    EXPECT_EQ(box.Cbo.ListIndex, -1);
    box.Chk.Value = 1;
    Profile_Chk_Click(form, box);
    EXPECT_EQ(Stored(kOptions, "Shadows"), "1");
    EXPECT_FALSE(ReadProfile(run).Active("Shadows"));
}

TEST_F(VideoProfile, WhileAProfileIsLoadedHandlersSaveNothing) {
    form.ProfileLoading = true;
    for (ProfileBox& box : form.Boxes) {
        Profile_Chk_Click(form, box);
        box.Cbo.ListIndex = 0;
        if (box.Tunable != nullptr) {
            Profile_Cbo_Click(form, box);
        }
    }
    form.Rez_Cbo.Items = {"a"};
    form.Bits_Cbo.Items = {"b"};
    for (ListBox* list : {&form.Rez_Cbo, &form.Q2_Rez_Cbo, &form.Bits_Cbo, &form.VidCard_Cbo}) {
        list->ListIndex = 0;
    }
    for (CheckBox* box : {&form.GL_Chk[0], &form.GL_Chk[1]}) {
        box->Value = 1;
    }
    Windowed_Chk_Click(form);
    GL_Chk_Click(form, 0);
    GL_Chk_Click(form, 1);
    Rez_Cbo_Click(form);
    Q2_Rez_Cbo_Click(form);
    Bits_Cbo_Click(form);
    VidCard_Cbo_Click(form);
    GraphicsDriver_Chk_Click(form);
    GraphicsDriver_Cbo_Click(form);
    EXPECT_TRUE(system.Settings.Log.empty());
}

// Loading

TEST_F(VideoProfile, AFreshProfileShowsTheDefaults) {
    run.VideoProfileSection = "Fresh";
    Videop(form);
    for (const ProfileBox& box : form.Boxes) {
        const bool on =
            TextView(box.Row->Name) == "SSTV2_GRXCLK" || TextView(box.Row->Name) == "FX_GLIDE_SWAPINTERVAL_VOODOO2";
        EXPECT_EQ(box.Chk.Value, on ? 1 : 0) << box.Row->Name;
    }
    EXPECT_EQ(form.BoxOf("Mirrors").Cbo.Selected(), "1");
    EXPECT_EQ(form.BoxOf("GL_TEXTUREMODE").Cbo.Selected(), "GL_LINEAR_MIPMAP_NEAREST");
    EXPECT_EQ(form.BoxOf("SST_RGAMMA").Cbo.Selected(), "1.7");
    EXPECT_EQ(form.BoxOf("SSTV2_GRXCLK").Cbo.Selected(), "90");
    EXPECT_EQ(form.BoxOf("UnrealUseDirectDraw").Cbo.Selected(), "True");
    EXPECT_EQ(form.Rez_Cbo.Items.size(), 9u);
    EXPECT_EQ(form.Rez_Cbo.Selected(), Item("320x200", "-width 320 -height 200"));
    EXPECT_EQ(form.Bits_Cbo.Items.size(), 4u);
    EXPECT_EQ(form.Q2_Rez_Cbo.Selected(), "640x480");
    EXPECT_EQ(form.GraphicsDriver_Cbo.Selected(), "Software - Window");
}

TEST_F(VideoProfile, LoadingAFreshProfileStoresEveryKey) {
    run.VideoProfileSection = "Fresh";
    Videop(form);
    EXPECT_EQ(WritesTo("Fresh").size(), 139u);
    EXPECT_EQ(Stored("Fresh", "ResolutionsPos_Content"), Item("320x200", "-width 320 -height 200"));
    EXPECT_EQ(Stored("Fresh", "Q2_ResolutionsPos_Content"), "640x480");
    EXPECT_EQ(Stored("Fresh", "SST_SCREENREFRESH"), "0");
    system.Settings.Log.clear();
    Videop(form);
    EXPECT_TRUE(system.Settings.Log.empty());
}

TEST_F(VideoProfile, LoadingKeepsWhatIsStoredToTheLetter) {
    Store(kOptions, "gl_ztrick_Setting", "1st");
    Store(kOptions, "SST_GRXCLK_Setting_Content", "54");
    Store(kOptions, "ResolutionsPos_Content", "");
    Videop(form);
    EXPECT_EQ(Stored(kOptions, "gl_ztrick_Setting"), "1st");
    EXPECT_EQ(Stored(kOptions, "SST_GRXCLK_Setting_Content"), "54");
    EXPECT_EQ(Stored(kOptions, "ResolutionsPos_Content"), Item("320x200", "-width 320 -height 200"));
}

TEST_F(VideoProfile, ReadsTheCurrentSectionOnly) {
    Store("Mine", "Mirrors", "1");
    Store("Mine", "MirrorSetting", "3");
    Videop(form);
    EXPECT_EQ(form.BoxOf("Mirrors").Chk.Value, 0);
    run.VideoProfileSection = "Mine";
    Videop(form);
    EXPECT_EQ(form.BoxOf("Mirrors").Chk.Value, 1);
    EXPECT_EQ(form.BoxOf("Mirrors").Cbo.Selected(), ".3");
}

TEST_F(VideoProfile, ShowsTheListsOfItsSection) {
    Store(kOptions, "Resolutions", "1x1;-width 1;2x2;-width 2");
    Store(kOptions, "Bits", "two bits;-bpp 2");
    Videop(form);
    EXPECT_EQ(form.Rez_Cbo.Items, (std::vector<Text>{Item("1x1", "-width 1"), Item("2x2", "-width 2")}));
    EXPECT_EQ(form.Bits_Cbo.Items, (std::vector<Text>{Item("two bits", "-bpp 2")}));
}

TEST_F(VideoProfile, APositionBeyondItsListBecomesTheLastAndIsSaved) {
    Store(kOptions, "ResolutionsPos", "9");
    Store(kOptions, "BitsPos", "77");
    Videop(form);
    EXPECT_EQ(form.Rez_Cbo.ListIndex, 8);
    EXPECT_EQ(form.Bits_Cbo.ListIndex, 3);
    EXPECT_EQ(Stored(kOptions, "ResolutionsPos"), "8");
    EXPECT_EQ(Stored(kOptions, "BitsPos"), "3");
}

TEST_F(VideoProfile, ADriverThatTheListDoesNotOfferShowsNoneAndStays) {
    Store(kOptions, "GraphicsDriver", "7");
    Videop(form);
    EXPECT_EQ(form.GraphicsDriver_Cbo.ListIndex, -1);
    EXPECT_EQ(Stored(kOptions, "GraphicsDriver"), "7");
}

TEST_F(VideoProfile, ABrokenListOfResolutionsEndsTheProgram) {
    Store(kOptions, "Resolutions", "640x480;-width 640;odd");
    ExpectMessage(
        "Lorvane 3D experienced a probable registry error.\r\nError : defaultRezs = 640x480;-width 640;odd\r\n"
        "Please contact technical support.");
    VideoProfile_Frm_Load(form);
    EXPECT_TRUE(run.Ended);
    EXPECT_FALSE(form.VideoProfileWindowOpen);
}

TEST_F(VideoProfile, ABrokenListOfColourDepthsEndsTheProgram) {
    Store(kOptions, "Bits", "short");
    ExpectMessage(
        "Lorvane 3D experienced a probable registry error.\r\nError : defaultBits = short\r\n"
        "Please contact technical support.");
    VideoProfile_Frm_Load(form);
    EXPECT_TRUE(run.Ended);
}

TEST_F(VideoProfile, TheCaptionNamesTheProfile) {
    Videop(form);
    EXPECT_EQ(form.Caption, "Video Profile - 'Base'");
    run.VideoProfileSection = "Optimize for Speed";
    Videop(form);
    EXPECT_EQ(form.Caption, "Video Profile - 'Optimize for Speed'");
}

// Cards and games

struct CardCase {
    int Row;
    const char* Stored;
    Index CardClass;
    std::vector<TextView> Panels;
    bool Splash;
};

const CardCase kCards[] = {
    {0, "0", 0, {"Resolution_Pan", "No3DHardware_Pan"}, false},
    {1, "1", 1, {"Resolution_Pan", "VoodooScreenColor_Pan", "Effects_Pan", "Voodoo1_Pan"}, true},
    {2, "2", 2, {"Resolution_Pan", "VoodooScreenColor_Pan", "Effects_Pan", "Voodoo2_Pan"}, true},
    {3, "100", 100, {"Resolution_Pan", "Effects_Pan"}, false},
};

TEST_F(VideoProfile, EachCardShowsItsPanels) {
    VideoProfile_Frm_Load(form);
    for (const CardCase& expected : kCards) {
        form.VidCard_Cbo.ListIndex = expected.Row;
        VidCard_Cbo_Click(form);
        EXPECT_EQ(form.CardClass, expected.CardClass);
        EXPECT_EQ(Stored(kOptions, "VidCard"), expected.Stored);
        EXPECT_EQ(ShownPanels(), expected.Panels) << expected.Row;
        EXPECT_EQ(form.BoxOf("FX_GLIDE_NO_SPLASH").Chk.Visible, expected.Splash);
        EXPECT_EQ(form.BoxOf("FX_GLIDE_NO_SPLASH").Cbo.Visible, expected.Splash);
    }
}

TEST_F(VideoProfile, AStoredCardShowsItsPanelsAtTheLoad) {
    for (const CardCase& expected : kCards) {
        Store(kOptions, "VidCard", expected.Stored);
        VideoProfile_Frm_Load(form);
        EXPECT_EQ(form.VidCard_Cbo.ListIndex, expected.Row);
        EXPECT_EQ(form.CardClass, expected.CardClass);
        EXPECT_EQ(ShownPanels(), expected.Panels) << expected.Stored;
        VideoProfile_Frm_Unload(form);
    }
}

TEST_F(VideoProfile, TheCardIsStoredForAllProfiles) {
    run.VideoProfileSection = "Mine";
    Videop(form);
    form.VidCard_Cbo.ListIndex = 2;
    VidCard_Cbo_Click(form);
    EXPECT_EQ(Stored(kOptions, "VidCard"), "2");
    EXPECT_EQ(Stored("Mine", "VidCard"), "(none)");
}

TEST_F(VideoProfile, UnrealsPanelIsForUnrealOnly) {
    constexpr Game kKinds[] = {Game::None,   Game::Quake, Game::Hexen2,   Game::Quake2,
                               Game::Unreal, Game::Sin,   Game::Heretic2, Game::HalfLife};
    for (const Game kind : kKinds) {
        run.GameKind = kind;
        ShowGameControls(form);
        EXPECT_EQ(form.PanelOf(ProfilePanel::UnrealVideo).Visible, kind == Game::Unreal) << NumberOf(kind);
    }
}

TEST_F(VideoProfile, TheQuake2FamilyHasItsOwnResolutionsAndADriverButNoColourDepth) {
    constexpr Dialect kFamilies[] = {Dialect::None, Dialect::Quake, Dialect::Quake2, Dialect::Unreal};
    for (const Dialect family : kFamilies) {
        run.ScriptFamily = family;
        ShowGameControls(form);
        const bool quake2 = family == Dialect::Quake2;
        EXPECT_EQ(form.Q2_Rez_Cbo.Visible, quake2) << static_cast<Index>(family);
        EXPECT_EQ(form.GraphicsDriver_Chk.Visible, quake2) << static_cast<Index>(family);
        EXPECT_EQ(form.GraphicsDriver_Cbo.Visible, quake2) << static_cast<Index>(family);
        EXPECT_EQ(form.Rez_Cbo.Visible, !quake2) << static_cast<Index>(family);
        EXPECT_EQ(form.Bits_Cbo.Visible, !quake2) << static_cast<Index>(family);
        EXPECT_EQ(form.GL_Chk[1].Visible, !quake2) << static_cast<Index>(family);
        EXPECT_TRUE(form.GL_Chk[0].Visible) << static_cast<Index>(family);
    }
}

// Life

TEST_F(VideoProfile, IsOpenFromLoadToUnload) {
    EXPECT_FALSE(form.VideoProfileWindowOpen);
    VideoProfile_Frm_Load(form);
    EXPECT_TRUE(form.VideoProfileWindowOpen);
    VideoProfile_Frm_Unload(form);
    EXPECT_FALSE(form.VideoProfileWindowOpen);
}

TEST_F(VideoProfile, OpensInTheMiddleAndLaterWhereItWasLeft) {
    form.Measure = [] { return TwipsSize{3000, 1500}; };
    VideoProfile_Frm_Load(form);
    EXPECT_EQ(form.Placement.Left, 6000);  // a screen of 1000 pixels
    EXPECT_EQ(form.Placement.Top, 6750);
    form.Placement.Left = 150;
    form.Placement.Top = 300;
    VideoProfile_Frm_Unload(form);
    EXPECT_EQ(Stored("VideoProfile_Frm", "Left"), "150");
    form.Placement = {};
    VideoProfile_Frm_Load(form);
    EXPECT_EQ(form.Placement.Left, 150);
    EXPECT_EQ(form.Placement.Top, 300);
}

TEST_F(VideoProfile, LoadingAnOpenWindowBringsItToTheFront) {
    VideoProfile_Frm_Load(form);
    form.Raise = false;
    form.BoxOf("Mirrors").Chk.Value = 1;
    VideoProfile_Frm_Load(form);
    EXPECT_TRUE(form.Raise);
    EXPECT_EQ(form.BoxOf("Mirrors").Chk.Value, 1);
}

TEST_F(VideoProfile, UnloadingAClosedWindowDoesNothing) {
    VideoProfile_Frm_Unload(form);
    EXPECT_TRUE(system.Settings.Log.empty());
    EXPECT_EQ(user.Refreshes, 0);
}

TEST_F(VideoProfile, WindowedSaysWhatItIsFor) {
    EXPECT_EQ(form.Windowed_Chk.Caption, "&Windowed");
    EXPECT_EQ(form.Windowed_Chk.ToolTip, "Keep your Windows desktop from resizing");
    EXPECT_EQ(form.VidCard_Cbo.Items, (std::vector<Text>{"None", "Voodoo1", "Voodoo2", "Other"}));
}

}  // namespace
}  // namespace lv
