#include "foundry/losses/loss_reasons.h"

#include <algorithm>
#include <set>

#include "console/console_commands.h"
#include "console/text_difference.h"
#include "foundation/field_strings.h"
#include "foundry/reading/script_keywords.h"
#include "foundry/tables/read_commands.h"
#include "foundry/writing/console_layout.h"

namespace lv {

namespace {

constexpr TextView kComment = "//";
constexpr std::size_t kMostEmptyLines = 100;  // in a row
constexpr TextView kGeneral = "Setup Foundry reads and writes this in its own way.";
constexpr TextView kSay = "say ";
constexpr TextView kSayTeam = "say_team ";
constexpr TextView kExec = "exec ";

Text Quoted(TextView text) {
    return Join(DoubleQuote, text, DoubleQuote);
}

/// The line at which the reader takes the script to end; 0 if it goes on to its end.
std::size_t EndOfReading(const std::vector<TextView>& lines) {
    std::size_t empty = 0;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        empty = lines[i].empty() ? empty + 1 : 0;
        if (empty > kMostEmptyLines) {
            return i + 1;
        }
    }
    return 0;
}

std::unordered_set<Text> DefinedAgain(TextView file, Console console) {
    if (console == Console::Unreal) {
        return {};
    }
    std::unordered_set<Text> seen;
    std::unordered_set<Text> again;
    CommandReader reader(file, RulesOf(console));
    for (ConsoleCommand command; reader.Next(command);) {
        if (command.Words.size() > 1 && SameText(command.Words.front(), "alias")) {
            Text name = LowerCase(command.Words[1]);
            if (!seen.insert(name).second) {
                again.insert(std::move(name));
            }
        }
    }
    return again;
}

bool IsSetAfter(const ScriptDifference& difference) {
    return difference.After.Line > 0 && difference.After.IsSet;
}

bool IsAxis(TextView key) {
    return SameText(key, "mousex") || SameText(key, "mousey");
}

/// Whether an ini's line of this key has become part of an axis's one.
bool StandsBehindAnAxis(TextView key, const ScriptEffects& written) {
    return std::ranges::any_of(written.Binds.All(), [key](const Effect& bind) {
        return IsAxis(bind.Name) && Holds(LowerCase(bind.Value), Join(LowerCase(key), "="));
    });
}

/// The words of the command as the script spells it.
std::size_t WordCount(TextView source, Console console) {
    CommandReader reader(source, RulesOf(console));
    ConsoleCommand command;
    return reader.Next(command) ? command.Words.size() : 0;
}

/// The block that a command goes to which no fixed slot stands for, if the game's own ones are taken.
SlotBlock BlockOf(TextView command, const ScriptEffects& effects) {
    if (StartsWithText(command, kSay) || StartsWithText(command, kSayTeam)) {
        return kMessages;
    }
    if (StartsWithText(command, kExec)) {
        return kBoundScripts;
    }
    return effects.Aliases.Find(LowerCase(command)) != nullptr ? kBoundAliases : kExtras;
}

}  // namespace

LossReasons::LossReasons(TextView file, const ScriptEffects& fileEffects, const ScriptEffects& written,
                         const ScriptDialect& dialect)
    : fileEffects_(fileEffects),
      written_(written),
      dialect_(dialect),
      lines_(LinesOf(file)),
      endOfReading_(EndOfReading(lines_)),
      aliasesDefinedAgain_(DefinedAgain(file, fileEffects.Of)) {}

Text LossReasons::ReasonOf(const ScriptDifference& difference) const {
    const Effect& before = difference.Before;
    if (difference.Kind == DifferenceKind::Moved) {
        return "Setup Foundry writes settings, aliases and bindings ahead of all other lines.";
    }
    if (before.Line == 0) {
        return "Setup Foundry writes it into each script.";
    }
    Text reason = ReasonOfPlace(before);
    if (!reason.empty()) {
        return reason;
    }
    if (difference.What == EffectKind::Bind) {
        reason = ReasonOfKey(difference);
    }
    if (reason.empty()) {
        reason = ReasonOfLine(before);
    }
    if (reason.empty()) {
        reason = ReasonOfKind(difference);
    }
    return reason.empty() ? Text(kGeneral) : reason;
}

Text LossReasons::ReasonOfKind(const ScriptDifference& difference) const {
    switch (difference.What) {
        case EffectKind::Bind:
            return ReasonOfCommand(difference);
        case EffectKind::Alias:
            return ReasonOfAlias(difference);
        case EffectKind::Setting:
            return ReasonOfSetting(difference);
        default:
            return ReasonOfAction(difference.Before);
    }
}

Text LossReasons::ReasonOfPlace(const Effect& before) const {
    if (endOfReading_ > 0 && before.Line >= endOfReading_) {
        return "It stands behind more than a hundred empty lines, where Setup Foundry takes a script to end.";
    }
    if (!before.IsOwn) {
        return "An alias does it that the script calls, and Setup Foundry writes such calls behind the bindings.";
    }
    return {};
}

Text LossReasons::ReasonOfLine(const Effect& before) const {
    const TextView line =
        before.Line <= lines_.size() ? TrimmedView(lines_[before.Line - 1], kScriptBlanks) : TextView();
    if (!line.starts_with(before.Source)) {
        return "It is not the first command of its line, and Setup Foundry reads no others.";
    }
    if (line.starts_with('[')) {
        return "Setup Foundry takes a line that begins with [ for the head of a section.";
    }
    if (before.Source.find(kComment) != Text::npos) {
        return "Setup Foundry ends a line at //, in quotes too.";
    }
    return {};
}

bool LossReasons::RoomIsTaken(SlotBlock block) const {
    std::set<Text> commands;
    for (const Effect& bind : fileEffects_.Binds.All()) {
        const Text command = Trim(bind.Value);
        if (bind.IsSet && !SlotFromCommand(LowerCase(command), dialect_.GameKind).Known &&
            BlockOf(command, fileEffects_).First == block.First) {
            commands.insert(command);
        }
    }
    const auto room = static_cast<std::size_t>(block.Last) - static_cast<std::size_t>(block.First) + 1;
    return commands.size() > room;
}

Text LossReasons::ReasonOfKey(const ScriptDifference& difference) const {
    const Effect& before = difference.Before;
    const bool isIni = fileEffects_.Of == Console::Unreal;
    if (!before.IsSet) {
        return {};
    }
    const KeyIndex key = KeyFromName(LowerCase(before.Name));
    if (isIni && IsAxis(before.Name)) {
        return "Setup Foundry does not end the line of an axis that has no speed: what follows stands on it.";
    }
    if (isIni && !IsSetAfter(difference) && StandsBehindAnAxis(before.Name, written_)) {
        return "Setup Foundry writes it behind an axis that has no speed, on the same line.";
    }
    if (key == kNoKey) {
        return isIni ? "Setup Foundry always writes its own command for this key."
                     : Join("Setup Foundry has no key ", before.Name, ".");
    }
    if (isIni && difference.After.Line > 0 && !difference.After.IsSet) {
        return "Setup Foundry writes another line for this key behind it.";
    }
    if (!isIni && !IsWrittenKey(key, dialect_.ScriptFamily)) {
        return "Setup Foundry writes no keys of the keypad for this game.";
    }
    if (before.Name == "\\" && RulesOf(fileEffects_.Of).Escapes) {
        return "Setup Foundry writes the key in quotes, and there the \\ belongs to the quote behind it.";
    }
    if (!isIni && WordCount(before.Source, fileEffects_.Of) > 3) {
        return "It has several words without quotes, and Setup Foundry reads the first of them.";
    }
    return {};
}

Text LossReasons::ReasonOfCommand(const ScriptDifference& difference) const {
    const Effect& before = difference.Before;
    const Effect& after = difference.After;
    if (!before.IsSet) {
        return {};
    }
    if (after.Line > 0 && (!after.IsOwn || !after.IsSet)) {
        return Join(Quoted(after.Source), " is written behind the bindings, and runs behind them.");
    }
    const Text command = Trim(before.Value);
    const SlotMatch match = SlotFromCommand(LowerCase(command), dialect_.GameKind);
    if (match.Known && after.IsSet && after.Line > 0) {
        return Join("Setup Foundry writes its own command for this function: ", Quoted(after.Value), ".");
    }
    if (match.Known) {
        return Join("To Setup Foundry ", Quoted(command), " is a command of another game.");
    }
    if (after.Line > 0 && SameText(Trim(after.Value), command)) {
        return "Setup Foundry does not keep the letter case.";
    }
    if (RoomIsTaken(kExtras)) {
        return "Setup Foundry has room for 24 other commands, and the script has more.";
    }
    if (RoomIsTaken(BlockOf(command, fileEffects_))) {
        return "Setup Foundry has no room left for a command of this sort.";
    }
    return {};
}

Text LossReasons::ReasonOfAlias(const ScriptDifference& difference) const {
    const Effect& before = difference.Before;
    if (before.IsSet && Trim(before.Value).empty()) {
        return "Setup Foundry keeps no alias without commands.";
    }
    if (fileEffects_.Of == Console::Unreal) {
        return "Setup Foundry keeps the first of several aliases of a name.";
    }
    if (aliasesDefinedAgain_.contains(LowerCase(before.Name))) {
        return "The script defines it more than once; Setup Foundry keeps the first one, a game the last.";
    }
    if (WordCount(before.Source, fileEffects_.Of) > 3) {
        return "It has several words without quotes, and Setup Foundry reads the first of them.";
    }
    if (difference.After.Line > 0 && SameText(before.Value, difference.After.Value)) {
        return "Setup Foundry writes aliases in small letters.";
    }
    return {};
}

Text LossReasons::ReasonOfSetting(const ScriptDifference& difference) const {
    const Effect& before = difference.Before;
    const TextView name = TextView(before.Name).substr(before.Name.rfind(' ') + 1);
    const bool isKnown = FindKeyword(LowerCase(name)) != nullptr;
    if (!isKnown) {
        return {};
    }
    if (difference.After.Line > 0) {
        return "Setup Foundry keeps such a value otherwise.";
    }
    return name == LowerCase(name) || fileEffects_.Of == Console::Unreal
               ? "Setup Foundry has a place of its own for it, and writes that in another way."
               : "Setup Foundry writes the names of settings in small letters.";
}

Text LossReasons::ReasonOfAction(const Effect& before) const {
    CommandReader reader(before.Source, RulesOf(fileEffects_.Of));
    ConsoleCommand command;
    if (fileEffects_.Of == Console::Unreal || !reader.Next(command)) {
        return {};
    }
    const bool isSet = SameText(command.Words.front(), "set") && command.Words.size() > 1;
    const TextView keyword = command.Words[isSet ? 1 : 0];
    if (FindKeyword(LowerCase(keyword)) != nullptr) {
        return Join("Setup Foundry has a place of its own for ", keyword, ", and writes that in another way.");
    }
    return {};
}

}  // namespace lv
