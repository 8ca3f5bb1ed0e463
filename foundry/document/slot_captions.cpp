#include "foundry/document/slot_captions.h"

#include <algorithm>

#include "foundation/field_strings.h"

namespace lv {

namespace {
constexpr TextView kEllipsis = "...";
constexpr std::size_t kLeast = 3;
constexpr std::size_t kMostShown = 500;  // characters; no label is that wide

/// Whether the text, behind two blanks, is narrower than the slot's label. Of a very long one the head decides.
bool FitsWhole(ScriptView& view, TextView text, SlotNumber slot) {
    const int room = view.BoundLabelWidth(slot);
    return view.TextWidth(Join(TwoBlanks, text.substr(0, kMostShown))) < room &&
           (text.size() <= kMostShown || view.TextWidth(Join(TwoBlanks, text)) < room);
}

}  // namespace

Text ShortenToFit(ScriptView& view, TextView text, SlotNumber slot) {
    const int room = view.BoundLabelWidth(slot);
    const auto fits = [&](std::size_t length) {
        return view.TextWidth(Join(TwoBlanks, text.substr(0, length), kEllipsis)) <= room;
    };
    // A longer head is never narrower, so the longest that fits is found by halving, and a text that is as long as a
    // damaged script is never measured whole.
    std::size_t good = std::min(text.size(), kLeast);
    std::size_t end = std::min(text.size(), kMostShown);
    while (end < text.size() && fits(end)) {
        good = end;
        end = std::min(text.size(), end * 2);
    }
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
    if (FitsWhole(view, trimmed, slot)) {
        label.Caption = Join(Blank, trimmed);
        label.ToolTip.clear();
    } else {
        label.Caption = Join(Blank, ShortenToFit(view, trimmed, slot));
        label.ToolTip = trimmed;
    }
    view.SlotChanged(slot);
}

}  // namespace lv
