#include "platform/linux/linux_instance.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <utility>

#include "platform/linux/files/file_descriptor.h"

namespace lv {

namespace {

constexpr std::string_view kRaise = "raise\n";
constexpr std::string_view kAnswer = "ok\n";
constexpr std::string_view kAsk = "ask\n";
constexpr int kLongestWorkMs = 30000;  // of an instance that is asked
constexpr std::size_t kLongestReply = 4U << 20U;
constexpr int kLongestAnswerMs = 2000;
constexpr int kLongestQuestionMs = 200;
constexpr int kClaims = 3;   // rounds, should the other one end while it is asked
constexpr int kAtOnce = 16;  // knocks that one Serve answers

std::string Hash(std::string_view text) {
    std::uint64_t hash = 14695981039346656037ULL;  // FNV-1a
    for (const char c : text) {
        hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211ULL;
    }
    std::array<char, 17> hex{};
    (void)std::snprintf(hex.data(), hex.size(), "%016llx", static_cast<unsigned long long>(hash));
    return hex.data();
}

struct Address {
    sockaddr_un Socket{};
    socklen_t Length = 0;
};

/// Byte 0 in front makes the name an abstract one.
Address AddressOf(std::string_view name) {
    Address address;
    address.Socket.sun_family = AF_UNIX;
    std::memcpy(address.Socket.sun_path + 1, name.data(), name.size());
    address.Length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + name.size());
    return address;
}

const sockaddr* Plain(const Address& address) {
    return reinterpret_cast<const sockaddr*>(&address.Socket);  // NOLINT: the way sockets want it
}

int MakeSocket() {
    return socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
}

bool IsOurs(int connection) {
    ucred peer{};
    socklen_t size = sizeof peer;
    return getsockopt(connection, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == geteuid();
}

/// What arrives within that time; empty if nothing does or the other side hung up.
std::string Receive(int connection, int milliseconds) {
    pollfd waiting{connection, POLLIN, 0};
    std::array<char, 4096> bytes{};
    if (poll(&waiting, 1, milliseconds) <= 0) {
        return {};
    }
    const ssize_t count = recv(connection, bytes.data(), bytes.size(), 0);
    return count > 0 ? std::string(bytes.data(), static_cast<std::size_t>(count)) : std::string();
}

void Send(int connection, std::string_view text) {
    (void)send(connection, text.data(), text.size(), MSG_NOSIGNAL);
}

/// All of it, to a side that reads slowly for a moment.
void SendAll(int connection, std::string_view text) {
    while (!text.empty()) {
        const ssize_t sent = send(connection, text.data(), text.size(), MSG_NOSIGNAL);
        if (sent > 0) {
            text.remove_prefix(static_cast<std::size_t>(sent));
            continue;
        }
        pollfd waiting{connection, POLLOUT, 0};
        if ((errno != EAGAIN && errno != EINTR) || poll(&waiting, 1, kLongestQuestionMs) <= 0) {
            return;
        }
    }
}

/// What comes until the other side has said all, `most` bytes of it; the wait for each part is that long at most.
std::string ReceiveAll(int connection, std::string text, std::size_t most, int milliseconds) {
    while (text.size() < most) {
        const std::string more = Receive(connection, milliseconds);
        if (more.empty()) {
            break;
        }
        text += more;
    }
    return text;
}

/// Whether the other side closed the connection.
bool HungUp(int connection) {
    pollfd state{connection, POLLIN, 0};
    return poll(&state, 1, 0) > 0 && (state.revents & POLLHUP) != 0;
}

enum class Found { Running, Gone, Foreign };

Found Knock(std::string_view name) {
    const FileDescriptor connection(MakeSocket());
    const Address address = AddressOf(name);
    if (connect(connection.Number(), Plain(address), address.Length) != 0) {
        // A full queue of knocks means that somebody is there who has no time.
        return errno == EAGAIN ? Found::Running : Found::Gone;
    }
    if (!IsOurs(connection.Number())) {
        return Found::Foreign;
    }
    Send(connection.Number(), kRaise);
    const std::string answer = Receive(connection.Number(), kLongestAnswerMs);
    return answer.empty() && HungUp(connection.Number()) ? Found::Gone : Found::Running;
}

}  // namespace

LinuxInstance::LinuxInstance(std::string_view configDirectory)
    : name_("lorvane3d-" + std::to_string(geteuid()) + "-" + Hash(configDirectory)) {}

LinuxInstance::~LinuxInstance() {
    if (listener_ >= 0) {
        close(listener_);
    }
}

bool LinuxInstance::Claim() {
    for (int round = 0; round < kClaims; ++round) {
        if (listener_ >= 0 || Listen()) {
            return true;
        }
        if (errno != EADDRINUSE) {
            return true;
        }
        switch (Knock(name_)) {
            case Found::Running:
                return false;
            case Found::Foreign:
                return true;
            case Found::Gone:
                break;
        }
    }
    return false;
}

// errno tells why not.
bool LinuxInstance::Listen() {
    const int listener = MakeSocket();
    if (listener < 0) {
        return false;
    }
    const Address address = AddressOf(name_);
    if (bind(listener, Plain(address), address.Length) != 0 || listen(listener, kAtOnce) != 0) {
        const int why = errno;
        close(listener);
        errno = why;
        return false;
    }
    listener_ = listener;
    return true;
}

void LinuxInstance::Serve() {
    for (int knock = 0; knock < kAtOnce && listener_ >= 0; ++knock) {
        const FileDescriptor connection(accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
        if (connection.Number() < 0) {
            return;
        }
        const std::string said =
            IsOurs(connection.Number()) ? Receive(connection.Number(), kLongestQuestionMs) : std::string();
        if (said.starts_with(kAsk)) {
            Answer(connection.Number(), said.substr(kAsk.size()));
        } else if (said.starts_with(kRaise)) {
            if (OnRaise) {
                OnRaise();
            }
            Send(connection.Number(), kAnswer);
        }
    }
}

void LinuxInstance::Answer(int connection, std::string request) {
    request = ReceiveAll(connection, std::move(request), kLongestRequest + 1, kLongestQuestionMs);
    // Who has lost patience has told the user so.
    if (OnRequest && request.size() <= kLongestRequest && !HungUp(connection)) {
        SendAll(connection, kAnswer);
        SendAll(connection, OnRequest(request));
    }
}

Asked LinuxInstance::Ask(std::string_view request, int patienceMs) {
    const FileDescriptor connection(MakeSocket());
    const Address address = AddressOf(name_);
    if (request.size() > kLongestRequest) {
        return {};
    }
    if (connect(connection.Number(), Plain(address), address.Length) != 0) {
        return {.IsRunning = errno == EAGAIN, .Answer = {}};  // too many knock
    }
    if (!IsOurs(connection.Number())) {
        return {};
    }
    SendAll(connection.Number(), std::string(kAsk).append(request));
    shutdown(connection.Number(), SHUT_WR);
    std::string said = ReceiveAll(connection.Number(), {}, kAnswer.size(), patienceMs);
    if (!said.starts_with(kAnswer)) {
        return {.IsRunning = !HungUp(connection.Number()), .Answer = {}};
    }
    said = ReceiveAll(connection.Number(), said.substr(kAnswer.size()), kLongestReply, kLongestWorkMs);
    return {.IsRunning = true, .Answer = said.empty() ? std::nullopt : std::optional(std::move(said))};
}

}  // namespace lv
