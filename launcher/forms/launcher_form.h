// launcher/forms/launcher_form.h
//
// The form of the dialog that asks where a launcher is to be.

#pragma once

#include <memory>

#include "foundation/forms/modal_form.h"

namespace lv {

/// Nothing for any other window.
std::unique_ptr<wxDialog> MakeLauncherForm(wxWindow* owner, ModalWindow& window);

}  // namespace lv
