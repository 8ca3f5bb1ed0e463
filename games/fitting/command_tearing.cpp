#include "games/fitting/command_tearing.h"

#include <algorithm>

#include "foundation/field_strings.h"

namespace lv {

namespace {

constexpr TextView kSetCommand = "+set";
constexpr std::size_t kSetWords = 3;

bool BeginsWith(TextView text, TextView signs) {
    return !text.empty() && Holds(signs, text.substr(0, 1));
}

bool IsNumber(TextView text) {
    return text.size() > 1 && text[1] >= '0' && text[1] <= '9';
}

bool HoldsBehindBlank(TextView text, TextView signs) {
    for (std::size_t at = 0; (at = text.find(' ', at)) != TextView::npos; ++at) {
        if (BeginsWith(text.substr(at + 1), signs)) {
            return true;
        }
    }
    return false;
}

/// Whether the engine takes a command to end within an argument, or ahead of it.
bool EndsAt(CommandEnd ends, TextView argument) {
    switch (ends) {
        case CommandEnd::AnySign:
            return argument.find_first_of("+-") != TextView::npos;
        case CommandEnd::AnyPlus:
            return Holds(argument, "+") || BeginsWith(argument, "-") || HoldsBehindBlank(argument, "-");
        case CommandEnd::AfterBlank:
            return BeginsWith(argument, "+-") || HoldsBehindBlank(argument, "+-");
        case CommandEnd::Argument:
            return BeginsWith(argument, "+-");
        case CommandEnd::ArgumentWord:
            return BeginsWith(argument, "+-") && !IsNumber(argument);
        case CommandEnd::ArgumentPlus:
            return BeginsWith(argument, "+");
        case CommandEnd::Never:
            return false;
    }
    return false;
}

/// The first word without its sign, as what a command may not end in.
bool NameEnds(CommandEnd ends, TextView name) {
    const bool anywhere = ends == CommandEnd::AnySign || ends == CommandEnd::AnyPlus;
    return anywhere && EndsAt(ends, name);
}

bool IsControl(char c) {
    return static_cast<unsigned char>(c) < ' ';
}

/// What a script reads as more than the text of one word.
bool NeedsQuotes(TextView argument) {
    return argument.empty() || argument.find_first_of(" ;{}()'") != TextView::npos || Holds(argument, "//");
}

}  // namespace

bool SetsEarly(const Engine& engine, const CommandPart& command) {
    return engine.Set == SetCommand::Early && command.Is(kSetCommand) && command.Words.size() == kSetWords;
}

std::optional<Text> WhyTorn(const Engine& engine, const CommandPart& command) {
    if (engine.Ends == CommandEnd::Never || SetsEarly(engine, command)) {
        return {};
    }
    for (std::size_t i = 0; i < command.Words.size(); ++i) {
        const Text argument = i == 0 ? DropLeft(command.Words[i].Whole(), 1) : command.Words[i].Whole();
        if (i == 0 ? NameEnds(engine.Ends, argument) : EndsAt(engine.Ends, argument)) {
            return Join("it would take \"", argument, "\" for the end of the command");
        }
        if (!engine.KeepsQuotes && i > 0 && (argument.empty() || Holds(argument, Blank))) {
            return Join("it would lose the double quotes around \"", argument, "\"");
        }
    }
    return {};
}

bool HoldsCommand(const Engine& engine, const CommandPart& option) {
    return std::ranges::any_of(option.Words, [&](const CommandWord& word) {
        const Text argument = word.Whole();
        switch (engine.Ends) {
            case CommandEnd::AnySign:
            case CommandEnd::AnyPlus:
                return Holds(argument, "+");
            case CommandEnd::AfterBlank:
                return BeginsWith(argument, "+") || HoldsBehindBlank(argument, "+");
            case CommandEnd::Argument:
            case CommandEnd::ArgumentWord:
            case CommandEnd::ArgumentPlus:
                return BeginsWith(argument, "+");
            case CommandEnd::Never:
                break;
        }
        return false;
    });
}

std::optional<Text> AsScriptLine(const CommandPart& command) {
    Text line;
    for (const CommandWord& word : command.Words) {
        const bool first = &word == &command.Words.front();
        const Text argument = word.Whole();
        if (std::ranges::any_of(argument, IsControl) || (word.IsGiven && Holds(argument, DoubleQuote))) {
            return {};
        }
        const bool typed = !word.IsGiven && (Holds(word.Written, DoubleQuote) || !Holds(word.Written, "//"));
        Text text = typed ? word.Written : NeedsQuotes(argument) ? Join(DoubleQuote, argument, DoubleQuote) : argument;
        if (first && text.starts_with('+') && !command.BehindLineBreak) {
            text.erase(0, 1);
        }
        line += Join(line.empty() ? TextView() : Blank, text);
    }
    return line;
}

}  // namespace lv
