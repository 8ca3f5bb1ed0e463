// foundry/forms/fig_parts.h
//
// What the parts of the editor's form share: the struct, the binder, and the labels.

#pragma once

#include <wx/sizer.h>
#include <wx/window.h>

#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "foundation/forms/binder.h"
#include "foundry/editor/fig_frm.h"
#include "foundry/forms/cell_label.h"

namespace lv {

constexpr int kCellGap = 2;
constexpr int kPageGap = 6;

struct FigParts {
    FigParts(Fig_Frm& model, std::function<void()> after) : Model(model), Controls(std::move(after)) {}

    Fig_Frm& Model;
    Binder Controls;
    CellGroup Keys;
    CellGroup ControllerKeys;
    CellGroup Colors;
    std::map<SlotNumber, CellLabel*> SettingLabels;
    std::map<SlotNumber, CellLabel*> BoundLabels;
    std::map<Index, CellLabel*> KeyLabels;
    std::vector<CellLabel*> ColorLabels;

    // What happens to a label, whoever made it.
    std::function<void(CellLabel*, Index label)> WatchKey;
    std::function<void(CellLabel*, SlotNumber slot)> WatchRow;
    std::function<void(CellLabel*, SlotNumber slot)> WatchName;

    /// A label that the binder brings in line. Its owner is the parent window.
    CellLabel* MakeCell(wxWindow* parent, const wxString& name, CellLabel::Look look, CellGroup* group = nullptr);

    wxStaticText* MakeLabel(wxWindow* parent, const char* name, Label& model);
    wxCheckBox* MakeCheck(wxWindow* parent, const char* name, CheckBox& model, std::function<void()> click);
    wxButton* MakeButton(wxWindow* parent, const char* name, CommandButton& model, std::function<void()> click);
    wxTextCtrl* MakeText(wxWindow* parent, const char* name, TextBox& model, std::function<void()> change,
                         const char* spoken, long style = 0);
    wxChoice* MakeList(wxWindow* parent, const char* name, ListBox& model, std::function<void()> click,
                       const char* spoken);
    /// A list with a field to type into.
    wxComboBox* MakeCombo(wxWindow* parent, const char* name, ListBox& model, std::function<void()> click,
                          TextView spoken, int letters);

    /// Height of a row of labels, in pixels.
    [[nodiscard]] int RowHeight(const wxWindow* window);
    [[nodiscard]] int LetterWidth(const wxWindow* window);

  private:
    // Measured once: the toolkit makes a control to find out the letters of one.
    void Measure(const wxWindow* window);
    int row_ = 0;
    int letter_ = 0;
    int scale_ = 0;
};

}  // namespace lv
