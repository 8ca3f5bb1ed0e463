#include "tests/program/screen.h"
#include "tests/support/test_paths.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <sstream>
#include <thread>

namespace lv {

namespace {

std::string Quoted(const std::string& word) {
    std::string quoted = "'";
    for (const char c : word) {
        quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    }
    return quoted + "'";
}

std::vector<std::string> WordsOf(const std::string& text) {
    std::istringstream in(text);
    std::vector<std::string> words;
    for (std::string word; in >> word;) {
        words.push_back(word);
    }
    return words;
}

std::vector<std::string> Search(int process, const std::string& title, bool onlyShown) {
    std::vector<std::string> command = {"xdotool", "search", "--all"};
    if (onlyShown) {
        command.emplace_back("--onlyvisible");
    }
    command.insert(command.end(), {"--pid", std::to_string(process), "--name", title});
    return WordsOf(OutputOf(command));
}

// The last hexadecimal number of a property, as xdotool writes it; empty if there is none.
std::string LastWindowIn(const std::string& property) {
    const std::size_t at = property.rfind("0x");
    if (at == std::string::npos) {
        return {};
    }
    const unsigned long number = std::strtoul(property.c_str() + at, nullptr, 16);
    return number == 0 ? std::string() : std::to_string(number);
}

int NumberAfter(const std::string& text, const std::string& label) {
    const std::size_t at = text.find(label);
    return at == std::string::npos ? -1 : std::atoi(text.c_str() + at + label.size());
}

bool Holds(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

}  // namespace

std::string OutputOf(const std::vector<std::string>& command) {
    std::string line = "timeout 10";
    for (const std::string& word : command) {
        line += " " + Quoted(word);
    }
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> pipe(popen((line + " 2>/dev/null").c_str(), "r"), pclose);
    std::string output;
    char buffer[4096];
    while (pipe != nullptr) {
        const std::size_t count = std::fread(buffer, 1, sizeof buffer, pipe.get());
        if (count == 0) {
            break;
        }
        output.append(buffer, count);
    }
    return output;
}

bool WaitUntil(const std::function<bool()>& holds, int milliseconds) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds);
    while (!holds()) {
        if (std::chrono::steady_clock::now() > end) {
            return false;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return true;
}

std::vector<std::string> WindowsOf(int process, const std::string& title) {
    return Search(process, title, false);
}

std::vector<std::string> ShownWindowsOf(int process, const std::string& title) {
    return Search(process, title, true);
}

bool IsShown(const std::string& window) {
    return Holds(OutputOf({"xwininfo", "-id", window}), "Map State: IsViewable");
}

bool IsDialog(const std::string& window) {
    return Holds(OutputOf({"xprop", "-id", window, "_NET_WM_WINDOW_TYPE"}), "_NET_WM_WINDOW_TYPE_DIALOG");
}

std::string StateOf(const std::string& window) {
    const std::string property = OutputOf({"xprop", "-id", window, "WM_STATE"});
    for (const char* const state : {"Normal", "Iconic"}) {
        if (Holds(property, std::string("window state: ") + state)) {
            return state;
        }
    }
    return "Withdrawn";
}

std::string ActiveWindow() {
    return LastWindowIn(OutputOf({"xprop", "-root", "_NET_ACTIVE_WINDOW"}));
}

std::string TopWindow() {
    return LastWindowIn(OutputOf({"xprop", "-root", "_NET_CLIENT_LIST_STACKING"}));
}

bool Activate(const std::string& window) {
    OutputOf({"xdotool", "windowactivate", window});
    return WaitUntil([&] { return ActiveWindow() == window; });
}

Rectangle PlaceOf(const std::string& window) {
    const std::string info = OutputOf({"xwininfo", "-id", window});
    return {NumberAfter(info, "Absolute upper-left X:"), NumberAfter(info, "Absolute upper-left Y:"),
            NumberAfter(info, "Width:"), NumberAfter(info, "Height:")};
}

void PressKey(const std::string& key) {
    OutputOf({"xdotool", "key", "--clearmodifiers", key});
}

void TypeText(const std::string& text) {
    OutputOf({"xdotool", "type", "--clearmodifiers", text});
}

void Click(int left, int top, int button) {
    OutputOf({"xdotool", "mousemove", std::to_string(left), std::to_string(top), "click", std::to_string(button)});
}

std::string SelectedText() {
    return OutputOf({"xclip", "-o", "-selection", "primary"});
}

void KeepScreenshot(const std::string& name) {
    const std::filesystem::path directory = std::filesystem::path(TestBinaryDir()) / "screenshots";
    std::filesystem::create_directories(directory);
    OutputOf({"import", "-window", "root", (directory / (name + ".png")).string()});
}

}  // namespace lv
