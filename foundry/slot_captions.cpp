#include <algorithm>

#include "foundation/field_strings.h"
#include "foundry/bindings.h"

namespace lv {

namespace {
constexpr TextView kEllipsis = "...";
constexpr std::size_t kLeast = 3;
}  // namespace

Text ShortenToFit(ScriptView& view, TextView text, SlotNumber slot) {
    const int room = view.BoundLabelWidth(slot);
    const auto fits = [&](std::size_t length) {
        return view.TextWidth(Join(TwoBlanks, text.substr(0, length), kEllipsis)) <= room;
    };
    // A longer head is never narrower, so the longest that fits is found by halving.
    std::size_t good = std::min(text.size(), kLeast);
    std::size_t end = text.size();
    while (good < end) {
        const std::size_t middle = end - (end - good) / 2;
        if (fits(middle)) {
            good = middle;
        } else {
            end = middle - 1;
        }
    }
    return Join(text.substr(0, good), kEllipsis);
}

void CaptionSlot(ScriptDocument& document, ScriptView& view, SlotNumber slot, TextView text) {
    const Text trimmed = Trim(text);
    Label& label = document.Bound_Lbl[slot];
    if (view.TextWidth(Join(TwoBlanks, trimmed)) < view.BoundLabelWidth(slot)) {
        label.Caption = Join(Blank, trimmed);
        label.ToolTip.clear();
    } else {
        label.Caption = Join(Blank, ShortenToFit(view, trimmed, slot));
        label.ToolTip = trimmed;
    }
    view.SlotChanged(slot);
}

}  // namespace lv
