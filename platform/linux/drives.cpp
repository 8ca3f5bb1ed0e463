#include "platform/linux/drives.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <string>
#include <system_error>

#include "platform/linux/errno_error.h"

namespace lv {

namespace {

namespace fs = std::filesystem;

bool EntryExists(const fs::path& path) {
    struct stat info {};
    return lstat(path.c_str(), &info) == 0;
}

// A directory with the two links, made under a name of its own so that it can take its place in one step.
int MakeStagedDrives(const fs::path& staged) {
    if (mkdir(staged.c_str(), 0700) != 0 || symlink("../drive_c", (staged / "c:").c_str()) != 0 ||
        symlink("/", (staged / "z:").c_str()) != 0) {
        return errno;
    }
    return 0;
}

}  // namespace

Error MakeFirstDrives(const DriveDirectories& directories) {
    std::error_code failed;
    if (fs::exists(directories.drives, failed)) {
        if (!fs::is_directory(directories.drives, failed)) {
            return ErrorOf(ENOTDIR);
        }
        if (!fs::is_empty(directories.drives, failed)) {
            return ErrorOf(failed.value());
        }
    }
    const fs::path home = directories.drives.parent_path();
    fs::create_directories(home / "drive_c", failed);
    if (failed) {
        return ErrorOf(failed.value());
    }
    const fs::path staged = home / (".drives_" + std::to_string(getpid()));
    int number = MakeStagedDrives(staged);
    if (number == 0 && rename(staged.c_str(), directories.drives.c_str()) != 0) {
        number = errno;
    }
    fs::remove_all(staged, failed);
    // Not empty any more: another start of the program was first.
    return number == ENOTEMPTY || number == EEXIST ? Error() : ErrorOf(number);
}

std::optional<std::string> DriveEntry(const DriveDirectories& directories, char letter) {
    if (letter >= 'A' && letter <= 'Z') {
        letter = static_cast<char>(letter - 'A' + 'a');
    }
    if (letter < 'c' || letter > 'z') {
        return std::nullopt;
    }
    const std::string name = {letter, ':'};
    for (const fs::path& home : {directories.drives, directories.winePrefix / "dosdevices"}) {
        if (EntryExists(home / name)) {
            return (home / name).string();
        }
    }
    return std::nullopt;
}

std::vector<char> DriveLetters(const DriveDirectories& directories) {
    std::vector<char> letters;
    for (char letter = 'C'; letter <= 'Z'; ++letter) {
        if (DriveEntry(directories, letter)) {
            letters.push_back(letter);
        }
    }
    return letters;
}

}  // namespace lv
