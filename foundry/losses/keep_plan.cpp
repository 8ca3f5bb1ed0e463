#include "foundry/losses/keep_plan.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

#include "foundry/losses/free_form_places.h"
#include "foundry/losses/kept_lines.h"
#include "foundry/writing/compose_script.h"

namespace lv {

namespace {

constexpr int kMostRounds = 12;

/// How a line is tried, one after the other.
enum class Attempt {
    None,
    AsItIs,      // where it stood in the file, so that the next opening reads it
    InItsPlace,  // in its lasting form
    BehindAll,
    GivenUp,
};

/// The document's sections while lines are put into them.
class KeptSections {
  public:
    KeptSections(ScriptDocument& document, TextView file, const ChangedNames& changed)
        : document_(document), changed_(changed) {
        if (document.Sections.empty()) {
            document.Sections.emplace_back();
        }
        for (const ScriptSection& section : document.Sections) {
            places_.emplace_back(section.Text, file);
        }
    }

    /// Puts those that have not been put anywhere, and moves on those for which that was not enough. False if there is
    /// nothing left to do.
    bool Put(const std::vector<KeptLine>& lines) {
        std::set<std::size_t> wholeLines;
        for (const KeptLine& line : lines) {
            if (HasWholeLine(line)) {
                wholeLines.insert(line.FileLine);
            }
        }
        bool put = false;
        std::set<Key> seen;
        for (const KeptLine& line : lines) {
            // The other commands of a line that is kept as a whole come with it.
            const bool comesAlong = !HasWholeLine(line) && wholeLines.contains(line.FileLine);
            if (!comesAlong) {
                Tried& tried = tried_[KeyOf(line)];
                tried.Of.emplace(line.What, line.Identity);
                put = (seen.insert(KeyOf(line)).second && TryNext(line, tried)) || put;
            }
        }
        Finish();
        return put;
    }

    /// The same, of lines that the next save would take from the text that was written: they have no place in the file,
    /// but for those that were put as they stood there.
    bool PutOfNext(std::vector<KeptLine> lines) {
        for (KeptLine& line : lines) {
            const auto asItIs = std::ranges::find_if(tried_, [&](const auto& each) {
                return each.second.Last == Attempt::AsItIs && each.second.Put == line.Command;
            });
            line.Turn = asItIs != tried_.end() ? asItIs->first.first : 0;
            line.FileLine = asItIs != tried_.end() ? asItIs->second.FileLine : kAheadOfAll;
        }
        return Put(lines);
    }

    /// Takes back all that was put for these. False if there was nothing.
    bool GiveUp(const EffectNames& names) {
        bool gaveUp = false;
        for (auto& [key, tried] : tried_) {
            const bool isOfThese =
                std::ranges::any_of(tried.Of, [&](const auto& each) { return names.contains(each); });
            if (isOfThese && tried.Last != Attempt::GivenUp) {
                TakeBack(tried);
                tried.Last = Attempt::GivenUp;
                gaveUp = true;
            }
        }
        Finish();
        return gaveUp;
    }

  private:
    using Key = std::pair<std::size_t, Text>;

    struct Tried {
        EffectNames Of;
        Attempt Last = Attempt::None;
        std::size_t Section = 0;
        std::size_t FileLine = 0;
        Text Put;
    };

    static bool HasWholeLine(const KeptLine& line) { return line.Lasting && line.Lasting->HasWholeLine; }

    static Key KeyOf(const KeptLine& line) {
        return HasWholeLine(line) ? Key(line.FileLine, line.Lasting->Line) : Key(line.Turn, line.Command);
    }

    [[nodiscard]] Attempt Following(const KeptLine& line, Attempt last) const {
        switch (last) {
            case Attempt::None:
                // The reader has not seen it yet, and may well have a page for it.
                return changed_.OnDisk.contains({line.What, line.Identity}) ? Attempt::AsItIs
                                                                            : Following(line, Attempt::AsItIs);
            case Attempt::AsItIs:
                return line.Lasting ? Attempt::InItsPlace : Attempt::GivenUp;
            case Attempt::InItsPlace:
                return Attempt::BehindAll;
            default:
                return Attempt::GivenUp;
        }
    }

    bool TryNext(const KeptLine& line, Tried& tried) {
        const auto section = std::ranges::find_if(document_.Sections, [&](const ScriptSection& each) {
            return line.Section.empty() || SameText(each.Name, line.Section);
        });
        if (section == document_.Sections.end() || tried.Last == Attempt::GivenUp) {
            return false;
        }
        TakeBack(tried);
        tried.Section = static_cast<std::size_t>(section - document_.Sections.begin());
        tried.FileLine = line.FileLine;
        tried.Last = Following(line, tried.Last);
        if (tried.Last == Attempt::GivenUp) {
            return true;
        }
        FreeFormPlaces& places = places_[tried.Section];
        tried.Put = tried.Last == Attempt::AsItIs ? line.Command : line.Lasting->Line;
        places.Insert(tried.Put, tried.Last == Attempt::BehindAll ? kBehindAll : line.FileLine);
        if (tried.Last != Attempt::AsItIs && HasWholeLine(line)) {
            places.Hide(line.FileLine);
        }
        return true;
    }

    void TakeBack(Tried& tried) {
        if (!tried.Put.empty()) {
            places_[tried.Section].TakeBack(tried.Put, tried.FileLine);
            tried.Put.clear();
        }
    }

    void Finish() {
        for (std::size_t i = 0; i < places_.size(); ++i) {
            document_.Sections[i].Text = places_[i].Joined();
        }
    }

    ScriptDocument& document_;
    const ChangedNames& changed_;
    std::vector<FreeFormPlaces> places_;
    std::map<Key, Tried> tried_;
};

EffectNames NamesOf(const SaveReport& report) {
    EffectNames names;
    for (const SaveLoss& loss : report.Losses) {
        if (!loss.ByUser) {
            names.emplace(loss.Difference.What, loss.Difference.Identity);
        }
    }
    return names;
}

class Planning {
  public:
    Planning(const ScriptDocument& document, TextView file, const ChangedNames& changed, const Resaving& resave,
             const LocalTime& date, Console console)
        : document_(document),
          file_(file),
          fileEffects_(EffectsOf(file, console)),
          changed_(changed),
          resave_(resave),
          date_(date),
          console_(console),
          sections_(document_, file, changed) {}

    KeepPlan Plan() {
        bool more = true;
        for (int round = 0; round < kMostRounds && more; ++round) {
            more = PutLines();
        }
        // What the next save takes again is not kept: it would be offered for ever.
        for (int round = 0; round < kMostRounds && sections_.GiveUp(NamesOf(NextLosses())); ++round) {
        }
        KeepPlan plan;
        plan.Left = NamesOf(Losses());
        plan.Left.merge(NamesOf(NextLosses()));
        plan.Sections = std::move(document_.Sections);
        return plan;
    }

  private:
    SaveReport Losses() {
        written_ = ComposeScript(document_, date_);
        SaveReport report = ReportSave({file_, written_}, changed_, document_.Dialect, console_);
        std::erase_if(report.Losses,
                      [this](const SaveLoss& loss) { return loss.IsOfEmptyField && !document_.Foreign; });
        return report;
    }

    SaveReport NextLosses() {
        written_ = ComposeScript(document_, date_);
        next_ = resave_(written_);
        SaveReport report = ReportSave({written_, next_}, {changed_.InEditor, {}}, document_.Dialect, console_);
        std::erase_if(report.Losses, [this](const SaveLoss& loss) {
            return loss.IsOfEmptyField && !IsWish(loss.Difference.Identity);
        });
        return report;
    }

    /// Whether somebody has set it in the file. In one of its own the editor did, and gave it what it was given.
    [[nodiscard]] bool IsWish(const Text& setting) const {
        return document_.Foreign && fileEffects_.Settings.Find(setting) != nullptr;
    }

    // A kept line may override others, "unbindall" all bindings: those are kept in the next round.
    bool PutLines() {
        const SaveReport losses = Losses();
        const bool put = sections_.Put(KeptLines(losses, {file_, written_}, console_));
        if (put) {
            return true;
        }
        const SaveReport next = NextLosses();
        return sections_.PutOfNext(KeptLines(next, {written_, next_}, console_));
    }

    ScriptDocument document_;
    TextView file_;
    ScriptEffects fileEffects_;
    const ChangedNames& changed_;
    const Resaving& resave_;
    LocalTime date_;
    Console console_;
    KeptSections sections_;
    Text written_;
    Text next_;
};

bool SameSections(const std::vector<ScriptSection>& a, const std::vector<ScriptSection>& b) {
    return std::ranges::equal(
        a, b, [](const ScriptSection& x, const ScriptSection& y) { return x.Name == y.Name && x.Text == y.Text; });
}

}  // namespace

KeepPlan PlanKeeping(const ScriptDocument& document, TextView file, const ChangedNames& changed, const Resaving& resave,
                     const LocalTime& date, Console console) {
    KeepPlan plan = Planning(document, file, changed, resave, date, console).Plan();
    plan.Keeps = !SameSections(plan.Sections, document.Sections);
    return plan;
}

void MarkWhatIsLeft(SaveReport& report, const KeepPlan& plan) {
    report.Keeps = plan.Keeps;
    for (SaveLoss& loss : report.Losses) {
        if (!loss.IsOverridden) {
            loss.CanKeep = !loss.ByUser && !plan.Left.contains({loss.Difference.What, loss.Difference.Identity});
        }
    }
}

}  // namespace lv
