// platform/linux/start_report.h
//
// What a forked process that could not become its program writes into the pipe it was given. One that could closes the
// pipe without a word.

#pragma once

namespace lv {

enum class StartStage { kFork, kDirectory, kProgram };

struct StartReport {
    StartStage At = StartStage::kFork;
    int Number = 0;  // an `errno`
};

/// Reports and ends the process. Calls nothing that a fork makes unsafe.
[[noreturn]] void FailStart(int pipe, StartStage stage, int number);

}  // namespace lv
