// foundry/look/script_text_frm.h
//
// The window that shows the text of a script, at one of its lines. Nothing is changed in it.

#pragma once

#include "console/files/start_run.h"
#include "foundation/modal_window.h"

namespace lv {

struct ScriptText_Frm : ModalWindow {
    /// `place` is where it lies, for people. `line` counts from 1.
    ScriptText_Frm(Run& owner, TextView place, TextView text, std::size_t line);

    Label Place_Lbl;
    ListBox Lines_Lst;  // a row a line, behind its number
    CommandButton Close_Cmd;
};

void ScriptText_Close_Cmd_Click(ScriptText_Frm& form);

/// Where a script lies, for people: "C:\QUAKE\ID1\PAK0.PAK > default.cfg", and whether it is what a launch would
/// write. Empty if it lies nowhere.
Text PlaceOfRunScript(const RunScript& script, const StartRequest& request);

/// Shows the window, or says why it cannot.
void ShowScriptText(Run& run, const StartRequest& request, const RunScript& script, std::size_t line);

/// The text as the game has read it: of a file, of an archive's, or the one that was given in its place.
Result<Text> TextOfRunScript(Files& disk, const StartRequest& request, const RunScript& script);

}  // namespace lv
