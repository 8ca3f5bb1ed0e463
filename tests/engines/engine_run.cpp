#include "tests/engines/engine_run.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <charconv>
#include <csignal>
#include <cstdlib>
#include <memory>
#include <string>

#include "tests/engines/own_streams.h"
#include "tests/engines/time_limit.h"
#include "tests/support/game_yard.h"
#include "tests/support/test_paths.h"
#include "tests/support/virtual_display.h"

namespace lv {

namespace {

using Clock = std::chrono::steady_clock;

const std::filesystem::path kHome = std::filesystem::path(TestBinaryDir()) / "engine_home";
const std::filesystem::path kPrinted = std::filesystem::path(TestBinaryDir()) / "engine_output.txt";
constexpr std::chrono::seconds kToolsTime{60};

// -1 where the process has not ended by then.
int WaitFor(pid_t child) {
    const auto end = Clock::now() + kToolsTime;
    int status = 0;
    while (waitpid(child, &status, WNOHANG) == 0) {
        if (Clock::now() > end) {
            kill(child, SIGKILL);
            waitpid(child, &status, 0);
            return -1;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

class EngineRun : public testing::Environment {
  public:
    void SetUp() override {
        setenv("HOME", kHome.c_str(), 1);
        setenv("WINEPREFIX", TestWinePrefix().c_str(), 1);
        EndWine();  // of a run that was shot
        std::filesystem::remove_all(kHome);
        std::filesystem::create_directories(kHome);
        setenv("WINEDLLOVERRIDES", "mscoree,mshtml=", 1);
        setenv("SDL_AUDIODRIVER", "dummy", 1);
        for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME", "WINEDEBUG"}) {
            unsetenv(name);
        }
        // A game that is left behind would hold the pipe that the caller of the tests reads to its end.
        ASSERT_TRUE(KeepOwnStreams(kPrinted)) << "cannot write " << kPrinted;
        WatchTime();
        display_ = std::make_unique<VirtualDisplay>();
        ASSERT_FALSE(display_->Name().empty()) << "Xvfb is needed (Debian package xvfb)";
    }
    void TearDown() override {
        EndWine();
        EndAllIn(TestBinaryDir() + std::string("/yards/engines"));
        display_.reset();
    }

  private:
    static void EndWine() {
        if (std::filesystem::exists(TestWinePrefix() / "dosdevices")) {
            RunTool({"wineserver", "-k"});
            RunTool({"wineserver", "-w"});
        }
    }

    std::unique_ptr<VirtualDisplay> display_;
};

const testing::Environment* const kRun = testing::AddGlobalTestEnvironment(new EngineRun);  // gtest deletes it

}  // namespace

std::filesystem::path TestWinePrefix() {
    return kHome / "wine";
}

int RunTool(std::initializer_list<const char*> words) {
    return RunTool(words, "/dev/null");
}

int RunTool(std::initializer_list<const char*> words, const std::filesystem::path& output) {
    std::vector<char*> arguments;
    for (const char* word : words) {
        arguments.push_back(const_cast<char*>(word));
    }
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t quiet;
    posix_spawn_file_actions_init(&quiet);
    posix_spawn_file_actions_addopen(&quiet, STDOUT_FILENO, output.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    posix_spawn_file_actions_adddup2(&quiet, STDOUT_FILENO, STDERR_FILENO);
    pid_t child = -1;
    const int failed = posix_spawnp(&child, arguments[0], &quiet, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&quiet);
    return failed != 0 ? -1 : WaitFor(child);
}

std::vector<pid_t> ProcessesIn(const std::filesystem::path& directory, std::string_view name) {
    std::vector<pid_t> found;
    std::error_code failed;
    for (const auto& entry : std::filesystem::directory_iterator("/proc", failed)) {
        const std::string number = entry.path().filename().string();
        const std::string works = std::filesystem::read_symlink(entry.path() / "cwd", failed).string() + "/";
        pid_t process = 0;
        std::from_chars(number.data(), number.data() + number.size(), process);
        if (process > 0 && process != getpid() && works.starts_with(directory.string() + "/") &&
            ReadBytes(entry.path() / "comm").starts_with(name)) {
            found.push_back(process);
        }
    }
    return found;
}

void EndAllIn(const std::filesystem::path& directory) {
    for (const pid_t process : ProcessesIn(std::filesystem::weakly_canonical(directory))) {
        kill(process, SIGKILL);
    }
}

bool PressKeysUntil(const char* name, const std::filesystem::path& file) {
    const auto end = Clock::now() + std::chrono::seconds(60);
    while (!std::filesystem::exists(file)) {
        if (Clock::now() > end) {
            return false;
        }
        // Fails while the window is not there yet, and when it closes under the key.
        RunTool({"xdotool", "search", "--onlyvisible", name, "windowfocus", "key", "space"});
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
    }
    return true;
}

}  // namespace lv
