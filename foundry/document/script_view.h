// foundry/document/script_view.h
//
// Who looks at a script document. As it stands it looks away: nothing is painted, and every caption fits.

#pragma once

#include <limits>

#include "foundry/tables/keys.h"
#include "foundry/tables/slots.h"

namespace lv {

class ScriptView {
  public:
    virtual ~ScriptView() = default;

    /// Key_Lbl(label) takes this back colour. `label` is a key index or a mirror label (MirrorLabel).
    virtual void PaintKey(Index /*label*/, Color /*backColor*/) {}

    /// Key_Lbl(key) loses its tool tip.
    virtual void ClearKeyToolTip(KeyIndex /*key*/) {}

    /// Bound_Lbl(slot) or Setting_Lbl(slot) has changed.
    virtual void SlotChanged(SlotNumber /*slot*/) {}

    /// Width of a text in the font of Bound_Lbl, in the unit of BoundLabelWidth.
    virtual int TextWidth(TextView /*text*/) { return 0; }
    virtual int BoundLabelWidth(SlotNumber /*slot*/) { return std::numeric_limits<int>::max(); }
};

}  // namespace lv
