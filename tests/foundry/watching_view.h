// tests/foundry/watching_view.h
//
// A view that remembers what it was told, and measures a text as ten to the character.

#pragma once

#include <map>
#include <vector>

#include "foundry/document/script_view.h"

namespace lv {

class WatchingView : public ScriptView {
  public:
    void PaintKey(Index label, Color backColor) override { KeyColors[label] = backColor; }
    void ClearKeyToolTip(KeyIndex key) override { ClearedTips.push_back(key); }
    void SlotChanged(SlotNumber slot) override { ChangedSlots.push_back(slot); }
    int TextWidth(TextView text) override { return static_cast<int>(text.size()) * 10; }
    int BoundLabelWidth(SlotNumber /*slot*/) override { return LabelWidth; }

    /// White, as on a new picture, if nothing was painted.
    [[nodiscard]] Color KeyColor(Index label) const {
        const auto found = KeyColors.find(label);
        return found == KeyColors.end() ? kWhite : found->second;
    }

    std::map<Index, Color> KeyColors;
    std::vector<KeyIndex> ClearedTips;
    std::vector<SlotNumber> ChangedSlots;
    int LabelWidth = 200;
};

}  // namespace lv
