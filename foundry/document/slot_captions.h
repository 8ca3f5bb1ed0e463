// foundry/document/slot_captions.h
//
// The captions of the free slots, cut to what their labels have room for.

#pragma once

#include "foundry/document/script_document.h"
#include "foundry/document/script_view.h"

namespace lv {

/// The text as a caption that fits Bound_Lbl(slot): "..." in place of its end. At least three characters stay.
Text ShortenToFit(ScriptView& view, TextView text, SlotNumber slot);

/// Captions the slot with a blank and the text, without blanks at its ends. Where that is too wide it is shortened
/// and the tool tip holds the whole text; otherwise the tool tip is emptied.
void CaptionSlot(ScriptDocument& document, ScriptView& view, SlotNumber slot, TextView text);

}  // namespace lv
