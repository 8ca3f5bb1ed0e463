#include "launcher/drop/copying.h"

#include "foundation/error_lines.h"
#include "foundation/field_strings.h"
#include "foundation/link_question.h"
#include "foundation/path_fault.h"
#include "foundation/question_box.h"
#include "launcher/drop/pick_dropped.h"
#include "launcher/setups/row_picks.h"

namespace lv {

Text Copying::Name() const {
    return LastPathPart(Thing.Path);
}

Text Copying::Intro() const {
    return Join("This ", NameOf(Thing.Kind), " was dropped -->", NewLine, NewLine, PathLine(Thing.Path), NewLine,
                NewLine);
}

Index Copying::Ask(TextView text, TextView buttons) const {
    return AskUser(TheRun(), kDroppedTitle, Join(Intro(), text, Others), buttons);
}

bool IsTaken(Files& disk, TextView path) {
    return disk.FileExists(path) || disk.DirectoryExists(path);
}

std::optional<Text> AskForName(Run& run, TextView prompt, TextView offered, const std::function<bool(TextView)>& fits,
                               TextView rule) {
    for (;;) {
        std::optional<Text> answer;
        {
            const TopmostSuspension dialog(run);
            answer = run.User.InputBox("Another Name", prompt, offered);
        }
        const Text name = Trim(answer.value_or(""));
        if (name.empty()) {
            return std::nullopt;
        }
        if (fits(name)) {
            return name;
        }
        AskUser(run, kDroppedTitle, rule);
    }
}

bool LaunchTakes(const Copying& copy, NameKind kind, TextView name) {
    const bool isUnreal = copy.Into.Plays.Facts->GameKind == Game::Unreal;
    const Text program = LastPathPart(copy.Into.Path);
    const LineReader reader = copy.TheRun().System.Programs.ReaderOf(copy.Into.Directory, program, program);
    const LaunchName named{.Kind = kind,
                           .Value = Text(name),
                           .Written = Holds(name, Blank) ? Join(DoubleQuote, name, DoubleQuote) : Text(name),
                           .InCommand = isUnreal,
                           .InScript = !isUnreal};
    return !MisreadName({named}, reader);
}

bool CopyInto(const Copying& copy, const Text& directory, const Text& name) {
    Files& disk = copy.Disk();
    const Text target = PathBelow(directory, name);
    if (!MayWriteThroughLinks(copy.TheRun(), target)) {
        return false;
    }
    const bool isNew = !disk.DirectoryExists(directory);
    Error failed = isNew ? disk.MakeDirectory(directory) : Error();
    const bool isMade = isNew && !failed;
    if (!failed) {
        failed = disk.Copy(copy.Thing.Path, target);
        failed = FaultAt(disk, failed.Number == error::kFileNotFound ? copy.Thing.Path : target, failed);
    }
    if (!failed) {
        return true;
    }
    if (isMade) {
        (void)disk.RemoveDirectory(directory);
    }
    TellOfDropped(copy.At, Join("It could not be copied to -->", NewLine, NewLine, PathLine(target), NewLine, NewLine,
                                ErrorLines(failed)));
    return false;
}

bool PickProgram(const Copying& copy, TextView data) {
    Run& run = copy.TheRun();
    if (!PickExecutable(copy.At, copy.Into.Path) || run.Ended) {
        return false;
    }
    if (!data.empty() && !SameText(run.CurrentGameDir, data)) {
        (void)PickAndTickModification(copy.At, SameText(run.BaseGameDir, data) ? TextView() : data);
    }
    return !run.Ended;
}

Text DataDirectory(const Copying& copy) {
    const auto picked = PickedProgram(copy.At);
    const bool isPicked = picked && SameText(picked->Path, copy.Into.Path);
    return isPicked ? copy.TheRun().CurrentGameDir : BaseDirectoryOf(*copy.Into.Plays.Facts);
}

}  // namespace lv
