#include "foundry/losses/written_lines.h"

#include <algorithm>

#include "console/console_commands.h"
#include "console/key_names.h"
#include "console/script_effects.h"
#include "console/text_difference.h"

namespace lv {

namespace {

constexpr std::size_t kFewestWords = 3;  // of what sets something: "bind", the key, its command

bool StandsAhead(const std::unordered_map<Text, std::size_t>& lines, const Text& name, std::size_t line) {
    const auto found = lines.find(name);
    return found != lines.end() && found->second < line;
}

}  // namespace

WrittenLines::WrittenLines(TextView written, Console console) : console_(console), lines_(LinesOf(written)) {
    if (console == Console::Unreal) {
        return;
    }
    CommandReader reader(written, RulesOf(console));
    for (ConsoleCommand command; reader.Next(command);) {
        if (command.Words.size() < kFewestWords) {
            continue;
        }
        if (SameText(command.Words.front(), "bind")) {
            binds_.try_emplace(KeyIdentity(console, command.Words[1]), command.Line);
        } else if (SameText(command.Words.front(), "alias")) {
            aliases_.try_emplace(LowerCase(command.Words[1]), command.Line);
        }
    }
}

bool WrittenLines::BindsAhead(const Text& key, std::size_t line) const {
    return StandsAhead(binds_, key, line);
}

bool WrittenLines::DefinesAhead(const Text& alias, std::size_t line) const {
    return StandsAhead(aliases_, alias, line);
}

Text WrittenLines::OwnerOfOddQuote(std::size_t line) const {
    if (console_ == Console::Unreal || line == 0 || line > lines_.size() ||
        std::ranges::count(lines_[line - 1], '"') % 2 == 0) {
        return {};
    }
    const ScriptEffects effects = EffectsOf(lines_[line - 1], console_);
    if (!effects.Binds.All().empty()) {
        return Join("the key ", effects.Binds.All().front().Name);
    }
    if (!effects.Aliases.All().empty()) {
        return Join("the alias ", effects.Aliases.All().front().Name);
    }
    return effects.Settings.All().empty() ? Text() : Join("the setting ", effects.Settings.All().front().Name);
}

}  // namespace lv
