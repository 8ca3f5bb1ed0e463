// foundry/forms/editor_room.h
//
// How large the editor comes up, and what it does where the screen has no room for all of it.

#pragma once

#include <wx/dialog.h>
#include <wx/notebook.h>
#include <wx/scrolwin.h>

#include "foundry/forms/fig_parts.h"
#include "foundry/forms/key_panels.h"
#include "foundry/forms/late_pages.h"

namespace lv {

/// The window from outside to inside. The hint stands below all that scrolls.
struct EditorRoom {
    wxDialog& Window;
    wxScrolledWindow& Content;
    wxPanel& Inside;
    wxNotebook& Tabs;
    KeyPanels& Keys;
    wxWindow& Hint;
    FigParts& Parts;
    const LatePages& Pages;
};

/// On a small screen the pages give of their height, and scroll, so that rows and keys are seen together. What even
/// that leaves too large scrolls as a whole.
void FitToScreen(const EditorRoom& room);

}  // namespace lv
