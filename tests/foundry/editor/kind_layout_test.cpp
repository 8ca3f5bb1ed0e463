#include "foundry/editor/kind_layout.h"

#include "tests/foundry/editor/fig_fixture.h"
#include "tests/foundry/kinds.h"
#include "tests/foundry/reading.h"

namespace lv {
namespace {

class KindLayoutTest : public FigTest {
  protected:
    void Load(const ScriptDialect& dialect, TextView script = "") {
        Open(dialect, script);
        ApplyGameKind(form);
    }

    [[nodiscard]] Text Page(std::size_t page) {
        const TabPage& shown = form.Bindings_Tab[page];
        EXPECT_EQ(shown.Visible, shown.Enabled) << page;
        return shown.Visible ? shown.Caption : "off";
    }
    [[nodiscard]] Text Legend(std::size_t label) {
        const ColorLabel& shown = form.ColorCode_Lbl[label];
        return shown.Visible ? shown.Caption : "hidden";
    }

    /// The rows of the pages that the kind has, those that are hidden: "112 412 413".
    [[nodiscard]] Text HiddenRows() {
        Text hidden;
        for (const SlotNumber slot : SlotNumbers()) {
            const bool off = (slot > 900 && slot < 1000 && !form.Bindings_Tab[4].Visible) ||
                             (slot > 1100 && !form.Bindings_Tab[5].Visible) ||
                             (slot > 1000 && slot < 1100 && !form.Bindings_Tab[6].Visible);
            EXPECT_EQ(form.Document.Bound_Lbl[slot].Visible, form.Document.Setting_Lbl[slot].Visible) << slot;
            if (!off && !form.Document.Bound_Lbl[slot].Visible) {
                hidden += Join(hidden.empty() ? "" : " ", std::to_string(slot));
            }
        }
        return hidden;
    }
    [[nodiscard]] Text HiddenHeadings() {
        Text hidden;
        for (const SlotNumber heading :
             Slots{100, 200, 300, 400, 500, 67, 700, 800, 900, 950, 1000, 1100, 1198, 1199}) {
            if (!form.Document.Bound_Lbl[heading].Visible) {
                hidden += Join(hidden.empty() ? "" : " ", std::to_string(heading));
            }
        }
        return hidden;
    }
};

// clang-format off

struct ListedKind {
    Game Kind;
    const char* Page4;
    const char* Page5;
    const char* Page6;
    const char* Legend4;
    const char* Legend5;
    const char* Legend6;
    const char* HiddenRows;
    const char* HiddenHeadings;
};

constexpr ListedKind kListed[] = {
    {Game::Quake,    "off",         "off",            "&CTF", " CTF ",  "hidden",      "hidden",    "211 212 411 412 413",                                                        ""},
    {Game::Hexen2,   "&Hexen ][",   "off",            "off",  "hidden", " Hexen ][",   "hidden",    "205 206 207 208 211 212 411 412 413",                                        ""},
    {Game::Quake2,   "off",         "&Quake ][",      "off",  "hidden", "hidden",      " Quake ][", "112 412 413",                                                                ""},
    {Game::Unreal,   "off",         "UnReal",         "off",  "hidden", "hidden",      " Unreal",   "114 116 211 212 301 302 304 308 409 1101 1105 1114 1115 1116 1123 1124",     ""},
    {Game::Sin,      "off",         "SIN",            "off",  "hidden", "hidden",      " Sin",      "112 412 413 1105 1113 1114 1115 1116 1120 1121 1122 1123 1124",              "1199"},
    {Game::Heretic2, "&Heretic ][", "off",            "off",  "hidden", " Heretic ][", "hidden",    "112 210 412 413 913 914 915 916",                                            ""},
    {Game::HalfLife, "&Half-Life",  "&Camera Tricks", "off",  "hidden", " Half-Life",  " Camera",   "112 209 210 211 212 409 411 412 413 909 1110 1111 1112 1113 1114 1115 1116", "1198 1199"},
};

// What of the player's pages is visible.
struct ListedControls {
    Game Kind;
    bool Colors, NoColors, Models, PlayerClass, Handed, VidMode, CdVolume, EnableCd, UnbindAll, Unreal;
};

constexpr ListedControls kListedControls[] = {
    //                colors  no colors  models  class  handed  vid mode  CD volume  enable CD  unbind all  Unreal
    {Game::Quake,     true,   true,      false,  false, false,  true,     true,      false,     true,       false},
    {Game::Hexen2,    true,   true,      false,  true,  false,  true,     true,      false,     true,       false},
    {Game::Quake2,    false,  false,     true,   false, true,   false,    false,     true,      true,       false},
    {Game::Unreal,    false,  false,     false,  false, false,  true,     true,      false,     false,      true},
    {Game::Sin,       false,  false,     true,   false, true,   false,    false,     true,      true,       false},
    {Game::Heretic2,  false,  false,     true,   false, true,   true,     false,     true,      true,       false},
    {Game::HalfLife,  false,  false,     true,   false, false,  true,     false,     true,      true,       false},
};

// clang-format on

TEST_F(KindLayoutTest, EachKindHasItsPagesLegendAndRows) {
    for (const ListedKind& row : kListed) {
        SCOPED_TRACE(NumberOf(row.Kind));
        Load(DialectOf(row.Kind));
        EXPECT_EQ(Page(4), row.Page4);
        EXPECT_EQ(Page(5), row.Page5);
        EXPECT_EQ(Page(6), row.Page6);
        EXPECT_EQ(Legend(4), row.Legend4);
        EXPECT_EQ(Legend(5), row.Legend5);
        EXPECT_EQ(Legend(6), row.Legend6);
        EXPECT_EQ(HiddenRows(), row.HiddenRows);
        EXPECT_EQ(HiddenHeadings(), row.HiddenHeadings);
    }
}

TEST_F(KindLayoutTest, ThePagesOfAllKindsAreAlwaysOn) {
    for (const Game kind : kKinds) {
        Load(DialectOf(kind));
        for (std::size_t page = 0; page < 4; ++page) {
            EXPECT_NE(Page(page), "off") << NumberOf(kind);
        }
        for (const std::size_t label : {0, 1, 2, 3, 7, 8, 9, 10}) {
            EXPECT_NE(Legend(label), "hidden") << NumberOf(kind);
        }
    }
}

TEST_F(KindLayoutTest, EachKindHasItsSettings) {
    for (const ListedControls& row : kListedControls) {
        SCOPED_TRACE(NumberOf(row.Kind));
        Load(DialectOf(row.Kind));
        const ScriptDocument& document = form.Document;
        EXPECT_EQ(document.PlayerColor_Lbl[0].Visible, row.Colors);
        EXPECT_EQ(document.PlayerColor_Lbl[1].Visible, row.Colors);
        EXPECT_EQ(document.NoColors_Chk.Visible, row.NoColors);
        EXPECT_EQ(document.Sex_Cbo.Visible, row.Models);
        EXPECT_EQ(document.Skin_Cbo.Visible, row.Models);
        EXPECT_EQ(form.Sex_Lbl.Visible, row.Models);
        EXPECT_EQ(form.Skin_Lbl.Visible, row.Models);
        EXPECT_EQ(document.PlayerClass_Cbo.Visible, row.PlayerClass);
        EXPECT_EQ(form.Some_Lbl.Visible, row.PlayerClass);
        EXPECT_EQ(document.Handed_Cbo.Visible, row.Handed);
        EXPECT_EQ(document.vidmode_Cbo.Visible, row.VidMode);
        EXPECT_EQ(document.bgmvolume_Cbo.Visible, row.CdVolume);
        EXPECT_EQ(document.Q2_EnableCD_Chk.Visible, row.EnableCd);
        EXPECT_EQ(document.Q2_WaveOnly_Chk.Visible, row.EnableCd);
        EXPECT_EQ(document.Unbindall_Chk.Visible, row.UnbindAll);
        EXPECT_FALSE(document.CrossHairColor_Cbo.Visible);
        EXPECT_TRUE(document.Crosshair_Cbo.Visible);
        for (const Panel* const panel : {&form.UnrealAudio_Pic, &form.PlayerPawn_Pic, &form.WeaponPriority_Pic}) {
            EXPECT_EQ(panel->Visible, row.Unreal);
        }
        for (const Panel* const panel :
             {&form.Speeds_Pic, &form.Mouse_Pic, &form.Angle_Pic, &form.Bob_Pic, &form.Sound_Pic}) {
            EXPECT_EQ(panel->Visible, !row.Unreal);
        }
        for (const Panel* const panel : {&form.Checkables_Pic, &form.Other_Pic, &form.Screen_Pic}) {
            EXPECT_TRUE(panel->Visible);
        }
        EXPECT_EQ(document.Skin_Fil.Visible, !row.Unreal);
        EXPECT_EQ(form.SelectNoSkin_Cmd.Visible, !row.Unreal);
        EXPECT_EQ(form.Label8.Visible, !row.Unreal);
        EXPECT_EQ(document.MLook_Chk.Caption, row.Models ? "Freelook" : "Mouse Look (Mlook)");
    }
}

TEST_F(KindLayoutTest, OnlyQuakeWorldHasTheCrosshairsColor) {
    Load(kQuakeWorldDialect);
    EXPECT_TRUE(form.Document.CrossHairColor_Cbo.Visible);
    Load(kQuakeDialect);
    EXPECT_FALSE(form.Document.CrossHairColor_Cbo.Visible);
}

TEST_F(KindLayoutTest, TheColorOfTheCrosshairFollowsTheScript) {
    Load(kQuakeWorldDialect, "crosshair 2\n");
    EXPECT_TRUE(form.Document.CrossHairColor_Cbo.Enabled);
    Load(kQuakeWorldDialect, "crosshair 1\n");
    EXPECT_FALSE(form.Document.CrossHairColor_Cbo.Enabled);
    Load(kQuakeWorldDialect);
    EXPECT_FALSE(form.Document.CrossHairColor_Cbo.Enabled);
}

TEST_F(KindLayoutTest, UnrealTurnsThreeOptionPagesIntoItsOwn) {
    Load(kUnrealDialect);
    const TabSet& pages = form.Document.Options_Tab;
    EXPECT_EQ(pages[0].Caption, " &General Options");
    EXPECT_EQ(pages[1].Caption, "Player");
    EXPECT_EQ(pages[2].Caption, "Audio");
    EXPECT_EQ(pages[3].Caption, "Weapon Preferance");
    EXPECT_TRUE(pages[3].Enabled);
    EXPECT_FALSE(pages[4].Enabled);
    Load(kQuakeDialect);
    EXPECT_EQ(form.Document.Options_Tab[3].Caption, "&QuakeWorld Skins");
    EXPECT_FALSE(form.Document.Options_Tab[3].Enabled);
}

TEST_F(KindLayoutTest, UnrealNeverUnbindsAll) {
    Load(kUnrealDialect, "unbindall\n");
    EXPECT_EQ(form.Document.Unbindall_Chk.Value, 0);
    Load(kQuakeDialect, "unbindall\n");
    EXPECT_EQ(form.Document.Unbindall_Chk.Value, 1);
}

TEST_F(KindLayoutTest, UnrealHidesTwentyAuxKeys) {
    Load(kUnrealDialect);
    for (Index label = 98; label <= 135; ++label) {
        EXPECT_EQ(form.KeyLabelOf(label).Visible, label < 104 || label > 123) << label;
    }
}

TEST_F(KindLayoutTest, OtherKindsHideNoAuxKey) {
    for (const Game kind : Kinds{Game::Quake, Game::Hexen2, Game::Quake2, Game::Sin, Game::Heretic2, Game::HalfLife}) {
        Fig_Frm fresh(run, launcher.Lists);
        fresh.Document.Dialect = DialectOf(kind);
        ApplyGameKind(fresh);
        EXPECT_TRUE(fresh.KeyLabelOf(104).Visible) << NumberOf(kind);
        EXPECT_TRUE(fresh.KeyLabelOf(123).Visible) << NumberOf(kind);
    }
}

TEST_F(KindLayoutTest, TheNewerKindsShowDigitsOnTheKeypad) {
    struct Digit {
        Index Label;
        const char* Caption;
    };
    const Digit digits[] = {{84, "7"}, {85, "8"}, {86, "9"}, {87, "4"}, {89, "6"},
                            {90, "1"}, {91, "2"}, {92, "3"}, {94, "0"}};
    for (const Game kind : kKinds) {
        Fig_Frm fresh(run, launcher.Lists);
        fresh.Document.Dialect = DialectOf(kind);
        const Text five = fresh.KeyLabelOf(88).Caption;
        const Text seven = fresh.KeyLabelOf(84).Caption;
        ApplyGameKind(fresh);
        const bool isNew =
            kind == Game::Quake2 || kind == Game::Sin || kind == Game::Heretic2 || kind == Game::HalfLife;
        for (const Digit& digit : digits) {
            EXPECT_EQ(fresh.KeyLabelOf(digit.Label).Caption == digit.Caption, isNew) << NumberOf(kind);
        }
        EXPECT_EQ(fresh.KeyLabelOf(88).Caption, five);
        EXPECT_EQ(fresh.KeyLabelOf(84).Caption, isNew ? "7" : seven);
    }
}

TEST_F(KindLayoutTest, OnlyQuakeOffersStandardAliases) {
    for (const Game kind : kKinds) {
        Load(DialectOf(kind));
        const auto expected =
            kind == Game::Quake ? std::vector<Text>{" 1. Rocket Jump", " 2. Name Scroll"} : std::vector<Text>{};
        EXPECT_EQ(form.StdAliases_Cbo.Items, expected) << NumberOf(kind);
        EXPECT_EQ(form.StdAliases_Cbo.ListIndex, -1);
    }
}

TEST_F(KindLayoutTest, HalfLifesRowsWithoutAWeaponTakeNoKey) {
    Load(kHalfLifeDialect);
    for (SlotNumber slot = 201; slot <= 210; ++slot) {
        EXPECT_EQ(form.Document.Setting_Lbl[slot].Enabled, slot < 206) << slot;
        EXPECT_EQ(form.Document.Bound_Lbl[slot].Caption == " <N/A>", slot >= 206) << slot;
    }
    Load(kQuakeDialect);
    EXPECT_TRUE(form.Document.Setting_Lbl[206].Enabled);
}

TEST_F(KindLayoutTest, TheCamerasLegendHasTheColorOfItsRows) {
    Load(kHalfLifeDialect);
    EXPECT_EQ(form.ColorCode_Lbl[6].BackColor, 0xffc0ffU);
    EXPECT_EQ(form.ColorCode_Lbl[5].BackColor, 0xffc0c0U);
    Load(kQuake2Dialect);
    EXPECT_EQ(form.ColorCode_Lbl[6].BackColor, 0xffc0c0U);
}

TEST_F(KindLayoutTest, HexenNamesTheWeaponsOfTheScriptsClass) {
    Load(kHexen2Dialect);
    EXPECT_EQ(form.Document.Bound_Lbl[201].Caption, " Gauntlets");
    Load(kHexen2Dialect, "_cl_playerclass \"2\"\n");
    EXPECT_EQ(form.Document.Bound_Lbl[201].Caption, " Sickle");
    EXPECT_EQ(form.Document.Bound_Lbl[204].Caption, " Raven Staff");
    EXPECT_EQ(form.Document.Bound_Lbl[209].Caption, " Back");
}

TEST_F(KindLayoutTest, AScriptsColorsAreShownInTheGamesOwnPalette) {
    Text palette(768, '\0');
    palette[(3 * 16 + 8) * 3] = '\x12';
    system.Disk.AddFile("C:\\GAME\\ID1\\gfx\\palette.lmp", palette);
    Load(kQuakeDialect, "color 3 300\n");
    EXPECT_EQ(form.Document.PlayerColor_Lbl[0].BackColor, 0x000012U);
    EXPECT_EQ(form.Document.PlayerColor_Lbl[0].Tag, 3);
    EXPECT_EQ(form.Document.PlayerColor_Lbl[1].BackColor, kWhite);
    EXPECT_EQ(form.Document.PlayerColor_Lbl[1].Tag, 300);
}

TEST_F(KindLayoutTest, IsNoEdit) {
    for (const Game kind : kKinds) {
        Load(DialectOf(kind));
        EXPECT_TRUE(form.Document.ScriptClean) << NumberOf(kind);
    }
}

TEST_F(KindLayoutTest, ForgetsWhatWasTypedIntoTheListsOfAnotherScript) {
    form.TypedRows[&form.Document.fov_Cbo] = 3;
    Load(kQuakeDialect);
    EXPECT_TRUE(form.TypedRows.empty());
}

TEST_F(KindLayoutTest, AGameThatIsNotKnownIsEditedAsQuake) {
    form.Document.Dialect = {};
    ApplyGameKind(form);
    EXPECT_EQ(Page(6), "&CTF");
    EXPECT_EQ(Page(4), "off");
    EXPECT_TRUE(form.Document.PlayerColor_Lbl[0].Visible);
}

}  // namespace
}  // namespace lv
