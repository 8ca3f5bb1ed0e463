// tests/support/scripted_user.h
//
// A user who answers as told and fails the test on any question not told of.

#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <optional>
#include <vector>

#include "foundation/question_box.h"

namespace lv {

struct ExpectedQuestion {
    Text Title;      // exact
    Text Text_;      // must occur in the shown text; all of it with Whole
    int Answer = 0;  // index of the button pressed
    bool TickNotAgain = false;
    bool Whole = false;
    std::optional<Text> Buttons = std::nullopt;  // captions joined by ",", exact
};

class ScriptedUser : public UserInterface {
  public:
    ~ScriptedUser() override { EXPECT_TRUE(Expected.empty()) << "never asked: " << Expected.front().Title; }

    std::deque<ExpectedQuestion> Expected;
    std::vector<QuestionBox_Frm> Asked;
    std::deque<Result<std::optional<Text>>> FileAnswers;
    std::vector<FileRequest> FileRequests;
    std::function<void()> OnPump;
    int Refreshes = 0;
    int Pumps = 0;
    bool ProgramEnded = false;
    ScreenSize ScreenIs{1000, 1000};

    void Expect(ExpectedQuestion question) { Expected.push_back(std::move(question)); }
    void ShowQuestionBox(QuestionBox_Frm& box) override;
    Result<std::optional<Text>> ChooseFile(const FileRequest& request) override;
    void Refresh() override { ++Refreshes; }
    void PumpEvents() override {
        ++Pumps;
        if (OnPump) {
            OnPump();
        }
    }
    void EndProgram() override { ProgramEnded = true; }
    int TextWidth(TextView line) override { return static_cast<int>(line.size()) * 8; }
    int TextHeight() override { return 16; }
    ScreenSize Screen() override { return ScreenIs; }
};

}  // namespace lv
