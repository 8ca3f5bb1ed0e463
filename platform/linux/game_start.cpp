#include "platform/linux/game_start.h"

namespace lv {

// xterm first: it hands the arguments on one by one and has its child inherit the environment. Not every other
// terminal does.
Result<HostCommand> InTerminal(HostCommand command, const HostPlaces& places) {
    std::string terminal = FindOnPath(places.SearchPath, "xterm");
    if (terminal.empty()) {
        terminal = FindOnPath(places.SearchPath, "x-terminal-emulator");
    }
    if (terminal.empty()) {
        return Error{error::kFileNotFound,
                     "A terminal is needed to show the environment. Install the Debian package \"xterm\"."};
    }
    command.Arguments.insert(command.Arguments.begin(), {"-e", command.Program});
    command.Program = terminal;
    return command;
}

}  // namespace lv
