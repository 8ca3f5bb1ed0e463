// video/forms/add_vid_profile_form.h
//
// Shows AddVidProfile_Frm.

#pragma once

#include <wx/dialog.h>

#include <memory>

#include "foundation/modal_window.h"

namespace lv {

/// The form of that dialog; nothing for any other window.
std::unique_ptr<wxDialog> MakeAddVidProfileForm(wxWindow* owner, ModalWindow& window);

}  // namespace lv
