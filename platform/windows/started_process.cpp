#include "platform/windows/started_process.h"

#include <algorithm>
#include <cwchar>
#include <map>

#include "platform/windows/system.h"
#include "platform/windows/system_error.h"
#include "platform/windows/wide_text.h"

namespace lv {

namespace {

using Variables = std::vector<std::pair<std::wstring, std::wstring>>;

// The system keeps variables apart whatever the case of their names, and in the order of these.
struct BlindOrder {
    bool operator()(const std::wstring& a, const std::wstring& b) const {
        return CompareStringOrdinal(a.c_str(), -1, b.c_str(), -1, TRUE) == CSTR_LESS_THAN;
    }
};

std::wstring BlockWith(const Variables& more) {
    std::map<std::wstring, std::wstring, BlindOrder> all;
    wchar_t* const own = GetEnvironmentStringsW();
    for (const wchar_t* at = own; own != nullptr && *at != 0; at += std::wcslen(at) + 1) {
        const std::wstring entry = at;
        const std::size_t equals = entry.find(L'=', 1);  // "=C:=C:\\" is a drive's directory
        all[entry.substr(0, equals)] = equals == std::wstring::npos ? L"" : entry.substr(equals + 1);
    }
    FreeEnvironmentStringsW(own);
    for (const auto& [name, value] : more) {
        if (value.empty()) {
            all.erase(name);
        } else {
            all[name] = value;
        }
    }
    std::wstring block;
    for (const auto& [name, value] : all) {
        block += name;
        block += L'=';
        block += value;
        block += L'\0';
    }
    return block + L'\0';
}

// Of 100 nanoseconds.
double Ticks(const FILETIME& time) {
    return static_cast<double>(static_cast<unsigned long long>(time.dwHighDateTime) << 32 | time.dwLowDateTime);
}

}  // namespace

std::optional<double> StartedProcess::Lasted() const {
    constexpr double kTicksPerSecond = 1e7;
    FILETIME began{};
    FILETIME ended{};
    FILETIME kernel{};
    FILETIME user{};
    if (process_ == nullptr || WaitForSingleObject(process_, 0) != WAIT_OBJECT_0) {
        return std::nullopt;
    }
    const bool known = GetProcessTimes(process_, &began, &ended, &kernel, &user) != 0;
    return known ? std::max(Ticks(ended) - Ticks(began), 0.0) / kTicksPerSecond : 0;
}

void StartedProcess::Forget() {
    if (void* const process = std::exchange(process_, nullptr)) {
        CloseHandle(process);
    }
}

Result<StartedProcess> StartProcess(const std::wstring& program, std::wstring line, const std::wstring& directory,
                                    unsigned long flags, const Variables& environment) {
    STARTUPINFOW how{};
    how.cb = sizeof how;
    how.dwFlags = STARTF_USESHOWWINDOW;
    how.wShowWindow = SW_SHOWNORMAL;
    PROCESS_INFORMATION started{};
    std::wstring block = BlockWith(environment);
    if (CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, FALSE, flags | CREATE_UNICODE_ENVIRONMENT,
                       block.data(), directory.c_str(), &how, &started) == 0) {
        return StartError(GetLastError(), FromWideLossy(program));
    }
    CloseHandle(started.hThread);
    return StartedProcess(started.hProcess);
}

Error StartError(unsigned long failed, const std::string& about) {
    const bool notFound = failed == ERROR_FILE_NOT_FOUND || failed == ERROR_PATH_NOT_FOUND;
    const int number = notFound ? error::kFileNotFound : ErrorOfSystem(failed).Number;
    return {number, SystemText(failed) + ": " + about};
}

}  // namespace lv
