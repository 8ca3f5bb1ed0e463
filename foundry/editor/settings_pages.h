// foundry/editor/settings_pages.h
//
// The pages of the player and his settings: what stands where, under which caption and with which hint.

#pragma once

#include <span>

#include "foundry/editor/fig_frm.h"

namespace lv {

/// A setting with a list: the caption left of the list, the grey hint with the game's own value right of it. A row
/// whose list is not visible is left out, caption and all.
struct SettingRow {
    const char* Name;  // of the control, "cl_forwardspeed_Cbo"
    ListBox ScriptSettings::*List;
    Panel Fig_Frm::*Group;
    TextView Caption;
    TextView Hint;  // "(default 200)"; a decimal as "0.022", which HintOf puts in the locale's form
    TextView ToolTip;
};
std::span<const SettingRow> SettingRows();

/// A setting with a check box.
struct CheckRow {
    const char* Name;
    CheckBox ScriptSettings::*Box;
    Panel Fig_Frm::*Group;
    TextView Caption;
    TextView ToolTip;
};
std::span<const CheckRow> CheckRows();

// The lists of the Unreal pages, by their places in their arrays.
std::span<const TextView> UnrealAudioCaptions();  // UnrealAudio_Cbo(0) to (17)
std::span<const TextView> PlayerPawnCaptions();   // PlayerPawn_Cbo(0) to (12)
std::span<const TextView> MouseBindCaptions();    // MouseBind_Cbo(0) and (1)

constexpr const char* kTeamNameCaption = " Team Name";
constexpr const char* kPasswordCaption = " Password";
constexpr const char* kWeaponsAvailableCaption = "Unselected Weapons";
constexpr const char* kWeaponsPriorityCaption = "Weapon Preferance Order";

/// Headings of the group panels.
void PaintLabels(Fig_Frm& form);

/// The hint as it is shown: "(default 0,022)" where the locale has a comma. Some kinds of games have another default.
Text HintOf(const Fig_Frm& form, const SettingRow& row);

/// A setting that the user has changed: any list or box that has no handler of its own.
void Setting_Change(Fig_Frm& form);

/// A text typed into a list: its row if there is one, else a row of its own, which the next text typed takes the place
/// of. An empty text selects nothing.
void TypeIntoList(Fig_Frm& form, ListBox& list, TextView text);

void Options_Tab_Click(Fig_Frm& form, int page);

}  // namespace lv
