#include "platform/windows/full_path.h"

#include <algorithm>

#include "platform/code_page.h"
#include "platform/windows/system.h"
#include "platform/windows/wide_text.h"

namespace lv {

namespace {

// Directories stop 12 characters before MAX_PATH, so that an 8.3 name still fits behind them.
constexpr std::size_t kLongestPlain = MAX_PATH - 13;

bool IsSeparator(char c) {
    return c == '\\' || c == '/';
}

bool IsLetter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

// Takes the first component off the path, and the separator behind it.
std::string TakePart(std::string_view& path) {
    const auto end = std::find_if(path.begin(), path.end(), IsSeparator);
    std::string part(path.begin(), end);
    path.remove_prefix(std::min(part.size() + 1, path.size()));
    return part;
}

bool TakeShare(std::string_view& path, FullPath& taken) {
    path.remove_prefix(2);
    const std::string server = TakePart(path);
    const std::string share = TakePart(path);
    taken = {"\\\\" + server + "\\" + share, {}};
    return !server.empty() && !share.empty();
}

bool IsDevicePath(std::string_view root) {
    return root.starts_with("\\\\?\\") || root.starts_with("\\\\.\\");
}

}  // namespace

std::optional<FullPath> TakeApart(std::string_view path, const FullPath& current) {
    if (path.empty() || path.find('\0') != std::string_view::npos) {
        return std::nullopt;
    }
    FullPath taken = current;
    if (path.size() >= 2 && path[1] == ':' && IsLetter(path[0])) {
        taken = {std::string{UpperCase(path[0]), ':'}, {}};
        path.remove_prefix(2);
    } else if (path.size() >= 2 && IsSeparator(path[0]) && IsSeparator(path[1])) {
        if (!TakeShare(path, taken)) {
            return std::nullopt;
        }
    } else if (IsSeparator(path[0])) {
        taken.Parts.clear();
    }
    while (!path.empty()) {
        std::string part = TakePart(path);
        if (part == "..") {
            if (!taken.Parts.empty()) {
                taken.Parts.pop_back();
            }
        } else if (!part.empty() && part != ".") {
            taken.Parts.push_back(std::move(part));
        }
    }
    return taken;
}

std::string PutTogether(const FullPath& path) {
    std::string whole = path.Root;
    for (const std::string& part : path.Parts) {
        whole += "\\" + part;
    }
    return path.Parts.empty() && path.Root.ends_with(':') ? whole + "\\" : whole;
}

bool HasPlainNames(const FullPath& path) {
    return std::none_of(path.Parts.begin(), path.Parts.end(),
                        [](const std::string& part) { return part.find_first_of("<>:\"|?*") != std::string::npos; });
}

std::wstring SystemPath(const FullPath& path) {
    std::string whole = PutTogether(path);
    if (path.Parts.empty() && !whole.ends_with('\\')) {
        whole += '\\';
    }
    std::wstring wide = ToWide(whole);
    if (wide.size() < kLongestPlain || IsDevicePath(path.Root)) {
        return wide;
    }
    return path.Root.ends_with(':') ? L"\\\\?\\" + wide : L"\\\\?\\UNC\\" + wide.substr(2);
}

}  // namespace lv
