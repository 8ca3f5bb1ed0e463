// A start, and what is found in it. The first byte chooses the console; the parts behind it, each up to a character 0,
// are the scripts "quake.rc", "a.cfg" and "b.cfg", and an archive.

#include "console/files/start_run.h"

#include "console/checks/run_check.h"
#include "platform/memory/memory_files.h"
#include "tests/fuzz/readers.h"

namespace lv {

namespace {

void MustBeWhole(const StartRun& run) {
    MustHold(run.Scripts.size() <= kMostRunScripts + 8, "no more scripts than anybody's game runs");
    for (std::size_t i = 0; i < run.Scripts.size(); ++i) {
        const RunScript& script = run.Scripts[i];
        MustHold(script.By == kNoScript || script.By < i, "a script is run by one before it");
        MustHold(script.By != kNoScript || script.Depth == 0, "what the engine runs is at the top");
        MustHold(script.By == kNoScript || script.Depth == run.Scripts[script.By].Depth + 1, "each is one deeper");
        MustHold(script.Depth <= kDeepestScript + 1, "no script is deeper than that");
        MustHold(script.Path.empty() || script.Path.starts_with("C:\\Q\\"), "nothing is read from elsewhere");
    }
    std::size_t setters = 0;
    for (const SetThing& thing : run.Set.All()) {
        MustHold(!thing.Setters.empty(), "somebody sets it");
        MustHold(run.Set.Find(thing.Kind, thing.Identity) == &thing, "it is found by its name");
        setters += thing.Setters.size();
        for (const Setter& setter : thing.Setters) {
            MustHold(setter.Script == kNoScript || setter.Script < run.Scripts.size(), "a script sets it");
        }
    }
    MustHold(setters == run.Set.SetterCount(), "all are counted");
}

}  // namespace

void FuzzStartRun(TextView input) {
    const auto console = static_cast<Console>(TakeChoice(input, AllConsoles().size()));
    MemoryFiles disk;
    disk.AddFile("C:\\secret.cfg", "bind a secret\n");
    for (const TextView name : {"quake.rc", "a.cfg", "b.cfg"}) {
        disk.AddFile(Join("C:\\Q\\ID1\\", name), TakePart(input));
    }
    disk.AddFile("C:\\Q\\ID1\\pak0.pak", input);
    StartRequest request;
    request.Played.Of = console;
    request.Played.Directory = "C:\\Q";
    request.Played.Base = "ID1";
    request.Commands.emplace_back("exec a.cfg");
    MustBeWhole(RunStart(disk, request));
    for (const Finding& finding : CheckScriptsOf(disk, request)) {
        MustHold(finding.Line > 0, "a finding has a line");
        MustHold(finding.Words.find('\n') == Text::npos, "a finding is one line");
    }
}

}  // namespace lv
