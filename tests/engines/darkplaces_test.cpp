// A real engine: darkplaces-server runs without game data, executes the launch script and says so on standard output.

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <chrono>
#include <thread>

#include "foundry/writing/compose_script.h"
#include "platform/linux/linux_processes.h"
#include "tests/engines/engine_run.h"
#include "tests/support/game_yard.h"

namespace lv {

namespace {

using testing::HasSubstr;
using testing::Not;

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

/// What the server says while it executes this as the script of a launch. Its last line is "map start", which the
/// server has not got.
std::string OutputOfScript(const std::string& name, const std::string& script) {
    GameYard yard(name);
    yard.AddFile("quake/id1/lv_666.qs", script);
    std::filesystem::create_symlink("/usr/games/darkplaces-server", yard.Drive / "quake/darkplaces");
    yard.AddBatch("quake", {"SET SST_RGAMMA=1.7", "C:", "cd C:\\QUAKE", "DARKPLACES -zone 512 +exec lv_666.qs"});
    const auto log = yard.Root / "darkplaces.txt";
    Error fault;
    {
        const CapturedOutput captured(log);
        fault = LinuxProcesses(yard.Disk, yard.Places).StartBatch("C:\\QUAKE", "lv_666.bat");
    }
    EXPECT_FALSE(fault) << fault.Text;
    EXPECT_TRUE(WaitForText(log, "SpawnServer: no map file named maps/start.bsp"));
    std::string output = ReadBytes(log);
    const auto directory = std::filesystem::canonical(yard.Drive / "quake");
    // What keeps its output works there too.
    const std::vector<pid_t> servers = ProcessesIn(directory, "darkplaces");
    EXPECT_EQ(servers.size(), 1u) << "the server has ended by itself";
    for (const pid_t server : servers) {
        EXPECT_EQ(kill(server, SIGTERM), 0);
    }
    for (int i = 0; i < 500 && !ProcessesIn(directory, "darkplaces").empty(); ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    EXPECT_TRUE(ProcessesIn(directory, "darkplaces").empty());
    EndAllIn(directory);
    return output;
}

}  // namespace

TEST(DarkPlaces, ExecutesTheScriptOfALaunch) {
    const std::string output =
        OutputOfScript("engines/darkplaces",
                       "alias lv_hello \"echo the alias ran\"\r\nlv_hello\r\necho the script ran\r\nmap start\r\n");
    EXPECT_THAT(output, HasSubstr("execing lv_666.qs"));
    EXPECT_THAT(output, HasSubstr("the alias ran"));
    EXPECT_THAT(output, HasSubstr("the script ran"));
}

TEST(DarkPlaces, ExecutesAScriptOfTheScriptEditor) {
    ScriptDocument script = MakeScriptDocument({Game::Quake, Dialect::Quake, false, false, '.'});
    script.Name_Txt.Text = "Zoe the 1st";
    script.PlayerColor_Lbl[0].Tag = 4;
    script.PlayerColor_Lbl[1].Tag = 13;
    script.KeyBinding[23] = "+forward";
    script.KeyBinding[79] = "say hello; wait";
    script.AliasTable.Insert({false, "lv_editor", "echo the editor's alias ran;echo and went on"});
    script.Sections.resize(1);
    // The free form comes last, so it can ask what the lines before have done.
    script.Sections[0].Text = "lv_editor\r\nname\r\ncolor\r\nmap start";
    const std::string output =
        OutputOfScript("engines/darkplaces_editor", ComposeScript(script, {1999, 11, 21, 0, 0, 0}));
    EXPECT_THAT(output, HasSubstr("|..Setup Foundry ROCKS!..|"));
    EXPECT_THAT(output, HasSubstr("the editor's alias ran"));
    EXPECT_THAT(output, HasSubstr("and went on"));
    EXPECT_THAT(output, HasSubstr("name: Zoe the 1st"));
    EXPECT_THAT(output, HasSubstr("\"color\" is \"4 13\""));
    EXPECT_THAT(output, Not(HasSubstr("Unbalanced")));
}

// A server has no variables of a player; "set" makes them, and so they can be asked.
TEST(DarkPlaces, HasTheValuesOfAScriptOfTheNewerFamily) {
    ScriptDocument script = MakeScriptDocument({Game::Quake2, Dialect::Quake2, false, false, ','});
    const auto choose = [](ListBox& list, const char* text) {
        list.Items = {text};
        list.ListIndex = 0;
    };
    script.InvertMouse_Chk.Value = 1;
    script.NoAim_Chk.Value = 1;
    choose(script.MouseSensitivity_Cbo, "7,5");
    choose(script.fov_Cbo, "100");
    choose(script.vidmode_Cbo, "3) 320x240");
    script.Sections.resize(1);
    script.Sections[0].Text = "sensitivity\r\nm_pitch\r\nfov\r\nvid_mode\r\nsv_aim\r\nfreelook\r\nmap start";
    const std::string output =
        OutputOfScript("engines/darkplaces_newer", ComposeScript(script, {1999, 11, 21, 0, 0, 0}));
    for (const char* const value : {"\"sensitivity\" is \"7.5\"", "\"m_pitch\" is \"-0.022\"", "\"fov\" is \"100\"",
                                    "\"vid_mode\" is \"3\"", "\"sv_aim\" is \"1\"", "\"freelook\" is \"0\""}) {
        EXPECT_THAT(output, HasSubstr(value));
    }
}

}  // namespace lv
