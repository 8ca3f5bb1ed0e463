// app/main_linux.cpp
//
// The window on Linux: makes the platform. words_main.cpp becomes this program where no words are to be done.

#include <poll.h>
#include <sys/prctl.h>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "app/linux_store.h"
#include "app/lorvane_app.h"
#include "app/telling_app.h"
#include "app/words_run.h"
#include "foundation/forms/wx_clipboard.h"
#include "launcher/window/window_life.h"
#include "platform/code_page.h"
#include "platform/linux/end_signals.h"
#include "platform/linux/linux_clock.h"
#include "platform/linux/linux_desktop_lists.h"
#include "platform/linux/linux_instance.h"
#include "platform/linux/linux_known_places.h"
#include "platform/linux/linux_processes.h"
#include "platform/linux/linux_shortcuts.h"
#include "platform/linux/screen_access.h"
#include "platform/linux/user_directories.h"
#include "platform/linux/wine_registry.h"
#include "platform/linux/x11_desktop.h"

namespace lv {

namespace {

struct LinuxSystem {
    explicit LinuxSystem(std::unique_ptr<SettingsBacking> store) : Settings(std::move(store)) {
        Services.Instance = &Instance;
        Services.Windows = &Windows;
        Services.Places = &Places;
        Services.Lists = IsReadByTheDesktop() ? &Lists : nullptr;
        Services.Launchers = &Launchers;
    }

    static std::unique_ptr<LinuxSystem> Make() {
        LinuxFiles files(OwnDrives());
        WxUser user(files);
        if (files.DrivesFault()) {
            TellOfDrives(user, files.DrivesFault());
        }
        auto store = OpenStore(user, OwnStore());
        return store ? std::make_unique<LinuxSystem>(std::move(store)) : nullptr;
    }

    void Started(LvForm&, Launcher& launcher) {
        Instance.OnRaise = [&launcher] { ComeForward(launcher); };
        Instance.OnRequest = AnswersOf(launcher);
        Signals.emplace();
        OnEnd = [&launcher] { SessionEnds(launcher); };
    }

    // A look that costs nothing.
    void AnswerKnocks() {
        if (Signals && Signals->Came()) {
            OnEnd();
            Signals->Obey();
        }
        pollfd waiting{Instance.Descriptor(), POLLIN, 0};
        if (waiting.fd >= 0 && poll(&waiting, 1, 0) > 0) {
            Instance.Serve();
        }
    }

    std::unique_ptr<SettingsBacking> Settings;
    LinuxFiles Disk{OwnDrives()};
    WineRegistry Registry{*Settings, FindWine()};
    LinuxProcesses Programs{Disk};
    WxClipboard Clip;
    LinuxClock Time;
    X11Desktop Windows;
    LinuxKnownPlaces Places{Disk};
    LinuxDesktopLists Lists;
    LinuxShortcuts Launchers;
    LinuxInstance Instance{ConfigDirectory().string()};
    std::optional<EndSignals> Signals;  // before the window is up there is nothing to keep
    std::function<void()> OnEnd;
    Platform Services{*Settings, Registry, Disk, Programs, Clip, Time};
};

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

class LinuxApp : public LorvaneApp<LinuxSystem> {
  public:
    using LorvaneApp::LorvaneApp;

    bool OnInit() override {
        withoutOpenGl_.TakeBack();
        return LorvaneApp::OnInit();
    }

  private:
    WithoutOpenGl withoutOpenGl_;  // made with the application, before the toolkit opens the display
};

wxApp* MakeTellingApp(const std::string& told, int code) {
    return new TellingApp(std::make_unique<LinuxFiles>(OwnDrives()), told, code);
}

// A program that runs already has a screen, if another one than this one could reach.
int EndWithoutScreen() {
    LinuxInstance running(ConfigDirectory().string());
    if (!running.Claim()) {
        return 0;  // it has come forward
    }
    std::fputs(
        "lorvane3d: There is no display for the window: neither DISPLAY nor WAYLAND_DISPLAY names one that can be\n"
        "reached. Words such as --list and --launch work without one; \"lorvane3d --help\" shows them.\n",
        stderr);
    return 1;
}

}  // namespace

}  // namespace lv

wxIMPLEMENT_APP_NO_MAIN(lv::LinuxApp);

// Behind its name: nothing, a word to be offered, or a text to be told and the code to end with.
int main(int count, char** arguments) {
    prctl(PR_SET_NAME, "lorvane3d");  // as messages of other programs name it
    const std::string word = count > 1 ? lv::FromUtf8Lossy(arguments[1]) : std::string();
    wxApp::SetInstance(count > 2 ? lv::MakeTellingApp(word, std::atoi(arguments[2]))
                                 : static_cast<wxApp*>(new lv::LinuxApp(word)));
    if (!lv::HasScreen()) {
        return count > 2 ? std::atoi(arguments[2]) : lv::EndWithoutScreen();
    }
    int itself = 1;  // what is offered is no word of the toolkit's
    return wxEntry(itself, arguments);
}
