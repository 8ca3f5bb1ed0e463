// foundry/look/changes_frm.h
//
// The window that says what a save would change: in plain words what the game would lose, and file and text-to-be side
// by side.

#pragma once

#include "foundation/modal_window.h"
#include "foundry/look/difference_list.h"
#include "foundry/losses/save_losses.h"

namespace lv {

enum class ChangesAnswer {
    Leave,  // nothing is saved
    Keep,   // what would be lost goes into the Free Form Additions first
    Save,   // as it is
};

/// Whether somebody only looks, or a save waits for the answer.
enum class ChangesTime { Looking, Saving };

struct Changes_Frm : ModalWindow {
    Changes_Frm(Run& owner, const SaveReport& report, const SaveTexts& texts, ChangesTime time);

    Label Losses_Lbl;
    ListBox Losses_Lst;
    TextBox Loss_Txt;  // the selected row whole; nobody types into it
    Label Difference_Lbl;
    DifferenceList Difference_Lst;
    CommandButton NextChange_Cmd;
    CommandButton Keep_Cmd;  // the default, where there is something to keep
    CommandButton Save_Cmd;
    CommandButton Close_Cmd;

    std::vector<SaveLoss> Losses;  // a row each
    ChangesAnswer Answer = ChangesAnswer::Leave;
};

/// Shows the selected row whole, and selects the row of the texts that it is about.
void Changes_Losses_Lst_Click(Changes_Frm& form);
void Changes_NextChange_Cmd_Click(Changes_Frm& form);
void Changes_Keep_Cmd_Click(Changes_Frm& form);
void Changes_Save_Cmd_Click(Changes_Frm& form);
void Changes_Close_Cmd_Click(Changes_Frm& form);

/// A row of the list: what happens, and why.
Text LossText(const SaveLoss& loss);

}  // namespace lv
