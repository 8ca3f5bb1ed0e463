#include "catalogs/browse.h"

#include "foundation/question_box.h"

namespace lv {

Text DialogFailureText(const Error& failed) {
    Text text = Join("Error Number = ", std::to_string(failed.Number), NewLine, "Error String = ", failed.Text, NewLine,
                     NewLine);
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
    return chosen;
}

std::optional<Text> BrowseForFile(Run& run, TextView filter, TextView directory) {
    FileRequest request;
    request.Filter = filter;
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

}  // namespace lv
