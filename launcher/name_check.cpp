#include "launcher/name_check.h"

#include "foundation/question_box.h"

namespace lv {

bool NamesAreText(Run& run, const std::vector<LaunchName>& names, LineReader reader, TextView directory) {
    if (const std::optional<Text> misread = MisreadName(names, reader)) {
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

}  // namespace lv
