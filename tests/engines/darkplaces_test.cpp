// A real engine: darkplaces-server runs without game data, executes the launch script and says so on standard output.

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <charconv>
#include <chrono>
#include <thread>

#include "platform/linux/linux_processes.h"
#include "tests/support/game_yard.h"

namespace lv {

namespace {

using testing::HasSubstr;

// Standard output into a file, for what is started meanwhile.
class CapturedOutput {
  public:
    explicit CapturedOutput(const std::filesystem::path& file) : before_(dup(STDOUT_FILENO)) {
        const int out = open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
        dup2(out, STDOUT_FILENO);
        close(out);
    }
    ~CapturedOutput() {
        dup2(before_, STDOUT_FILENO);
        close(before_);
    }
    CapturedOutput(const CapturedOutput&) = delete;
    CapturedOutput& operator=(const CapturedOutput&) = delete;

  private:
    int before_;
};

// The process whose standard output is this file; 0 if there is none.
pid_t ProcessWritingTo(const std::filesystem::path& file) {
    std::error_code failed;
    for (const auto& entry : std::filesystem::directory_iterator("/proc", failed)) {
        const std::string name = entry.path().filename().string();
        pid_t process = 0;
        const auto [end, bad] = std::from_chars(name.data(), name.data() + name.size(), process);
        if (bad == std::errc() && end == name.data() + name.size() &&
            std::filesystem::read_symlink(entry.path() / "fd/1", failed) == file) {
            return process;
        }
    }
    return 0;
}

}  // namespace

TEST(DarkPlaces, ExecutesTheScriptOfALaunch) {
    GameYard yard("engine_darkplaces");
    yard.AddFile("quake/id1/lv_666.qs",
                 "alias lv_hello \"echo the alias ran\"\r\nlv_hello\r\necho the script ran\r\nmap start\r\n");
    std::filesystem::create_symlink("/usr/games/darkplaces-server", yard.Drive / "quake/darkplaces");
    yard.AddBatch("quake", {"SET SST_RGAMMA=1.7", "C:", "cd C:\\QUAKE", "DARKPLACES -zone 512 +exec lv_666.qs"});
    const auto log = yard.Root / "darkplaces.txt";
    Error fault;
    {
        const CapturedOutput captured(log);
        fault = LinuxProcesses(yard.Disk, yard.Places).StartBatch("C:\\QUAKE", "lv_666.bat");
    }
    ASSERT_FALSE(fault) << fault.Text;
    EXPECT_TRUE(WaitForText(log, "SpawnServer: no map file named maps/start.bsp"));
    const std::string output = ReadBytes(log);
    EXPECT_THAT(output, HasSubstr("execing lv_666.qs"));
    EXPECT_THAT(output, HasSubstr("the alias ran"));
    EXPECT_THAT(output, HasSubstr("the script ran"));
    const pid_t server = ProcessWritingTo(log);
    ASSERT_GT(server, 0) << "the server has ended by itself";
    EXPECT_EQ(kill(server, SIGTERM), 0);
    for (int i = 0; i < 500 && ProcessWritingTo(log) != 0; ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    EXPECT_EQ(ProcessWritingTo(log), 0);
}

}  // namespace lv
