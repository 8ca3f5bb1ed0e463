// app/watch_main.cpp
//
// lorvane3d-watch OUTPUT END TOKEN DESCRIPTOR PROGRAM [ARGUMENT...]: starts the program, keeps what it prints in the
// file OUTPUT and passes it on, and puts how it ended into the file END (platform/linux/starting/game_record.h).
// Whether it could be started goes to the descriptor (platform/linux/start_report.h). It stays until nobody holds the
// program's output any more: a program that has started others and left must not have them killed by a pipe without a
// reader.

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/signalfd.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <charconv>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <optional>

#include "app/kept_output.h"
#include "app/passed_output.h"
#include "platform/linux/start_report.h"
#include "platform/linux/starting/game_record.h"

extern char** environ;  // NOLINT: POSIX leaves its declaration to the program

namespace lv {

namespace {

constexpr std::size_t kPiece = 16384;
constexpr int kPiecesAtEnd = 64;  // that may stand in the pipe when the program has ended; others may print on

using Moment = std::chrono::steady_clock::time_point;

struct Order {
    const char* Output = nullptr;
    const char* End = nullptr;
    const char* Token = nullptr;
    int ReportTo = -1;
    char** Program = nullptr;  // and its arguments, with a null behind
};

struct Channels {
    int Read = -1;  // of the program's output; does not wait
    int Write = -1;
    int Ended = -1;  // readable when a child has ended
};

std::optional<Order> ReadOrder(int count, char** arguments) {
    if (count < 6) {
        return std::nullopt;
    }
    Order order{arguments[1], arguments[2], arguments[3], -1, arguments + 5};
    const char* const end = arguments[4] + std::strlen(arguments[4]);
    const auto [stop, failed] = std::from_chars(arguments[4], end, order.ReportTo);
    const bool number = failed == std::errc() && stop == end && order.ReportTo > STDERR_FILENO;
    return number ? std::optional(order) : std::nullopt;
}

sigset_t ChildSignal() {
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, SIGCHLD);
    return set;
}

[[noreturn]] void Become(const Order& order) {
    execve(order.Program[0], order.Program, environ);
    FailStart(order.ReportTo, StartStage::kProgram, errno);
}

// The program is started unwatched where the system has no pipe to give.
Channels OpenChannels(const Order& order) {
    Channels channels;
    int ends[2] = {-1, -1};
    const sigset_t child = ChildSignal();
    if (pipe2(ends, O_CLOEXEC) != 0 || (channels.Ended = signalfd(-1, &child, SFD_CLOEXEC | SFD_NONBLOCK)) < 0) {
        Become(order);
    }
    fcntl(ends[0], F_SETFL, O_NONBLOCK);
    channels.Read = ends[0];
    channels.Write = ends[1];
    sigprocmask(SIG_BLOCK, &child, nullptr);
    return channels;
}

pid_t StartProgram(const Order& order, const Channels& channels) {
    const pid_t program = fork();
    if (program < 0) {
        FailStart(order.ReportTo, StartStage::kFork, errno);
    }
    if (program == 0) {
        dup2(channels.Write, STDOUT_FILENO);
        dup2(channels.Write, STDERR_FILENO);
        sigset_t none;
        sigemptyset(&none);
        sigprocmask(SIG_SETMASK, &none, nullptr);
        Become(order);
    }
    close(channels.Write);
    close(order.ReportTo);
    return program;
}

class Watch {
  public:
    Watch(const Order& order, const Channels& channels, KeptOutput& output, pid_t program)
        : order_(order), channels_(channels), output_(output), program_(program) {}

    void Run() {
        while (reading_ || !ended_) {
            pollfd events[] = {{reading_ ? channels_.Read : -1, POLLIN, 0}, {channels_.Ended, POLLIN, 0}};
            if (poll(events, 2, -1) < 0 && errno != EINTR) {
                return;
            }
            TakePiece();
            if (HasEnded()) {
                for (int i = 0; i < kPiecesAtEnd && TakePiece(); ++i) {
                }
                NoteEnd();
            }
        }
    }

  private:
    // False if there is nothing more for now.
    bool TakePiece() {
        if (!reading_) {
            return false;
        }
        std::array<char, kPiece> piece;
        const ssize_t count = read(channels_.Read, piece.data(), piece.size());
        if (count > 0) {
            const std::string_view bytes(piece.data(), static_cast<std::size_t>(count));
            output_.Append(bytes);
            passed_.Pass(bytes);
            return true;
        }
        reading_ = count < 0 && (errno == EAGAIN || errno == EINTR);
        return false;
    }

    // True once. What the program has left behind is this one's to wait for.
    bool HasEnded() {
        signalfd_siginfo told;
        while (read(channels_.Ended, &told, sizeof told) > 0) {
        }
        const bool hadEnded = ended_;
        int status = 0;
        pid_t child = 0;
        while ((child = waitpid(-1, &status, WNOHANG)) > 0) {
            if (child == program_) {
                status_ = status;
                ended_ = true;
            }
        }
        othersRun_ = child == 0;
        return ended_ && !hadEnded;
    }

    void NoteEnd() {
        if (!output_.IsOurs()) {
            return;
        }
        GameEnd end;
        end.Code = WIFEXITED(status_) ? WEXITSTATUS(status_) : 0;
        end.Signal = WIFSIGNALED(status_) ? WTERMSIG(status_) : 0;
        end.Seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - started_).count();
        end.OthersRun = othersRun_;
        PutInPlace(order_.End, GameEndRecord(order_.Token, end));
    }

    const Order& order_;
    const Channels& channels_;
    KeptOutput& output_;
    pid_t program_;
    Moment started_ = std::chrono::steady_clock::now();
    PassedOutput passed_;
    bool reading_ = true;
    bool ended_ = false;
    bool othersRun_ = false;
    int status_ = 0;
};

// Whoever ends the session ends the program; its last words are still to be read.
void StayTillTheEnd() {
    for (const int number : {SIGPIPE, SIGHUP, SIGINT, SIGTERM}) {
        signal(number, SIG_IGN);
    }
}

}  // namespace

}  // namespace lv

int main(int count, char** arguments) {
    const auto order = lv::ReadOrder(count, arguments);
    if (!order) {
        std::fputs("usage: lorvane3d-watch OUTPUT END TOKEN DESCRIPTOR PROGRAM [ARGUMENT...]\n", stderr);
        return 2;
    }
    fcntl(order->ReportTo, F_SETFD, FD_CLOEXEC);
    prctl(PR_SET_CHILD_SUBREAPER, 1);  // what the program leaves behind becomes a child of this one
    const lv::Channels channels = lv::OpenChannels(*order);
    lv::KeptOutput output(order->Output);  // whoever learns that the program could be started finds it there
    const pid_t program = lv::StartProgram(*order, channels);
    lv::StayTillTheEnd();
    lv::Watch(*order, channels, output, program).Run();
    return 0;
}
