// commands/asked_instance.h
//
// A command that another start of the program passes on to the one that runs, and its answer.

#pragma once

#include <optional>

#include "commands/command_place.h"
#include "commands/command_words.h"

namespace lv {

/// The words of a command that the other instance can do as well: a file is named by its whole path.
std::vector<Text> WordsForAnother(const Command& command, const std::vector<Text>& words,
                                  const std::function<Text(TextView)>& wholePath);

/// The words as one text, and back; a word ends at a character 0.
Text RequestOf(const std::vector<Text>& words);
std::vector<Text> WordsOf(TextView request);

/// A result as one text, and back; nothing for a text that is none.
Text ReplyOf(const CommandResult& result);
std::optional<CommandResult> ResultOf(TextView reply);

/// Whether a command is a file or an address that the window is to offer.
bool IsToBeOffered(const Command& command);

/// Whether a command is to be passed on: what changes the run of the window, or is to be offered by it.
bool IsForTheWindow(const Command& command);

/// Does what another start asks of the program whose window this is. A file or an address is offered once the window,
/// which comes forward, has time; a game that was started is this window's: it goes out of the way unless a dialog is
/// up, and comes back at the game's end as after its own launch. Imported settings are shown at once; under a dialog
/// they are refused, and a file or an address waits until that is closed, which the other start is told.
CommandResult DoForAnother(Launcher& window, const CommandPlace& place, TextView request);

/// What a start was given goes to the instance that runs, where that was faster: Launcher::HandOver.
void ConnectHandOver(Launcher& launcher);

/// Of an instance that is there and does not listen.
CommandResult NoAnswer();

}  // namespace lv
