#include "games/fitting/command_moving.h"

#include <algorithm>
#include <optional>

#include "foundation/field_strings.h"
#include "games/fitting/command_tearing.h"

namespace lv {

namespace {

constexpr TextView kExec = "+exec";
constexpr TextView kSharewareRunsNone = "with shareware data it runs no command of its command line";
constexpr TextView kBehindMoved = "it follows a command that runs in the script";

void MoveToScript(Fitting& fitting, const CommandPart& part, bool behindScript, TextView why) {
    const std::optional<Text> line = AsScriptLine(part);
    if (!line) {
        fitting.Note(FitKind::LeftOut, part, Join(why, "; no script can hold it"));
        return;
    }
    (behindScript ? fitting.Fitted.ScriptTail : fitting.Fitted.ScriptHead) += Join(*line, NewLine);
    fitting.Note(FitKind::MovedToScript, part, why);
}

/// What the engine makes no use of, or ends at, with shareware data.
std::optional<Text> SharewareRefuses(const CommandPart& part) {
    if (part.Is("-game")) {
        return "with shareware data it plays no modification";
    }
    if (part.Is(kExec) && part.Words.size() > 1 && part.Words[1].Whole().find_first_of("/\\") != Text::npos) {
        return "with shareware data it opens no file in a directory below";
    }
    return {};
}

}  // namespace

bool ExecutesScript(const Fitting& fitting, const CommandPart& part) {
    return part.Kind == PartKind::Command && part.Words.size() == 2 && part.Is(kExec) &&
           SameText(part.Words[1].Whole(), fitting.Composed.Script);
}

bool IsMovable(const Fitting& fitting, const CommandPart& part) {
    return part.Kind == PartKind::Command && !ExecutesScript(fitting, part) && !SetsEarly(fitting.Its, part);
}

void MoveToAutoexec(Fitting& fitting, const CommandPart& part, TextView why) {
    if (const std::optional<Text> line = AsScriptLine(part)) {
        fitting.Fitted.AutoexecTail += Join(*line, NewLine);
        fitting.Note(FitKind::MovedToAutoexec, part, why);
    } else {
        fitting.Note(FitKind::LeftOut, part, Join(why, "; no script can hold it"));
    }
}

void FitShareware(Fitting& fitting) {
    std::vector<CommandPart> stays;
    bool behindScript = false;
    for (const CommandPart& part : fitting.Parts) {
        if (const std::optional<Text> why = SharewareRefuses(part)) {
            fitting.Note(FitKind::LeftOut, part, *why);
        } else if (ExecutesScript(fitting, part)) {
            behindScript = true;
            MoveToAutoexec(fitting, part, kSharewareRunsNone);
        } else if (part.Kind == PartKind::Command) {
            MoveToScript(fitting, part, behindScript, kSharewareRunsNone);
        } else {
            stays.push_back(part);
        }
    }
    fitting.Parts = std::move(stays);
}

void MoveTorn(Fitting& fitting) {
    std::vector<CommandPart> stays;
    bool behindScript = false;
    bool moving = false;
    for (const CommandPart& part : fitting.Parts) {
        const bool isCommand = part.Kind == PartKind::Command;
        const std::optional<Text> why = isCommand ? WhyTorn(fitting.Its, part) : std::nullopt;
        if (ExecutesScript(fitting, part)) {
            behindScript = true;
            moving = false;
            if (why) {
                MoveToAutoexec(fitting, part, *why);
                continue;
            }
        } else if (why || (moving && IsMovable(fitting, part))) {
            moving = true;
            MoveToScript(fitting, part, behindScript, why ? TextView(*why) : kBehindMoved);
            continue;
        }
        stays.push_back(part);
    }
    fitting.Parts = std::move(stays);
}

void ExecuteScript(Fitting& fitting) {
    const FittedCommand& fitted = fitting.Fitted;
    const bool isRun = !fitted.AutoexecTail.empty() || std::ranges::any_of(fitting.Parts, [&](const CommandPart& part) {
        return ExecutesScript(fitting, part);
    });
    if (isRun || (fitted.ScriptHead.empty() && fitted.ScriptTail.empty())) {
        return;
    }
    const Text& name = fitting.Composed.Script;
    const CommandPart exec{PartKind::Command, {{Text(kExec), Text(kExec), {}, false}, {name, name, {}, false}}, false};
    if (fitting.Composed.IsShareware && fitting.Its.SharewareNeedsAutoexec) {
        MoveToAutoexec(fitting, exec, kSharewareRunsNone);
    } else if (const std::optional<Text> why = WhyTorn(fitting.Its, exec)) {
        MoveToAutoexec(fitting, exec, *why);
    } else {
        fitting.Note(FitKind::Added, exec, "lines have come to the script");
        fitting.Parts.push_back(exec);
    }
}

void MoveAllCommands(Fitting& fitting, TextView why) {
    std::vector<CommandPart> stays;
    bool behindScript = false;
    Text head;  // ahead of what has moved behind these, in the line's order
    std::swap(head, fitting.Fitted.ScriptHead);
    Text tail;
    std::swap(tail, fitting.Fitted.ScriptTail);
    for (const CommandPart& part : fitting.Parts) {
        behindScript = behindScript || ExecutesScript(fitting, part);
        if (IsMovable(fitting, part)) {
            MoveToScript(fitting, part, behindScript, why);
        } else {
            stays.push_back(part);
        }
    }
    fitting.Fitted.ScriptHead += head;
    fitting.Fitted.ScriptTail += tail;
    fitting.Parts = std::move(stays);
    ExecuteScript(fitting);
}

}  // namespace lv
