// launcher/window/game_end.h
//
// The game's last words: a game that failed, or ended right after its start, brings the main window back and is told
// of; any other end is the user's own affair and leaves the window where it is. What the last game printed can be
// looked at in any case.

#pragma once

#include "launcher/launcher.h"
#include "platform/processes.h"

namespace lv {

/// Seconds within which an end is told of whatever its code; later the game was played.
constexpr double kQuickEnd = 5;

/// The signal that ended the game: its own or, where a script or a sandbox stood around it and left "128 and the
/// signal" as its code, the one of a crash that this tells of. 0: none.
int SignalOf(const GameEnd& end);

/// Whether the user is told: it ended by a signal that no one sends to have a program end in order, or within
/// kQuickEnd seconds. One that ended in order counts only when nothing of it runs any more: many a wrapper ends with
/// code 0 while its game comes up.
bool IsToldOf(const GameEnd& end);

/// Whether it ended in order, with code 0 and without a word of an error.
bool IsInOrder(const GameEnd& end);

/// "ended after 2 seconds with code 1", "ended at once, and in order", "was ended after 1 minute by signal 11, a
/// crash".
Text EndInWords(const GameEnd& end);

/// The last `most` lines that are not empty.
Text LastLinesOf(TextView text, std::size_t most);

/// What the dialog says.
Text GameEndText(TextView name, const GameEnd& end);

/// The same for all of the output: the last lines of what may be very long, and no line that is wider than a window
/// can show.
Text ShownOutput(TextView output);

/// A game has been started by the program at this path.
void NoteGameStart(Launcher& launcher, TextView path);

/// Whether it is time to look for its end: always in its first ten seconds, then each two seconds; never without a
/// game. To be called a few times a second, and costs nothing.
bool GameEndIsDue(Launcher& launcher);

/// Looks, notes how long it was played, and tells of an end that is to be told of. Waits while a dialog is up or a
/// launch under way.
void TellGameEnd(Launcher& launcher);

void GameOutput_Bar_Click(Launcher& launcher);

}  // namespace lv
