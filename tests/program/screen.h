// tests/program/screen.h
//
// Eyes and hands outside the program: windows, keys and the mouse through xdotool, xprop and xwininfo. Windows are
// the X server's numbers as text. Every wait ends after ten seconds unless it says so.

#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace lv {

/// What the command prints, its error output thrown away; it is ended after ten seconds.
std::string OutputOf(const std::vector<std::string>& command);

/// Asks every 10 ms; false if it does not come true within the time.
bool WaitUntil(const std::function<bool()>& holds, int milliseconds = 10000);

/// Windows of that process whose title fits the regular expression, hidden ones too.
std::vector<std::string> WindowsOf(int process, const std::string& title);
/// Those of them that are on the screen.
std::vector<std::string> ShownWindowsOf(int process, const std::string& title);

bool IsShown(const std::string& window);
bool IsDialog(const std::string& window);
/// "Normal", "Iconic"; "Withdrawn" for a window that the window manager does not have.
std::string StateOf(const std::string& window);
std::string ActiveWindow();
/// The uppermost window of all that the window manager has.
std::string TopWindow();
/// Brings it to the front, as a click in a task bar does, and waits until it has the keyboard.
bool Activate(const std::string& window);

struct Rectangle {
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;
};
/// The window without the manager's frame, in pixels of the screen.
Rectangle PlaceOf(const std::string& window);

/// Presses and lets go: "F2", "alt+F4".
void PressKey(const std::string& key);
/// Types it letter by letter.
void TypeText(const std::string& text);
/// Clicks the mouse there: 1 left, 3 right.
void Click(int left, int top, int button);

/// The text that is selected in whatever window.
std::string SelectedText();

/// Keeps a picture of the screen as <build>/screenshots/<name>.png.
void KeepScreenshot(const std::string& name);

}  // namespace lv
