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

/// The session ends: what is not saved is written beside the script; if its directory takes no files, among the user's
/// data; if there is no place either, beside the program. Nothing is asked, and the script stays as it is. The error of
/// the last attempt.
Error RescueEdits(Fig_Frm& form);

/// Asks about the edits that were kept of the form's script, which has been read. True if they are wanted; they are
/// gone otherwise. None if the program ended meanwhile.
std::optional<bool> OfferRescuedEdits(Fig_Frm& form);

/// Behind the window's load: all that was kept is one edit, unsaved, of the script as it is on disk. Without it again
/// where it cannot be read, which the user was told. False if there is nothing to edit any more: the program ended
/// meanwhile, or the script cannot be read again either.
bool TakeUpRescuedEdits(Fig_Frm& form);

/// The script was saved, or its user let the edits go.
void DropRescuedEdits(Run& run, TextView script);

}  // namespace lv
