// launcher/forms/game_list.h
//
// The list of games with their pictures.

#pragma once

#include <wx/bmpcbox.h>

struct _GdkEventKey;

namespace lv {

/// A list from which one picks, never a field to type in.
class GameList : public wxBitmapComboBox {
  public:
    explicit GameList(wxWindow* parent)
        : wxBitmapComboBox(parent, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, 0, nullptr, wxCB_READONLY) {}

    /// On GTK the toolkit would hand each key to the text field that this list does not have, and GTK complains of it.
    /// Elsewhere nobody calls this.
    virtual int GTKIMFilterKeypress(_GdkEventKey* /*key*/) const { return 0; }  // NOLINT(modernize-use-override)
};

}  // namespace lv
