// app/main_linux.cpp
//
// The program on Linux: makes the platform, makes the window, runs.

#include <wx/app.h>
#include <wx/image.h>

#include <memory>

#include "foundation/forms/wx_clipboard.h"
#include "foundation/forms/wx_user.h"
#include "foundation/question_box.h"
#include "launcher/forms/lv_form.h"
#include "launcher/start.h"
#include "platform/linux/linux_clock.h"
#include "platform/linux/linux_files.h"
#include "platform/linux/linux_processes.h"
#include "platform/linux/sqlite_settings.h"
#include "platform/linux/user_directories.h"
#include "platform/linux/wine_registry.h"

namespace lv {

namespace {

/// Everything that one run owns, in the order in which it is made.
struct Program {
    explicit Program(std::unique_ptr<SqliteSettings> store) : Settings(std::move(store)) {}

    std::unique_ptr<SqliteSettings> Settings;
    LinuxFiles Disk{{DataDirectory() / "drives", WinePrefix(), ProgramFileDirectory()}};
    WineRegistry Registry{*Settings, FindWine()};
    LinuxProcesses Programs{Disk};
    WxClipboard Clip;
    LinuxClock Time;
    Platform System{*Settings, Registry, Disk, Programs, Clip, Time};
    WxUser User{Disk};
    Run TheRun{System, User};
    Launcher TheLauncher{TheRun};
};

void TellThatTheStoreFails(const Error& failed) {
    LinuxFiles files({DataDirectory() / "drives", WinePrefix(), ProgramFileDirectory()});
    WxUser user(files);
    QuestionBox_Frm box = MakeQuestionBox(
        "Lorvane 3D",
        Join(failed.Text, NewLine, NewLine, "Error Number = ", std::to_string(failed.Number)), "&OK", 0, 4);
    LayOutQuestionBox(box, user);
    user.ShowQuestionBox(box);
}

}  // namespace

class LorvaneApp : public wxApp {
  public:
    bool OnInit() override {
        SetAppName("lorvane3d");
        SetAppDisplayName("Lorvane 3D");
        wxImage::AddHandler(new wxPNGHandler);
        auto store = SqliteSettings::Open(ConfigDirectory() / "settings.sqlite");
        if (!store.Ok()) {
            TellThatTheStoreFails(store.Fault);
            return false;
        }
        program_ = std::make_unique<Program>(std::move(store.Value));
        if (!Start(program_->TheLauncher)) {
            return false;
        }
        auto* form = new LvForm(program_->TheLauncher, program_->User);
        SetTopWindow(form);
        form->Show();
        return true;
    }

  private:
    std::unique_ptr<Program> program_;
};

}  // namespace lv

wxIMPLEMENT_APP(lv::LorvaneApp);
