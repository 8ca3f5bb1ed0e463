// foundry/editor/alias_frm.h
//
// The dialog that makes or changes an alias out of a list of known commands.

#pragma once

#include <optional>

#include "foundry/editor/fig_frm.h"

namespace lv {

struct Alias_Frm : ModalWindow {
    /// `edited`: the alias to change, by its place in the table; nothing for a new one.
    Alias_Frm(Fig_Frm& owner, std::optional<std::size_t> edited);

    Fig_Frm& Editor;
    std::optional<Text> EditedName;  // it is found by its name again
    Label AliasName_Lbl;
    TextBox AliasName_Txt;
    Label AliasBody_Lbl;
    TextBox AliasBody_Txt;  // several lines
    Label AddableCommands_Lbl;
    ListBox AddableCommands_Cbo;
    CommandButton AddCommand_Cmd;
    CheckBox Bindable_Opt;
    CommandButton OK_Cmd;
    CommandButton Cancel_Cmd;
};

void Alias_AddCommand_Cmd_Click(Alias_Frm& form);
void Alias_OK_Cmd_Click(Alias_Frm& form);
void Alias_Cancel_Cmd_Click(Alias_Frm& form);

}  // namespace lv
