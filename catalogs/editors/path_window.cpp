#include "catalogs/editors/path_window.h"

#include <algorithm>

#include "catalogs/sorted_names.h"
#include "foundation/field_strings.h"
#include "foundation/question_box.h"

namespace lv {

namespace {

struct DriveErrorRow {
    int Number;
    const char* Text;
};

constexpr DriveErrorRow kDriveErrors[] = {
    {error::kDeviceFault, "Device I/O error."},       {error::kDeviceUnavailable, "Device unavailable."},
    {error::kPermissionDenied, "Permission denied."}, {error::kDiskNotReady, "Disk not ready."},
    {error::kPathFileAccess, "Path access error."},   {error::kPathNotFound, "Path not found."},
};

Text RootOf(TextView drive) {
    return Join(drive.substr(0, 2), "\\");
}

Text WithoutSlash(TextView path) {
    return Text(path.size() > 3 && path.ends_with('\\') ? path.substr(0, path.size() - 1) : path);
}

void AddRow(Path_Frm& form, TextView title, Text path, int level) {
    form.Dir1.Items.emplace_back(title);
    form.DirPaths.push_back(std::move(path));
    form.DirLevels.push_back(level);
}

// The drive's root and each directory on the way down; the level of what lies below.
int AddWayDown(Path_Frm& form, const Text& path) {
    Text at = RootOf(path);
    int level = 0;
    AddRow(form, at, at, level++);
    for (std::size_t begin = 3; begin < path.size();) {
        const std::size_t end = std::min(path.find('\\', begin), path.size());
        const Text name = path.substr(begin, end - begin);
        at = PathBelow(at, name);
        AddRow(form, name, at, level++);
        begin = end + 1;
    }
    return level;
}

int DriveRowOf(const Path_Frm& form, TextView path) {
    const auto& drives = form.Drive1.Items;
    const auto found = std::find_if(drives.begin(), drives.end(),
                                    [&](const Text& drive) { return SameText(drive.substr(0, 2), path.substr(0, 2)); });
    return found == drives.end() ? -1 : static_cast<int>(found - drives.begin());
}

// Shows the directory, or leaves everything as it is and says what stood in the way.
Error GoTo(Path_Frm& form, TextView wanted) {
    const Text path = WithoutSlash(wanted);
    const auto listed = form.run.System.Disk.List(path);
    if (!listed.Ok()) {
        return listed.Fault;
    }
    form.Search = {};
    form.Dir1.Clear();
    form.DirPaths.clear();
    form.DirLevels.clear();
    const int level = AddWayDown(form, path);
    form.Dir1.ListIndex = level - 1;
    for (const Text& name : SortedDirectories(listed.Value)) {
        AddRow(form, name, PathBelow(path, name), level);
    }
    form.Path_Lbl.Caption = path;
    form.Drive1.ListIndex = DriveRowOf(form, path);
    form.LastDrive = form.Drive1.ListIndex;
    return {};
}

void TellDriveError(Path_Frm& form, const Text& drive, const Error& failed) {
    AskUser(form.run, drive.c_str(), DriveErrorText(failed.Number));
}

}  // namespace

Text DriveErrorText(int number) {
    for (const DriveErrorRow& row : kDriveErrors) {
        if (row.Number == number) {
            return row.Text;
        }
    }
    return Join("Unexpected error #", std::to_string(number));
}

Path_Frm::Path_Frm(Run& owner, TextView start, TextView caption) : ModalWindow(owner, "Path_Frm") {
    Caption = caption;
    OK_Cmd.Caption = "&OK";
    OK_Cmd.Default = true;
    Cancel_Cmd.Caption = "&Cancel";
    Focus = "Dir1";
    Drive1.Items = owner.System.Disk.Drives();
    const bool whole = start.size() >= 2 && start[1] == ':';
    if (!whole || GoTo(*this, start)) {
        (void)GoTo(*this, owner.System.Disk.CurrentDirectory());
    }
}

void Path_Load(Path_Frm& form) {
    LoadPlacement(form.run, form.Name, form.Placement, ScreenInTwips(form.run));
}

void Path_Unload(Path_Frm& form) {
    SavePlacement(form.run, form.Name, form.Placement);
}

void Path_Drive1_Change(Path_Frm& form) {
    if (!form.Drive1.HasSelection()) {
        return;
    }
    const Text drive = form.Drive1.Selected();
    Error failed = form.run.System.Disk.ProbeDrive(drive);
    if (!failed) {
        failed = GoTo(form, RootOf(drive));
    }
    if (failed) {
        TellDriveError(form, drive, failed);
        form.Drive1.ListIndex = form.LastDrive;
    }
}

void Path_Dir1_KeyPress(Path_Frm& form, char letter) {
    const int row =
        FindTyped(form.Search, form.Dir1.Items, form.Dir1.ListIndex, letter, form.run.System.Time.Seconds());
    if (row >= 0) {
        form.Dir1.ListIndex = row;
    }
}

void Path_Dir1_DblClick(Path_Frm& form, int row) {
    if (row < 0 || static_cast<std::size_t>(row) >= form.DirPaths.size()) {
        return;
    }
    const Text path = form.DirPaths[static_cast<std::size_t>(row)];
    if (const Error failed = GoTo(form, path)) {
        TellDriveError(form, path.substr(0, 2), failed);
    }
}

void Path_OK_Cmd_Click(Path_Frm& form) {
    form.PathResult = form.Path_Lbl.Caption.empty() ? Text(kPathCancelled) : form.Path_Lbl.Caption;
    form.Closed = true;
}

void Path_Cancel_Cmd_Click(Path_Frm& form) {
    form.PathResult = kPathCancelled;
    form.Closed = true;
}

Text ChoosePath(Run& run, TextView start, TextView caption) {
    Path_Frm form(run, start, caption);
    Path_Load(form);
    ShowModal(form);
    Path_Unload(form);
    if (form.PathResult != kPathCancelled) {
        run.LastBrowsed = form.PathResult;
    }
    return form.PathResult;
}

}  // namespace lv
