// launcher/forms/install_params_form.h
//
// Shows InstallParams_Frm, the question for the 3D chipset.

#pragma once

#include <wx/dialog.h>

#include "foundation/forms/binder.h"
#include "launcher/start/install_params.h"

namespace lv {

class InstallParamsForm : public wxDialog {
  public:
    InstallParamsForm(Run& run, InstallParams_Frm& form);

  private:
    Run& run_;
    InstallParams_Frm& form_;
    Binder binder_;
};

}  // namespace lv
