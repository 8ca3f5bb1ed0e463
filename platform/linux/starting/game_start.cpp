#include "platform/linux/starting/game_start.h"

#include "platform/code_page.h"

namespace lv {

std::vector<std::string> HostArguments(const GameStart& start) {
    std::vector<std::string> arguments;
    const std::string& text = start.Game.Program.Arguments;  // the end of the command
    const std::size_t ahead = start.Plan.command.size() - text.size();
    std::vector<GivenWord> given = start.Plan.given;
    std::erase_if(given, [ahead](const GivenWord& word) { return word.At < ahead; });  // in the program's own name
    for (GivenWord& word : given) {
        word.At -= ahead;
    }
    for (const std::string& argument : SplitArguments(text, given)) {
        arguments.push_back(ToUtf8(argument));
    }
    return arguments;
}

std::vector<std::string> BatchEnvironment(const GameStart& start) {
    std::vector<std::string> environment = start.Environment;
    for (const auto& [name, value] : start.Plan.environment) {
        SetVariable(environment, ToUtf8(name), ToUtf8(value));
    }
    return environment;
}

Result<HostCommand> AfterShowing(HostCommand command, const GameStart& start) {
    if (!start.Plan.showsEnvironment) {
        return command;
    }
    const std::string helper = start.Places.PauseHelper.string();
    if (!MayRun(helper)) {
        return MakeError(error::kFileNotFound, FromUtf8Lossy(helper));
    }
    command.Arguments.insert(command.Arguments.begin(), command.Program);
    command.Program = helper;
    return InTerminal(std::move(command), start.Places);
}

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
