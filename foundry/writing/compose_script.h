// foundry/writing/compose_script.h
//
// The text of a script, made whole from the document: a console script, or Unreal's ini. Lines end in CR LF.

#pragma once

#include "foundry/document/script_document.h"
#include "platform/clock.h"

namespace lv {

/// The script as the document's kind of game reads it. Only the header's date, or an ini's "LastEdited", depends on
/// `date`.
Text ComposeScript(const ScriptDocument& document, const LocalTime& date);

}  // namespace lv
