#include "platform/linux/screen_access.h"

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <map>
#include <string>

#include "tests/support/test_paths.h"

namespace lv {
namespace {

/// The variables that name screens, given back afterwards.
class ScreenAccess : public testing::Test {
  protected:
    ScreenAccess() {
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "XDG_RUNTIME_DIR", "GDK_BACKEND"}) {
            const char* const value = std::getenv(name);
            before_[name] = value == nullptr ? "" : value;
            unsetenv(name);
        }
    }
    ~ScreenAccess() override {
        for (const auto& [name, value] : before_) {
            value.empty() ? unsetenv(name.c_str()) : setenv(name.c_str(), value.c_str(), 1);
        }
        if (listener_ >= 0) {
            close(listener_);
        }
        unlink(Place().c_str());
    }
    static std::string Place() { return TestBinaryDir() + "/wl"; }
    void Listen() {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        ASSERT_LT(Place().size(), sizeof address.sun_path);
        std::memcpy(address.sun_path, Place().data(), Place().size());
        unlink(Place().c_str());
        listener_ = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        ASSERT_EQ(bind(listener_, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
        ASSERT_EQ(listen(listener_, 4), 0);
    }

  private:
    std::map<std::string, std::string> before_;
    int listener_ = -1;
};

TEST_F(ScreenAccess, WithoutANameThereIsNone) {
    EXPECT_FALSE(HasScreen());
}

TEST_F(ScreenAccess, AServerThatIsNotThereIsNone) {
    setenv("DISPLAY", ":9876", 1);
    setenv("XDG_RUNTIME_DIR", TestBinaryDir().c_str(), 1);
    setenv("WAYLAND_DISPLAY", "nowhere", 1);
    EXPECT_FALSE(HasScreen());
}

TEST_F(ScreenAccess, ACompositorIsOneByItsPathOrItsName) {
    Listen();
    setenv("WAYLAND_DISPLAY", Place().c_str(), 1);
    EXPECT_TRUE(HasScreen());
    setenv("WAYLAND_DISPLAY", "wl", 1);
    EXPECT_FALSE(HasScreen()) << "no directory for it is named";
    setenv("XDG_RUNTIME_DIR", TestBinaryDir().c_str(), 1);
    EXPECT_TRUE(HasScreen());
    setenv("GDK_BACKEND", "x11", 1);
    EXPECT_FALSE(HasScreen()) << "the toolkit is told not to try it";
    setenv("GDK_BACKEND", "x11,*", 1);
    EXPECT_TRUE(HasScreen());
}

TEST_F(ScreenAccess, APathThatNoSocketCanHaveIsNone) {
    setenv("WAYLAND_DISPLAY", ("/" + std::string(200, 'w')).c_str(), 1);
    EXPECT_FALSE(HasScreen());
}

}  // namespace
}  // namespace lv
