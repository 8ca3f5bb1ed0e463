// foundation/forms/small_dialogs.h
//
// Shows About_Frm and ConfirmExit_Frm.

#pragma once

#include <wx/dialog.h>

#include "foundation/dialogs.h"

namespace lv {

/// Modal; returns when the struct says that it is closed.
void ShowAboutForm(wxWindow* owner, About_Frm& about);
void ShowConfirmExitForm(wxWindow* owner, ConfirmExit_Frm& confirm);

}  // namespace lv
