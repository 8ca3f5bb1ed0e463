// tests/program/program_run.h
//
// The real program, started as a user starts it, in a home that a test has prepared.

#pragma once

#include <sys/types.h>

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace lv {

/// Titles, as regular expressions.
constexpr const char* kMainTitle = "^   Lorvane 3D$";
constexpr const char* kPlainTitle = "^Lorvane 3D$";  // the splash, and boxes without a title of their own
constexpr const char* kChipsetTitle = "^Lorvane 3D Setup$";

/// Settings, drives and caches of one user, below <build>/programs/<name>. When it goes, so does every process that
/// was started in it.
class ProgramHome {
  public:
    /// Made anew and empty: a start in it is a first run.
    explicit ProgramHome(const std::string& name);
    ~ProgramHome();
    ProgramHome(const ProgramHome&) = delete;
    ProgramHome& operator=(const ProgramHome&) = delete;

    /// A game C:\QUAKE\QUAKE.EXE, which is the native stand-in.
    void MakeGame();
    /// The game, and settings with which a start asks nothing.
    void Prepare();

    void Set(const std::string& section, const std::string& key, const std::string& value);
    /// "(none)" if it is not stored.
    std::string Get(const std::string& section, const std::string& key);

    std::filesystem::path Root;
    std::filesystem::path Config;    // XDG_CONFIG_HOME
    std::filesystem::path Settings;  // the store itself
    std::filesystem::path Quake;     // the game's directory
};

/// All rows of a store by section and key; fails the test if it cannot be opened.
std::map<std::string, std::string> RowsOf(const std::filesystem::path& settings);

/// A process of the test's own; killed when this goes.
class OwnProcess {
  public:
    OwnProcess(const ProgramHome& home, const std::vector<std::string>& command);
    ~OwnProcess();
    OwnProcess(const OwnProcess&) = delete;
    OwnProcess& operator=(const OwnProcess&) = delete;

    [[nodiscard]] pid_t Id() const { return id_; }
    [[nodiscard]] bool IsRunning();
    /// The exit code once it has ended by itself; nothing while it runs, and 128 + N after signal N.
    std::optional<int> WaitForEnd(int milliseconds = 10000);
    void Signal(int number);
    /// SIGKILL, and waits for the end.
    void Kill();

  private:
    pid_t id_ = -1;
    std::optional<int> code_;
};

/// A tray for icons along the lower edge of the screen.
inline const std::vector<std::string> kTrayHost = {"trayer", "--edge",  "bottom", "--align",  "right", "--widthtype",
                                                   "pixel",  "--width", "100",    "--height", "32"};
bool WaitForTrayHost();

/// Variables, each as "name=value".
using Environment = std::vector<std::string>;

class ProgramRun : public OwnProcess {
  public:
    /// `words` stand behind the program's name.
    explicit ProgramRun(const ProgramHome& home, const Environment& more = {},
                        const std::vector<std::string>& words = {});
    /// `shell` runs as root of mount tables of its own before the program takes its place: it may mount what it likes
    /// and nobody else sees that.
    ProgramRun(const ProgramHome& home, const std::string& shell);

    /// The main window once it is on the screen; empty, and a failed test, if it does not come.
    std::string WaitForWindow();
    /// Whether it is, now.
    [[nodiscard]] bool WindowIsShown() const;
    /// A dialog of that title once it is on the screen and has the keyboard; empty, and a failed test, if not.
    std::string WaitForDialog(const std::string& title);
    /// What the question box says, selected with its own keys.
    std::string TextOfBox(const std::string& box);
    /// Presses F12 in the main window; the exit code, or nothing if it does not end within three seconds.
    std::optional<int> EndByF12();

    /// `path` as this program sees it through its own mounts.
    [[nodiscard]] std::filesystem::path Seen(const std::filesystem::path& path) const;

  private:
    /// For a test that fails for want of a window: whether it runs, and the windows that it has.
    std::string HowItIs();
};

/// Fails the test where a program cannot have mounts of its own.
void ExpectMountsOfOnesOwn(const ProgramHome& home);

/// Start to window and F12 to code 0, as a test of the state that something else has left.
void ExpectAStartThatWorks(const ProgramHome& home);

}  // namespace lv
