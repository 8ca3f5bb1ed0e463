#include "platform/linux/run_tool.h"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <optional>
#include <thread>

#include "platform/linux/child_process.h"

namespace lv {

namespace {

namespace fs = std::filesystem;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

std::string_view NameOf(std::string_view variable) {
    return variable.substr(0, variable.find('='));
}

std::vector<std::string> EnvironmentWith(const std::vector<std::string>& over) {
    std::vector<std::string> all = over;
    for (char** variable = environ; *variable != nullptr; ++variable) {
        const auto sameName = [&](const std::string& o) { return NameOf(o) == NameOf(*variable); };
        if (std::none_of(over.begin(), over.end(), sameName)) {
            all.emplace_back(*variable);
        }
    }
    return all;
}

// The list that the system's call takes; it points into `texts`.
std::vector<char*> Pointers(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
    for (std::string& text : texts) {
        pointers.push_back(text.data());
    }
    pointers.push_back(nullptr);
    return pointers;
}

// What happens between fork and exec.
class SpawnPlan {
  public:
    explicit SpawnPlan(const fs::path& directory) {
        posix_spawn_file_actions_init(&actions_);
        posix_spawn_file_actions_addopen(&actions_, 0, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_addopen(&actions_, 1, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_addopen(&actions_, 2, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_addchdir_np(&actions_, directory.c_str());
        posix_spawn_file_actions_addclosefrom_np(&actions_, 3);
        posix_spawnattr_init(&attributes_);
        sigset_t signals;
        sigemptyset(&signals);
        posix_spawnattr_setsigmask(&attributes_, &signals);
        sigfillset(&signals);
        posix_spawnattr_setsigdefault(&attributes_, &signals);
        posix_spawnattr_setpgroup(&attributes_, 0);
        posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETPGROUP);
    }
    ~SpawnPlan() {
        posix_spawn_file_actions_destroy(&actions_);
        posix_spawnattr_destroy(&attributes_);
    }
    SpawnPlan(const SpawnPlan&) = delete;
    SpawnPlan& operator=(const SpawnPlan&) = delete;

    int Spawn(pid_t& process, const fs::path& program, char** arguments, char** environment) {
        return posix_spawn(&process, program.c_str(), &actions_, &attributes_, arguments, environment);
    }

  private:
    posix_spawn_file_actions_t actions_{};
    posix_spawnattr_t attributes_{};
};

// The wait status; nothing while the process runs. A process that somebody else waited for counts as failed.
std::optional<int> StatusOf(pid_t process, int options) {
    int status = 0;
    pid_t ended = 0;
    do {
        ended = waitpid(process, &status, options);
    } while (ended < 0 && errno == EINTR);
    if (ended == 0) {
        return std::nullopt;
    }
    return ended == process ? status : W_EXITCODE(127, 0);
}

std::optional<int> WaitFor(pid_t process, milliseconds patience) {
    const auto end = steady_clock::now() + patience;
    milliseconds pause(1);
    while (true) {
        if (const auto status = StatusOf(process, WNOHANG)) {
            return status;
        }
        if (steady_clock::now() >= end) {
            return std::nullopt;
        }
        std::this_thread::sleep_for(pause);
        pause = std::min(pause * 2, milliseconds(10));
    }
}

}  // namespace

Result<int> RunTool(const Tool& tool) {
    std::vector<std::string> arguments = {tool.Program.string()};
    arguments.insert(arguments.end(), tool.Arguments.begin(), tool.Arguments.end());
    std::vector<std::string> environment = EnvironmentWith(tool.Environment);
    pid_t process = 0;
    SpawnPlan plan(tool.Directory);
    if (plan.Spawn(process, tool.Program, Pointers(arguments).data(), Pointers(environment).data()) != 0) {
        return MakeError(error::kFileNotFound);
    }
    const auto status = WaitFor(process, tool.Patience);
    if (!status && tool.MayStay) {
        std::thread([process] { StatusOf(process, 0); }).detach();  // it must not become a zombie
        return 0;
    }
    if (!status) {
        kill(-process, SIGKILL);
        StatusOf(process, 0);
        return MakeError(error::kDeviceFault);
    }
    return WIFEXITED(*status) ? WEXITSTATUS(*status) : 128 + WTERMSIG(*status);
}

fs::path ProgramOnPath(std::string_view name) {
    const char* path = std::getenv("PATH");
    return FindOnPath(path != nullptr ? path : "/usr/local/bin:/usr/bin:/bin", name);
}

}  // namespace lv
