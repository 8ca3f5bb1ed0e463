// launcher/forms/setups_form.h
//
// The form of the window of the setups.

#pragma once

#include <memory>

#include "foundation/forms/modal_form.h"

namespace lv {

/// Nothing for any other window.
std::unique_ptr<wxDialog> MakeSetupsForm(wxWindow* owner, ModalWindow& window);

}  // namespace lv
