// foundation/forms/kept_place.h
//
// Puts a window where it was left, maximised if it was that, and keeps note of where the user moves it.

#pragma once

#include <wx/toplevel.h>

#include "foundation/window_services.h"

namespace lv {

class KeptPlace {
  public:
    KeptPlace(wxTopLevelWindow& window, WindowPlacement& placement);
    KeptPlace(const KeptPlace&) = delete;
    KeptPlace& operator=(const KeptPlace&) = delete;

    /// Gives the window its place and its state. From the second time on it does nothing: the place is the user's then.
    void Put();
    [[nodiscard]] bool IsPut() const { return put_; }

    /// The next Put is a first one again, as for a window that was closed.
    void Forget();

  private:
    void Keep();

    wxTopLevelWindow& window_;
    WindowPlacement& placement_;
    wxPoint place_;
    bool put_ = false;
    bool kept_ = false;
    bool wasShown_ = false;
};

}  // namespace lv
