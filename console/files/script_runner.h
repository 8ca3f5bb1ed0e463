// console/files/script_runner.h
//
// Runs what a console has in its buffer: commands, the aliases that they call, and the scripts that they execute.

#pragma once

#include "console/alias_spellings.h"
#include "console/files/command_buffer.h"
#include "console/files/start_run.h"

namespace lv {

class ScriptRunner {
  public:
    /// Both outlive it.
    ScriptRunner(Files& disk, const StartRequest& request);

    /// Commands of the engine's own, or of a script. `mayLack` is noted of the scripts that the engine executes.
    void RunLines(TextView lines, std::size_t script = kNoScript, bool mayLack = false);
    /// A last line that has no end ends here.
    void EndLine();
    /// A script of the engine's own that has been found already.
    void RunFound(Text name, FoundScript found);
    /// All of an ini. `found` may be none.
    void RunIni(Text name, const std::optional<FoundScript>& found, bool mayLack);
    /// Its "+set" alone, or all else. Where the console knows no early ones, they are no exception. The latter is run
    /// once only.
    void RunCommandLine(bool early);

    ScriptFinder& Finder() { return finder_; }
    [[nodiscard]] const std::vector<RunScript>& Scripts() const { return run_.Scripts; }
    /// Makes an entry that nobody runs, and says where it is.
    std::size_t Note(RunScript script);
    StartRun TakeResult();

  private:
    void RunBuffer();
    void Execute(const BufferedCommand& command);
    bool RunAlias(const BufferedCommand& command);
    void TakeEffects(const BufferedCommand& command);
    void Put(const EffectTable& table, EffectKind kind, const Setter& from);
    void PutAlias(const Text& identity, Effect alias, Setter setter);
    void Exec(const BufferedCommand& command);
    bool TakeOtherConfig(const BufferedCommand& command);
    void Load(const BufferedCommand& command, Text name, Lookup where);
    void Enter(RunScript script, std::optional<FoundScript> found);
    void InsertCommandLine(bool early, std::size_t by, std::size_t line);
    [[nodiscard]] bool IsBeingRun(const RunScript& script) const;
    [[nodiscard]] std::size_t DepthBelow(std::size_t script) const;

    const StartRequest& request_;
    Console console_;
    const ConsoleRules& rules_;
    const ExecRules& exec_;
    const EngineFiles& engine_;
    bool hasEarlySets_;
    ScriptFinder finder_;
    CommandBuffer buffer_;
    StartRun run_;
    AliasSpellings spellings_;
    std::vector<Setter> aliasSetters_;  // in their turns
    bool mayLack_ = false;
    std::size_t bytes_ = 0;
    std::size_t aliasBytes_ = 0;
};

}  // namespace lv
