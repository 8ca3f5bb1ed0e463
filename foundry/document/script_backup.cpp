#include "foundry/document/script_backup.h"

namespace lv {

namespace {

constexpr TextView kBackupEnding = "SetupFoundry_Config_Backup";

}  // namespace

Text BackupPathOf(TextView path) {
    const std::size_t component = path.rfind('\\') + 1;
    const std::size_t point = path.find('.', component);
    return Join(path.substr(0, point), ".", kBackupEnding);
}

Error KeepBackup(Files& disk, TextView path) {
    const Text copy = BackupPathOf(path);
    return SameText(copy, path) ? Error() : disk.CopyOwn(path, copy);
}

}  // namespace lv
