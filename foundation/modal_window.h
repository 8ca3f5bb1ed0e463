// foundation/modal_window.h
//
// What all dialogs share that are shown through one door. A dialog is a struct of this family; the user interface
// tells by its type which form shows it.

#pragma once

#include "foundation/controls.h"
#include "foundation/run.h"

namespace lv {

struct ModalWindow {
    ModalWindow(Run& owner, TextView name) : run(owner), Name(name) {}
    virtual ~ModalWindow() = default;
    ModalWindow(const ModalWindow&) = delete;
    ModalWindow& operator=(const ModalWindow&) = delete;

    Run& run;
    const Text Name;  // of the window, "AddExe_Frm"
    Text Caption;
    Text Focus;           // name of the control that is to get the focus; the form clears it once it has it
    bool Closed = false;  // the form goes
};

/// Shows the window over the active form until it is closed; the main window leaves the topmost band meanwhile.
void ShowModal(ModalWindow& window);

}  // namespace lv
