#include "platform/linux/starting/wine_road.h"

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <cstdio>
#include <map>
#include <system_error>

#include "platform/code_page.h"
#include "platform/linux/files/host_file.h"

namespace lv {

namespace {

constexpr int kDaysToKeepCopies = 1;  // of starts that were cut short

std::filesystem::path Canonical(const std::filesystem::path& path) {
    std::error_code failed;
    const auto canonical = std::filesystem::weakly_canonical(path, failed);
    return failed ? path.lexically_normal() : canonical;
}

// Letter to host directory.
std::map<char, std::filesystem::path> WineDrives(const std::filesystem::path& prefix) {
    std::error_code failed;
    const std::filesystem::path devices = prefix / "dosdevices";
    if (!std::filesystem::is_directory(devices, failed)) {
        return {{'c', Canonical(prefix / "drive_c")}, {'z', "/"}};
    }
    std::map<char, std::filesystem::path> drives;
    for (char letter = 'a'; letter <= 'z'; ++letter) {
        const std::filesystem::path entry = devices / (std::string(1, letter) + ":");
        if (std::filesystem::is_directory(entry, failed)) {
            drives[letter] = Canonical(entry);
        }
    }
    return drives;
}

bool BeyondAscii(std::string_view text) {
    return std::any_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) >= 0x80; });
}

bool SaysUtf8(std::string_view locale) {
    const std::string lower = LowerCase(locale);
    return lower.find("utf-8") != std::string::npos || lower.find("utf8") != std::string::npos;
}

// Wine takes file names, arguments and variables from the host in the locale's character set. Ours are UTF-8.
void SpeakUtf8(std::vector<std::string>& environment) {
    const std::string all = VariableIn(environment, "LC_ALL");
    if (!all.empty()) {
        if (!SaysUtf8(all)) {
            SetVariable(environment, "LC_ALL", "C.UTF-8");
        }
        return;
    }
    const std::string ctype = VariableIn(environment, "LC_CTYPE");
    if (!SaysUtf8(ctype.empty() ? VariableIn(environment, "LANG") : ctype)) {
        SetVariable(environment, "LC_CTYPE", "C.UTF-8");
    }
}

// A name for each content, because Wine reads on in the file when the game has ended: it must not find another text.
std::string CopyName(std::string_view text) {
    std::uint64_t hash = 0xCBF29CE484222325u;  // FNV-1a
    for (const char c : text) {
        hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3u;
    }
    char name[32];
    std::snprintf(name, sizeof name, "lv_666_%016llx.bat", static_cast<unsigned long long>(hash));
    return name;
}

// A program that the command names by its full path is named as Wine has it.
std::string CommandForWine(Files& disk, const GameStart& start) {
    const std::string& command = start.Game.Command;
    const std::size_t at = command.starts_with('"') ? 1 : 0;
    if (command.size() > at + 1 && command[at + 1] == ':') {
        const auto path = WinePathOf(start.Places.WinePrefix, disk.ToHost(start.Game.Program.Path));
        const auto text = path ? FromUtf8(*path) : std::nullopt;
        return text ? "\"" + *text + "\" " + start.Game.Program.Arguments : command;
    }
    return start.Game.WrapperMissing ? command : "";
}

// The batch as Wine is to be told it: its own name in the game's directory, or the path of a copy.
Result<std::string> BatchForWine(Files& disk, const GameStart& start, HostCommand& wine) {
    const std::string root = start.Directory.substr(0, 2) + "\\";
    const std::string command = CommandForWine(disk, start);
    const bool sameDrive = WineDriveIs(start.Places.WinePrefix, root[0], disk.ToHost(root));
    if (sameDrive && command.empty() && !BeyondAscii(start.BatchText)) {
        const std::size_t name = start.BatchPath.rfind('\\');
        const bool beside = SameText(start.BatchPath, JoinPath(start.Directory, start.BatchPath.substr(name + 1)));
        return beside ? start.BatchPath.substr(name + 1) : start.BatchPath;
    }
    const WineCopy copy = CopyForWine(start.BatchText, command);
    for (const auto& [variable, value] : copy.Variables) {
        SetVariable(wine.Environment, variable, ToUtf8(value));
    }
    DropOldHostFiles(start.Places.Cache, "lv_666_", kDaysToKeepCopies);
    const std::filesystem::path file = start.Places.Cache / CopyName(copy.Text);
    if (Error fault = WriteHostFile(file, copy.Text)) {
        return fault;
    }
    wine.ReadOnce = file.string();
    const auto path = WinePathOf(start.Places.WinePrefix, file);
    if (!path) {
        return Error{error::kPathNotFound, "Wine has no drive for " + FromUtf8Lossy(file.string())};
    }
    return *path;
}

}  // namespace

bool WineDriveIs(const std::filesystem::path& prefix, char letter, const std::filesystem::path& root) {
    const auto drives = WineDrives(prefix);
    const auto found = drives.find(LowerCase(letter));
    return found != drives.end() && found->second == Canonical(root / "");
}

std::optional<std::string> WinePathOf(const std::filesystem::path& prefix, const std::filesystem::path& hostPath) {
    const std::string host = Canonical(hostPath).string();
    std::optional<std::string> best;
    std::size_t depth = 0;
    for (const auto& [letter, directory] : WineDrives(prefix)) {
        std::string above = directory.string();
        if (!above.ends_with('/')) {
            above += '/';
        }
        if (above.size() > depth && host.starts_with(above)) {
            depth = above.size();
            best = std::string(1, UpperCase(letter)) + ":\\" + host.substr(depth);
        }
    }
    if (best) {
        std::replace(best->begin(), best->end(), '/', '\\');
    }
    return best;
}

WineCopy CopyForWine(std::string_view batch, std::string_view command) {
    WineCopy copy;
    bool commandSaid = false;
    for (const BatchLine& line : ReadBatchLines(batch)) {
        std::string text = line.Text;
        if (line.Kind == BatchLineKind::kDrive || line.Kind == BatchLineKind::kDirectory) {
            continue;
        }
        if (line.Kind == BatchLineKind::kCommand && !command.empty()) {
            text = commandSaid ? "" : command;
            commandSaid = true;
        }
        if (BeyondAscii(text)) {
            const std::string variable = "LV_666_" + std::to_string(copy.Variables.size() + 1);
            copy.Variables.emplace_back(variable, text);
            text = "%" + variable + "%";
        }
        copy.Text += (copy.Text.empty() ? "" : "\r\n") + text;
    }
    return copy;
}

Result<HostCommand> WineCommand(const HostPlaces& places, std::vector<std::string> environment,
                                std::vector<std::string> arguments) {
    const std::string wine = FindOnPath(places.SearchPath, "wine");
    if (wine.empty()) {
        return Error{error::kFileNotFound,
                     "Wine is needed to start this Windows program. Install the Debian package \"wine\"."};
    }
    if (VariableIn(environment, "WINEDEBUG").empty()) {
        SetVariable(environment, "WINEDEBUG", "-all");
    }
    SpeakUtf8(environment);
    return HostCommand{wine, std::move(arguments), std::move(environment), ""};
}

Result<HostCommand> WineRoad(Files& disk, const GameStart& start) {
    std::vector<std::string> arguments = HostArguments(start);
    arguments.insert(arguments.begin(), disk.ToHost(start.Game.Program.Path));
    Result<HostCommand> command = WineCommand(start.Places, BatchEnvironment(start), std::move(arguments));
    if (!command.Ok()) {
        return command;
    }
    command.Value.Directory = disk.ToHost(start.Directory);
    return AfterShowing(std::move(command.Value), start);
}

Result<HostCommand> WineBatchRoad(Files& disk, const GameStart& start) {
    Result<HostCommand> command = WineCommand(start.Places, start.Environment, {"cmd", "/c"});
    if (!command.Ok()) {
        return command;
    }
    const Result<std::string> batch = BatchForWine(disk, start, command.Value);
    if (!batch.Ok()) {
        return batch.Fault;
    }
    command.Value.Arguments.push_back(batch.Value);
    command.Value.Directory = disk.ToHost(start.Directory);
    return start.Plan.showsEnvironment ? InTerminal(std::move(command.Value), start.Places) : command;
}

}  // namespace lv
