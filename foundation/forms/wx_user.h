// foundation/forms/wx_user.h
//
// The user interface that the toolkit makes.

#pragma once

#include <wx/dialog.h>
#include <wx/window.h>

#include <functional>
#include <memory>
#include <unordered_map>
#include <utility>
#include <vector>

#include "foundation/forms/handbook.h"
#include "foundation/forms/help_key.h"
#include "foundation/user_interface.h"
#include "platform/files.h"

namespace lv {

class WxUser : public UserInterface {
  public:
    explicit WxUser(Files& files);
    ~WxUser() override;

    /// The window that question boxes stand over, once there is one.
    void SetActiveForm(wxWindow* form) { activeForm_ = form; }
    [[nodiscard]] wxWindow* ActiveForm() const { return activeForm_; }
    /// The live window that the user works in, if that is another one: what is asked then stands over it.
    void SetForemost(wxWindow* form) { foremost_ = form; }
    /// Called by Refresh, for each owner its own; an empty one takes the owner's back.
    void OnRefresh(const void* owner, std::function<void()> show);
    /// Called for F1, in whichever window.
    void OnHelpKey(std::function<void()> open);
    /// Called by PopUpMenu.
    void OnPopUp(std::function<void(TextView)> popUp) { popUp_ = std::move(popUp); }

    /// Makes the form of a window, or nothing for a window that it does not know.
    using FormMaker = std::function<std::unique_ptr<wxDialog>(wxWindow* owner, ModalWindow& window)>;
    void AddForms(FormMaker maker) { makers_.push_back(std::move(maker)); }

    void ShowModal(ModalWindow& window) override;
    void Prepare(ModalWindow& window) override;
    void DropPrepared() override;
    void ShowQuestionBox(QuestionBox_Frm& box) override;
    Result<std::optional<Text>> ChooseFile(const FileRequest& request) override;
    void Refresh() override;
    void PumpEvents() override;
    void EndProgram() override;
    int TextWidth(TextView line) override;
    int TextHeight() override;
    int FixedTextWidth(TextView line) override;
    int FixedTextHeight() override;
    ScreenSize Screen() override;

    void ShowAbout(About_Frm& about) override;
    std::optional<Text> InputBox(TextView title, TextView prompt, TextView offered) override;
    Error OpenHelp(TextView path, const HelpPlace& place) override;
    Error OpenUrl(TextView address) override;
    bool TrayAvailable() override;
    void PrepareMainWindow() override;
    void AwaitMainWindow() override;
    void RaiseMainWindow() override;
    void PopUpMenu(TextView menu) override;
    void EnterWhatsThis() override;

  private:
    struct Ruler;
    void FitRulers();  // to the scale of the window that asks
    Ruler& TheRuler();
    Ruler& TheFixedRuler();
    [[nodiscard]] wxWindow* Owner() const;
    std::unique_ptr<wxDialog> FormOf(ModalWindow& window);

    Files& files_;
    wxWindow* activeForm_ = nullptr;
    wxWindow* foremost_ = nullptr;
    std::vector<std::pair<const void*, std::function<void()>>> refresh_;
    std::vector<FormMaker> makers_;
    std::unique_ptr<wxDialog> prepared_;
    const ModalWindow* preparedOf_ = nullptr;
    wxDialog* onTop_ = nullptr;  // the dialog that is up: what it opens stands over it
    std::function<void(TextView)> popUp_;
    Handbook handbook_;
    std::unique_ptr<HelpKey> helpKey_;
    double rulerScale_ = 1;
    std::unique_ptr<Ruler> ruler_;
    std::unique_ptr<Ruler> fixedRuler_;
    std::unordered_map<Text, int> widths_;  // of what was measured
};

}  // namespace lv
