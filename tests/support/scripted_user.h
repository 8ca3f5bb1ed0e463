// tests/support/scripted_user.h
//
// A user who answers as told and fails the test on any question not told of.

#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <optional>
#include <vector>

#include "foundation/about_box.h"
#include "foundation/modal_window.h"
#include "foundation/question_box.h"
#include "launcher/start/install_params.h"

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
    ~ScriptedUser() override {
        EXPECT_TRUE(Expected.empty()) << "never asked: " << Expected.front().Title;
        EXPECT_TRUE(modal_.empty()) << "a window that was expected never came up";
    }

    std::deque<ExpectedQuestion> Expected;
    std::vector<QuestionBox_Frm> Asked;
    std::deque<Result<std::optional<Text>>> FileAnswers;
    std::vector<FileRequest> FileRequests;
    std::function<void()> OnPump;
    std::function<void(ModalWindow&)> OnPrepare;
    int PreparedDropped = 0;
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
    void Prepare(ModalWindow& window) override {
        if (OnPrepare) {
            OnPrepare(window);
        }
    }
    void DropPrepared() override { ++PreparedDropped; }
    void EndProgram() override { ProgramEnded = true; }
    int TextWidth(TextView line) override { return static_cast<int>(line.size()) * 8; }
    int TextHeight() override { return 16; }
    int FixedTextWidth(TextView line) override { return static_cast<int>(line.size()) * 10; }
    int FixedTextHeight() override { return 18; }
    ScreenSize Screen() override { return ScreenIs; }

    // What the user does in each dialog that is to come; a dialog without one fails the test.
    std::deque<std::function<void(InstallParams_Frm&)>> InInstallParams;
    std::deque<std::function<void(About_Frm&)>> InAbout;
    std::deque<std::optional<Text>> InputAnswers;
    std::vector<Text> Inputs;   // "title|prompt"
    std::vector<Text> Offered;  // what stood in each
    std::vector<Text> Opened;   // help files and addresses
    HelpPlace HelpPlaced;       // of the last help file
    Error HelpFails;
    Error UrlFails;
    bool HasTray = true;
    std::vector<Text> WindowCalls;  // "raise", "menu File_Bar", "what's this"
    std::function<void()> OnPrepareMainWindow;
    std::function<void()> OnAwaitMainWindow;
    /// What the user does in the next window of the ModalWindow family, which must be of this type.
    template <class Form>
    void In(std::function<void(Form&)> act) {
        modal_.push_back([act = std::move(act)](ModalWindow& shown) {
            auto* form = dynamic_cast<Form*>(&shown);
            ASSERT_NE(form, nullptr) << "another window came up: " << shown.Name;
            act(*form);
        });
    }
    /// Looked at while a dialog or a question is up.
    std::function<void()> OnDialog;

    void ShowInstallParams(InstallParams_Frm& form) override { Act(InInstallParams, form, "InstallParams_Frm"); }
    void ShowAbout(About_Frm& form) override { Act(InAbout, form, "About_Frm"); }
    void ShowModal(ModalWindow& window) override { Act(modal_, window, window.Name.c_str()); }
    std::optional<Text> InputBox(TextView title, TextView prompt, TextView offered) override;
    Error OpenHelp(TextView path, const HelpPlace& place) override;
    Error OpenUrl(TextView address) override;
    bool TrayAvailable() override { return HasTray; }
    void PrepareMainWindow() override {
        if (OnPrepareMainWindow) {
            OnPrepareMainWindow();
        }
    }
    void AwaitMainWindow() override {
        if (OnAwaitMainWindow) {
            OnAwaitMainWindow();
        }
    }
    void RaiseMainWindow() override { WindowCalls.emplace_back("raise"); }
    void PopUpMenu(TextView name) override { WindowCalls.push_back(Join("menu ", name)); }
    void EnterWhatsThis() override { WindowCalls.emplace_back("what's this"); }

  private:
    std::deque<std::function<void(ModalWindow&)>> modal_;

    template <class Form>
    void Act(std::deque<std::function<void(Form&)>>& acts, Form& form, const char* name) {
        if (OnDialog) {
            OnDialog();
        }
        if (acts.empty()) {
            ADD_FAILURE() << "not expected: " << name;
            return;
        }
        const auto act = acts.front();
        acts.pop_front();
        act(form);
    }
};

}  // namespace lv
