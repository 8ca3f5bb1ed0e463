#include "platform/linux/end_signals.h"

#include <atomic>
#include <csignal>

namespace lv {

namespace {

constexpr int kEndSignals[] = {SIGTERM, SIGHUP, SIGINT};

// A signal's handler is given nothing but the number: what it leaves has to lie here.
std::atomic<int> came = 0;
static_assert(std::atomic<int>::is_always_lock_free);

void Keep(int signal) {
    came = signal;
}

}  // namespace

EndSignals::EndSignals() {
    came = 0;
    for (const int signal : kEndSignals) {
        struct sigaction before = {};
        sigaction(signal, nullptr, &before);
        if (before.sa_handler == SIG_DFL) {
            struct sigaction kept = {};
            kept.sa_handler = Keep;
            kept.sa_flags = static_cast<int>(SA_RESTART | SA_RESETHAND);
            sigaction(signal, &kept, nullptr);
        }
    }
}

EndSignals::~EndSignals() {
    for (const int signal : kEndSignals) {
        struct sigaction now = {};
        sigaction(signal, nullptr, &now);
        if (now.sa_handler == Keep) {
            std::signal(signal, SIG_DFL);
        }
    }
}

bool EndSignals::Came() const {
    return came != 0;
}

void EndSignals::Obey() {
    if (const int signal = came) {
        std::signal(signal, SIG_DFL);
        std::raise(signal);
    }
}

}  // namespace lv
