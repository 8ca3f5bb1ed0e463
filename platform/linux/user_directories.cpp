#include "platform/linux/user_directories.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <string>

namespace lv {

namespace {

// The base directory rules have relative paths ignored.
std::filesystem::path Base(const char* variable, const char* fallback) {
    if (const char* set = std::getenv(variable); set != nullptr && *set == '/') {
        return set;
    }
    return HomeDirectory() / fallback;
}

}  // namespace

std::filesystem::path HomeDirectory() {
    if (const char* home = std::getenv("HOME"); home != nullptr && *home != '\0') {
        return home;
    }
    const passwd* entry = getpwuid(getuid());
    return entry != nullptr && entry->pw_dir != nullptr ? entry->pw_dir : "/";
}

std::filesystem::path HomePlace(std::string_view name) {
    constexpr std::string_view kConfig = ".config/";
    constexpr std::string_view kData = ".local/share/";
    if (name.starts_with(kConfig)) {
        return Base("XDG_CONFIG_HOME", ".config") / name.substr(kConfig.size());
    }
    if (name.starts_with(kData)) {
        return Base("XDG_DATA_HOME", ".local/share") / name.substr(kData.size());
    }
    return HomeDirectory() / name;
}

std::filesystem::path ConfigDirectory() {
    return Base("XDG_CONFIG_HOME", ".config") / "lorvane3d";
}

std::filesystem::path DataDirectory() {
    return Base("XDG_DATA_HOME", ".local/share") / "lorvane3d";
}

std::filesystem::path CacheDirectory() {
    return Base("XDG_CACHE_HOME", ".cache") / "lorvane3d";
}

std::filesystem::path StateDirectory() {
    return Base("XDG_STATE_HOME", ".local/state") / "lorvane3d";
}

std::filesystem::path WinePrefix() {
    return Base("WINEPREFIX", ".wine");
}

std::filesystem::path ProgramFileDirectory() {
    std::error_code failed;
    const auto self = std::filesystem::read_symlink("/proc/self/exe", failed);
    return failed ? std::filesystem::current_path(failed) : self.parent_path();
}

}  // namespace lv
