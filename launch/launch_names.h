// launch/launch_names.h
//
// What a launch takes out of lists, archives, directories and servers. Each is one value, and text: where something
// reads a command line or a script before the game does, and would take such a value for more, nothing starts.
// The user's own additions to the command line, the memory option and the video profile are the user's, and not here.

#pragma once

#include <optional>
#include <vector>

#include "launch/launch_selection.h"
#include "platform/command_text.h"

namespace lv {

enum class NameKind { Executable, GameDirectory, Modification, Map, Script, Demo, Server, Password };

struct LaunchName {
    NameKind Kind = NameKind::Executable;
    Text Value;    // what it is called
    Text Written;  // as it stands in a command or a script
    bool InCommand = false;
    bool InScript = false;   // for the game's own console
    bool ByConsole = false;  // of the command: where the game's console looks for commands
};

/// Of what is ticked and picked, in the order of the command line.
std::vector<LaunchName> NamesOf(const LaunchSelection& selection, const LaunchGame& game);

/// Why the launch must not start: the first name that would be misread, where it comes from and what helps. Nothing if
/// all are text. Windows' command processor looks at every name, whether it is to meet it or not.
std::optional<Text> MisreadName(const std::vector<LaunchName>& names, LineReader reader);

/// Many games take a "+" in their command line, wherever it stands, for the beginning of a command of their console,
/// and a parameter that begins with "-" for an option, whatever stands before it. What the user is asked about the
/// first such name; nothing if there is none.
std::optional<Text> CommandQuestion(const std::vector<LaunchName>& names);

/// Half-Life's password breaks the command line, and a command processor carries the rest out by itself, as a command
/// called "connect". The names of the files that it would take for that command.
std::vector<Text> ConnectPrograms(const std::vector<LaunchName>& names, LineReader reader);

/// Why the launch must not start if there is such a file.
Text ConnectProgramText(TextView path);

}  // namespace lv
