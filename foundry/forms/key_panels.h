// foundry/forms/key_panels.h
//
// The keyboard as a picture, with its legend, and the controller: the two panels under the pages.

#pragma once

#include <wx/panel.h>

#include "foundry/forms/fig_parts.h"

namespace lv {

/// Both panels in one place; the struct says which of them is seen, and whether any is.
class KeyPanels : public wxPanel {
  public:
    KeyPanels(wxWindow* parent, FigParts& parts);

    /// True if the panels came or went.
    bool ShowState();

    /// Presses a panel's button, JoyToggle_Cmd, and leads into the other panel; false if that button is not seen.
    bool Turn(Index button);

  private:
    wxPanel* MakeKeyboard();
    wxPanel* MakeController();
    wxPanel* MakePicture(wxWindow* panel, bool controller);
    wxSizer* MakeLegend(wxWindow* panel);
    void MakeKey(wxWindow* picture, Index label);
    void PlaceKeys();
    void LoadDevicePicture();
    [[nodiscard]] wxWindow* FirstOf(bool keyboard) const;

    FigParts& parts_;
    wxPanel* keyboard_ = nullptr;
    wxPanel* controller_ = nullptr;
    wxPanel* devicePicture_ = nullptr;
    wxBitmap device_;
    Text devicePath_;
};

}  // namespace lv
