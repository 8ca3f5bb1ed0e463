#include "foundry/losses/bind_lines.h"

#include <unordered_set>

#include "console/console_commands.h"
#include "console/key_names.h"
#include "foundation/field_strings.h"
#include "foundry/reading/script_lines.h"
#include "foundry/tables/read_commands.h"

namespace lv {

namespace {

constexpr TextView kComment = "//";
constexpr TextView kSay = "say ";
constexpr TextView kSayTeam = "say_team ";
constexpr TextView kExec = "exec ";

TextView TakeWord(TextView& rest) {
    return StripQuotesView(NextQuotedWord(rest, kScriptBlanks));
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

/// A command takes its slot when it is read, and keeps it though its key is bound again.
class TakenSlots {
  public:
    bool HasRoom(SlotBlock block, const Text& command) {
        std::unordered_set<Text>& commands = taken_[block.First];
        const auto room = static_cast<std::size_t>(block.Last) - static_cast<std::size_t>(block.First) + 1;
        return commands.contains(command) || (commands.size() < room && commands.insert(command).second);
    }

  private:
    std::unordered_map<SlotNumber, std::unordered_set<Text>> taken_;
};

}  // namespace

BindLines::BindLines(const std::vector<TextView>& lines, const ScriptEffects& effects, const ScriptDialect& dialect) {
    TakenSlots slots;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        TextView rest = TrimmedView(lines[i].substr(0, lines[i].find(kComment)), kScriptBlanks);
        if (!SameText(TakeWord(rest), "bind")) {
            continue;
        }
        const TextView key = TakeWord(rest);
        const Text command = Trim(TakeWord(rest));
        const Text identity = KeyIdentity(effects.Of, key);
        const KeyBindLine line{Text(key), command, i + 1, WordCount(lines[i], effects.Of)};
        last_[identity] = line;
        const Text written = WrittenKeyName(key, dialect);
        if (written.empty()) {
            continue;
        }
        const Text writtenIdentity = KeyIdentity(effects.Of, written);
        if (writtenIdentity != identity && IsKeyName(effects.Of, key)) {
            others_[writtenIdentity] = line;
        }
        if (SlotFromCommand(LowerCase(command), dialect.GameKind).Known) {
            continue;
        }
        const SlotBlock block = BlockOf(command, effects);
        if (!slots.HasRoom(block, command) && !slots.HasRoom(kExtras, command)) {
            dropped_.emplace(command, block.First);
        }
    }
}

const KeyBindLine* BindLines::LastOf(const Text& key) const {
    const auto found = last_.find(key);
    return found == last_.end() ? nullptr : &found->second;
}

const KeyBindLine* BindLines::OtherOf(const Text& key) const {
    const auto found = others_.find(key);
    return found == others_.end() ? nullptr : &found->second;
}

std::optional<SlotNumber> BindLines::FullBlockOf(const Text& command) const {
    const auto found = dropped_.find(command);
    return found == dropped_.end() ? std::nullopt : std::optional(found->second);
}

Text WrittenKeyName(TextView key, const ScriptDialect& dialect) {
    return Text(KeyName(KeyFromName(LowerCase(key)), StyleOfFamily(dialect.ScriptFamily)).Name);
}

std::size_t WordCount(TextView source, Console console) {
    CommandReader reader(source, RulesOf(console));
    ConsoleCommand command;
    return reader.Next(command) ? command.Words.size() : 0;
}

}  // namespace lv
