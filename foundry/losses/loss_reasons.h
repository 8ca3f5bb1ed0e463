// foundry/losses/loss_reasons.h
//
// Why a save does not write what a script says, as the editor's tables and rules know it.

#pragma once

#include <cstddef>
#include <unordered_set>

#include "console/script_comparison.h"
#include "foundry/document/script_document.h"
#include "foundry/losses/bind_lines.h"
#include "foundry/losses/written_lines.h"

namespace lv {

struct ComparedScript {
    TextView Content;
    const ScriptEffects& Effects;
};

class LossReasons {
  public:
    /// All outlive it.
    LossReasons(const ComparedScript& file, const ComparedScript& written, const ScriptDialect& dialect);

    /// A sentence; a general one where no rule is known to be the reason.
    [[nodiscard]] Text ReasonOf(const ScriptDifference& difference) const;

    /// Whether the file has the very line of a setting that a document with nothing in it is written with.
    [[nodiscard]] bool IsOfEmptyField(const ScriptDifference& difference) const;

  private:
    void ReadCutCommands();
    [[nodiscard]] const KeyBindLine* LastBindOf(const ScriptDifference& difference) const;
    [[nodiscard]] Text ReasonOfOtherKey(const ScriptDifference& difference) const;
    [[nodiscard]] bool IsAlwaysWritten(const ScriptDifference& difference) const;
    [[nodiscard]] Text ReasonOfAdded(const ScriptDifference& difference) const;
    [[nodiscard]] Text ReasonOfWritten(const Effect& after) const;
    [[nodiscard]] Text ReasonOfFreed(const ScriptDifference& difference) const;
    [[nodiscard]] Text ReasonOfLaterLine(const ScriptDifference& difference) const;
    [[nodiscard]] Text ReasonOfRefused(const ScriptDifference& difference) const;
    [[nodiscard]] Text ReasonOfPlace(const Effect& before) const;
    [[nodiscard]] Text ReasonOfLine(const Effect& before) const;
    [[nodiscard]] Text ReasonOfQuotes(const Effect& before) const;
    [[nodiscard]] Text ReasonOfSection(const Effect& before) const;
    [[nodiscard]] Text ReasonOfKey(const ScriptDifference& difference) const;
    [[nodiscard]] Text ReasonOfLaterCommand(const ScriptDifference& difference) const;
    [[nodiscard]] Text ReasonOfLaterUnalias(const ScriptDifference& difference) const;
    [[nodiscard]] Text ReasonOfKind(const ScriptDifference& difference) const;
    [[nodiscard]] Text ReasonOfCommand(const ScriptDifference& difference) const;
    [[nodiscard]] Text ReasonOfAlias(const ScriptDifference& difference) const;
    [[nodiscard]] Text ReasonOfSetting(const ScriptDifference& difference) const;
    [[nodiscard]] Text ReasonOfAction(const Effect& before) const;
    [[nodiscard]] Text ReasonOfRoom(const Text& command) const;

    const ScriptEffects& fileEffects_;
    const ScriptEffects& written_;
    const ScriptDialect& dialect_;
    std::vector<TextView> lines_;
    BindLines binds_;
    WrittenLines writtenLines_;
    std::size_t secondHead_ = 0;                    // the second line that begins with "["; 0: none
    std::size_t endOfReading_ = 0;                  // the line where a hundred empty ones end it; 0: none
    ScriptEffects always_;                          // of what is written into each script
    std::unordered_set<Text> aliasesDefinedAgain_;  // in lower case
    std::unordered_set<Text> cutCommands_;          // what the reader leaves of commands with "//"
};

}  // namespace lv
