#include "platform/starting/dosbox_start_up.h"

#include <algorithm>
#include <cctype>
#include <cstddef>

#include "platform/code_page.h"

namespace lv {

namespace {

// DOSBox 0.74 ends with an error when its start-up lines pass 4096 bytes, a few of its own included.
constexpr std::size_t kMostStartUpBytes = 3800;

constexpr std::string_view kShortNameSigns = "!#$%&'()-@^_`{}~";

bool IsShortNameCharacter(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte < 0x80 && (std::isalnum(byte) != 0 || kShortNameSigns.find(c) != std::string_view::npos);
}

std::string WithPercent(std::string_view text, std::string_view percent) {
    std::string out;
    for (const char c : text) {
        out += c == '%' ? percent : std::string_view(&c, 1);
    }
    return out;
}

// Only with short names, and such that DOS's shell takes for text, does the path mean the same within DOSBox.
bool HasShortNames(std::string_view path) {
    while (!path.empty()) {
        const std::size_t end = std::min(path.find('\\'), path.size());
        const std::string_view name = path.substr(0, end);
        if (end > 0 && (!IsShortName(name) || !ReadsAsOneWord(name, LineReader::kDosShell))) {
            return false;
        }
        path.remove_prefix(std::min(end + 1, path.size()));
    }
    return true;
}

// "/", "C:\\", or nothing at all.
bool IsWholeDisk(std::string_view host) {
    return host.empty() || host == "/" || (host.size() == 3 && host.ends_with(":\\"));
}

bool CanBeQuoted(std::string_view path) {
    return std::none_of(path.begin(), path.end(),
                        [](char c) { return c == '"' || static_cast<unsigned char>(c) < 0x20; });
}

}  // namespace

bool IsShortName(std::string_view name) {
    const std::size_t dot = name.find('.');
    const std::string_view base = name.substr(0, dot);
    const std::string_view extension = dot == std::string_view::npos ? "" : name.substr(dot + 1);
    return !base.empty() && base.size() <= 8 && extension.size() <= 3 &&
           (dot == std::string_view::npos || !extension.empty()) &&
           std::all_of(base.begin(), base.end(), IsShortNameCharacter) &&
           std::all_of(extension.begin(), extension.end(), IsShortNameCharacter);
}

// "@" keeps a line that opens with "#", "%" or "[" from being read as the configuration's own.
// A batch takes one percent sign from two, and DOSBox's SET does so once more.
std::string DosBoxStartUp(const BatchPlan& plan, char drive, std::string_view mounted, std::string_view directory) {
    const std::string letter(1, drive);
    std::string text = "[autoexec]\n";
    text += "@mount -u " + letter + " >nul\n";
    text += "@mount " + letter + " \"" + WithPercent(mounted, "%%") + "\"\n";
    for (const auto& [name, value] : plan.environment) {
        text += "@SET " + WithPercent(name, "%%") + "=" + WithPercent(value, "%%%%") + "\n";
    }
    if (plan.showsEnvironment) {
        text += "@SET\n@PAUSE\n";
    }
    text += "@" + letter + ":\n";
    text += "@cd " + WithPercent(directory, "%%") + "\n";
    text += "@" + WithPercent(plan.command, "%%") + "\n";
    text += "@exit\n";
    return text;
}

Result<std::string> DosBoxConfiguration(const BatchGame& game, const HostPathOf& hostPathOf) {
    const std::string& path = game.Game.Program.Path;
    const std::string program = path.substr(path.rfind('\\') + 1);
    if (!ReadsAsOneWord(program, LineReader::kDosShell)) {
        return MisreadWord(program, LineReader::kDosShell);
    }
    char drive = UpperCase(game.Directory[0]);
    std::string directory = game.Directory.substr(2);
    std::string mounted = hostPathOf(game.Directory.substr(0, 2) + "\\");
    // Z: is DOSBox's own, a share has no letter, and a whole disk is no place to let a DOS program loose in.
    const bool whole = drive == 'Z' || drive == '\\' || IsWholeDisk(mounted);
    if (whole || !HasShortNames(directory)) {
        drive = whole ? 'C' : drive;
        mounted = hostPathOf(game.Directory);
        directory = "\\";
    }
    if (!CanBeQuoted(mounted)) {
        return Error{error::kPathFileAccess,
                     "DOSBox cannot use a directory with a double quote in its name: " + FromUtf8Lossy(mounted)};
    }
    BatchPlan plan = game.Plan;
    plan.command = game.Game.Command;
    std::string text = DosBoxStartUp(plan, drive, mounted, directory.empty() ? "\\" : directory);
    if (text.size() > kMostStartUpBytes) {
        return Error{error::kInvalidCall, "DOSBox takes no more than 3800 characters of environment and command"};
    }
    return text;
}

}  // namespace lv
