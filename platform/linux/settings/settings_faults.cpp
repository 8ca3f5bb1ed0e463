#include "platform/linux/settings/settings_faults.h"

#include <sqlite3.h>

#include <cerrno>

#include "platform/code_page.h"
#include "platform/linux/files/errno_error.h"
#include "platform/linux/settings/lock_holder.h"

namespace lv {

namespace {

namespace fs = std::filesystem;

constexpr const char* kAdviceOnRights =
    "\r\n\r\nGive yourself the right to write there, or name another directory for settings in the variable "
    "XDG_CONFIG_HOME.";

Error FaultOfDevice(sqlite3* database) {
    // The file that all users of a log share could not get its size: nothing but a full disk does that alone.
    const bool noRoom = sqlite3_extended_errcode(database) == SQLITE_IOERR_SHMSIZE ||
                        ErrorOf(sqlite3_system_errno(database)).Number == error::kDiskFull;
    return MakeError(noRoom ? error::kDiskFull : error::kDeviceFault);
}

}  // namespace

Error StoreRefusal(int number, const fs::path& file, const std::string& reason) {
    return {number, "The settings in \"" + FromUtf8Lossy(file.string()) + "\" cannot be used: " + reason};
}

Error UnusableStore(const fs::path& file, const std::string& reason) {
    return StoreRefusal(error::kPathFileAccess, file,
                        reason +
                            "\r\n\r\nMove this file elsewhere, and the program starts with new settings, "
                            "or put an older copy in its place.");
}

Error NewerLayout(const fs::path& file) {
    return UnusableStore(file, "a newer version of this program made them.");
}

Error NoDatabase(const fs::path& file) {
    return UnusableStore(file, "the file is no settings database.");
}

Error DamagedDatabase(const fs::path& file) {
    return UnusableStore(file, "the database is damaged.");
}

Error UnwritableStore(int number, const fs::path& file, const char* what) {
    const Error fault = number == ENOENT ? MakeError(error::kPathNotFound) : ErrorOf(number);
    const bool isForbidden = number == EACCES || number == EPERM || number == EROFS;
    return StoreRefusal(
        fault.Number, file,
        std::string(what) + " cannot be written. (" + fault.Text + ")" + (isForbidden ? kAdviceOnRights : ""));
}

Error UnreadableStore(int number, const fs::path& file) {
    const Error fault = ErrorOf(number);
    return StoreRefusal(fault.Number, file, "the file cannot be read. (" + fault.Text + ")");
}

Error LockedStore(const fs::path& file) {
    const auto holder = FindLockHolder({file, file.string() + "-shm"});
    const std::string who =
        holder ? "the program \"" + holder->Name + "\" (process " + std::to_string(holder->Process) + ")"
               : "another program";
    return {error::kAlreadyOpen, "The settings in \"" + FromUtf8Lossy(file.string()) + "\" are locked by " + who + "."};
}

Error FaultOf(sqlite3* database) {
    switch (sqlite3_errcode(database) & 0xFF) {
        case SQLITE_FULL:
            return MakeError(error::kDiskFull);
        case SQLITE_BUSY: {
            const char* const file = sqlite3_db_filename(database, "main");
            return LockedStore(file != nullptr ? file : "");
        }
        case SQLITE_LOCKED:
        case SQLITE_READONLY:
        case SQLITE_PERM:
        case SQLITE_CANTOPEN:
            return MakeError(ErrorOf(sqlite3_system_errno(database)).Number == error::kDiskFull
                                 ? error::kDiskFull
                                 : error::kPermissionDenied);
        case SQLITE_IOERR:
            return FaultOfDevice(database);
        default:
            return MakeError(error::kDeviceFault);
    }
}

Error RefusedBySqlite(sqlite3* database, const fs::path& file) {
    switch (sqlite3_errcode(database) & 0xFF) {
        case SQLITE_NOTADB:
            return NoDatabase(file);
        case SQLITE_CORRUPT:
            return DamagedDatabase(file);
        case SQLITE_BUSY:
            return LockedStore(file);
        case SQLITE_ERROR:
            return UnusableStore(file, FromUtf8Lossy(sqlite3_errmsg(database)) + ".");
        default:
            return StoreRefusal(FaultOf(database).Number, file, FromUtf8Lossy(sqlite3_errmsg(database)) + ".");
    }
}

}  // namespace lv
