#include "console/checks/run_check.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace lv {

namespace {

struct FateRow {
    ScriptFate Fate;
    FindingKind Kind;
};

constexpr FateRow kFates[] = {
    {ScriptFate::Missing, FindingKind::MissingScript},
    {ScriptFate::Loop, FindingKind::ScriptLoop},
    {ScriptFate::Refused, FindingKind::ManyExecWords},
    {ScriptFate::Unread, FindingKind::UnreadScript},
};

bool IsPlayers(const RunScript& script) {
    return !script.Path.empty() && script.Inner.empty();
}

/// The rc of a game runs what most players lack.
bool IsRc(const RunScript& script) {
    return LowerCase(script.Name).ends_with(".rc");
}

/// The games write these anew themselves, with the settings that they know.
bool IsWrittenByGame(const RunScript& script, TextView engine) {
    return SameText(script.Name, "config.cfg") || SameText(script.Name, FilesOfEngine(engine).Config);
}

/// The launcher writes what it knows.
bool IsPlanned(const RunScript& script, const StartRequest& request) {
    return std::ranges::any_of(
        request.Given, [&](const GivenScript& each) { return each.IsPlanned && SameText(each.Path, script.Path); });
}

/// Whether it makes a setting that was none, or is one that knows them all: no word is known by being used.
bool Vouches(const Setter& setter, const StartRun& run, const StartRequest& request) {
    if (setter.Script == kNoScript || !IsPlayers(run.Scripts[setter.Script])) {
        return true;
    }
    const RunScript& script = run.Scripts[setter.Script];
    if (IsWrittenByGame(script, request.Played.Engine) || IsPlanned(script, request)) {
        return true;
    }
    const Text command = LowerCase(setter.Source.substr(0, setter.Source.find_first_of(" \t")));
    constexpr TextView kMakes[] = {"set", "seta", "sets", "setu"};
    return std::ranges::find(kMakes, command) != std::end(kMakes);
}

bool IsKnownBy(const SetThing& thing, const StartRun& run, const StartRequest& request) {
    return thing.Kind == EffectKind::Alias ||
           (thing.Kind == EffectKind::Setting &&
            std::ranges::any_of(thing.Setters, [&](const Setter& each) { return Vouches(each, run, request); }));
}

/// In the order of the lines. What a line is told for by the run and by itself, or twice by the run, is told once.
void Arrange(std::vector<Finding>& findings) {
    std::ranges::stable_sort(findings, {}, [](const Finding& each) { return std::pair(each.File, each.Line); });
    std::unordered_set<Text> told;
    std::erase_if(findings, [&](const Finding& each) { return !told.insert(LowerCase(FindingLine(each))).second; });
    findings.resize(std::min(findings.size(), kMostFindings));
}

/// Which scripts "exec" would find, whoever calls it and when.
class ThereScripts {
  public:
    /// `finder` outlives it.
    ThereScripts(ScriptFinder& finder, const PlayedGame& played)
        : finder_(finder),
          patterns_(ExecRulesOf(played.Of).Patterns),
          ownConfig_(FilesOfEngine(played.Engine).Config) {}

    bool Has(TextView name) {
        const auto [known, isNew] = known_.try_emplace(Text(name));
        if (isNew) {
            known->second = IsUnknown(name) || finder_.Find(name).has_value() ||
                            (SameText(name, "config.cfg") && !ownConfig_.empty() && finder_.Find(ownConfig_));
        }
        return known->second;
    }

  private:
    /// A pattern, or the name of a variable's making.
    [[nodiscard]] bool IsUnknown(TextView name) const {
        return (patterns_ && name.find_first_of("*?") != TextView::npos) || name.find('$') != TextView::npos;
    }

    ScriptFinder& finder_;
    bool patterns_;
    TextView ownConfig_;
    std::unordered_map<Text, bool> known_;
};

/// Another of its name may lie in a directory that is searched ahead.
std::optional<FoundScript> FindThat(ScriptFinder& finder, const RunScript& script, std::size_t levels) {
    for (std::size_t level = 0; level < levels; ++level) {
        auto found = finder.Find(script.Name, Lookup::LooseFiles, level);
        if (found && SameText(found->Path, script.Path)) {
            return found;
        }
    }
    return std::nullopt;
}

/// What the scripts of the run define and set, in lower case.
std::unordered_set<Text> NamesOf(const StartRun& run, const StartRequest& request) {
    std::unordered_set<Text> names;
    for (const SetThing& thing : run.Set.All()) {
        if (IsKnownBy(thing, run, request)) {
            names.insert(LowerCase(thing.Identity));
        }
    }
    return names;
}

}  // namespace

std::vector<Finding> CheckRun(const StartRun& run, Console console) {
    std::vector<Finding> findings;
    for (const RunScript& script : run.Scripts) {
        const auto* const row = std::ranges::find(kFates, script.Fate, &FateRow::Fate);
        if (row == std::end(kFates) || script.By == kNoScript || findings.size() >= kMostFindings) {
            continue;
        }
        const RunScript& by = run.Scripts[script.By];
        if (IsPlayers(by) && !IsRc(by)) {
            findings.push_back(MakeFinding(row->Kind, by.Path, script.ByLine, script.Name, {}, RulesOf(console).Name));
        }
    }
    return findings;
}

std::vector<Finding> CheckScriptsOf(Files& disk, const StartRequest& start) {
    StartRequest request = start;
    request.RunsLongOnes = true;  // they are to be shortened, and then have all their other faults still
    const StartRun run = RunStart(disk, request);
    const Console console = request.Played.Of;
    const std::unordered_set<Text> names = NamesOf(run, request);
    const std::size_t levels = GameDirectories(request.Played).size();
    ScriptFinder finder(disk, run.Places, ExecRulesOf(console), request.Given);
    ThereScripts there(finder, request.Played);
    std::vector<Finding> findings = CheckRun(run, console);
    std::unordered_set<Text> seen;
    for (const RunScript& script : run.Scripts) {
        if (!IsPlayers(script) || !seen.insert(LowerCase(script.Path)).second) {
            continue;
        }
        const auto found = FindThat(finder, script, levels);
        if (!found || found->IsUnread) {
            continue;
        }
        CheckedScript checked{script.Path, found->Content, console, &names};
        if (!IsRc(script)) {
            checked.IsThere = [&there](TextView name) { return there.Has(name); };
        }
        std::ranges::move(CheckScript(checked), std::back_inserter(findings));
    }
    Arrange(findings);
    return findings;
}

std::vector<Finding> CheckScriptBeside(Files& disk, const StartRequest& request, TextView path, TextView content) {
    const StartRun run = RunStart(disk, request);
    const std::unordered_set<Text> names = NamesOf(run, request);
    ScriptFinder finder(disk, run.Places, ExecRulesOf(request.Played.Of), request.Given);
    ThereScripts there(finder, request.Played);
    return CheckScript({path, content, request.Played.Of, &names, [&there](TextView name) { return there.Has(name); }});
}

}  // namespace lv
