#include "foundry/forms/key_hand.h"

#include <wx/cursor.h>
#include <wx/scrolwin.h>

#include <algorithm>
#include <cstdlib>

#include "foundation/forms/whats_this.h"
#include "foundation/screen_fit.h"
#include "foundry/editor/bindings_page.h"
#include "foundry/forms/key_codes.h"

namespace lv {

namespace {

constexpr int kBetweenPulls = 40;  // milliseconds
constexpr int kPullMargin = 16;    // at 100 %

/// Whether the window is seen there: what lies beyond the edge of a part that scrolls is not.
bool IsSeenAt(const wxWindow* window, const wxPoint& screen) {
    for (; window != nullptr && window->GetScreenRect().Contains(screen); window = window->GetParent()) {
        if (window->IsTopLevel()) {
            return true;
        }
    }
    return false;
}

/// The innermost window around that one which has more lines than it shows.
wxScrolledWindow* ScrolledAround(wxWindow* window) {
    for (; window != nullptr; window = window->GetParent()) {
        auto* const scrolled = dynamic_cast<wxScrolledWindow*>(window);
        if (scrolled != nullptr && scrolled->GetVirtualSize().y > scrolled->GetClientSize().y) {
            return scrolled;
        }
    }
    return nullptr;
}

}  // namespace

KeyHand::KeyHand(FigParts& parts) : parts_(parts) {}

void KeyHand::WatchKey(CellLabel* label, Index index) {
    UsesRightButton(label);
    label->Bind(wxEVT_ENTER_WINDOW, [this, label, index](wxMouseEvent& event) {
        event.Skip();
        if (!IsDragging()) {
            Key_Lbl_MouseMove(parts_.Model, index);
            label->ShowState();
        }
    });
    const auto press = [this, label, index](wxMouseEvent& event) { PressKey(label, index, event.GetButton()); };
    label->Bind(wxEVT_LEFT_DOWN, press);
    label->Bind(wxEVT_RIGHT_DOWN, press);
    label->Bind(wxEVT_MOTION, [this, label](wxMouseEvent& event) {
        event.Skip();
        if (IsDragging()) {
            Move(label->ClientToScreen(event.GetPosition()));
        }
    });
    const auto release = [this, label](wxMouseEvent& event) {
        if (IsDragging() && event.GetButton() == button_) {
            Release(label->ClientToScreen(event.GetPosition()));
        }
    };
    label->Bind(wxEVT_LEFT_UP, release);
    label->Bind(wxEVT_RIGHT_UP, release);
    label->Bind(wxEVT_MOUSEWHEEL, [this, label](wxMouseEvent& event) {
        if (!IsDragging() || !ScrollUnder(label->ClientToScreen(event.GetPosition()), event)) {
            event.Skip();
        }
    });
    label->Bind(wxEVT_MOUSE_CAPTURE_LOST, [this](wxMouseCaptureLostEvent&) {
        holder_ = nullptr;
        parts_.Controls.Run([this] { GiveUpDrag(parts_.Model); });
    });
    const auto clear = [this, index](wxMouseEvent&) {
        parts_.Controls.Run([&] { Key_Lbl_DblClick(parts_.Model, index); });
    };
    label->Bind(wxEVT_LEFT_DCLICK, clear);
    label->Bind(wxEVT_RIGHT_DCLICK, clear);
    WatchKeyboard(label);
}

// While the mouse is held the toolkit gives keys to the window that holds it and to no other.
void KeyHand::WatchKeyboard(CellLabel* label) {
    label->Bind(wxEVT_KEY_DOWN, [this, label](wxKeyEvent& event) {
        if (!label->HasCapture() || !TakeKey(event)) {
            event.Skip();
        }
    });
}

void KeyHand::WatchRow(CellLabel* label, SlotNumber slot) {
    UsesRightButton(label);
    label->Bind(wxEVT_LEFT_DOWN, [this, label](wxMouseEvent& event) {
        if (listening_) {
            Hear(event, label);
        } else {
            label->SetFocus();
        }
    });
    label->Bind(wxEVT_LEFT_DCLICK, [this, label, slot](wxMouseEvent& event) {
        if (listening_) {
            Hear(event, label);
        } else {
            parts_.Controls.Run([&] { Setting_Lbl_DblClick(parts_.Model, slot); });
        }
    });
    const auto hear = [this, label](wxMouseEvent& event) { Hear(event, label); };
    label->Bind(wxEVT_RIGHT_DOWN, hear);
    label->Bind(wxEVT_MIDDLE_DOWN, hear);
    label->Bind(wxEVT_MOUSEWHEEL, hear);
    WatchKeyboard(label);
    label->Bind(wxEVT_KEY_UP, [this](wxKeyEvent& event) {
        event.Skip();
        keyUp_ = true;
    });
    label->Bind(wxEVT_KILL_FOCUS, [this](wxFocusEvent& event) {
        event.Skip();
        if (listening_) {
            parts_.Controls.Run([this] { GiveUpCapture(parts_.Model); });
        }
    });
    label->Bind(wxEVT_MOUSE_CAPTURE_LOST, [this](wxMouseCaptureLostEvent&) {
        holder_ = nullptr;
        listening_ = false;
        parts_.Controls.Run([this] { GiveUpCapture(parts_.Model); });
    });
}

void KeyHand::WatchName(CellLabel* label, SlotNumber slot) {
    UsesRightButton(label);
    label->Bind(wxEVT_LEFT_UP, [this, slot](wxMouseEvent&) {
        parts_.Controls.Run([&] { Bound_Lbl_MouseUp(parts_.Model, slot, false); });
    });
    label->Bind(wxEVT_RIGHT_UP, [this, slot](wxMouseEvent&) {
        parts_.Controls.Run([&] { Bound_Lbl_MouseUp(parts_.Model, slot, true); });
    });
}

void KeyHand::PressKey(CellLabel* label, Index index, int button) {
    if (IsDragging()) {
        return;
    }
    label->SetFocus();
    Key_Lbl_MouseDown(parts_.Model, index);
    if (parts_.Model.Drag.Icon == DragIcon::None) {
        return;  // a key that can't be bound
    }
    targets_.clear();
    for (const auto& [slot, row] : parts_.SettingLabels) {
        if (row->IsShownOnScreen()) {
            targets_.push_back({slot, row});
        }
    }
    over_ = kNoSlot;
    button_ = button;
    began_ = wxGetMousePosition();
    Hold(label);
    pull_.Start(kBetweenPulls);
    ShowPointer();
}

// Asked for anew at each step, for the wheel scrolls the window under a drag. What is scrolled out of sight takes no
// key.
SlotNumber KeyHand::RowAt(const wxPoint& screen) const {
    for (const Target& target : targets_) {
        if (IsSeenAt(target.Row, screen)) {
            return target.Slot;
        }
    }
    return kNoSlot;
}

// The mouse is held by the key, and the wheel with it.
bool KeyHand::ScrollUnder(const wxPoint& screen, const wxMouseEvent& wheel) {
    wxScrolledWindow* const scrolled = ScrolledAround(wxFindWindowAtPoint(screen));
    if (scrolled == nullptr || wheel.GetWheelAxis() != wxMOUSE_WHEEL_VERTICAL) {
        return false;
    }
    const int lines = wheel.GetLinesPerAction() * (wheel.GetWheelRotation() > 0 ? -1 : 1);
    scrolled->Scroll(wxDefaultCoord, std::max(0, scrolled->GetViewStart().y + lines));
    Move(screen);
    return true;
}

void KeyHand::ShowRow(SlotNumber slot) {
    const auto found = parts_.SettingLabels.find(slot);
    if (found != parts_.SettingLabels.end()) {
        found->second->ShowState();
    }
}

// On the way only what changes is shown, so that the mark keeps up with the pointer.
void KeyHand::Move(const wxPoint& screen) {
    const SlotNumber row = RowAt(screen);
    if (row == over_) {
        return;
    }
    const SlotNumber left = over_;
    over_ = row;
    if (left != kNoSlot) {
        Setting_Lbl_DragLeave(parts_.Model, left);
        ShowRow(left);
    }
    if (row != kNoSlot) {
        Setting_Lbl_DragEnter(parts_.Model, row);
        ShowRow(row);
    }
    ShowPointer();
}

// A drag that nears the edge scrolls the window, until the row comes that the key is for.
void KeyHand::Pull() {
    const wxPoint pointer = wxGetMousePosition();
    wxWindow* const under = wxFindWindowAtPoint(pointer);
    wxScrolledWindow* const content = ScrolledAround(under != nullptr ? under : holder_);
    const wxPoint way = pointer - began_;
    if (!IsDragging() || content == nullptr ||
        std::max(std::abs(way.x), std::abs(way.y)) < content->FromDIP(kPullMargin)) {
        return;
    }
    const wxRect seen = content->GetScreenRect();
    const int margin = content->FromDIP(kPullMargin);
    const wxPoint pull(PullAtEdge(pointer.x, seen.x, seen.width, margin),
                       PullAtEdge(pointer.y, seen.y, seen.height, margin));
    if (pull != wxPoint()) {
        const wxPoint view = content->GetViewStart();
        content->Scroll(std::max(0, view.x + pull.x), std::max(0, view.y + pull.y));
        Move(pointer);
    }
}

void KeyHand::Release(const wxPoint& screen) {
    Move(screen);
    const SlotNumber row = over_;
    over_ = kNoSlot;
    LetGo();
    parts_.Controls.Run([&] {
        if (row != kNoSlot) {
            Setting_Lbl_DragDrop(parts_.Model, row);
        } else {
            GiveUpDrag(parts_.Model);
        }
    });
}

void KeyHand::Hold(CellLabel* label) {
    if (holder_ != nullptr || label->HasCapture()) {
        return;
    }
    holder_ = label;
    label->CaptureMouse();
}

void KeyHand::LetGo() {
    CellLabel* const holder = holder_;
    holder_ = nullptr;
    listening_ = false;
    shown_ = DragIcon::None;
    pull_.Stop();
    if (holder != nullptr) {
        holder->SetCursor(wxNullCursor);
        if (holder->HasCapture()) {
            holder->ReleaseMouse();
        }
    }
}

void KeyHand::ShowPointer() {
    const DragIcon icon = parts_.Model.Drag.Icon;
    if (holder_ == nullptr || icon == shown_) {
        return;
    }
    shown_ = icon;
    holder_->SetCursor(wxCursor(icon == DragIcon::Accept ? wxCURSOR_HAND : wxCURSOR_NO_ENTRY));
}

void KeyHand::Hear(wxMouseEvent& event, CellLabel* /*label*/) {
    if (!listening_) {
        event.Skip();
        return;
    }
    const Index heard = LabelOfMouse(event);
    if (heard != kNoKey) {
        LetGo();
        parts_.Controls.Run([&] { CaptureKey(parts_.Model, heard); });
    }
}

bool KeyHand::TakeKey(const wxKeyEvent& event) {
    if (IsDragging()) {
        if (event.GetKeyCode() == WXK_ESCAPE) {
            LetGo();
            parts_.Controls.Run([this] { GiveUpDrag(parts_.Model); });
        }
        return true;
    }
    if (parts_.Model.CaptureRow != kNoSlot) {
        if (event.GetKeyCode() == WXK_ESCAPE) {
            parts_.Controls.Run([this] { GiveUpCapture(parts_.Model); });
        } else if (keyUp_) {
            parts_.Controls.Run([&] { CaptureKey(parts_.Model, LabelOfKey(event)); });
        }
        return true;
    }
    if (parts_.Model.PickedKey != kNoKey && event.GetKeyCode() == WXK_ESCAPE) {
        parts_.Controls.Run([this] { GiveUpCapture(parts_.Model); });
        return true;
    }
    return false;
}

void KeyHand::ShowState() {
    const SlotNumber row = parts_.Model.CaptureRow;
    if (row == kNoSlot) {
        if (listening_) {
            LetGo();
        }
        return;
    }
    const auto label = parts_.SettingLabels.find(row);
    if (!listening_ && label != parts_.SettingLabels.end()) {
        keyUp_ = false;
        Hold(label->second);
        listening_ = holder_ != nullptr;
    }
}

}  // namespace lv
