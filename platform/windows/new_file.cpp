#include "platform/windows/new_file.h"

#include <algorithm>
#include <cwchar>
#include <string_view>

namespace lv {

namespace {

constexpr std::wstring_view kStart = L".lv_666_";
constexpr int kMostNames = 1000;  // of one process in one directory

bool IsNumber(std::wstring_view text) {
    return !text.empty() && text.size() < 11 &&
           std::all_of(text.begin(), text.end(), [](wchar_t c) { return c >= L'0' && c <= L'9'; });
}

// The process that such a name tells of.
std::optional<DWORD> WriterOf(std::wstring_view name) {
    if (!name.starts_with(kStart)) {
        return std::nullopt;
    }
    name.remove_prefix(kStart.size());
    const std::size_t bar = std::min(name.find(L'_'), name.size());
    const std::wstring writer(name.substr(0, bar));
    if (!IsNumber(writer) || bar == name.size() || !IsNumber(name.substr(bar + 1))) {
        return std::nullopt;
    }
    return static_cast<DWORD>(std::wcstoull(writer.c_str(), nullptr, 10));
}

// This process makes one file at a time: one of its number that is there before it begins is an older process's. One
// that has ended may still be known while somebody holds on to it.
bool IsGone(DWORD writer) {
    if (writer == GetCurrentProcessId()) {
        return true;
    }
    const FileHandle process(OpenProcess(SYNCHRONIZE, FALSE, writer));
    return process.IsOpen() ? WaitForSingleObject(process.Get(), 0) == WAIT_OBJECT_0
                            : GetLastError() == ERROR_INVALID_PARAMETER;
}

}  // namespace

NewFile::NewFile(const std::wstring& directory) {
    const std::wstring start = directory + std::wstring(kStart) + std::to_wstring(GetCurrentProcessId()) + L"_";
    for (int i = 0; i < kMostNames && !handle_; ++i) {
        path_ = start + std::to_wstring(i);
        handle_.emplace(
            CreateFileW(path_.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
        if (handle_->IsOpen()) {
            return;
        }
        failed_ = GetLastError();
        handle_.reset();
        if (failed_ != ERROR_FILE_EXISTS && failed_ != ERROR_ALREADY_EXISTS) {
            break;
        }
    }
    path_.clear();
}

NewFile::~NewFile() {
    handle_.reset();
    if (!path_.empty()) {
        DeleteFileW(path_.c_str());
    }
}

DWORD NewFile::MoveTo(const std::wstring& target) {
    if (MoveFileExW(path_.c_str(), target.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) == 0) {
        return GetLastError();
    }
    path_.clear();
    return ERROR_SUCCESS;
}

void RemoveLeftovers(const std::wstring& directory) {
    WIN32_FIND_DATAW found{};
    const HANDLE find = FindFirstFileW((directory + std::wstring(kStart) + L"*").c_str(), &found);
    if (find == INVALID_HANDLE_VALUE) {
        return;
    }
    do {
        const auto writer = WriterOf(found.cFileName);
        constexpr DWORD kNoFile = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
        if (writer && (found.dwFileAttributes & kNoFile) == 0 && IsGone(*writer)) {
            DeleteFileW((directory + found.cFileName).c_str());  // refused where a writer has it open
        }
    } while (FindNextFileW(find, &found) != 0);
    FindClose(find);
}

}  // namespace lv
