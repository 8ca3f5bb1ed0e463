// foundation/link_question.h
//
// A user's file may be a link, and stays one. What it leads to is changed without a word only where it is the user's
// own, or the game's: an archive from a stranger may hold links to anywhere.

#pragma once

#include "foundation/run.h"

namespace lv {

/// The directory that the file's game lies in: the current game's, Unreal's above "System". A file that lies elsewhere
/// has its own.
Text GameTreeOf(const Run& run, TextView path);

/// Where a write to `path` would end outside of both, as the host says it; empty if it stays.
Text LinkTargetOutside(const Run& run, TextView path);

/// Asks whether that file may be changed.
bool AskToFollowLink(Run& run, TextView path, TextView target);

/// Whether `path` may be written: the user is asked where it leads outside.
bool MayWriteThroughLinks(Run& run, TextView path);

/// Whether a file of the program's own may be put at `path`, in the game that lies in `tree`: the user is asked if its
/// directory is reached by a link that leads outside, once for each place.
bool MayPutOwnFile(Run& run, TextView path, TextView tree);

/// The same, without a question: false where there would be one.
bool PutsOwnFileInside(Run& run, TextView path, TextView tree);

}  // namespace lv
