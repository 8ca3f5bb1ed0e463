// bench/real_program.h
//
// The program itself, in a home of its own in which a start asks nothing: not the first run, and one game that is
// there.

#pragma once

#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "platform/linux/settings/sqlite_settings.h"

namespace lv {

inline pid_t Spawn(const std::filesystem::path& program) {
    const pid_t child = fork();
    if (child == 0) {
        const int nothing = open("/dev/null", O_RDWR);
        dup2(nothing, 1);
        dup2(nothing, 2);
        execl(program.c_str(), program.c_str(), nullptr);
        _exit(127);
    }
    return child;
}

inline bool Shell(const std::string& command) {
    return std::system((command + " >/dev/null 2>&1").c_str()) == 0;  // NOLINT
}

/// A window whose title is that regular expression.
inline bool WindowIsThere(const std::string& title) {
    return Shell("xdotool search --onlyvisible --name '" + title + "'");
}

// The splash is called "Lorvane 3D"; only the main window's title starts with three blanks.
inline constexpr const char* kMainTitle = "^   Lorvane 3D$";

/// Makes the home anew and has the program use it; false if that fails. `script` is what the game's one script says.
inline bool PrepareHome(const std::string& script) {
    namespace fs = std::filesystem;
    const fs::path home = fs::path(LV_BINARY_DIR) / "bench_home";
    setenv("XDG_CONFIG_HOME", (home / "config").c_str(), 1);
    setenv("XDG_DATA_HOME", (home / "data").c_str(), 1);
    setenv("XDG_CACHE_HOME", (home / "cache").c_str(), 1);
    fs::remove_all(home);
    const fs::path ours = home / "data/lorvane3d";
    fs::create_directories(ours / "drives");
    fs::create_directories(ours / "drive_c/quake/id1");
    fs::create_directory_symlink("../drive_c", ours / "drives/c:");
    fs::create_directory_symlink("/", ours / "drives/z:");
    std::ofstream(ours / "drive_c/quake/quake.exe") << "a game in name only";
    std::ofstream(ours / "drive_c/quake/id1/my.cfg", std::ios::binary) << script;
    auto store = SqliteSettings::Open(home / "config/lorvane3d/settings.sqlite");
    return store.Ok() && !store.Value->Write("Lorvane 3D", "LV-Stuff", "FirstTime", "0") &&
           !store.Value->Write("Lorvane 3D", "LV-Stuff", "VP_Version", "1") &&
           !store.Value->Write("Lorvane 3D", "LV-Stuff", "NVC_Version", "1") &&
           !store.Value->Write("Lorvane 3D", "Options", "Executables", "Quake;c:\\quake\\quake.exe") &&
           !store.Value->Write("Lorvane 3D", "Options", "Scripts", "My script;c:\\quake\\id1\\my.cfg");
}

inline double ResidentMegabytes(pid_t process) {
    std::ifstream status("/proc/" + std::to_string(process) + "/status");
    std::string word;
    while (status >> word) {
        if (word == "VmRSS:") {
            double kilobytes = 0;
            status >> kilobytes;
            return kilobytes / 1024;
        }
    }
    return 0;
}

inline void End(pid_t process) {
    kill(process, SIGTERM);
    waitpid(process, nullptr, 0);
}

}  // namespace lv
