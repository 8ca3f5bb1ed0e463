#include "platform/windows/windows_shortcuts.h"

#include <algorithm>
#include <array>
#include <vector>

#include "platform/windows/command_line.h"
#include "platform/windows/icon_file.h"
#include "platform/windows/replace_file.h"
#include "platform/windows/said_path.h"
#include "platform/windows/shell_link.h"
#include "platform/windows/system_error.h"
#include "platform/windows/variable.h"
#include "platform/windows/wide_text.h"
// After windows.h, which it needs.
#include <knownfolders.h>
#include <shlobj.h>

namespace lv {

namespace {

constexpr std::size_t kLongestName = 100;
constexpr DWORD kLongestPath = 32768;
constexpr wchar_t kFirstPrintable = 0x20;
constexpr std::wstring_view kNotInNames = L"<>:\"/\\|?*";
constexpr std::wstring_view kDevices[] = {L"CON", L"PRN", L"AUX", L"NUL"};
constexpr std::wstring_view kNumberedDevices[] = {L"COM", L"LPT"};

bool IsSame(std::wstring_view a, std::wstring_view b) {
    return CompareStringOrdinal(a.data(), static_cast<int>(a.size()), b.data(), static_cast<int>(b.size()), TRUE) ==
           CSTR_EQUAL;
}

// With or without an ending.
bool IsDevice(std::wstring_view name) {
    const std::wstring_view stem = name.substr(0, name.find(L'.'));
    const auto isIt = [stem](std::wstring_view device) { return IsSame(stem, device); };
    const bool isNumbered = stem.size() == 4 && std::ranges::any_of(kNumberedDevices, [stem](std::wstring_view device) {
                                return IsSame(stem.substr(0, device.size()), device);
                            });
    return isNumbered || std::ranges::any_of(kDevices, isIt);
}

std::wstring KnownDirectory(const GUID& which) {
    PWSTR path = nullptr;
    const std::wstring directory =
        SUCCEEDED(SHGetKnownFolderPath(which, 0, nullptr, &path)) ? std::wstring(path) : std::wstring();
    CoTaskMemFree(path);
    return directory;
}

std::wstring ProgramFile() {
    std::wstring path(kLongestPath, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), kLongestPath));
    return path;
}

std::wstring LastPart(const std::wstring& path) {
    return path.substr(path.rfind(L'\\') + 1);
}

bool IsDirectory(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

std::wstring LineOf(const Shortcut& shortcut) {
    std::vector<std::wstring> words;
    std::ranges::transform(shortcut.Words, std::back_inserter(words), ToWide);
    return QuotedWords(words);
}

Error Put(const std::wstring& file, const std::string& bytes) {
    return ReplaceOwnSystemFile(file, [&bytes](HANDLE made) { return WriteAll(made, bytes); });
}

}  // namespace

ShortcutDirectories OwnShortcutDirectories() {
    const std::wstring data = Variable(L"LOCALAPPDATA");
    return {KnownDirectory(FOLDERID_Programs), KnownDirectory(FOLDERID_Desktop),
            data.empty() ? data : data + L"\\lorvane3d\\launchers", ProgramFile()};
}

std::wstring LinkNameOf(const std::string& name) {
    std::wstring safe = ToWide(name).substr(0, kLongestName);
    std::ranges::replace_if(
        safe, [](wchar_t c) { return c < kFirstPrintable || kNotInNames.find(c) != std::wstring_view::npos; }, L'_');
    const std::size_t end = safe.find_last_not_of(L". ");
    safe.resize(end == std::wstring::npos ? 0 : end + 1);
    return (safe.empty() || IsDevice(safe) ? L"_" : L"") + safe + L".lnk";
}

const std::wstring& WindowsShortcuts::DirectoryOf(ShortcutPlace place) const {
    return place == ShortcutPlace::Menu ? where_.Menu : where_.Desktop;
}

std::wstring WindowsShortcuts::FileOf(ShortcutPlace place, const Shortcut& shortcut) const {
    return DirectoryOf(place) + L"\\" + LinkNameOf(shortcut.Name);
}

std::string WindowsShortcuts::CaptionOf(ShortcutPlace place) {
    return place == ShortcutPlace::Menu ? "Start &Menu" : "&Desktop";
}

bool WindowsShortcuts::HasPlace(ShortcutPlace place) {
    return IsDirectory(DirectoryOf(place));
}

std::string WindowsShortcuts::PathOf(ShortcutPlace place, const Shortcut& shortcut) {
    return SayPath(FileOf(place, shortcut));
}

bool WindowsShortcuts::IsThere(ShortcutPlace place, const Shortcut& shortcut) {
    const auto link = HasPlace(place) ? ReadShellLink(FileOf(place, shortcut)) : std::nullopt;
    return link && IsSame(LastPart(link->Program), LastPart(where_.Program)) &&
           IsSame(link->Arguments, LineOf(shortcut));
}

Error WindowsShortcuts::PutPicture(const Shortcut& shortcut, std::wstring& path) const {
    if (shortcut.Pictures.empty() || where_.Pictures.empty()) {
        return {};
    }
    const int failed = SHCreateDirectoryExW(nullptr, where_.Pictures.c_str(), nullptr);
    if (failed != ERROR_SUCCESS && !IsDirectory(where_.Pictures)) {
        return ErrorOfSystem(static_cast<DWORD>(failed));
    }
    path = where_.Pictures + L"\\" + ToWide(shortcut.PictureName) + L".ico";
    return Put(path, IconFileOf(shortcut.Pictures));
}

Error WindowsShortcuts::Make(ShortcutPlace place, const Shortcut& shortcut) {
    if (!HasPlace(place)) {
        return MakeError(error::kPathNotFound);
    }
    const std::wstring file = FileOf(place, shortcut);
    if (GetFileAttributesW(file.c_str()) != INVALID_FILE_ATTRIBUTES && !IsThere(place, shortcut)) {
        return MakeError(error::kAlreadyOpen);
    }
    LinkFacts link{where_.Program, LineOf(shortcut), ToWide(shortcut.Comment), {}};
    if (Error failed = PutPicture(shortcut, link.Icon)) {
        return failed;
    }
    const Result<std::string> bytes = BytesOfShellLink(link);
    return bytes.Ok() ? Put(file, bytes.Value) : bytes.Fault;
}

Error WindowsShortcuts::Remove(ShortcutPlace place, const Shortcut& shortcut) {
    if (!IsThere(place, shortcut) || DeleteFileW(FileOf(place, shortcut).c_str()) != 0) {
        return {};
    }
    return ErrorOfSystem(GetLastError());
}

}  // namespace lv
