#include "foundry/forms/editor_keys.h"

#include <algorithm>

#include "foundation/forms/help_bubble.h"
#include "foundation/forms/help_key.h"
#include "foundation/forms/whats_this.h"
#include "foundry/editor/bindings_page.h"
#include "foundry/editor/find_text.h"
#include "foundry/editor/lifecycle.h"
#include "foundry/editor/settings_pages.h"

namespace lv {

namespace {

// The letter behind the "&" of a caption; 0 without one.
char AccessKeyOf(TextView caption) {
    const std::size_t mark = caption.find('&');
    const bool has = mark != TextView::npos && mark + 1 < caption.size() && caption[mark + 1] != '&';
    return has ? UpperCase(caption[mark + 1]) : '\0';
}

/// The page that the access key leads to; -1 if none does.
int PageOfAccessKey(const TabSet& tabs, int code) {
    for (std::size_t page = 0; page < tabs.Pages.size(); ++page) {
        const TabPage& tab = tabs[page];
        if (tab.Visible && tab.Enabled && AccessKeyOf(tab.Caption) == code) {
            return static_cast<int>(page);
        }
    }
    return -1;
}

bool HasFocusInside(const wxWindow* window) {
    wxWindow* const focus = wxWindow::FindFocus();
    return focus != nullptr && (focus == window || window->IsDescendant(focus));
}

}  // namespace

EditorKeys::EditorKeys(wxWindow& window, FigParts& parts, KeyHand& hand, KeyPanels& panels)
    : window_(window), parts_(parts), model_(parts.Model), hand_(hand), panels_(panels) {}

void EditorKeys::Press(wxKeyEvent& event) {
    if (hand_.TakeKey(event) || PressShortcut(event) || PressAccessKey(event) || PressOnLabel(event)) {
        return;
    }
    if (event.GetKeyCode() != WXK_ESCAPE) {
        event.Skip();
    }
}

// The tabs' own: those of the page that is seen come before those of all pages. Then those of the two panels, for on
// Windows a key of the picture that has the keyboard takes all keys for itself.
bool EditorKeys::PressAccessKey(const wxKeyEvent& event) {
    if (event.GetModifiers() != wxMOD_ALT) {
        return false;
    }
    const int code = event.GetKeyCode();
    const auto main = static_cast<EditorPage>(model_.Main_Tab.Tab);
    if (const int page = PageOfAccessKey(model_.Bindings_Tab, code); main == EditorPage::Bindings && page >= 0) {
        parts_.Controls.Run([&] { Bindings_Tab_Click(model_, page); });
        return true;
    }
    const int options = PageOfAccessKey(model_.Document.Options_Tab, code);
    if (main == EditorPage::Player && options >= 0) {
        parts_.Controls.Run([&] { Options_Tab_Click(model_, options); });
        return true;
    }
    if (const int page = PageOfAccessKey(model_.Main_Tab, code); page >= 0) {
        parts_.Controls.Run([&] { Main_Tab_Click(model_, page); });
        return true;
    }
    for (const Index which : {Index{0}, Index{1}}) {
        if (AccessKeyOf(model_.JoyToggle_Cmd[static_cast<std::size_t>(which)].Caption) == code && panels_.Turn(which)) {
            return true;
        }
    }
    return false;
}

bool EditorKeys::PressShortcut(const wxKeyEvent& event) {
    const bool control = event.GetModifiers() == wxMOD_CONTROL;
    const bool both = event.GetModifiers() == (wxMOD_CONTROL | wxMOD_SHIFT);
    const int code = event.GetKeyCode();
    const bool undoes = event.ControlDown() && (code == 'Z' || code == 'Y');
    if (undoes && HasFocusInside(window_.FindWindow("Find_Txt"))) {
        return false;  // what is looked for is no edit of the script: the field has its own
    }
    if (control && code == 'Z') {
        parts_.Controls.Run([this] { Undo_Cmd_Click(model_); });
    } else if ((control && code == 'Y') || (both && code == 'Z')) {
        parts_.Controls.Run([this] { Redo_Cmd_Click(model_); });
    } else if (control && code == 'S') {
        parts_.Controls.Run([this] { View_Cmd_Click(model_, 6); });
    } else if (control && code == 'F') {
        window_.FindWindow("Find_Txt")->SetFocus();
    } else if (code == WXK_F3 && !event.HasAnyModifiers()) {
        parts_.Controls.Run([this] { FindNext_Cmd_Click(model_); });
    } else if (code == WXK_F1 && event.GetModifiers() == wxMOD_SHIFT) {
        TellOfFocus(&window_);
    } else if (code == WXK_F1 && !event.HasAnyModifiers()) {
        parts_.Controls.Run([this] { OpenHelpFile(model_.run); });
    } else {
        return false;
    }
    return true;
}

// What the keyboard does to the row or key that has it.
bool EditorKeys::PressOnLabel(const wxKeyEvent& event) {
    const auto* label = dynamic_cast<CellLabel*>(wxWindow::FindFocus());
    if (label == nullptr) {
        return false;
    }
    const int code = event.GetKeyCode();
    const auto row = std::ranges::find_if(parts_.SettingLabels, [&](const auto& each) { return each.second == label; });
    if (row != parts_.SettingLabels.end()) {
        const SlotNumber slot = row->first;
        if (code == WXK_RETURN || code == WXK_NUMPAD_ENTER) {
            parts_.Controls.Run([&] { StartCapture(model_, slot); });
        } else if (code == WXK_SPACE) {
            parts_.Controls.Run([&] { Bound_Lbl_MouseUp(model_, slot, false); });
        } else if (code == WXK_DELETE && event.ShiftDown()) {
            parts_.Controls.Run([&] { Bound_Lbl_MouseUp(model_, slot, true); });
        } else if (code == WXK_DELETE) {
            parts_.Controls.Run([&] { ClearRow(model_, slot); });
        } else {
            return false;
        }
        return true;
    }
    const auto key = std::ranges::find_if(parts_.KeyLabels, [&](const auto& each) { return each.second == label; });
    if (key == parts_.KeyLabels.end()) {
        return false;
    }
    const Index index = key->first;
    if (code == WXK_RETURN || code == WXK_NUMPAD_ENTER || code == WXK_SPACE) {
        parts_.Controls.Run([&] { PickUpKey(model_, index); });
    } else if (code == WXK_DELETE) {
        parts_.Controls.Run([&] { Key_Lbl_DblClick(model_, index); });
    } else {
        return false;
    }
    return true;
}

}  // namespace lv
