// foundry/editor/slot_pages.h
//
// The page that each row and each group of settings stands on.

#pragma once

#include "foundry/editor/fig_frm.h"

namespace lv {

/// The pages of Options_Tab.
enum class OptionsPage { General, Movement, Angle, Skins, Rate };

struct SlotPage {
    EditorPage Page = EditorPage::Bindings;
    BindingsPage Bindings = BindingsPage::Standard;  // of EditorPage::Bindings
};

/// Of a slot or a heading. A number that is neither is on the first page of bindings.
SlotPage PageOfSlot(SlotNumber slot);

/// The page of a group of settings, one of the panels Checkables_Pic to PlayerPawn_Pic of the form.
OptionsPage PageOfGroup(Panel Fig_Frm::*group);

}  // namespace lv
