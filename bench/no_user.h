// bench/no_user.h
//
// A user interface without a user.

#pragma once

#include "foundation/user_interface.h"

namespace lv {

/// Nobody is there: a question would be a fault of the benchmark.
class NoUser : public UserInterface {
  public:
    void ShowQuestionBox(QuestionBox_Frm&) override { Questions = true; }
    Result<std::optional<Text>> ChooseFile(const FileRequest&) override { return std::optional<Text>(); }
    void Refresh() override {}
    void PumpEvents() override {}
    void EndProgram() override {}
    int TextWidth(TextView line) override { return static_cast<int>(line.size()); }
    int TextHeight() override { return 1; }
    ScreenSize Screen() override { return {1024, 768}; }

    bool Questions = false;
};

}  // namespace lv
