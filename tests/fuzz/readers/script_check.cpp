// A script, and the aliases in it. The first byte chooses the console.

#include "console/checks/script_check.h"

#include <algorithm>

#include "console/checks/named_bodies.h"
#include "console/console_commands.h"
#include "tests/fuzz/readers.h"

namespace lv {

void FuzzScriptCheck(TextView input) {
    const auto console = static_cast<Console>(TakeChoice(input, AllConsoles().size()));
    const auto lines = static_cast<std::size_t>(std::count(input.begin(), input.end(), '\n')) +
                       static_cast<std::size_t>(std::count(input.begin(), input.end(), '\r')) + 1;
    const auto isThere = [](TextView name) { return name.size() % 2 == 0; };
    const auto findings =
        CheckScript({.File = "a", .Content = input, .Of = console, .KnownNames = nullptr, .IsThere = isThere});
    MustHold(findings.size() <= kMostFindings, "there are only so many");
    for (const Finding& finding : findings) {
        MustHold(finding.Line > 0 && finding.Line <= lines, "a finding is in a line of the script");
        MustHold(finding.Words.find('\n') == Text::npos, "a finding is one line");
    }

    const AliasGraph graph(NamedBodiesOf(input, console), console);
    for (const AliasNode& node : graph.Nodes()) {
        for (const AliasCall& call : node.Calls) {
            MustHold(call.Other < graph.Nodes().size(), "who is called is there");
        }
        if (!node.IsKey) {
            const std::vector<Text> loop = graph.LoopOf(node.Name);
            MustHold(loop.empty() != node.CallsItself, "who calls itself does it by some way");
            MustHold(loop.empty() || (loop.front() == loop.back() && loop.size() > 1), "a loop ends where it begins");
        }
    }
    const TextView open = UnendedCommand(input, RulesOf(console));
    MustHold(open.empty() || open.find('\n') == TextView::npos, "what is open is one line");
}

}  // namespace lv
