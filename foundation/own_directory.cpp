#include "foundation/own_directory.h"

namespace lv {

Text OwnDirectory(const Run& run, TextView name) {
    const Text data = run.System.Places != nullptr ? Text(run.System.Places->DataDirectory()) : Text();
    if (!data.empty()) {
        return Join(data, "\\lorvane3d\\", name);
    }
    return Join(run.AppDirectory.empty() ? run.System.Disk.ProgramDirectory() : run.AppDirectory, "\\", name);
}

Error MakeWholeDirectory(Files& disk, const Text& directory) {
    if (disk.DirectoryExists(directory)) {
        return {};
    }
    const Text above = directory.substr(0, directory.rfind('\\'));
    if (above.find('\\') != Text::npos) {
        if (Error failed = MakeWholeDirectory(disk, above)) {
            return failed;
        }
    }
    return disk.MakeDirectory(directory);
}

}  // namespace lv
