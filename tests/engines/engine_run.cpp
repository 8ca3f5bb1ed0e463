#include "tests/engines/engine_run.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <memory>
#include <thread>
#include <vector>

#include "tests/support/test_paths.h"
#include "tests/support/virtual_display.h"

namespace lv {

namespace {

const std::filesystem::path kHome = std::filesystem::path(TestBinaryDir()) / "engine_home";

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
        display_ = std::make_unique<VirtualDisplay>();
        ASSERT_FALSE(display_->Name().empty()) << "Xvfb is needed (Debian package xvfb)";
    }
    void TearDown() override {
        EndWine();
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
    std::vector<char*> arguments;
    for (const char* word : words) {
        arguments.push_back(const_cast<char*>(word));
    }
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t quiet;
    posix_spawn_file_actions_init(&quiet);
    posix_spawn_file_actions_addopen(&quiet, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&quiet, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t child = -1;
    const int failed = posix_spawnp(&child, arguments[0], &quiet, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&quiet);
    int status = 0;
    return failed != 0 || waitpid(child, &status, 0) != child || !WIFEXITED(status) ? -1 : WEXITSTATUS(status);
}

bool PressKeysUntil(const char* name, const std::filesystem::path& file) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(60);
    while (!std::filesystem::exists(file)) {
        if (std::chrono::steady_clock::now() > end) {
            return false;
        }
        // Fails while the window is not there yet, and when it closes under the key.
        RunTool({"xdotool", "search", "--onlyvisible", name, "windowfocus", "key", "space"});
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
    }
    return true;
}

}  // namespace lv
