#include "foundry/editor/controllers.h"

#include <gmock/gmock.h>

#include <map>
#include <utility>

#include "foundry/document/bindings.h"
#include "foundry/editor/key_picture.h"
#include "tests/foundry/editor/fig_fixture.h"

namespace lv {
namespace {

using testing::ElementsAre;

using TopLeft = std::pair<int, int>;
using Places = std::map<Index, TopLeft>;

// clang-format off
const Places kGravis = {
    {98, {420, 5280}}, {99, {360, 5820}}, {100, {300, 6360}}, {101, {120, 5160}}, {108, {60, 5700}}, {109, {0, 6240}},
    {110, {1260, 1440}}, {111, {1260, 5700}}, {112, {60, 3900}}, {113, {1020, 5040}}, {114, {360, 3840}},
    {132, {1080, 3780}}, {133, {1260, 4320}}, {134, {1380, 3780}}, {135, {1260, 3240}},
};
const Places kPanther = {
    {98, {1020, 5220}}, {99, {480, 3090}}, {100, {60, 3450}}, {101, {1320, 5220}}, {108, {30, 6270}},
    {109, {300, 6540}}, {110, {570, 6270}}, {111, {300, 6000}}, {112, {1020, 1380}}, {113, {1320, 1500}},
    {114, {240, 780}}, {115, {240, 1380}}, {116, {480, 1920}}, {132, {30, 5190}}, {133, {300, 5430}},
    {134, {570, 5190}}, {135, {300, 4890}},
};
const Places kWarrior = {
    {98, {1290, 6150}}, {99, {0, 4890}}, {100, {450, 4140}}, {101, {150, 4380}}, {108, {30, 6270}},
    {132, {30, 6300}}, {133, {300, 6540}}, {134, {570, 6300}}, {135, {300, 6000}},
};
const Places kUnlisted = {
    {98, {60, 60}}, {99, {360, 60}}, {100, {660, 60}}, {101, {60, 660}}, {102, {360, 660}}, {103, {660, 660}},
    {104, {60, 1620}}, {105, {360, 1620}}, {106, {660, 1620}}, {107, {960, 1620}}, {108, {1260, 1620}},
    {109, {60, 2220}}, {110, {360, 2220}}, {111, {660, 2220}}, {112, {960, 2220}}, {113, {1260, 2220}},
    {114, {60, 2820}}, {115, {360, 2820}}, {116, {660, 2820}}, {117, {960, 2820}}, {118, {1260, 2820}},
    {119, {60, 3420}}, {120, {360, 3420}}, {121, {660, 3420}}, {122, {960, 3420}}, {123, {1260, 3420}},
    {124, {60, 4020}}, {125, {360, 4020}}, {126, {660, 4020}}, {127, {960, 4020}}, {128, {1260, 4020}},
    {129, {60, 4620}}, {130, {360, 4620}}, {131, {660, 4620}}, {132, {960, 4620}}, {133, {1260, 4620}},
    {134, {60, 5220}}, {135, {360, 5220}},
};
// clang-format on

const ExpectedQuestion kWarning = {
    "Specialixed Controller Pictures",
    "If you do not see a picture of the selected controller\r\nto the right, you need to download the controller\r\n"
    "bitmaps, available at https://lorvane3d.example/",
    0,
    false,
    true,
    "&OK"};

struct Controllers : FigTest {
    Controllers() {
        run.AppDirectory = "C:\\LV3D";
        for (const TextView bitmap : {"gravispad", "pantherXL", "warrior"}) {
            system.Disk.AddFile(Join("C:\\LV3D\\", bitmap, ".bmp"), "BM");
        }
        LayOutKeys(form);
    }

    void Pick(int device) {
        form.Device_Cbo.ListIndex = device;
        Device_Cbo_Click(form);
    }

    Places Shown() {
        Places places;
        for (Index label = 98; label <= 135; ++label) {
            const KeyLabel& key = form.KeyLabelOf(label);
            if (key.Visible) {
                places[label] = {key.Top, key.Left};
                EXPECT_EQ(key.Width, 570) << label;
                EXPECT_EQ(key.Height, 270) << label;
            }
        }
        return places;
    }

    void RemovePictures() {
        for (const TextView bitmap : {"gravispad", "pantherXL", "warrior"}) {
            ASSERT_EQ(system.Disk.Delete(Join("C:\\LV3D\\", bitmap, ".bmp")).Number, 0);
        }
    }

    void ExpectWarning(bool tick) {
        ExpectedQuestion warning = kWarning;
        warning.TickNotAgain = tick;
        user.Expect(warning);
    }
};

TEST_F(Controllers, AreFourInTheList) {
    EXPECT_THAT(form.Device_Cbo.Items,
                ElementsAre("Unlisted Device", "Gravis Xterminator", "Panther XL", "Wingman Warrior"));
    EXPECT_EQ(form.Device_Cbo.ListIndex, 0);
}

TEST_F(Controllers, AreAGridOfAllKeysWhenUnlisted) {
    EXPECT_EQ(Shown(), kUnlisted);
    Pick(1);
    Pick(0);
    EXPECT_EQ(Shown(), kUnlisted);
    EXPECT_EQ(form.DevicePicture, "");
}

TEST_F(Controllers, HaveAPictureWithTheKeysOverTheirButtons) {
    Pick(1);
    EXPECT_EQ(form.DevicePicture, "C:\\LV3D\\gravispad.bmp");
    EXPECT_EQ(Shown(), kGravis);
    Pick(2);
    EXPECT_EQ(form.DevicePicture, "C:\\LV3D\\pantherXL.bmp");
    EXPECT_EQ(Shown(), kPanther);
    Pick(3);
    EXPECT_EQ(form.DevicePicture, "C:\\LV3D\\warrior.bmp");
    EXPECT_EQ(Shown(), kWarrior);
}

// All labels of all three, none of which may hang over.
TEST_F(Controllers, NeedRoomForTheButtonsOfAll) {
    EXPECT_EQ(RoomOfControllers().Width, 6540 + 570);
    EXPECT_EQ(RoomOfControllers().Height, 1380 + 270);
    for (const Places& places : {kGravis, kPanther, kWarrior}) {
        for (const auto& [label, place] : places) {
            EXPECT_LE(place.first + 270, RoomOfControllers().Height) << label;
            EXPECT_LE(place.second + 570, RoomOfControllers().Width) << label;
        }
    }
}

TEST_F(Controllers, LeaveTheKeyboardsLabelsAlone) {
    Pick(3);
    EXPECT_TRUE(form.KeyLabelOf(97).Visible);
    EXPECT_TRUE(form.KeyLabelOf(149).Visible);
    EXPECT_EQ(form.KeyLabelOf(97).Width, 1065);
}

TEST_F(Controllers, AreAnEmptyPictureWithLabelsAndAWarningWithoutTheirBitmap) {
    RemovePictures();
    ExpectWarning(false);
    Pick(2);
    EXPECT_EQ(form.DevicePicture, "");
    EXPECT_EQ(Shown(), kPanther);
    EXPECT_EQ(Stored("ShowMessage", "WackAssController_Msg"), "(none)");
}

TEST_F(Controllers, TakeThePictureBeforeAwayWhenTheirsIsMissing) {
    Pick(1);
    RemovePictures();
    ExpectWarning(false);
    Pick(3);
    EXPECT_EQ(form.DevicePicture, "");
}

TEST_F(Controllers, WarnTheFirstTimeOnly) {
    RemovePictures();
    ExpectWarning(false);
    Pick(1);
    EXPECT_TRUE(user.Expected.empty());
    Pick(2);
    Pick(3);
    EXPECT_EQ(Shown(), kWarrior);
}

TEST_F(Controllers, WarnAgainInTheNextWindow) {
    RemovePictures();
    ExpectWarning(false);
    Pick(1);
    Fig_Frm next(run, launcher.Lists);
    next.Device_Cbo.ListIndex = 1;
    ExpectWarning(false);
    Device_Cbo_Click(next);
}

TEST_F(Controllers, WarnNeverAgainOnceThatIsTicked) {
    RemovePictures();
    ExpectWarning(true);
    Pick(1);
    EXPECT_EQ(Stored("ShowMessage", "WackAssController_Msg"), "0");
    Fig_Frm next(run, launcher.Lists);
    next.Device_Cbo.ListIndex = 1;
    Device_Cbo_Click(next);
    EXPECT_EQ(next.DevicePicture, "");
}

TEST_F(Controllers, WarnAtOneAlone) {
    RemovePictures();
    Save(run, "ShowMessage", "WackAssController_Msg", "2");
    Pick(1);
    EXPECT_EQ(Shown(), kGravis);
}

TEST_F(Controllers, TakeABitmapThatCannotBeShownForAMissingOne) {
    Pick(1);
    ExpectWarning(false);
    Device_Pic_LoadFailed(form);
    EXPECT_EQ(form.DevicePicture, "");
    EXPECT_EQ(Shown(), kGravis);
    Device_Pic_LoadFailed(form);
}

TEST_F(Controllers, KeepTheBindingsAndColorsOfTheLabelsTheyHide) {
    Open(kQuakeDialect, "bind aux2 +attack\n");
    Pick(1);
    EXPECT_FALSE(form.KeyLabelOf(105).Visible);
    EXPECT_EQ(Command(105), "+attack");
    EXPECT_EQ(Keys(111), "A2");
    Pick(0);
    EXPECT_TRUE(form.KeyLabelOf(105).Visible);
    EXPECT_EQ(KeyColor(105), 0x00c000U);
}

TEST_F(Controllers, PaintALabelThatIsHidden) {
    Pick(3);
    BindKey(form.Document = MakeScriptDocument(kQuakeDialect), form, 105, 111);
    Pick(0);
    EXPECT_EQ(KeyColor(105), 0x00c000U);
}

TEST_F(Controllers, ShowTheLabelsThatUnrealHidesAgainWhenUnlisted) {
    Open(kUnrealDialect);
    for (Index label = 104; label <= 123; ++label) {
        form.KeyLabelOf(label).Visible = false;
    }
    Pick(0);
    EXPECT_EQ(Shown(), kUnlisted);
}

TEST_F(Controllers, ChangeNothingInTheScript) {
    Open(kQuakeDialect);
    Pick(1);
    EXPECT_TRUE(form.Document.ScriptClean);
}

TEST_F(Controllers, AreUnlistedWithoutASelection) {
    Pick(1);
    for (const int row : {-1, 4}) {
        Pick(row);
        EXPECT_EQ(Shown(), kUnlisted);
        EXPECT_EQ(form.DevicePicture, "");
    }
}

}  // namespace
}  // namespace lv
