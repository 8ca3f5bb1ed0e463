#include "foundation/forms/kept_place.h"

#include "foundation/forms/screen_fit.h"

namespace lv {

KeptPlace::KeptPlace(wxTopLevelWindow& window, WindowPlacement& placement) : window_(window), placement_(placement) {
    window_.Bind(wxEVT_ACTIVATE, [this](wxActivateEvent& event) {
        event.Skip();
        if (event.GetActive()) {
            Keep();
        }
    });
    window_.Bind(wxEVT_SHOW, [this](wxShowEvent& event) {
        event.Skip();
        wasShown_ = true;
    });
    window_.Bind(wxEVT_MOVE, [this](wxMoveEvent& event) {
        event.Skip();
        if (kept_ && !window_.IsIconized() && !window_.IsMaximized() && window_.IsShown()) {
            placement_.Left = ToTwips(window_.GetPosition().x);
            placement_.Top = ToTwips(window_.GetPosition().y);
        }
    });
}

void KeptPlace::Put() {
    if (put_) {
        return;
    }
    put_ = true;
    place_ = PlaceOnScreen(window_, placement_);
    window_.Move(place_);
    if (placement_.WindowState == kWindowMaximised) {  // a minimised one was not kept as such
        window_.Maximize();
    }
    // One of its controls got the keyboard before, and nothing will tell of it again. A hidden one that was shown once
    // may still count as active.
    if ((window_.IsShown() || !wasShown_) && window_.IsActive()) {
        Keep();
    }
}

void KeptPlace::Forget() {
    put_ = false;
    kept_ = false;
}

// Some window managers place a new window themselves, whatever it asked for. The step aside is for the toolkit, which
// believes the window to be where it was sent.
void KeptPlace::Keep() {
    if (!put_ || kept_) {
        return;
    }
    kept_ = true;
    if (!window_.IsMaximized()) {
        place_ = PlaceOnScreen(window_, placement_);  // with the frame, which is known by now
        window_.Move(place_ + wxPoint(1, 0));
        window_.Move(place_);
    }
}

}  // namespace lv
