// foundry/editor/player_page.h
//
// The player: name, colours, class, model and skin, crosshair; and Unreal's weapons.

#pragma once

#include "foundry/editor/fig_frm.h"

namespace lv {

/// The dialog of fourteen colours.
struct Color_Frm : ModalWindow {
    Color_Frm(Run& owner, const std::array<Color, 14>& colors);

    std::array<ColorLabel, 14> Color_Lbl;
    CommandButton Cancel_Cmd;
    int DialogResult = -1;  // 0 to 13, or out of that range
};
void Color_Lbl_Click(Color_Frm& form, int index);
void Color_Cancel_Cmd_Click(Color_Frm& form);

void Name_Txt_Change(Fig_Frm& form);
/// The character that a typed one becomes.
char Name_Txt_KeyPress(const Fig_Frm& form, char typed);
void PlayerColor_Lbl_Click(Fig_Frm& form, int index);
void PlayerClass_Cbo_Click(Fig_Frm& form);
void Crosshair_Cbo_Click(Fig_Frm& form);
void Fig_Sex_Cbo_Click(Fig_Frm& form);
void SelectNoSkin_Cmd_Click(Fig_Frm& form);

/// The colours of the game's own palette where its data lies beside the script, else ColorTable.
std::array<Color, 14> PlayerColors(Fig_Frm& form);

// What a script that was opened shows at once, without being an edit.

/// The labels of shirt and pants in the colours of PlayerColors.
void ShowPlayerColors(Fig_Frm& form);
/// The weapon rows 201 to 204 named for the class.
void CaptionClassWeapons(Fig_Frm& form);
/// Only the crosshair 2 has a colour.
void EnableCrosshairColor(Fig_Frm& form);

// Unreal's weapons.
void SelectWeapon_Cmd_Click(Fig_Frm& form, int index);
void WeaponMove_Cmd_Click(Fig_Frm& form, int index);
/// Key codes 38 (up) and 40 (down), which do no more in the list than this.
void WeaponsPriority_Lst_KeyDown(Fig_Frm& form, int keyCode);

}  // namespace lv
