// launch/switch_rules.h
//
// The rows of the composition that are more than a text and a value. Each does its whole row.

#pragma once

#include "launch/command_line_switches.h"

namespace lv {

struct JoinedServer {
    Text HostAndPort;  // "host:port", or the host alone
    Text Password;
};

/// Of a record of the catalog without its title, "host;port;type;password".
JoinedServer ServerOf(TextView record);

/// In double quotes if it holds a blank.
Text QuotedIfBlank(TextView name);

/// What a game gets of a password: one that the user has put in double quotes comes without them.
Text PasswordAsArgument(TextView written);

/// Plain Quake goes online through qlaunch.
LaunchStop WrapQuake(const Composition& c);

/// "start.unr".
LaunchStop UnrealMapRule(const Composition& c);

LaunchStop UnrealIniRule(const Composition& c);

/// "-game ctf", or "+set game ctf" in the Quake II family; nothing for the game's own base directory.
LaunchStop ModRule(const Composition& c);

/// "-winmem 16"; executables of the GL and Windows kind take kilobytes, as "-heapsize 16384".
LaunchStop MemoryRule(const Composition& c);

LaunchStop ScriptRule(const Composition& c);
LaunchStop DedicatedRule(const Composition& c);
LaunchStop GraphicsDriverRule(const Composition& c);

/// The server picked from the list, and the one taken from GameSpy's window.
LaunchStop ServerRule(const Composition& c);
LaunchStop GameSpyServerRule(const Composition& c);

LaunchStop AdditionsRule(const Composition& c);

}  // namespace lv
