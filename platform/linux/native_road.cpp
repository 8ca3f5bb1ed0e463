#include "platform/linux/native_road.h"

#include "platform/code_page.h"

namespace lv {

namespace {

Error NotExecutable(const std::string& hostPath) {
    const std::string shown = FromUtf8Lossy(hostPath);
    return {error::kPermissionDenied, "The file may not be run as a program: " + shown +
                                          ". Allow it in the file manager's properties, or with chmod +x."};
}

}  // namespace

Result<HostCommand> NativeRoad(Files& disk, const GameStart& start) {
    HostCommand command;
    command.Program = disk.ToHost(start.Game.Program.Path);
    command.Directory = disk.ToHost(start.Directory);
    if (!MayRun(command.Program)) {
        return NotExecutable(command.Program);
    }
    for (const std::string& argument : SplitArguments(start.Game.Program.Arguments)) {
        command.Arguments.push_back(ToUtf8(argument));
    }
    command.Environment = start.Environment;
    for (const auto& [name, value] : start.Plan.environment) {
        SetVariable(command.Environment, ToUtf8(name), ToUtf8(value));
    }
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

}  // namespace lv
