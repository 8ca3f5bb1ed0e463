// app/lorvane_app.h
//
// The program on whatever system: makes the window on the platform that a main has made, and runs.

#pragma once

#include <wx/app.h>
#include <wx/cshelp.h>
#include <wx/image.h>
#include <wx/timer.h>

#include <exception>
#include <memory>
#include <utility>

#include "assets/embedded_pictures.h"
#include "assets/embedded_texts.h"
#include "catalogs/forms/entry_forms.h"
#include "commands/asked_instance.h"
#include "commands/rehearse_launch.h"
#include "foundation/field_strings.h"
#include "foundation/forms/help_bubble.h"
#include "foundation/forms/wx_text.h"
#include "foundation/question_box.h"
#include "foundation/settings.h"
#include "foundation/window_services.h"
#include "foundry/forms/foundry_forms.h"
#include "foundry/forms/sf_splash_form.h"
#include "foundry/foundry.h"
#include "gamespy/forms/game_spy_form.h"
#include "launcher/drop/offer_dropped.h"
#include "launcher/forms/game_list_form.h"
#include "launcher/forms/join_server_form.h"
#include "launcher/forms/launcher_user.h"
#include "launcher/forms/lv_form.h"
#include "launcher/forms/splash_form.h"
#include "launcher/start/start.h"
#include "launcher/window/game_end.h"
#include "launcher/window/window_life.h"
#include "video/forms/add_vid_profile_form.h"
#include "video/forms/video_profile_form.h"
#include "wizard/forms/install_form.h"
#include "wizard/wizard.h"

namespace lv {

/// Smallest first.
inline std::vector<ShortcutPicture> EmbeddedPicturesOfGame(TextView image) {
    std::vector<ShortcutPicture> pictures;
    for (const EmbeddedPicture& picture : EmbeddedPictures()) {
        if (picture.Name == Join("icons/games/", image)) {
            pictures.push_back(
                {picture.Height, {reinterpret_cast<const char*>(picture.Png.data()), picture.Png.size()}});
        }
    }
    return pictures;
}

/// Everything that one run owns, in the order in which it is made.
template <class System>
struct Program {
    explicit Program(std::unique_ptr<System> host) : Host(std::move(host)) {
        User.SetRun(TheRun);
        AskWhileLocked(TheRun);
        User.OnHelpKey([this] { OpenHelpFile(TheRun); });
        User.AddForms(MakeEntryForm);
        User.AddForms(MakeJoinServerForm);
        User.AddForms(MakeInstallForm);
        User.AddForms(MakeAddVidProfileForm);
        User.AddForms(MakeGameSpyForm);
        User.AddForms(MakeGameListForm);
        User.AddForms(MakeFoundryForms(User));
        TheLauncher.ShippedEngines = EmbeddedEngines();
        TheLauncher.PicturesOfGame = EmbeddedPicturesOfGame;
        ConnectWizard(TheLauncher);
        ConnectFoundry(TheLauncher);
        ConnectDryRun(TheLauncher, [this] {
            return CommandPlace{Host->Services, EmbeddedEngines(), {}, ConnectFoundry};
        });
        ConnectEditor(Foundry);
    }

    std::unique_ptr<System> Host;
    LauncherUser User{Host->Disk};
    Run TheRun{Host->Services, User};
    Launcher TheLauncher{TheRun};
    SetupFoundry Foundry{TheLauncher};
    SFSplashWindow FoundrySplash{Foundry, User};
    VideoProfileWindow Profiles{TheLauncher.VideoProfile, User};
};

/// A System has the members `Disk` and `Services`, the platform, and these functions:
/// static Make(), which makes it, or tells the user why not and returns null;
/// Started(window, launcher), called when the window is on the screen;
/// AnswerKnocks(), called four times a second from then on.
template <class System>
class LorvaneApp : public wxApp {
  public:
    /// `offered`: a path on the drives or a server, which the window offers once it is there.
    explicit LorvaneApp(Text offered = {}) : offered_(std::move(offered)) {}

    bool OnInit() override {
        SetAppName("lorvane3d");
        SetAppDisplayName("Lorvane 3D");
        wxImage::AddHandler(new wxPNGHandler);
        // Nothing here is brought in line that way, and the editor has a thousand windows to ask at each idle moment.
        wxUpdateUIEvent::SetMode(wxUPDATE_UI_PROCESS_SPECIFIED);
        wxIdleEvent::SetMode(wxIDLE_PROCESS_SPECIFIED);
        SetExitOnFrameDelete(false);
        splash_ = new SplashForm([this] { StartInsideTheLoop(); });
        return true;
    }

    int OnRun() override {
        const int code = wxApp::OnRun();
        if (!program_) {
            return kNotBegun;
        }
        return program_->TheLauncher.HandOverFailed ? exit_code::kFailed : code;
    }

    int OnExit() override {
        look_.Stop();
        return wxApp::OnExit();
    }

    // Called while the exception is handled, whichever event it came out of. The program goes on: what is stored and
    // written is so in single steps, and the windows show what their structs say.
    bool OnExceptionInMainLoop() override {
        if (!telling_) {
            telling_ = true;
            TellOfException();
            telling_ = false;
        }
        return true;
    }

  private:
    void TellOfException() {
        try {
            throw;
        } catch (const std::exception& thrown) {
            TellOf(ErrorOfException(thrown));
        } catch (...) {
            TellOf(MakeError(error::kInternal));
        }
    }

    void TellOf(const Error& fault) {
        if (program_) {
            TellOfGivenUpWork(program_->TheRun, fault);
        } else {
            wxSafeShowMessage(GetAppDisplayName(), ToWx(fault.Text));
        }
    }

    // False if the user was told why there is no program.
    bool MakeProgram() {
        auto host = System::Make();
        if (!host) {
            return false;
        }
        program_ = std::make_unique<Program<System>>(std::move(host));
        wxHelpProvider::Set(new HelpBubbles);
        form_ = new LvForm(program_->TheLauncher, program_->User, splash_);
        SetTopWindow(form_);
        ConnectHandOver(program_->TheLauncher);
        if (!offered_.empty()) {
            (void)NoteDropped(program_->TheLauncher, {.Word = std::exchange(offered_, {}), .Count = 1, .Fault = {}});
        }
        LetTheSessionEnd();
        return true;
    }

    bool StartOrTell() {
        try {
            return MakeProgram() && Start(program_->TheLauncher);
        } catch (...) {
            OnExceptionInMainLoop();
            return false;
        }
    }

    // The start pumps events, so it needs the loop around it.
    void StartInsideTheLoop() {
        if (!StartOrTell()) {
            End();
            return;
        }
        program_->Host->Started(*form_, program_->TheLauncher);
        look_.Bind(wxEVT_TIMER, [this](wxTimerEvent&) {
            program_->Host->AnswerKnocks();
            if (program_->TheRun.Ended) {
                End();
                return;
            }
            // Neither in here: this timer must go on while a dialog is up.
            if (GameEndIsDue(program_->TheLauncher)) {
                CallAfter([this] {
                    TellGameEnd(program_->TheLauncher);
                    program_->User.Refresh();
                });
            }
            if (DropIsDue(program_->TheLauncher)) {
                CallAfter([this] {
                    OfferDropped(program_->TheLauncher);
                    program_->User.Refresh();
                });
            }
        });
        look_.Start(kLookMilliseconds);
    }

    // On Windows, where the toolkit would ask the window to close: that hides it and has the user wait for the end.
    void LetTheSessionEnd() {
        Bind(wxEVT_QUERY_END_SESSION, [](wxCloseEvent&) {});
        Bind(wxEVT_END_SESSION, [this](wxCloseEvent&) { SessionEnds(program_->TheLauncher); });
    }

    void End() {
        if (form_ != nullptr) {
            form_->Destroy();
        }
        ExitMainLoop();
    }

    static constexpr int kLookMilliseconds = 250;
    static constexpr int kNotBegun = -1;

    Text offered_;
    bool telling_ = false;
    SplashForm* splash_ = nullptr;
    LvForm* form_ = nullptr;
    wxTimer look_;
    std::unique_ptr<Program<System>> program_;
};

}  // namespace lv
