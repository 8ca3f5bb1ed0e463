#include "catalogs/editors/copy_script.h"

#include "catalogs/editors/delete_entry.h"
#include "catalogs/editors/path_window.h"
#include "catalogs/scripts.h"
#include "foundation/field_strings.h"
#include "foundation/link_question.h"
#include "foundation/padded_item.h"
#include "foundation/question_box.h"

namespace lv {

namespace {

Text TargetOf(const Text& directory, const Text& name) {
    const Text whole = Holds(name, ".") ? name : Join(name, ".cfg");
    return PathBelow(directory, whole);
}

Text PromptFor(bool exists, bool sameDirectory) {
    Text prompt = exists ? Join("Perhaps the new script needs a new name?", NewLine) : Text();
    prompt += "Click 'OK' to keep this name.";
    return sameDirectory ? Join(prompt, NewLine, "The new script will require a new name.") : prompt;
}

// Asks for the name until it is free, or the user keeps one that he was told is taken. Empty if he gives up.
Text AskForTarget(Run& run, const Text& directory, Text name, bool sameDirectory) {
    for (;;) {
        const Text offered = name;
        const bool told = run.System.Disk.FileExists(TargetOf(directory, offered));
        std::optional<Text> answer;
        {
            const TopmostSuspension dialog(run);
            answer = run.User.InputBox("New Script", PromptFor(told, sameDirectory), offered);
        }
        name = Trim(answer.value_or(""));
        if (name.empty()) {
            return {};
        }
        Text target = TargetOf(directory, name);
        if (name == offered || !run.System.Disk.FileExists(target)) {
            return target;
        }
    }
}

}  // namespace

void CopyScript(Run& run, CatalogLists& lists) {
    const ListBox& list = lists.Script_Cbo;
    if (!list.HasSelection()) {
        AskUser(run, "", kNoScript);
        return;
    }
    const Text source = ItemValue(list.Selected());
    const Text directory = ChoosePath(run, DirectoryOf(source), "Choose Destination Directory");
    if (directory == kPathCancelled) {
        return;
    }
    const Text target = AskForTarget(run, directory, LastPathPart(source), SameText(directory, DirectoryOf(source)));
    if (target.empty()) {
        return;
    }
    if (!MayWriteThroughLinks(run, target)) {
        return;
    }
    if (SameText(source, target) || run.System.Disk.Copy(source, target)) {
        AskUser(run, "", "Operation Failed");
        return;
    }
    FillScriptsCombo(run, lists);
}

}  // namespace lv
