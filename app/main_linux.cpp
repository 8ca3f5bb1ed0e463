// app/main_linux.cpp
//
// The program on Linux: makes the platform, makes the window, runs.

#include <poll.h>
#include <wx/app.h>
#include <wx/cshelp.h>
#include <wx/image.h>
#include <wx/timer.h>

#include <cstdlib>
#include <memory>

#include "catalogs/forms/entry_forms.h"
#include "foundation/forms/wx_clipboard.h"
#include "foundation/question_box.h"
#include "foundry/foundry.h"
#include "gamespy/forms/game_spy_form.h"
#include "launcher/forms/launcher_user.h"
#include "launcher/forms/lv_form.h"
#include "launcher/start.h"
#include "launcher/window_life.h"
#include "platform/linux/linux_clock.h"
#include "platform/linux/linux_files.h"
#include "platform/linux/linux_instance.h"
#include "platform/linux/linux_processes.h"
#include "platform/linux/sqlite_settings.h"
#include "platform/linux/user_directories.h"
#include "platform/linux/wine_registry.h"
#include "platform/linux/x11_desktop.h"
#include "video/forms/add_vid_profile_form.h"
#include "video/forms/video_profile_form.h"
#include "wizard/forms/install_form.h"
#include "wizard/wizard.h"

namespace lv {

namespace {

/// Everything that one run owns, in the order in which it is made.
struct Program {
    explicit Program(std::unique_ptr<SqliteSettings> store) : Settings(std::move(store)) {
        System.Instance = &Instance;
        System.Windows = &Windows;
        User.SetRun(TheRun);
        User.AddForms(MakeEntryForm);
        User.AddForms(MakeInstallForm);
        User.AddForms(MakeAddVidProfileForm);
        User.AddForms(MakeGameSpyForm);
        ConnectWizard(TheLauncher);
        ConnectFoundry(TheLauncher);
    }

    std::unique_ptr<SqliteSettings> Settings;
    LinuxFiles Disk{{DataDirectory() / "drives", WinePrefix(), ProgramFileDirectory()}};
    WineRegistry Registry{*Settings, FindWine()};
    LinuxProcesses Programs{Disk};
    WxClipboard Clip;
    LinuxClock Time;
    X11Desktop Windows;
    LinuxInstance Instance{ConfigDirectory().string()};
    Platform System{*Settings, Registry, Disk, Programs, Clip, Time};
    LauncherUser User{Disk};
    Run TheRun{System, User};
    Launcher TheLauncher{TheRun};
    VideoProfileWindow Profiles{TheLauncher.VideoProfile, User};
};

void TellThatTheStoreFails(const Error& failed) {
    LinuxFiles files({DataDirectory() / "drives", WinePrefix(), ProgramFileDirectory()});
    WxUser user(files);
    QuestionBox_Frm box = MakeQuestionBox(
        "Lorvane 3D", Join(failed.Text, NewLine, NewLine, "Error Number = ", std::to_string(failed.Number)), "&OK", 0,
        4);
    LayOutQuestionBox(box, user);
    user.ShowQuestionBox(box);
}

}  // namespace

// The toolkit looks for OpenGL visuals when it opens the display, which loads a compiler of 44 MB that no window here
// ever asks for. The games that are started later must not inherit the refusal.
class WithoutOpenGl {
  public:
    WithoutOpenGl() : ours_(std::getenv(kVariable) == nullptr) { setenv(kVariable, "disable", 0); }
    void TakeBack() const {
        if (ours_) {
            unsetenv(kVariable);
        }
    }

  private:
    static constexpr const char* kVariable = "GDK_GL";
    bool ours_;
};

class LorvaneApp : public wxApp {
  public:
    bool OnInit() override {
        withoutOpenGl_.TakeBack();
        SetAppName("lorvane3d");
        SetAppDisplayName("Lorvane 3D");
        wxImage::AddHandler(new wxPNGHandler);
        auto store = SqliteSettings::Open(ConfigDirectory() / "settings.sqlite");
        if (!store.Ok()) {
            TellThatTheStoreFails(store.Fault);
            return false;
        }
        program_ = std::make_unique<Program>(std::move(store.Value));
        wxHelpProvider::Set(new wxSimpleHelpProvider);
        form_ = new LvForm(program_->TheLauncher, program_->User);
        SetTopWindow(form_);
        SetExitOnFrameDelete(false);
        CallAfter([this] { StartInsideTheLoop(); });
        return true;
    }

    int OnExit() override {
        knock_.Stop();
        return wxApp::OnExit();
    }

  private:
    // The start pumps events, so it needs the loop around it.
    void StartInsideTheLoop() {
        if (!Start(program_->TheLauncher)) {
            End();
            return;
        }
        program_->Instance.OnRaise = [this] { ComeForward(program_->TheLauncher); };
        knock_.Bind(wxEVT_TIMER, [this](wxTimerEvent&) { AnswerKnocks(); });
        knock_.Start(kKnockMilliseconds);
    }

    // A look that costs nothing, four times a second.
    void AnswerKnocks() {
        pollfd waiting{program_->Instance.Descriptor(), POLLIN, 0};
        if (waiting.fd >= 0 && poll(&waiting, 1, 0) > 0) {
            program_->Instance.Serve();
        }
        if (program_->TheRun.Ended) {
            End();
        }
    }

    void End() {
        form_->Destroy();
        ExitMainLoop();
    }

    static constexpr int kKnockMilliseconds = 250;

    LvForm* form_ = nullptr;
    wxTimer knock_;
    WithoutOpenGl withoutOpenGl_;  // made with the application, before the toolkit opens the display
    std::unique_ptr<Program> program_;
};

}  // namespace lv

wxIMPLEMENT_APP(lv::LorvaneApp);
