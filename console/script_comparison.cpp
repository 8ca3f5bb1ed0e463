#include "console/script_comparison.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <optional>
#include <utility>

#include "console/action_comparison.h"
#include "console/command_words.h"
#include "console/console_commands.h"
#include "foundation/field_strings.h"

namespace lv {

namespace {

/// Settings whose values are texts, though they may look like numbers.
bool IsNameOfText(TextView name) {
    constexpr TextView kTexts[] = {"name", "_cl_name", "skin", "team", "password", "playername", "teamname"};
    const TextView last = name.substr(name.rfind(' ') + 1);
    return std::ranges::any_of(kTexts, [last](TextView each) { return SameText(each, last); });
}

std::optional<double> WholeNumber(TextView text) {
    text.remove_prefix(text.starts_with('+') ? 1 : 0);
    double number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
    const bool whole = read.ec == std::errc() && read.ptr == text.data() + text.size();
    return whole ? std::optional(number) : std::nullopt;
}

bool SameNumber(TextView a, TextView b) {
    const std::optional<double> number = WholeNumber(a);
    return number && number == WholeNumber(b);
}

/// An ini's words, a number behind "=" by its value: "Axis aMouseX Speed=6.0".
bool SameIniCommand(TextView a, TextView b) {
    const std::size_t equals = a.rfind('=');
    return equals != TextView::npos && equals < b.size() &&
           SameText(a.substr(0, equals + 1), b.substr(0, equals + 1)) &&
           SameNumber(a.substr(equals + 1), b.substr(equals + 1));
}

bool IsTruth(TextView value) {
    return SameText(value, "true") || SameText(value, "false");
}

/// One command, the letter case of its own name aside.
bool SameCommand(const ConsoleCommand& a, const ConsoleCommand& b) {
    const TextView name = a.Words.front();
    const bool anyCase = UseOfWord(name) == WordUse::Command && !a.Raw.starts_with('"');
    if (!anyCase || a.Raw.size() != b.Raw.size()) {
        return a.Raw == b.Raw;
    }
    const std::size_t length = name.size();
    return SameText(a.Raw.substr(0, length), b.Raw.substr(0, length)) && a.Raw.substr(length) == b.Raw.substr(length);
}

/// Behind "+attack" a game puts the key's number, and behind "+attack;" it is a command of its own.
bool EndsOpen(TextView commands) {
    return TrimmedView(commands).ends_with(';');
}

class Comparison {
  public:
    Comparison(const ScriptEffects& before, const ScriptEffects& after) : before_(before), after_(after) {}

    std::vector<ScriptDifference> Differences() {
        CompareTables(before_.Binds, after_.Binds, {before_.UnbindsAll, after_.UnbindsAll},
                      {&before_.Unbindall, &after_.Unbindall});
        CompareTables(before_.Aliases, after_.Aliases, {before_.UnaliasesAll, after_.UnaliasesAll},
                      {&before_.Unaliasall, &after_.Unaliasall});
        CompareTables(before_.Settings, after_.Settings, {}, {});
        std::ranges::move(CompareActions(before_, after_), std::back_inserter(found_));
        std::ranges::move(MovedScripts(before_, after_), std::back_inserter(found_));
        return std::move(found_);
    }

  private:
    /// Whether all that is not in the table is free, in both scripts.
    struct All {
        bool Before = false;
        bool After = false;
    };
    struct AllBy {
        const Effect* Before = nullptr;
        const Effect* After = nullptr;
    };

    void CompareTables(const EffectTable& before, const EffectTable& after, All all, AllBy by);
    void CompareOne(const Text& identity, const Effect* before, const Effect* after, All all, AllBy by);
    [[nodiscard]] bool SameEffect(const Effect& before, const Effect& after) const;
    void Add(DifferenceKind kind, const Text& identity, const Effect* before, const Effect* after);

    const ScriptEffects& before_;
    const ScriptEffects& after_;
    std::vector<ScriptDifference> found_;
};

void Comparison::Add(DifferenceKind kind, const Text& identity, const Effect* before, const Effect* after) {
    const Effect& has = before != nullptr ? *before : *after;
    found_.push_back({.Kind = kind,
                      .What = has.Kind,
                      .Name = has.Name,
                      .Identity = identity,
                      .Before = before != nullptr ? *before : Effect(),
                      .After = after != nullptr ? *after : Effect()});
}

bool Comparison::SameEffect(const Effect& before, const Effect& after) const {
    if (before.IsSet != after.IsSet || before.Value == after.Value) {
        return before.IsSet == after.IsSet;
    }
    return before.Kind == EffectKind::Setting ? SameValue(before.Name, before.Value, after.Value)
                                              : SameCommands(before.Value, after.Value, before_.Of);
}

/// What "unbindall" did to this key.
Effect FreedByAll(const Effect& all, const Effect& of) {
    Effect freed = all;
    freed.Name = of.Name;
    freed.IsSet = false;
    freed.IsOfAll = true;
    return freed;
}

void Comparison::CompareOne(const Text& identity, const Effect* before, const Effect* after, All all, AllBy by) {
    const bool isSetBefore = before != nullptr && before->IsSet;
    const bool isSetAfter = after != nullptr && after->IsSet;
    if (isSetBefore) {
        if (!isSetAfter) {
            Add(DifferenceKind::Lost, identity, before, after);
        } else if (!SameEffect(*before, *after)) {
            Add(DifferenceKind::Changed, identity, before, after);
        }
        return;
    }
    const bool isFreeBefore = before != nullptr || all.Before;
    const bool isFreeAfter = (after != nullptr && !isSetAfter) || (after == nullptr && all.After);
    if (isSetAfter && before == nullptr && all.Before) {
        const Effect freed = FreedByAll(*by.Before, *after);
        Add(DifferenceKind::Changed, identity, &freed, after);
    } else if (isSetAfter) {
        Add(before != nullptr ? DifferenceKind::Changed : DifferenceKind::Added, identity, before, after);
    } else if (isFreeBefore && !isFreeAfter) {
        Add(DifferenceKind::Lost, identity, before, after);
    } else if (!isFreeBefore && isFreeAfter) {
        Add(DifferenceKind::Added, identity, before, after);
    }
}

void Comparison::CompareTables(const EffectTable& before, const EffectTable& after, All all, AllBy by) {
    if (all.Before && !all.After) {
        Add(DifferenceKind::Lost, LowerCase(by.Before->Name), by.Before, nullptr);
    } else if (all.After && !all.Before) {
        Add(DifferenceKind::Added, LowerCase(by.After->Name), nullptr, by.After);
    }
    for (std::size_t i = 0; i < before.All().size(); ++i) {
        const Text& identity = before.IdentityAt(i);
        CompareOne(identity, &before.All()[i], after.Find(identity), all, by);
    }
    for (std::size_t i = 0; i < after.All().size(); ++i) {
        const Text& identity = after.IdentityAt(i);
        if (before.Find(identity) == nullptr) {
            CompareOne(identity, nullptr, &after.All()[i], all, by);
        }
    }
}

}  // namespace

bool SameCommands(TextView a, TextView b, Console console) {
    if (a == b) {
        return true;
    }
    if (console == Console::Unreal) {
        return SameText(a, b) || SameIniCommand(a, b);
    }
    if (EndsOpen(a) != EndsOpen(b)) {
        return false;
    }
    CommandReader first(a, RulesOf(console));
    CommandReader second(b, RulesOf(console));
    ConsoleCommand one;
    ConsoleCommand other;
    bool more = first.Next(one);
    if (!more || !second.Next(other)) {
        return TrimmedView(a) == TrimmedView(b);
    }
    while (more) {
        if (!SameCommand(one, other)) {
            return false;
        }
        more = first.Next(one);
        if (more != second.Next(other)) {
            return false;
        }
    }
    return true;
}

bool SameValue(TextView name, TextView a, TextView b) {
    return a == b || (!IsNameOfText(name) && (SameNumber(a, b) || (IsTruth(a) && SameText(a, b))));
}

std::vector<ScriptDifference> CompareScripts(const ScriptEffects& before, const ScriptEffects& after) {
    return Comparison(before, after).Differences();
}

}  // namespace lv
