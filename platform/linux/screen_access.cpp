#include "platform/linux/screen_access.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <string>

#include "platform/linux/x11_display.h"

namespace lv {

namespace {

std::string Variable(const char* name) {
    const char* const value = std::getenv(name);
    return value == nullptr ? std::string() : std::string(value);
}

bool Listens(const std::string& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.size() >= sizeof address.sun_path) {
        return false;
    }
    std::memcpy(address.sun_path, path.data(), path.size());
    const int connection = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (connection < 0) {
        return false;
    }
    const bool listens = connect(connection, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    close(connection);
    return listens;
}

bool HasWayland() {
    std::string name = Variable("WAYLAND_DISPLAY");
    if (name.empty()) {
        name = "wayland-0";
    }
    const std::string directory = Variable("XDG_RUNTIME_DIR");
    if (!name.starts_with('/') && directory.empty()) {
        return false;
    }
    return Listens(name.starts_with('/') ? name : directory + "/" + name);
}

}  // namespace

bool HasScreen() {
    // What kinds the toolkit is to try; others than these two are its own matter.
    const std::string kinds = Variable("GDK_BACKEND");
    const auto isTried = [&](const char* kind) {
        return kinds.empty() || kinds.find('*') != std::string::npos || kinds.find(kind) != std::string::npos;
    };
    return kinds.find("broadway") != std::string::npos ||
           (isTried("x11") && !Variable("DISPLAY").empty() && X11Display::Open("") != nullptr) ||
           (isTried("wayland") && HasWayland());
}

}  // namespace lv
