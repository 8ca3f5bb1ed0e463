// foundry/forms/foundry_forms.h
//
// The form of Fig_Frm and of its dialogs, for a user interface's makers.

#pragma once

#include "foundation/forms/wx_user.h"

namespace lv {

WxUser::FormMaker MakeFoundryForms(WxUser& user);

}  // namespace lv
