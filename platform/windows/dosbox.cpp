#include "platform/windows/dosbox.h"

#include <algorithm>
#include <array>
#include <vector>

#include "platform/code_page.h"
#include "platform/starting/dosbox_start_up.h"
#include "platform/windows/command_line.h"
#include "platform/windows/said_path.h"
#include "platform/windows/started_process.h"
#include "platform/windows/system.h"
#include "platform/windows/system_error.h"
#include "platform/windows/variable.h"
#include "platform/windows/wide_text.h"

namespace lv {

namespace {

constexpr const wchar_t* kPrograms[] = {L"dosbox.exe", L"dosbox-x.exe", L"dosbox-staging.exe"};
// Each installs into a directory that begins so, with or without its version behind it.
constexpr const wchar_t* kDirectories[] = {L"DOSBox*", L"DOSBox-X*", L"DOSBox Staging*"};
constexpr const wchar_t* kVariables[] = {L"ProgramFiles", L"ProgramFiles(x86)", L"ProgramW6432", L"LOCALAPPDATA"};

bool IsFile(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

// The current directory, where a game may lie, is not looked at.
std::wstring OnPath() {
    const std::wstring path = Variable(L"PATH");
    for (const wchar_t* const program : kPrograms) {
        std::array<wchar_t, MAX_PATH> found{};
        const DWORD length =
            SearchPathW(path.c_str(), program, nullptr, static_cast<DWORD>(found.size()), found.data(), nullptr);
        if (length > 0 && length < found.size()) {
            return {found.data(), length};
        }
    }
    return {};
}

std::wstring ProgramIn(const std::wstring& directory) {
    for (const wchar_t* const program : kPrograms) {
        if (IsFile(directory + L"\\" + program)) {
            return directory + L"\\" + program;
        }
    }
    return {};
}

std::wstring InstalledIn(const std::wstring& root, const wchar_t* pattern) {
    WIN32_FIND_DATAW entry{};
    const HANDLE search = FindFirstFileW((root + L"\\" + pattern).c_str(), &entry);
    if (search == INVALID_HANDLE_VALUE) {
        return {};
    }
    std::wstring found;
    do {
        found = ProgramIn(root + L"\\" + static_cast<const wchar_t*>(entry.cFileName));
    } while (found.empty() && FindNextFileW(search, &entry) != 0);
    FindClose(search);
    return found;
}

// DOSBox and its family do not agree on what a letter beyond ASCII is: a short name has none.
std::string PlainPath(const std::string& host) {
    const std::wstring path = WideFromUtf8(host).value_or(std::wstring());
    std::array<wchar_t, MAX_PATH> shorter{};
    const DWORD length = GetShortPathNameW(path.c_str(), shorter.data(), static_cast<DWORD>(shorter.size()));
    const bool plain = std::ranges::all_of(path, [](wchar_t c) { return c < 0x80; });
    return plain || length == 0 || length >= shorter.size() ? host
                                                            : FromWideLossy(std::wstring_view(shorter.data(), length));
}

std::wstring TemporaryFile() {
    std::array<wchar_t, MAX_PATH + 1> directory{};
    const DWORD length = GetTempPathW(static_cast<DWORD>(directory.size()), directory.data());
    return length == 0 || length >= directory.size() ? std::wstring()
                                                     : std::wstring(directory.data(), length) + L"dosbox_lv_666.conf";
}

}  // namespace

bool RunsDosPrograms() {
    SYSTEM_INFO system{};
    GetNativeSystemInfo(&system);
    return system.wProcessorArchitecture == PROCESSOR_ARCHITECTURE_INTEL;
}

std::wstring FindDosBox() {
    if (std::wstring found = OnPath(); !found.empty()) {
        return found;
    }
    for (const wchar_t* const variable : kVariables) {
        const std::wstring root = Variable(variable);
        for (const wchar_t* const below : {L"", L"\\Programs"}) {
            for (const wchar_t* const pattern : kDirectories) {
                std::wstring found = root.empty() ? std::wstring() : InstalledIn(root + below, pattern);
                if (!found.empty()) {
                    return found;
                }
            }
        }
    }
    return {};
}

Result<StartedProcess> StartInDosBox(Files& disk, const BatchGame& game) {
    const std::wstring dosbox = FindDosBox();
    if (dosbox.empty()) {
        return Error{
            error::kFileNotFound,
            "This is a DOS program, which Windows cannot start by itself any more: " + game.Game.Program.Path +
                ". Install DOSBox, DOSBox Staging or DOSBox-X, and start the game again; or pick a program of the "
                "game that is made for Windows."};
    }
    const Result<std::string> text =
        DosBoxConfiguration(game, [&disk](std::string_view path) { return PlainPath(disk.ToHost(path)); });
    if (!text.Ok()) {
        return text.Fault;
    }
    const std::wstring file = TemporaryFile();
    const auto path = PathInCodePage(file);
    if (!path) {
        return MakeError(error::kPathNotFound, SayPath(file));
    }
    if (Error fault = disk.ReplaceOwn(*path, text.Value)) {
        return fault;
    }
    const std::wstring line = L"\"" + dosbox + L"\" " + QuotedWords({L"-userconf", L"-conf", file});
    return StartProcess(dosbox, line, ToWide(game.Directory), 0);
}

}  // namespace lv
