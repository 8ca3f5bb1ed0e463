#include "foundry/versions/script_versions.h"

#include <algorithm>

#include "foundation/bounded_file.h"
#include "foundation/field_strings.h"
#include "foundation/own_directory.h"
#include "foundry/document/script_mark.h"

namespace lv {

namespace {

constexpr std::size_t kLargestVersionFile = 2 * kMostVersionBytes;

Result<Text> ReadAll(Files& disk, TextView path, std::size_t most) {
    const auto file = disk.Open(path);
    if (!file.Ok()) {
        return file.Fault;
    }
    if (file.Value->Size() > most) {
        return MakeTooLarge(most);
    }
    return file.Value->Read(0, most);
}

VersionFile ReadVersions(Files& disk, const Text& path) {
    const Result<Text> bytes = disk.FileExists(path) ? ReadAll(disk, path, kLargestVersionFile) : Text();
    VersionFile file = ReadVersionFile(bytes.Value);
    file.IsDamaged = file.IsDamaged || !bytes.Ok();
    return file;
}

/// Puts the version first. What has the same text goes.
void AddNewest(std::vector<ScriptVersion>& versions, ScriptVersion version) {
    std::erase_if(versions, [&](const ScriptVersion& each) { return each.Text == version.Text; });
    versions.insert(versions.begin(), std::move(version));
    std::size_t kept = 0;
    std::size_t size = 0;
    while (kept < std::min(versions.size(), kMostVersions) && size + versions[kept].Text.size() <= kMostVersionBytes) {
        size += versions[kept].Text.size();
        ++kept;
    }
    versions.erase(versions.begin() + static_cast<std::ptrdiff_t>(kept), versions.end());
}

}  // namespace

Text VersionFilePathOf(const Run& run, TextView script) {
    return Join(OwnDirectory(run, "versions"), "\\", ScriptMark(script), ".txt");
}

Error KeepVersion(Run& run, TextView script) {
    Files& disk = run.System.Disk;
    if (!disk.FileExists(script)) {
        return {};
    }
    Result<Text> text = ReadAll(disk, script, kLargestVersion);
    if (!text.Ok()) {
        return text.Fault;
    }
    const Text path = VersionFilePathOf(run, script);
    if (Error failed = MakeWholeDirectory(disk, path.substr(0, path.rfind('\\')))) {
        return failed;
    }
    VersionFile file = ReadVersions(disk, path);
    if (file.IsDamaged) {
        if (Error failed = disk.CopyOwn(path, Join(path, ".damaged"))) {
            return failed;
        }
    } else if (!file.Versions.empty() && file.Versions.front().Text == text.Value) {
        return {};
    }
    file.Script = script;
    AddNewest(file.Versions, {run.System.Time.Now(), std::move(text.Value)});
    return disk.ReplaceOwn(path, WriteVersionFile(file));
}

std::vector<ScriptVersion> VersionsOf(Run& run, TextView script) {
    return ReadVersions(run.System.Disk, VersionFilePathOf(run, script)).Versions;
}

Error BringBack(Run& run, TextView script, const ScriptVersion& version) {
    const Text text = version.Text;  // the versions change below it
    if (Error failed = KeepVersion(run, script)) {
        return failed;
    }
    return run.System.Disk.Replace(script, text);
}

}  // namespace lv
