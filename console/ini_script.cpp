#include "console/ini_script.h"

#include <algorithm>
#include <map>
#include <unordered_map>
#include <utility>

#include "console/key_names.h"
#include "foundation/field_strings.h"
#include "foundation/numbers.h"

namespace lv {

namespace {

constexpr TextView kInput = "[engine.input]";
constexpr TextView kAliases = "aliases[";
constexpr TextView kWeapons = "weaponpriority[";
constexpr TextView kNone = "none";
constexpr TextView kBlanks = " \t";

/// The next line without its end and the blanks around it, which `rest` is moved behind.
TextView TakeLine(TextView& rest) {
    const std::size_t end = std::min(rest.find_first_of("\r\n"), rest.size());
    const TextView line = rest.substr(0, end);
    rest.remove_prefix(end);
    if (rest.starts_with("\r\n")) {
        rest.remove_prefix(1);
    }
    rest.remove_prefix(rest.empty() ? 0 : 1);
    return TrimmedView(line, kBlanks);
}

/// What stands between the two texts, the first of them in any letter case.
TextView Between(TextView text, TextView lowerText, TextView before, TextView after) {
    const std::size_t at = lowerText.find(before);
    if (at == TextView::npos) {
        return {};
    }
    const TextView rest = text.substr(at + before.size());
    return rest.substr(0, rest.find(after));
}

class IniRun {
  public:
    ScriptEffects Run(TextView ini) {
        for (TextView rest = ini; !rest.empty();) {
            ++line_;
            TakeStatement(TakeLine(rest));
        }
        PutWeapons();
        PutLists();
        return std::move(effects_);
    }

  private:
    void TakeStatement(TextView line);
    void TakeAlias(TextView line, TextView value);
    void TakeSetting(TextView line, TextView key, TextView value);
    void PutWeapons();
    void PutLists();
    Effect MakeEffect(EffectKind kind, Text name, TextView value, TextView line);

    ScriptEffects effects_;
    Text section_;  // in lower case
    std::size_t line_ = 0;
    std::size_t turn_ = 0;
    std::unordered_map<Text, std::size_t> seen_;  // how often
    std::vector<Effect> lines_;                   // of all settings
    std::map<std::int32_t, Text> weapons_;
    Effect weaponsEffect_;
};

Effect IniRun::MakeEffect(EffectKind kind, Text name, TextView value, TextView line) {
    return {.Kind = kind,
            .Name = std::move(name),
            .Value = Text(value),
            .IsSet = true,
            .IsOwn = true,
            .Line = line_,
            .Turn = turn_++,
            .Source = Text(line)};
}

void IniRun::TakeStatement(TextView line) {
    if (line.starts_with('[')) {
        section_ = LowerCase(line);
        return;
    }
    const std::size_t equals = line.find('=');
    if (equals == TextView::npos || line.starts_with(';') || line.starts_with("//")) {
        return;
    }
    const TextView key = TrimmedView(line.substr(0, equals), kBlanks);
    const TextView value = TrimmedView(line.substr(equals + 1), kBlanks);
    if (section_ != kInput) {
        TakeSetting(line, key, value);
    } else if (StartsWithText(key, kAliases)) {
        TakeAlias(line, value);
    } else {
        Effect effect = MakeEffect(EffectKind::Bind, Text(key), value, line);
        effect.IsSet = !value.empty();
        effects_.Binds.Put(KeyIdentity(Console::Unreal, key), std::move(effect));
    }
}

void IniRun::TakeAlias(TextView line, TextView value) {
    const Text lower = LowerCase(value);
    const TextView body = Between(value, lower, "command=\"", "\"");
    const TextView name = Between(value, lower, "alias=", ")");
    if (!name.empty() && !SameText(name, kNone)) {
        effects_.Aliases.Put(LowerCase(name), MakeEffect(EffectKind::Alias, Text(name), body, line));
    }
}

void IniRun::TakeSetting(TextView line, TextView key, TextView value) {
    if (StartsWithText(key, kWeapons)) {
        const std::int32_t place = ToLong(key.substr(kWeapons.size()));
        weaponsEffect_ = MakeEffect(EffectKind::Setting, Join(section_, " weaponpriority"), {}, line);
        weapons_.erase(place);
        if (!value.empty() && !SameText(value, kNone)) {
            weapons_.emplace(place, value);
        }
        return;
    }
    const Text name = Join(section_, Blank, LowerCase(key));
    ++seen_[name];
    const Effect effect = MakeEffect(EffectKind::Setting, name, value, line);
    lines_.push_back(effect);
    effects_.Settings.Put(name, effect);
}

void IniRun::PutWeapons() {
    Text order;
    for (const auto& [place, weapon] : weapons_) {
        order += Join(order.empty() ? "" : ", ", weapon);
    }
    if (!order.empty()) {
        weaponsEffect_.Value = std::move(order);
        effects_.Settings.Put(weaponsEffect_.Name, weaponsEffect_);
    }
}

/// Each line of a key that occurs more than once.
void IniRun::PutLists() {
    for (Effect& line : lines_) {
        if (seen_[line.Name] > 1) {
            line.Kind = EffectKind::Action;
            line.Value = Join(line.Name, "=", line.Value);
            effects_.Actions.push_back(std::move(line));
        }
    }
}

}  // namespace

ScriptEffects IniEffects(TextView ini) {
    return IniRun().Run(ini);
}

}  // namespace lv
