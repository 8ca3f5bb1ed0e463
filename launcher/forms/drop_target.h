// launcher/forms/drop_target.h
//
// What a user drops on the main window, taken over from the system.

#pragma once

#include <wx/dnd.h>

#include "launcher/launcher.h"

namespace lv {

/// Takes files, and text that may be an address. Each drop only waits to be offered: the program that it came from
/// waits for the drop's end. While a dialog is up nothing can be dropped.
class DropTarget : public wxDropTarget {
  public:
    explicit DropTarget(Launcher& launcher);

    wxDragResult OnDragOver(wxCoord x, wxCoord y, wxDragResult offered) override;
    bool OnDrop(wxCoord x, wxCoord y) override;
    wxDragResult OnData(wxCoord x, wxCoord y, wxDragResult offered) override;

    /// False if nothing was taken. Files by their host's paths.
    bool OnDropFiles(const wxArrayString& files);
    bool OnDropText(const wxString& text);

  private:
    class List;

    [[nodiscard]] bool HasTime() const;

    Launcher& launcher_;
    List* list_;              // the data object's
    wxTextDataObject* text_;  // the same
};

}  // namespace lv
