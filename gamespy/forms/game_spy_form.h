// gamespy/forms/game_spy_form.h
//
// The form of the GameSpy bridge's window.

#pragma once

#include <memory>

#include "foundation/forms/modal_form.h"

namespace lv {

/// Nothing for a window that is not the GameSpy bridge's.
std::unique_ptr<wxDialog> MakeGameSpyForm(wxWindow* owner, ModalWindow& window);

}  // namespace lv
