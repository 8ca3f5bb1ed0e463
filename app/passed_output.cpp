#include "app/passed_output.h"

#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>

namespace lv {

namespace {

constexpr int kPatience = 1000;  // milliseconds

}  // namespace

void PassedOutput::Pass(std::string_view bytes) {
    while (!gone_ && !bytes.empty()) {
        pollfd room{STDOUT_FILENO, POLLOUT, 0};
        if (poll(&room, 1, slow_ ? 0 : kPatience) <= 0) {
            slow_ = true;
            return;
        }
        slow_ = false;
        // A pipe with room takes that much at once.
        const ssize_t count = write(STDOUT_FILENO, bytes.data(), std::min<std::size_t>(bytes.size(), PIPE_BUF));
        if (count < 0 && errno != EINTR && errno != EAGAIN) {
            gone_ = true;
        }
        bytes.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    }
}

}  // namespace lv
