// tests/engines/engine_run.h
//
// What the tests of this program share: a display, a home directory of their own, and a Wine prefix.

#pragma once

#include <sys/types.h>

#include <chrono>
#include <filesystem>
#include <initializer_list>
#include <string_view>
#include <thread>
#include <vector>

namespace lv {

/// The Wine prefix of these tests; Wine makes it at its first start.
std::filesystem::path TestWinePrefix();

/// A stand-in that is not held back has written its output by then.
constexpr std::chrono::milliseconds kLongEnoughForAGameThatDoesNotWait{2000};

/// Presses the space bar in the window whose title or class holds `name` again and again until the file is there; false
/// after a minute without it.
bool PressKeysUntil(const char* name, const std::filesystem::path& file);

/// Runs a program of the host and waits for it: its exit code, or -1 if it did not run or had to be ended after a
/// minute.
int RunTool(std::initializer_list<const char*> words);
/// The same, with what it prints in the file.
int RunTool(std::initializer_list<const char*> words, const std::filesystem::path& output);

/// The processes that work in this directory or below it and whose name begins so.
std::vector<pid_t> ProcessesIn(const std::filesystem::path& directory, std::string_view name = {});

/// Ends all that works in this directory or below it.
void EndAllIn(const std::filesystem::path& directory);

}  // namespace lv
