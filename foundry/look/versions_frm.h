// foundry/look/versions_frm.h
//
// The window of a script's older versions: when each was replaced, what bringing it back would change, and the click
// that does it.

#pragma once

#include "foundation/modal_window.h"
#include "foundry/look/difference_list.h"
#include "foundry/versions/script_versions.h"

namespace lv {

struct Versions_Frm : ModalWindow {
    /// `script` is the path of one that is on disk.
    Versions_Frm(Run& owner, TextView script);

    const Text Script;
    Label Damage_Lbl;  // seen only where versions could not be read, or once could not
    Label Versions_Lbl;
    ListBox Versions_Lst;
    Label Difference_Lbl;  // "Bringing it back changes 3 lines."
    DifferenceList Difference_Lst;
    CommandButton BringBack_Cmd;
    CommandButton NextChange_Cmd;
    CommandButton Close_Cmd;

    std::vector<ScriptVersion> Versions;  // newest first, a row each
    Text OnDisk;                          // what the script is now
    bool KeepsVersions = true;            // the next save can
    bool BroughtBack = false;
};

void Versions_Lst_Click(Versions_Frm& form);
void Versions_NextChange_Cmd_Click(Versions_Frm& form);
/// Closes the window if the script could be replaced.
void Versions_BringBack_Cmd_Click(Versions_Frm& form);
void Versions_Close_Cmd_Click(Versions_Frm& form);

/// Shows the window, or says that there is no version. True if the script on disk is another one now.
bool ShowVersions(Run& run, TextView script);

}  // namespace lv
