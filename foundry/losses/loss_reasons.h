// foundry/losses/loss_reasons.h
//
// Why a save does not write what a script says, as the editor's tables and rules know it.

#pragma once

#include <cstddef>
#include <unordered_set>

#include "console/script_comparison.h"
#include "foundry/document/script_document.h"

namespace lv {

class LossReasons {
  public:
    /// All outlive it.
    LossReasons(TextView file, const ScriptEffects& fileEffects, const ScriptEffects& written,
                const ScriptDialect& dialect);

    /// A sentence; a general one where no rule is known to be the reason.
    [[nodiscard]] Text ReasonOf(const ScriptDifference& difference) const;

  private:
    [[nodiscard]] Text ReasonOfPlace(const Effect& before) const;
    [[nodiscard]] Text ReasonOfLine(const Effect& before) const;
    [[nodiscard]] Text ReasonOfKey(const ScriptDifference& difference) const;
    [[nodiscard]] Text ReasonOfKind(const ScriptDifference& difference) const;
    [[nodiscard]] Text ReasonOfCommand(const ScriptDifference& difference) const;
    [[nodiscard]] Text ReasonOfAlias(const ScriptDifference& difference) const;
    [[nodiscard]] Text ReasonOfSetting(const ScriptDifference& difference) const;
    [[nodiscard]] Text ReasonOfAction(const Effect& before) const;
    [[nodiscard]] bool RoomIsTaken(SlotBlock block) const;

    const ScriptEffects& fileEffects_;
    const ScriptEffects& written_;
    const ScriptDialect& dialect_;
    std::vector<TextView> lines_;
    std::size_t endOfReading_ = 0;                  // the line where a hundred empty ones end it; 0: none
    std::unordered_set<Text> aliasesDefinedAgain_;  // in lower case
};

}  // namespace lv
