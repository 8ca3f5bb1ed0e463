#include "transfer/export_place.h"

#include <algorithm>

#include "foundation/field_strings.h"
#include "foundation/own_directory.h"
#include "transfer/settings_text.h"

namespace lv {

namespace {

constexpr std::size_t kStartOfFile = 64;  // bytes

Error Refused(TextView why) {
    return {error::kPathFileAccess, Text(why)};
}

/// The one name of a directory that has several, by drives that lie in each other and by links.
Text OneName(Files& disk, TextView directory) {
    Text name = disk.FromHost(disk.ToHost(directory));
    return name.empty() ? Text(directory) : name;
}

bool LiesIn(Files& disk, TextView directory, const Text& above) {
    if (above.empty()) {
        return false;
    }
    const Text inner = OneName(disk, directory);
    const Text outer = OneName(disk, above);
    return StartsWithText(inner, outer) &&
           (inner.size() == outer.size() || outer.ends_with('\\') || inner[outer.size()] == '\\');
}

bool IsOwn(Run& run, TextView directory) {
    const Text settings = run.System.Places != nullptr ? Text(run.System.Places->ConfigDirectory()) : Text();
    Files& disk = run.System.Disk;
    return LiesIn(disk, directory, settings.empty() ? settings : Join(settings, "\\lorvane3d")) ||
           LiesIn(disk, directory, OwnDirectory(run, "backups"));
}

Error FaultOfPlainFile(Files& disk, TextView path) {
    const auto file = disk.Open(path);
    if (!file.Ok()) {
        return file.Fault;
    }
    const auto start = file.Value->Read(0, kStartOfFile);
    if (!start.Ok()) {
        return start.Fault;
    }
    return BeginsSettingsText(start.Value) ? Error()
                                           : Refused("The file exists and is no file of settings; give another name");
}

Error FaultOfEntry(Files& disk, TextView path, bool isDirectory, MayReplace mayReplace) {
    if (isDirectory) {
        return Refused("This is a directory; give the name of a file");
    }
    if (!disk.IsPlainFile(path)) {
        return Refused("This is a link, a pipe or a device, and stays what it is; give another name");
    }
    return mayReplace == MayReplace::kAnyFile ? Error() : FaultOfPlainFile(disk, path);
}

}  // namespace

Error FaultOfFileName(TextView path) {
    const TextView name = path.substr(path.find_last_of("\\/:") + 1);
    const bool isDirectory = name.empty() || name == "." || name == "..";
    return isDirectory ? Refused("This names a directory; give the name of a file") : Error();
}

Error FaultOfExport(Run& run, TextView path, MayReplace mayReplace) {
    if (path.empty()) {
        return MakeError(error::kPathNotFound);
    }
    if (Error fault = FaultOfFileName(path)) {
        return fault;
    }
    Files& disk = run.System.Disk;
    const TextView name = path.substr(path.rfind('\\') + 1);
    const TextView directory = path.substr(0, path.size() - name.size());
    if (IsOwn(run, directory)) {
        return Refused("Lorvane 3D keeps its own files in this directory; give another one");
    }
    const auto entries = disk.List(directory);
    if (!entries.Ok()) {
        return entries.Fault;
    }
    for (const DirectoryEntry& entry : entries.Value) {
        if (!SameText(entry.Name, name)) {
            continue;
        }
        if (entry.Name != name) {  // it would go, or be what is written over
            return Refused(
                Join("The name \"", entry.Name, "\" differs in letter case alone; give that, or another one"));
        }
        if (Error fault = FaultOfEntry(disk, path, entry.IsDirectory, mayReplace)) {
            return fault;
        }
    }
    return {};
}

}  // namespace lv
