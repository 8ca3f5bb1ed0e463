#include "foundry/editor/captions.h"

#include <set>

#include "foundry/editor/kind_layout.h"
#include "tests/foundry/editor/fig_fixture.h"

namespace lv {
namespace {

class CaptionsTest : public FigTest {
  protected:
    void Load(const ScriptDialect& dialect = kQuakeDialect) {
        Open(dialect);
        ApplyGameKind(form);
    }
};

std::vector<Text> CaptionsOf(const TabSet& tabs) {
    std::vector<Text> captions;
    for (const TabPage& page : tabs.Pages) {
        captions.push_back(page.Caption);
    }
    return captions;
}

char AccessKey(TextView caption) {
    const std::size_t at = caption.find('&');
    return at == TextView::npos ? '\0' : LowerCase(caption[at + 1]);
}

using Captions = std::vector<Text>;

TEST_F(CaptionsTest, TheTabsHaveTheirPages) {
    EXPECT_EQ(CaptionsOf(form.Main_Tab), (Captions{"  &Player Settings", "  &Bindings", "  &Aliases",
                                                   "  &Free Form Additions", "  Sa&ve && Exit"}));
    EXPECT_EQ(CaptionsOf(form.Bindings_Tab),
              (Captions{"&Standard", "S&ystem", "Exte&nded", "&Talking", "&Hexen ][", "&Quake ][", "&CTF"}));
    Load();
    EXPECT_EQ(CaptionsOf(form.Document.Options_Tab), (Captions{" &General Options", "&Movement / Mouse",
                                                               "&Angle / Bob / Volume", "&QuakeWorld Skins", "&Rate"}));
}

TEST_F(CaptionsTest, TheLegendHasTheColorsOfTheGroups) {
    struct Listed {
        std::size_t Label;
        const char* Caption;
        Color Back;
    };
    const Listed listed[] = {
        {0, " Extras", 0x8080ff}, {1, " Aliases", 0xff80ff},  {2, " Scripts", 0x80c0ff},  {3, " Talking", 0x80ffff},
        {4, " CTF ", 0xffc0ff},   {5, " Hexen ][", 0xffc0c0}, {6, " Quake ][", 0xffc0c0}, {7, " Move", 0x00c000},
        {8, " Weapon", 0x00c0c0}, {9, " Comm", 0xc0c000},     {10, " System", 0xff8080},
    };
    ASSERT_EQ(std::size(listed), form.ColorCode_Lbl.size());
    for (const Listed& row : listed) {
        EXPECT_EQ(form.ColorCode_Lbl[row.Label].Caption, row.Caption);
        EXPECT_EQ(form.ColorCode_Lbl[row.Label].BackColor, row.Back) << row.Caption;
    }
}

TEST_F(CaptionsTest, TheButtonsSayWhatIsListed) {
    struct Listed {
        const CommandButton& Button;
        const char* Caption;
        const char* ToolTip;
    };
    const Listed listed[] = {
        {form.JoyToggle_Cmd[0], "&Joystick / Other", "Show the joystick and aux bindables"},
        {form.JoyToggle_Cmd[1], "&Keyboard / Mouse", "Show the bindable keyboard and mouse keys"},
        {form.AddMessage_Cmd, "&Add", "Add new stuff to say"},
        {form.EditMessage_Cmd, "&Edit", "To edit talking stuff, click it."},
        {form.DeleteMessage_Cmd, "&Delete", "To delete talking stuff, right click it."},
        {form.AddExtraBinding_Cmd, "Add E&xtra", "Add an extended binding"},
        {form.EditExtraBinding_Cmd, "E&dit", "To edit an extended binding, click it."},
        {form.DeleteExtraBinding_Cmd, "D&elete", "To delete an extended binding, right click it."},
        {form.AddBoundScript_Cmd, "&Add Script", "Add a binding that executes a script"},
        {form.EditoundScript_Cmd, "Edi&t", "To edit a script binding, click it"},
        {form.DeleteBoundScript_Cmd, "De&lete", "To delete a script binding, right click it."},
        {form.AddCustomAlias_Cmd, "A&dd", "Make an alias of your own"},
        {form.EditAlias_Cmd, "&Edit", "Change the selected alias"},
        {form.DeleteAlias_Cmd, "De&lete", "Delete the selected alias"},
        {form.AddStandardAlias_Cmd, "Add S&tandard Alias", "Add the ready-made alias that is selected in the list"},
        {form.SelectNoSkin_Cmd, "&Don't Specify a Skin", "Click here to clear any skin selection."},
        {form.ViewCustomLetters_Cmd, "&Edit Name With Custom Letters", "Use those cool custom letters!"},
        {form.SelectWeapon_Cmd[0], "Add >>", "Give the selected weapon the last place in your order"},
        {form.SelectWeapon_Cmd[1], "<< Remove", "Take the selected weapon out of your order"},
        {form.WeaponMove_Cmd[0], "<< Move Selected Weapon Up", "Prefer the selected weapon to the one above it"},
        {form.WeaponMove_Cmd[1], "<< Move Selected Weapon Down", "Prefer the one below it to the selected weapon"},
        {form.View_Cmd[6], "&Save", "Save this script"},
        {form.View_Cmd[7], "Save &As...", "Save this script with a new name"},
        {form.UnloadSF_Cmd, "E&xit", "Exit without a question; what was not saved is lost"},
        {form.FindNext_Cmd, "F&ind Next", "Go on to the next place that has the text"},
        {form.Undo_Cmd, "Und&o", "Take the last change back [Ctrl+Z]"},
        {form.Redo_Cmd, "&Redo", "Make the change again that was taken back last [Ctrl+Y]"},
    };
    for (const Listed& row : listed) {
        EXPECT_EQ(row.Button.Caption, row.Caption);
        EXPECT_EQ(row.Button.ToolTip, row.ToolTip) << row.Caption;
    }
}

TEST_F(CaptionsTest, TheLabelsSayWhatIsListed) {
    EXPECT_EQ(form.Label2.Caption, "Minutes.");
    EXPECT_EQ(form.Label3.Caption, "This button exits SetupFoundry whether the script has been saved or not.");
    EXPECT_TRUE(form.Label4.Caption.starts_with(
        "Rate - Limit this value to a number close to the CPS speed that your connection can receive."));
    EXPECT_EQ(form.Label6.Caption, "( Names have a 15 character limit )");
    EXPECT_EQ(form.Label6.ToolTip, "That's just the way it is");
    EXPECT_EQ(form.Label7.Caption, "To say only to your team, check 'Team Only'");
    EXPECT_EQ(form.Label8.Caption, "[ Skin display coming soon... ]");
    EXPECT_EQ(form.Some_Lbl.Caption, "Player Class");
    EXPECT_EQ(form.Sex_Lbl.Caption, " Model:");
    EXPECT_EQ(form.Skin_Lbl.Caption, " Skin:");
    EXPECT_EQ(form.Keyboard_Fra.Caption, "  Keyboard / Mouse");
    EXPECT_EQ(form.Joy_Fra.Caption, "  Joystick / Other");
    EXPECT_EQ(form.Find_Txt.ToolTip, "Finds a function, command, key or alias on all pages");
}

TEST_F(CaptionsTest, TheSavePageSaysWhatIsListed) {
    EXPECT_EQ(form.AutoSaveEnable_Chk.Caption, "Enable &Auto Save Every");
    EXPECT_EQ(form.AutoSaveWarning_Chk.Caption, "&Warn Before Auto Saving");
    EXPECT_EQ(form.ExitOnSave_Chk.Caption, "&Exit SetupFoundry After This Save");
}

TEST_F(CaptionsTest, TheGroupsPointAtTheTipsOfTheirControls) {
    EXPECT_EQ(form.Checkables_Pic.ToolTip, "For a tip on the setting, hold the mouse over the check box");
    for (const Panel* const group : {&form.Other_Pic, &form.Screen_Pic, &form.Speeds_Pic, &form.Mouse_Pic,
                                     &form.Angle_Pic, &form.Bob_Pic, &form.Sound_Pic}) {
        EXPECT_EQ(group->ToolTip, "For a tip on the setting, hold the mouse over the selection box");
    }
}

TEST_F(CaptionsTest, TheControlsOfTheDocumentSayWhatIsListed) {
    Load();
    const ScriptDocument& document = form.Document;
    EXPECT_EQ(document.Unbindall_Chk.Caption, "&Unbind All (System bindings are removed before running your script)");
    EXPECT_EQ(document.Unbindall_Chk.ToolTip, "Clears any binding that might already exist in the game");
    EXPECT_EQ(document.PlayerColor_Lbl[0].Caption, " Shirt Color");
    EXPECT_EQ(document.PlayerColor_Lbl[0].ToolTip, "Click to choose a shirt color");
    EXPECT_EQ(document.PlayerColor_Lbl[1].Caption, " Pants Color");
    EXPECT_EQ(document.PlayerColor_Lbl[1].ToolTip, "Click to choose a pants color");
    EXPECT_EQ(document.Name_Txt.ToolTip, "You can type your name in here.");
    EXPECT_EQ(document.Sex_Cbo.ToolTip, "Choose a model for your player");
    EXPECT_EQ(document.Skin_Cbo.ToolTip, "Choose a skin for your player model");
    EXPECT_EQ(document.Skin_Fil.ToolTip, "Click here to select a skin");
    EXPECT_EQ(document.Bound_Lbl[500].ToolTip, "You can bind keys to any text/commands");
    EXPECT_EQ(document.Bound_Lbl[800].ToolTip, "You can bind keys to execute other scripts");
    EXPECT_EQ(document.Bound_Lbl[1199].ToolTip, "Your player can wave at/to other players");
}

TEST_F(CaptionsTest, EachMessageHasItsTeamOnlyBox) {
    Load();
    for (SlotNumber slot = 801; slot <= 813; ++slot) {
        EXPECT_EQ(form.Document.Say_Team_Chk[slot].Caption, "Team Only") << slot;
        EXPECT_EQ(form.Document.Say_Team_Chk[slot].ToolTip, "Check here to say this to your teammates only") << slot;
    }
}

TEST_F(CaptionsTest, TheCaptionsComeBackWithTheNextScript) {
    Load();
    Load();
    EXPECT_EQ(form.Document.NoAim_Chk.Caption, "No Auto Aiming");
    EXPECT_EQ(form.Document.Options_Tab[4].Caption, "&Rate");
}

TEST_F(CaptionsTest, TheButtonsOfAllPagesHaveKeysThatNoTabHas) {
    std::set<char> taken;
    for (const TabSet* const tabs : {&form.Main_Tab, &form.Bindings_Tab}) {
        for (const TabPage& page : tabs->Pages) {
            taken.insert(AccessKey(page.Caption));
        }
    }
    for (const CommandButton* const button :
         {&form.FindNext_Cmd, &form.Undo_Cmd, &form.Redo_Cmd, &form.JoyToggle_Cmd[0], &form.JoyToggle_Cmd[1]}) {
        EXPECT_TRUE(taken.insert(AccessKey(button->Caption)).second) << button->Caption;
    }
}

TEST_F(CaptionsTest, TheButtonsOfThePageExtendedHaveKeysOfTheirOwn) {
    std::set<char> taken;
    for (const CommandButton* const button :
         {&form.FindNext_Cmd, &form.Undo_Cmd, &form.Redo_Cmd, &form.AddExtraBinding_Cmd, &form.EditExtraBinding_Cmd,
          &form.DeleteExtraBinding_Cmd, &form.AddBoundScript_Cmd, &form.EditoundScript_Cmd,
          &form.DeleteBoundScript_Cmd}) {
        EXPECT_TRUE(taken.insert(AccessKey(button->Caption)).second) << button->Caption;
    }
}

}  // namespace
}  // namespace lv
