#include "platform/windows/links.h"

#include "platform/windows/file_handle.h"

namespace lv {

namespace {

// Where the components begin: behind "C:\" or "\\?\C:\", behind the server and the share of another machine.
std::size_t EndOfRoot(const std::wstring& path) {
    const std::size_t colon = path.find(L":\\");
    if (colon != std::wstring::npos) {
        return colon + 2;
    }
    const std::size_t server = path.starts_with(L"\\\\?\\UNC\\") ? 8 : 2;
    const std::size_t share = path.find(L'\\', server);
    return share == std::wstring::npos ? path.size() : path.find(L'\\', share + 1);
}

}  // namespace

// Others of these marks are a file's own business: stored elsewhere, compressed.
bool IsLink(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) {
        return false;
    }
    WIN32_FIND_DATAW found{};
    const HANDLE find = FindFirstFileW(path.c_str(), &found);
    if (find == INVALID_HANDLE_VALUE) {
        return true;
    }
    FindClose(find);
    return found.dwReserved0 == IO_REPARSE_TAG_SYMLINK || found.dwReserved0 == IO_REPARSE_TAG_MOUNT_POINT;
}

std::optional<std::wstring> FollowAll(const std::wstring& path) {
    const FileHandle target(CreateFileW(path.c_str(), FILE_READ_ATTRIBUTES,
                                        FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                        FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    if (!target.IsOpen()) {
        return std::nullopt;
    }
    std::wstring found(GetFinalPathNameByHandleW(target.Get(), nullptr, 0, FILE_NAME_NORMALIZED), L'\0');
    found.resize(
        GetFinalPathNameByHandleW(target.Get(), found.data(), static_cast<DWORD>(found.size()), FILE_NAME_NORMALIZED));
    return found.empty() ? std::nullopt : std::optional(found);
}

bool HasLinkOnTheWay(const std::wstring& path) {
    std::size_t at = EndOfRoot(path);
    while (at < path.size()) {
        at = path.find(L'\\', at + 1);
        if (IsLink(path.substr(0, at))) {
            return true;
        }
    }
    return false;
}

bool LiesWithin(const std::wstring& path, const std::wstring& directory) {
    if (directory.empty() || directory.ends_with(L'\\') || path.size() < directory.size()) {
        return false;
    }
    const auto length = static_cast<int>(directory.size());
    const bool same = CompareStringOrdinal(path.c_str(), length, directory.c_str(), length, TRUE) == CSTR_EQUAL;
    return same && (path.size() == directory.size() || path[directory.size()] == L'\\');
}

std::wstring HomeDirectory() {
    std::wstring home(GetEnvironmentVariableW(L"USERPROFILE", nullptr, 0), L'\0');
    home.resize(GetEnvironmentVariableW(L"USERPROFILE", home.data(), static_cast<DWORD>(home.size())));
    return home;
}

}  // namespace lv
