// foundry/forms/key_hand.h
//
// The hand that drags a key onto a row, and the ear that waits for a key. The mouse is held meanwhile; which pointer is
// seen and which row is marked is the struct's.

#pragma once

#include <wx/timer.h>

#include <functional>

#include "foundry/forms/fig_parts.h"

namespace lv {

class KeyHand {
  public:
    explicit KeyHand(FigParts& parts);
    KeyHand(const KeyHand&) = delete;
    KeyHand& operator=(const KeyHand&) = delete;

    void WatchKey(CellLabel* label, Index index);
    void WatchRow(CellLabel* label, SlotNumber slot);
    void WatchName(CellLabel* label, SlotNumber slot);

    /// A key pressed anywhere in the window; true if it was for the hand.
    bool TakeKey(const wxKeyEvent& event);

    /// Holds or frees the mouse as the struct's state asks for.
    void ShowState();

    [[nodiscard]] bool IsDragging() const { return holder_ != nullptr && !listening_; }

  private:
    class PullTimer : public wxTimer {
      public:
        explicit PullTimer(KeyHand& hand) : hand_(hand) {}
        void Notify() override { hand_.Pull(); }

      private:
        KeyHand& hand_;
    };
    struct Target {
        SlotNumber Slot;
        const CellLabel* Row;
    };

    void WatchKeyboard(CellLabel* label);
    void PressKey(CellLabel* label, Index index, int button);
    void Move(const wxPoint& screen);
    void Release(const wxPoint& screen);
    void Pull();
    void ShowPointer();
    void LetGo();
    void Hold(CellLabel* label);
    void Hear(wxMouseEvent& event, CellLabel* label);
    [[nodiscard]] SlotNumber RowAt(const wxPoint& screen) const;
    bool ScrollUnder(const wxPoint& screen, const wxMouseEvent& wheel);
    void ShowRow(SlotNumber slot);

    FigParts& parts_;
    std::vector<Target> targets_;  // where a drag can end
    wxPoint began_;                // where the mouse was pressed
    PullTimer pull_{*this};
    int button_ = wxMOUSE_BTN_NONE;  // that began the drag, and ends it
    SlotNumber over_ = kNoSlot;      // the row under the pointer
    CellLabel* holder_ = nullptr;    // holds the mouse
    bool listening_ = false;         // for a key, not for the end of a drag
    bool keyUp_ = false;             // the key that began the waiting was let go
    DragIcon shown_ = DragIcon::None;
};

}  // namespace lv
