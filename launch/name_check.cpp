#include "launch/name_check.h"

#include "foundation/question_box.h"

namespace lv {

bool NamesAreText(Run& run, const std::vector<LaunchName>& names, LineReader reader, TextView directory) {
    std::optional<Text> misread = MisreadName(names, reader);
    if (!misread && reader == LineReader::kDosShell) {  // which meets the directory as the host has it
        const Text place = FromUtf8Lossy(run.System.Disk.ToHost(directory));
        misread = MisreadName({{.Kind = NameKind::GameDirectory, .Value = place, .Written = place}}, reader);
    }
    if (misread) {
        AskUser(run, "", *misread);
        return false;
    }
    for (const Text& file : ConnectPrograms(names, reader)) {
        const Text path = Join(directory, "\\", file);
        if (run.System.Disk.FileExists(path)) {
            AskUser(run, "", ConnectProgramText(path));
            return false;
        }
    }
    return true;
}

bool NamesMayBeCommands(Run& run, const std::vector<LaunchName>& names) {
    const std::optional<Text> question = CommandQuestion(names);
    return !question || AskUser(run, "A Command In A Name", *question, "&Don't Start,&Start It") == 1;
}

}  // namespace lv
