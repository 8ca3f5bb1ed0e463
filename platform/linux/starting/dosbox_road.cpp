#include "platform/linux/starting/dosbox_road.h"

#include "platform/linux/files/host_file.h"
#include "platform/starting/dosbox_start_up.h"

namespace lv {

Result<HostCommand> DosBoxRoad(Files& disk, const GameStart& start) {
    const std::string dosbox = FindOnPath(start.Places.SearchPath, "dosbox");
    if (dosbox.empty()) {
        return Error{error::kFileNotFound,
                     "DOSBox is needed to start this DOS program. Install the Debian package \"dosbox\"."};
    }
    const Result<std::string> text =
        DosBoxConfiguration(start, [&disk](std::string_view path) { return disk.ToHost(path); });
    if (!text.Ok()) {
        return text.Fault;
    }
    const std::filesystem::path file = start.Places.Cache / "dosbox_lv_666.conf";
    if (Error fault = WriteHostFile(file, text.Value)) {
        return fault;
    }
    return HostCommand{
        dosbox, {"-userconf", "-conf", file.string()}, start.Environment, disk.ToHost(start.Directory), file.string()};
}

}  // namespace lv
