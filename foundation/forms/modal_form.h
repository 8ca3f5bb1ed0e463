// foundation/forms/modal_form.h
//
// What all dialogs of the ModalWindow family have in common on the screen: they close when their struct says so, and
// the focus goes where it says.

#pragma once

#include <wx/dialog.h>
#include <wx/scrolwin.h>
#include <wx/sizer.h>

#include <functional>

#include "foundation/forms/binder.h"
#include "foundation/modal_window.h"

namespace lv {

class ModalForm : public wxDialog {
  public:
    /// `cancel` runs for the close box and Escape.
    ModalForm(wxWindow* owner, ModalWindow& model, std::function<void()> cancel, long style = wxDEFAULT_DIALOG_STYLE);

    /// A dialog's row: the label, the field, and what stands behind it.
    void AddField(Label& label, const char* labelName, wxWindow* field, wxWindow* behind = nullptr);
    wxTextCtrl* MakeText(const char* name, TextBox& model, int width = 320);
    wxButton* MakeButton(const char* name, CommandButton& model, std::function<void()> click);
    wxStaticText* MakeLabel(wxWindow* parent, const char* name, Label& model, LabelText kind = LabelText::Literal);

    /// Adds anything across the whole width, and with a proportion along the height too.
    void AddWide(wxWindow* window, int proportion = 0);
    void AddWide(wxSizer* sizer, int proportion = 0);
    /// The last row, and the form's size and place.
    void Finish(wxButton* ok, wxButton* cancel);
    /// The form's size and place, for one whose buttons stand elsewhere.
    void Arrange();

    /// Brings the dialog in line with its struct.
    virtual void ShowState();

    Binder Controls;

  private:
    void AfterHandler();

    ModalWindow& model_;
    std::function<void()> cancel_;
    wxBoxSizer* rows_;
    wxFlexGridSizer* fields_ = nullptr;
    wxScrolledWindow* scrolled_ = nullptr;  // what stands above the buttons, on a screen that has no room for it
};

}  // namespace lv
