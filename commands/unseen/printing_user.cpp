#include "commands/unseen/printing_user.h"

#include <algorithm>

#include "foundation/field_strings.h"
#include "foundation/question_box.h"

namespace lv {

namespace {

/// The box of a program that ends must not come again and again.
constexpr std::size_t kMostSaid = 100'000;

}  // namespace

void PrintingUser::ShowQuestionBox(QuestionBox_Frm& box) {
    const int answer = std::max(box.QuietButton, 0);
    QuestionBox_Button_Cmd_Click(box, answer);
    if (said_.size() > kMostSaid) {
        return;
    }
    said_ += Join(box.Question_Txt.Text, NewLine);
    if (box.Button_Cmd.size() > 1) {
        const Text caption = ReplaceText(box.Button_Cmd[static_cast<std::size_t>(answer)].Caption, "&", "");
        said_ += Join("(Answered without asking: ", caption, ")", NewLine);
    }
}

}  // namespace lv
