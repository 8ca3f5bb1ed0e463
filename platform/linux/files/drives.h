// platform/linux/files/drives.h
//
// Drives on a system that has none: one entry a drive in a directory of the user's, named as Wine names them ("c:",
// "d:"), each a directory or a link to one. A letter missing there is looked for in the Wine prefix.

#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "platform/error.h"

namespace lv {

struct DriveDirectories {
    std::filesystem::path drives;            // holds "c:" and its like; "drive_c" is made beside it
    std::filesystem::path winePrefix;        // its "dosdevices" is looked at, never written
    std::filesystem::path programDirectory;  // where the program and its data lie
    bool areMade = true;                     // false: nothing is made or mended, and what would be counts as made
};

/// Makes "c:", a link to the Wine prefix's drive C: where there is one and to the plain directory "drive_c" beside
/// `drives` otherwise, and "z:", a link to "/", if `drives` is not there yet or empty. An existing set of drives is the
/// user's own and stays as it is. Takes away what a start has left that was killed in here.
Error MakeFirstDrives(const DriveDirectories& directories);

/// Brings back what a start needs of the first drives: "drive_c" where "c:" leads to it and it is gone, "c:" where that
/// is a file or a circle of links, "z:" where there is none or it leads to no directory. If `programDirectory` lies on
/// no drive even then, the last free letter becomes a link to "/". What stood in an entry's place is kept as "z:.old".
/// All other entries stay, though one may lead nowhere now: its disk may not be in.
Error MendDrives(const DriveDirectories& directories);

/// The entry of the drive, which may be a link that leads nowhere now. Nothing if there is no such drive, and always
/// for "A" and "B", which are never touched.
std::optional<std::string> DriveEntry(const DriveDirectories& directories, char letter);

/// Upper case, in order.
std::vector<char> DriveLetters(const DriveDirectories& directories);

}  // namespace lv
