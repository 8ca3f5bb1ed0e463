// catalogs/forms/path_form.h
//
// Shows Path_Frm, the choice of a directory.

#pragma once

#include <wx/button.h>
#include <wx/listbox.h>

#include "catalogs/editors/path_window.h"
#include "foundation/forms/kept_place.h"
#include "foundation/forms/modal_form.h"

namespace lv {

class PathForm : public ModalForm {
  public:
    PathForm(wxWindow* owner, Path_Frm& form);

  private:
    void ShowDirectories();
    void Type(wxKeyEvent& event);
    void KeepSize();

    Path_Frm& form_;
    KeptPlace place_;
    wxListBox* directories_ = nullptr;
    wxButton* ok_ = nullptr;
    std::vector<Text> shown_;
};

}  // namespace lv
