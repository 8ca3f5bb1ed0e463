#include "tests/program/program_run.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sqlite3.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdlib>

#include "platform/linux/settings/sqlite_settings.h"
#include "tests/program/screen.h"
#include "tests/support/game_yard.h"
#include "tests/support/test_paths.h"

namespace lv {

namespace {

namespace fs = std::filesystem;

constexpr const char* kApplication = "Lorvane 3D";

fs::path ProgramFile() {
    return fs::path(TestBinaryDir()) / "lorvane3d";
}

void EnterHome(const ProgramHome& home) {
    setenv("HOME", home.Root.c_str(), 1);
    setenv("XDG_CONFIG_HOME", home.Config.c_str(), 1);
    setenv("XDG_DATA_HOME", (home.Root / "data").c_str(), 1);
    setenv("XDG_CACHE_HOME", (home.Root / "cache").c_str(), 1);
    setenv("XDG_STATE_HOME", (home.Root / "state").c_str(), 1);
    setenv("WINEPREFIX", (home.Root / "wine").c_str(), 1);
    setenv("GDK_BACKEND", "x11", 1);
    setenv("NO_AT_BRIDGE", "1", 1);
    setenv("STAND_IN_STAYS", "6000", 1);  // longer than what the program takes for a game that has failed
    if (chdir(home.Root.c_str()) != 0) {
        _exit(126);
    }
}

// Standard error goes where a look after a failure finds it.
pid_t Spawn(const ProgramHome& home, const std::vector<std::string>& command) {
    const pid_t child = fork();
    if (child != 0) {
        return child;
    }
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    const int nothing = open("/dev/null", O_RDONLY);
    const int said = open((home.Root / "said.txt").c_str(), O_WRONLY | O_CREAT | O_APPEND, 0644);
    dup2(nothing, STDIN_FILENO);
    dup2(said, STDOUT_FILENO);
    dup2(said, STDERR_FILENO);
    EnterHome(home);
    std::vector<char*> words;
    for (const std::string& word : command) {
        words.push_back(const_cast<char*>(word.c_str()));  // NOLINT: execvp changes none of them
    }
    words.push_back(nullptr);
    execvp(words[0], words.data());
    _exit(127);
}

std::vector<std::string> CommandOf(const Environment& more, const std::vector<std::string>& words) {
    std::vector<std::string> command = {"env"};
    command.insert(command.end(), more.begin(), more.end());
    command.push_back(ProgramFile().string());
    command.insert(command.end(), words.begin(), words.end());
    return command;
}

std::vector<std::string> InsideMounts(const std::string& shell) {
    std::vector<std::string> command = {"unshare"};
    if (geteuid() != 0) {
        command.insert(command.end(), {"--user", "--map-root-user"});
    }
    command.insert(command.end(), {"--mount", "sh", "-e", "-c", shell});
    return command;
}

void EndAllStartedIn(const ProgramHome& home) {
    const std::string mark = "XDG_CONFIG_HOME=" + home.Config.string();
    std::error_code ignored;
    for (const auto& entry : fs::directory_iterator("/proc", ignored)) {
        const pid_t process = std::atoi(entry.path().filename().c_str());
        if (process <= 0 || process == getpid()) {
            continue;
        }
        const std::string environment = ReadBytes(entry.path() / "environ") + '\0';
        if (environment.find(mark + '\0') != std::string::npos) {
            kill(process, SIGKILL);
        }
    }
}

}  // namespace

ProgramHome::ProgramHome(const std::string& name)
    : Root(fs::path(TestBinaryDir()) / "programs" / name),
      Config(Root / "config"),
      Settings(Config / "lorvane3d" / "settings.sqlite"),
      Quake(Root / "data/lorvane3d/drive_c/QUAKE") {
    fs::remove_all(Root);
    fs::create_directories(Root);
}

ProgramHome::~ProgramHome() {
    EndAllStartedIn(*this);
}

void ProgramHome::MakeGame() {
    const fs::path ours = Root / "data/lorvane3d";
    fs::create_directories(ours / "drives");
    fs::create_directories(Quake / "ID1");
    fs::create_directory_symlink("../drive_c", ours / "drives/c:");
    fs::create_directory_symlink("/", ours / "drives/z:");
    fs::copy_file(fs::path(TestBinaryDir()) / "standins/show_native", Quake / "QUAKE.EXE");
}

void ProgramHome::Prepare() {
    MakeGame();
    Set("LV-Stuff", "FirstTime", "0");
    Set("LV-Stuff", "VP_Version", "1");
    Set("LV-Stuff", "NVC_Version", "1");
    Set("Options", "VidCard", "0");
    Set("Options", "Executables", "Quake;c:\\quake\\quake.exe");
}

void ProgramHome::Set(const std::string& section, const std::string& key, const std::string& value) {
    auto store = SqliteSettings::Open(Settings);
    ASSERT_TRUE(store.Ok()) << store.Fault.Text;
    const Error failed = store.Value->Write(kApplication, section, key, value);
    ASSERT_FALSE(failed) << failed.Text;
}

std::string ProgramHome::Get(const std::string& section, const std::string& key) {
    auto store = SqliteSettings::Open(Settings);
    EXPECT_TRUE(store.Ok()) << store.Fault.Text;
    return store.Ok() ? store.Value->Read(kApplication, section, key).value_or("(none)") : "(no store)";
}

std::map<std::string, std::string> RowsOf(const fs::path& settings) {
    std::map<std::string, std::string> rows;
    Result<Database> opened = OpenSettingsFile(settings);
    EXPECT_TRUE(opened.Ok()) << opened.Fault.Text;
    if (!opened.Ok()) {
        return rows;
    }
    const auto keep = [](void* to, int, char** columns, char**) {
        (*static_cast<std::map<std::string, std::string>*>(to))[columns[0]] = columns[1];
        return 0;
    };
    const int result =
        sqlite3_exec(opened.Value.get(), "SELECT section || '/' || key, value FROM setting", keep, &rows, nullptr);
    EXPECT_EQ(result, SQLITE_OK);
    return rows;
}

OwnProcess::OwnProcess(const ProgramHome& home, const std::vector<std::string>& command) : id_(Spawn(home, command)) {}

OwnProcess::~OwnProcess() {
    Kill();
}

bool OwnProcess::IsRunning() {
    int status = 0;
    if (!code_ && waitpid(id_, &status, WNOHANG) == id_) {
        code_ = WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
    }
    return !code_;
}

std::optional<int> OwnProcess::WaitForEnd(int milliseconds) {
    WaitUntil([&] { return !IsRunning(); }, milliseconds);
    return code_;
}

void OwnProcess::Signal(int number) {
    kill(id_, number);
}

void OwnProcess::Kill() {
    if (IsRunning()) {
        kill(id_, SIGKILL);
        WaitForEnd();
    }
}

bool WaitForTrayHost() {
    return WaitUntil([] { return OutputOf({"xwininfo", "-root", "-tree"}).find("\"trayer\"") != std::string::npos; });
}

ProgramRun::ProgramRun(const ProgramHome& home, const Environment& more, const std::vector<std::string>& words)
    : OwnProcess(home, CommandOf(more, words)) {}

ProgramRun::ProgramRun(const ProgramHome& home, const std::string& shell)
    : OwnProcess(home, InsideMounts(shell + "\nexec '" + ProgramFile().string() + "'")) {}

std::string ProgramRun::HowItIs() {
    KeepScreenshot("missing_window_of_" + std::to_string(Id()));
    const std::optional<int> code = WaitForEnd(0);
    std::string windows;
    for (const std::string& window : WindowsOf(Id(), ".*")) {
        windows += "\n  " + OutputOf({"xdotool", "getwindowname", window}) + (IsShown(window) ? ", on the screen" : "");
    }
    return code ? "; the program has ended with " + std::to_string(*code) : "; the program runs and has" + windows;
}

std::string ProgramRun::WaitForWindow() {
    std::vector<std::string> found;
    const bool came = WaitUntil([&] {
        found = ShownWindowsOf(Id(), kMainTitle);
        return !found.empty() || !IsRunning();
    });
    EXPECT_TRUE(came && !found.empty()) << "no main window came up" << HowItIs();
    return found.empty() ? std::string() : found.front();
}

bool ProgramRun::WindowIsShown() const {
    return !ShownWindowsOf(Id(), kMainTitle).empty();
}

std::string ProgramRun::WaitForDialog(const std::string& title) {
    std::string dialog;
    WaitUntil([&] {
        for (const std::string& window : ShownWindowsOf(Id(), title)) {
            if (IsDialog(window)) {
                dialog = window;
            }
        }
        return !dialog.empty() || !IsRunning();
    });
    EXPECT_FALSE(dialog.empty()) << "no box called " << title << HowItIs();
    if (!dialog.empty()) {
        EXPECT_TRUE(Activate(dialog));
    }
    return dialog;
}

std::string ProgramRun::TextOfBox(const std::string& box) {
    std::string text;
    WaitUntil([&] {
        Activate(box);
        PressKey("shift+Tab");  // from the button to the text
        PressKey("ctrl+a");
        text = SelectedText();
        return !text.empty();
    });
    return text;
}

std::optional<int> ProgramRun::EndByF12() {
    Activate(WaitForWindow());
    PressKey("F12");
    return WaitForEnd(3000);
}

fs::path ProgramRun::Seen(const fs::path& path) const {
    return "/proc/" + std::to_string(Id()) + "/root" + path.string();
}

void ExpectMountsOfOnesOwn(const ProgramHome& home) {
    OwnProcess probe(home, InsideMounts("true"));
    ASSERT_EQ(probe.WaitForEnd(), 0) << "this test needs mounts of its own: run it as root, or allow user namespaces";
}

void ExpectAStartThatWorks(const ProgramHome& home) {
    ProgramRun program(home);
    ASSERT_NE(program.WaitForWindow(), "");
    EXPECT_EQ(program.EndByF12(), 0);
}

}  // namespace lv
