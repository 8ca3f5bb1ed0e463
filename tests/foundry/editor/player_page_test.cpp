#include "foundry/editor/player_page.h"

#include "foundry/editor/kind_layout.h"
#include "tests/foundry/editor/fig_fixture.h"

namespace lv {
namespace {

class PlayerPageTest : public FigTest {
  protected:
    void Load(const ScriptDialect& dialect, TextView script = "") {
        Open(dialect, script);
        ApplyGameKind(form);
        form.Document.ScriptClean = true;
    }
    /// A palette whose colour i is i * 16 + 8 on the red channel, as `directory` holds it.
    void AddPalette(TextView directory) {
        Text palette(768, '\0');
        for (std::size_t i = 0; i < 256; ++i) {
            palette[i * 3] = static_cast<char>(i);
        }
        system.Disk.AddFile(Join(directory, "\\gfx\\palette.lmp"), palette);
    }
    [[nodiscard]] bool Clean() const { return form.Document.ScriptClean; }
    [[nodiscard]] std::vector<Text> Weapons() {
        std::vector<Text> captions;
        for (SlotNumber slot = 201; slot <= 204; ++slot) {
            captions.push_back(form.Document.Bound_Lbl[slot].Caption);
        }
        return captions;
    }
};

using Texts = std::vector<Text>;

TEST_F(PlayerPageTest, ANameThatIsTypedIsAnEdit) {
    Load(kQuakeDialect);
    form.Document.Name_Txt.Text = "Ranger";
    Name_Txt_Change(form);
    EXPECT_FALSE(Clean());
}

TEST_F(PlayerPageTest, ANameThatTheReaderPutsThereIsNone) {
    Load(kQuakeDialect);
    form.Document.ScriptLoading = true;
    Name_Txt_Change(form);
    EXPECT_TRUE(Clean());
}

TEST_F(PlayerPageTest, ABlankInAnUnrealNameBecomesAnUnderscore) {
    Load(kUnrealDialect);
    EXPECT_EQ(Name_Txt_KeyPress(form, ' '), '_');
    EXPECT_EQ(Name_Txt_KeyPress(form, 'x'), 'x');
    Load(kQuakeDialect);
    EXPECT_EQ(Name_Txt_KeyPress(form, ' '), ' ');
}

TEST_F(PlayerPageTest, ThePickedColorIsShownAndKept) {
    Load(kQuakeDialect);
    user.In<Color_Frm>([](Color_Frm& dialog) {
        EXPECT_EQ(dialog.Color_Lbl[4].BackColor, 0x000080U);
        EXPECT_EQ(dialog.Color_Lbl[13].BackColor, 0xc00000U);
        EXPECT_EQ(dialog.Color_Lbl[13].Tag, 13);
        Color_Lbl_Click(dialog, 4);
        EXPECT_TRUE(dialog.Closed);
    });
    PlayerColor_Lbl_Click(form, 1);
    EXPECT_EQ(form.Document.PlayerColor_Lbl[1].BackColor, 0x000080U);
    EXPECT_EQ(form.Document.PlayerColor_Lbl[1].Tag, 4);
    EXPECT_EQ(form.Document.PlayerColor_Lbl[0].Tag, 0);
    EXPECT_FALSE(Clean());
}

TEST_F(PlayerPageTest, TheFirstAndTheLastColorCanBePicked) {
    Load(kQuakeDialect, "color 3 3\n");
    for (const int picked : {0, 13}) {
        user.In<Color_Frm>([picked](Color_Frm& dialog) { Color_Lbl_Click(dialog, picked); });
        PlayerColor_Lbl_Click(form, 0);
        EXPECT_EQ(form.Document.PlayerColor_Lbl[0].Tag, picked);
    }
}

TEST_F(PlayerPageTest, CancelChangesNoColor) {
    Load(kQuakeDialect, "color 3 5\n");
    user.In<Color_Frm>([](Color_Frm& dialog) {
        EXPECT_EQ(dialog.Cancel_Cmd.Caption, "&Cancel");
        Color_Cancel_Cmd_Click(dialog);
        EXPECT_TRUE(dialog.Closed);
    });
    PlayerColor_Lbl_Click(form, 0);
    user.In<Color_Frm>([](Color_Frm& dialog) { dialog.DialogResult = 14; });
    PlayerColor_Lbl_Click(form, 0);
    EXPECT_EQ(form.Document.PlayerColor_Lbl[0].Tag, 3);
    EXPECT_EQ(form.Document.PlayerColor_Lbl[0].BackColor, 0x008000U);
    EXPECT_TRUE(Clean());
}

TEST_F(PlayerPageTest, TheColorsAreThoseOfTheTableWithoutTheGamesPalette) {
    Load(kQuakeDialect);
    EXPECT_EQ(PlayerColors(form), ColorTable);
}

TEST_F(PlayerPageTest, ThePickedColorIsThatOfTheGamesPalette) {
    AddPalette("C:\\GAME\\ID1");
    Load(kQuakeDialect);
    user.In<Color_Frm>([](Color_Frm& dialog) { Color_Lbl_Click(dialog, 4); });
    PlayerColor_Lbl_Click(form, 0);
    EXPECT_EQ(form.Document.PlayerColor_Lbl[0].BackColor, 0x000048U);
}

TEST_F(PlayerPageTest, ThePaletteBesideTheScriptComesBeforeTheGamesOwn) {
    Text other(768, '\x10');
    system.Disk.AddFile("C:\\GAME\\CTF\\gfx\\palette.lmp", other);
    AddPalette("C:\\GAME\\ID1");
    Open(kQuakeDialect, "", "C:\\GAME\\CTF\\my.cfg");
    EXPECT_EQ(PlayerColors(form)[2], 0x101010U);
    Open(kQuakeDialect, "", "C:\\GAME\\MOD\\my.cfg");
    EXPECT_EQ(PlayerColors(form)[2], 0x000028U);
}

TEST_F(PlayerPageTest, EachClassNamesItsWeapons) {
    ScriptDialect mission = kHexen2Dialect;
    mission.IsMissionPack = true;
    Load(mission);
    ListBox& classes = form.Document.PlayerClass_Cbo;
    ASSERT_EQ(classes.Items, (Texts{"Paladin", "Crusader", "Necromancer", "Assassin", "Demoness"}));
    const Texts listed[] = {
        {" Gauntlets", " Vorpal Sword", " Axe", " Purifier"},
        {" War Hammer", " Ice Mace", " Meteor Staff", " Light Bringer"},
        {" Sickle", " Magic Missles", " Bone Shards", " Raven Staff"},
        {" Katar", " Grenades", " Crossbow", " Staff of Set"},
        {" Dms1", " Dms2", " Dms3", " Dms4"},
    };
    for (int i = 0; i < 5; ++i) {
        classes.ListIndex = i;
        PlayerClass_Cbo_Click(form);
        EXPECT_EQ(Weapons(), listed[i]) << i;
    }
    EXPECT_FALSE(Clean());
}

TEST_F(PlayerPageTest, OnlyTheMissionPackHasTheDemoness) {
    Load(kHexen2Dialect);
    EXPECT_EQ(form.Document.PlayerClass_Cbo.Items, (Texts{"Paladin", "Crusader", "Necromancer", "Assassin"}));
    EXPECT_EQ(form.Document.PlayerClass_Cbo.ListIndex, 0);
}

TEST_F(PlayerPageTest, AClassThatIsNoneNamesNoWeapon) {
    Load(kHexen2Dialect);
    ListBox& classes = form.Document.PlayerClass_Cbo;
    classes.Items = {"Paladin", "Crusader", "Necromancer", "Assassin", "4", "7"};
    for (const int row : {5, -1, 6}) {
        classes.ListIndex = row;
        PlayerClass_Cbo_Click(form);
        EXPECT_EQ(form.Document.Bound_Lbl[201].Caption, " Gauntlets") << row;
    }
}

TEST_F(PlayerPageTest, OnlyTheSecondCrosshairHasAColor) {
    Load(kQuakeWorldDialect);
    for (const int row : {2, 0, 2, 1, 2, -1}) {
        form.Document.Crosshair_Cbo.ListIndex = row;
        Crosshair_Cbo_Click(form);
        EXPECT_EQ(form.Document.CrossHairColor_Cbo.Enabled, row == 2) << row;
    }
    EXPECT_FALSE(Clean());
}

TEST_F(PlayerPageTest, AnotherModelBringsItsSkins) {
    for (const char* file : {"female\\athena.pcx", "male\\grunt.pcx", "robot\\tris.md2"}) {
        system.Disk.AddFile(Join("C:\\GAME\\ID1\\players\\", file));
    }
    Load(kQuake2Dialect);
    form.TypedRows[&form.Document.Skin_Cbo] = 0;
    form.Document.Sex_Cbo.ListIndex = 1;
    Fig_Sex_Cbo_Click(form);
    EXPECT_EQ(form.Document.Skin_Cbo.Items, Texts{"grunt"});
    EXPECT_TRUE(form.TypedRows.empty());
    EXPECT_FALSE(Clean());
}

TEST_F(PlayerPageTest, AModelWithoutSkinsLeavesTheListEmpty) {
    system.Disk.AddFile("C:\\GAME\\ID1\\players\\robot\\tris.md2");
    Load(kQuake2Dialect);
    EXPECT_EQ(form.Document.Sex_Cbo.Selected(), "robot");
    Fig_Sex_Cbo_Click(form);
    EXPECT_TRUE(form.Document.Skin_Cbo.Items.empty());
}

TEST_F(PlayerPageTest, NoSkinIsSelectedAnyMore) {
    system.Disk.AddFile("C:\\GAME\\qw\\skins\\base.pcx");
    Load(kQuakeWorldDialect, "skin base\n");
    ASSERT_EQ(form.Document.Skin_Fil.ListIndex, 0);
    SelectNoSkin_Cmd_Click(form);
    EXPECT_EQ(form.Document.Skin_Fil.ListIndex, -1);
    EXPECT_FALSE(Clean());
}

class WeaponsTest : public PlayerPageTest {
  protected:
    void SetUp() override {
        Load(kUnrealDialect);
        available.Items = {"ASMD", "Minigun", "Rifle"};
        wanted.Items = {"Stinger", "Eightball"};
    }
    /// A box without a title of its own.
    void Expect(TextView text) {
        user.Expect({.Title = run.AppName, .Text_ = Text(text), .Whole = true, .Buttons = "&OK"});
    }
    ListBox& available = form.Document.WeaponsAvailable_Lst;
    ListBox& wanted = form.Document.WeaponsPriority_Lst;
};

TEST_F(WeaponsTest, AddMovesTheSelectedWeaponBehindTheOthers) {
    available.ListIndex = 1;
    SelectWeapon_Cmd_Click(form, 0);
    EXPECT_EQ(available.Items, (Texts{"ASMD", "Rifle"}));
    EXPECT_EQ(wanted.Items, (Texts{"Stinger", "Eightball", "Minigun"}));
    EXPECT_EQ(available.ListIndex, -1);
    EXPECT_FALSE(Clean());
}

TEST_F(WeaponsTest, RemoveMovesTheSelectedWeaponBack) {
    wanted.ListIndex = 0;
    SelectWeapon_Cmd_Click(form, 1);
    EXPECT_EQ(wanted.Items, Texts{"Eightball"});
    EXPECT_EQ(available.Items, (Texts{"ASMD", "Minigun", "Rifle", "Stinger"}));
    EXPECT_FALSE(Clean());
}

TEST_F(WeaponsTest, WithoutASelectionNothingMoves) {
    wanted.ListIndex = 0;
    Expect("No weapon is selected.");
    SelectWeapon_Cmd_Click(form, 0);
    wanted.ListIndex = -1;
    available.ListIndex = 0;
    Expect("No weapon is selected.");
    SelectWeapon_Cmd_Click(form, 1);
    EXPECT_EQ(available.Items.size(), 3U);
    EXPECT_EQ(wanted.Items.size(), 2U);
    EXPECT_TRUE(Clean());
}

TEST_F(WeaponsTest, AWeaponMovesUpAndStaysSelected) {
    wanted.ListIndex = 1;
    WeaponMove_Cmd_Click(form, 0);
    EXPECT_EQ(wanted.Items, (Texts{"Eightball", "Stinger"}));
    EXPECT_EQ(wanted.ListIndex, 0);
    EXPECT_FALSE(Clean());
}

TEST_F(WeaponsTest, AWeaponMovesDownAndStaysSelected) {
    wanted.ListIndex = 0;
    WeaponMove_Cmd_Click(form, 1);
    EXPECT_EQ(wanted.Items, (Texts{"Eightball", "Stinger"}));
    EXPECT_EQ(wanted.ListIndex, 1);
    EXPECT_FALSE(Clean());
}

TEST_F(WeaponsTest, NoWeaponMovesOutOfTheList) {
    wanted.ListIndex = 0;
    Expect("The weapon is already at the top of the list.");
    WeaponMove_Cmd_Click(form, 0);
    wanted.ListIndex = 1;
    Expect("The weapon is already at the bottom of the list.");
    WeaponMove_Cmd_Click(form, 1);
    EXPECT_EQ(wanted.Items, (Texts{"Stinger", "Eightball"}));
    EXPECT_TRUE(Clean());
}

TEST_F(WeaponsTest, TheMoveOfNoWeaponIsToldForEachDirection) {
    Expect("No weapon is selected to move up.");
    WeaponMove_Cmd_Click(form, 0);
    Expect("No weapon is selected to move down.");
    WeaponMove_Cmd_Click(form, 1);
    EXPECT_TRUE(Clean());
}

TEST_F(WeaponsTest, TheArrowKeysMoveTheWeapon) {
    wanted.ListIndex = 1;
    WeaponsPriority_Lst_KeyDown(form, 38);
    EXPECT_EQ(wanted.Items, (Texts{"Eightball", "Stinger"}));
    WeaponsPriority_Lst_KeyDown(form, 40);
    EXPECT_EQ(wanted.Items, (Texts{"Stinger", "Eightball"}));
    EXPECT_EQ(wanted.ListIndex, 1);
    WeaponsPriority_Lst_KeyDown(form, 37);
    WeaponsPriority_Lst_KeyDown(form, 39);
    EXPECT_EQ(wanted.ListIndex, 1);
}

}  // namespace
}  // namespace lv
