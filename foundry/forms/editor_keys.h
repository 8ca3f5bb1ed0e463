// foundry/forms/editor_keys.h
//
// What the keyboard does in the editor ahead of the control that has it.

#pragma once

#include <wx/event.h>
#include <wx/window.h>

#include "foundry/forms/fig_parts.h"
#include "foundry/forms/key_hand.h"
#include "foundry/forms/key_panels.h"

namespace lv {

/// Asked in this order: a row that waits for a key, the shortcuts, the access keys, the row or key with the keyboard.
class EditorKeys {
  public:
    EditorKeys(wxWindow& window, FigParts& parts, KeyHand& hand, KeyPanels& panels);

    void Press(wxKeyEvent& event);

  private:
    bool PressShortcut(const wxKeyEvent& event);
    bool PressAccessKey(const wxKeyEvent& event);
    bool PressOnLabel(const wxKeyEvent& event);

    wxWindow& window_;
    FigParts& parts_;
    Fig_Frm& model_;
    KeyHand& hand_;
    KeyPanels& panels_;
};

}  // namespace lv
