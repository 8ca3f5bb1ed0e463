// foundry/editor/captions.h
//
// The captions and tool tips of the editor's window.

#pragma once

#include "foundry/editor/fig_frm.h"

namespace lv {

/// Those of the window's own controls that all kinds of games share. Runs once, when the window is made.
void FillCaptions(Fig_Frm& form);

/// Those of the controls that are the document's, which each script that is opened makes anew; as for Quake.
void CaptionDocument(ScriptDocument& document);

/// The legend of a group of rows.
struct LegendRow {
    std::size_t Label;  // of ColorCode_Lbl
    TextView Caption;
    SlotNumber Row;  // whose colour it has
};
const LegendRow& LegendOf(std::size_t label);

}  // namespace lv
