#include "platform/linux/child_process.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <climits>
#include <csignal>
#include <cstring>
#include <optional>

#include "platform/code_page.h"
#include "platform/linux/files/file_descriptor.h"
#include "platform/linux/files/read_once.h"
#include "platform/linux/start_report.h"

extern char** environ;  // NOLINT: POSIX leaves its declaration to the program

namespace lv {

namespace {

// Everything exec takes, made before the fork: between fork and exec nothing may allocate.
struct ExecText {
    explicit ExecText(const HostCommand& command) {
        const HostWatch& watch = command.Watch;
        for (const std::string* word : {&watch.Helper, &watch.Output, &watch.End, &watch.Token}) {
            watched.push_back(const_cast<char*>(word->c_str()));
        }
        watched.push_back(reportTo.data());
        arguments.push_back(const_cast<char*>(command.Program.c_str()));
        for (const std::string& argument : command.Arguments) {
            arguments.push_back(const_cast<char*>(argument.c_str()));
        }
        arguments.push_back(nullptr);
        watched.insert(watched.end(), arguments.begin(), arguments.end());
        for (const std::string& entry : command.Environment) {
            environment.push_back(const_cast<char*>(entry.c_str()));
        }
        environment.push_back(nullptr);
    }
    ExecText(const ExecText&) = delete;
    ExecText& operator=(const ExecText&) = delete;
    void SetReportTo(int descriptor) { *std::to_chars(reportTo.begin(), reportTo.end() - 1, descriptor).ptr = '\0'; }
    std::array<char, 16> reportTo = {};
    std::vector<char*> arguments;
    std::vector<char*> watched;  // the helper's: its own, then the program's
    std::vector<char*> environment;
};

void ResetSignals() {
    struct sigaction plain = {};
    plain.sa_handler = SIG_DFL;
    for (int number = 1; number < NSIG; ++number) {
        sigaction(number, &plain, nullptr);  // refused for those that cannot be caught, which need it least
    }
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
}

// All descriptors above standard error close at exec; the report pipe must live until then.
void CloseOthersAtExec() {
    if (close_range(3, UINT_MAX, CLOSE_RANGE_CLOEXEC) == 0) {
        return;
    }
    const long most = std::min(sysconf(_SC_OPEN_MAX), 65536L);
    for (int descriptor = 3; descriptor < most; ++descriptor) {
        fcntl(descriptor, F_SETFD, FD_CLOEXEC);
    }
}

void OpenStandardFiles() {
    const int nothing = open("/dev/null", O_RDWR);
    if (nothing < 0) {
        return;
    }
    dup2(nothing, STDIN_FILENO);
    for (const int output : {STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(output, F_GETFD) < 0) {
            dup2(nothing, output);
        }
    }
    if (nothing > STDERR_FILENO) {
        close(nothing);
    }
}

[[noreturn]] void Become(const HostCommand& command, const ExecText& text, int pipe) {
    if (!command.Directory.empty() && chdir(command.Directory.c_str()) != 0) {
        FailStart(pipe, StartStage::kDirectory, errno);
    }
    OpenStandardFiles();
    CloseOthersAtExec();
    ResetSignals();
    if (!command.Watch.Helper.empty()) {
        fcntl(pipe, F_SETFD, 0);  // the helper hands it on
        execve(command.Watch.Helper.c_str(), text.watched.data(), text.environment.data());
        fcntl(pipe, F_SETFD, FD_CLOEXEC);
    }
    execve(command.Program.c_str(), text.arguments.data(), text.environment.data());
    FailStart(pipe, StartStage::kProgram, errno);
}

[[noreturn]] void Detach(const HostCommand& command, const ExecText& text, int pipe, int watch) {
    setsid();
    const pid_t child = fork();
    if (child < 0) {
        FailStart(pipe, StartStage::kFork, errno);
    }
    if (child > 0) {
        if (watch >= 0 && fork() == 0) {
            ResetSignals();
            RemoveOnceOpened(watch, command.ReadOnce.c_str());
        }
        _exit(0);
    }
    Become(command, text, pipe);
}

void WaitFor(pid_t child) {
    while (waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
    }
}

std::optional<StartReport> ReadReport(int pipe) {
    StartReport report;
    ssize_t count = 0;
    do {
        count = read(pipe, &report, sizeof report);
    } while (count < 0 && errno == EINTR);
    return count == sizeof report ? std::optional(report) : std::nullopt;
}

int NumberOf(const StartReport& report) {
    switch (report.Number) {
        case ENOENT:
        case ENOTDIR:
            return report.At == StartStage::kDirectory ? error::kPathNotFound : error::kFileNotFound;
        case EACCES:
        case EPERM:
            return error::kPermissionDenied;
        case ENOEXEC:
        case ELOOP:
        case ENAMETOOLONG:
        case ETXTBSY:
            return error::kPathFileAccess;
        case E2BIG:
            return error::kInvalidCall;
        default:
            return error::kDeviceFault;
    }
}

Error ErrorOf(const StartReport& report, const HostCommand& command) {
    const std::string& about = report.At == StartStage::kDirectory ? command.Directory : command.Program;
    Error fault = MakeError(NumberOf(report), FromUtf8Lossy(about));
    fault.Text += " (" + FromUtf8Lossy(std::strerror(report.Number)) + ")";  // NOLINT: one thread starts programs
    return fault;
}

}  // namespace

Error StartDetached(const HostCommand& command) {
    ExecText text(command);
    const FileDescriptor watch(command.ReadOnce.empty() ? -1 : WatchForOpening(command.ReadOnce));
    int ends[2] = {-1, -1};
    if (pipe2(ends, O_CLOEXEC) != 0) {
        return ErrorOf({StartStage::kFork, errno}, command);
    }
    // A pipe end below 3 would be overlaid by the child's standard files.
    for (int& end : ends) {
        if (end <= STDERR_FILENO) {
            const int moved = fcntl(end, F_DUPFD_CLOEXEC, 3);
            close(end);
            end = moved;
        }
    }
    text.SetReportTo(ends[1]);
    const pid_t child = fork();
    if (child == 0) {
        Detach(command, text, ends[1], watch.Number());
    }
    const int refused = errno;
    close(ends[1]);
    std::optional<StartReport> report;
    if (child < 0) {
        report = StartReport{StartStage::kFork, refused};
    } else {
        WaitFor(child);
        report = ReadReport(ends[0]);
    }
    close(ends[0]);
    if (report && !command.ReadOnce.empty()) {
        unlink(command.ReadOnce.c_str());
    }
    return report ? ErrorOf(*report, command) : Error{};
}

std::vector<std::string> OwnEnvironment() {
    std::vector<std::string> entries;
    for (char** entry = environ; entry != nullptr && *entry != nullptr; ++entry) {
        entries.emplace_back(*entry);
    }
    return entries;
}

void SetVariable(std::vector<std::string>& environment, std::string_view name, std::string_view value) {
    const std::string start = std::string(name) + "=";
    std::erase_if(environment, [&](const std::string& entry) { return entry.starts_with(start); });
    if (!value.empty()) {
        environment.push_back(start + std::string(value));
    }
}

std::string VariableIn(const std::vector<std::string>& environment, std::string_view name) {
    const std::string start = std::string(name) + "=";
    for (const std::string& entry : environment) {
        if (entry.starts_with(start)) {
            return entry.substr(start.size());
        }
    }
    return {};
}

bool MayRun(const std::string& hostPath) {
    struct stat about = {};
    return stat(hostPath.c_str(), &about) == 0 && S_ISREG(about.st_mode) && access(hostPath.c_str(), X_OK) == 0;
}

std::string FindOnPath(std::string_view searchPath, std::string_view name) {
    while (!searchPath.empty()) {
        const std::size_t end = std::min(searchPath.find(':'), searchPath.size());
        std::string path(searchPath.substr(0, end));
        searchPath.remove_prefix(std::min(end + 1, searchPath.size()));
        path += "/" + std::string(name);
        if (path.front() == '/' && path.size() > name.size() + 1 && MayRun(path)) {
            return path;
        }
    }
    return {};
}

}  // namespace lv
