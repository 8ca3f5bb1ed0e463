// foundation/about_box.h
//
// What the program tells of itself.

#pragma once

#include "foundation/controls.h"
#include "foundation/run.h"

namespace lv {

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
