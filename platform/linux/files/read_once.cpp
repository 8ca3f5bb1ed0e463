#include "platform/linux/files/read_once.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <climits>

namespace lv {

namespace {

constexpr int kPatience = 600'000;  // milliseconds: Wine may have its Windows to make first
constexpr int kSecondLook = 5'000;
constexpr int kMostDescriptors = 65536;

void CloseAllBut(int kept) {
    dup2(kept, STDIN_FILENO);
    if (close_range(STDOUT_FILENO, UINT_MAX, 0) != 0) {
        for (int descriptor = STDOUT_FILENO; descriptor < kMostDescriptors; ++descriptor) {
            close(descriptor);
        }
    }
}

}  // namespace

int WatchForOpening(const std::string& hostPath) {
    const int watch = inotify_init1(IN_CLOEXEC);
    if (watch >= 0 && inotify_add_watch(watch, hostPath.c_str(), IN_OPEN | IN_DELETE_SELF) < 0) {
        close(watch);
        return -1;
    }
    return watch;
}

void RemoveOnceOpened(int watch, const char* hostPath) {
    CloseAllBut(watch);
    pollfd opened{STDIN_FILENO, POLLIN, 0};
    poll(&opened, 1, kPatience);
    poll(nullptr, 0, kSecondLook);
    unlink(hostPath);
    _exit(0);
}

}  // namespace lv
