#include "foundry/losses/loss_reasons.h"

#include <algorithm>

#include "console/console_commands.h"
#include "console/key_names.h"
#include "console/text_difference.h"
#include "foundation/field_strings.h"
#include "foundry/reading/script_keywords.h"
#include "foundry/tables/read_commands.h"
#include "foundry/writing/compose_script.h"
#include "foundry/writing/console_layout.h"

namespace lv {

namespace {

constexpr TextView kComment = "//";
constexpr std::size_t kMostEmptyLines = 100;  // in a row
constexpr TextView kGeneral = "Setup Foundry reads and writes this in its own way.";
constexpr TextView kEndsAtComment = "Setup Foundry ends a line at //, in quotes too.";
constexpr TextView kHardBlank = "\xA0";
constexpr TextView kSmallLetter = "Setup Foundry makes a small letter of the key's capital one.";

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

std::size_t SecondHead(const std::vector<TextView>& lines) {
    std::size_t heads = 0;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        heads += TrimmedView(lines[i], kScriptBlanks).starts_with('[') ? 1 : 0;
        if (heads == 2) {
            return i + 1;
        }
    }
    return 0;
}

Text OneKeyWords(TextView written, TextView other) {
    return Join("Setup Foundry has one key for ", written, " and ", other, ", and writes ", written, ".");
}

/// A letter, which is another key than its small one.
bool IsCapital(TextView key) {
    return key.size() == 1 && key.front() >= 'A' && key.front() <= 'Z';
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

TextView WordOf(TextView& rest) {
    return StripQuotesView(NextQuotedWord(rest, kScriptBlanks));
}

}  // namespace

LossReasons::LossReasons(const ComparedScript& file, const ComparedScript& written, const ScriptDialect& dialect)
    : fileEffects_(file.Effects),
      written_(written.Effects),
      dialect_(dialect),
      lines_(LinesOf(file.Content)),
      binds_(lines_, fileEffects_, dialect),
      writtenLines_(written.Content, written_.Of),
      secondHead_(SecondHead(lines_)),
      endOfReading_(EndOfReading(lines_)),
      always_(EffectsOf(ComposeScript(MakeScriptDocument(dialect), {}), fileEffects_.Of)),
      aliasesDefinedAgain_(DefinedAgain(file.Content, fileEffects_.Of)) {
    ReadCutCommands();
}

void LossReasons::ReadCutCommands() {
    for (const TextView line : lines_) {
        const std::size_t comment = line.find(kComment);
        if (comment != TextView::npos) {
            const TextView left = TrimmedView(line.substr(0, comment), kScriptBlanks);
            cutCommands_.emplace(left);
            cutCommands_.emplace(TrimmedView(left.substr(left.rfind(';') + 1), kScriptBlanks));
        }
    }
}

const KeyBindLine* LossReasons::LastBindOf(const ScriptDifference& difference) const {
    return difference.What == EffectKind::Bind ? binds_.LastOf(difference.Identity) : nullptr;
}

/// Whether a document with nothing in it is written with this too.
bool LossReasons::IsAlwaysWritten(const ScriptDifference& difference) const {
    switch (difference.What) {
        case EffectKind::Bind:
            return always_.Binds.Find(difference.Identity) != nullptr;
        case EffectKind::Alias:
            return always_.Aliases.Find(difference.Identity) != nullptr;
        case EffectKind::Setting:
            return always_.Settings.Find(difference.Identity) != nullptr;
        default:
            return std::ranges::any_of(always_.Actions,
                                       [&](const Effect& each) { return each.Value == difference.After.Value; });
    }
}

bool LossReasons::IsOfEmptyField(const ScriptDifference& difference) const {
    const Effect& before = difference.Before;
    if (difference.What != EffectKind::Setting || before.Line == 0 || before.Line > lines_.size()) {
        return false;
    }
    const Effect* const empty = always_.Settings.Find(difference.Identity);
    return empty != nullptr && TrimmedView(lines_[before.Line - 1], kScriptBlanks) == empty->Source;
}

/// Why the key gets what the script gives to another one. Empty if it does not.
Text LossReasons::ReasonOfOtherKey(const ScriptDifference& difference) const {
    const bool isKey = difference.What == EffectKind::Bind && fileEffects_.Of != Console::Unreal;
    const KeyBindLine* const other = isKey ? binds_.OtherOf(difference.Identity) : nullptr;
    const KeyBindLine* const own = LastBindOf(difference);
    if (other == nullptr || (own != nullptr && own->Line > other->Line)) {
        return {};
    }
    return IsCapital(other->Key) ? Text(kSmallLetter) : OneKeyWords(difference.Name, other->Key);
}

/// Why a game does not do what the editor does with the script's line for the key. Empty if it does.
Text LossReasons::ReasonOfRefused(const ScriptDifference& difference) const {
    const KeyBindLine* const bind = LastBindOf(difference);
    if (bind == nullptr) {
        return {};
    }
    if (bind->Words == 0) {
        return "A quote does not close in its line, which the game drops for that; Setup Foundry closes it.";
    }
    const bool isRefused = bind->Words > 3 && RulesOf(fileEffects_.Of).Bind == BindWords::One;
    return isRefused ? "It has several words without quotes, which the game refuses; Setup Foundry reads the first of "
                       "them."
                     : "";
}

Text LossReasons::ReasonOfFreed(const ScriptDifference& difference) const {
    if (difference.What == EffectKind::Alias) {
        return Join("The script removes it again by ", Quoted(difference.Before.Source),
                    ", and Setup Foundry writes that elsewhere, or not at all.");
    }
    const KeyBindLine* const bind = LastBindOf(difference);
    Text ofOther = ReasonOfOtherKey(difference);
    if (!ofOther.empty()) {
        return ofOther;
    }
    if (bind == nullptr || bind->Line <= difference.Before.Line) {
        return Join("The script frees the key again by ", Quoted(difference.Before.Source),
                    ", which Setup Foundry writes ahead of all bindings.");
    }
    const Text refused = ReasonOfRefused(difference);
    return refused.empty() ? ReasonOfLaterLine(difference) : refused;
}

/// The editor binds the key by a line that is nothing of the sort to the game.
Text LossReasons::ReasonOfLaterLine(const ScriptDifference& difference) const {
    const KeyBindLine* const bind = LastBindOf(difference);
    return bind != nullptr && bind->Line > difference.Before.Line
               ? Join("Setup Foundry takes line ", std::to_string(bind->Line),
                      " of the file for the key, and the game does not.")
               : Text();
}

/// Of a command that the file has not got. Empty if nothing is known of it.
Text LossReasons::ReasonOfWritten(const Effect& after) const {
    if (std::ranges::count(after.Source, '"') % 2 != 0) {
        const Text owner = writtenLines_.OwnerOfOddQuote(after.Line);
        if (!owner.empty()) {
            return Join("Setup Foundry writes a quote too many into the line of ", owner, ".");
        }
    }
    return after.Kind == EffectKind::Action ? ReasonOfAction(after) : Text();
}

Text LossReasons::ReasonOfAdded(const ScriptDifference& difference) const {
    if (IsAlwaysWritten(difference)) {
        return "Setup Foundry writes it into each script.";
    }
    Text reason = ReasonOfOtherKey(difference);
    if (reason.empty()) {
        reason = ReasonOfRefused(difference);
    }
    if (!reason.empty()) {
        return reason;
    }
    if (cutCommands_.contains(difference.After.Source)) {
        return Text(kEndsAtComment);
    }
    reason = ReasonOfWritten(difference.After);
    return reason.empty() ? "Setup Foundry takes a line of the script for it, and the game does not." : reason;
}

Text LossReasons::ReasonOf(const ScriptDifference& difference) const {
    const Effect& before = difference.Before;
    if (difference.Kind == DifferenceKind::Moved) {
        return "Setup Foundry writes settings, aliases and bindings ahead of all other lines.";
    }
    if (before.Line == 0) {
        return ReasonOfAdded(difference);
    }
    Text reason = before.IsOfAll ? ReasonOfFreed(difference) : ReasonOfPlace(before);
    if (!reason.empty()) {
        return reason;
    }
    if (difference.What == EffectKind::Bind) {
        reason = IsSetAfter(difference) ? ReasonOfOtherKey(difference) : Text();
        reason = reason.empty() ? ReasonOfKey(difference) : reason;
    }
    if (reason.empty()) {
        reason = ReasonOfLine(before);
    }
    if (reason.empty()) {
        reason = ReasonOfKind(difference);
    }
    if (reason.empty()) {
        reason = ReasonOfQuotes(before);
    }
    if (reason.empty()) {
        reason = ReasonOfSection(before);
    }
    if (reason.empty()) {
        reason = ReasonOfLaterLine(difference);
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
    const TextView behind = TrimmedView(line.substr(before.Source.size()), kScriptBlanks);
    if (behind.starts_with(';') && !before.Source.ends_with('"')) {
        return "Setup Foundry does not end a line at ; and takes that for a part of it.";
    }
    if (line.starts_with('[')) {
        return "Setup Foundry takes a line that begins with [ for the head of a section.";
    }
    if (before.Source.find(kComment) != Text::npos) {
        return Text(kEndsAtComment);
    }
    if (Holds(before.Source, kHardBlank)) {
        return "Setup Foundry makes a blank of character 160.";
    }
    return {};
}

Text LossReasons::ReasonOfQuotes(const Effect& before) const {
    const bool escapes = RulesOf(fileEffects_.Of).Escapes;
    if (escapes && Holds(before.Source, "\\\"")) {
        return "Setup Foundry ends a quote at the next one, whatever stands before that.";
    }
    if (escapes && before.Value.ends_with('\\')) {
        return "Setup Foundry writes it in quotes, and there the \\ belongs to the quote behind it.";
    }
    return std::ranges::count(before.Source, '"') % 2 != 0
               ? "A quote does not close in its line, and Setup Foundry takes such a line otherwise."
               : "";
}

Text LossReasons::ReasonOfSection(const Effect& before) const {
    return fileEffects_.Of != Console::Unreal && secondHead_ > 0 && before.Line > secondHead_
               ? "It stands behind a second line that begins with [, and Setup Foundry writes the first such section "
                 "alone."
               : "";
}

Text LossReasons::ReasonOfRoom(const Text& command) const {
    const std::optional<SlotNumber> block = binds_.FullBlockOf(command);
    if (!block) {
        return {};
    }
    return *block == kExtras.First ? "Setup Foundry has room for 24 other commands, and the script has more."
                                   : "Setup Foundry has no room left for a command of this sort.";
}

Text LossReasons::ReasonOfKey(const ScriptDifference& difference) const {
    const Effect& before = difference.Before;
    const bool isIni = fileEffects_.Of == Console::Unreal;
    if (!before.IsSet) {
        TextView rest = before.Source;
        return SameText(WordOf(rest), "bind") ? "Setup Foundry reads no binding without a command." : "";
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
    const Text written = isIni ? Text() : WrittenKeyName(before.Name, dialect_);
    if (!isIni && KeyIdentity(fileEffects_.Of, written) != difference.Identity) {
        return IsCapital(before.Name) ? Text(kSmallLetter) : OneKeyWords(written, before.Name);
    }
    if (before.Name == "\\" && RulesOf(fileEffects_.Of).Escapes) {
        return "Setup Foundry writes the key in quotes, and there the \\ belongs to the quote behind it.";
    }
    if (!isIni && WordCount(before.Source, fileEffects_.Of) > 3) {
        return "It has several words without quotes, and Setup Foundry reads the first of them.";
    }
    return {};
}

/// What runs behind the written binding of the key, and overrides it.
Text LossReasons::ReasonOfLaterCommand(const ScriptDifference& difference) const {
    const Effect& after = difference.After;
    const bool isOfAll = after.Line == 0 && written_.UnbindsAll;
    const Effect& later = isOfAll ? written_.Unbindall : after;
    const bool overrides = later.Line > 0 && (!later.IsOwn || !later.IsSet || isOfAll);
    return overrides && writtenLines_.BindsAhead(difference.Identity, later.Line)
               ? Join(Quoted(later.Source), " is written behind the bindings, and runs behind them.")
               : Text();
}

/// The same of an alias.
Text LossReasons::ReasonOfLaterUnalias(const ScriptDifference& difference) const {
    const Effect& after = difference.After;
    const bool isOfAll = after.Line == 0 && written_.UnaliasesAll;
    const Effect& later = isOfAll ? written_.Unaliasall : after;
    const bool overrides = later.Line > 0 && (!later.IsSet || isOfAll);
    return overrides && writtenLines_.DefinesAhead(difference.Identity, later.Line)
               ? Join(Quoted(later.Source), " is written behind the aliases, and runs behind them.")
               : Text();
}

Text LossReasons::ReasonOfCommand(const ScriptDifference& difference) const {
    const Effect& before = difference.Before;
    const Effect& after = difference.After;
    if (!before.IsSet) {
        return {};
    }
    const Text later = ReasonOfLaterCommand(difference);
    if (!later.empty()) {
        return later;
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
    return ReasonOfRoom(command);
}

Text LossReasons::ReasonOfAlias(const ScriptDifference& difference) const {
    const Effect& before = difference.Before;
    Text later = before.IsSet ? ReasonOfLaterUnalias(difference) : Text();
    if (!later.empty()) {
        return later;
    }
    if (before.IsSet && Trim(before.Value).empty()) {
        return "Setup Foundry keeps no alias without commands.";
    }
    if (!before.IsSet && IsSetAfter(difference) && before.Name != difference.After.Name) {
        return Join("Setup Foundry writes aliases in small letters, and ", Quoted(before.Source),
                    " removes another spelling.");
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
    if (difference.After.Line > 0 && Trim(before.Value).empty()) {
        return "Setup Foundry reads no empty value.";
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
