#include "app/linux_store.h"

#include <utility>

#include "platform/linux/settings/sqlite_settings.h"
#include "platform/linux/user_directories.h"

namespace lv {

namespace {

OpenedStore Settled(Result<std::unique_ptr<SqliteSettings>> opened) {
    return opened.Ok() ? OpenedStore(std::move(opened.Value)) : OpenedStore(opened.Fault);
}

}  // namespace

DriveDirectories OwnDrives() {
    return {DataDirectory() / "drives", WinePrefix(), ProgramFileDirectory()};
}

StoreWays OwnStore(int patience) {
    const auto file = ConfigDirectory() / "settings.sqlite";
    return {[file, patience] { return Settled(SqliteSettings::Open(file, patience)); },
            [file] { return Settled(SqliteSettings::OpenCopy(file)); }};
}

DriveDirectories OwnDrivesAsTheyAre() {
    DriveDirectories drives = OwnDrives();
    drives.areMade = false;
    return drives;
}

StoreWays OwnStoreToRead() {
    const auto read = [file = ConfigDirectory() / "settings.sqlite"] {
        return Settled(SqliteSettings::OpenToRead(file));
    };
    return {read, read};
}

}  // namespace lv
