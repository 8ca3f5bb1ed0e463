// foundry/forms/main_pages.h
//
// The pages of Main_Tab but for the bindings: the player with his settings, aliases, free form, save and exit.

#pragma once

#include <wx/notebook.h>

#include "foundry/forms/fig_parts.h"
#include "foundry/forms/name_picture.h"

namespace lv {

/// Where the name stands; the result is the picture that has to be painted when it changes. Options_Tab goes below.
NamePicture* MakeNameRow(FigParts& parts, wxWindow* page, wxSizer* rows);

void MakeAliasPage(FigParts& parts, wxWindow* page);
void MakeFreeFormPage(FigParts& parts, wxWindow* page);
void MakeSavePage(FigParts& parts, wxWindow* page);

}  // namespace lv
