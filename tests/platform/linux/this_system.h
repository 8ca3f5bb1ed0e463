// tests/platform/linux/this_system.h
//
// The interfaces as Linux keeps them, for the tests of what every system promises.

#pragma once

#include <memory>

#include "platform/linux/files/linux_files.h"
#include "platform/linux/settings/sqlite_settings.h"
#include "platform/linux/wine_registry.h"
#include "platform/memory/memory_platform.h"
#include "tests/platform/scratch_directory.h"

namespace lv {

/// A drive with nothing on it.
struct SystemDisk {
    ScratchDirectory Scratch;
    LinuxFiles Disk{{Scratch / "data/drives", Scratch / "wine", Scratch.Path()}};
    char Letter = 'C';
};

struct SystemSettings {
    ScratchDirectory Scratch;
    Result<std::unique_ptr<SqliteSettings>> Opened = SqliteSettings::Open(Scratch / "settings.sqlite");
    SettingsBacking& Store = *Opened.Value;

    /// The same store, as another program opens it.
    [[nodiscard]] std::unique_ptr<SettingsBacking> Another() const {
        return std::move(SqliteSettings::Open(Scratch / "settings.sqlite").Value);
    }
};

/// As it is without Wine.
struct SystemRegistry {
    MemorySettings Store;
    WineRegistry Registry{Store, {}};
};

}  // namespace lv
