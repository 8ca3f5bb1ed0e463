// commands/dry_run/rehearsed_programs.h
//
// The programs of a dry run: what would be started is planned and noted, and nothing is.

#pragma once

#include <optional>

#include "platform/files.h"
#include "platform/processes.h"
#include "platform/user_registry.h"

namespace lv {

class RehearsedPrograms : public Processes {
  public:
    /// `disk` has what would have been written; both outlive it.
    RehearsedPrograms(Processes& below, Files& disk) : below_(below), disk_(disk) {}

    LineReader ReaderOf(std::string_view directory, std::string_view command, std::string_view program) override {
        return below_.ReaderOf(directory, command, program);
    }
    using Processes::StartBatch;
    Error StartBatch(std::string_view directory, std::string_view name, const BatchCommand& known) override {
        Plan = below_.PlanStart(disk_, directory, name, known);
        return {};
    }
    Error StartProgram(std::string_view, const std::vector<std::string>&) override { return {}; }
    bool HasRunnerFor(std::string_view program) override { return below_.HasRunnerFor(program); }
    bool RunsAsRoot() override { return below_.RunsAsRoot(); }

    /// Of the batch that would have been started; nothing if it had not come to that.
    std::optional<Result<StartPlan>> Plan;

  private:
    Processes& below_;
    Files& disk_;
};

/// The registry of other programs, which is only read.
class RehearsedRegistry : public UserRegistry {
  public:
    explicit RehearsedRegistry(UserRegistry& below) : below_(below) {}

    Result<RegistryValue> Query(std::string_view path, std::string_view name) override {
        return below_.Query(path, name);
    }
    std::vector<Result<RegistryValue>> QueryAll(std::span<const RegistryPlace> places) override {
        return below_.QueryAll(places);
    }
    Error Set(std::string_view, std::string_view, const RegistryValue&) override {
        ++Writes;
        return {};
    }

    std::size_t Writes = 0;

  private:
    UserRegistry& below_;
};

}  // namespace lv
