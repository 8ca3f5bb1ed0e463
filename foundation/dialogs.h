// foundation/dialogs.h
//
// Two small dialogs that all of the program shares.

#pragma once

#include <array>

#include "foundation/controls.h"
#include "foundation/run.h"

namespace lv {

/// Asks before unsaved work is left. The form closes when Closed is set.
struct ConfirmExit_Frm {
    ConfirmExit_Frm();

    Text Caption = "Confirm Exit";
    Label Label1;
    Label Label2;
    CheckBox SaveNow_Chk;
    CommandButton Yes_Cmd;
    CommandButton No_Cmd;

    int DialogResult = 1;  // closing the window by its frame is a "&No"
    bool Closed = false;
};

/// 0, or 2 with "Save Script Now" ticked.
void ConfirmExit_Yes_Cmd_Click(ConfirmExit_Frm& form);
/// 1, or 3 with the box ticked.
void ConfirmExit_No_Cmd_Click(ConfirmExit_Frm& form);

/// Shows it over the active form and returns DialogResult, 0 to 3.
int ConfirmExit(Run& run);

struct About_Frm {
    Text Caption;
    Picture logo_pic;
    Label Name_Lbl;      // the program's name and version
    Label TimesRun_Lbl;  // " Times Run: 7"
    Label Launches_Lbl;  // "   Total Launches: 12"
    CommandButton ButtonBar_Cmd;

    bool Closed = false;
};

About_Frm MakeAbout(Run& run);
void About_ButtonBar_Cmd_Click(About_Frm& form);

/// Shows it in the screen's middle.
void ShowAboutBox(Run& run);

}  // namespace lv
