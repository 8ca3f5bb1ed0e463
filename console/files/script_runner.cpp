#include "console/files/script_runner.h"

#include <algorithm>
#include <utility>

#include "console/command_words.h"
#include "console/console_script.h"

namespace lv {

namespace {

constexpr TextView kConfig = "config.cfg";
constexpr TextView kAsItIs = "pls";  // behind a name: no other is taken in its place

bool IsEarly(TextView command) {
    return StartsWithText(command, "set ");
}

bool HasEarlySets(Console console) {
    return std::ranges::any_of(AllStartSteps(), [&](const StartStep& each) {
        return each.Of == console && each.Sort == StartSort::EarlySets;
    });
}

}  // namespace

ScriptRunner::ScriptRunner(Files& disk, const StartRequest& request)
    : request_(request),
      console_(request.Played.Of),
      rules_(RulesOf(console_)),
      exec_(ExecRulesOf(console_)),
      engine_(FilesOfEngine(request.Played.Engine)),
      hasEarlySets_(HasEarlySets(console_)),
      finder_(disk, SearchPath(disk, request.Played), exec_, request.Given),
      buffer_(rules_, exec_.EndsScripts),
      spellings_(rules_.Cases) {}

std::size_t ScriptRunner::DepthBelow(std::size_t script) const {
    return script == kNoScript ? 0 : run_.Scripts[script].Depth + 1;
}

std::size_t ScriptRunner::Note(RunScript script) {
    run_.Scripts.push_back(std::move(script));
    return run_.Scripts.size() - 1;
}

StartRun ScriptRunner::TakeResult() {
    run_.Places = finder_.Places();
    run_.UnreadArchives = finder_.UnreadArchives();
    run_.RanCommandLine = run_.RanCommandLine || request_.Commands.empty();
    run_.IsSure = exec_.IsSure;
    return std::move(run_);
}

void ScriptRunner::RunLines(TextView lines, std::size_t script, bool mayLack) {
    mayLack_ = mayLack;
    buffer_.Append(lines, script);
    RunBuffer();
}

void ScriptRunner::EndLine() {
    buffer_.EndLine();
    RunBuffer();
}

void ScriptRunner::RunBuffer() {
    BufferedCommand command;
    while (!run_.IsCutOff && buffer_.Next(command)) {
        Execute(command);
        run_.IsCutOff = run_.IsCutOff || run_.Set.SetterCount() > kMostSetters;
    }
}

void ScriptRunner::Execute(const BufferedCommand& command) {
    const TextView first = command.Command.Words.front();
    if (RunsScript(first)) {
        Exec(command);
    } else if (SameText(first, "stuffcmds")) {
        InsertCommandLine(false, command.Script, command.Line);
    } else if (UseOfWord(first) == WordUse::Command || !RunAlias(command)) {
        TakeEffects(command);
    }
}

bool ScriptRunner::RunAlias(const BufferedCommand& command) {
    const Text name = LowerCase(command.Command.Words.front());
    const SetThing* const alias = run_.Set.Find(EffectKind::Alias, name);
    if (alias == nullptr || !alias->Setters.back().IsSet) {
        return false;
    }
    const Text& body = alias->Setters.back().Value;
    if (command.AliasDepth < kDeepestAlias && aliasBytes_ + body.size() <= kMostAliasBytes) {
        aliasBytes_ += body.size() + 1;
        buffer_.InsertAlias(alias->Name, body, command);
    }
    return true;
}

void ScriptRunner::TakeEffects(const BufferedCommand& command) {
    const ScriptEffects effects = ConsoleEffects(command.Command.Raw, console_);
    Setter from{.Script = command.Script, .Line = command.Line, .Alias = command.Alias};
    from.Source = command.Command.Whole;
    if (effects.UnbindsAll) {
        run_.Set.FreeAll(EffectKind::Bind, from);
    }
    if (effects.UnaliasesAll) {
        run_.Set.FreeAll(EffectKind::Alias, from);
        spellings_.Clear();
    }
    Put(effects.Binds, EffectKind::Bind, from);
    Put(effects.Aliases, EffectKind::Alias, from);
    Put(effects.Settings, EffectKind::Setting, from);
}

void ScriptRunner::Put(const EffectTable& table, EffectKind kind, const Setter& from) {
    for (std::size_t i = 0; i < table.All().size(); ++i) {
        const Effect& effect = table.All()[i];
        Setter setter = from;
        setter.Value = effect.Value;
        setter.IsSet = effect.IsSet;
        if (from.Line == 0) {
            setter.Line = effect.Line;
            setter.Source = effect.Source;
        }
        if (kind == EffectKind::Alias) {
            PutAlias(table.IdentityAt(i), effect, std::move(setter));
        } else {
            run_.Set.Put(kind, table.IdentityAt(i), effect.Name, std::move(setter));
        }
    }
}

/// The last setter is the one whose body a call runs: it may be of another spelling.
void ScriptRunner::PutAlias(const Text& identity, Effect alias, Setter setter) {
    const std::size_t turn = aliasSetters_.size();
    const Text name = alias.Name;
    alias.Turn = turn;
    aliasSetters_.push_back(setter);
    run_.Set.Put(EffectKind::Alias, identity, name, std::move(setter));
    const Effect runs = spellings_.Put(std::move(alias));
    if (runs.Turn != turn) {
        run_.Set.Put(EffectKind::Alias, identity, runs.Name, aliasSetters_[runs.Turn]);
    }
}

void ScriptRunner::Exec(const BufferedCommand& command) {
    const std::vector<TextView>& words = command.Command.Words;
    const bool isConfig = SameText(words.front(), "cfg_load");
    if (words.size() < 2 || (isConfig && console_ != Console::EzQuake)) {
        return;  // shown, or unknown
    }
    const bool asItIs = words.size() == 3 && words[2] == kAsItIs;
    if (exec_.OneWord && words.size() > 2 && !asItIs) {
        Enter({Text(words[1]),
               {},
               {},
               ScriptFate::Refused,
               DepthBelow(command.Script),
               command.Script,
               command.Line,
               false},
              std::nullopt);
        return;
    }
    if (!isConfig && !asItIs && TakeOtherConfig(command)) {
        return;
    }
    if (isConfig) {
        Load(command, Join("configs/", words[1]), Lookup::LooseFiles);
    } else {
        Load(command, Text(words[1]), Lookup::Anywhere);
    }
}

/// Some engines have their own in the place of "config.cfg", or behind it.
bool ScriptRunner::TakeOtherConfig(const BufferedCommand& command) {
    if (engine_.Config.empty() || !SameText(command.Command.Words[1], kConfig) || !finder_.Find(engine_.Config)) {
        return false;
    }
    const Text first = engine_.AlsoConfig ? Join("exec ", kConfig, Blank, kAsItIs, "\n") : Text();
    buffer_.InsertLines(Join(first, "exec ", engine_.Config, "\n"), command.Script, command.Line);
    return true;
}

void ScriptRunner::Load(const BufferedCommand& command, Text name, Lookup where) {
    RunScript script;
    script.Depth = DepthBelow(command.Script);
    script.By = command.Script;
    script.ByLine = command.Line;
    script.MayLack = command.Script == kNoScript && mayLack_;
    const bool isPattern = exec_.Patterns && name.find_first_of("*?") != Text::npos;
    auto found = isPattern ? std::nullopt : finder_.Find(name, where);
    script.Fate = isPattern ? ScriptFate::IsPattern : ScriptFate::Missing;
    script.Name = std::move(name);
    Enter(std::move(script), std::move(found));
}

void ScriptRunner::Enter(RunScript script, std::optional<FoundScript> found) {
    if (run_.Scripts.size() >= kMostRunScripts) {
        run_.IsCutOff = true;
        return;
    }
    if (found) {
        script.Path = std::move(found->Path);
        script.Inner = std::move(found->Inner);
        script.Fate = ScriptFate::Ran;
        if (found->IsUnread) {
            script.Fate = ScriptFate::Unread;
        } else if (IsBeingRun(script)) {
            script.Fate = ScriptFate::Loop;
        } else if (script.Depth > kDeepestScript) {
            script.Fate = ScriptFate::TooDeep;
        } else if (!request_.RunsLongOnes && rules_.Buffer > 0 && found->Content.size() > rules_.Buffer) {
            script.Fate = ScriptFate::TooLong;
        } else {
            bytes_ += found->Content.size();
            run_.IsCutOff = bytes_ > kMostRunBytes;
        }
    }
    const bool runs = script.Fate == ScriptFate::Ran && !run_.IsCutOff;
    run_.Scripts.push_back(std::move(script));
    if (runs) {
        buffer_.InsertScript(std::move(found->Content), run_.Scripts.size() - 1);
    }
}

bool ScriptRunner::IsBeingRun(const RunScript& script) const {
    for (std::size_t by = script.By; by != kNoScript; by = run_.Scripts[by].By) {
        const RunScript& outer = run_.Scripts[by];
        if (!outer.Path.empty() && SameText(outer.Path, script.Path) && SameText(outer.Inner, script.Inner)) {
            return true;
        }
    }
    return false;
}

void ScriptRunner::InsertCommandLine(bool early, std::size_t by, std::size_t line) {
    if (!early && std::exchange(run_.RanCommandLine, true)) {
        return;
    }
    Text lines;
    for (const Text& command : request_.Commands) {
        if (!hasEarlySets_ || IsEarly(command) == early) {
            lines.append(command.substr(0, command.find_first_of("\r\n"))).append("\n");
        }
    }
    if (lines.empty()) {
        return;
    }
    run_.Scripts.push_back({"the command line", {}, {}, ScriptFate::Ran, DepthBelow(by), by, line, false});
    buffer_.InsertLines(std::move(lines), run_.Scripts.size() - 1, 1);
}

void ScriptRunner::RunCommandLine(bool early) {
    EndLine();
    InsertCommandLine(early, kNoScript, 0);
    RunBuffer();
}

void ScriptRunner::RunFound(Text name, FoundScript found) {
    EndLine();
    Enter({std::move(name), {}, {}, ScriptFate::Ran, 0, kNoScript, 0, true}, std::move(found));
    RunBuffer();
    EndLine();
}

void ScriptRunner::RunIni(Text name, const std::optional<FoundScript>& found, bool mayLack) {
    run_.RanCommandLine = true;
    RunScript script{std::move(name), {}, {}, ScriptFate::Missing, 0, kNoScript, 0, mayLack};
    if (found) {
        script.Path = found->Path;
        script.Fate = found->IsUnread ? ScriptFate::Unread : ScriptFate::Ran;
    }
    const Setter from{.Script = Note(std::move(script))};
    const ScriptEffects effects = EffectsOf(found ? found->Content : Text(), console_);
    Put(effects.Binds, EffectKind::Bind, from);
    Put(effects.Aliases, EffectKind::Alias, from);
    Put(effects.Settings, EffectKind::Setting, from);
}

}  // namespace lv
