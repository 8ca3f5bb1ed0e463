#include "console/action_comparison.h"

#include <algorithm>
#include <cstdint>
#include <unordered_map>
#include <unordered_set>

#include "console/command_words.h"
#include "console/line_matching.h"

namespace lv {

namespace {

/// Commands are called in any letter case.
Text IdentityOf(const Effect& action) {
    return LowerCase(action.Name) + action.Value.substr(action.Name.size());
}

/// "+mlook" presses what is pressed already: once is as good as twice.
bool CountsOnce(const Effect& action) {
    return action.Name.starts_with('+') || action.Name.starts_with('-');
}

/// The actions of both scripts, each with its like: those that come in the same order, and then those that are left.
class PairedActions {
  public:
    PairedActions(const std::vector<Effect>& before, const std::vector<Effect>& after)
        : left_(NumbersOf(before)),
          right_(NumbersOf(after)),
          ofLeft_(left_.begin(), left_.end()),
          ofRight_(right_.begin(), right_.end()),
          rightOf_(before.size(), kNobody),
          taken_(after.size()) {
        for (const LineMatch& match : MatchLines(left_, right_)) {
            Pair(match.Left, match.Right);
        }
        std::unordered_map<std::uint32_t, std::vector<std::size_t>> free;
        for (std::size_t i = right_.size(); i-- > 0;) {
            if (!taken_[i]) {
                free[right_[i]].push_back(i);
            }
        }
        for (std::size_t i = 0; i < left_.size(); ++i) {
            const auto found = rightOf_[i] == kNobody ? free.find(left_[i]) : free.end();
            if (found != free.end() && !found->second.empty()) {
                Pair(i, found->second.back());
                found->second.pop_back();
            }
        }
    }

    static constexpr std::size_t kNobody = static_cast<std::size_t>(-1);

    [[nodiscard]] std::size_t RightOf(std::size_t left) const { return rightOf_[left]; }
    [[nodiscard]] bool IsTaken(std::size_t right) const { return taken_[right]; }
    [[nodiscard]] bool LeftHas(std::size_t right) const { return ofLeft_.contains(right_[right]); }
    [[nodiscard]] bool RightHas(std::size_t left) const { return ofRight_.contains(left_[left]); }

  private:
    std::vector<std::uint32_t> NumbersOf(const std::vector<Effect>& actions) {
        std::vector<std::uint32_t> numbers;
        numbers.reserve(actions.size());
        for (const Effect& action : actions) {
            const auto next = static_cast<std::uint32_t>(numbers_.size());
            numbers.push_back(numbers_.try_emplace(IdentityOf(action), next).first->second);
        }
        return numbers;
    }

    void Pair(std::size_t left, std::size_t right) {
        rightOf_[left] = right;
        taken_[right] = true;
    }

    std::unordered_map<Text, std::uint32_t> numbers_;
    std::vector<std::uint32_t> left_;
    std::vector<std::uint32_t> right_;
    std::unordered_set<std::uint32_t> ofLeft_;
    std::unordered_set<std::uint32_t> ofRight_;
    std::vector<std::size_t> rightOf_;
    std::vector<bool> taken_;
};

struct RunScripts {
    const Effect* Before;
    const Effect* After;
};

/// The scripts that both run, each with its like.
std::vector<RunScripts> ScriptsOfBoth(const ScriptEffects& before, const ScriptEffects& after) {
    const PairedActions pairs(before.Actions, after.Actions);
    std::vector<RunScripts> both;
    for (std::size_t i = 0; i < before.Actions.size() && both.size() < kMostMovedScripts; ++i) {
        if (RunsScript(before.Actions[i].Name) && pairs.RightOf(i) != PairedActions::kNobody) {
            both.push_back({&before.Actions[i], &after.Actions[pairs.RightOf(i)]});
        }
    }
    return both;
}

bool ChangesSides(const RunScripts& script, const EffectTable& before, const EffectTable& after) {
    for (std::size_t i = 0; i < before.All().size(); ++i) {
        const Effect& effect = before.All()[i];
        const Effect* const other = after.Find(before.IdentityAt(i));
        if (other != nullptr && (effect.Turn < script.Before->Turn) != (other->Turn < script.After->Turn)) {
            return true;
        }
    }
    return false;
}

}  // namespace

std::vector<ScriptDifference> CompareActions(const ScriptEffects& before, const ScriptEffects& after) {
    const PairedActions pairs(before.Actions, after.Actions);
    std::vector<ScriptDifference> found;
    for (std::size_t i = 0; i < before.Actions.size(); ++i) {
        const Effect& action = before.Actions[i];
        const bool stays = pairs.RightOf(i) != PairedActions::kNobody || (CountsOnce(action) && pairs.RightHas(i));
        if (!stays) {
            found.push_back({.Kind = DifferenceKind::Lost,
                             .What = EffectKind::Action,
                             .Name = action.Name,
                             .Identity = IdentityOf(action),
                             .Before = action,
                             .After = {}});
        }
    }
    for (std::size_t i = 0; i < after.Actions.size(); ++i) {
        const Effect& action = after.Actions[i];
        const bool wasThere = pairs.IsTaken(i) || (CountsOnce(action) && pairs.LeftHas(i));
        if (!wasThere) {
            found.push_back({.Kind = DifferenceKind::Added,
                             .What = EffectKind::Action,
                             .Name = action.Name,
                             .Identity = IdentityOf(action),
                             .Before = {},
                             .After = action});
        }
    }
    return found;
}

std::vector<ScriptDifference> MovedScripts(const ScriptEffects& before, const ScriptEffects& after) {
    std::vector<ScriptDifference> moved;
    for (const RunScripts& script : ScriptsOfBoth(before, after)) {
        if (ChangesSides(script, before.Binds, after.Binds) || ChangesSides(script, before.Aliases, after.Aliases) ||
            ChangesSides(script, before.Settings, after.Settings)) {
            moved.push_back({.Kind = DifferenceKind::Moved,
                             .What = EffectKind::Action,
                             .Name = script.Before->Name,
                             .Identity = IdentityOf(*script.Before),
                             .Before = *script.Before,
                             .After = *script.After});
        }
    }
    return moved;
}

}  // namespace lv
