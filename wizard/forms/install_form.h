// wizard/forms/install_form.h
//
// Shows Install_Frm, the setup wizard.

#pragma once

#include <memory>

#include "foundation/forms/modal_form.h"
#include "wizard/install_frm.h"

namespace lv {

/// The wizard's form; null for another window.
std::unique_ptr<wxDialog> MakeInstallForm(wxWindow* owner, ModalWindow& window);

}  // namespace lv
