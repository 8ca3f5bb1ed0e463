#include "tests/support/game_yard.h"
#include "tests/support/test_paths.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <iterator>
#include <thread>

namespace lv {

namespace {

bool WaitUntil(const std::function<bool()>& happened) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(60);
    while (!happened()) {
        if (std::chrono::steady_clock::now() > end) {
            return false;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    return true;
}

std::vector<std::string> LinesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::string line;
    for (const char c : text) {
        if (c == '\n') {
            lines.push_back(line);
            line.clear();
        } else if (c != '\r') {
            line += c;
        }
    }
    return lines;
}

void SetOrRemove(const std::string& name, const char* value) {
    if (value == nullptr) {
        unsetenv(name.c_str());
    } else {
        setenv(name.c_str(), value, 1);
    }
}

}  // namespace

GameYard::GameYard(const std::string& name)
    : Root(std::filesystem::path(TestBinaryDir()) / "yards" / name), Drive(Root / "drive") {
    std::filesystem::remove_all(Root);
    std::filesystem::create_directories(Drive);
    Disk.AddDrive('C', Drive);
    Places.Cache = Root / "cache";
    Places.WinePrefix = Root / "wine";
    Places.PauseHelper = std::filesystem::path(TestBinaryDir()) / "lorvane3d-pause";
    Places.State = Root / "state";
    Places.WatchHelper = std::filesystem::path(TestBinaryDir()) / "lorvane3d-watch";
}

std::filesystem::path GameYard::AddGame(const std::string& standIn, const std::string& file) {
    const std::filesystem::path game = Drive / file;
    std::filesystem::create_directories(game.parent_path());
    std::filesystem::copy_file(std::filesystem::path(TestBinaryDir()) / "standins" / standIn, game);
    return game;
}

std::filesystem::path GameYard::AddFile(const std::string& file, const std::string& bytes) {
    const std::filesystem::path path = Drive / file;
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << bytes;
    return path;
}

void GameYard::AddBatch(const std::string& directory, const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += (text.empty() ? "" : "\r\n") + line;
    }
    AddFile(directory + "/lv_666.bat", text);
}

GivenWord GivenIn(const std::filesystem::path& batch, const std::string& word) {
    return {ReadBytes(batch).find(word), word, word};
}

std::string ReadBytes(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

std::vector<std::string> WaitForOutput(const std::filesystem::path& file) {
    std::vector<std::string> lines;
    const bool whole = WaitUntil([&] {
        lines = LinesOf(ReadBytes(file));
        return !lines.empty() && lines.back() == "end";
    });
    return whole ? lines : std::vector<std::string>();
}

bool WaitForText(const std::filesystem::path& file, const std::string& text) {
    return WaitUntil([&] { return ReadBytes(file).find(text) != std::string::npos; });
}

bool WaitUntilEmpty(const std::filesystem::path& directory) {
    return WaitUntil([&] { return std::filesystem::is_empty(directory); });
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

ScopedVariable::ScopedVariable(const char* name, const char* value) : name_(name) {
    if (const char* before = std::getenv(name)) {
        was_ = true;
        before_ = before;
    }
    SetOrRemove(name_, value);
}

ScopedVariable::~ScopedVariable() {
    SetOrRemove(name_, was_ ? before_.c_str() : nullptr);
}

}  // namespace lv
