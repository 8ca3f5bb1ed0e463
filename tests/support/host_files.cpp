#include "tests/support/host_files.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <system_error>

#include "platform/code_page.h"

namespace lv {

namespace {

std::filesystem::path ChildBlindToCase(const std::filesystem::path& directory, std::string_view name) {
    const std::filesystem::path asSpelled = directory / ToUtf8(name);
    std::error_code failed;
    if (std::filesystem::exists(asSpelled, failed)) {
        return asSpelled;
    }
    for (const auto& entry : std::filesystem::directory_iterator(directory, failed)) {
        const auto spelled = FromUtf8(entry.path().filename().string());
        if (spelled && SameText(*spelled, name)) {
            return entry.path();
        }
    }
    return asSpelled;
}

class BytesInMemory : public RandomAccessFile {
  public:
    explicit BytesInMemory(std::string bytes) : bytes_(std::move(bytes)) {}
    [[nodiscard]] std::uint64_t Size() const override { return bytes_.size(); }
    Result<std::string> Read(std::uint64_t offset, std::size_t count) override {
        return offset >= bytes_.size() ? std::string() : bytes_.substr(static_cast<std::size_t>(offset), count);
    }

  private:
    std::string bytes_;
};

Error NotHere() {
    return MakeError(error::kInvalidCall, "not part of these files");
}

}  // namespace

std::vector<std::string> HostFiles::Drives() {
    std::vector<std::string> names;
    for (const auto& [letter, root] : drives_) {
        names.push_back(std::string(1, letter) + ":");
    }
    return names;
}

std::string HostFiles::ToHost(std::string_view path) {
    const std::string full = path.size() > 1 && path[1] == ':' ? std::string(path) : "C:\\" + std::string(path);
    const auto drive = drives_.find(UpperCase(full[0]));
    if (drive == drives_.end()) {
        return {};
    }
    std::filesystem::path host = drive->second;
    for (std::size_t at = 2; at < full.size();) {
        const std::size_t end = std::min(full.find('\\', at), full.size());
        if (end > at) {
            host = ChildBlindToCase(host, std::string_view(full).substr(at, end - at));
        }
        at = end + 1;
    }
    return host.string();
}

std::string HostFiles::FromHost(std::string_view hostPath) {
    for (const auto& [letter, root] : drives_) {
        const std::string above = root.string() + "/";
        if (hostPath.starts_with(above)) {
            std::string path = FromUtf8Lossy(hostPath.substr(above.size()));
            std::replace(path.begin(), path.end(), '/', '\\');
            return std::string(1, letter) + ":\\" + path;
        }
    }
    return {};
}

bool HostFiles::FileExists(std::string_view path) {
    std::error_code failed;
    return std::filesystem::is_regular_file(ToHost(path), failed);
}

bool HostFiles::IsPlainFile(std::string_view path) {
    std::error_code failed;
    return FileExists(path) && !std::filesystem::is_symlink(ToHost(path), failed);
}

bool HostFiles::DirectoryExists(std::string_view path) {
    std::error_code failed;
    return std::filesystem::is_directory(ToHost(path), failed);
}

Result<std::string> HostFiles::Read(std::string_view path) {
    if (!FileExists(path)) {
        return MakeError(error::kFileNotFound);
    }
    std::ifstream in(ToHost(path), std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}

Result<std::unique_ptr<RandomAccessFile>> HostFiles::Open(std::string_view path) {
    Result<std::string> bytes = Read(path);
    if (!bytes.Ok()) {
        return bytes.Fault;
    }
    return std::unique_ptr<RandomAccessFile>(std::make_unique<BytesInMemory>(std::move(bytes.Value)));
}

Error HostFiles::Replace(std::string_view path, std::string_view bytes) {
    std::ofstream out(ToHost(path), std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return out ? Error{} : MakeError(error::kPathFileAccess);
}

Error HostFiles::ProbeDrive(std::string_view drive) {
    return drives_.contains(UpperCase(drive[0])) ? Error{} : MakeError(error::kDeviceUnavailable);
}

Result<std::vector<DirectoryEntry>> HostFiles::List(std::string_view) {
    return NotHere();
}
Error HostFiles::Copy(std::string_view, std::string_view) {
    return NotHere();
}
bool HostFiles::CanWrite(std::string_view directory) {
    return DirectoryExists(directory);
}
Error HostFiles::Link(std::string_view, std::string_view) {
    return NotHere();
}
bool HostFiles::IsLinkTo(std::string_view, std::string_view) {
    return false;
}
std::string HostFiles::LeadsInto(std::string_view, std::string_view) {
    return {};
}
Error HostFiles::Delete(std::string_view) {
    return NotHere();
}
Error HostFiles::MakeDirectory(std::string_view) {
    return NotHere();
}
Error HostFiles::RemoveDirectory(std::string_view) {
    return NotHere();
}
Error HostFiles::ChangeDrive(std::string_view) {
    return NotHere();
}
Error HostFiles::ChangeDirectory(std::string_view) {
    return NotHere();
}

}  // namespace lv
