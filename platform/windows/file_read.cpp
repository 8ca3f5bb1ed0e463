#include "platform/windows/file_read.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "platform/file_bytes.h"
#include "platform/windows/find_handle.h"
#include "platform/windows/system_error.h"
#include "platform/windows/wide_text.h"

namespace lv {

namespace {

constexpr DWORD kSharedWithAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr DWORD kMostAtOnce = 1u << 30;

Result<std::size_t> BytesRead(HANDLE file, char* room, std::size_t most, OVERLAPPED* place) {
    DWORD got = 0;
    if (ReadFile(file, room, static_cast<DWORD>(std::min<std::size_t>(most, kMostAtOnce)), &got, place) == 0 &&
        GetLastError() != ERROR_HANDLE_EOF) {
        return ErrorOfSystem(GetLastError());
    }
    return std::size_t{got};
}

class SystemFile : public RandomAccessFile {
  public:
    SystemFile(std::unique_ptr<FileHandle> file, std::uint64_t size) : file_(std::move(file)), size_(size) {}
    [[nodiscard]] std::uint64_t Size() const override { return size_; }

    Result<std::string> Read(std::uint64_t offset, std::size_t count) override {
        return ReadRange(size_, offset, count, [this](char* room, std::size_t most, std::uint64_t at) {
            OVERLAPPED place{};
            place.Offset = static_cast<DWORD>(at);
            place.OffsetHigh = static_cast<DWORD>(at >> 32);
            return BytesRead(file_->Get(), room, most, &place);
        });
    }

  private:
    std::unique_ptr<FileHandle> file_;
    std::uint64_t size_;
};

bool Inform(const std::wstring& path, BY_HANDLE_FILE_INFORMATION& info) {
    const FileHandle opened(CreateFileW(path.c_str(), FILE_READ_ATTRIBUTES, kSharedWithAll, nullptr, OPEN_EXISTING,
                                        FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    return opened.IsOpen() && GetFileInformationByHandle(opened.Get(), &info) != 0;
}

struct Listing {
    std::vector<DirectoryEntry> Entries = {{".", true}, {"..", true}};
    bool LeftOut = false;  // a name without a form in the code page, and without a short one that was asked for
};

std::optional<std::string> NameOf(const WIN32_FIND_DATAW& found) {
    auto name = FromWide(static_cast<const wchar_t*>(found.cFileName));
    if (!name) {
        name = FromWide(static_cast<const wchar_t*>(found.cAlternateFileName));
    }
    return name && !name->empty() ? name : std::nullopt;
}

Result<Listing> ListNames(const std::wstring& path, FINDEX_INFO_LEVELS level) {
    WIN32_FIND_DATAW found{};
    FindHandle find(path.ends_with(L'\\') ? path + L"*" : path + L"\\*", found, level);
    Listing listing;
    if (!find.IsOpen()) {
        const DWORD failed = GetLastError();
        const DWORD attributes = GetFileAttributesW(path.c_str());
        const bool isDirectory = attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
        // An empty drive has not even the two.
        return failed == ERROR_FILE_NOT_FOUND && isDirectory ? Result(std::move(listing)) : ErrorOfDirectory(failed);
    }
    do {
        const auto name = NameOf(found);
        if (!name) {
            listing.LeftOut = true;
        } else if (*name != "." && *name != "..") {
            listing.Entries.push_back({*name, (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0});
        }
    } while (find.Next(found));
    const DWORD failed = GetLastError();
    return failed == ERROR_NO_MORE_FILES ? Result(std::move(listing)) : ErrorOfSystem(failed);
}

}  // namespace

Result<std::unique_ptr<FileHandle>> OpenPlainFile(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        return MakeError(error::kPathFileAccess);
    }
    auto file = std::make_unique<FileHandle>(CreateFileW(path.c_str(), GENERIC_READ, kSharedWithAll, nullptr,
                                                         OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
    if (!file->IsOpen()) {
        return ErrorOfSystem(GetLastError());
    }
    if (GetFileType(file->Get()) != FILE_TYPE_DISK) {
        return MakeError(error::kPathFileAccess);
    }
    return file;
}

Result<std::string> ReadToEnd(HANDLE file) {
    LARGE_INTEGER told{};
    const bool sized = GetFileSizeEx(file, &told) != 0 && told.QuadPart > 0;
    return ReadWhole(
        sized ? static_cast<std::uint64_t>(told.QuadPart) : 0,
        [file](char* room, std::size_t most, std::uint64_t) { return BytesRead(file, room, most, nullptr); });
}

Result<std::unique_ptr<RandomAccessFile>> OpenPlainFileAnywhere(const std::wstring& path) {
    auto file = OpenPlainFile(path);
    if (!file.Ok()) {
        return file.Fault;
    }
    LARGE_INTEGER size{};
    if (GetFileSizeEx(file.Value->Get(), &size) == 0) {
        return ErrorOfSystem(GetLastError());
    }
    return std::unique_ptr<RandomAccessFile>(
        std::make_unique<SystemFile>(std::move(file.Value), static_cast<std::uint64_t>(size.QuadPart)));
}

Result<std::vector<DirectoryEntry>> ListSystemDirectory(const std::wstring& path) {
    auto listed = ListNames(path, FindExInfoBasic);
    // Only what has a name that cannot be said is worth the time that short names cost.
    if (listed.Ok() && listed.Value.LeftOut) {
        listed = ListNames(path, FindExInfoStandard);
    }
    return listed.Ok() ? Result(std::move(listed.Value.Entries)) : listed.Fault;
}

Result<std::uint64_t> IdentityOfDirectory(const std::wstring& path) {
    BY_HANDLE_FILE_INFORMATION info{};
    if (!Inform(path, info)) {
        return ErrorOfDirectory(GetLastError());
    }
    if ((info.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
        return MakeError(error::kPathNotFound);
    }
    constexpr std::uint64_t kSpread = 0x9E3779B97F4A7C15;  // odd, with its bits all over the word
    const std::uint64_t index = (static_cast<std::uint64_t>(info.nFileIndexHigh) << 32) | info.nFileIndexLow;
    return index ^ (info.dwVolumeSerialNumber * kSpread);
}

bool IsSameFile(const std::wstring& path, const std::wstring& other) {
    BY_HANDLE_FILE_INFORMATION one{};
    BY_HANDLE_FILE_INFORMATION two{};
    return Inform(path, one) && Inform(other, two) && (one.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0 &&
           one.dwVolumeSerialNumber == two.dwVolumeSerialNumber && one.nFileIndexHigh == two.nFileIndexHigh &&
           one.nFileIndexLow == two.nFileIndexLow;
}

std::wstring NameAsFound(const std::wstring& path) {
    std::wstring name = path.substr(path.rfind(L'\\') + 1);
    if (name.find_first_of(L"<>\"?*") != std::wstring::npos) {
        return name;
    }
    WIN32_FIND_DATAW found{};
    const FindHandle find(path, found, FindExInfoBasic);
    return find.IsOpen() ? std::wstring(found.cFileName) : name;
}

}  // namespace lv
