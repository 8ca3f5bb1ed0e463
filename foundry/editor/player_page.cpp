#include "foundry/editor/player_page.h"

#include <utility>

#include "foundation/field_strings.h"
#include "foundation/game.h"
#include "foundation/question_box.h"
#include "foundry/fonts/game_font.h"
#include "foundry/reading/skin_page.h"

namespace lv {

namespace {

constexpr int kColoredCrosshair = 2;
constexpr int kKeyUp = 38;
constexpr int kKeyDown = 40;
constexpr const char* kNoTitle = "";

/// The weapons of each class of Hexen II, on the rows 201 to 204.
constexpr std::array<std::array<TextView, 4>, 5> kClassWeapons = {{
    {" Gauntlets", " Vorpal Sword", " Axe", " Purifier"},
    {" War Hammer", " Ice Mace", " Meteor Staff", " Light Bringer"},
    {" Sickle", " Magic Missles", " Bone Shards", " Raven Staff"},
    {" Katar", " Grenades", " Crossbow", " Staff of Set"},
    {" Dms1", " Dms2", " Dms3", " Dms4"},
}};
constexpr SlotNumber kFirstWeapon = 201;

/// Takes the selected row out of one list and puts it behind the rows of the other.
void MoveSelected(ListBox& from, ListBox& to) {
    const auto row = from.Items.begin() + from.ListIndex;
    to.Items.push_back(std::move(*row));
    from.Items.erase(row);
    from.ListIndex = -1;
}

}  // namespace

Color_Frm::Color_Frm(Run& owner, const std::array<Color, 14>& colors) : ModalWindow(owner, "Color_Frm") {
    Caption = "Player Color";
    Cancel_Cmd.Caption = "&Cancel";
    for (std::size_t i = 0; i < Color_Lbl.size(); ++i) {
        Color_Lbl[i].BackColor = colors[i];
        Color_Lbl[i].Tag = static_cast<int>(i);
        Color_Lbl[i].ToolTip = Join("Color ", std::to_string(i));
    }
}

void Color_Lbl_Click(Color_Frm& form, int index) {
    form.DialogResult = index;
    form.Closed = true;
}

void Color_Cancel_Cmd_Click(Color_Frm& form) {
    form.DialogResult = -1;
    form.Closed = true;
}

void Name_Txt_Change(Fig_Frm& form) {
    Edited(form);
}

char Name_Txt_KeyPress(const Fig_Frm& form, char typed) {
    return typed == ' ' && form.GameKind() == Game::Unreal ? '_' : typed;
}

std::array<Color, 14> PlayerColors(Fig_Frm& form) {
    const Run& run = form.run;
    std::vector<Text> directories;
    if (!form.Document.CurrentScriptDirectory.empty()) {
        directories.push_back(DropRight(form.Document.CurrentScriptDirectory, 1));
    }
    const Text base = Join(run.DefaultGameDirectory, "\\", run.BaseGameDir);
    if (directories.empty() || !SameText(directories.front(), base)) {
        directories.push_back(base);
    }
    return ReadPlayerColors(run.System.Disk, directories, form.GameKind()).value_or(ColorTable);
}

void PlayerColor_Lbl_Click(Fig_Frm& form, int index) {
    const std::array<Color, 14> colors = PlayerColors(form);
    Color_Frm dialog(form.run, colors);
    ShowModal(dialog);
    const auto chosen = static_cast<std::size_t>(dialog.DialogResult);
    if (dialog.DialogResult < 0 || chosen >= colors.size()) {
        return;
    }
    ColorLabel& label = form.Document.PlayerColor_Lbl[static_cast<std::size_t>(index)];
    label.BackColor = colors[chosen];
    label.Tag = dialog.DialogResult;
    Edited(form);
}

void ShowPlayerColors(Fig_Frm& form) {
    const std::array<Color, 14> colors = PlayerColors(form);
    for (ColorLabel& label : form.Document.PlayerColor_Lbl) {
        if (label.Tag >= 0 && static_cast<std::size_t>(label.Tag) < colors.size()) {
            label.BackColor = colors[static_cast<std::size_t>(label.Tag)];
        }
    }
}

void CaptionClassWeapons(Fig_Frm& form) {
    const ListBox& classes = form.Document.PlayerClass_Cbo;
    const auto chosen = static_cast<std::size_t>(classes.ListIndex);
    if (!classes.HasSelection() || chosen >= kClassWeapons.size()) {
        return;
    }
    SlotNumber slot = kFirstWeapon;
    for (const TextView weapon : kClassWeapons[chosen]) {
        form.Document.Bound_Lbl[slot].Caption = weapon;
        ++slot;
    }
}

void PlayerClass_Cbo_Click(Fig_Frm& form) {
    CaptionClassWeapons(form);
    Edited(form);
}

void EnableCrosshairColor(Fig_Frm& form) {
    form.Document.CrossHairColor_Cbo.Enabled = form.Document.Crosshair_Cbo.ListIndex == kColoredCrosshair;
}

void Crosshair_Cbo_Click(Fig_Frm& form) {
    EnableCrosshairColor(form);
    Edited(form);
}

void Fig_Sex_Cbo_Click(Fig_Frm& form) {
    Sex_Cbo_Click(form.run, form.Document);
    form.TypedRows.erase(&form.Document.Skin_Cbo);
    Edited(form);
}

void SelectNoSkin_Cmd_Click(Fig_Frm& form) {
    form.Document.Skin_Fil.ListIndex = -1;
    Edited(form);
}

void SelectWeapon_Cmd_Click(Fig_Frm& form, int index) {
    ListBox& available = form.Document.WeaponsAvailable_Lst;
    ListBox& wanted = form.Document.WeaponsPriority_Lst;
    ListBox& from = index == 0 ? available : wanted;
    if (!from.HasSelection()) {
        AskUser(form.run, kNoTitle, "No weapon is selected.");
        return;
    }
    MoveSelected(from, index == 0 ? wanted : available);
    Edited(form);
}

void WeaponMove_Cmd_Click(Fig_Frm& form, int index) {
    ListBox& list = form.Document.WeaponsPriority_Lst;
    const bool up = index == 0;
    if (!list.HasSelection()) {
        AskUser(form.run, kNoTitle, up ? "No weapon is selected to move up." : "No weapon is selected to move down.");
        return;
    }
    const int last = static_cast<int>(list.Items.size()) - 1;
    if (list.ListIndex == (up ? 0 : last)) {
        AskUser(
            form.run, kNoTitle,
            up ? "The weapon is already at the top of the list." : "The weapon is already at the bottom of the list.");
        return;
    }
    const int target = list.ListIndex + (up ? -1 : 1);
    std::swap(list.Items[static_cast<std::size_t>(list.ListIndex)], list.Items[static_cast<std::size_t>(target)]);
    list.ListIndex = target;
    Edited(form);
}

void WeaponsPriority_Lst_KeyDown(Fig_Frm& form, int keyCode) {
    if (keyCode == kKeyUp || keyCode == kKeyDown) {
        WeaponMove_Cmd_Click(form, keyCode == kKeyUp ? 0 : 1);
    }
}

}  // namespace lv
