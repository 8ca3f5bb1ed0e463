// tests/platform/linux_home.h
//
// A home of a test's own with its drives.

#pragma once

#include "platform/linux/files/linux_files.h"
#include "tests/platform/scratch_directory.h"

namespace lv {

/// "C:" is the directory `C` of the host.
struct Home {
    ScratchDirectory Scratch;
    LinuxFiles Disk{{Scratch / "data/drives", Scratch / "wine", Scratch / "program"}};
    std::filesystem::path C = Scratch / "data/drive_c";
    std::filesystem::path Drives = Scratch / "data/drives";
};

}  // namespace lv
