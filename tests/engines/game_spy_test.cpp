// A server taken from the window of a stand-in for GameSpy 3D that runs in Wine, by real keys and the real clipboard.

#include "gamespy/game_spy_fetch.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <fstream>

#include "gamespy/server_text.h"
#include "gamespy/window_search.h"
#include "platform/linux/linux_clock.h"
#include "platform/linux/linux_processes.h"
#include "platform/linux/x11_desktop.h"
#include "platform/linux/x11_display.h"
#include "platform/memory/memory_platform.h"
#include "tests/engines/engine_run.h"
#include "tests/support/game_yard.h"
#include "tests/support/scripted_user.h"
#include "tests/support/virtual_display.h"

namespace lv {
namespace {

/// The display's clipboard, through xclip.
class XclipClipboard : public Clipboard {
  public:
    Error SetText(std::string_view text) override {
        FILE* pipe = popen("timeout 10 xclip -selection clipboard -i >/dev/null 2>&1", "w");
        std::fwrite(text.data(), 1, text.size(), pipe);
        return pclose(pipe) == 0 ? Error() : MakeError(error::kDeviceUnavailable);
    }
    std::string GetText() override {
        FILE* pipe = popen("timeout 10 xclip -selection clipboard -o -target UTF8_STRING 2>/dev/null", "r");
        std::string text;
        std::array<char, 4096> part{};
        for (std::size_t count = 0; (count = std::fread(part.data(), 1, part.size(), pipe)) > 0;) {
            text.append(part.data(), count);
        }
        return pclose(pipe) == 0 ? FromUtf8Lossy(text) : std::string();
    }
};

class GameSpyCapture : public ::testing::Test {
  protected:
    // Wine's part for the clipboard stays with the display that it was started on.
    static void SetUpTestSuite() {
        EndWine();
        display = std::make_unique<VirtualDisplay>(WindowManager::kOpenbox);
    }
    static void TearDownTestSuite() {
        EndWine();
        display.reset();
    }
    static void EndWine() {
        RunTool({"wineserver", "-k"});
        RunTool({"wineserver", "-w"});
    }

    GameSpyCapture() {
        yard.AddGame("game_spy.exe", "spy/gamespy.exe");
        yard.Places.WinePrefix = TestWinePrefix();
    }
    ~GameSpyCapture() override {
        const WindowHandle window = FindGameSpyWindow(&desktop);
        const auto server = X11Display::Open({});
        if (window != 0 && server) {
            server->AskManager(static_cast<xcb_window_t>(window), "_NET_CLOSE_WINDOW", {0, 2});
            EXPECT_TRUE(Wait([this] { return FindGameSpyWindow(&desktop) == 0; }));
        }
    }

    /// Starts the stand-in; its window, once that has the keys.
    WindowHandle Start(const std::string& title, const std::string& copied) {
        yard.AddFile("spy/copied.txt", copied);
        const Error failed =
            LinuxProcesses(yard.Disk, yard.Places).StartProgram("C:\\SPY\\GAMESPY.EXE", {title, "C:\\SPY\\COPIED.TXT"});
        EXPECT_FALSE(failed) << failed.Text;
        EXPECT_TRUE(Wait([this] { return FindGameSpyWindow(&desktop) != 0; })) << "the stand-in did not come up";
        const WindowHandle window = FindGameSpyWindow(&desktop);
        EXPECT_TRUE(desktop.SetForegroundWindow(window));
        return window;
    }

    static bool Wait(const std::function<bool()>& holds) {
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(60);
        while (!holds()) {
            if (std::chrono::steady_clock::now() > end) {
                return false;
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(100));
        }
        return true;
    }

    void ExpectTold(TextView title, TextView text) { user.Expect({Text(title), Text(text), 0, false, true, "&OK"}); }

    static std::unique_ptr<VirtualDisplay> display;
    GameYard yard{"engines/game_spy"};
    MemoryPlatform memory;
    X11Desktop desktop;
    XclipClipboard clipboard;
    LinuxClock clock;
    Platform services{memory.Settings, memory.Registry, memory.Disk, memory.Programs,
                      clipboard,       clock,           nullptr,     &desktop};
    ScriptedUser user;
    lv::Run run{services, user};
};

std::unique_ptr<VirtualDisplay> GameSpyCapture::display;

TEST_F(GameSpyCapture, TakesTheServerFromVersionTwo) {
    Start("GameSpy 3D 2.20", "43      10.0.0.1        27500 Home of the Brave");
    EXPECT_EQ(GameSpyFetch(run), "10.0.0.1:27500");
}

TEST_F(GameSpyCapture, TakesTheServerFromVersionOne) {
    Start("[UNREGISTERED] GameSpy 3D 1.52", "10.0.0.2:7777");
    EXPECT_EQ(GameSpyFetch(run), "10.0.0.2:7777");
}

TEST_F(GameSpyCapture, AnIconicWindowComesUpAndGoesBackToItsIcon) {
    const WindowHandle window = Start("GameSpy 3D 2.20", "10.0.0.3:27500");
    desktop.CloseWindow(window);
    ASSERT_TRUE(desktop.IsIconic(window));
    EXPECT_EQ(GameSpyFetch(run), "10.0.0.3:27500");
    EXPECT_TRUE(desktop.IsIconic(window));
}

TEST_F(GameSpyCapture, AnEmptyClipboardHasNoAddress) {
    Start("GameSpy 3D 2.20", "");
    ASSERT_FALSE(clipboard.SetText("10.9.9.9:27500"));
    ExpectTold("Error Getting GameSpy Data", "Could not assemble IP address from data");
    EXPECT_EQ(GameSpyFetch(run), "");
}

TEST_F(GameSpyCapture, ATextThatIsNoAddressIsRefused) {
    Start("GameSpy 3D 2.20", "no address here");
    ExpectTold("Error Getting GameSpy Data", "Could not assemble IP address from data");
    EXPECT_EQ(GameSpyFetch(run), "");
}

TEST_F(GameSpyCapture, SeveralLinesComeThroughWithTheirAccents) {
    Start("GameSpy 3D 2.20", "43 10.0.0.1 27500 Caf\xE9\r\n44 10.0.0.2 27501 Away\r\n");
    const Text marked = MarkLines(GameSpyFetch(run, true));
    ASSERT_EQ(CountLines(marked), 2);
    EXPECT_EQ(ReadListedServer(LineAt(marked, 0), false).Title, "Caf\xE9");
    EXPECT_EQ(ReadListedServer(LineAt(marked, 1), false).Host, "10.0.0.2");
}

TEST_F(GameSpyCapture, AWindowOfWineHidesItsClass) {
    const WindowHandle handle = Start("GameSpy 3D 2.20", "");
    for (const TopWindow& window : desktop.EnumWindows()) {
        if (window.Handle == handle) {
            EXPECT_EQ(window.Title, "GameSpy 3D 2.20");
            EXPECT_FALSE(window.ClassKnown);
        }
    }
}

}  // namespace
}  // namespace lv
