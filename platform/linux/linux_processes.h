// platform/linux/linux_processes.h
//
// Starting games and other programs on Linux. The batch that a launch writes is read, the program that its command
// names is looked at, and one of three roads is taken: a program of this system is started directly with the batch's
// environment, directory and arguments; a Windows program by Wine in the same way; a DOS program runs in DOSBox.
// What is started has forgotten this program: it lives on when this one ends and leaves no zombie behind.
// No text of a batch ever reaches a shell of the host, nor a command processor but for a batch of the user's own.
// Whether the first program on the road could be started is known on return. What it prints and how it ends is kept by
// a helper that stands between (last_game.h) and that this program asks; without that helper it stays unknown.

#pragma once

#include "platform/files.h"
#include "platform/linux/starting/game_start.h"
#include "platform/linux/starting/last_game.h"
#include "platform/processes.h"

namespace lv {

class LinuxProcesses : public Processes {
  public:
    /// The files must outlive this. `places` is for tests; what is left empty there is asked of the environment at
    /// each start.
    explicit LinuxProcesses(Files& disk, HostPlaces places = {}) : disk_(disk), places_(std::move(places)) {}

    using Processes::StartBatch;
    LineReader ReaderOf(std::string_view directory, std::string_view command, std::string_view program) override;
    Error StartBatch(std::string_view directory, std::string_view name, const BatchCommand& known) override;
    Result<StartPlan> PlanStart(Files& disk, std::string_view directory, std::string_view name,
                                const BatchCommand& known) override;
    bool HasRunnerFor(std::string_view program) override;
    /// `program` may also be an absolute path of the host. A name alone is searched on PATH.
    bool RunsAsRoot() override { return geteuid() == 0; }
    Error StartProgram(std::string_view program, const std::vector<std::string>& arguments) override;

    bool WatchesGame() override { return lastGame_.IsWatched(); }
    std::optional<GameEnd> EndOfLastGame() override { return lastGame_.TakeEnd(Places()); }
    std::optional<std::string> LastOutput() override { return OutputOfLastGame(Places()); }

    /// What StartBatch would start, but for the helper.
    Result<HostCommand> PlanBatch(std::string_view directory, std::string_view name, const BatchCommand& known = {});
    /// What StartProgram would start.
    Result<HostCommand> PlanProgram(std::string_view program, const std::vector<std::string>& arguments);

  private:
    [[nodiscard]] HostPlaces Places() const;
    Result<HostCommand> ByRoad(const GameStart& start, const std::vector<GivenWord>& given);

    Files& disk_;
    HostPlaces places_;
    LastGame lastGame_;
};

}  // namespace lv
