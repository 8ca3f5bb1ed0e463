// foundry/editor/rescued_edits.h
//
// Edits that the end of the session found unsaved: kept in a file of the program's own, and offered when their script
// is opened the next time.

#pragma once

#include <optional>

#include "foundry/editor/fig_frm.h"

namespace lv {

/// Where the edits of that script are kept: beside it, whatever the letter case of its path.
Text RescuePathOf(TextView script);

/// The session ends: what is not saved is written beside the script, or beside the program if the script's directory
/// takes no files. Nothing is asked, and the script stays as it is. The error of the last attempt.
Error RescueEdits(Fig_Frm& form);

/// Asks about the edits that were kept of the form's script, which has been read, and reads them in its place if they
/// are wanted. True if the form holds them: they are unsaved, which MarkRescued says. None if there is nothing to edit
/// any more: the program ended meanwhile, or the script cannot be read again.
std::optional<bool> OfferRescuedEdits(Fig_Frm& form);

/// Behind the window's load: the document is not what is on disk.
void MarkRescued(Fig_Frm& form);

/// The script was saved, or its user let the edits go.
void DropRescuedEdits(Run& run, TextView script);

}  // namespace lv
