// foundation/question_box.h
//
// The one box in which the program asks and tells: a text, an icon, any number of buttons with captions of their own.

#pragma once

#include <vector>

#include "foundation/controls.h"
#include "foundation/run.h"

namespace lv {

/// Icons 0 to 13; 0 is the quiet one of plain messages.
constexpr int kQuestionIcons = 14;

/// Sizes in pixels, made from the measure of the texts.
struct QuestionBoxLayout {
    int Gap = 0;  // around all elements: a quarter of a button's height
    int TextWidth = 0;
    int TextHeight = 0;
    bool ScrollsDown = false;
    bool ScrollsAcross = false;
    bool Wraps = false;   // at the blanks of lines that are wider
    int ButtonWidth = 0;  // of each
    int ButtonHeight = 0;
};

struct QuestionBox_Frm {
    Text Caption;
    TextBox Question_Txt;  // can be selected and copied, not changed
    Picture Display_Pic;
    std::vector<CommandButton> Button_Cmd;
    CheckBox NotAgain_Chk;
    QuestionBoxLayout Layout;
    bool FixedWidth = false;  // show the text in a fixed-width font

    int QuietButton = -1;  // pressed by closing the box and by Escape; -1: neither does anything
    int LastButton = 0;
    bool LastNotAgain = true;
};

/// What AskUser shows: captions split at ",", the default button and the icon held within their ranges. The quiet
/// button is the one that changes nothing, by its caption, or the only one.
QuestionBox_Frm MakeQuestionBox(TextView title, TextView text, TextView buttons, int defaultButton, int icon);

/// Measures the texts and fills the layout; the text is held within 0.8 of the screen: it wraps beyond
/// that width if it then holds within the height, else it scrolls. A file's text keeps its lines.
void LayOutQuestionBox(QuestionBox_Frm& box, UserInterface& user);

void QuestionBox_Button_Cmd_Click(QuestionBox_Frm& box, int index);

/// Writing into the message is undone.
void QuestionBox_Question_Txt_Change(QuestionBox_Frm& box, TextBox& shown);

/// Asks and returns the index of the pressed button, from 0. An empty title becomes AppName, for the caller too.
/// `buttons` joins the captions with ","; "&" marks the access key.
Index AskUser(Run& run, Text& title, TextView text, TextView buttons = "&OK", int defaultButton = 0, int icon = 0);
Index AskUser(Run& run, const char* title, TextView text, TextView buttons = "&OK", int defaultButton = 0,
              int icon = 0);

/// With the text in a fixed-width font, for files.
Index AskUserFixedWidth(Run& run, const char* title, TextView text, TextView buttons = "&OK", int defaultButton = 0,
                        int icon = 0);

/// With the box "Don't show this message again"; run.ShowAgain is false afterwards if the user ticked it.
Index AskUserOnce(Run& run, Text& title, TextView text, TextView buttons = "&OK", int defaultButton = 0, int icon = 0);

/// Of work that could not be gone on with, for want of memory above all. Never throws: a box that there is no memory
/// for is left out.
void TellOfGivenUpWork(Run& run, const Error& failed) noexcept;

/// Whether the key in section "ShowMessage" is 1, as it is until the user has had enough of that message. Some messages
/// come at 1 alone; others at everything but "0".
bool MessageIsOn(Run& run, TextView messageKey);

/// AskUserOnce, if the key in section "ShowMessage" is not "0" yet; notes there that it is not to come again.
/// `defaultButton` is the answer when nothing was asked.
Index AskUserUnlessTold(Run& run, TextView messageKey, TextView title, TextView text, TextView buttons = "&OK",
                        int defaultButton = 0, int icon = 0);

}  // namespace lv
