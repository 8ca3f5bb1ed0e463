#include "platform/linux/starting/native_road.h"

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
    command.Arguments = HostArguments(start);
    command.Environment = BatchEnvironment(start);
    return AfterShowing(std::move(command), start);
}

}  // namespace lv
