#include "platform/linux/user_dirs.h"

#include <optional>
#include <string>

#include "platform/linux/game_notes.h"
#include "platform/linux/user_directories.h"

namespace lv {

namespace {

constexpr std::string_view kDesktop = "XDG_DESKTOP_DIR";
constexpr std::string_view kHome = "$HOME";
constexpr std::string_view kBlanks = " \t";

std::string_view WithoutBlanks(std::string_view text) {
    const std::size_t start = text.find_first_not_of(kBlanks);
    return start == std::string_view::npos ? std::string_view() : text.substr(start);
}

// What stands between double quotes, as a shell reads it; nothing without them.
std::optional<std::string> Unquoted(std::string_view value) {
    if (!value.starts_with('"')) {
        return std::nullopt;
    }
    std::string text;
    for (std::size_t i = 1; i < value.size(); ++i) {
        if (value[i] == '"') {
            return text;
        }
        if (value[i] == '\\' && i + 1 < value.size()) {
            ++i;
        }
        text += value[i];
    }
    return std::nullopt;
}

// The value of the line if it is the key's.
std::optional<std::string> ValueIn(std::string_view line, std::string_view key) {
    line = WithoutBlanks(line);
    if (!line.starts_with(key)) {
        return std::nullopt;
    }
    line = WithoutBlanks(line.substr(key.size()));
    return line.starts_with('=') ? Unquoted(WithoutBlanks(line.substr(1))) : std::nullopt;
}

}  // namespace

std::filesystem::path DirectoryInUserDirs(std::string_view text, std::string_view key,
                                          const std::filesystem::path& home) {
    std::filesystem::path found;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        if (const auto value = ValueIn(text.substr(0, end), key)) {
            const bool isInHome = *value == kHome || value->starts_with(std::string(kHome) + '/');
            const std::filesystem::path path = isInHome
                                                   ? home / value->substr(std::min(kHome.size() + 1, value->size()))
                                                   : std::filesystem::path(*value);
            if (path.is_absolute()) {
                found = path.lexically_normal();
            }
        }
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    const auto withEnd = (home / "").lexically_normal();
    return found / "" == withEnd ? std::filesystem::path() : found;
}

std::filesystem::path DesktopDirectory() {
    const std::string noted = ReadNotes(HomePlace(".config/user-dirs.dirs").string());
    const bool isNoted = noted.find(kDesktop) != std::string::npos;
    return isNoted ? DirectoryInUserDirs(noted, kDesktop, HomeDirectory()) : HomeDirectory() / "Desktop";
}

}  // namespace lv
