// commands/unseen/printing_user.h
//
// The user of a run without windows: what a box says is kept as lines of text, and each question gets the answer that
// changes nothing.

#pragma once

#include "foundation/user_interface.h"

namespace lv {

class PrintingUser : public UserInterface {
  public:
    void ShowQuestionBox(QuestionBox_Frm& box) override;
    Result<std::optional<Text>> ChooseFile(const FileRequest&) override { return std::optional<Text>(); }
    void Refresh() override {}
    void PumpEvents() override {}
    void EndProgram() override {}
    int TextWidth(TextView line) override { return static_cast<int>(line.size()); }
    int TextHeight() override { return 1; }
    ScreenSize Screen() override { return {1024, 768}; }

    /// All that was said, each box's text behind the last one's; a question has its answer behind it.
    [[nodiscard]] const Text& Said() const { return said_; }
    void Forget() { said_.clear(); }

  private:
    Text said_;
};

}  // namespace lv
