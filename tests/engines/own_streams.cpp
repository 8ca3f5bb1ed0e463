#include "tests/engines/own_streams.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>

namespace lv {

namespace {

// The C library lets its streams be exchanged.
bool MoveStream(FILE*& stream, int descriptor, int others) {
    std::fflush(stream);
    const int own = fcntl(descriptor, F_DUPFD_CLOEXEC, 3);
    FILE* const moved = own < 0 ? nullptr : fdopen(own, "w");
    if (moved == nullptr || dup2(others, descriptor) < 0) {
        return false;
    }
    std::setvbuf(moved, nullptr, _IOLBF, BUFSIZ);
    stream = moved;
    return true;
}

}  // namespace

bool KeepOwnStreams(const std::filesystem::path& forOthers) {
    const int others = open(forOthers.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_APPEND | O_CLOEXEC, 0600);
    const bool moved =
        others >= 0 && MoveStream(stdout, STDOUT_FILENO, others) && MoveStream(stderr, STDERR_FILENO, others);
    close(others);
    return moved;
}

}  // namespace lv
