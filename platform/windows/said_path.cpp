#include "platform/windows/said_path.h"

#include <algorithm>

#include "platform/windows/find_handle.h"
#include "platform/windows/wide_text.h"

namespace lv {

namespace {

struct SaidPath {
    std::string Text;             // as far as it could be said
    std::size_t End = 0;          // of what Text says, in the system's path
    std::size_t EndOfUnsaid = 0;  // of the component behind that
    [[nodiscard]] bool IsWhole() const { return EndOfUnsaid == 0; }
};

SaidPath Say(const std::wstring& path, ShortNames names) {
    SaidPath said;
    while (said.End < path.size()) {
        const std::size_t end = std::min(path.find(L'\\', said.End), path.size());
        auto part = FromWide(path.substr(said.End, end - said.End));
        if (!part) {
            part = FromWide(names(path.substr(0, end)));
        }
        if (!part || (part->empty() && end > said.End)) {
            said.EndOfUnsaid = end;
            return said;
        }
        said.Text += *part + (end < path.size() ? "\\" : "");
        said.End = std::min(end + 1, path.size());
    }
    return said;
}

std::string DriveOf(const std::string& path) {
    return path.size() > 1 && path[1] == ':' ? path.substr(0, 2) : std::string();
}

}  // namespace

std::wstring ShortName(const std::wstring& path) {
    const std::wstring_view name = std::wstring_view(path).substr(path.rfind(L'\\') + 1);
    if (name.find_first_of(L"<>\"?*") != std::wstring_view::npos) {
        return {};  // a pattern
    }
    WIN32_FIND_DATAW found{};
    const FindHandle find(path, found, FindExInfoStandard);
    return find.IsOpen() ? std::wstring(static_cast<const wchar_t*>(found.cAlternateFileName)) : std::wstring();
}

std::optional<std::string> PathInCodePage(const std::wstring& systemPath, ShortNames names) {
    SaidPath said = Say(systemPath, names);
    return said.IsWhole() ? std::optional(std::move(said.Text)) : std::nullopt;
}

std::string SayPath(const std::wstring& systemPath, ShortNames names) {
    return PathInCodePage(systemPath, names).value_or(FromWideLossy(systemPath));
}

Error WhyNotSaid(const std::wstring& systemPath, ShortNames names) {
    const std::wstring unsaid = systemPath.substr(0, Say(systemPath, names).EndOfUnsaid);
    const std::string shown = FromWideLossy(systemPath);
    const std::string cannot = "These games can't read the letters that stand as ? here: " + shown + ". ";
    if (GetFileAttributesW(unsaid.c_str()) == INVALID_FILE_ATTRIBUTES) {
        return {error::kBadFileName, cannot + "Choose a name without them."};
    }
    const std::string drive = DriveOf(shown);
    if (drive.empty()) {
        return {error::kBadFileName, cannot + "That disk keeps no short name, like GAMES~1, to stand for them. " +
                                         "Rename the file or the directory."};
    }
    return {error::kBadFileName, cannot + "Drive " + drive + " keeps no short name, like GAMES~1, to stand for them. " +
                                     "Rename the file or the directory; or let the drive keep short names (as an "
                                     "administrator: fsutil 8dot3name set " +
                                     drive + " 0), and then rename it to something else and back."};
}

}  // namespace lv
