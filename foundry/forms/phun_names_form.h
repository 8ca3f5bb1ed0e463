// foundry/forms/phun_names_form.h
//
// Shows PhunNames_Frm: the map of the game's letters, and the buttons beside it.

#pragma once

#include <wx/scrolwin.h>

#include <functional>

#include "foundation/forms/modal_form.h"
#include "foundry/editor/fig_frm.h"

namespace lv {

class PhunNamesForm : public ModalForm {
  public:
    /// `below` brings the editor in line, whose picture of the name follows each letter.
    PhunNamesForm(wxWindow* owner, Fig_Frm& editor, std::function<void()> below);
    ~PhunNamesForm() override;

    void ShowState() override;

  private:
    wxSizer* MakeButtons(Fig_Frm& editor);
    wxCheckBox* MakeBox(const char* name, CheckBox& model);
    void PlaceUnderName(wxWindow* owner);
    void LiftName(const wxWindow& picture, int pixels);

    std::function<void()> below_;
    wxScrolledWindow* lifted_ = nullptr;  // with the name, over room that is lent to it
};

}  // namespace lv
