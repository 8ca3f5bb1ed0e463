#include "games/fitting/engine_rules.h"

#include <algorithm>
#include <optional>

#include "foundation/field_strings.h"
#include "games/fitting/command_moving.h"
#include "games/fitting/switch_fitting.h"

namespace lv {

namespace {

/// What counts against the engine's longest line: the program, and a blank and the argument for each argument, in
/// UTF-8. Options behind the last command are seen however long the line is.
struct LineSize {
    std::size_t Characters = 0;
    std::size_t Arguments = 0;
};

LineSize SizeOf(TextView program, const std::vector<CommandPart>& parts) {
    LineSize size{0, 1};
    std::size_t characters = ToUtf8(program).size();
    for (const CommandPart& part : parts) {
        for (const CommandWord& word : part.Words) {
            characters += 1 + ToUtf8(word.Whole()).size();
            ++size.Arguments;
        }
        if (part.Kind == PartKind::Command) {
            size.Characters = characters;
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

bool HasTooManyArguments(const Fitting& fitting) {
    const std::size_t most = fitting.Its.MostArguments;
    return most != 0 && SizeOf(ProgramOfLine(fitting.Composed), fitting.Parts).Arguments > most;
}

void LeaveOutLast(Fitting& fitting, TextView why) {
    fitting.Note(FitKind::LeftOut, fitting.Parts.back(), why);
    fitting.Parts.pop_back();
}

/// Why the line is too long; nothing if it is not.
std::optional<Text> WhyTooLong(const Fitting& fitting) {
    const LineSize size = SizeOf(ProgramOfLine(fitting.Composed), fitting.Parts);
    const Engine& its = fitting.Its;
    if (its.LongestLine != 0 && size.Characters > its.LongestLine) {
        return Join("it reads no more than ", std::to_string(its.LongestLine), " characters of its command line");
    }
    if (HasTooManyArguments(fitting)) {
        return Join("it reads no more than ", std::to_string(its.MostArguments - 1), " arguments");
    }
    return {};
}

/// True if the script has come to stand ahead of all else. A word that stood there would become one of its arguments.
bool PutScriptAhead(Fitting& fitting, std::vector<CommandPart>::iterator script, TextView why) {
    std::vector<CommandPart>& parts = fitting.Parts;
    if (script == parts.begin() || parts.front().Kind != PartKind::Option) {
        return false;
    }
    fitting.Note(FitKind::Changed, *script, Join(why, ", so it stands ahead of all else"));
    std::rotate(parts.begin(), script, script + 1);
    return true;
}

/// First what the script can say goes there, then the script comes ahead of the switches. Only where that does not do
/// autoexec.cfg runs it, and at last switches are left out.
void Shorten(Fitting& fitting) {
    while (const std::optional<Text> why = WhyTooLong(fitting)) {
        const auto is = [&](auto test) {
            return std::ranges::find_if(fitting.Parts, [&](const CommandPart& part) { return test(fitting, part); });
        };
        const auto none = fitting.Parts.end();
        if (is(IsMovable) != none) {
            MoveAllCommands(fitting, *why);
            continue;
        }
        const auto script = is(ExecutesScript);
        if (script != none && PutScriptAhead(fitting, script, *why)) {
            continue;
        }
        if (script != none && !(script == fitting.Parts.begin() && HasTooManyArguments(fitting))) {
            MoveToAutoexec(fitting, *script, *why);
            fitting.Parts.erase(script);
        } else if (!fitting.Parts.empty()) {
            LeaveOutLast(fitting, *why);
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
        fitting.Fitted.ForShareware = true;
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
