#include "platform/linux/end_signals.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <functional>

namespace lv {

namespace {

/// The exit code of a process of its own, or 128 + N if signal N ended it.
int EndOf(const std::function<void()>& work) {
    const pid_t child = fork();
    if (child == 0) {
        for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
            std::signal(signal, SIG_DFL);
        }
        work();
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

}  // namespace

TEST(EndSignals, AreKeptUntilTheyAreObeyed) {
    for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
        const auto keep = [signal](bool obey) {
            EndSignals signals;
            if (signals.Came()) {
                _exit(1);
            }
            std::raise(signal);
            if (!signals.Came()) {
                _exit(2);
            }
            if (obey) {
                signals.Obey();
                _exit(3);
            }
        };
        EXPECT_EQ(EndOf([&] { keep(false); }), 0);
        EXPECT_EQ(EndOf([&] { keep(true); }), 128 + signal);
    }
}

TEST(EndSignals, EndTheProgramWhenTheyComeASecondTime) {
    EXPECT_EQ(EndOf([] {
                  const EndSignals signals;
                  std::raise(SIGTERM);
                  std::raise(SIGTERM);
              }),
              128 + SIGTERM);
}

TEST(EndSignals, StayIgnoredIfTheyWere) {
    EXPECT_EQ(EndOf([] {
                  std::signal(SIGHUP, SIG_IGN);
                  EndSignals signals;
                  std::raise(SIGHUP);
                  signals.Obey();
                  _exit(signals.Came() ? 1 : 0);
              }),
              0);
}

TEST(EndSignals, EndTheProgramAsEverWhenNobodyKeepsThem) {
    EXPECT_EQ(EndOf([] {
                  { const EndSignals signals; }
                  std::raise(SIGINT);
              }),
              128 + SIGINT);
}

}  // namespace lv
