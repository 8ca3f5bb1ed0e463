#include "platform/linux/linux_shortcuts.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "platform/code_page.h"
#include "platform/linux/files/errno_error.h"
#include "platform/linux/files/host_read.h"
#include "platform/linux/files/replace_file.h"
#include "platform/linux/user_directories.h"
#include "platform/linux/user_dirs.h"

namespace lv {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kLargestEntry = 64U << 10U;
constexpr mode_t kReadByAll = 0644;
constexpr mode_t kRunByAll = 0755;

enum class Found { kNothing, kTheShortcut, kAnothers };

bool HasLine(std::string_view text, std::string_view line) {
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        if (text.substr(0, end) == line) {
            return true;
        }
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return false;
}

// A link is another's, wherever it leads.
Found WhatIsAt(const fs::path& file, const std::string& mark) {
    struct stat there {};
    if (lstat(file.c_str(), &there) != 0) {
        return errno == ENOENT ? Found::kNothing : Found::kAnothers;
    }
    const auto open = S_ISREG(there.st_mode)
                          ? OpenHostFileAnywhere(file.string())
                          : Result<std::unique_ptr<RandomAccessFile>>(MakeError(error::kAlreadyOpen));
    const auto text =
        open.Ok() && open.Value->Size() <= kLargestEntry ? open.Value->Read(0, kLargestEntry) : Result<std::string>();
    return HasLine(text.Value, mark) ? Found::kTheShortcut : Found::kAnothers;
}

Error MakeDirectories(const fs::path& directory) {
    std::error_code failed;
    fs::create_directories(directory, failed);
    return failed && !fs::is_directory(directory) ? ErrorOf(failed.value()) : Error();
}

Error Put(const fs::path& file, std::string_view bytes, mode_t mode) {
    return ReplaceOwnHostFile(file.string(), [bytes, mode](int descriptor) {
        const int failed = WriteAll(descriptor, bytes);
        return failed != 0 || fchmod(descriptor, mode) == 0 ? failed : errno;
    });
}

}  // namespace

ShortcutDirectories OwnShortcutDirectories() {
    return {HomePlace(".local/share/applications"), DesktopDirectory(), DataDirectory() / "launchers",
            ProgramFileDirectory() / "lorvane3d"};
}

fs::path LinuxShortcuts::FileOf(ShortcutPlace place, const Shortcut& shortcut) const {
    return (place == ShortcutPlace::Menu ? where_.Applications : where_.Desktop) / shortcut.EntryName;
}

std::string LinuxShortcuts::CaptionOf(ShortcutPlace place) {
    return place == ShortcutPlace::Menu ? "Applications &Menu" : "&Desktop";
}

bool LinuxShortcuts::HasPlace(ShortcutPlace place) {
    return place == ShortcutPlace::Menu || (!where_.Desktop.empty() && IsDirectoryAt(where_.Desktop.string()));
}

std::string LinuxShortcuts::PathOf(ShortcutPlace place, const Shortcut& shortcut) {
    return FromUtf8Lossy(FileOf(place, shortcut).string());
}

bool LinuxShortcuts::IsThere(ShortcutPlace place, const Shortcut& shortcut) {
    return HasPlace(place) && WhatIsAt(FileOf(place, shortcut), shortcut.EntryMark) == Found::kTheShortcut;
}

// The largest serves all sizes.
Error LinuxShortcuts::PutPicture(const Shortcut& shortcut, std::string& path) const {
    if (shortcut.Pictures.empty()) {
        return {};
    }
    if (Error failed = MakeDirectories(where_.Pictures)) {
        return failed;
    }
    const fs::path file = where_.Pictures / (shortcut.PictureName + ".png");
    path = file.string();
    return Put(file, shortcut.Pictures.back().Png, kReadByAll);
}

Error LinuxShortcuts::Make(ShortcutPlace place, const Shortcut& shortcut) {
    if (!HasPlace(place)) {
        return MakeError(error::kPathNotFound);
    }
    const fs::path file = FileOf(place, shortcut);
    if (WhatIsAt(file, shortcut.EntryMark) == Found::kAnothers) {
        return MakeError(error::kAlreadyOpen);
    }
    std::string picture;
    if (Error failed = PutPicture(shortcut, picture)) {
        return failed;
    }
    if (place == ShortcutPlace::Menu) {
        if (Error failed = MakeDirectories(where_.Applications)) {
            return failed;
        }
    }
    return Put(file, shortcut.Entry(where_.Program.string(), picture),
               place == ShortcutPlace::Desktop ? kRunByAll : kReadByAll);
}

Error LinuxShortcuts::Remove(ShortcutPlace place, const Shortcut& shortcut) {
    if (!IsThere(place, shortcut) || unlink(FileOf(place, shortcut).c_str()) == 0) {
        return {};
    }
    return ErrorOf(errno);
}

}  // namespace lv
