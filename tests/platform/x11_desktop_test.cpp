#include "platform/linux/x11_desktop.h"

#include <gtest/gtest.h>
#include <xcb/xcb.h>

#include <chrono>
#include <cstdlib>
#include <cstring>
#include <thread>

#include "platform/linux/x11_display.h"
#include "tests/support/virtual_display.h"

namespace lv {
namespace {

/// Another program's window.
class Client {
  public:
    explicit Client(const std::string& title, const std::string& names = std::string("client\0Client\0", 14)) {
        connection_ = xcb_connect(nullptr, nullptr);
        const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data;
        Window = xcb_generate_id(connection_);
        const std::uint32_t events = XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_KEY_RELEASE;
        xcb_create_window(connection_, XCB_COPY_FROM_PARENT, Window, screen->root, 10, 10, 200, 100, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual, XCB_CW_EVENT_MASK, &events);
        Set("_NET_WM_NAME", "UTF8_STRING", title);
        Set("WM_CLASS", "STRING", names);
        Map();
    }
    ~Client() { xcb_disconnect(connection_); }
    Client(const Client&) = delete;
    Client& operator=(const Client&) = delete;

    void Map() const {
        xcb_map_window(connection_, Window);
        xcb_flush(connection_);
    }
    void Set(const char* property, const char* type, const std::string& bytes) {
        xcb_change_property(connection_, XCB_PROP_MODE_REPLACE, Window, Atom(property), Atom(type), 8,
                            static_cast<std::uint32_t>(bytes.size()), bytes.data());
        xcb_flush(connection_);
    }

    /// The keys that went down since the last call: "54" for a key by its code, with "alt+", "ctrl+" or "shift+" before
    /// it.
    std::vector<std::string> Keys() {
        std::vector<std::string> keys;
        while (xcb_generic_event_t* event = xcb_poll_for_event(connection_)) {
            if ((event->response_type & 0x7F) == XCB_KEY_PRESS) {
                const auto* key = reinterpret_cast<const xcb_key_press_event_t*>(event);
                keys.push_back(HeldFor(*key) + std::to_string(key->detail));
            }
            std::free(event);
        }
        return keys;
    }

    xcb_window_t Window = 0;

  private:
    static std::string HeldFor(const xcb_key_press_event_t& key) {
        return std::string((key.state & XCB_MOD_MASK_1) != 0 ? "alt+" : "") +
               ((key.state & XCB_MOD_MASK_CONTROL) != 0 ? "ctrl+" : "") +
               ((key.state & XCB_MOD_MASK_SHIFT) != 0 ? "shift+" : "");
    }
    xcb_atom_t Atom(const char* name) {
        xcb_intern_atom_reply_t* reply = xcb_intern_atom_reply(
            connection_, xcb_intern_atom(connection_, 0, static_cast<std::uint16_t>(std::strlen(name)), name), nullptr);
        const xcb_atom_t atom = reply->atom;
        std::free(reply);
        return atom;
    }

    xcb_connection_t* connection_;
};

bool Wait(const std::function<bool()>& holds) {
    for (int tries = 0; tries < 200; ++tries) {
        if (holds()) {
            return true;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    return false;
}

class X11DesktopTest : public ::testing::TestWithParam<WindowManager> {
  protected:
    void SetUp() override {
        const auto server = X11Display::Open({});
        ASSERT_NE(server, nullptr);
        const bool managed = GetParam() != WindowManager::kNone;
        ASSERT_TRUE(Wait([&] { return server->HasManager() == managed; }));
    }

    TopWindow InfoOf(const Client& client) {
        for (const TopWindow& window : desktop.EnumWindows()) {
            if (window.Handle == client.Window) {
                return window;
            }
        }
        return {};
    }
    void WaitForWindow(const Client& client) {
        // A window manager that has just come up may pass over the first request.
        const auto listed = [&] {
            client.Map();
            return InfoOf(client).Handle != 0;
        };
        ASSERT_TRUE(Wait(listed)) << "the window is not listed";
        // It gives its keys to a new window, sooner or later; later it would take them from another one.
        const auto server = X11Display::Open({});
        const auto inFront = [&] { return server->ActiveWindow() == client.Window; };
        ASSERT_TRUE(GetParam() == WindowManager::kNone || Wait(inFront)) << "the window does not come to the front";
    }

    VirtualDisplay display{GetParam()};
    X11Desktop desktop;
};

class ManagedX11Desktop : public X11DesktopTest {};

INSTANTIATE_TEST_SUITE_P(Managers, X11DesktopTest, ::testing::Values(WindowManager::kNone, WindowManager::kOpenbox));
INSTANTIATE_TEST_SUITE_P(Managers, ManagedX11Desktop, ::testing::Values(WindowManager::kOpenbox));

TEST_P(X11DesktopTest, ListsTitlesAndClasses) {
    const Client client("Caf\xC3\xA9 \xE2\x82\xAC");
    WaitForWindow(client);
    EXPECT_EQ(InfoOf(client).Title, "Caf\xE9 \x80");
    EXPECT_EQ(InfoOf(client).Class, "Client");
    EXPECT_TRUE(InfoOf(client).ClassKnown);
    EXPECT_EQ(desktop.WindowTitle(client.Window), "Caf\xE9 \x80");
}

TEST_P(X11DesktopTest, TheClassOfAWindowsProgramIsNotKnown) {
    const Client client("GameSpy 3D", std::string("gamespy.exe\0gamespy.exe\0", 24));
    WaitForWindow(client);
    EXPECT_FALSE(InfoOf(client).ClassKnown);
}

TEST_P(X11DesktopTest, CutsLongTextsInTheListAlone) {
    const Client client(std::string(400, 't'), "i" + std::string(1, '\0') + std::string(400, 'c') + '\0');
    WaitForWindow(client);
    EXPECT_EQ(InfoOf(client).Title, std::string(254, 't'));
    EXPECT_EQ(InfoOf(client).Class, std::string(254, 'c'));
    EXPECT_EQ(desktop.WindowTitle(client.Window), std::string(400, 't'));
}

TEST_P(X11DesktopTest, ReadsAnOldTitleAndNone) {
    Client client("");
    WaitForWindow(client);
    EXPECT_EQ(InfoOf(client).Title, "");
    client.Set("WM_NAME", "STRING", "Caf\xE9");
    ASSERT_TRUE(Wait([&] { return desktop.WindowTitle(client.Window) == "Caf\xE9"; }));
}

TEST_P(X11DesktopTest, GivesKeysToTheWindowInFront) {
    Client first("first");
    WaitForWindow(first);
    Client second("second");
    WaitForWindow(second);
    ASSERT_TRUE(desktop.SetForegroundWindow(first.Window));
    ASSERT_FALSE(desktop.SendKeys("c"));
    EXPECT_EQ(first.Keys(), std::vector<std::string>{"54"});
    ASSERT_TRUE(desktop.SetForegroundWindow(second.Window));
    ASSERT_FALSE(desktop.SendKeys("C"));
    EXPECT_EQ(second.Keys(), std::vector<std::string>{"54"});
    EXPECT_TRUE(first.Keys().empty());
}

TEST_P(X11DesktopTest, HoldsAltForTheKeyBehindAPercentSign) {
    Client client("client");
    WaitForWindow(client);
    ASSERT_TRUE(desktop.SetForegroundWindow(client.Window));
    ASSERT_FALSE(desktop.SendKeys("%s"));
    ASSERT_FALSE(desktop.SendKeys("%ec"));
    EXPECT_EQ(client.Keys(), (std::vector<std::string>{"64", "alt+39", "64", "alt+26", "54"}));
}

TEST_P(X11DesktopTest, HoldsControlAndShift) {
    Client client("client");
    WaitForWindow(client);
    ASSERT_TRUE(desktop.SetForegroundWindow(client.Window));
    ASSERT_FALSE(desktop.SendKeys("^c+sc"));
    EXPECT_EQ(client.Keys(), (std::vector<std::string>{"37", "ctrl+54", "50", "shift+39", "54"}));
}

TEST_P(X11DesktopTest, RefusesAnotherNotation) {
    EXPECT_EQ(desktop.SendKeys("%").Number, error::kInvalidCall);
    EXPECT_EQ(desktop.SendKeys("%%s").Number, error::kInvalidCall);
    EXPECT_EQ(desktop.SendKeys("{F2}").Number, error::kInvalidCall);
    EXPECT_FALSE(desktop.SendKeys(""));
}

TEST_P(X11DesktopTest, AWindowThatIsGoneIsNowhere) {
    xcb_window_t gone = 0;
    {
        const Client client("client");
        WaitForWindow(client);
        gone = client.Window;
    }
    ASSERT_TRUE(Wait([&] { return desktop.WindowTitle(gone).empty(); }));
    EXPECT_FALSE(desktop.IsIconic(gone));
    EXPECT_FALSE(desktop.SetForegroundWindow(gone));
    desktop.OpenIcon(gone);
    desktop.CloseWindow(gone);
    const Client other("other");
    WaitForWindow(other);  // the connection has outlived the errors
}

TEST_P(ManagedX11Desktop, MinimisesAWindowAndBringsItBack) {
    const Client client("client");
    WaitForWindow(client);
    EXPECT_FALSE(desktop.IsIconic(client.Window));
    desktop.CloseWindow(client.Window);
    EXPECT_TRUE(desktop.IsIconic(client.Window));
    EXPECT_EQ(InfoOf(client).Title, "client");
    desktop.OpenIcon(client.Window);
    EXPECT_FALSE(desktop.IsIconic(client.Window));
    EXPECT_TRUE(desktop.SetForegroundWindow(client.Window));
}

TEST_P(ManagedX11Desktop, TheFrontmostWindowComesFirst) {
    const Client first("first");
    WaitForWindow(first);
    const Client second("second");
    WaitForWindow(second);
    ASSERT_TRUE(desktop.SetForegroundWindow(first.Window));
    ASSERT_TRUE(Wait([&] { return desktop.EnumWindows().front().Handle == first.Window; }));
    ASSERT_TRUE(desktop.SetForegroundWindow(second.Window));
    ASSERT_TRUE(Wait([&] { return desktop.EnumWindows().front().Handle == second.Window; }));
}

TEST(NoX11Desktop, HasNoWindowsAndTakesNoKeys) {
    X11Desktop desktop(":999");
    EXPECT_TRUE(desktop.EnumWindows().empty());
    EXPECT_EQ(desktop.WindowTitle(1), "");
    EXPECT_FALSE(desktop.IsIconic(1));
    EXPECT_FALSE(desktop.SetForegroundWindow(1));
    EXPECT_EQ(desktop.SendKeys("c").Number, error::kPermissionDenied);
}

}  // namespace
}  // namespace lv
