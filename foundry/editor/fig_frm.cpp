#include "foundry/editor/fig_frm.h"

#include "foundry/editor/kind_layout.h"

namespace lv {

namespace {

// Letters of the usual width that a label of the block has room for.
struct LabelRoom {
    SlotBlock Slots;
    int Letters;
};

constexpr LabelRoom kLabelRooms[] = {
    {kExtras, 26}, {kBoundAliases, 16}, {kBoundScripts, 22}, {kMessages, 64}, {{901, 923}, 34}, {{1101, 1124}, 28},
};
constexpr int kUsualLetters = 18;

}  // namespace

Fig_Frm::Fig_Frm(Run& owner, CatalogLists& lists) : ModalWindow(owner, "Fig_Frm"), Lists(lists), PhunNames(owner) {
    Caption = "Setup Foundry";
    FillCaptions(*this);
}

void Fig_Frm::PaintKey(Index label, Color backColor) {
    KeyLabelOf(label).BackColor = backColor;
}

void Fig_Frm::ClearKeyToolTip(KeyIndex key) {
    KeyLabelOf(key).ToolTip.clear();
}

int Fig_Frm::TextWidth(TextView text) {
    return run.User.TextWidth(text);
}

int Fig_Frm::BoundLabelWidth(SlotNumber slot) {
    int letters = kUsualLetters;
    for (const LabelRoom& room : kLabelRooms) {
        letters = room.Slots.Holds(slot) ? room.Letters : letters;
    }
    return letters * run.User.TextWidth("n");
}

void Edited(Fig_Frm& form) {
    if (!form.Document.ScriptLoading) {
        form.Document.ScriptClean = false;
    }
}

}  // namespace lv
