// app/pause_main.cpp
//
// lorvane3d-pause PROGRAM [ARGUMENT...]: prints the environment, waits for a key, and becomes the program. Runs in a
// terminal window and does for a native game what the lines SET and PAUSE do in a batch.

#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

extern char** environ;  // NOLINT: POSIX leaves its declaration to the program

namespace {

void PrintEnvironment() {
    std::vector<std::string> entries;
    for (char** entry = environ; entry != nullptr && *entry != nullptr; ++entry) {
        entries.emplace_back(*entry);
    }
    std::sort(entries.begin(), entries.end());
    for (const std::string& entry : entries) {
        std::puts(entry.c_str());
    }
}

// One key, not a line, where standard input is a terminal.
void WaitForKey() {
    std::fputs("Press any key to continue . . .", stdout);
    std::fflush(stdout);
    termios before = {};
    const bool terminal = tcgetattr(STDIN_FILENO, &before) == 0;
    if (terminal) {
        termios keys = before;
        keys.c_lflag &= ~static_cast<tcflag_t>(ICANON | ECHO);
        tcsetattr(STDIN_FILENO, TCSANOW, &keys);
    }
    char key = 0;
    while (read(STDIN_FILENO, &key, 1) < 0 && errno == EINTR) {
    }
    if (terminal) {
        tcsetattr(STDIN_FILENO, TCSANOW, &before);
    }
    std::puts("");
    std::fflush(stdout);
}

}  // namespace

int main(int count, char** arguments) {
    if (count < 2) {
        std::fputs("usage: lorvane3d-pause PROGRAM [ARGUMENT...]\n", stderr);
        return 2;
    }
    PrintEnvironment();
    WaitForKey();
    execv(arguments[1], arguments + 1);
    std::fprintf(stderr, "%s: %s\n", arguments[1], std::strerror(errno));
    WaitForKey();
    return 127;
}
