// catalogs/editors/path_window.h
//
// The dialog that chooses a directory.

#pragma once

#include <vector>

#include "catalogs/typed_search.h"
#include "foundation/modal_window.h"
#include "foundation/window_services.h"

namespace lv {

constexpr TextView kPathCancelled = "CANCEL";

struct Path_Frm : ModalWindow {
    /// Opens in `start`, or in the current directory if that cannot be read.
    Path_Frm(Run& owner, TextView start, TextView caption = "Select Path");

    WindowPlacement Placement;   // the form keeps it current
    ListBox Drive1;              // "C:"
    ListBox Dir1;                // the way down from the drive's root, then the directories below
    std::vector<Text> DirPaths;  // of each row of Dir1
    std::vector<int> DirLevels;  // how far to indent each row
    Label Path_Lbl;
    CommandButton OK_Cmd;
    CommandButton Cancel_Cmd;

    Text PathResult{kPathCancelled};  // closing the window by its frame is a cancel
    int LastDrive = -1;               // row of the last good one
    TypedSearch Search;
};

void Path_Load(Path_Frm& form);
/// For the form's end, whatever the outcome.
void Path_Unload(Path_Frm& form);
void Path_Drive1_Change(Path_Frm& form);
/// A letter typed in the list: selects the directory whose name begins with what has been typed.
void Path_Dir1_KeyPress(Path_Frm& form, char letter);
/// Goes into the row's directory: a double click, or Enter.
void Path_Dir1_DblClick(Path_Frm& form, int row);
void Path_OK_Cmd_Click(Path_Frm& form);
void Path_Cancel_Cmd_Click(Path_Frm& form);

/// The text of a drive that fails.
Text DriveErrorText(int number);

/// Shows the dialog; "CANCEL" or the chosen path, without a "\" at the end but for a drive's root.
Text ChoosePath(Run& run, TextView start, TextView caption = "Select Path");

}  // namespace lv
