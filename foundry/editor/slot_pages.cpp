#include "foundry/editor/slot_pages.h"

#include <algorithm>
#include <iterator>

namespace lv {

namespace {

struct BlockPage {
    SlotBlock Slots;  // with their heading
    SlotPage Page;
};

constexpr BlockPage kBlockPages[] = {
    {{100, 116}, {EditorPage::Bindings, BindingsPage::Standard}},
    {{200, 212}, {EditorPage::Bindings, BindingsPage::Standard}},
    {{300, 308}, {EditorPage::Bindings, BindingsPage::System}},
    {{400, 413}, {EditorPage::Bindings, BindingsPage::System}},
    {{500, 524}, {EditorPage::Bindings, BindingsPage::Extended}},
    {{701, 712}, {EditorPage::Bindings, BindingsPage::Extended}},
    {{800, 800}, {EditorPage::Bindings, BindingsPage::Extended}},  // the heading of scripts
    {{67, 67}, {EditorPage::Bindings, BindingsPage::Talking}},     // the heading of messages
    {{801, 813}, {EditorPage::Bindings, BindingsPage::Talking}},
    {{900, 950}, {EditorPage::Bindings, BindingsPage::Hexen2}},
    {{1100, 1199}, {EditorPage::Bindings, BindingsPage::Quake2}},
    {{1000, 1005}, {EditorPage::Bindings, BindingsPage::Ctf}},
    {{601, 627}, {EditorPage::Aliases, {}}},
    {{700, 700}, {EditorPage::Aliases, {}}},  // the heading of bound aliases
};

struct GroupPage {
    Panel Fig_Frm::*Group;
    OptionsPage Page;
};

constexpr GroupPage kGroupPages[] = {
    {&Fig_Frm::Checkables_Pic, OptionsPage::General},
    {&Fig_Frm::Other_Pic, OptionsPage::General},
    {&Fig_Frm::Screen_Pic, OptionsPage::General},
    {&Fig_Frm::Speeds_Pic, OptionsPage::Movement},
    {&Fig_Frm::Mouse_Pic, OptionsPage::Movement},
    {&Fig_Frm::Angle_Pic, OptionsPage::Angle},
    {&Fig_Frm::Bob_Pic, OptionsPage::Angle},
    {&Fig_Frm::Sound_Pic, OptionsPage::Angle},
    {&Fig_Frm::PlayerPawn_Pic, OptionsPage::Movement},
    {&Fig_Frm::UnrealAudio_Pic, OptionsPage::Angle},
    {&Fig_Frm::WeaponPriority_Pic, OptionsPage::Skins},
};

}  // namespace

SlotPage PageOfSlot(SlotNumber slot) {
    const auto* const block =
        std::ranges::find_if(kBlockPages, [&](const BlockPage& b) { return b.Slots.Holds(slot); });
    return block == std::end(kBlockPages) ? SlotPage{} : block->Page;
}

OptionsPage PageOfGroup(Panel Fig_Frm::*group) {
    const auto* const row = std::ranges::find(kGroupPages, group, &GroupPage::Group);
    return row == std::end(kGroupPages) ? OptionsPage::General : row->Page;
}

}  // namespace lv
