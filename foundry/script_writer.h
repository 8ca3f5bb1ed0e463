// foundry/script_writer.h
//
// The text of a script, made whole from the document: a console script, or Unreal's ini. Lines end in CR LF.

#pragma once

#include "foundry/script_document.h"
#include "platform/clock.h"

namespace lv {

/// The script as the document's kind of game reads it. Only the header's date, or an ini's "LastEdited", depends on
/// `date`.
Text ComposeScript(const ScriptDocument& document, const LocalTime& date);

/// The two layouts. A list without a selection has no line.
Text ConsoleScript(const ScriptDocument& document, const LocalTime& date);
Text UnrealIni(const ScriptDocument& document, const LocalTime& date);

/// The list's text as a script has it: with a point, whatever the locale's decimal separator is.
Text ValueText(const ListBox& list, const ScriptDialect& dialect);

}  // namespace lv
