// app/main_windows.cpp
//
// The program on Windows: makes the platform.

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "app/lorvane_app.h"
#include "app/telling_app.h"
#include "app/words.h"
#include "app/words_run.h"
#include "foundation/forms/wx_clipboard.h"
#include "launcher/window/window_life.h"
#include "platform/windows/printed_text.h"
#include "platform/windows/registry_settings.h"
#include "platform/windows/task_bar.h"
#include "platform/windows/toolkit/access_keys.h"
#include "platform/windows/windows_clock.h"
#include "platform/windows/windows_desktop.h"
#include "platform/windows/windows_files.h"
#include "platform/windows/windows_instance.h"
#include "platform/windows/windows_known_places.h"
#include "platform/windows/windows_processes.h"
#include "platform/windows/windows_registry.h"
#include "platform/windows/windows_registry_trees.h"
#include "platform/windows/windows_shortcuts.h"

namespace lv {

namespace {

struct WindowsSystem {
    WindowsSystem() {
        Services.Instance = &Instance;
        Services.Windows = &Desk;
        Services.Places = &Places;
        Services.Trees = &Trees;
        Services.Launchers = &Launchers;
    }

    static std::unique_ptr<WindowsSystem> Make() { return std::make_unique<WindowsSystem>(); }

    // A second start shows this window behind the program's back; everything else has to follow.
    void Started(LvForm& window, Launcher& launcher) {
        Instance.OnRequest = AnswersOf(launcher);
        window.Bind(wxEVT_SHOW, [&launcher](wxShowEvent& event) {
            event.Skip();
            if (event.IsShown() && !launcher.Window.Visible) {
                ComeForward(launcher);
            }
        });
    }

    void AnswerKnocks() { Instance.Serve(); }

    RegistrySettings Settings{"Lorvane 3D"};
    WindowsFiles Disk;
    WindowsRegistry Registry;
    WindowsProcesses Programs{Disk};
    WxClipboard Clip;
    WindowsClock Time;
    WindowsInstance Instance{kInstanceCaption};
    WindowsDesktop Desk;
    WindowsKnownPlaces Places{Disk};
    WindowsRegistryTrees Trees;
    WindowsShortcuts Launchers;
    AccessKeys Keys;
    Platform Services{Settings, Registry, Disk, Programs, Clip, Time};
};

}  // namespace

class WindowsApp : public LorvaneApp<WindowsSystem> {
  public:
    using LorvaneApp::LorvaneApp;

    bool OnInit() override {
        (void)TakeTaskBarName();
        return LorvaneApp::OnInit();
    }
};

}  // namespace lv

wxIMPLEMENT_APP_NO_MAIN(lv::WindowsApp);

int WINAPI WinMain(HINSTANCE program, HINSTANCE before, LPSTR line, int show) {
    const std::vector<std::string> words = lv::WordsOfCommandLine();
    lv::DoneWords done = words.empty() ? lv::DoneWords() : lv::DoWords(words);
    if (done.Code && done.Told.empty()) {
        return *done.Code;
    }
    if (done.Code) {
        auto disk = std::make_unique<lv::WindowsFiles>();
        wxApp::SetInstance(new lv::TellingApp(std::move(disk), std::move(done.Told), *done.Code));
    } else {
        wxApp::SetInstance(new lv::WindowsApp(std::move(done.Offered)));
    }
    return wxEntry(program, before, line, show);
}
