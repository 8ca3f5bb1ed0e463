#include "foundry/losses/kept_lines.h"

#include <algorithm>
#include <set>
#include <utility>

#include "console/text_difference.h"
#include "foundation/field_strings.h"

namespace lv {

namespace {

constexpr TextView kInput = "[engine.input]";

bool IsIni(Console console) {
    return console == Console::Unreal;
}

/// As a word of the console's, in which it may have to escape some letters.
Text Quoted(TextView text, Console console) {
    Text word;
    for (const char c : text) {
        word.append(RulesOf(console).Escapes && (c == '"' || c == '\\') ? "\\" : "").append(1, c);
    }
    return Join(DoubleQuote, word, DoubleQuote);
}

/// An ini's "[engine.pawn] bob" has its section in its name.
Text SectionOf(const Effect& effect, Console console) {
    if (!IsIni(console)) {
        return {};
    }
    const bool isInput = effect.Kind == EffectKind::Bind || effect.Kind == EffectKind::Alias;
    return isInput ? Text(kInput) : effect.Name.substr(0, effect.Name.find(']') + 1);
}

/// A command that has the effect by itself, where another one had it.
Text CommandOf(const Effect& effect, Console console) {
    if (SameText(effect.Name, "unbindall") || SameText(effect.Name, "unaliasall")) {
        return effect.Name;
    }
    const Text name = Quoted(effect.Name, console);
    const Text value = Quoted(effect.Value, console);
    switch (effect.Kind) {
        case EffectKind::Bind:
            return effect.IsSet ? Join("bind ", name, Blank, value) : Join("unbind ", name);
        case EffectKind::Alias:
            return effect.IsSet ? Join("alias ", name, Blank, value) : Join("unalias ", name);
        default:
            return Join(effect.Name, Blank, value);
    }
}

/// A quote that is open holds them; the reader takes them from the line's end.
bool EndsInBlanks(TextView source) {
    return !source.empty() && (source.back() == ' ' || source.back() == '\t');
}

class Keeping {
  public:
    Keeping(const SaveTexts& texts, Console console)
        : console_(console),
          writtenText_(texts.Written),
          fileLines_(LinesOf(texts.File)),
          file_(EffectsOf(texts.File, console)),
          written_(EffectsOf(texts.Written, console)) {}

    void Take(const ScriptDifference& difference) {
        of_ = &difference;
        if (difference.Kind == DifferenceKind::Moved) {
            TakeOverridden(difference);
        } else if (difference.Kind != DifferenceKind::Added && !TakeOtherSpelling(difference)) {
            TakeEffect(difference.Before);
        }
    }

    std::vector<KeptLine> Lines() {
        std::ranges::stable_sort(lines_, {}, &KeptLine::Turn);
        return std::move(lines_);
    }

  private:
    void TakeEffect(const Effect& effect);
    void TakeWeapons(const Effect& effect);
    bool TakeOtherSpelling(const ScriptDifference& difference);
    void TakeOverridden(const ScriptDifference& moved);
    void TakeOverriddenOf(const ScriptDifference& moved, const EffectTable& before, const EffectTable& after);
    void Add(const Effect& effect, Text command, bool isOfFile = false);

    Console console_;
    TextView writtenText_;
    std::vector<TextView> fileLines_;
    ScriptEffects file_;
    ScriptEffects written_;
    const ScriptDifference* of_ = nullptr;
    std::vector<KeptLine> lines_;
    std::set<std::pair<std::size_t, Text>> taken_;
};

void Keeping::Add(const Effect& effect, Text command, bool isOfFile) {
    const bool isAction = effect.Kind == EffectKind::Action;
    if (!isAction && !taken_.emplace(effect.Line, command).second) {
        return;
    }
    const bool hasLine = isOfFile && effect.Line > 0 && effect.Line <= fileLines_.size();
    std::optional<LastingLine> lasting =
        LastingLineOf(command, hasLine ? fileLines_[effect.Line - 1] : TextView(), console_);
    lines_.push_back({.What = of_->What,
                      .Identity = of_->Identity,
                      .Section = SectionOf(effect, console_),
                      .Command = std::move(command),
                      .Lasting = std::move(lasting),
                      .FileLine = effect.Line,
                      .Turn = effect.Turn});
}

void Keeping::TakeEffect(const Effect& effect) {
    if (IsIni(console_) && effect.Name.ends_with(" weaponpriority")) {
        TakeWeapons(effect);
    } else if (effect.IsOwn && !effect.IsOfAll) {
        Add(effect, EndsInBlanks(effect.Source) ? Join(effect.Source, DoubleQuote) : effect.Source, true);
    } else {
        Add(effect, CommandOf(effect, console_));
    }
}

/// Where the line is in the written script already, and another spelling of the alias is run all the same, that one
/// gets the same commands, or is removed too.
bool Keeping::TakeOtherSpelling(const ScriptDifference& difference) {
    const bool isOther = difference.What == EffectKind::Alias && !IsIni(console_) && difference.After.Line > 0 &&
                         difference.After.IsSet && difference.After.Name != difference.Before.Name;
    if (!isOther || !Holds(writtenText_, difference.Before.Source)) {
        return false;
    }
    Effect other = difference.Before;
    other.Name = difference.After.Name;
    Add(other, CommandOf(other, console_));
    return true;
}

void Keeping::TakeWeapons(const Effect& effect) {
    constexpr TextView kBetween = ", ";
    std::size_t place = 0;
    for (std::size_t at = 0; at < effect.Value.size();) {
        const std::size_t end = std::min(effect.Value.find(kBetween, at), effect.Value.size());
        Add(effect,
            Join("WeaponPriority[", std::to_string(place++), "]=", TextView(effect.Value).substr(at, end - at)));
        at = end + kBetween.size();
    }
}

/// All that the script sets behind the one that it runs, and that would be ahead of it.
void Keeping::TakeOverridden(const ScriptDifference& moved) {
    TakeOverriddenOf(moved, file_.Settings, written_.Settings);
    TakeOverriddenOf(moved, file_.Aliases, written_.Aliases);
    TakeOverriddenOf(moved, file_.Binds, written_.Binds);
}

void Keeping::TakeOverriddenOf(const ScriptDifference& moved, const EffectTable& before, const EffectTable& after) {
    for (std::size_t i = 0; i < before.All().size(); ++i) {
        const Effect& effect = before.All()[i];
        const Effect* const written = after.Find(before.IdentityAt(i));
        if (written != nullptr && effect.Turn > moved.Before.Turn && written->Turn < moved.After.Turn) {
            TakeEffect(effect);
        }
    }
}

}  // namespace

std::vector<KeptLine> KeptLines(const SaveReport& report, const SaveTexts& texts, Console console) {
    Keeping keeping(texts, console);
    for (const SaveLoss& loss : report.Losses) {
        if (!loss.ByUser) {
            keeping.Take(loss.Difference);
        }
    }
    return keeping.Lines();
}

}  // namespace lv
