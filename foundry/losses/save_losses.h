// foundry/losses/save_losses.h
//
// What a save of a script would lose or change for the game that runs it, in plain words.

#pragma once

#include <set>
#include <utility>
#include <vector>

#include "console/script_comparison.h"
#include "foundry/document/script_document.h"

namespace lv {

struct SaveTexts {
    TextView File;     // as it stands on the disk
    TextView Written;  // what the save would put there
};

/// What a script sets, by kind and the identity of its name.
using EffectNames = std::set<std::pair<EffectKind, Text>>;

/// What two texts set otherwise.
EffectNames DifferingNames(TextView before, TextView after, Console console);

/// What somebody has written otherwise: the same without the scripts that are run as before, and have other lines ahead
/// of them alone.
EffectNames RewrittenNames(TextView before, TextView after, Console console);

/// Who has changed what. All else that differs between file and text-to-be has come from reading and writing.
struct ChangedNames {
    EffectNames InEditor;  // between what a save would have written right after opening, and the text-to-be
    EffectNames OnDisk;    // between the file as the editor has read or written it last, and as it is now
};

struct SaveLoss {
    ScriptDifference Difference;
    bool ByUser = false;  // they have changed it in the editor, and nobody else has in the file
    bool CanKeep = true;  // in the Free Form Additions
    // The file has what the editor writes for an empty field, and reads otherwise: nobody has written that into a
    // script of its own.
    bool IsOfEmptyField = false;
    bool IsOverridden = false;  // they have changed it on a page, and the Free Form Additions set it back
    Text Words;                 // "The key ESCAPE loses \"togglemenu\"."
    Text Reason;                // "Setup Foundry has no key ESCAPE."
};

struct SaveReport {
    std::vector<SaveLoss> Losses;  // lost, changed and moved ones first, then those that are added
    bool IsOfNothing = false;      // the file sets and runs nothing: it is a new one
    bool Keeps = false;            // there is something that the Free Form Additions can keep
    Text TooLong;                  // where the game would run nothing of the written script, for it is too long
};

/// The console that scripts of this dialect are written for, unless it is known which engine runs them.
Console ConsoleOfDialect(const ScriptDialect& dialect);

SaveReport ReportSave(const SaveTexts& texts, const ChangedNames& changed, const ScriptDialect& dialect,
                      Console console);

/// Who has written the file.
enum class ScriptHand { Own, Foreign };

/// Whether something would be lost, changed or moved that the user has not changed themselves, an edit of theirs come
/// to nothing, or something come into another hand's script. To a new script the editor adds what it writes into each.
bool LosesSomething(const SaveReport& report, ScriptHand hand);

}  // namespace lv
