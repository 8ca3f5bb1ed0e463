// foundry/reading/skin_page.h
//
// The player's looks as the game's directories offer them: models and skins, or the skins of QuakeWorld.

#pragma once

#include "foundation/run.h"
#include "foundry/document/script_document.h"

namespace lv {

/// Which of the pages for skins and rate the dialect has, and the lists on them. Nothing is selected but the first
/// model, if there are models.
void PrepareSkinPage(Run& run, ScriptDocument& document);

/// Fills Skin_Cbo with the skins of the chosen model, those in the directory of the document's script.
void Sex_Cbo_Click(Run& run, ScriptDocument& document);

}  // namespace lv
