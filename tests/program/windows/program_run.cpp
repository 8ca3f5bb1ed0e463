#include "tests/program/windows/program_run.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

#include "platform/windows/file_handle.h"
#include "tests/support/windows/own_window.h"

namespace lv {

namespace {

constexpr const char* kApplication = "Lorvane 3D";

std::wstring BuildDirectory() {
    std::array<wchar_t, MAX_PATH> here{};
    GetModuleFileNameW(nullptr, here.data(), MAX_PATH);
    const std::wstring tests = std::wstring(here.data());
    const std::wstring folder = tests.substr(0, tests.rfind(L'\\'));
    return folder.substr(0, folder.rfind(L'\\'));
}

INPUT Stroke(WORD key, DWORD flags) {
    INPUT stroke{};
    stroke.type = INPUT_KEYBOARD;
    stroke.ki.wVk = key;
    stroke.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
    stroke.ki.dwFlags = flags;
    return stroke;
}

}  // namespace

std::string OutputOf(std::wstring commandLine) {
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    HANDLE read = nullptr;
    HANDLE write = nullptr;
    CreatePipe(&read, &write, &inherited, 0);
    const FileHandle end(read);
    SetHandleInformation(read, HANDLE_FLAG_INHERIT, 0);
    STARTUPINFOW how{};
    how.cb = sizeof how;
    how.dwFlags = STARTF_USESTDHANDLES;
    how.hStdOutput = write;
    how.hStdError = write;
    PROCESS_INFORMATION process{};
    const BOOL started = CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, TRUE, CREATE_NO_WINDOW, nullptr,
                                        nullptr, &how, &process);
    CloseHandle(write);
    if (started == 0) {
        return "(not started)";
    }
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    std::string output;
    std::array<char, 4096> buffer{};
    DWORD got = 0;
    while (ReadFile(read, buffer.data(), static_cast<DWORD>(buffer.size()), &got, nullptr) != 0 && got > 0) {
        output.append(buffer.data(), got);
    }
    return output;
}

std::optional<DWORD> RunToEnd(std::wstring commandLine) {
    STARTUPINFOW how{};
    how.cb = sizeof how;
    PROCESS_INFORMATION process{};
    if (CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &how, &process) ==
        0) {
        return std::nullopt;
    }
    CloseHandle(process.hThread);
    const FileHandle ended(process.hProcess);
    DWORD code = 0;
    const bool whole = WaitForSingleObject(process.hProcess, 60000) == WAIT_OBJECT_0;
    return whole && GetExitCodeProcess(process.hProcess, &code) != 0 ? std::optional(code) : std::nullopt;
}

std::wstring BuiltProgram() {
    return BuildDirectory() + L"\\lorvane3d.exe";
}

void WindowsHome::MakeGame() {
    CreateDirectoryW(L"T:\\QUAKE", nullptr);
    CreateDirectoryW(L"T:\\QUAKE\\ID1", nullptr);
    const std::wstring standIn = BuildDirectory() + L"\\standins\\show_windows.exe";
    ASSERT_NE(CopyFileW(standIn.c_str(), L"T:\\QUAKE\\QUAKE.EXE", FALSE), 0) << GetLastError();
}

void WindowsHome::Prepare() {
    MakeGame();
    Set("LV-Stuff", "FirstTime", "0");
    Set("LV-Stuff", "VP_Version", "1");
    Set("LV-Stuff", "NVC_Version", "1");
    Set("Options", "VidCard", "0");
    Set("Options", "Executables", "Quake;t:\\quake\\quake.exe");
}

void WindowsHome::Set(const std::string& section, const std::string& key, const std::string& value) {
    ASSERT_EQ(store_.Write(kApplication, section, key, value).Number, 0);
}

std::string WindowsHome::Get(const std::string& section, const std::string& key) {
    return store_.Read(kApplication, section, key).value_or("(none)");
}

std::vector<std::string> WindowsHome::GameSaid(const std::wstring& directory) {
    const std::wstring file = directory + L"\\output.txt";
    EXPECT_TRUE(WaitUntil([&] { return BytesOf(file).ends_with("end\n"); })) << "the game said nothing";
    std::vector<std::string> lines;
    std::string line;
    for (const char c : BytesOf(file)) {
        if (c == '\n') {
            lines.push_back(line);
            line.clear();
        } else {
            line += c;
        }
    }
    return lines;
}

std::vector<std::string> LinesAfter(const std::vector<std::string>& lines, const std::string& start) {
    std::vector<std::string> found;
    for (const std::string& line : lines) {
        if (line.starts_with(start)) {
            found.push_back(line.substr(start.size()));
        }
    }
    return found;
}

ProgramRun::ProgramRun(const std::wstring& program, const wchar_t* directory) {
    std::wstring line = L"\"" + program + L"\"";
    STARTUPINFOW how{};
    how.cb = sizeof how;
    const BOOL started =
        CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, FALSE, 0, nullptr, directory, &how, &process_);
    EXPECT_NE(started, 0) << "not started, error " << GetLastError();
}

ProgramRun::~ProgramRun() {
    Kill();
    CloseHandle(process_.hThread);
    CloseHandle(process_.hProcess);
}

HWND ProgramRun::ShownWindow(const wchar_t* title) const {
    HWND window = nullptr;
    while ((window = FindWindowExW(nullptr, window, nullptr, title)) != nullptr) {
        DWORD process = 0;
        GetWindowThreadProcessId(window, &process);
        if (process == process_.dwProcessId && IsWindowVisible(window) != 0) {
            return window;
        }
    }
    return nullptr;
}

HWND ProgramRun::WaitForWindow(const wchar_t* title) {
    HWND window = nullptr;
    WaitUntil([&] { return (window = ShownWindow(title)) != nullptr || !IsRunning(); });
    EXPECT_NE(window, nullptr) << "no such window came up";
    return window;
}

bool ProgramRun::ActivateShown(const wchar_t* title) {
    return WaitUntil([&] {
        const HWND window = ShownWindow(title);
        return window != nullptr && Activate(window, 1000);
    });
}

bool ProgramRun::IsRunning() {
    return WaitForSingleObject(process_.hProcess, 0) == WAIT_TIMEOUT;
}

std::optional<DWORD> ProgramRun::WaitForEnd(DWORD milliseconds) {
    DWORD code = 0;
    if (WaitForSingleObject(process_.hProcess, milliseconds) != WAIT_OBJECT_0 ||
        GetExitCodeProcess(process_.hProcess, &code) == 0) {
        return std::nullopt;
    }
    return code;
}

void ProgramRun::Kill() {
    if (IsRunning()) {
        TerminateProcess(process_.hProcess, 9);
        WaitForEnd();
    }
}

std::optional<DWORD> ProgramRun::EndByF12() {
    EXPECT_TRUE(Activate(WaitForWindow()));
    PressKey(VK_F12);
    return WaitForEnd();
}

// A window manager may give the keys to another new window a moment later.
bool Activate(HWND window, int milliseconds) {
    int quietLooks = 0;
    return WaitUntil(
        [&] {
            const bool isThere = GetForegroundWindow() == window || SetForegroundWindow(window) == 0;
            quietLooks = isThere ? quietLooks + 1 : 0;
            return quietLooks > 8 && GetForegroundWindow() == window;
        },
        milliseconds);
}

void PressKey(WORD key, bool withAlt) {
    std::vector<INPUT> strokes = {Stroke(key, 0), Stroke(key, KEYEVENTF_KEYUP)};
    if (withAlt) {
        strokes.insert(strokes.begin(), Stroke(VK_MENU, 0));
        strokes.push_back(Stroke(VK_MENU, KEYEVENTF_KEYUP));
    }
    EXPECT_EQ(SendInput(static_cast<UINT>(strokes.size()), strokes.data(), sizeof(INPUT)), strokes.size());
}

void ExpectALaunch(ProgramRun& program) {
    HWND window = program.WaitForWindow();
    ASSERT_TRUE(Activate(window));
    PressKey(VK_F2);
    EXPECT_THAT(LinesAfter(WindowsHome::GameSaid(), "DIRECTORY="), ::testing::ElementsAre("t:\\QUAKE"));
}

RECT PlaceOf(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    return place;
}

std::wstring TextOfBox(HWND box) {
    std::array<wchar_t, 1024> text{};
    for (HWND child = nullptr; (child = FindWindowExW(box, child, nullptr, nullptr)) != nullptr;) {
        std::array<wchar_t, 64> kind{};
        GetClassNameW(child, kind.data(), static_cast<int>(kind.size()));
        if (std::wstring(kind.data()) == L"Edit") {
            SendMessageW(child, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
        }
    }
    return text.data();
}

}  // namespace lv
