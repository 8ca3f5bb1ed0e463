// foundry/reading/script_reader.h
//
// Reads a game script, hand-written or this program's own, into a document. Tolerant on purpose: what is understood
// goes into the tables and settings, what is not stays word for word in the text of its section.

#pragma once

#include <functional>

#include "foundry/document/script_document.h"
#include "foundry/document/script_view.h"
#include "platform/files.h"

namespace lv {

/// No index counts further. The lines of aliases beyond stay in the free-form text.
constexpr std::size_t kMostAliases = 32767;

/// Whether a console script's line gives the alias back as it was written, but for letter case: a double quote and what
/// begins a comment end it early.
bool LineHoldsAlias(TextView name, TextView body);

/// First pass: the aliases. `document` is as MakeScriptDocument made it. The result is the number of the first line
/// whose alias found no room, and beyond all lines if there is none.
std::uint64_t ReadAliases(RandomAccessFile& file, ScriptDocument& document);

/// Second pass: all else. `modelChosen` runs when the script's skin line has chosen a model in Sex_Cbo: it makes
/// Skin_Cbo show the model's skins.
void ReadLines(RandomAccessFile& file, ScriptDocument& document, ScriptView& view, std::uint64_t firstLineWithoutAlias,
               const std::function<void()>& modelChosen);

}  // namespace lv
