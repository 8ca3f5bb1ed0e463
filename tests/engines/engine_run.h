// tests/engines/engine_run.h
//
// What the tests of this program share: a display, a home directory of their own, and a Wine prefix.

#pragma once

#include <chrono>
#include <filesystem>
#include <initializer_list>
#include <thread>

namespace lv {

/// The Wine prefix of these tests; Wine makes it at its first start.
std::filesystem::path TestWinePrefix();

/// A stand-in that is not held back has written its output by then.
constexpr std::chrono::milliseconds kLongEnoughForAGameThatDoesNotWait{2000};

/// Presses the space bar in the window whose title or class holds `name` again and again until the file is there; false
/// after a minute without it.
bool PressKeysUntil(const char* name, const std::filesystem::path& file);

/// Runs a program of the host and waits for it.
int RunTool(std::initializer_list<const char*> words);

}  // namespace lv
