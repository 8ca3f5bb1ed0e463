// foundry/editor/aliases_page.h
//
// The page of aliases: the list, the ready-made ones, and the boxes that keys are bound to.

#pragma once

#include "foundry/editor/fig_frm.h"

namespace lv {

/// Alias_Lst anew from the table: a row's number is the alias's place there. No row is selected then.
void FillAliasList(Fig_Frm& form);

/// The same, with the row of this alias selected.
void ShowAlias(Fig_Frm& form, TextView name);

void AddCustomAlias_Cmd_Click(Fig_Frm& form);
void EditAlias_Cmd_Click(Fig_Frm& form);
void DeleteAlias_Cmd_Click(Fig_Frm& form);
void AddStandardAlias_Cmd_Click(Fig_Frm& form);

}  // namespace lv
