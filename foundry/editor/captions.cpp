#include "foundry/editor/captions.h"

#include "foundation/game.h"
#include "foundry/editor/settings_pages.h"

namespace lv {

namespace {

using F = Fig_Frm;
using D = ScriptDocument;

constexpr TextView kSelectionBoxTip = "For a tip on the setting, hold the mouse over the selection box";
constexpr TextView kCheckBoxTip = "For a tip on the setting, hold the mouse over the check box";

// clang-format off
constexpr LegendRow kLegend[] = {
    {0,  " Extras",   500},
    {1,  " Aliases",  700},
    {2,  " Scripts",  800},
    {3,  " Talking",  67},
    {4,  " CTF ",     1000},
    {5,  " Hexen ][", 900},
    {6,  " Quake ][", 1100},
    {7,  " Move",     100},
    {8,  " Weapon",   200},
    {9,  " Comm",     300},
    {10, " System",   400},
};

constexpr TextView kMainPages[] = {
    "  &Player Settings",
    "  &Bindings",
    "  &Aliases",
    "  &Free Form Additions",
    "  Sa&ve && Exit",
};

constexpr TextView kBindingsPages[] = {
    "&Standard",
    "S&ystem",
    "Exte&nded",
    "&Talking",
    "&Hexen ][",
    "&Quake ][",
    "&CTF",
};

constexpr TextView kOptionsPages[] = {
    " &General Options",
    "&Movement / Mouse",
    "&Angle / Bob / Volume",
    "&QuakeWorld Skins",
    "&Rate",
};

struct ButtonText {
    CommandButton Fig_Frm::*Button;
    TextView Caption;
    TextView ToolTip;
};

constexpr ButtonText kButtons[] = {
    {&F::AddMessage_Cmd,         "&Add",                             "Add new stuff to say"},
    {&F::EditMessage_Cmd,        "&Edit",                            "To edit talking stuff, click it."},
    {&F::DeleteMessage_Cmd,      "&Delete",                          "To delete talking stuff, right click it."},
    {&F::AddExtraBinding_Cmd,    "Add E&xtra",                       "Add an extended binding"},
    {&F::EditExtraBinding_Cmd,   "E&dit",                            "To edit an extended binding, click it."},
    {&F::DeleteExtraBinding_Cmd, "D&elete",                          "To delete an extended binding, right click it."},
    {&F::AddBoundScript_Cmd,     "&Add Script",                      "Add a binding that executes a script"},
    {&F::EditoundScript_Cmd,     "Edi&t",                            "To edit a script binding, click it"},
    {&F::DeleteBoundScript_Cmd,  "De&lete",                          "To delete a script binding, right click it."},
    {&F::AddCustomAlias_Cmd,     "A&dd",                             "Make an alias of your own"},
    {&F::EditAlias_Cmd,          "&Edit",                            "Change the selected alias"},
    {&F::DeleteAlias_Cmd,        "De&lete",                          "Delete the selected alias"},
    {&F::AddStandardAlias_Cmd,   "Add S&tandard Alias",              "Add the ready-made alias that is selected in the list"},
    {&F::SelectNoSkin_Cmd,       "&Don't Specify a Skin",            "Click here to clear any skin selection."},
    {&F::ViewCustomLetters_Cmd,  "&Edit Name With Custom Letters",   "Use those cool custom letters!"},
    {&F::UnloadSF_Cmd,           "E&xit",                            "Exit without a question; what was not saved is lost"},
    {&F::ShowChanges_Cmd,        "Show &Changes...",                 "What a save would change now, for the game and in the file"},
    {&F::Versions_Cmd,           "Versio&ns...",                     "What earlier saves have replaced, to be looked at and brought back"},
    {&F::FileOrder_Cmd,          "&Which File Wins...",              "Which scripts the game executes, and which of them has the last word"},
    {&F::AliasGraph_Cmd,         "Alias &Graph...",                  "What each alias calls, and who calls it"},
    {&F::ScriptCheck_Cmd,        "Chec&k...",                        "What the game takes otherwise than it may be meant"},
    {&F::FindNext_Cmd,           "F&ind Next",                       "Go on to the next place that has the text"},
    {&F::Undo_Cmd,               "Und&o",                            "Take the last change back [Ctrl+Z]"},
    {&F::Redo_Cmd,               "&Redo",                            "Make the change again that was taken back last [Ctrl+Y]"},
};

struct LabelText {
    Label Fig_Frm::*Shown;
    TextView Caption;
};

constexpr LabelText kLabels[] = {
    {&F::Label2,   "Minutes."},
    {&F::Label3,   "This button exits SetupFoundry whether the script has been saved or not."},
    {&F::Label4,   "Rate - Limit this value to a number close to the CPS speed that your connection can receive."},
    {&F::Label6,   "( Names have a 15 character limit )"},
    {&F::Label7,   "To say only to your team, check 'Team Only'"},
    {&F::Label8,   "[ Skin display coming soon... ]"},
    {&F::Some_Lbl, "Player Class"},
    {&F::Sex_Lbl,  " Model:"},
    {&F::Skin_Lbl, " Skin:"},
};

struct GroupTip {
    Panel Fig_Frm::*Group;
    TextView ToolTip;
};

constexpr GroupTip kGroupTips[] = {
    {&F::Checkables_Pic, kCheckBoxTip},
    {&F::Other_Pic,      kSelectionBoxTip},
    {&F::Screen_Pic,     kSelectionBoxTip},
    {&F::Speeds_Pic,     kSelectionBoxTip},
    {&F::Mouse_Pic,      kSelectionBoxTip},
    {&F::Angle_Pic,      kSelectionBoxTip},
    {&F::Bob_Pic,        kSelectionBoxTip},
    {&F::Sound_Pic,      kSelectionBoxTip},
};

struct HeadingTip {
    SlotNumber Heading;
    TextView ToolTip;
};

constexpr HeadingTip kHeadingTips[] = {
    {500,  "You can bind keys to any text/commands"},
    {800,  "You can bind keys to execute other scripts"},
    {1199, "Your player can wave at/to other players"},
};

struct ListTip {
    ListBox ScriptSettings::*List;
    TextView ToolTip;
};

constexpr ListTip kListTips[] = {
    {&D::Sex_Cbo,              "Choose a model for your player"},
    {&D::Skin_Cbo,             "Choose a skin for your player model"},
    {&D::PlayerClass_Cbo,      "Choose the class of your player; the weapons are named for it"},
    {&D::WeaponsAvailable_Lst, "Weapons without a place in your order"},
    {&D::WeaponsPriority_Lst,  "The best weapon first; the arrow keys move the selected one"},
};

struct BoxTip {
    TextBox ScriptSettings::*Box;
    TextView ToolTip;
};

constexpr BoxTip kBoxTips[] = {
    {&D::Name_Txt,           "You can type your name in here."},
    {&D::Rate_Txt,           "The most bytes that the server is to send you in a second"},
    {&D::UnrealTeamName_Txt, "The name of your team"},
    {&D::UnrealPassword_Txt, "The password for servers that ask for one"},
};
// clang-format on

template <std::size_t Count>
void FillTabs(TabSet& tabs, const TextView (&captions)[Count]) {
    tabs.Pages.resize(Count);
    for (std::size_t page = 0; page < Count; ++page) {
        tabs[page].Caption = captions[page];
    }
}

void Put(CommandButton& button, TextView caption, TextView toolTip) {
    button.Caption = caption;
    button.ToolTip = toolTip;
}

void Put(CheckBox& box, TextView caption, TextView toolTip) {
    box.Caption = caption;
    box.ToolTip = toolTip;
}

void FillArrays(Fig_Frm& form) {
    Put(form.JoyToggle_Cmd[0], "&Joystick / Other", "Show the joystick and aux bindables");
    Put(form.JoyToggle_Cmd[1], "&Keyboard / Mouse", "Show the bindable keyboard and mouse keys");
    Put(form.View_Cmd[6], "&Save", "Save this script");
    Put(form.View_Cmd[7], "Save &As...", "Save this script with a new name");
    Put(form.SelectWeapon_Cmd[0], "Add >>", "Give the selected weapon the last place in your order");
    Put(form.SelectWeapon_Cmd[1], "<< Remove", "Take the selected weapon out of your order");
    Put(form.WeaponMove_Cmd[0], "<< Move Selected Weapon Up", "Prefer the selected weapon to the one above it");
    Put(form.WeaponMove_Cmd[1], "<< Move Selected Weapon Down", "Prefer the one below it to the selected weapon");
}

void FillSavePage(Fig_Frm& form) {
    Put(form.AutoSaveEnable_Chk, "Enable &Auto Save Every", "Save the script by itself, again and again");
    Put(form.AutoSaveWarning_Chk, "&Warn Before Auto Saving", "Ask before each auto save");
    Put(form.ExitOnSave_Chk, "&Exit SetupFoundry After This Save", "Close this window when the script was saved");
    form.Minutes_Cbo.ToolTip = "The minutes between two auto saves";
}

}  // namespace

void FillCaptions(Fig_Frm& form) {
    FillTabs(form.Main_Tab, kMainPages);
    FillTabs(form.Bindings_Tab, kBindingsPages);
    for (const LegendRow& row : kLegend) {
        form.ColorCode_Lbl[row.Label].Caption = row.Caption;
        form.ColorCode_Lbl[row.Label].BackColor = SlotColor(row.Row, Game::Quake);
    }
    for (const ButtonText& row : kButtons) {
        Put(form.*row.Button, row.Caption, row.ToolTip);
    }
    for (const LabelText& row : kLabels) {
        (form.*row.Shown).Caption = row.Caption;
    }
    for (const GroupTip& row : kGroupTips) {
        (form.*row.Group).ToolTip = row.ToolTip;
    }
    FillArrays(form);
    FillSavePage(form);
    form.Label6.ToolTip = "That's just the way it is";
    form.Keyboard_Fra.Caption = "  Keyboard / Mouse";
    form.Joy_Fra.Caption = "  Joystick / Other";
    form.Device_Cbo.ToolTip = "Choose your controller";
    form.Alias_Lst.ToolTip = "All aliases of the script; [X] marks those that keys can be bound to";
    form.StdAliases_Cbo.ToolTip = "Ready-made aliases";
    form.Name_Pic.ToolTip = "Your name as the game shows it";
    form.Find_Txt.ToolTip = "Finds a function, command, key or alias on all pages";
}

void CaptionDocument(ScriptDocument& document) {
    FillTabs(document.Options_Tab, kOptionsPages);
    for (const CheckRow& row : CheckRows()) {
        Put(document.*row.Box, row.Caption, row.ToolTip);
    }
    for (const SettingRow& row : SettingRows()) {
        (document.*row.List).ToolTip = row.ToolTip;
    }
    for (const HeadingTip& row : kHeadingTips) {
        document.Bound_Lbl[row.Heading].ToolTip = row.ToolTip;
    }
    for (const ListTip& row : kListTips) {
        (document.*row.List).ToolTip = row.ToolTip;
    }
    for (const BoxTip& row : kBoxTips) {
        (document.*row.Box).ToolTip = row.ToolTip;
    }
    for (SlotNumber slot = kMessages.First; slot <= kMessages.Last; ++slot) {
        Put(document.Say_Team_Chk[slot], "Team Only", "Check here to say this to your teammates only");
    }
    Put(document.Unbindall_Chk, "&Unbind All (System bindings are removed before running your script)",
        "Clears any binding that might already exist in the game");
    document.Skin_Fil.ToolTip = "Click here to select a skin";
    document.PlayerColor_Lbl[0].Caption = " Shirt Color";
    document.PlayerColor_Lbl[0].ToolTip = "Click to choose a shirt color";
    document.PlayerColor_Lbl[1].Caption = " Pants Color";
    document.PlayerColor_Lbl[1].ToolTip = "Click to choose a pants color";
}

const LegendRow& LegendOf(std::size_t label) {
    return kLegend[label];
}

}  // namespace lv
