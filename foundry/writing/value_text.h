// foundry/writing/value_text.h
//
// The numbers of a script.

#pragma once

#include "foundry/document/script_document.h"

namespace lv {

/// The list's text as a script has it: with a point, whatever the locale's decimal separator is.
Text ValueText(const ListBox& list, const ScriptDialect& dialect);

}  // namespace lv
