// foundry/forms/phun_names_form.h
//
// Shows PhunNames_Frm: the map of the game's letters, and the buttons beside it.

#pragma once

#include "foundation/forms/modal_form.h"
#include "foundry/editor/fig_frm.h"

namespace lv {

class PhunNamesForm : public ModalForm {
  public:
    PhunNamesForm(wxWindow* owner, Fig_Frm& editor);

  private:
    wxSizer* MakeButtons(Fig_Frm& editor);
    wxCheckBox* MakeBox(const char* name, CheckBox& model);
    void PlaceUnderName(wxWindow* owner);
};

}  // namespace lv
