#include "platform/windows/replace_file.h"

#include <algorithm>
#include <vector>

#include "platform/windows/file_read.h"
#include "platform/windows/links.h"
#include "platform/windows/new_file.h"
#include "platform/windows/system_error.h"

namespace lv {

namespace {

constexpr DWORD kMostAtOnce = 1u << 30;
constexpr DWORD kNeverReplaced = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY;
constexpr DWORD kKeptAttributes =
    FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;

std::wstring DirectoryOf(const std::wstring& path) {
    return path.substr(0, path.rfind(L'\\') + 1);
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

DWORD Fill(NewFile& made, const FileFiller& fill) {
    if (const DWORD failed = fill(made.Get())) {
        return failed;
    }
    return FlushFileBuffers(made.Get()) != 0 && made.Close() ? ERROR_SUCCESS : GetLastError();
}

// The new file at exactly this name; with the attributes and rights of what was there, if those are given.
Error Put(std::wstring target, DWORD attributes, const FileFiller& fill) {
    const bool exists = attributes != INVALID_FILE_ATTRIBUTES;
    if (exists && (attributes & kNeverReplaced) != 0) {
        return MakeError(error::kPathFileAccess);
    }
    const std::wstring directory = DirectoryOf(target);
    if (exists) {
        target = directory + NameAsFound(target);
    }
    RemoveLeftovers(directory);
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
    const DWORD attributes = GetFileAttributesW(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) {
        return Put(path, attributes, fill);
    }
    const auto target = FollowAll(path);
    return target ? Put(*target, GetFileAttributesW(target->c_str()), fill) : MakeError(error::kPathNotFound);
}

Error ReplaceOwnSystemFile(const std::wstring& path, const FileFiller& fill) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    const bool exists = attributes != INVALID_FILE_ATTRIBUTES;
    if (exists && (attributes & kNeverReplaced) != 0) {
        return MakeError(error::kPathFileAccess);
    }
    return Put(exists ? DirectoryOf(path) + NameAsFound(path) : path, INVALID_FILE_ATTRIBUTES, fill);
}

}  // namespace lv
