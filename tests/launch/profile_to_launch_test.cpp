// A click in the live window is in the next launch's files.

#include "launcher/window/launch_flow.h"
#include "tests/support/launcher_fixture.h"
#include "video/profile_model.h"

namespace lv {

namespace {

constexpr const char* kGlQuake = "C:\\QUAKE\\GLQUAKE.EXE";
constexpr const char* kQuake = "C:\\QUAKE\\QUAKE.EXE";
constexpr const char* kUnreal = "C:\\UNREAL\\SYSTEM\\UNREAL.EXE";
constexpr const char* kIni = "C:\\UNREAL\\SYSTEM\\unreal.ini";
constexpr const char* kBatch = "C:\\QUAKE\\lv_666.bat";
constexpr const char* kScript = "C:\\QUAKE\\ID1\\lv_666.qs";

struct LaunchCase {
    const char* Name;
    int Pick;
    int CardRow;
    const char* Exe;
    const char* File;
    const char* Line;
};

void PrintTo(const LaunchCase& expected, std::ostream* out) {
    *out << expected.Name << " on card " << expected.CardRow;
}

// clang-format off
const LaunchCase kCases[] = {
    {"Shadows",                    1,  1, kGlQuake, kScript, "r_shadows 1\r\n"},
    {"Mirrors",                    5,  1, kGlQuake, kScript, "r_mirroralpha .5\r\n"},
    {"WaterAlpha",                 6,  3, kGlQuake, kScript, "r_wateralpha .6\r\n"},
    {"GL_ROUND_DOWN",              0,  1, kGlQuake, kBatch,  "+GL_ROUND_DOWN 0"},
    {"GL_PICMIP",                  2,  1, kGlQuake, kScript, "gl_picmip 2\r\n"},
    {"D_MIPCAP",                   3,  1, kQuake,   kScript, "d_mipcap 3\r\n"},
    {"GL_PLAYERMIP",               3,  1, kGlQuake, kScript, "gl_playermip 3\r\n"},
    {"gl_ztrick",                  1,  1, kGlQuake, kScript, "gl_ztrick 1\r\n"},
    {"gl_keeptjunctions",          1,  1, kGlQuake, kScript, "gl_keeptjunctions 1\r\n"},
    {"gl_polyblend",               1,  1, kGlQuake, kScript, "gl_polyblend 1\r\n"},
    {"GL_TEXTUREMODE",             3,  1, kGlQuake, kScript, "GL_TEXTUREMODE GL_LINEAR_MIPMAP_LINEAR\r\n"},
    {"GL_FINISH",                  0,  1, kGlQuake, kScript, "gl_finish 0\r\n"},
    {"GL_FLASHBLEND",              0,  1, kGlQuake, kScript, "gl_flashblend 0\r\n"},
    {"FX_GLIDE_SWAPINTERVAL",      2,  1, kGlQuake, kBatch,  "SET FX_GLIDE_SWAPINTERVAL=2\r\n"},
    {"FX_GLIDE_NO_SPLASH",         1,  1, kGlQuake, kBatch,  "SET FX_GLIDE_NO_SPLASH=1\r\n"},
    {"SST_RGAMMA",                 0,  1, kGlQuake, kBatch,  "SET SST_RGAMMA=1.3\r\n"},
    {"SST_GGAMMA",                 7,  2, kGlQuake, kBatch,  "SET SSTV2_GGAMMA=2.0\r\n"},
    {"SST_BGAMMA",                 27, 2, kGlQuake, kBatch,  "SET SSTV2_BGAMMA=4.0\r\n"},
    {"SST_FASTMEM",                1,  1, kGlQuake, kBatch,  "SET SST_FASTMEM=1\r\n"},
    {"SST_FASTPCIRD",              1,  1, kGlQuake, kBatch,  "SET SST_FASTPCIRD=1\r\n"},
    {"SST_VIDEO_24BPP",            1,  2, kGlQuake, kBatch,  "SET SSTV2_VIDEO_24BPP=1\r\n"},
    {"SST_VIDEO_NOCLEAR",          1,  1, kGlQuake, kBatch,  "SET SST_VIDEO_NOCLEAR=1\r\n"},
    {"SST_VIDEO_FILTER_DISABLE",   1,  1, kGlQuake, kBatch,  "SET SST_VIDEO_FILTER_DISABLE=1\r\n"},
    {"SST_VIDEO_FILTER_THRESHOLD", 1,  2, kGlQuake, kBatch,  "SET SSTV2_VIDEO_FILTER_THRESHOLD=1\r\n"},
    {"SST_SWAP_EN_WAIT_ON_VSYNC",  0,  1, kGlQuake, kBatch,  "SET SST_SWAP_EN_WAIT_ON_VSYNC=0\r\n"},
    {"SST_SCREENREFRESH",          3,  1, kGlQuake, kBatch,  "SET SST_SCREENREFRESH=120\r\n"},
    {"SST_GRXCLK",                 0,  1, kGlQuake, kBatch,  "SET SST_GRXCLK=50\r\n"},
    {"SSTV2_GRXCLK",               1,  2, kGlQuake, kBatch,  "SET SSTV2_GRXCLK=85\r\n"},
    {"UnrealBrightness",           10, 1, kUnreal,  kIni,    "Brightness=10\r\n"},
    {"UnrealMipFactor",            19, 0, kUnreal,  kIni,    "MipFactor=2.0\r\n"},
    {"UnrealScaleXYZ",             2,  1, kUnreal,  kIni,    "ScaleXYZ=1500\r\n"},
    {"UnrealScaleRUV",             1,  1, kUnreal,  kIni,    "ScaleRUV=2000\r\n"},
    {"UnrealUseDirectDraw",        1,  1, kUnreal,  kIni,    "UseDirectDraw=False\r\n"},
    {"UnrealCurvedSurfaces",       1,  1, kUnreal,  kIni,    "CurvedSurfaces=False\r\n"},
    {"UnrealLowDetailTextures",    0,  1, kUnreal,  kIni,    "LowDetailTextures=True\r\n"},
    {"UnrealScreenFlashes",        1,  1, kUnreal,  kIni,    "ScreenFlashes=False\r\n"},
    {"UnrealNoLighting",           0,  3, kUnreal,  kIni,    "NoLighting=True\r\n"},
    {"UnrealSlowVideoBuffering",   1,  1, kUnreal,  kIni,    "SlowVideoBuffering=False\r\n"},
    {"UnrealDeadZoneXYZ",          0,  1, kUnreal,  kIni,    "DeadZoneXYZ=True\r\n"},
    {"UnrealDeadZoneRUV",          1,  1, kUnreal,  kIni,    "DeadZoneRUV=False\r\n"},
};

const LaunchCase kFlagCases[] = {
    {"FX_GLIDE_SWAPINTERVAL_VOODOO2", 0, 2, kGlQuake, kBatch, "SET FX_GLIDE_SWAPINTERVAL=0\r\n"},
    {"FX_LOD_DITHER",                 0, 2, kGlQuake, kBatch, "SET FX_LOD_DITHER=1\r\n"},
    {"SSTV2_TMU_MEMSIZE",             0, 2, kGlQuake, kBatch, "SET SSTV2_TMU_MEMSIZE=2\r\n"},
    {"SSTV2_SWAPINTERVAL",            0, 2, kGlQuake, kBatch, "SET SSTV2_SWAPINTERVAL=0\r\n"},
    {"SSTV2_FORCE_TRILINEAR",         0, 2, kGlQuake, kBatch, "SET SSTV2_FORCE_TRILINEAR=1\r\n"},
    {"SSTV2_SLIDETECT",               0, 2, kGlQuake, kBatch, "SET SSTV2_SLIDETECT=0\r\n"},
};
// clang-format on

class ProfileToLaunch : public LauncherTest, public ::testing::WithParamInterface<LaunchCase> {
  protected:
    void SetUp() override {
        AddGames();
        system.Disk.AddFile(kIni, "[WinDrv.WindowsClient]\r\n[Engine.Input]\r\n");
        Load();
        PickExe(GetParam().Exe);
        run.VideoProfileSection = "Mine";
        VideoProfile_Frm_Load(form);
        form.VidCard_Cbo.ListIndex = GetParam().CardRow;
        VidCard_Cbo_Click(form);
    }
    void Tick(int value) {
        ProfileBox& box = form.BoxOf(GetParam().Name);
        box.Chk.Value = value;
        Profile_Chk_Click(form, box);
    }
    bool IsInTheFile() {
        DoIt_Cmd_Click(launcher, 2);
        return system.Disk.Read(GetParam().File).Value.find(GetParam().Line) != Text::npos;
    }

    VideoProfile_Frm& form = launcher.VideoProfile;
};

using EachTunable = ProfileToLaunch;
using EachFlag = ProfileToLaunch;

}  // namespace

TEST_P(EachTunable, ReachesTheGameWhileItIsTicked) {
    ProfileBox& box = form.BoxOf(GetParam().Name);
    box.Cbo.ListIndex = GetParam().Pick;
    Profile_Cbo_Click(form, box);
    Tick(0);
    EXPECT_FALSE(IsInTheFile());
    Tick(1);
    EXPECT_TRUE(IsInTheFile());
}
INSTANTIATE_TEST_SUITE_P(Tunables, EachTunable, ::testing::ValuesIn(kCases));

TEST_P(EachFlag, ReachesTheGameWhileItIsTicked) {
    Tick(0);
    EXPECT_FALSE(IsInTheFile());
    Tick(1);
    EXPECT_TRUE(IsInTheFile());
}
INSTANTIATE_TEST_SUITE_P(Flags, EachFlag, ::testing::ValuesIn(kFlagCases));

namespace {

class ProfileListsToLaunch : public LauncherTest {
  protected:
    ProfileListsToLaunch() {
        AddGames();
        Load();
    }
    void OpenFor(TextView exe) {
        PickExe(exe);
        VideoProfile_Frm_Load(form);
    }
    Text Launched(TextView file) {
        DoIt_Cmd_Click(launcher, 2);
        return system.Disk.Read(file).Value;
    }
    VideoProfile_Frm& form = launcher.VideoProfile;
};

}  // namespace

TEST_F(ProfileListsToLaunch, AResolutionThatIsTickedReachesTheCommandLineAsItIsSeen) {
    OpenFor(kGlQuake);
    form.GL_Chk[0].Value = 1;
    GL_Chk_Click(form, 0);
    EXPECT_NE(Launched(kBatch).find("-width 320 -height 200"), Text::npos);
    form.Rez_Cbo.ListIndex = 4;
    Rez_Cbo_Click(form);
    EXPECT_NE(Launched(kBatch).find("-width 640"), Text::npos);
}

TEST_F(ProfileListsToLaunch, AQuake2ResolutionReachesItsScript) {
    OpenFor("C:\\QUAKE2\\QUAKE2.EXE");
    form.GL_Chk[0].Value = 1;
    GL_Chk_Click(form, 0);
    form.Q2_Rez_Cbo.ListIndex = 6;
    Q2_Rez_Cbo_Click(form);
    EXPECT_NE(Launched("C:\\QUAKE2\\BASEQ2\\lv_666.qs").find("set gl_mode \"6\""), Text::npos);
}

TEST_F(ProfileListsToLaunch, WindowedReachesTheCommandLine) {
    OpenFor(kGlQuake);
    EXPECT_EQ(Launched(kBatch).find("-window"), Text::npos);
    form.Windowed_Chk.Value = 1;
    Windowed_Chk_Click(form);
    EXPECT_NE(Launched(kBatch).find("-window"), Text::npos);
}

TEST_F(ProfileListsToLaunch, AGraphicsDriverReachesQuake2) {
    OpenFor("C:\\QUAKE2\\QUAKE2.EXE");
    form.GraphicsDriver_Cbo.ListIndex = 0;
    GraphicsDriver_Cbo_Click(form);
    EXPECT_EQ(Launched("C:\\QUAKE2\\BASEQ2\\lv_666.qs").find("vid_ref"), Text::npos);
    form.GraphicsDriver_Chk.Value = 1;
    GraphicsDriver_Chk_Click(form);
    EXPECT_NE(Launched("C:\\QUAKE2\\BASEQ2\\lv_666.qs").find("set vid_ref \"soft\""), Text::npos);
}

TEST_F(ProfileListsToLaunch, AColourDepthIsKeptButAsksNoGame) {
    OpenFor(kGlQuake);
    form.GL_Chk[1].Value = 1;
    GL_Chk_Click(form, 1);
    EXPECT_EQ(Launched(kBatch).find("-bpp"), Text::npos);
}

TEST_F(ProfileListsToLaunch, AnotherProfileIsInForceAtOnce) {
    OpenFor(kGlQuake);
    ProfileBox& mirrors = form.BoxOf("Mirrors");
    mirrors.Chk.Value = 1;
    Profile_Chk_Click(form, mirrors);
    EXPECT_NE(Launched(kScript).find("r_mirroralpha 1\r\n"), Text::npos);
    run.VideoProfileSection = "Another";
    EXPECT_EQ(Launched(kScript).find("r_mirroralpha"), Text::npos);
}

TEST_F(LauncherTest, TheRefreshRateOfAShippedProfileGoesOutUnderItsWholeName) {
    AddGames();
    Load();
    StoreShippedProfiles(run);
    Save(run, kOptions, "VidCard", 2);
    run.VideoProfileSection = "Optimize for Speed";
    PickExe(kGlQuake);
    DoIt_Cmd_Click(launcher, 2);
    const Text batch = system.Disk.Read(kBatch).Value;
    EXPECT_NE(batch.find("SET SSTV2_REFRESH_320x200=60\r\n"), Text::npos) << batch;
    EXPECT_EQ(batch.find("_="), Text::npos) << batch;
}

TEST_F(LauncherTest, AProfileThatWasNeverLoadedSendsNoNamelessVariable) {
    AddGames();
    Load();
    Save(run, kOptions, "VidCard", 2);
    PickExe(kGlQuake);
    run.VideoProfileSection = "Old";
    Save(run, "Old", "SST_SCREENREFRESH", 1);
    DoIt_Cmd_Click(launcher, 2);
    EXPECT_EQ(system.Disk.Read(kBatch).Value.find("REFRESH"), Text::npos);
}

}  // namespace lv
