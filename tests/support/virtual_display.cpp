#include "tests/support/virtual_display.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <thread>

namespace lv {

namespace {

// In a session of its own: what the tests do to their own terminal does not reach it.
template <class Run>
pid_t Spawn(Run run) {
    const pid_t child = fork();
    if (child == 0) {
        setsid();
        const int nothing = open("/dev/null", O_RDWR);
        dup2(nothing, STDIN_FILENO);
        dup2(nothing, STDOUT_FILENO);
        dup2(nothing, STDERR_FILENO);
        run();
        _exit(127);
    }
    return child;
}

void End(pid_t child) {
    if (child > 0) {
        kill(child, SIGTERM);
        waitpid(child, nullptr, 0);
    }
}

std::string ReadLine(int descriptor) {
    std::string line;
    char c = 0;
    while (true) {
        const ssize_t count = read(descriptor, &c, 1);
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count <= 0 || c == '\n') {
            return line;
        }
        line += c;
    }
}

// A client's greeting in the X11 protocol: low byte first, version 11.0, no authorisation. The server answers 1 when it
// takes the client in. The connection, or -1.
int Greet(const std::string& number) {
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    const std::string path = "/tmp/.X11-unix/X" + number;
    path.copy(address.sun_path, sizeof address.sun_path - 1);
    const int connection = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const char greeting[12] = {'l', 0, 11};
    char answer = 0;
    const bool taken = connect(connection, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0 &&
                       write(connection, greeting, sizeof greeting) == sizeof greeting &&
                       read(connection, &answer, 1) == 1 && answer == 1;
    if (!taken) {
        close(connection);
        return -1;
    }
    return connection;
}

// Xvfb names its display a moment before it takes clients in.
int GreetWhenReady(const std::string& number) {
    for (int tries = 0; tries < 200; ++tries) {
        const int connection = Greet(number);
        if (connection >= 0) {
            return connection;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    return -1;
}

}  // namespace

VirtualDisplay::VirtualDisplay(WindowManager manager) {
    const char* before = std::getenv("DISPLAY");
    before_ = before != nullptr ? before : "";
    int ends[2] = {-1, -1};
    if (pipe(ends) != 0) {
        return;
    }
    const std::string descriptor = std::to_string(ends[1]);
    server_ = Spawn([&] {
        close(ends[0]);
        execlp("Xvfb", "Xvfb", "-displayfd", descriptor.c_str(), "-screen", "0", "1024x768x24", "-nolisten", "tcp",
               static_cast<char*>(nullptr));
    });
    close(ends[1]);
    const std::string number = ReadLine(ends[0]);  // empty when Xvfb ended without one
    close(ends[0]);
    if (number.empty()) {
        return;
    }
    connection_ = GreetWhenReady(number);
    if (connection_ < 0) {
        return;
    }
    name_ = ":" + number;
    setenv("DISPLAY", name_.c_str(), 1);
    if (manager == WindowManager::kOpenbox) {
        manager_ = Spawn([] { execlp("openbox", "openbox", static_cast<char*>(nullptr)); });
    }
}

VirtualDisplay::~VirtualDisplay() {
    End(manager_);
    if (connection_ >= 0) {
        close(connection_);
    }
    End(server_);
    if (before_.empty()) {
        unsetenv("DISPLAY");
    } else {
        setenv("DISPLAY", before_.c_str(), 1);
    }
}

}  // namespace lv
