#include "foundation/browse.h"

#include <algorithm>

#include "foundation/error_lines.h"
#include "foundation/field_strings.h"
#include "foundation/question_box.h"
#include "foundation/typed_path.h"

namespace lv {

namespace {

// The directory itself, or the first above it that is there; empty without one.
Text AsFarAsThere(const Run& run, Text path) {
    std::replace(path.begin(), path.end(), '/', '\\');
    while (path.size() >= 2 && path[1] == ':') {
        while (path.size() > 3 && path.ends_with('\\')) {
            path.pop_back();
        }
        if (path.size() == 2) {
            path += '\\';
        }
        if (run.System.Disk.DirectoryExists(path)) {
            return path;
        }
        if (path.size() <= 3) {
            break;
        }
        path = DirectoryOf(path);
    }
    return {};
}

}  // namespace

Text BrowseStart(const Run& run, TextView inBox, TextView usual) {
    Text start = AsFarAsThere(run, TypedPath(run, inBox));
    if (!start.empty()) {
        return start;
    }
    for (const Text& place : {Text(usual), run.LastBrowsed}) {
        if (!place.empty() && run.System.Disk.DirectoryExists(place)) {
            return place;
        }
    }
    return run.System.Disk.UserHome();
}

Text DialogFailureText(const Error& failed) {
    Text text = Join(ErrorLines(failed), NewLine, NewLine);
    if (failed.Number == kDialogOutdated) {
        text += Join("You probably need to update the file 'comdlg32.ocx'.", NewLine,
                     "Version 5.00.3714 or higher is recommended.", NewLine,
                     "This file is typically located in your 'c:\\windows\\system' directory.", NewLine,
                     "Please contact technical support.", NewLine);
    }
    return text + "Lorvane 3D setting have not been altered.";
}

Result<std::optional<Text>> AskForFile(Run& run, const FileRequest& request) {
    const TopmostSuspension dialog(run);
    Result<std::optional<Text>> chosen = run.User.ChooseFile(request);
    if (chosen.Ok() && chosen.Value && request.MaxFileSize > 0 && chosen.Value->size() > request.MaxFileSize) {
        return Error{kDialogOutdated, "the path is too long"};
    }
    if (chosen.Ok() && chosen.Value && !chosen.Value->empty()) {
        run.LastBrowsed = DirectoryOf(*chosen.Value);
    }
    return chosen;
}

std::optional<Text> BrowseForFile(Run& run, TextView filter, TextView directory, int filterIndex) {
    FileRequest request;
    request.Filter = filter;
    request.FilterIndex = filterIndex;
    request.InitialDirectory = directory;
    const Result<std::optional<Text>> chosen = AskForFile(run, request);
    if (chosen.Ok()) {
        return chosen.Value && !chosen.Value->empty() ? chosen.Value : std::nullopt;
    }
    if (chosen.Fault.Number != kDialogCancelled) {
        AskUser(run, "A Windows Related Error Occured", DialogFailureText(chosen.Fault));
    }
    return std::nullopt;
}

std::optional<Text> BrowseForProgram(Run& run, TextView filter, TextView directory) {
    const bool haveNoEnding = run.System.Disk.StandIn("", "");
    return BrowseForFile(run, filter, directory, haveNoEnding ? CountDelimiters(filter, "|") / 2 : 0);
}

}  // namespace lv
