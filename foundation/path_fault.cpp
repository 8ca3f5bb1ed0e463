#include "foundation/path_fault.h"

#include "foundation/field_strings.h"

namespace lv {

Error FaultAt(Files& disk, TextView path, Error failed) {
    if (failed.Number != error::kPathFileAccess && failed.Number != error::kPermissionDenied &&
        failed.Number != error::kFileNotFound) {
        return failed;
    }
    if (Holds(failed.Text, path)) {
        return failed;
    }
    failed.Text += Join(": ", path);
    if (disk.DirectoryExists(path)) {
        failed.Text += " is a directory. Rename it, or remove it.";
    }
    return failed;
}

}  // namespace lv
