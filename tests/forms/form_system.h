// tests/forms/form_system.h
//
// What the driver asks of the system below the toolkit.

#pragma once

#include <string>

namespace lv {

/// The modal windows that are open now, the system's own dialogs among them.
int OpenModals();

/// Whether the modal window on top has the keyboard: a busy window manager gives it late.
bool TopModalIsActive();

/// Leaves the modal window on top, without an answer, or the menu that is open; says which, or nothing if none is open.
std::string LeaveOpenOne();

}  // namespace lv
