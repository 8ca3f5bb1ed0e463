#include "tests/faults/home_run.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sqlite3.h>
#include <stdlib.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>
#include <iterator>

#include "foundation/open_store.h"
#include "foundation/question_box.h"
#include "foundation/settings.h"
#include "foundry/editor/lifecycle.h"
#include "foundry/foundry.h"
#include "foundry/look/changes_frm.h"
#include "launcher/start/start.h"
#include "launcher/window/launch_flow.h"
#include "launcher/window/window_life.h"
#include "platform/linux/files/linux_files.h"
#include "platform/linux/linux_processes.h"
#include "platform/linux/settings/sqlite_settings.h"
#include "platform/linux/wine_registry.h"
#include "platform/memory/memory_platform.h"

namespace lv {

namespace {

namespace fs = std::filesystem;

constexpr const char* kApplication = "Lorvane 3D";

/// Reads what is told, and takes the last button of every question: the one that goes on without.
class Reader : public UserInterface {
  public:
    explicit Reader(int report) : report_(report) {}

    void ShowQuestionBox(QuestionBox_Frm& box) override {
        const std::string told = box.Caption + '|' + box.Question_Txt.Text + '\0';
        EXPECT_EQ(::write(report_, told.data(), told.size()), static_cast<ssize_t>(told.size()));
        QuestionBox_Button_Cmd_Click(box, static_cast<int>(box.Button_Cmd.size()) - 1);
    }
    void ShowModal(ModalWindow& window) override {
        auto* const editor = dynamic_cast<Fig_Frm*>(&window);
        if (editor != nullptr) {
            editor->Document.Name_Txt.Text = "Somebody";
            Edited(*editor);
            View_Cmd_Click(*editor, 6);
            UnloadSF_Cmd_Click(*editor);
        }
        if (auto* const changes = dynamic_cast<Changes_Frm*>(&window)) {
            Changes_Save_Cmd_Click(*changes);
        }
    }
    Result<std::optional<Text>> ChooseFile(const FileRequest&) override { return std::optional<Text>(); }
    void Refresh() override {}
    void PumpEvents() override {}
    void EndProgram() override {}
    int TextWidth(TextView line) override { return static_cast<int>(line.size()) * 8; }
    int TextHeight() override { return 16; }
    ScreenSize Screen() override { return {1000, 1000}; }

  private:
    int report_;
};

OpenedStore Settled(Result<std::unique_ptr<SqliteSettings>> opened) {
    return opened.Ok() ? OpenedStore(std::move(opened.Value)) : OpenedStore(opened.Fault);
}

/// In the order in which the program makes it all.
void LiveOnce(const fs::path& root, Deed deed, UserInterface& user) {
    const fs::path settings = root / "config/settings.sqlite";
    LinuxFiles disk({root / "data/drives", root / "wine", root / "program"});
    const auto store = OpenStore(user, {[&] { return Settled(SqliteSettings::Open(settings)); },
                                        [&] { return Settled(SqliteSettings::OpenCopy(settings)); }});
    if (store == nullptr) {
        return;
    }
    WineRegistry registry(*store, {});
    LinuxProcesses programs(disk, {(root / "tools").string(), root / "cache", root / "wine", root / "tools/pause"});
    MemoryClipboard clip;
    MemoryClock clock;
    Platform system{*store, registry, disk, programs, clip, clock};
    Run run(system, user);
    AskWhileLocked(run);
    Launcher launcher(run);
    SetupFoundry foundry(launcher);
    ConnectFoundry(launcher);
    ConnectEditor(foundry);
    if (!Start(launcher)) {
        return;
    }
    if (deed == Deed::kEditScript) {
        launcher.OpenSetupFoundry();
    } else {
        DoIt_Cmd_Click(launcher, 0);
    }
    Exit_Bar_Click(launcher);
}

void Write(const fs::path& file, const std::string& bytes) {
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << bytes;
}

std::string BytesOf(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

std::string DosProgram() {
    return "MZ" + std::string(62, '\0');
}

}  // namespace

FaultyHome::FaultyHome(Deed deed) : deed_(deed) {
    std::string name = (fs::temp_directory_path() / "lorvane3d_home_XXXXXX").string();
    base_ = fs::canonical(mkdtemp(name.data()));
    root_ = base_ / "home";
    kept_ = base_ / "kept";
    Make();
}

FaultyHome::~FaultyHome() {
    std::error_code failed;
    fs::remove_all(base_, failed);
}

void FaultyHome::Make() {
    const fs::path quake = root_ / "data/drive_c/QUAKE";
    Write(root_ / "program/lv_666.hid", "a picture of a window");
    Write(quake / "ID1/player.cfg", "// my own\r\nname \"Me\"\r\nbind w +forward\r\nsome_cvar 7\r\n");
    Write(quake / "ID1/maps/start.bsp", "a map");
    for (const char* const tool : {"dosbox", "xterm", "pause"}) {
        fs::create_directories(root_ / "tools");
        fs::copy_file("/bin/true", root_ / "tools" / tool);
    }
    if (deed_ == Deed::kLaunchDos) {
        Write(quake / "QUAKE.EXE", DosProgram());
    } else {
        fs::copy_file("/bin/true", quake / "QUAKE.EXE");
    }
    {
        auto store = SqliteSettings::Open(root_ / "config/settings.sqlite");
        ASSERT_TRUE(store.Ok()) << store.Fault.Text;
        const auto set = [&](const char* section, const std::string& key, const std::string& value) {
            ASSERT_FALSE(store.Value->Write(kApplication, section, key, value));
        };
        set("LV-Stuff", "FirstTime", "0");
        set("LV-Stuff", "VP_Version", "1");
        set("LV-Stuff", "NVC_Version", "1");
        set("Options", "VidCard", "0");
        set("Options", "Executables", "Quake;C:\\QUAKE\\QUAKE.EXE");
        set("Options", "UseScripts", "1");
        set("Options", "Scripts", "player;C:\\QUAKE\\ID1\\player.cfg");
        set("DefaultScript", "C:\\QUAKE\\ID1", "C:\\QUAKE\\ID1\\player.cfg");
        set("Options", "UseCustomCommandLine", "1");
        set("Options", "CustomCommandLineText", "+skill 1");
        for (int i = 0; i < 20; ++i) {
            set("Kept", std::to_string(i), std::string(400, static_cast<char>('a' + i)));
        }
    }
    if (deed_ != Deed::kEditScript) {
        const End before = Run();  // the launch whose files are replaced
        ASSERT_EQ(before.Code, 0);
        ASSERT_TRUE(before.Told.empty()) << before.Told.front();
        auto store = SqliteSettings::Open(root_ / "config/settings.sqlite");
        ASSERT_FALSE(store.Value->Write(kApplication, "Options", "CustomCommandLineText", "+skill 3 +name new"));
    }
    fs::copy(root_, kept_, fs::copy_options::recursive | fs::copy_options::copy_symlinks);
}

void FaultyHome::Restore() {
    fs::remove_all(root_);
    fs::copy(kept_, root_, fs::copy_options::recursive | fs::copy_options::copy_symlinks);
}

void FaultyHome::Live(const Trap& trap, int report) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    Reader user(report);
    Trap set = trap;
    set.Below = root_;
    SetTrap(set);
    LiveOnce(root_, deed_, user);
    TakeTrapAway();
    const auto seen = CallsSeen();
    const bool written = ::write(report, seen.data(), sizeof seen) == sizeof seen;
    _exit(written && !::testing::Test::HasFailure() ? 0 : 99);
}

FaultyHome::End FaultyHome::Run(const Trap& trap, std::optional<double> milliseconds) {
    int ends[2];
    EXPECT_EQ(pipe(ends), 0);
    const pid_t child = fork();
    if (child == 0) {
        close(ends[0]);
        Live(trap, ends[1]);
    }
    close(ends[1]);
    if (milliseconds) {
        usleep(static_cast<useconds_t>(*milliseconds * 1000));
        kill(child, SIGKILL);
    }
    std::string said;
    char buffer[4096];
    for (ssize_t got = 0; (got = read(ends[0], buffer, sizeof buffer)) > 0;) {
        said.append(buffer, static_cast<std::size_t>(got));
    }
    close(ends[0]);
    int status = 0;
    waitpid(child, &status, 0);
    End end;
    end.Killed = WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
    if (WIFEXITED(status)) {
        end.Code = WEXITSTATUS(status);
    }
    if (end.Code && said.size() >= sizeof end.Seen) {
        said.copy(reinterpret_cast<char*>(end.Seen.data()), sizeof end.Seen, said.size() - sizeof end.Seen);
        said.resize(said.size() - sizeof end.Seen);
    }
    for (std::size_t at = 0; at < said.size(); at = said.find('\0', at) + 1) {
        end.Told.push_back(said.substr(at, said.find('\0', at) - at));
        if (said.find('\0', at) == std::string::npos) {
            break;
        }
    }
    return end;
}

std::map<std::string, std::string> FaultyHome::Files() const {
    std::map<std::string, std::string> files;
    for (const auto& entry : fs::recursive_directory_iterator(root_)) {
        const std::string name = entry.path().lexically_relative(root_).string();
        if (entry.is_symlink()) {
            files[name] = "-> " + fs::read_symlink(entry.path()).string();
        } else if (entry.is_regular_file() && !name.starts_with("config/settings.sqlite") &&
                   !name.starts_with("cache/")) {
            files[name] = BytesOf(entry.path());
        }
    }
    return files;
}

std::optional<std::map<std::string, std::string>> FaultyHome::Rows() const {
    const auto opened = OpenSettingsFile(root_ / "config/settings.sqlite");
    if (!opened.Ok()) {
        ADD_FAILURE() << opened.Fault.Text;
        return std::nullopt;
    }
    std::map<std::string, std::string> rows;
    const auto keep = [](void* to, int, char** columns, char**) {
        (*static_cast<std::map<std::string, std::string>*>(to))[columns[0]] = columns[1];
        return 0;
    };
    EXPECT_EQ(
        sqlite3_exec(opened.Value.get(), "SELECT section || '/' || key, value FROM setting", keep, &rows, nullptr),
        SQLITE_OK);
    return rows;
}

}  // namespace lv
