#include "foundry/versions/script_versions.h"

#include <algorithm>

#include "foundation/bounded_file.h"
#include "foundation/field_strings.h"
#include "foundation/own_directory.h"
#include "foundation/path_fault.h"
#include "foundry/document/script_mark.h"

namespace lv {

namespace {

constexpr std::size_t kLargestVersionFile = 2 * kMostVersionBytes;
constexpr int kMostDamagedFiles = 20;

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

/// Only where no file is there are there no versions. One that is larger than any that is written is damaged.
VersionFile VersionsAt(Files& disk, const Text& path) {
    VersionFile file;
    const auto opened = disk.Open(path);
    if (opened.Ok() && opened.Value->Size() > kLargestVersionFile) {
        file.IsDamaged = true;
        return file;
    }
    const Result<Text> bytes = opened.Ok() ? opened.Value->Read(0, kLargestVersionFile) : opened.Fault;
    if (bytes.Ok()) {
        return ReadVersionFile(bytes.Value);
    }
    if (bytes.Fault.Number != error::kFileNotFound && bytes.Fault.Number != error::kPathNotFound) {
        file.Unread = FaultAt(disk, path, bytes.Fault);
    }
    return file;
}

Text DamagedName(const Text& path, int number) {
    return Join(path, ".damaged", number == 1 ? Text() : std::to_string(number));
}

/// Under a name that no other damaged file has, as long as there are not too many; where one holds the same already,
/// that is it.
Result<Text> KeepAside(Files& disk, const Text& path) {
    const Result<Text> bytes = ReadAll(disk, path, kLargestVersionFile);
    for (int number = 1;; ++number) {
        Text name = DamagedName(path, number);
        const bool isThere = disk.FileExists(name);
        if (isThere && bytes.Ok() && ReadAll(disk, name, kLargestVersionFile).Value == bytes.Value) {
            return name;
        }
        if (!isThere || number == kMostDamagedFiles) {
            Error failed = disk.CopyOwn(path, name);
            return failed ? Result<Text>(std::move(failed)) : Result<Text>(std::move(name));
        }
    }
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

Result<Text> KeepVersion(Run& run, TextView script) {
    Files& disk = run.System.Disk;
    if (!disk.FileExists(script)) {
        return Text();
    }
    Result<Text> text = ReadAll(disk, script, kLargestVersion);
    if (!text.Ok()) {
        return text.Fault;
    }
    const Text path = VersionFilePathOf(run, script);
    if (Error failed = MakeWholeDirectory(disk, path.substr(0, path.rfind('\\')))) {
        return failed;
    }
    VersionFile file = VersionsAt(disk, path);
    if (file.Unread) {
        return file.Unread;
    }
    Result<Text> aside;
    if (file.IsDamaged) {
        aside = KeepAside(disk, path);
        if (!aside.Ok()) {
            return aside;
        }
    } else if (!file.Versions.empty() && file.Versions.front().Text == text.Value) {
        return Text();
    }
    file.Script = script;
    AddNewest(file.Versions, {run.System.Time.Now(), std::move(text.Value)});
    Error failed = disk.ReplaceOwn(path, WriteVersionFile(file));
    return failed ? Result<Text>(std::move(failed)) : std::move(aside);
}

VersionFile ReadVersions(Run& run, TextView script) {
    return VersionsAt(run.System.Disk, VersionFilePathOf(run, script));
}

std::vector<ScriptVersion> VersionsOf(Run& run, TextView script) {
    return ReadVersions(run, script).Versions;
}

std::vector<Text> DamagedVersionFiles(Run& run, TextView script) {
    const Text path = VersionFilePathOf(run, script);
    std::vector<Text> names;
    for (int number = 1; number <= kMostDamagedFiles; ++number) {
        Text name = DamagedName(path, number);
        if (!run.System.Disk.FileExists(name)) {
            break;
        }
        names.push_back(std::move(name));
    }
    return names;
}

Result<Text> BringBack(Run& run, TextView script, const ScriptVersion& version) {
    const Text text = version.Text;  // the versions change below it
    Result<Text> kept = KeepVersion(run, script);
    if (!kept.Ok()) {
        return kept;
    }
    Error failed = run.System.Disk.Replace(script, text);
    return failed ? Result<Text>(std::move(failed)) : std::move(kept);
}

Text KeptAsideText(TextView path) {
    return Join("The file that keeps the older versions of this script was damaged. What could be read of it goes on;",
                NewLine, "the damaged file itself is kept as -->", NewLine, NewLine, DoubleQuote, path, DoubleQuote);
}

}  // namespace lv
