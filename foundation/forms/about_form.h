// foundation/forms/about_form.h
//
// Shows About_Frm.

#pragma once

#include <wx/dialog.h>

#include "foundation/about_box.h"

namespace lv {

/// Modal; returns when the struct says that it is closed.
void ShowAboutForm(wxWindow* owner, About_Frm& about);
}  // namespace lv
