// foundation/forms/wx_user.h
//
// The user interface that the toolkit makes.

#pragma once

#include <wx/window.h>

#include <functional>
#include <vector>

#include "foundation/user_interface.h"
#include "platform/files.h"

namespace lv {

class WxUser : public UserInterface {
  public:
    explicit WxUser(Files& files) : files_(files) {}

    /// The window that question boxes stand over, once there is one.
    void SetActiveForm(wxWindow* form) { activeForm_ = form; }
    /// Called by Refresh.
    void OnRefresh(std::function<void()> show) { refresh_ = std::move(show); }

    void ShowQuestionBox(QuestionBox_Frm& box) override;
    Result<std::optional<Text>> ChooseFile(const FileRequest& request) override;
    void Refresh() override;
    void PumpEvents() override;
    void EndProgram() override;
    int TextWidth(TextView line) override;
    int TextHeight() override;
    ScreenSize Screen() override;

  private:
    [[nodiscard]] wxWindow* Owner() const;

    Files& files_;
    wxWindow* activeForm_ = nullptr;
    std::function<void()> refresh_;
};

}  // namespace lv
