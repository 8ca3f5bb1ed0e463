#include "console/console_script.h"

#include <algorithm>
#include <utility>

#include "console/alias_spellings.h"
#include "console/command_words.h"
#include "console/console_commands.h"
#include "console/key_names.h"
#include "foundation/numbers.h"

namespace lv {

namespace {

constexpr std::int32_t kColors = 16;
constexpr std::int32_t kLastColor = 13;  // of a player

std::int32_t PlayerColor(std::int32_t number) {
    return std::min((number % kColors + kColors) % kColors, kLastColor);
}

Text ColorPair(std::int32_t top, std::int32_t bottom) {
    return Join(std::to_string(PlayerColor(top)), Blank, std::to_string(PlayerColor(bottom)));
}

/// Names that are commands where the settings behind them have others.
bool IsPlayersCommand(TextView name) {
    return SameText(name, "name") || SameText(name, "color") || SameText(name, "rate");
}

Text Joined(const std::vector<TextView>& words, std::size_t first) {
    Text all;
    for (std::size_t i = first; i < words.size(); ++i) {
        all.append(i == first ? "" : " ").append(words[i]);
    }
    return all;
}

class ScriptRun {
  public:
    explicit ScriptRun(Console console) : rules_(RulesOf(console)), spellings_(rules_.Cases) {}

    ScriptEffects Run(TextView script) {
        RunText(script, 0);
        effects_.TooLong = rules_.Buffer > 0 && script.size() > rules_.Buffer;
        return std::move(effects_);
    }

  private:
    using Words = std::vector<TextView>;

    void RunText(TextView text, int depth);
    void Execute(const ConsoleCommand& command, int depth);
    bool TakeSetCommand(const Words& words, TextView first);
    bool TakeBindOrAlias(const Words& words, TextView first);
    void TakeBind(const Words& words);
    void TakeUnbind(const Words& words);
    void TakeAlias(const Words& words);
    void TakeUnaliases(const Words& words);
    void PutAlias(Effect effect);
    void TakeColor(const Words& words);
    void Set(TextView name, Text value);
    void SetOldPlayer(TextView lowerName, TextView name, Text value);
    bool RunAlias(TextView name, int depth);
    void TakeAction(const ConsoleCommand& command);
    Effect MakeEffect(EffectKind kind, TextView name, Text value);

    const ConsoleRules& rules_;
    ScriptEffects effects_;
    ConsoleCommand command_;  // of the script itself
    AliasSpellings spellings_;
    bool inAlias_ = false;
    std::size_t turn_ = 0;
    std::size_t aliasBytes_ = 0;
};

Effect ScriptRun::MakeEffect(EffectKind kind, TextView name, Text value) {
    return {.Kind = kind,
            .Name = Text(name),
            .Value = std::move(value),
            .IsSet = true,
            .IsOwn = !inAlias_,
            .Line = command_.Line,
            .Turn = turn_++,
            .Source = Text(command_.Whole)};
}

void ScriptRun::RunText(TextView text, int depth) {
    CommandReader reader(text, rules_);
    if (depth == 0) {
        while (reader.Next(command_)) {
            Execute(command_, depth);
        }
        return;
    }
    ConsoleCommand command;
    while (reader.Next(command)) {
        Execute(command, depth);
    }
}

void ScriptRun::Execute(const ConsoleCommand& command, int depth) {
    const Words& words = command.Words;
    const TextView first = words.front();
    const WordUse use = UseOfWord(first);
    if (use == WordUse::Command) {
        if (!TakeBindOrAlias(words, first) && !TakeSetCommand(words, first)) {
            TakeAction(command);
        }
        return;
    }
    if (RunAlias(first, depth)) {
        return;
    }
    const bool isSetting = words.size() > 1 && (use == WordUse::Setting || words.size() == 2) &&
                           (!LacksSetting(rules_.Id, first) || effects_.Settings.Find(Text(first)) != nullptr);
    if (!isSetting) {
        TakeAction(command);
    } else if (rules_.OldPlayer && SameText(first, "name")) {
        Set("name", Joined(words, 1));  // a command, in any letter case
    } else {
        Set(first, Text(words[1]));
    }
}

bool ScriptRun::TakeBindOrAlias(const Words& words, TextView first) {
    if (SameText(first, "bind")) {
        TakeBind(words);
    } else if (SameText(first, "unbind")) {
        TakeUnbind(words);
    } else if (SameText(first, "unbindall")) {
        effects_.Binds.Clear();
        effects_.UnbindsAll = true;
        effects_.Unbindall = MakeEffect(EffectKind::Bind, first, {});
    } else if (SameText(first, "alias")) {
        TakeAlias(words);
    } else if (SameText(first, "unalias") && (rules_.Has & has::kUnalias) != 0) {
        TakeUnaliases(words);
    } else if (SameText(first, "unaliasall") && (rules_.Has & has::kUnaliasAll) != 0) {
        effects_.Aliases.Clear();
        spellings_.Clear();
        effects_.UnaliasesAll = true;
        effects_.Unaliasall = MakeEffect(EffectKind::Alias, first, {});
    } else {
        return false;
    }
    return true;
}

/// What sets a setting by the name of a command.
bool ScriptRun::TakeSetCommand(const Words& words, TextView first) {
    const bool isSet = (SameText(first, "set") && (rules_.Has & has::kSet) != 0) ||
                       (SameText(first, "seta") && (rules_.Has & has::kSeta) != 0) ||
                       ((SameText(first, "setu") || SameText(first, "sets")) && (rules_.Has & has::kSetu) != 0);
    if (isSet) {
        // A fourth word says who else is told.
        const bool isCommand = rules_.OldPlayer && IsPlayersCommand(words[1]);
        if ((words.size() == 3 || words.size() == 4) && !isCommand) {
            Set(words[1], Text(words[2]));
        }
        return true;
    }
    if (SameText(first, "color") && words.size() > 1) {
        TakeColor(words);
        return true;
    }
    if (SameText(first, "setinfo") && words.size() == 3) {
        Set(Join("setinfo ", words[1]), Text(words[2]));
        return true;
    }
    return false;
}

void ScriptRun::TakeBind(const Words& words) {
    const bool tooMany = words.size() > 3 && rules_.Bind == BindWords::One;
    if (words.size() < 3 || tooMany || !IsKeyName(rules_.Id, words[1])) {
        return;  // shown, or refused
    }
    Effect effect = MakeEffect(EffectKind::Bind, words[1], Joined(words, 2));
    effect.IsSet = !effect.Value.empty();
    effects_.Binds.Put(KeyIdentity(rules_.Id, words[1]), std::move(effect));
}

void ScriptRun::TakeUnbind(const Words& words) {
    if (words.size() != 2 || !IsKeyName(rules_.Id, words[1])) {
        return;
    }
    Effect effect = MakeEffect(EffectKind::Bind, words[1], {});
    effect.IsSet = false;
    effects_.Binds.Put(KeyIdentity(rules_.Id, words[1]), std::move(effect));
}

void ScriptRun::TakeAlias(const Words& words) {
    const bool isBare = words.size() == 2;
    if (words.size() < 2 || words[1].size() > rules_.AliasName || (isBare && !rules_.BareAliasEmpties)) {
        return;
    }
    PutAlias(MakeEffect(EffectKind::Alias, words[1], Joined(words, 2)));
}

void ScriptRun::TakeUnaliases(const Words& words) {
    for (std::size_t i = 1; i < words.size(); ++i) {
        Effect effect = MakeEffect(EffectKind::Alias, words[i], {});
        effect.IsSet = false;
        PutAlias(std::move(effect));
    }
}

/// In the table stands the one that a call runs.
void ScriptRun::PutAlias(Effect effect) {
    const Text identity = LowerCase(effect.Name);
    effects_.Aliases.Put(identity, spellings_.Put(std::move(effect)));
}

void ScriptRun::TakeColor(const Words& words) {
    const std::int32_t top = ToLong(words[1]);
    const std::int32_t bottom = ToLong(words.size() > 2 ? words[2] : words[1]);
    if (rules_.OldPlayer) {
        Set("color", ColorPair(top, bottom));
        return;
    }
    Set("topcolor", std::to_string(PlayerColor(top)));
    Set("bottomcolor", std::to_string(PlayerColor(bottom)));
}

void ScriptRun::Set(TextView name, Text value) {
    const Text lower = LowerCase(name);
    if (rules_.OldPlayer && lower.starts_with("_cl_")) {
        SetOldPlayer(lower, name, std::move(value));
        return;
    }
    const Text identity = lower == "playerclass" ? "_cl_playerclass" : Text(name);
    effects_.Settings.Put(identity, MakeEffect(EffectKind::Setting, name, std::move(value)));
}

/// The settings behind the commands "name" and "color".
void ScriptRun::SetOldPlayer(TextView lowerName, TextView name, Text value) {
    Text identity(name);
    if (lowerName == "_cl_name") {
        identity = "name";
    } else if (lowerName == "_cl_color") {
        const std::int32_t both = ToLong(value);
        identity = "color";
        value = ColorPair(both / kColors, both);
    }
    effects_.Settings.Put(identity, MakeEffect(EffectKind::Setting, name, std::move(value)));
}

bool ScriptRun::RunAlias(TextView name, int depth) {
    const Effect* const alias = effects_.Aliases.Find(LowerCase(name));
    if (alias == nullptr || !alias->IsSet) {
        return false;
    }
    if (depth == 0) {
        TakeAction(command_);
    }
    const Text body = alias->Value;
    if (depth < kDeepestAlias && aliasBytes_ + body.size() <= kMostAliasBytes) {
        aliasBytes_ += body.size() + 1;
        const bool outer = std::exchange(inAlias_, true);
        RunText(body, depth + 1);
        inAlias_ = outer;
    }
    return true;
}

/// Those of an alias are told by its body. What is said is said to the letter.
void ScriptRun::TakeAction(const ConsoleCommand& command) {
    if (inAlias_) {
        return;
    }
    const TextView first = command.Words.front();
    const bool isSaid = SameText(first, "say") || SameText(first, "say_team");
    Text words = isSaid && StartsWithText(command.Raw, first) ? Text(command.Raw) : Joined(command.Words, 0);
    effects_.Actions.push_back(MakeEffect(EffectKind::Action, first, std::move(words)));
}

}  // namespace

ScriptEffects ConsoleEffects(TextView script, Console console) {
    return ScriptRun(console).Run(script);
}

}  // namespace lv
