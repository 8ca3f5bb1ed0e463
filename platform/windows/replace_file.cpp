#include "platform/windows/replace_file.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "platform/windows/file_handle.h"
#include "platform/windows/file_read.h"
#include "platform/windows/system_error.h"

namespace lv {

namespace {

constexpr DWORD kMostAtOnce = 1u << 30;
constexpr DWORD kKeptAttributes =
    FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;

std::wstring DirectoryOf(const std::wstring& path) {
    return path.substr(0, path.rfind(L'\\') + 1);
}

// Where the links lead that the path ends in.
std::optional<std::wstring> FollowLinks(const std::wstring& path) {
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

// The access rights that the old file has of its own go to the new one, where the system lets them.
void KeepRights(const std::wstring& from, const std::wstring& to) {
    DWORD size = 0;
    GetFileSecurityW(from.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
    std::vector<std::byte> rights(size);
    if (size > 0 && GetFileSecurityW(from.c_str(), DACL_SECURITY_INFORMATION, rights.data(), size, &size) != 0) {
        SetFileSecurityW(to.c_str(), DACL_SECURITY_INFORMATION, rights.data());
    }
}

// The name that the new file has until it takes its place.
class NewFile {
  public:
    explicit NewFile(const std::wstring& directory) {
        const std::wstring start = directory + L".lv_666_" + std::to_wstring(GetCurrentProcessId()) + L"_";
        for (int i = 0; i < 1000 && !handle_; ++i) {
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
    ~NewFile() {
        handle_.reset();
        if (!path_.empty()) {
            DeleteFileW(path_.c_str());
        }
    }
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    [[nodiscard]] bool IsOpen() const { return handle_.has_value(); }
    [[nodiscard]] DWORD Failed() const { return failed_; }
    [[nodiscard]] HANDLE Get() const { return handle_->Get(); }
    [[nodiscard]] const std::wstring& Path() const { return path_; }
    bool Close() { return handle_->Close(); }

    // One step: the file system replaces the name in one of its own transactions.
    DWORD MoveTo(const std::wstring& target) {
        if (MoveFileExW(path_.c_str(), target.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) == 0) {
            return GetLastError();
        }
        path_.clear();
        return ERROR_SUCCESS;
    }

  private:
    std::wstring path_;
    std::optional<FileHandle> handle_;
    DWORD failed_ = ERROR_SUCCESS;
};

DWORD Fill(NewFile& made, const FileFiller& fill) {
    if (const DWORD failed = fill(made.Get())) {
        return failed;
    }
    return FlushFileBuffers(made.Get()) != 0 && made.Close() ? ERROR_SUCCESS : GetLastError();
}

}  // namespace

DWORD WriteAll(HANDLE file, std::string_view bytes) {
    while (!bytes.empty()) {
        const auto most = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), kMostAtOnce));
        DWORD written = 0;
        if (WriteFile(file, bytes.data(), most, &written, nullptr) == 0) {
            return GetLastError();
        }
        bytes.remove_prefix(written);
    }
    return ERROR_SUCCESS;
}

Error ReplaceSystemFile(const std::wstring& path, const FileFiller& fill) {
    std::wstring target = path;
    DWORD attributes = GetFileAttributesW(path.c_str());
    const bool exists = attributes != INVALID_FILE_ATTRIBUTES;
    if (exists && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
        const auto followed = FollowLinks(path);
        if (!followed) {
            return MakeError(error::kPathNotFound);
        }
        target = *followed;
        attributes = GetFileAttributesW(target.c_str());
    }
    if (exists && (attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY)) != 0) {
        return MakeError(error::kPathFileAccess);
    }
    const std::wstring directory = DirectoryOf(target);
    if (exists) {
        target = directory + NameAsFound(target);
    }
    NewFile made(directory);
    if (!made.IsOpen()) {
        return made.Failed() == ERROR_FILE_NOT_FOUND ? MakeError(error::kPathNotFound) : ErrorOfSystem(made.Failed());
    }
    if (const DWORD failed = Fill(made, fill)) {
        return ErrorOfSystem(failed);
    }
    if (exists) {
        KeepRights(target, made.Path());
        SetFileAttributesW(made.Path().c_str(), attributes & kKeptAttributes);
    }
    return ErrorOfSystem(made.MoveTo(target));
}

}  // namespace lv
