#include "tests/support/scripted_user.h"

namespace lv {

void ScriptedUser::ShowQuestionBox(QuestionBox_Frm& box) {
    Asked.push_back(box);
    if (OnDialog) {
        OnDialog();
    }
    if (Expected.empty()) {
        ADD_FAILURE() << "not expected: [" << box.Caption << "] " << box.Question_Txt.Text;
        QuestionBox_Button_Cmd_Click(box, 0);
        return;
    }
    const ExpectedQuestion expected = Expected.front();
    Expected.pop_front();
    EXPECT_EQ(box.Caption, expected.Title);
    if (expected.Whole) {
        EXPECT_EQ(box.Question_Txt.Text, expected.Text_);
    } else {
        EXPECT_NE(box.Question_Txt.Text.find(expected.Text_), Text::npos)
            << "asked: " << box.Question_Txt.Text << "\nexpected: " << expected.Text_;
    }
    if (expected.Buttons) {
        Text captions;
        for (const CommandButton& button : box.Button_Cmd) {
            captions += (captions.empty() ? "" : ",") + button.Caption;
        }
        EXPECT_EQ(captions, *expected.Buttons);
    }
    if (expected.TickNotAgain) {
        EXPECT_TRUE(box.NotAgain_Chk.Visible);
        box.NotAgain_Chk.Value = 1;
    }
    QuestionBox_Button_Cmd_Click(box, expected.Answer);
}

Result<std::optional<Text>> ScriptedUser::ChooseFile(const FileRequest& request) {
    FileRequests.push_back(request);
    if (FileAnswers.empty()) {
        ADD_FAILURE() << "no file dialog was expected: " << request.Title;
        return std::optional<Text>();
    }
    auto answer = FileAnswers.front();
    FileAnswers.pop_front();
    return answer;
}

std::optional<Text> ScriptedUser::InputBox(TextView title, TextView prompt, TextView offered) {
    Offered.emplace_back(offered);
    Inputs.push_back(Join(title, "|", prompt));
    if (OnDialog) {
        OnDialog();
    }
    if (InputAnswers.empty()) {
        ADD_FAILURE() << "no input box was expected: " << title;
        return std::nullopt;
    }
    auto answer = InputAnswers.front();
    InputAnswers.pop_front();
    return answer;
}

Error ScriptedUser::OpenHelp(TextView path, const HelpPlace& place) {
    HelpPlaced = place;
    Opened.emplace_back(path);
    return HelpFails;
}

Error ScriptedUser::OpenUrl(TextView address) {
    Opened.emplace_back(address);
    return UrlFails;
}

}  // namespace lv
