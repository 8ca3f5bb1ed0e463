// tests/forms/form_driver.h
//
// Hands and eyes for tests of real windows: finds controls by name, moves the mouse, presses keys, keeps screenshots.

#pragma once

#include <wx/toplevel.h>
#include <wx/window.h>

#include <functional>
#include <string>
#include <vector>

namespace lv {

/// The control of that name in any window; a test failure if there is none.
wxWindow* Find(const std::string& name);

template <class Control>
Control* FindAs(const std::string& name) {
    return dynamic_cast<Control*>(Find(name));
}

/// Handles events for this long.
void Settle(int milliseconds = 150);

/// Handles events until it holds; false if it does not within the time.
bool SettleUntil(const std::function<bool()>& holds, int milliseconds = 5000);

/// Whether the keyboard goes to this control or to a part of it. The toolkit's own FindFocus does not see into lists.
bool HasKeyboard(wxWindow* control);

/// Gives the window the foreground. On a screen with other programs it need not have it by coming up.
void BringForward(wxTopLevelWindow* window);

void ClickOn(wxWindow* control);
void RightClickOn(wxWindow* control);
void PressKey(int key, int modifiers = 0);

/// Types into the field that has the keyboard.
void TypeText(const std::string& text);

/// Calls back once a modal window more is open than now. A test failure if none comes before the end of the test.
void WhenModal(const std::function<void()>& act);

/// Calls nobody back any more; how many were still waiting.
int ForgetModals();

/// Does what opens another modal window, acts in that, and waits until it is gone.
void DoAndAnswer(const std::function<void()>& open, const std::function<void()>& act);

/// Opens a menu by its access key, presses further keys in it, keeps a picture, and presses the last ones.
void WalkMenu(int key, const std::vector<int>& further, const std::string& picture, const std::vector<int>& last);

/// Opens a menu by its access key, keeps a picture of it, and closes it again.
void PassMenu(int key, const std::string& picture);

/// Keeps a picture of the screen as <build>/screenshots/<name>.png.
void Screenshot(const std::string& name);

}  // namespace lv
