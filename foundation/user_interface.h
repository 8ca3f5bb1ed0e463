// foundation/user_interface.h
//
// The user, as the program sees one: questions, modal windows, file choice, the event pump, the measure of text.
// The toolkit's is the real one; tests script theirs.

#pragma once

#include <optional>

#include "foundation/text.h"
#include "platform/error.h"

namespace lv {

struct QuestionBox_Frm;

struct FileRequest {
    Text Title;
    Text Filter;            // "Quake Scripts (*.cfg, *.qs)|*.cfg;*.qs|All Files (*.*)|*.*"
    Text InitialDirectory;  // a drive path
    Text FileName;
    bool ForSaving = false;
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
    virtual ScreenSize Screen() = 0;
};

}  // namespace lv
