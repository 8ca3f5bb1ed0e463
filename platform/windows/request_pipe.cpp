#include "platform/windows/request_pipe.h"

#include <algorithm>
#include <array>

#include "platform/single_instance.h"
#include "platform/windows/file_handle.h"
#include "platform/windows/system.h"

namespace lv {

namespace {

constexpr std::string_view kListens = "ok\n";
constexpr std::size_t kPipeBytes = 64U << 10U;
constexpr DWORD kLongestQuestionMs = 500;
constexpr DWORD kLongestReadingMs = 5000;  // of an answer
constexpr DWORD kLongestWorkMs = 30000;
constexpr DWORD kLookMs = 10;
constexpr DWORD kLongestBusyMs = 6000;
constexpr std::size_t kLengthDigits = 6;
constexpr std::size_t kLargestReply = 4U << 20U;

/// What lies in the pipe now; nothing if the other side has closed it.
std::optional<std::string> ReadWaiting(HANDLE pipe) {
    DWORD waiting = 0;
    if (PeekNamedPipe(pipe, nullptr, 0, nullptr, &waiting, nullptr) == 0) {
        return std::nullopt;
    }
    std::array<char, 4096> bytes{};
    DWORD count = 0;
    if (waiting == 0) {
        return std::string();
    }
    if (ReadFile(pipe, bytes.data(), std::min<DWORD>(waiting, bytes.size()), &count, nullptr) == 0) {
        return std::nullopt;
    }
    return std::string(bytes.data(), count);
}

/// The length that the request begins with; 0 as long as it is not all there or is none.
std::size_t LengthIn(std::string_view said) {
    const std::size_t end = said.substr(0, kLengthDigits + 1).find('\n');
    std::size_t length = 0;
    for (const char c : said.substr(0, end == std::string_view::npos ? 0 : end)) {
        if (c < '0' || c > '9') {
            return 0;
        }
        length = length * 10 + static_cast<std::size_t>(c - '0');
    }
    return length <= kLongestRequest ? length : 0;
}

/// While somebody else is being answered it is waited for, a moment.
HANDLE Connect(const std::wstring& name) {
    for (DWORD waited = 0;; waited += kLookMs) {
        // Whoever has the name may not act as this user.
        HANDLE pipe = CreateFileW(name.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                                  SECURITY_SQOS_PRESENT | SECURITY_IDENTIFICATION, nullptr);
        if (pipe != INVALID_HANDLE_VALUE || GetLastError() != ERROR_PIPE_BUSY || waited >= kLongestBusyMs) {
            return pipe;
        }
        Sleep(kLookMs);
    }
}

}  // namespace

RequestPipe::~RequestPipe() {
    if (pipe_ != nullptr) {
        CloseHandle(pipe_);
    }
}

void RequestPipe::Open() {
    if (pipe_ != nullptr) {
        return;
    }
    HANDLE pipe = CreateNamedPipeW(name_.c_str(), PIPE_ACCESS_DUPLEX | FILE_FLAG_FIRST_PIPE_INSTANCE,
                                   PIPE_TYPE_BYTE | PIPE_READMODE_BYTE | PIPE_NOWAIT | PIPE_REJECT_REMOTE_CLIENTS, 1,
                                   DWORD{kPipeBytes}, DWORD{kPipeBytes}, 0, nullptr);
    pipe_ = pipe == INVALID_HANDLE_VALUE ? nullptr : pipe;
    if (pipe_ != nullptr) {
        (void)ConnectNamedPipe(pipe_, nullptr);
    }
}

std::optional<std::string> RequestPipe::ReadRequest() {
    std::string said;
    for (DWORD waited = 0; waited < kLongestQuestionMs; waited += kLookMs) {
        const auto more = ReadWaiting(pipe_);
        if (!more) {
            return std::nullopt;
        }
        said += *more;
        const std::size_t length = LengthIn(said);
        const std::size_t head = said.find('\n') + 1;
        if (length > 0 && said.size() >= head + length) {
            return said.substr(head, length);
        }
        if (said.size() > kLongestRequest + kLengthDigits + 1) {
            break;
        }
        Sleep(more->empty() ? kLookMs : 0);
    }
    return std::nullopt;
}

// The end of the connection throws away what the other side has not read yet.
void RequestPipe::HangUp() {
    answered_ = 0;
    (void)DisconnectNamedPipe(pipe_);
    (void)ConnectNamedPipe(pipe_, nullptr);
}

void RequestPipe::Serve(const std::function<std::string(std::string_view)>& answer) {
    if (pipe_ == nullptr) {
        return;
    }
    if (answered_ != 0) {
        if (!ReadWaiting(pipe_) || GetTickCount() - answered_ > kLongestReadingMs) {
            HangUp();
        }
        return;
    }
    const BOOL connected = ConnectNamedPipe(pipe_, nullptr);
    if (connected == 0 && GetLastError() == ERROR_NO_DATA) {  // he has gone again
        HangUp();
        return;
    }
    if (connected == 0 && GetLastError() != ERROR_PIPE_CONNECTED) {
        return;
    }
    const auto request = ReadRequest();
    if (!request || !answer || !ReadWaiting(pipe_)) {
        HangUp();
        return;
    }
    if (!ReadWaiting(pipe_)) {  // who has lost patience has told the user so
        HangUp();
        return;
    }
    DWORD written = 0;
    (void)WriteFile(pipe_, kListens.data(), static_cast<DWORD>(kListens.size()), &written, nullptr);
    const std::string reply = answer(*request);
    (void)WriteFile(pipe_, reply.data(), static_cast<DWORD>(std::min(reply.size(), kPipeBytes - kListens.size())),
                    &written, nullptr);
    answered_ = std::max<DWORD>(GetTickCount(), 1);
}

Asked RequestPipe::Ask(const std::wstring& name, std::string_view request, int patienceMs) {
    const FileHandle pipe(Connect(name));
    if (!pipe.IsOpen() || request.empty() || request.size() > kLongestRequest) {
        return {.IsRunning = !pipe.IsOpen() && GetLastError() == ERROR_PIPE_BUSY, .Answer = {}};
    }
    const std::string said = std::to_string(request.size()) + "\n" + std::string(request);
    DWORD written = 0;
    if (WriteFile(pipe.Get(), said.data(), static_cast<DWORD>(said.size()), &written, nullptr) == 0 ||
        written != said.size()) {
        return {};
    }
    std::string reply;
    const auto longest = [&] {
        return reply.size() < kListens.size() ? static_cast<DWORD>(patienceMs) : kLongestWorkMs;
    };
    for (DWORD waited = 0; waited < longest() && reply.size() < kLargestReply; waited += kLookMs) {
        const auto more = ReadWaiting(pipe.Get());
        if (!more) {
            break;
        }
        if (more->empty() && reply.size() > kListens.size()) {
            break;  // an answer is written at once
        }
        reply += *more;
        Sleep(more->empty() ? kLookMs : 0);
    }
    const bool listens = reply.starts_with(kListens) && reply.size() > kListens.size();
    const bool isRunning = reply.starts_with(kListens) || ReadWaiting(pipe.Get()).has_value();
    return {.IsRunning = isRunning, .Answer = listens ? std::optional(reply.substr(kListens.size())) : std::nullopt};
}

}  // namespace lv
