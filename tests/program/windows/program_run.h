// tests/program/windows/program_run.h
//
// The real program on Windows, started as a user starts it, in a registry and on a drive that a test has prepared.

#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/windows/registry_settings.h"
#include "platform/windows/system.h"
#include "tests/support/windows/empty_key.h"
#include "tests/support/windows/test_drive.h"

namespace lv {

constexpr const wchar_t* kMainTitle = L"   Lorvane 3D";
constexpr const wchar_t* kPlainTitle = L"Lorvane 3D";  // the splash, and boxes without a title of their own

/// What a program of the system prints.
std::string OutputOf(std::wstring commandLine);

/// Runs it to its end: its exit code, or nothing if it is not started, or still runs after a minute.
std::optional<DWORD> RunToEnd(std::wstring commandLine);

/// The program as it was built.
std::wstring BuiltProgram();

/// This user's settings and the test drive, both empty at first.
class WindowsHome {
  public:
    /// A game T:\QUAKE\QUAKE.EXE, which is the stand-in.
    static void MakeGame();
    /// The game, and settings with which a start asks nothing.
    void Prepare();
    void Set(const std::string& section, const std::string& key, const std::string& value);
    /// "(none)" if it is not stored.
    std::string Get(const std::string& section, const std::string& key);
    /// The lines that the game says of itself, once all are there.
    static std::vector<std::string> GameSaid(const std::wstring& directory = L"T:\\QUAKE");

  private:
    TestDrive drive_;
    EmptyKey settings_{L"Software\\VB and VBA Program Settings\\Lorvane 3D"};
    RegistrySettings store_{"Lorvane 3D"};
};

/// What follows the start on those of the lines that begin with it.
std::vector<std::string> LinesAfter(const std::vector<std::string>& lines, const std::string& start);

class ProgramRun {
  public:
    explicit ProgramRun(const std::wstring& program = BuiltProgram(), const wchar_t* directory = nullptr);
    ~ProgramRun();
    ProgramRun(const ProgramRun&) = delete;
    ProgramRun& operator=(const ProgramRun&) = delete;

    /// A window of this run that is on the screen; null if there is none within twenty seconds, and a failed test.
    HWND WaitForWindow(const wchar_t* title = kMainTitle);
    /// Gives the keys to the window of that title, whichever bears it by then; false if none takes them.
    bool ActivateShown(const wchar_t* title);
    /// The same, now.
    [[nodiscard]] HWND ShownWindow(const wchar_t* title = kMainTitle) const;

    bool IsRunning();
    std::optional<DWORD> WaitForEnd(DWORD milliseconds = 20000);
    void Kill();
    /// Presses F12 in the main window; the exit code, or nothing if it does not end.
    std::optional<DWORD> EndByF12();

  private:
    PROCESS_INFORMATION process_{};
};

/// Brings the window to the front and waits until it is there.
bool Activate(HWND window, int milliseconds = 10000);
/// Presses a key of the system's number in whatever window is in front, with Alt if told so.
void PressKey(WORD key, bool withAlt = false);

/// Presses F2 in the main window; the game says that it has come up in its directory.
void ExpectALaunch(ProgramRun& program);

RECT PlaceOf(HWND window);

/// What a question box says.
std::wstring TextOfBox(HWND box);

}  // namespace lv
