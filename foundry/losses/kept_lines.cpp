#include "foundry/losses/kept_lines.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

#include "foundation/field_strings.h"
#include "foundry/losses/free_form_places.h"
#include "foundry/tables/keys.h"
#include "foundry/writing/compose_script.h"
#include "foundry/writing/console_layout.h"

namespace lv {

namespace {

constexpr TextView kInput = "[engine.input]";
constexpr TextView kPassed = "; ";  // an empty command, which the reader takes for an unknown one
constexpr int kMostRounds = 8;

Text Quoted(TextView text) {
    return Join(DoubleQuote, text, DoubleQuote);
}

bool IsIni(Console console) {
    return console == Console::Unreal;
}

/// An ini's "[engine.pawn] bob" has its section in its name.
Text SectionOf(const Effect& effect, Console console) {
    if (!IsIni(console)) {
        return {};
    }
    const bool isInput = effect.Kind == EffectKind::Bind || effect.Kind == EffectKind::Alias;
    return isInput ? Text(kInput) : effect.Name.substr(0, effect.Name.find(']') + 1);
}

/// A command that has the effect by itself, where an alias had it.
Text CommandOf(const Effect& effect) {
    switch (effect.Kind) {
        case EffectKind::Bind:
            return effect.IsSet ? Join("bind ", Quoted(effect.Name), Blank, Quoted(effect.Value))
                   : SameText(effect.Name, "unbindall") ? Text("unbindall")
                                                        : Join("unbind ", Quoted(effect.Name));
        case EffectKind::Alias:
            return effect.IsSet ? Join("alias ", Quoted(effect.Name), Blank, Quoted(effect.Value))
                                : Join("unalias ", Quoted(effect.Name));
        default:
            return Join(effect.Name, Blank, Quoted(effect.Value));
    }
}

class Keeping {
  public:
    Keeping(const SaveTexts& texts, const ScriptDialect& dialect, Console console)
        : dialect_(dialect),
          console_(console),
          writtenText_(texts.Written),
          file_(EffectsOf(texts.File, console)),
          written_(EffectsOf(texts.Written, console)) {}

    void Take(const ScriptDifference& difference) {
        if (difference.Kind == DifferenceKind::Moved) {
            TakeOverridden(difference);
        } else if (difference.Kind != DifferenceKind::Added) {
            TakeEffect(difference.Before);
            TakeOtherSpelling(difference);
        }
    }

    std::vector<KeptLine> Lines() {
        std::ranges::stable_sort(lines_, {}, &KeptLine::Turn);
        return std::move(lines_);
    }

  private:
    void TakeEffect(const Effect& effect);
    void TakeWeapons(const Effect& effect);
    void TakeOtherSpelling(const ScriptDifference& difference);
    void TakeOverridden(const ScriptDifference& moved);
    void TakeOverriddenOf(const ScriptDifference& moved, const EffectTable& before, const EffectTable& after);
    [[nodiscard]] bool IsSwallowed(const Effect& effect) const;
    void Add(const Effect& effect, Text line);

    const ScriptDialect& dialect_;
    Console console_;
    TextView writtenText_;
    ScriptEffects file_;
    ScriptEffects written_;
    std::vector<KeptLine> lines_;
    std::set<std::pair<std::size_t, Text>> taken_;
};

/// What the reader drops and no page of the editor can show.
bool Keeping::IsSwallowed(const Effect& effect) const {
    if (IsIni(console_)) {
        return false;
    }
    const KeyIndex key = effect.Kind == EffectKind::Bind ? KeyFromName(LowerCase(effect.Name)) : kNoKey;
    return (effect.Kind == EffectKind::Bind && effect.IsSet &&
            (key == kNoKey || !IsWrittenKey(key, dialect_.ScriptFamily))) ||
           (effect.Kind == EffectKind::Alias && effect.Value.empty()) || effect.Source.starts_with('[');
}

void Keeping::Add(const Effect& effect, Text line) {
    if (IsSwallowed(effect)) {
        line = Join(kPassed, line);
    }
    const bool isAction = effect.Kind == EffectKind::Action;
    if (isAction || taken_.emplace(effect.Line, line).second) {
        lines_.push_back({SectionOf(effect, console_), std::move(line), effect.Line, effect.Turn});
    }
}

void Keeping::TakeEffect(const Effect& effect) {
    if (IsIni(console_) && effect.Name.ends_with(" weaponpriority")) {
        TakeWeapons(effect);
    } else {
        Add(effect, effect.IsOwn ? effect.Source : CommandOf(effect));
    }
}

/// Where the line is in the written script already, and another spelling of the alias is run all the same, that one
/// gets the same commands.
void Keeping::TakeOtherSpelling(const ScriptDifference& difference) {
    Effect other = difference.Before;
    other.Name = difference.After.Name;
    if (difference.What == EffectKind::Alias && Holds(writtenText_, other.Source) && difference.After.IsSet &&
        difference.After.Line > 0 && !IsIni(console_) && other.IsSet && other.Name != difference.Before.Name) {
        Add(other, CommandOf(other));
    }
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

/// The document's sections while lines are put into them.
class KeptSections {
  public:
    KeptSections(ScriptDocument& document, TextView file) : document_(document) {
        if (document.Sections.empty()) {
            document.Sections.emplace_back();
        }
        for (const ScriptSection& section : document.Sections) {
            places_.emplace_back(section.Text, file);
        }
    }

    /// Those that have not been put anywhere each where it stood in the file; and if that has been done with all of
    /// them, and was not enough, behind all. False if there is nothing left to do.
    bool Put(const std::vector<KeptLine>& lines) {
        const bool put = PutAtFirst(lines, Attempt::InItsPlace) || PutAtFirst(lines, Attempt::BehindAll);
        if (put) {
            Finish();
        }
        return put;
    }

  private:
    enum class Attempt { InItsPlace, BehindAll, GivenUp };

    bool PutAtFirst(const std::vector<KeptLine>& lines, Attempt attempt) {
        bool put = false;
        for (const KeptLine& kept : lines) {
            const auto section = std::ranges::find_if(document_.Sections, [&](const ScriptSection& each) {
                return kept.Section.empty() || SameText(each.Name, kept.Section);
            });
            Attempt& next = attempts_[{kept.Turn, kept.Line}];
            if (section == document_.Sections.end() || next != attempt) {
                continue;
            }
            const std::size_t line = attempt == Attempt::InItsPlace ? kept.FileLine : kBehindAll;
            places_[static_cast<std::size_t>(section - document_.Sections.begin())].Insert(kept.Line, line);
            next = attempt == Attempt::InItsPlace ? Attempt::BehindAll : Attempt::GivenUp;
            put = true;
        }
        return put;
    }

    void Finish() {
        for (std::size_t i = 0; i < places_.size(); ++i) {
            document_.Sections[i].Text = places_[i].Joined();
        }
    }

    ScriptDocument& document_;
    std::vector<FreeFormPlaces> places_;
    std::map<std::pair<std::size_t, Text>, Attempt> attempts_;
};

}  // namespace

std::vector<KeptLine> KeptLines(const SaveReport& report, const SaveTexts& texts, const ScriptDialect& dialect,
                                Console console) {
    Keeping keeping(texts, dialect, console);
    for (const SaveLoss& loss : report.Losses) {
        if (!loss.ByUser) {
            keeping.Take(loss.Difference);
        }
    }
    return keeping.Lines();
}

bool KeepLosses(ScriptDocument& document, TextView file, const ChangedNames& changed, const LocalTime& date,
                Console console) {
    KeptSections sections(document, file);
    bool kept = false;
    // A kept line may override others, "unbindall" all bindings: those are kept in the next round.
    bool more = true;
    for (int round = 0; round < kMostRounds && more; ++round) {
        const Text written = ComposeScript(document, date);
        const SaveTexts texts{file, written};
        const SaveReport report = ReportSave(texts, changed, document.Dialect, console);
        more = sections.Put(KeptLines(report, texts, document.Dialect, console));
        kept = kept || more;
    }
    return kept;
}

}  // namespace lv
