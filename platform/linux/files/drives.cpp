#include "platform/linux/files/drives.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <system_error>

#include "platform/code_page.h"
#include "platform/linux/files/errno_error.h"
#include "platform/linux/files/host_read.h"

namespace lv {

namespace {

namespace fs = std::filesystem;

constexpr const char* kOwnC = "../drive_c";
constexpr std::string_view kStage = ".drives_";

bool EntryExists(const fs::path& path) {
    struct stat info {};
    return lstat(path.c_str(), &info) == 0;
}

// A directory with the two links, made under a name of its own so that it can take its place in one step.
int MakeStagedDrives(const fs::path& staged, const std::string& driveC) {
    if (mkdir(staged.c_str(), 0700) != 0 || symlink(driveC.c_str(), (staged / "c:").c_str()) != 0 ||
        symlink("/", (staged / "z:").c_str()) != 0) {
        return errno;
    }
    return 0;
}

bool LeadsToWhatIsNotThere(const fs::path& path) {
    struct stat info {};
    return stat(path.c_str(), &info) != 0 && errno == ENOENT;
}

// Of a start that was killed: no other has the number of a process that lives.
void RemoveOldStages(const fs::path& home) {
    std::error_code failed;
    std::vector<fs::path> old;
    for (fs::directory_iterator at(home, failed), end; !failed && at != end; at.increment(failed)) {
        const std::string name = at->path().filename().string();
        const int process = name.starts_with(kStage) ? std::atoi(name.c_str() + kStage.size()) : 0;
        if (process > 0 && (process == getpid() || (kill(process, 0) != 0 && errno == ESRCH))) {
            old.push_back(at->path());
        }
    }
    for (const fs::path& stage : old) {
        fs::remove_all(stage, failed);
    }
}

int PutAside(const fs::path& entry) {
    if (!EntryExists(entry)) {
        return 0;
    }
    std::string aside = entry.string() + ".old";
    for (int i = 2; EntryExists(aside); ++i) {
        aside = entry.string() + ".old" + std::to_string(i);
    }
    return rename(entry.c_str(), aside.c_str()) == 0 ? 0 : errno;
}

// Where another start of the program was first, its link is as good.
int MakeLink(const char* target, const fs::path& entry) {
    return symlink(target, entry.c_str()) == 0 || errno == EEXIST ? 0 : errno;
}

int MendC(const DriveDirectories& directories) {
    const fs::path entry = directories.drives / "c:";
    if (!EntryExists(entry) || IsDirectoryAt(entry)) {
        return 0;
    }
    std::error_code failed;
    if (LeadsToWhatIsNotThere(entry)) {
        const bool ours = fs::read_symlink(entry, failed) == kOwnC;
        return ours && mkdir((directories.drives / kOwnC).c_str(), 0777) != 0 ? errno : 0;
    }
    if (const int number = PutAside(entry)) {
        return number;
    }
    fs::create_directories(directories.drives / kOwnC, failed);
    return failed ? failed.value() : MakeLink(kOwnC, entry);
}

int MendZ(const DriveDirectories& directories) {
    const auto found = DriveEntry(directories, 'z');
    if (found && IsDirectoryAt(*found)) {
        return 0;
    }
    const fs::path entry = directories.drives / "z:";
    const int number = PutAside(entry);
    return number != 0 ? number : MakeLink("/", entry);
}

bool LiesBelow(const fs::path& path, const fs::path& directory) {
    return std::mismatch(directory.begin(), directory.end(), path.begin(), path.end()).first == directory.end();
}

int MendTheWayToTheProgram(const DriveDirectories& directories) {
    std::error_code failed;
    const fs::path program = fs::weakly_canonical(directories.programDirectory, failed);
    char unused = '\0';
    for (char letter = 'c'; letter <= 'z'; ++letter) {
        const auto entry = DriveEntry(directories, letter);
        unused = entry ? unused : letter;
        const fs::path root = entry ? fs::canonical(*entry, failed) : fs::path();
        if (entry && !failed && LiesBelow(program, root)) {
            return 0;
        }
    }
    return unused == '\0' ? 0 : MakeLink("/", directories.drives / std::string{unused, ':'});
}

// Where the links of the first drives lead that are not made.
std::optional<std::string> UnmadeDrive(const DriveDirectories& directories, char letter) {
    if (letter == 'z') {
        return "/.";  // a root is followed by "/" and the path below it
    }
    if (letter != 'c') {
        return std::nullopt;
    }
    const fs::path ofWine = directories.winePrefix / "drive_c";
    const bool sharesWines = !directories.winePrefix.empty() && IsDirectoryAt(ofWine);
    return (sharesWines ? ofWine : directories.drives.parent_path() / "drive_c").string();
}

}  // namespace

Error MakeFirstDrives(const DriveDirectories& directories) {
    RemoveOldStages(directories.drives.parent_path());
    std::error_code failed;
    if (fs::exists(directories.drives, failed) && !fs::is_directory(directories.drives, failed)) {
        if (const int number = PutAside(directories.drives)) {
            return ErrorOf(number);
        }
    }
    if (fs::exists(directories.drives, failed)) {
        if (!fs::is_empty(directories.drives, failed)) {
            return ErrorOf(failed.value());
        }
    }
    const fs::path home = directories.drives.parent_path();
    const fs::path ofWine = directories.winePrefix / "drive_c";
    const bool sharesWines = !directories.winePrefix.empty() && IsDirectoryAt(ofWine);
    fs::create_directories(sharesWines ? home : home / "drive_c", failed);
    if (failed) {
        return ErrorOf(failed.value());
    }
    const fs::path staged = home / (std::string(kStage) + std::to_string(getpid()));
    int number = MakeStagedDrives(staged, sharesWines ? ofWine.string() : kOwnC);
    if (number == 0 && rename(staged.c_str(), directories.drives.c_str()) != 0) {
        number = errno;
    }
    fs::remove_all(staged, failed);
    // Not empty any more: another start of the program was first.
    if (number == 0 || number == ENOTEMPTY || number == EEXIST) {
        return {};
    }
    Error told = ErrorOf(number);
    told.Text += ": " + FromUtf8Lossy(directories.drives.string());
    if (fs::is_symlink(directories.drives, failed)) {
        told.Text += " is a link to what is not there. Make that directory, or remove the link.";
    }
    return told;
}

Error MendDrives(const DriveDirectories& directories) {
    for (const auto mend : {MendC, MendZ, MendTheWayToTheProgram}) {
        if (const int number = mend(directories)) {
            return ErrorOf(number);
        }
    }
    return {};
}

std::optional<std::string> DriveEntry(const DriveDirectories& directories, char letter) {
    if (letter >= 'A' && letter <= 'Z') {
        letter = static_cast<char>(letter - 'A' + 'a');
    }
    if (letter < 'c' || letter > 'z') {
        return std::nullopt;
    }
    const std::string name = {letter, ':'};
    const bool mayBeMended = letter == 'c' || letter == 'z';
    for (const fs::path& home : {directories.drives, directories.winePrefix / "dosdevices"}) {
        const bool counts = directories.areMade || !mayBeMended || IsDirectoryAt(home / name);
        if (counts && EntryExists(home / name)) {
            return (home / name).string();
        }
    }
    return directories.areMade ? std::nullopt : UnmadeDrive(directories, letter);
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
