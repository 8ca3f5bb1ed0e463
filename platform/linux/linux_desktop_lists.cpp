#include "platform/linux/linux_desktop_lists.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <filesystem>

#include "platform/code_page.h"
#include "platform/linux/files/errno_error.h"
#include "platform/linux/files/host_read.h"
#include "platform/linux/files/replace_file.h"
#include "platform/linux/user_directories.h"

namespace lv {

namespace {

namespace fs = std::filesystem;

constexpr unsigned kListMode = 0644;
constexpr std::size_t kMostDesktops = 8;

fs::path DefaultsPath(std::string_view before = {}) {
    return HomePlace(".config/" + std::string(before) + "mimeapps.list");
}

fs::path EntryPath(std::string_view name) {
    return HomePlace(".local/share/applications/" + std::string(name));
}

Error At(const fs::path& path, const Error& failed) {
    return failed ? MakeError(failed.Number, FromUtf8Lossy(path.string())) : Error();
}

// Empty if there is none.
Result<std::string> ReadList(const fs::path& path) {
    const auto file = OpenHostFileAnywhere(path.string());
    if (!file.Ok()) {
        const int number = file.Fault.Number;
        return number == error::kFileNotFound || number == error::kPathNotFound
                   ? Result<std::string>(std::string())
                   : Result<std::string>(At(path, file.Fault));
    }
    if (file.Value->Size() > kLongestDesktopList) {
        return At(path, MakeError(error::kOutOfMemory));
    }
    auto text = file.Value->Read(0, static_cast<std::size_t>(file.Value->Size()));
    return text.Ok() ? std::move(text) : Result<std::string>(At(path, text.Fault));
}

FileFiller Filling(std::string_view text) {
    return [text](int file) { return WriteAll(file, text); };
}

// What is in the way shows when a file is written there.
void MakeDirectoryOf(const fs::path& path) {
    std::error_code failed;
    fs::create_directories(path.parent_path(), failed);
}

}  // namespace

bool IsReadByTheDesktop() {
    std::error_code failed;
    return !fs::exists("/.flatpak-info", failed) && std::getenv("SNAP") == nullptr;
}

Result<std::string> LinuxDesktopLists::Defaults() {
    return ReadList(DefaultsPath());
}

Error LinuxDesktopLists::SetDefaults(std::string_view text) {
    const fs::path path = DefaultsPath();
    MakeDirectoryOf(path);
    return At(path, ReplaceHostFile(path.string(), kListMode, Filling(text)));
}

std::vector<std::string> LinuxDesktopLists::StrongerDefaults() {
    const char* const set = std::getenv("XDG_CURRENT_DESKTOP");
    std::string_view names = set != nullptr ? set : "";
    std::vector<std::string> lists;
    for (std::size_t count = 0; !names.empty() && count < kMostDesktops; ++count) {
        const std::string_view name = names.substr(0, names.find(':'));
        names.remove_prefix(std::min(name.size() + 1, names.size()));
        if (!name.empty() && name.find('/') == std::string_view::npos) {
            if (auto list = ReadList(DefaultsPath(LowerCase(name) + "-")); !list.Value.empty()) {
                lists.push_back(std::move(list.Value));
            }
        }
    }
    return lists;
}

Result<std::string> LinuxDesktopLists::Entry(std::string_view name) {
    return ReadList(EntryPath(name));
}

Error LinuxDesktopLists::SetEntry(std::string_view name, std::string_view text) {
    const fs::path path = EntryPath(name);
    MakeDirectoryOf(path);
    return At(path, ReplaceOwnHostFile(path.string(), Filling(text)));
}

Error LinuxDesktopLists::RemoveEntry(std::string_view name) {
    const fs::path path = EntryPath(name);
    return unlink(path.c_str()) == 0 || errno == ENOENT || errno == ENOTDIR ? Error() : At(path, ErrorOf(errno));
}

std::string LinuxDesktopLists::ProgramFile() {
    return (ProgramFileDirectory() / "lorvane3d").string();
}

}  // namespace lv
