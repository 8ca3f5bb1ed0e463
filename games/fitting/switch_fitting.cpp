#include "games/fitting/switch_fitting.h"

#include <algorithm>
#include <iterator>
#include <span>

#include "foundation/field_strings.h"
#include "games/fitting/command_tearing.h"

namespace lv {

namespace {

using Parts = std::vector<CommandPart>;
using Words = std::vector<CommandWord>;

constexpr TextView kValue = "%";
constexpr TextView kEveryOption = "-*";

CommandWord WordOf(TextView text) {
    return {Text(text), Text(text), {}, false};
}

void AddSign(CommandWord& word) {
    if (word.IsGiven) {
        word.Option.insert(0, "+");
    } else {
        word.Argument.insert(0, "+");
        word.Written = Holds(word.Argument, Blank) ? Join(DoubleQuote, word.Argument, DoubleQuote) : word.Argument;
    }
}

bool Fits(const CommandPart& part, const std::vector<Text>& from) {
    const bool asLong =
        part.Kind == PartKind::Option ? part.Words.size() >= from.size() : part.Words.size() == from.size();
    return asLong && std::ranges::equal(from, std::span(part.Words).first(from.size()),
                                        [](const Text& wanted, const CommandWord& word) {
                                            return wanted == kValue || SameText(wanted, word.Whole());
                                        });
}

/// What the rule writes for the part. Words behind those that the rule knows follow.
Parts WrittenAs(const WrittenOtherwise& rule, const CommandPart& part) {
    Parts parts = PartsOfCommand(rule.To, {});
    const auto value = std::ranges::find(rule.From, kValue);
    for (CommandPart& each : parts) {
        for (CommandWord& word : each.Words) {
            if (word.Written == kValue && value != rule.From.end()) {
                word = part.Words[static_cast<std::size_t>(value - rule.From.begin())];
            }
        }
    }
    for (std::size_t i = rule.From.size(); i < part.Words.size(); ++i) {
        parts.push_back({PartKind::Word, {part.Words[i]}, false});
    }
    return parts;
}

bool IsNumber(const CommandWord& word) {
    const Text text = word.Whole();
    return !text.empty() && text.find_first_not_of("0123456789") == Text::npos;
}

/// How many words go with a refused switch, itself included.
std::size_t WordsOfSwitch(const RefusedSwitch& refused, const CommandPart& part) {
    constexpr TextView kWithoutValue[] = {"-window",  "-fullscreen", "-nolan",     "-noudp",
                                          "-nosound", "-nocdaudio",  "-minmemory", "-console"};
    constexpr TextView kPerhapsNumber[] = {"-listen", "-dedicated"};
    const auto is = [&](TextView name) { return part.Is(name); };
    if (refused.Switch == kEveryOption || part.Kind != PartKind::Option) {
        return part.Words.size();
    }
    if (part.Words.size() == 1 || std::ranges::any_of(kWithoutValue, is)) {
        return 1;
    }
    return std::ranges::any_of(kPerhapsNumber, is) && !IsNumber(part.Words[1]) ? 1 : 2;
}

const RefusedSwitch* RefusalOf(const Engine& engine, const CommandPart& part) {
    const auto refused = std::ranges::find_if(engine.Refused, [&](const RefusedSwitch& each) {
        return part.Is(each.Switch) || (each.Switch == kEveryOption && part.Kind == PartKind::Option);
    });
    return refused == engine.Refused.end() ? nullptr : &*refused;
}

bool HasPart(const Parts& parts, const CommandPart& wanted) {
    return std::ranges::any_of(parts, [&](const CommandPart& part) { return part.Is(wanted.Words.front().Whole()); });
}

/// Behind the program, ahead of all else.
void AddAhead(Fitting& fitting, const CommandPart& part, TextView why) {
    fitting.Note(FitKind::Added, part, why);
    fitting.Parts.insert(fitting.Parts.begin(), part);
}

CommandWord DirectoryWord(Text directory) {
    constexpr std::size_t kDriveRoot = 3;  // "C:\"
    if (directory.size() > kDriveRoot && directory.ends_with('\\')) {
        directory.pop_back();
    }
    const bool parted = Holds(directory, Blank);
    return {parted ? Join(DoubleQuote, directory, DoubleQuote) : directory, directory, {}, true};
}

}  // namespace

void SplitLines(Fitting& fitting) {
    for (CommandPart& part : fitting.Parts) {
        if (part.BehindLineBreak) {
            fitting.Note(FitKind::Changed, part, "its command line has no lines, so it is a command of its own there");
            AddSign(part.Words.front());
            part.BehindLineBreak = false;
        }
    }
}

void WriteOtherwise(Fitting& fitting) {
    Parts parts;
    for (const CommandPart& part : fitting.Parts) {
        const auto rule = std::ranges::find_if(fitting.Its.Otherwise,
                                               [&](const WrittenOtherwise& each) { return Fits(part, each.From); });
        if (rule == fitting.Its.Otherwise.end()) {
            parts.push_back(part);
            continue;
        }
        const Parts written = WrittenAs(*rule, part);
        fitting.Note(FitKind::Changed, part, Join("it knows it as ", rule->To));
        parts.insert(parts.end(), written.begin(), written.end());
    }
    fitting.Parts = std::move(parts);
}

void LeaveOutRefused(Fitting& fitting) {
    Parts parts;
    for (const CommandPart& part : fitting.Parts) {
        const RefusedSwitch* const refused = RefusalOf(fitting.Its, part);
        if (refused == nullptr) {
            parts.push_back(part);
            continue;
        }
        const auto end = part.Words.begin() + static_cast<std::ptrdiff_t>(WordsOfSwitch(*refused, part));
        fitting.Note(FitKind::LeftOut, {part.Kind, Words(part.Words.begin(), end), false}, refused->Reason);
        for (auto word = end; word != part.Words.end(); ++word) {
            parts.push_back({PartKind::Word, {*word}, false});
        }
    }
    fitting.Parts = std::move(parts);
}

void WriteSetsPlain(Fitting& fitting) {
    if (fitting.Its.Set != SetCommand::No) {
        return;
    }
    for (CommandPart& part : fitting.Parts) {
        if (part.Kind == PartKind::Command && part.Is("+set") && part.Words.size() > 2) {
            fitting.Note(FitKind::Changed, part, "it knows no \"set\", and takes the variable as a command");
            part.Words.erase(part.Words.begin());
            AddSign(part.Words.front());
        }
    }
}

void AddWanted(Fitting& fitting) {
    for (const WantedSwitch& wanted : fitting.Its.Wanted) {
        if ((wanted.Games & EngineGamesOf(fitting.Composed.Played)) == 0) {
            continue;
        }
        for (const CommandPart& part : PartsOfCommand(wanted.Switch, {})) {
            if (!HasPart(fitting.Parts, part)) {
                AddAhead(fitting, part, "it plays another game without it");
            }
        }
    }
}

void TellDataDirectory(Fitting& fitting) {
    const Text& directory = fitting.Composed.DataDirectory;
    if (directory.empty()) {
        return;
    }
    constexpr TextView kWhy = "that is how it finds the game";
    const DataWay& way = fitting.Its.DataWays.front();
    const CommandPart option{PartKind::Option, {WordOf(way.Word), DirectoryWord(directory)}, false};
    const CommandPart variable{PartKind::Command, {WordOf("+set"), WordOf(way.Word), DirectoryWord(directory)}, false};
    switch (way.How) {
        case DataWay::Sort::WorkingDirectory:
            fitting.Fitted.StartInDataDirectory = true;
            break;
        case DataWay::Sort::Option:
            if (!HasPart(fitting.Parts, option)) {
                AddAhead(fitting, option, kWhy);
            }
            break;
        case DataWay::Sort::Variable:
            AddAhead(fitting, variable, kWhy);
            break;
        case DataWay::Sort::Environment:
            fitting.Fitted.Environment.emplace_back(way.Word, directory);
            break;
    }
}

void NoteHeldCommands(Fitting& fitting) {
    for (const CommandPart& part : fitting.Parts) {
        if (part.Kind == PartKind::Option && HoldsCommand(fitting.Its, part)) {
            fitting.Note(FitKind::Kept, part, "it may take what stands behind \"+\" for a command");
        }
    }
}

}  // namespace lv
