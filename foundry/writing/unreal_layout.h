// foundry/writing/unreal_layout.h
//
// The layout of Unreal's ini as the editor writes it, section by section.

#pragma once

#include "foundry/document/script_document.h"
#include "platform/clock.h"

namespace lv {

/// A list without a selection has no line.
Text UnrealIni(const ScriptDocument& document, const LocalTime& date);

}  // namespace lv
