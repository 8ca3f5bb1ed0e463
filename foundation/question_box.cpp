#include "foundation/question_box.h"

#include <algorithm>
#include <exception>

#include "foundation/error_lines.h"
#include "foundation/field_strings.h"
#include "foundation/settings.h"

namespace lv {

namespace {

constexpr double kMostOfScreen = 0.8;

/// Captions of the buttons that leave everything as it is.
constexpr TextView kQuietCaptions[] = {
    "No",
    "Cancel",
    "Not OK",
    "No Way!",
    "No way",
    "Not Cool",
    "Decline",
    "Ignore",
    "Close",
    "Abort Launch",
    "Cool - Thanks Man!",
    "Don't Start",
    "Leave It",
    "Leave It Alone",
    "Leave as They Are",
    "Cancel and I'll Try That",
    "I'm smart enough to admit I don't know what I am doing",
};

/// The captions as the user sees them, without the mark of the access key.
Text Shown(TextView caption) {
    return ReplaceText(caption, "&", "");
}

int QuietButtonOf(const std::vector<CommandButton>& buttons) {
    if (buttons.size() == 1) {
        return 0;
    }
    const auto quiet = std::ranges::find_if(buttons, [](const CommandButton& button) {
        return std::ranges::find(kQuietCaptions, Shown(button.Caption)) != std::end(kQuietCaptions);
    });
    return quiet == buttons.end() ? -1 : static_cast<int>(quiet - buttons.begin());
}

struct Measure {
    int Width = 0;
    int Height = 0;
};

std::vector<TextView> LinesOf(TextView text) {
    std::vector<TextView> lines;
    for (std::size_t at = 0; at <= text.size();) {
        const std::size_t end = std::min(text.find('\n', at), text.size());
        TextView line = text.substr(at, end - at);
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        lines.push_back(line);
        at = end + 1;
    }
    return lines;
}

/// In the font that the text is shown in.
Measure MeasureText(const std::vector<TextView>& lines, bool fixedWidth, UserInterface& user) {
    Measure measured;
    for (const TextView line : lines) {
        measured.Width = std::max(measured.Width, fixedWidth ? user.FixedTextWidth(line) : user.TextWidth(line));
    }
    measured.Height = static_cast<int>(lines.size()) * (fixedWidth ? user.FixedTextHeight() : user.TextHeight());
    return measured;
}

/// The lines that one becomes when it wraps at its blanks. A word wider than a line breaks anywhere.
int WrappedLines(TextView line, int width, UserInterface& user) {
    const int blank = user.TextWidth(" ");
    int lines = 1;
    int used = 0;
    for (std::size_t at = 0; at < line.size();) {
        const std::size_t end = std::min(line.find(' ', at), line.size());
        const int word = user.TextWidth(line.substr(at, end - at));
        if (used > 0 && used + word > width) {
            ++lines;
            used = 0;
        }
        lines += word > width ? (word - 1) / width : 0;
        used = (word > width ? word % width : used + word) + blank;
        at = end + 1;
    }
    return lines;
}

/// The lines that all become, as far as `most`.
int WrappedLines(const std::vector<TextView>& lines, int width, int most, UserInterface& user) {
    int wrapped = 0;
    for (const TextView line : lines) {
        if (wrapped > most) {
            break;
        }
        wrapped += WrappedLines(line, width, user);
    }
    return wrapped;
}

Index Show(Run& run, QuestionBox_Frm& box) {
    LayOutQuestionBox(box, run.User);
    const TopmostSuspension dialog(run);
    run.User.ShowQuestionBox(box);
    return static_cast<Index>(box.LastButton);
}

Index Ask(Run& run, Text& title, TextView text, TextView buttons, int defaultButton, int icon, bool mayBeLast) {
    if (title.empty()) {
        title = run.AppName;
    }
    QuestionBox_Frm box = MakeQuestionBox(title, text, buttons, defaultButton, icon);
    box.NotAgain_Chk.Visible = mayBeLast;
    const Index pressed = Show(run, box);
    if (mayBeLast) {
        run.ShowAgain = box.LastNotAgain;
    }
    return pressed;
}

}  // namespace

QuestionBox_Frm MakeQuestionBox(TextView title, TextView text, TextView buttons, int defaultButton, int icon) {
    QuestionBox_Frm box;
    box.Caption = title;
    box.Question_Txt.Text = text;
    const int count = CountDelimiters(buttons, ",") + 1;
    for (int i = 0; i < count; ++i) {
        CommandButton button;
        button.Caption = GetField(buttons, static_cast<Index>(i), ",");
        box.Button_Cmd.push_back(button);
    }
    const int chosen = defaultButton < 0 || defaultButton >= count ? 0 : defaultButton;
    box.Button_Cmd[static_cast<std::size_t>(chosen)].Default = true;
    box.QuietButton = QuietButtonOf(box.Button_Cmd);
    box.LastButton = std::max(box.QuietButton, 0);  // of a box that goes with the program
    box.Display_Pic.Index = icon < 0 || icon >= kQuestionIcons ? 0 : icon;
    box.NotAgain_Chk.Caption = "Don't show this message again";
    box.NotAgain_Chk.Visible = false;
    return box;
}

namespace {

/// Wraps what is too wide, if it is not too high then. A line more than counted leaves the toolkit its own measure.
void WrapText(QuestionBox_Frm& box, const std::vector<TextView>& lines, int highest, UserInterface& user) {
    QuestionBoxLayout& layout = box.Layout;
    const int line = user.TextHeight();
    const int wrapped = WrappedLines(lines, layout.TextWidth, highest / line, user) + 1;
    if (wrapped * line <= highest) {
        layout.ScrollsAcross = false;
        layout.Wraps = true;
        layout.TextHeight = wrapped * line;
    }
}

}  // namespace

void LayOutQuestionBox(QuestionBox_Frm& box, UserInterface& user) {
    QuestionBoxLayout& layout = box.Layout;
    const int line = user.TextHeight();
    layout.ButtonHeight = line * 2;
    layout.Gap = layout.ButtonHeight / 4;
    int caption = 0;
    for (const CommandButton& button : box.Button_Cmd) {
        caption = std::max(caption, user.TextWidth(Shown(button.Caption)));
    }
    layout.ButtonWidth = std::max(caption + line * 2, line * 5);

    const int buttons = static_cast<int>(box.Button_Cmd.size());
    const int row = buttons * layout.ButtonWidth + (buttons - 1) * layout.Gap;
    const std::vector<TextView> lines = LinesOf(box.Question_Txt.Text);
    const Measure text = MeasureText(lines, box.FixedWidth, user);
    const ScreenSize screen = user.Screen();
    const int widest = static_cast<int>(screen.Width * kMostOfScreen);
    const int highest = static_cast<int>(screen.Height * kMostOfScreen);
    layout.ScrollsAcross = text.Width > widest;
    layout.ScrollsDown = text.Height > highest;
    layout.TextWidth = std::min(std::max(text.Width, row), widest);
    layout.TextHeight = std::min(text.Height, highest);
    if (layout.ScrollsAcross && !layout.ScrollsDown && !box.FixedWidth) {
        WrapText(box, lines, highest, user);
    }
}

void QuestionBox_Button_Cmd_Click(QuestionBox_Frm& box, int index) {
    box.LastButton = index;
    if (box.NotAgain_Chk.Visible) {
        box.LastNotAgain = box.NotAgain_Chk.Value != 1;
    }
}

void QuestionBox_Question_Txt_Change(QuestionBox_Frm& box, TextBox& shown) {
    shown.Text = box.Question_Txt.Text;
}

Index AskUser(Run& run, Text& title, TextView text, TextView buttons, int defaultButton, int icon) {
    return Ask(run, title, text, buttons, defaultButton, icon, false);
}

Index AskUser(Run& run, const char* title, TextView text, TextView buttons, int defaultButton, int icon) {
    Text own = title;
    return Ask(run, own, text, buttons, defaultButton, icon, false);
}

Index AskUserFixedWidth(Run& run, const char* title, TextView text, TextView buttons, int defaultButton, int icon) {
    QuestionBox_Frm box =
        MakeQuestionBox(*title == '\0' ? run.AppName : Text(title), text, buttons, defaultButton, icon);
    box.FixedWidth = true;
    return Show(run, box);
}

Index AskUserOnce(Run& run, Text& title, TextView text, TextView buttons, int defaultButton, int icon) {
    return Ask(run, title, text, buttons, defaultButton, icon, true);
}

void TellOfGivenUpWork(Run& run, const Error& failed) noexcept {
    try {
        AskUser(run, "",
                Join("What was under way has been given up.", NewLine, NewLine, ErrorLines(failed), NewLine, NewLine,
                     "Save your work, and close other programs before you try again."));
    } catch (const std::exception&) {
        return;
    }
}

bool MessageIsOn(Run& run, TextView messageKey) {
    return GetNumber(run, "ShowMessage", messageKey, 1) == 1;
}

Index AskUserUnlessTold(Run& run, TextView messageKey, TextView title, TextView text, TextView buttons,
                        int defaultButton, int icon) {
    if (GetSetting(run, run.AppName, "ShowMessage", messageKey, "1") == "0") {
        return static_cast<Index>(defaultButton);
    }
    Text own(title);
    const Index pressed = AskUserOnce(run, own, text, buttons, defaultButton, icon);
    if (!run.ShowAgain) {
        Save(run, "ShowMessage", messageKey, "0");
    }
    return pressed;
}

}  // namespace lv
