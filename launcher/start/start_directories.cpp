#include "launcher/start/start_directories.h"

#include "foundation/field_strings.h"
#include "foundation/question_box.h"

namespace lv {

namespace {

Error DeleteAllFiles(Files& disk, TextView directory) {
    const Result<std::vector<DirectoryEntry>> entries = disk.List(directory);
    if (!entries.Ok()) {
        return entries.Fault;
    }
    for (const DirectoryEntry& entry : entries.Value) {
        if (entry.IsDirectory) {
            continue;
        }
        if (const Error failed = disk.Delete(Join(directory, "\\", entry.Name))) {
            return failed;
        }
    }
    return {};
}

bool RemoveFiles(Run& run, TextView directory) {
    if (!DeleteAllFiles(run.System.Disk, directory)) {
        return true;
    }
    AskUser(run, "Error attempting to remove the old files.",
            Join("The old files could not be removed.", NewLine, "They may be in use."));
    return false;
}

bool RemoveDirectory(Run& run, TextView directory) {
    if (!run.System.Disk.RemoveDirectory(directory)) {
        return true;
    }
    AskUser(run, "Error attempting to remove the old directory.", "The old directory could not be removed.");
    return false;
}

}  // namespace

void CutTrailingBackslash(Text& directory) {
    if (directory.ends_with('\\')) {
        directory = DropRight(directory, 1);
    }
}

bool AlignDirectories(Run& run) {
    Files& disk = run.System.Disk;
    const Text program = disk.ProgramDirectory();
    const Text current = disk.CurrentDirectory();
    if (program == current) {
        run.AppDirectory = current;
        return true;
    }
    if (Holds(program, "\\\\")) {
        run.AppDirectory = program;
        return true;
    }
    if (const Error failed = SetCurrentPath(run, program)) {
        AskUser(run, "",
                Join("Error number ", std::to_string(failed.Number),
                     " while attempting to align application directories. ", NewLine, NewLine, failed.Text));
        EndProgram(run);
        return false;
    }
    run.AppDirectory = disk.CurrentDirectory();
    return true;
}

void OfferRemovalOfOlderInstall(Run& run) {
    // A directory is compared to a file here, so they always differ; kept on purpose.
    if (run.AppDirectory == kOldProgram || !run.System.Disk.FileExists(kOldProgram)) {
        return;
    }
    const Text question = Join("Lorvane 3D has detected an older version of itself", NewLine, NewLine,
                               "in the old default install directory of", NewLine, NewLine, kOldInstall, NewLine,
                               NewLine, "Would you Lorvane 3D to remove it?");
    if (AskUser(run, "", question, "&Yes,&No") != 0) {
        return;
    }
    (void)(RemoveFiles(run, kOldInstall) && RemoveDirectory(run, kOldInstall) && RemoveFiles(run, kOldMaker) &&
           RemoveDirectory(run, kOldMaker));
}

}  // namespace lv
