// platform/windows/windows_processes.h
//
// Starting other programs the system's own way. What is started outlives this program.

#pragma once

#include "platform/files.h"
#include "platform/processes.h"
#include "platform/windows/started_process.h"

namespace lv {

class WindowsProcesses : public Processes {
  public:
    /// `disk` says what a path without a drive is taken from.
    explicit WindowsProcesses(Files& disk) : disk_(disk) {}

    using Processes::StartBatch;

    LineReader ReaderOf(std::string_view directory, std::string_view command, std::string_view program) override;

    /// The command processor of the system carries the batch out, in a console of its own that reads code page 1252; a
    /// DOS program that this Windows cannot start is given to DOSBox instead. A share of
    /// the network has a letter while the batch runs, by pushd. It reads the batch by itself, so that what is
    /// known of the command has no use here: who writes the batch asks ReaderOf first.
    Error StartBatch(std::string_view directory, std::string_view name, const BatchCommand& known) override;

    /// A document is opened by the program that the user has for it.
    Error StartProgram(std::string_view program, const std::vector<std::string>& arguments) override;

    bool HasRunnerFor(std::string_view program) override;

    bool WatchesGame() override { return lastGame_.IsKnown(); }

    /// How long the batch ran, and with it the game that it waited for.
    std::optional<GameEnd> EndOfLastGame() override;

    /// "winhlp32.exe", wherever the system finds it.
    Error StartHelpViewer(std::string_view path) override;

  private:
    Error Watch(Result<StartedProcess> started);

    Files& disk_;
    StartedProcess lastGame_;
};

}  // namespace lv
