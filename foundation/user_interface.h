// foundation/user_interface.h
//
// The user, as the program sees one: questions, modal windows, file choice, the event pump, the measure of text.
// The toolkit's is the real one; tests script theirs.

#pragma once

#include <optional>

#include "foundation/text.h"
#include "foundation/window_placement.h"
#include "platform/error.h"

namespace lv {

struct About_Frm;
struct InstallParams_Frm;
struct ModalWindow;
struct QuestionBox_Frm;

struct FileRequest {
    Text Title;
    Text Filter;            // "Quake Scripts (*.cfg, *.qs)|*.cfg;*.qs|All Files (*.*)|*.*"
    int FilterIndex = 0;    // of these, the one that comes up
    Text InitialDirectory;  // a drive path
    Text FileName;
    bool ForSaving = false;
    std::size_t MaxFileSize = 0;  // characters of the longest path that is taken; 0: any
};

struct ScreenSize {
    int Width = 0;  // pixels
    int Height = 0;
};

class UserInterface {
  public:
    virtual ~UserInterface() = default;

    /// Shows the box modally and leaves the pressed button and the state of NotAgain_Chk in it.
    virtual void ShowQuestionBox(QuestionBox_Frm& box) = 0;

    /// A drive path; nothing if the user cancelled; an error if the dialog itself failed.
    virtual Result<std::optional<Text>> ChooseFile(const FileRequest& request) = 0;

    /// Brings all live windows in line with their structs.
    virtual void Refresh() = 0;

    /// Handles what is waiting, then returns.
    virtual void PumpEvents() = 0;

    /// Ends the program once the running handler has returned.
    virtual void EndProgram() = 0;

    /// Width of a line of text in the windows' font, in pixels.
    virtual int TextWidth(TextView line) = 0;
    virtual int TextHeight() = 0;

    /// The same in the fixed-width font that files are shown in. Tabs reach as far as a text field takes them.
    virtual int FixedTextWidth(TextView line) { return TextWidth(line); }
    virtual int FixedTextHeight() { return TextHeight(); }
    virtual ScreenSize Screen() = 0;

    // Modal windows. Each returns when its struct says that it is closed. A user interface without the window leaves
    // the struct as it is, which is a cancel.
    virtual void ShowInstallParams(InstallParams_Frm&) {}
    virtual void ShowAbout(About_Frm&) {}

    /// Any window of the ModalWindow family, told by its type: one door for all that came after the two above.
    virtual void ShowModal(ModalWindow&) {}

    /// Makes what ShowModal will show of the window, out of sight, where there is time ahead of it. One at a time.
    virtual void Prepare(ModalWindow&) {}

    /// Drops what was prepared and not shown. To be called before its struct goes.
    virtual void DropPrepared() {}

    /// One line of text, `offered` at first; nothing if the user cancelled.
    virtual std::optional<Text> InputBox(TextView title, TextView prompt, TextView offered);

    /// Opens the handbook, a drive path, in the toolkit's viewer.
    virtual Error OpenHelp(TextView path, const HelpPlace& place);

    /// Opens the address in the default browser. Error 53 if there is no browser, any other if it would not load.
    virtual Error OpenUrl(TextView address);

    /// Whether a tray shows icons now. Without one a hidden window could not be brought back.
    virtual bool TrayAvailable() { return false; }

    /// Makes what the main window needs to come up, out of sight, where there is time ahead of it.
    virtual void PrepareMainWindow() {}

    /// Handles events until the main window is on the screen and has the keyboard, for a second at most. A window that
    /// is shown comes up later, and would come up in front of what has been opened meanwhile.
    virtual void AwaitMainWindow() {}

    /// Brings the main window in front of all others, out of the task bar if it is there.
    virtual void RaiseMainWindow() {}

    /// Pops up a menu of the main window by its name, "File_Bar", at the pointer.
    virtual void PopUpMenu(TextView) {}

    /// The next click on a control shows what it is for.
    virtual void EnterWhatsThis() {}
};

}  // namespace lv
