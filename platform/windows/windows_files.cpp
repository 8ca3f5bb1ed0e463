#include "platform/windows/windows_files.h"

#include <algorithm>
#include <array>
#include <utility>

#include "platform/code_page.h"
#include "platform/windows/file_handle.h"
#include "platform/windows/file_read.h"
#include "platform/windows/links.h"
#include "platform/windows/replace_file.h"
#include "platform/windows/system.h"
#include "platform/windows/system_error.h"
#include "platform/windows/wide_text.h"

namespace lv {

namespace {

// No server has such a name.
constexpr const char* kProgramRoot = "\\\\?\\lorvane3d";

// While this lives the system asks nobody to insert a disk: a drive that is not ready is an error.
class Quiet {
  public:
    Quiet() { SetThreadErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX, &before_); }
    ~Quiet() { SetThreadErrorMode(before_, nullptr); }
    Quiet(const Quiet&) = delete;
    Quiet& operator=(const Quiet&) = delete;

  private:
    DWORD before_ = 0;
};

bool EndsInSeparator(std::string_view path) {
    return path.ends_with('\\') || path.ends_with('/');
}

DWORD AttributesOf(const std::wstring& path) {
    const Quiet quiet;
    return GetFileAttributesW(path.c_str());
}

bool IsDirectoryAt(const std::wstring& path) {
    const DWORD attributes = AttributesOf(path);
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

std::wstring DriveRoot(char letter) {
    return {static_cast<wchar_t>(UpperCase(letter)), L':', L'\\'};
}

// Those of other machines are left out of a walk.
bool MayWalk(const FullPath& path) {
    return path.Root.ends_with(':') && GetDriveTypeW(DriveRoot(path.Root[0]).c_str()) != DRIVE_REMOTE;
}

DWORD CopyAll(HANDLE from, HANDLE to) {
    std::array<char, 65536> buffer{};
    for (std::uint64_t most = kLargestWholeFile; most >= buffer.size(); most -= buffer.size()) {
        DWORD got = 0;
        if (ReadFile(from, buffer.data(), static_cast<DWORD>(buffer.size()), &got, nullptr) == 0) {
            return GetLastError();
        }
        if (got == 0) {
            return ERROR_SUCCESS;
        }
        if (const DWORD failed = WriteAll(to, {buffer.data(), got})) {
            return failed;
        }
    }
    return ERROR_FILE_TOO_LARGE;  // it grows while it is read
}

FileFiller FillWith(std::string_view bytes) {
    return [bytes](HANDLE file) { return WriteAll(file, bytes); };
}

using Replacer = Error(const std::wstring& path, const FileFiller& fill);

Error CopyBy(Replacer* replace, const std::wstring& from, const std::wstring& to) {
    const auto file = OpenPlainFile(from);
    if (!file.Ok()) {
        return file.Fault;
    }
    LARGE_INTEGER size{};
    if (GetFileSizeEx(file.Value->Get(), &size) == 0) {
        return ErrorOfSystem(GetLastError());
    }
    if (static_cast<std::uint64_t>(size.QuadPart) > kLargestWholeFile) {
        return MakeTooLarge(kLargestWholeFile);
    }
    // An open file keeps its place: a copy onto itself has to let go of it first.
    return replace(to, [&](HANDLE made) {
        const DWORD failed = CopyAll(file.Value->Get(), made);
        file.Value->Close();
        return failed;
    });
}

std::wstring OwnCurrentDirectory() {
    std::wstring path(GetCurrentDirectoryW(0, nullptr), L'\0');
    path.resize(GetCurrentDirectoryW(static_cast<DWORD>(path.size()), path.data()));
    return path;
}

std::wstring OwnProgramFile() {
    std::wstring path(MAX_PATH, L'\0');
    while (true) {
        const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
        if (length < path.size()) {
            path.resize(length);
            // Wine leaves the start out of a path that lies on no drive.
            return path.starts_with(L"unix\\") ? L"\\\\?\\" + path : path;
        }
        path.resize(path.size() * 2);
    }
}

// Without the prefix that long paths are reached by.
std::wstring WithoutPrefix(std::wstring path) {
    if (path.starts_with(L"\\\\?\\UNC\\")) {
        return L"\\\\" + path.substr(8);
    }
    return path.starts_with(L"\\\\?\\") && path.size() > 5 && path[5] == L':' ? path.substr(4) : path;
}

// Of a file. A drive's root keeps its "\".
std::wstring DirectoryOf(const std::wstring& file) {
    const std::wstring directory = file.substr(0, file.rfind(L'\\'));
    return directory.ends_with(L':') ? directory + L"\\" : directory;
}

std::optional<std::wstring> WideOfHost(std::string_view hostPath) {
    auto wide = WideFromUtf8(hostPath);
    if (!wide || wide->empty() || hostPath.find('\0') != std::string_view::npos) {
        return std::nullopt;
    }
    std::replace(wide->begin(), wide->end(), L'/', L'\\');
    return WithoutPrefix(*std::move(wide));
}

}  // namespace

WindowsFiles::WindowsFiles() : WindowsFiles(DirectoryOf(WithoutPrefix(OwnProgramFile())), ShortName) {}

WindowsFiles::WindowsFiles(std::wstring programDirectory, ShortNames names)
    : program_(std::move(programDirectory)), names_(names), current_{"C:", {}} {
    const auto said = PathInCodePage(WithoutPrefix(OwnCurrentDirectory()), names_);
    auto started = said ? TakeApart(*said, current_) : std::nullopt;
    if (started && IsDirectoryAt(SystemPath(*started))) {
        current_ = *std::move(started);
    }
}

std::wstring WindowsFiles::System(const FullPath& path) const {
    if (path.Root != kProgramRoot) {
        return SystemPath(path);
    }
    std::wstring whole = program_;
    for (const std::string& part : path.Parts) {
        whole += L"\\" + ToWide(part);
    }
    return whole;
}

std::optional<WindowsFiles::Place> WindowsFiles::Find(std::string_view path) const {
    auto taken = TakeApart(path, current_);
    if (!taken) {
        return std::nullopt;
    }
    std::wstring system = System(*taken);
    return Place{*std::move(taken), std::move(system)};
}

// Of what is to be opened, made or deleted: one thing, never what a pattern finds.
Result<WindowsFiles::Place> WindowsFiles::FindNamed(std::string_view path) const {
    auto place = Find(path);
    if (!place) {
        return MakeError(error::kPathNotFound);
    }
    if (!HasPlainNames(place->Path)) {
        return MakeError(error::kBadFileName);
    }
    return *std::move(place);
}

std::vector<std::string> WindowsFiles::Drives() {
    std::vector<std::string> drives;
    const DWORD there = GetLogicalDrives();
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        if ((there >> (letter - 'A') & 1u) != 0) {
            drives.push_back({letter, ':'});
        }
    }
    return drives;
}

Error WindowsFiles::ProbeDrive(std::string_view drive) {
    const auto taken = TakeApart(drive, current_);
    const bool isLetter = drive.size() >= 2 && drive[1] == ':' && taken;
    if (!isLetter || GetDriveTypeW(DriveRoot(drive[0]).c_str()) == DRIVE_NO_ROOT_DIR) {
        return MakeError(error::kDeviceUnavailable);
    }
    return IsDirectoryAt(DriveRoot(drive[0])) ? Error() : MakeError(error::kDiskNotReady);
}

bool WindowsFiles::FileExists(std::string_view path) {
    const auto place = Find(path);
    if (!place || EndsInSeparator(path)) {
        return false;
    }
    const DWORD attributes = AttributesOf(place->System);
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

bool WindowsFiles::DirectoryExists(std::string_view path) {
    const auto place = Find(path);
    return place && IsDirectoryAt(place->System);
}

bool WindowsFiles::IsPlainFile(std::string_view path) {
    const Quiet quiet;
    const auto place = FindNamed(path);
    return place.Ok() && FileExists(path) && !IsLink(place.Value.System);
}

Result<std::vector<DirectoryEntry>> WindowsFiles::List(std::string_view directory) {
    const Quiet quiet;
    const auto place = Find(directory);
    return place ? ListSystemDirectory(place->System) : MakeError(error::kPathNotFound);
}

Result<WalkedDirectory> WindowsFiles::ListForWalk(std::string_view directory) {
    const Quiet quiet;
    const auto place = Find(directory);
    if (!place) {
        return MakeError(error::kPathNotFound);
    }
    const auto identity = IdentityOfDirectory(place->System);
    if (!identity.Ok()) {
        return identity.Fault;
    }
    if (!MayWalk(place->Path)) {
        return MakeError(error::kPathFileAccess);
    }
    auto listed = ListSystemDirectory(place->System);
    if (!listed.Ok()) {
        return listed.Fault;
    }
    return WalkedDirectory{identity.Value, std::move(listed.Value)};
}

Result<std::string> WindowsFiles::Read(std::string_view path) {
    const Quiet quiet;
    const auto place = FindNamed(path);
    if (!place.Ok()) {
        return place.Fault;
    }
    const auto file = OpenPlainFile(place.Value.System);
    return file.Ok() ? ReadToEnd(file.Value->Get()) : file.Fault;
}

Result<std::unique_ptr<RandomAccessFile>> WindowsFiles::Open(std::string_view path) {
    const Quiet quiet;
    const auto place = FindNamed(path);
    if (!place.Ok()) {
        return place.Fault;
    }
    return OpenPlainFileAnywhere(place.Value.System);
}

Result<WindowsFiles::Place> WindowsFiles::FindToWrite(std::string_view path) const {
    auto place = FindNamed(path);
    const bool isFile = !EndsInSeparator(path) && !place.Value.Path.Parts.empty();
    return !place.Ok() || isFile ? place : MakeError(error::kPathFileAccess);
}

Error WindowsFiles::Replace(std::string_view path, std::string_view bytes) {
    const Quiet quiet;
    const auto place = FindToWrite(path);
    return place.Ok() ? ReplaceSystemFile(place.Value.System, FillWith(bytes)) : place.Fault;
}

Error WindowsFiles::ReplaceOwn(std::string_view path, std::string_view bytes) {
    const Quiet quiet;
    const auto place = FindToWrite(path);
    return place.Ok() ? ReplaceOwnSystemFile(place.Value.System, FillWith(bytes)) : place.Fault;
}

Error WindowsFiles::Copy(std::string_view from, std::string_view to) {
    const Quiet quiet;
    const auto source = FindNamed(from);
    const auto target = FindToWrite(to);
    if (!source.Ok() || !target.Ok()) {
        return source.Ok() ? target.Fault : source.Fault;
    }
    return CopyBy(ReplaceSystemFile, source.Value.System, target.Value.System);
}

Error WindowsFiles::CopyOwn(std::string_view from, std::string_view to) {
    const Quiet quiet;
    const auto source = FindNamed(from);
    const auto target = FindToWrite(to);
    if (!source.Ok() || !target.Ok()) {
        return source.Ok() ? target.Fault : source.Fault;
    }
    return CopyBy(ReplaceOwnSystemFile, source.Value.System, target.Value.System);
}

std::string WindowsFiles::LeadsAway(std::string_view path, std::string_view tree) {
    const Quiet quiet;
    const auto place = Find(path);
    const auto target = place && HasLinkOnTheWay(place->System) ? FollowAll(place->System) : std::nullopt;
    if (!target) {
        return {};  // no link, or one to nothing, which no write makes
    }
    const auto tree_ = Find(tree);
    for (const std::wstring& directory : {HomeDirectory(), tree_ ? tree_->System : std::wstring()}) {
        const auto real = directory.empty() ? std::nullopt : FollowAll(directory);
        if (real && LiesWithin(*target, *real)) {
            return {};
        }
    }
    return SayPath(WithoutPrefix(*target));
}

bool WindowsFiles::CanWrite(std::string_view directory) {
    const Quiet quiet;
    const auto place = Find(directory);
    if (!place || !IsDirectoryAt(place->System)) {
        return false;
    }
    const FileHandle opened(CreateFileW(place->System.c_str(), FILE_ADD_FILE,
                                        FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                        FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    return opened.IsOpen();
}

Error WindowsFiles::Link(std::string_view target, std::string_view path) {
    const Quiet quiet;
    const auto file = FindNamed(target);
    const auto place = FindToWrite(path);
    if (!file.Ok() || !place.Ok()) {
        return file.Ok() ? place.Fault : file.Fault;
    }
    const DWORD attributes = AttributesOf(file.Value.System);
    if (attributes == INVALID_FILE_ATTRIBUTES) {
        return ErrorOfSystem(GetLastError());
    }
    if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        return MakeError(error::kPathFileAccess);
    }
    if (CreateHardLinkW(place.Value.System.c_str(), file.Value.System.c_str(), nullptr) != 0) {
        return {};
    }
    // The file itself is there, as was just seen.
    const DWORD failed = GetLastError();
    return failed == ERROR_FILE_NOT_FOUND ? MakeError(error::kPathNotFound) : ErrorOfSystem(failed);
}

bool WindowsFiles::IsLinkTo(std::string_view path, std::string_view target) {
    const Quiet quiet;
    const auto place = Find(path);
    const auto file = Find(target);
    return place && file && !SameText(PutTogether(place->Path), PutTogether(file->Path)) &&
           IsSameFile(place->System, file->System);
}

Error WindowsFiles::Delete(std::string_view path) {
    const auto place = FindNamed(path);
    if (!place.Ok()) {
        return place.Fault;
    }
    const DWORD attributes = AttributesOf(place.Value.System);
    if (attributes == INVALID_FILE_ATTRIBUTES) {
        return ErrorOfSystem(GetLastError());
    }
    if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        return MakeError(error::kFileNotFound);
    }
    if ((attributes & FILE_ATTRIBUTE_READONLY) != 0) {
        return MakeError(error::kPathFileAccess);
    }
    const Quiet quiet;
    return DeleteFileW(place.Value.System.c_str()) != 0 ? Error() : ErrorOfSystem(GetLastError());
}

Error WindowsFiles::MakeDirectory(std::string_view path) {
    const Quiet quiet;
    const auto place = FindNamed(path);
    if (!place.Ok()) {
        return place.Fault;
    }
    if (CreateDirectoryW(place.Value.System.c_str(), nullptr) != 0) {
        return {};
    }
    const DWORD failed = GetLastError();
    return failed == ERROR_FILE_NOT_FOUND ? MakeError(error::kPathNotFound) : ErrorOfSystem(failed);
}

Error WindowsFiles::RemoveDirectory(std::string_view path) {
    const auto place = Find(path);
    if (!place || !IsDirectoryAt(place->System)) {
        return MakeError(error::kPathNotFound);
    }
    if (place->Path.Parts.empty()) {
        return MakeError(error::kPathFileAccess);
    }
    const Quiet quiet;
    return RemoveDirectoryW(place->System.c_str()) != 0 ? Error() : ErrorOfSystem(GetLastError());
}

Error WindowsFiles::ChangeDrive(std::string_view drive) {
    if (drive.starts_with("\\\\")) {
        return {};  // a network's path has no drive to go to; the directory says all
    }
    if (Error failed = ProbeDrive(drive)) {
        return failed;
    }
    const std::string root = {UpperCase(drive[0]), ':'};
    if (root != current_.Root) {
        current_ = {root, {}};
    }
    return {};
}

Error WindowsFiles::ChangeDirectory(std::string_view path) {
    const auto place = Find(path);
    if (!place || !IsDirectoryAt(place->System)) {
        return MakeError(error::kPathNotFound);
    }
    FullPath found = {place->Path.Root, {}};
    for (const std::string& part : place->Path.Parts) {
        found.Parts.push_back(part);
        found.Parts.back() = FromWide(NameAsFound(System(found))).value_or(part);
    }
    current_ = std::move(found);
    return {};
}

std::string WindowsFiles::ProgramDirectory() {
    return PathInCodePage(program_, names_).value_or(kProgramRoot);
}

std::string WindowsFiles::ToHost(std::string_view path) {
    const auto taken = TakeApart(path, current_);
    if (!taken) {
        return {};
    }
    return taken->Root == kProgramRoot ? Utf8FromWide(System(*taken)).value_or("") : ToUtf8(PutTogether(*taken));
}

std::string WindowsFiles::FromHost(std::string_view hostPath) {
    const auto wide = WideOfHost(hostPath);
    const auto said = wide ? PathInCodePage(*wide, names_) : std::nullopt;
    const bool isWhole = said && said->size() > 2 && ((*said)[1] == ':' || said->starts_with("\\\\"));
    const auto taken = isWhole ? TakeApart(*said, current_) : std::nullopt;
    return taken ? PutTogether(*taken) : std::string();
}

Error WindowsFiles::WhyNotFromHost(std::string_view hostPath) {
    const auto wide = WideOfHost(hostPath);
    return !wide || PathInCodePage(*wide, names_) ? Files::WhyNotFromHost(hostPath) : WhyNotSaid(*wide, names_);
}

std::string WindowsFiles::UserHome() {
    return PathInCodePage(HomeDirectory(), names_).value_or("");
}

}  // namespace lv
