// foundry/forms/cell_label.h
//
// A label of the editor: a text on a coloured back, light enough that some five hundred of them make a window. It can
// have the keyboard, and moves it to its neighbours with the arrow keys.

#pragma once

#include <wx/dc.h>
#include <wx/window.h>

#include <functional>
#include <vector>

#include "foundation/text.h"
#include "foundry/tables/slots.h"

namespace lv {

struct CellLook {
    Text Caption = {};
    Color Back = kWhite;
    bool Highlighted = false;  // in the system's highlight colours
    bool Inactive = false;     // on the system's colour of inactive borders
    bool Bold = false;
    bool Small = false;  // a font of the window's own would have the toolkit look up its style alone
    bool Centered = false;
    bool Dark = false;  // white letters on black
    bool Visible = true;
    Text ToolTip = {};

    bool operator==(const CellLook&) const = default;
};

class CellGroup;

class CellLabel : public wxWindow {
  public:
    using Look = std::function<CellLook()>;

    /// `group`: where the arrow keys lead; null for a label that never has the keyboard.
    CellLabel(wxWindow* parent, const wxString& name, Look look, CellGroup* group = nullptr);
    ~CellLabel() override;

    /// Brings the label in line with what it stands for; true if it came or went.
    bool ShowState();

    /// What assistive tools read, asked for when the keyboard comes here.
    void SetSpeaker(std::function<Text()> speaker) { speaker_ = std::move(speaker); }
    void Speak();

    /// Ahead of the first time that it is painted, which it shortens.
    void Measure();

    bool AcceptsFocus() const override { return group_ != nullptr && IsShown(); }
    bool AcceptsFocusFromKeyboard() const override;
    void SetFocus() override;

    [[nodiscard]] const CellLook& Shown() const { return shown_; }

  private:
    struct Measured {
        Text Caption;
        bool Bold = false;
        bool Small = false;
        wxFont Font;
        wxString Drawn;
        wxSize Extent;
    };

    /// The caption as far as there is room for it.
    struct Fitted {
        int Room = -1;
        Text Caption;
        wxString Drawn;
        wxSize Extent;
    };

    void Paint();
    void PaintText(wxDC& canvas);
    void MoveFocus(wxKeyEvent& event);

    Look look_;
    CellGroup* group_;
    CellLook shown_;
    bool fresh_ = true;
    Measured measured_;
    Fitted fitted_;
    std::function<Text()> speaker_;
    Text spoken_;
};

/// Labels among which the arrow keys lead. One of them is where Tab comes to: the one that had the keyboard last, or
/// the first that is visible. All of a group stand on one panel.
class CellGroup {
  public:
    void Add(CellLabel* label);
    void Remove(CellLabel* label);

    [[nodiscard]] CellLabel* Entry() const;
    void SetEntry(CellLabel* label);
    /// A label came or went: another one may be where Tab comes to.
    void Settle();

    /// The nearest visible label of the group in that direction; null if there is none.
    [[nodiscard]] CellLabel* Neighbour(const CellLabel& from, int dx, int dy) const;

  private:
    std::vector<CellLabel*> labels_;
    CellLabel* entry_ = nullptr;
    CellLabel* stop_ = nullptr;  // of all labels the toolkit knows this one as a stop of Tab
};

wxColour ToWxColour(Color color);

}  // namespace lv
