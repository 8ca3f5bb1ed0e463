#include "games/fitting/engine_rules.h"

#include <algorithm>
#include <optional>

#include "foundation/field_strings.h"
#include "games/fitting/command_moving.h"
#include "games/fitting/switch_fitting.h"

namespace lv {

namespace {

/// What counts against the engine's longest line: the program, and a blank and the argument for each argument, in
/// UTF-8.
struct LineSize {
    std::size_t Characters = 0;
    std::size_t Arguments = 0;
};

LineSize SizeOf(TextView program, const std::vector<CommandPart>& parts) {
    LineSize size{ToUtf8(program).size(), 1};
    for (const CommandPart& part : parts) {
        for (const CommandWord& word : part.Words) {
            size.Characters += 1 + ToUtf8(word.Whole()).size();
            ++size.Arguments;
        }
    }
    return size;
}

TextView PrefixOf(const ComposedCommand& composed) {
    const TextView command = composed.Command;
    const std::size_t named = composed.PrefixLength != 0 ? composed.PrefixLength : command.find(' ');
    return command.substr(0, std::min(named, command.size()));
}

Text ProgramOfLine(const ComposedCommand& composed) {
    return composed.ProgramPath.empty() ? Trim(PrefixOf(composed)) : composed.ProgramPath;
}

/// Why the line is too long; nothing if it is not.
std::optional<Text> WhyTooLong(const Fitting& fitting) {
    const LineSize size = SizeOf(ProgramOfLine(fitting.Composed), fitting.Parts);
    const Engine& its = fitting.Its;
    if (its.LongestLine != 0 && size.Characters > its.LongestLine) {
        return Join("it reads no more than ", std::to_string(its.LongestLine), " characters of its command line");
    }
    if (its.MostArguments != 0 && size.Arguments > its.MostArguments) {
        return Join("it reads no more than ", std::to_string(its.MostArguments - 1), " arguments");
    }
    return {};
}

/// First what the script can say goes there, then autoexec.cfg runs the script, and at last switches are left out.
void Shorten(Fitting& fitting) {
    while (const std::optional<Text> why = WhyTooLong(fitting)) {
        const auto is = [&](auto test) {
            return std::ranges::find_if(fitting.Parts, [&](const CommandPart& part) { return test(fitting, part); });
        };
        if (is(IsMovable) != fitting.Parts.end()) {
            MoveAllCommands(fitting, *why);
        } else if (const auto script = is(ExecutesScript); script != fitting.Parts.end()) {
            MoveToAutoexec(fitting, *script, *why);
            fitting.Parts.erase(script);
        } else if (!fitting.Parts.empty()) {
            fitting.Note(FitKind::LeftOut, fitting.Parts.back(), *why);
            fitting.Parts.pop_back();
        } else {
            return;
        }
    }
}

void NoteScriptEnding(Fitting& fitting) {
    const Text& ending = fitting.Its.ScriptEnding;
    for (const CommandPart& part : fitting.Parts) {
        if (!ending.empty() && ExecutesScript(fitting, part) && !LowerCase(fitting.Composed.Script).ends_with(ending)) {
            fitting.Note(FitKind::Kept, part, Join("it executes only scripts that end in ", ending));
        }
    }
}

}  // namespace

FittedCommand FitCommandLine(const Engine& engine, const ComposedCommand& composed) {
    const TextView prefix = PrefixOf(composed);
    std::vector<GivenWord> given;
    for (GivenWord word : composed.Given) {
        if (word.At >= prefix.size()) {
            word.At -= prefix.size();
            given.push_back(std::move(word));
        }
    }
    const TextView behind = TextView(composed.Command).substr(prefix.size());
    Fitting fitting{engine, composed, PartsOfCommand(behind, given, engine.Ends == CommandEnd::Never), {}};
    SplitLines(fitting);
    WriteOtherwise(fitting);
    LeaveOutRefused(fitting);
    WriteSetsPlain(fitting);
    AddWanted(fitting);
    TellDataDirectory(fitting);
    NoteHeldCommands(fitting);
    if (composed.IsShareware && engine.SharewareNeedsAutoexec) {
        FitShareware(fitting);
    } else {
        MoveTorn(fitting);
    }
    ExecuteScript(fitting);
    Shorten(fitting);
    NoteScriptEnding(fitting);
    fitting.Fitted.Command = Join(Trim(prefix), Blank);
    AppendParts(fitting.Parts, fitting.Fitted.Command, fitting.Fitted.Given);
    return std::move(fitting.Fitted);
}

Text NoteText(const FitNote& note) {
    constexpr TextView kWords[] = {
        "left out", "written in another way", "added", "moved to the script", "moved to autoexec.cfg", "left as it is"};
    return Join(note.Part, ": ", kWords[static_cast<std::size_t>(note.Kind)], ", ", note.Why);
}

}  // namespace lv
