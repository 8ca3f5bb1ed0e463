#include "video/profile_model.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/video/profile_fixture.h"

namespace lv {
namespace {

// Reading

TEST_F(ProfileModel, ASectionWithoutKeysHasTheTextsOfTheDefaultIndexes) {
    const ProfileSnapshot profile = ReadProfile(run);
    EXPECT_EQ(profile.Value("SSTV2_GRXCLK"), "90");
    EXPECT_EQ(profile.Value("SST_RGAMMA"), "1.7");
    EXPECT_EQ(profile.Value("Mirrors"), "1");
    EXPECT_EQ(profile.Value("GL_TEXTUREMODE"), "GL_LINEAR_MIPMAP_NEAREST");
    EXPECT_EQ(profile.Value("UnrealBrightness"), "0.1");
    EXPECT_EQ(profile.Value("SST_TEXMAP_DISABLE"), "");
}

TEST_F(ProfileModel, ASectionWithoutKeysReadsTheDefaultIndexesWithEveryFlagClearButTwo) {
    const ProfileSnapshot profile = ReadProfile(run);
    const struct {
        const char* Stem;
        Index Setting;
    } kNotZero[] = {
        {"Mirrors", 10},   {"WaterAlpha", 10},           {"GL_ROUND_DOWN", 1}, {"GL_TEXTUREMODE", 2},
        {"GL_FINISH", 1},  {"GL_FLASHBLEND", 1},         {"SST_RGAMMA", 4},    {"SST_GGAMMA", 4},
        {"SST_BGAMMA", 4}, {"FX_GLIDE_SWAPINTERVAL", 1}, {"SSTV2_GRXCLK", 2},  {"SST_SWAP_EN_WAIT_ON_VSYNC", 1},
    };
    for (const ProfileTunable& tunable : ProfileTunables()) {
        const auto* const listed = std::find_if(std::begin(kNotZero), std::end(kNotZero),
                                                [&](const auto& row) { return row.Stem == tunable.Stem; });
        const Index expected = listed == std::end(kNotZero) ? Index(0) : listed->Setting;
        EXPECT_EQ(profile.Of(tunable.Stem).Setting, expected) << tunable.Stem;
        EXPECT_EQ(profile.Of(tunable.Stem).Flag, tunable.Stem == "SSTV2_GRXCLK" ? 1 : 0) << tunable.Stem;
    }
    EXPECT_TRUE(profile.Ticked("FX_GLIDE_SWAPINTERVAL_VOODOO2"));
    EXPECT_FALSE(profile.Ticked("FX_LOD_DITHER"));
    EXPECT_FALSE(profile.Ticked("SSTV2_TMU_MEMSIZE"));
    EXPECT_FALSE(profile.Ticked("SSTV2_SWAPINTERVAL"));
    EXPECT_FALSE(profile.Ticked("SSTV2_FORCE_TRILINEAR"));
    EXPECT_FALSE(profile.Ticked("SSTV2_SLIDETECT"));
    EXPECT_EQ(profile.UseRez, 0);
    EXPECT_EQ(profile.ResolutionsPos, 0);
    EXPECT_EQ(profile.ResolutionsPos_Content, "");
    EXPECT_EQ(profile.Q2_ResolutionsPos, 3);
    EXPECT_EQ(profile.Q2_ResolutionsPos_Content, "");
    EXPECT_EQ(profile.UseBits, 0);
    EXPECT_EQ(profile.BitsPos, 0);
    EXPECT_EQ(profile.BitsPos_Content, "");
    EXPECT_EQ(profile.Windowed, 0);
    EXPECT_EQ(profile.UseGraphicsDriver, 0);
    EXPECT_EQ(profile.GraphicsDriver, 0);
}

TEST_F(ProfileModel, ANewProfileHasTheVoodoo2SwapIntervalAndClockOn) {
    run.VideoProfileSection = "Brand New";
    const ProfileSnapshot profile = ReadProfile(run);
    EXPECT_TRUE(profile.Ticked("FX_GLIDE_SWAPINTERVAL_VOODOO2"));
    EXPECT_TRUE(profile.Active("SSTV2_GRXCLK"));
}

TEST_F(ProfileModel, AFreshSnapshotEqualsASectionWithoutKeys) {
    const ProfileSnapshot fresh;
    EXPECT_EQ(fresh.Of("Mirrors").Setting, 10);
    EXPECT_TRUE(fresh.Ticked("SSTV2_GRXCLK"));
    EXPECT_TRUE(fresh.Ticked("FX_GLIDE_SWAPINTERVAL_VOODOO2"));
    EXPECT_EQ(fresh.Q2_ResolutionsPos, 3);
}

TEST_F(ProfileModel, ReadsEachKindOfKeyFromTheCurrentSection) {
    run.VideoProfileSection = "Mine";
    Store("Mine", "Mirrors", "1");
    Store("Mine", "MirrorSetting", "5");
    Store("Mine", "MirrorSetting_Content", ".5");
    Store("Mine", "UnrealBrightness", "1");
    Store("Mine", "UnrealBrightnessSetting", "3");
    Store("Mine", "UnrealBrightnessSetting_Content", "0.4");
    Store("Mine", "SSTV2_SLIDETECT", "1");
    Store("Mine", "SST_TEXMAP_DISABLE", "1");
    Store("Mine", "SST_TEXMAP_DISABLE_Setting_Content", "1");
    Store("Options", "Shadows", "1");
    const ProfileSnapshot profile = ReadProfile(run);
    EXPECT_TRUE(profile.Active("Mirrors"));
    EXPECT_EQ(profile.Of("Mirrors").Setting, 5);
    EXPECT_EQ(profile.Value("Mirrors"), ".5");
    EXPECT_TRUE(profile.Active("UnrealBrightness"));
    EXPECT_EQ(profile.Value("UnrealBrightness"), "0.4");
    EXPECT_TRUE(profile.Ticked("SSTV2_SLIDETECT"));
    EXPECT_TRUE(profile.Active("SST_TEXMAP_DISABLE"));
    EXPECT_EQ(profile.Value("SST_TEXMAP_DISABLE"), "1");
    EXPECT_FALSE(profile.Active("Shadows"));
}

TEST_F(ProfileModel, ReadsTheKeysThatAreNoTunables) {
    for (const auto& [key, value] : std::vector<std::pair<TextView, TextView>>{{"UseRez", "1"},
                                                                               {"ResolutionsPos", "4"},
                                                                               {"ResolutionsPos_Content", "rez"},
                                                                               {"Q2_ResolutionsPos", "7"},
                                                                               {"Q2_ResolutionsPos_Content", "q2"},
                                                                               {"UseBits", "1"},
                                                                               {"BitsPos", "2"},
                                                                               {"BitsPos_Content", "bits"},
                                                                               {"Windowed", "1"},
                                                                               {"UseGraphicsDriver", "1"},
                                                                               {"GraphicsDriver", "6"}}) {
        Store("Options", key, value);
    }
    const ProfileSnapshot profile = ReadProfile(run);
    EXPECT_EQ(profile.UseRez, 1);
    EXPECT_EQ(profile.ResolutionsPos, 4);
    EXPECT_EQ(profile.ResolutionsPos_Content, "rez");
    EXPECT_EQ(profile.Q2_ResolutionsPos, 7);
    EXPECT_EQ(profile.Q2_ResolutionsPos_Content, "q2");
    EXPECT_EQ(profile.UseBits, 1);
    EXPECT_EQ(profile.BitsPos, 2);
    EXPECT_EQ(profile.BitsPos_Content, "bits");
    EXPECT_EQ(profile.Windowed, 1);
    EXPECT_EQ(profile.UseGraphicsDriver, 1);
    EXPECT_EQ(profile.GraphicsDriver, 6);
}

TEST_F(ProfileModel, ReadsNumbersTolerantly) {
    Store("Options", "gl_ztrick", " 1 ");
    Store("Options", "gl_ztrick_Setting", "1st");
    Store("Options", "gl_polyblend", "yes");
    const ProfileSnapshot profile = ReadProfile(run);
    EXPECT_TRUE(profile.Active("gl_ztrick"));
    EXPECT_EQ(profile.Of("gl_ztrick").Setting, 1);
    EXPECT_FALSE(profile.Active("gl_polyblend"));
}

TEST_F(ProfileModel, ATickWithoutASelectedItemIsNotActive) {
    Store("Options", "gl_ztrick", "1");
    Store("Options", "gl_ztrick_Setting", "-1");
    EXPECT_FALSE(ReadProfile(run).Active("gl_ztrick"));
    EXPECT_TRUE(ReadProfile(run).Ticked("gl_ztrick"));
}

TEST_F(ProfileModel, AGreyedTickIsNoTick) {
    Store("Options", "gl_ztrick", "2");
    EXPECT_FALSE(ReadProfile(run).Active("gl_ztrick"));
}

TEST_F(ProfileModel, AnUnknownStemIsNeitherActiveNorTickedAndHasNoValue) {
    const ProfileSnapshot profile;
    EXPECT_FALSE(profile.Active("gl_nothing"));
    EXPECT_FALSE(profile.Ticked("gl_nothing"));
    EXPECT_EQ(profile.Value("gl_nothing"), "");
}

TEST_F(ProfileModel, ReadingStoresNothing) {
    ReadProfile(run);
    EXPECT_TRUE(system.Settings.Log.empty());
}

// The card

TEST_F(ProfileModel, AMissingOrEmptyVidCardIsAVoodoo) {
    EXPECT_EQ(ReadVidCard(run), 1);
    Store("Options", "VidCard", "");
    EXPECT_EQ(ReadVidCard(run), 1);
    Store("Options", "VidCard", "0");
    EXPECT_EQ(ReadVidCard(run), 0);
}

TEST_F(ProfileModel, VidCardIsReadFromOptionsWhateverTheProfile) {
    run.VideoProfileSection = "Mine";
    Store("Mine", "VidCard", "2");
    Store("Options", "VidCard", "100");
    EXPECT_EQ(ReadVidCard(run), 100);
}

TEST(CardClassOf, IsTheListIndexButForTheLastItem) {
    EXPECT_EQ(CardClassOf(0), 0);
    EXPECT_EQ(CardClassOf(1), 1);
    EXPECT_EQ(CardClassOf(2), 2);
    EXPECT_EQ(CardClassOf(3), 100);
    EXPECT_EQ(CardClassOf(100), 100);
}

TEST(CardClassOf, TakesAnythingBeyondTheListAsTheLastItem) {
    EXPECT_EQ(CardClassOf(4), 100);
    EXPECT_EQ(CardClassOf(101), 100);
    EXPECT_EQ(CardClassOf(32767), 100);
    EXPECT_EQ(CardClassOf(-1), 0);
}

TEST(CardListIndexOf, IsTheLastRowForTheOtherCard) {
    EXPECT_EQ(CardListIndexOf(0), 0);
    EXPECT_EQ(CardListIndexOf(2), 2);
    EXPECT_EQ(CardListIndexOf(3), 3);
    EXPECT_EQ(CardListIndexOf(100), 3);
}

// The lists

TEST_F(ProfileModel, TheDefaultListsAreWhole) {
    EXPECT_TRUE(CheckProfileLists(run));
    EXPECT_FALSE(user.ProgramEnded);
}

TEST_F(ProfileModel, ResolutionsWithAnOddNumberOfFieldsEndTheProgram) {
    Store("Options", "Resolutions", "320x200;-width 320;640x480");
    ExpectMessage(
        "Lorvane 3D experienced a probable registry error.\r\n"
        "Error : defaultRezs = 320x200;-width 320;640x480\r\n"
        "Please contact technical support.");
    EXPECT_FALSE(CheckProfileLists(run));
    EXPECT_TRUE(user.ProgramEnded);
    EXPECT_TRUE(run.Ended);
}

TEST_F(ProfileModel, BitsWithAnOddNumberOfFieldsEndTheProgram) {
    Store("Options", "Bits", "8 bit color;-bpp 8;");
    ExpectMessage(
        "Lorvane 3D experienced a probable registry error.\r\n"
        "Error : defaultBits = 8 bit color;-bpp 8;\r\n"
        "Please contact technical support.");
    EXPECT_FALSE(CheckProfileLists(run));
    EXPECT_TRUE(user.ProgramEnded);
}

TEST_F(ProfileModel, AListThatIsTooShortEndsTheProgram) {
    Store("Options", "Resolutions", "a;b");
    ExpectMessage(
        "Lorvane 3D experienced a probable registry error.\r\n"
        "Error : defaultRezs = a;b\r\n"
        "Please contact technical support.");
    EXPECT_FALSE(CheckProfileLists(run));
    EXPECT_TRUE(user.ProgramEnded);
}

TEST_F(ProfileModel, AnEmptyListEndsTheProgramWithOneQuestionOnly) {
    Store("Options", "Resolutions", "");
    Store("Options", "Bits", "");
    ExpectMessage(
        "Lorvane 3D experienced a probable registry error.\r\n"
        "Error : defaultRezs = \r\n"
        "Please contact technical support.");
    EXPECT_FALSE(CheckProfileLists(run));
}

TEST_F(ProfileModel, AListOfOnePairIsWhole) {
    Store("Options", "Bits", "8 bit color;-bpp 8");
    EXPECT_TRUE(CheckProfileLists(run));
}

TEST_F(ProfileModel, TheListsOfTheCurrentSectionAreChecked) {
    Store("Options", "Bits", "broken");
    run.VideoProfileSection = "Mine";
    EXPECT_TRUE(CheckProfileLists(run));
}

TEST_F(ProfileModel, APositionBeyondItsListBecomesTheLastAndIsSaved) {
    Store("Options", "ResolutionsPos", "9");
    Store("Options", "BitsPos", "200");
    ClampProfilePositions(run);
    EXPECT_EQ(Stored("Options", "ResolutionsPos"), "8");
    EXPECT_EQ(Stored("Options", "BitsPos"), "3");
}

TEST_F(ProfileModel, APositionWithinItsListIsNotSavedAgain) {
    Store("Options", "ResolutionsPos", "8");
    Store("Options", "BitsPos", "-1");
    system.Settings.Log.clear();
    ClampProfilePositions(run);
    EXPECT_TRUE(system.Settings.Log.empty());
}

TEST_F(ProfileModel, PositionsAreHeldWithinAListOfTheUsersOwn) {
    Store("Options", "Resolutions", "320x200;-width 320;640x480;-width 640");
    Store("Options", "ResolutionsPos", "2");
    ClampProfilePositions(run);
    EXPECT_EQ(Stored("Options", "ResolutionsPos"), "1");
}

// The base profile

TEST_F(ProfileModel, TheBaseProfileStoresEveryTunableWithItsDefaults) {
    StoreBaseProfile(run);
    EXPECT_EQ(Stored("Options", "Shadows"), "0");
    EXPECT_EQ(Stored("Options", "ShadowSetting"), "0");
    EXPECT_EQ(Stored("Options", "ShadowSetting_Content"), "0");
    EXPECT_EQ(Stored("Options", "MirrorSetting"), "10");
    EXPECT_EQ(Stored("Options", "MirrorSetting_Content"), "1");
    EXPECT_EQ(Stored("Options", "GL_TEXTUREMODE"), "0");
    EXPECT_EQ(Stored("Options", "GL_TEXTUREMODE_Setting"), "2");
    EXPECT_EQ(Stored("Options", "GL_TEXTUREMODE_Setting_Content"), "GL_LINEAR_MIPMAP_NEAREST");
    EXPECT_EQ(Stored("Options", "SST_BGAMMA_Setting_Content"), "1.7");
    EXPECT_EQ(Stored("Options", "SSTV2_GRXCLK"), "1");
    EXPECT_EQ(Stored("Options", "SSTV2_GRXCLK_Setting"), "2");
    EXPECT_EQ(Stored("Options", "SSTV2_GRXCLK_Setting_Content"), "90");
    EXPECT_EQ(Stored("Options", "UnrealDeadZoneRUV"), "0");
    EXPECT_EQ(Stored("Options", "UnrealDeadZoneRUVSetting"), "0");
    EXPECT_EQ(Stored("Options", "UnrealDeadZoneRUVSetting_Content"), "True");
}

TEST_F(ProfileModel, TheBaseProfileStoresFlagsListsAndPositions) {
    StoreBaseProfile(run);
    EXPECT_EQ(Stored("Options", "FX_GLIDE_SWAPINTERVAL_VOODOO2"), "1");
    EXPECT_EQ(Stored("Options", "SSTV2_SLIDETECT"), "0");
    EXPECT_EQ(Stored("Options", "UseRez"), "0");
    EXPECT_TRUE(Stored("Options", "Resolutions").starts_with("320x200;-width 320 -height 200;320x240;"));
    EXPECT_EQ(Stored("Options", "ResolutionsPos"), "0");
    EXPECT_EQ(Stored("Options", "ResolutionsPos_Content"), Item("320x200", "-width 320 -height 200"));
    EXPECT_EQ(Stored("Options", "Q2_ResolutionsPos"), "3");
    EXPECT_EQ(Stored("Options", "Q2_ResolutionsPos_Content"), "640x480");
    EXPECT_EQ(Stored("Options", "UseBits"), "0");
    EXPECT_EQ(Stored("Options", "Bits"),
              "8 bit color;-bpp 8;16 bit color;-bpp 16;24 bit color;-bpp 24;32 bit color;-bpp 32");
    EXPECT_EQ(Stored("Options", "BitsPos"), "0");
    EXPECT_EQ(Stored("Options", "BitsPos_Content"), Item("8 bit color", "-bpp 8"));
    EXPECT_EQ(Stored("Options", "Windowed"), "0");
    EXPECT_EQ(Stored("Options", "UseGraphicsDriver"), "0");
    EXPECT_EQ(Stored("Options", "GraphicsDriver"), "0");
    EXPECT_EQ(Stored("Options", "VidCard"), "1");
}

TEST_F(ProfileModel, TheBaseProfileIsOneHundredAndFortyKeys) {
    StoreBaseProfile(run);
    EXPECT_EQ(system.Settings.Count(), 140u);
}

TEST_F(ProfileModel, TheBaseProfileStoresNoKeyThatNothingOffers) {
    StoreBaseProfile(run);
    EXPECT_EQ(Stored("Options", "SST_TEXMAP_DISABLE"), "(none)");
}

TEST_F(ProfileModel, TheBaseProfileKeepsWhatIsThere) {
    Store("Options", "Mirrors", "1");
    Store("Options", "MirrorSetting", "5");
    Store("Options", "VidCard", "2");
    Store("Options", "Resolutions", "320x200;-width 320;640x480;-width 640");
    Store("Options", "ResolutionsPos", "1");
    Store("Options", "UseRez", "1");
    Store("Options", "GL_FINISH_Setting_Content", "0");
    StoreBaseProfile(run);
    EXPECT_EQ(Stored("Options", "Mirrors"), "1");
    EXPECT_EQ(Stored("Options", "MirrorSetting"), "5");
    EXPECT_EQ(Stored("Options", "MirrorSetting_Content"), ".5");
    EXPECT_EQ(Stored("Options", "VidCard"), "2");
    EXPECT_EQ(Stored("Options", "Resolutions"), "320x200;-width 320;640x480;-width 640");
    EXPECT_EQ(Stored("Options", "ResolutionsPos_Content"), Item("640x480", "-width 640"));
    EXPECT_EQ(Stored("Options", "UseRez"), "1");
    EXPECT_EQ(Stored("Options", "GL_FINISH_Setting_Content"), "0");
}

TEST_F(ProfileModel, TheBaseProfileHoldsPositionsWithinTheirLists) {
    Store("Options", "ResolutionsPos", "77");
    StoreBaseProfile(run);
    EXPECT_EQ(Stored("Options", "ResolutionsPos"), "8");
    EXPECT_EQ(Stored("Options", "ResolutionsPos_Content"), Item("1280x1024", "-width 1280"));
}

TEST_F(ProfileModel, ABrokenListStoresNothing) {
    Store("Options", "Bits", "broken");
    system.Settings.Log.clear();
    ExpectMessage(
        "Lorvane 3D experienced a probable registry error.\r\n"
        "Error : defaultBits = broken\r\n"
        "Please contact technical support.");
    StoreBaseProfile(run);
    EXPECT_TRUE(run.Ended);
    EXPECT_TRUE(system.Settings.Log.empty());
}

TEST_F(ProfileModel, TheBaseProfileGoesToTheCurrentSectionButTheCardToOptions) {
    run.VideoProfileSection = "Mine";
    StoreBaseProfile(run);
    EXPECT_EQ(Stored("Mine", "GL_FINISH_Setting"), "1");
    EXPECT_EQ(Stored("Options", "GL_FINISH_Setting"), "(none)");
    EXPECT_EQ(Stored("Mine", "VidCard"), "(none)");
    EXPECT_EQ(Stored("Options", "VidCard"), "1");
}

// Upgrades

TEST_F(ProfileModel, TheFirstStartStoresTheBaseProfileTheVersionsAndTheShippedProfiles) {
    run.VideoProfileSection = "Elsewhere";
    UpgradeVideoProfiles(run);
    EXPECT_EQ(run.VideoProfileSection, "Options");
    EXPECT_EQ(Stored("Options", "GL_FINISH_Setting"), "1");
    EXPECT_EQ(Stored("Options", "VidCard"), "1");
    EXPECT_EQ(Stored("LV-Stuff", "VP_Version"), "1");
    EXPECT_EQ(Stored("LV-Stuff", "NVC_Version"), "1");
    EXPECT_EQ(Stored("Options", "VideoProfileList"), "Base;Optimize for Speed;Optimize for Beauty;Default");
    EXPECT_EQ(Stored("Default", "Shadows"), "0");
    EXPECT_EQ(Stored("Optimize for Speed", "GL_PLAYERMIP_Setting"), "3");
    EXPECT_EQ(Stored("Optimize for Beauty", "Shadows"), "1");
}

TEST_F(ProfileModel, ProfilesAreCreatedInOrder) {
    UpgradeVideoProfiles(run);
    std::vector<Text> order;
    for (const Text& write : system.Settings.Log) {
        const Text section = write.substr(0, write.find('|'));
        if (order.empty() || order.back() != section) {
            order.push_back(section);
        }
    }
    EXPECT_EQ(order, (std::vector<Text>{"Options", "LV-Stuff", "Options", "Default", "Optimize for Speed",
                                        "Optimize for Beauty"}));
}

TEST_F(ProfileModel, AStoredVidCardOfOneIsRaisedToTwoOnceOnly) {
    Store("LV-Stuff", "VP_Version", "1");
    Store("Options", "VideoProfileList", "Base");
    Store("Options", "VidCard", "1");
    UpgradeVideoProfiles(run);
    EXPECT_EQ(Stored("Options", "VidCard"), "2");
    EXPECT_EQ(Stored("LV-Stuff", "NVC_Version"), "1");
    UpgradeVideoProfiles(run);
    EXPECT_EQ(Stored("Options", "VidCard"), "2");
}

TEST_F(ProfileModel, AVidCardThatIsNotThereIsNotRaised) {
    Store("LV-Stuff", "VP_Version", "1");
    Store("Options", "VideoProfileList", "Base");
    UpgradeVideoProfiles(run);
    EXPECT_EQ(Stored("Options", "VidCard"), "(none)");
    EXPECT_EQ(Stored("LV-Stuff", "NVC_Version"), "1");
}

TEST_F(ProfileModel, TheFirstStartDoesNotRaiseVidCard) {
    Store("Options", "VidCard", "2");
    UpgradeVideoProfiles(run);
    EXPECT_EQ(Stored("Options", "VidCard"), "2");
}

TEST_F(ProfileModel, AnUpToDateStoreIsLeftAlone) {
    UpgradeVideoProfiles(run);
    run.VideoProfileSection = "Default";
    system.Settings.Log.clear();
    UpgradeVideoProfiles(run);
    EXPECT_TRUE(system.Settings.Log.empty());
    EXPECT_EQ(run.VideoProfileSection, "Default");
}

TEST_F(ProfileModel, ABrokenListAtTheFirstStartEndsTheProgramAndLeavesTheVersionsAlone) {
    Store("Options", "Resolutions", "broken");
    ExpectMessage(
        "Lorvane 3D experienced a probable registry error.\r\n"
        "Error : defaultRezs = broken\r\n"
        "Please contact technical support.");
    UpgradeVideoProfiles(run);
    EXPECT_TRUE(run.Ended);
    EXPECT_EQ(Stored("LV-Stuff", "VP_Version"), "(none)");
    EXPECT_EQ(Stored("Options", "VideoProfileList"), "(none)");
}

// The list of names

TEST_F(ProfileModel, TheListShowsTheNamesInStoredOrderTrimmed) {
    Store("Options", "VideoProfileList", "Base; Fast ;Slow");
    ListBox list;
    list.Items = {"old"};
    FillVideoProfiles(run, list);
    EXPECT_EQ(list.Items, (std::vector<Text>{"Base", "Fast", "Slow"}));
}

TEST_F(ProfileModel, TheStoredRowIsSelectedAndItsSectionCurrent) {
    Store("Options", "VideoProfileList", "Base;Fast;Slow");
    Store("Options", "VideoProfilePos", "2");
    ListBox list;
    FillVideoProfiles(run, list);
    EXPECT_EQ(list.ListIndex, 2);
    EXPECT_EQ(run.VideoProfileSection, "Slow");
}

TEST_F(ProfileModel, ARowThatIsNotThereSelectsTheFirst) {
    Store("Options", "VideoProfileList", "Base;Fast");
    run.VideoProfileSection = "Fast";
    ListBox list;
    for (const TextView position : {"2", "-1", "many"}) {
        Store("Options", "VideoProfilePos", position);
        FillVideoProfiles(run, list);
        EXPECT_EQ(list.ListIndex, 0) << position;
        EXPECT_EQ(run.VideoProfileSection, "Options") << position;
    }
}

TEST_F(ProfileModel, AnEmptyListHasNoRowsAndNoSelection) {
    ListBox list;
    FillVideoProfiles(run, list);
    EXPECT_TRUE(list.Items.empty());
    EXPECT_EQ(list.ListIndex, -1);
    EXPECT_EQ(run.VideoProfileSection, "Options");
}

TEST_F(ProfileModel, FillingTheListSavesNothing) {
    Store("Options", "VideoProfileList", "Base;Fast");
    system.Settings.Log.clear();
    ListBox list;
    FillVideoProfiles(run, list);
    EXPECT_TRUE(system.Settings.Log.empty());
}

TEST_F(ProfileModel, AFreshStoreEndsWithTheBaseProfileSelected) {
    UpgradeVideoProfiles(run);
    ListBox list;
    FillVideoProfiles(run, list);
    EXPECT_EQ(list.Selected(), "Base");
    EXPECT_EQ(run.VideoProfileSection, "Options");
}

TEST_F(ProfileModel, BaseAlwaysMeansTheSectionOptions) {
    SelectVideoProfile(run, "Fast");
    EXPECT_EQ(run.VideoProfileSection, "Fast");
    SelectVideoProfile(run, "Base");
    EXPECT_EQ(run.VideoProfileSection, "Options");
}

TEST_F(ProfileModel, AProfileCalledOptionsSharesTheBaseProfile) {
    Store("Options", "gl_ztrick", "1");
    SelectVideoProfile(run, "Options");
    EXPECT_TRUE(ReadProfile(run).Active("gl_ztrick"));
}

}  // namespace
}  // namespace lv
