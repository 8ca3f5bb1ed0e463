#include "console/checks/script_check.h"

#include <algorithm>

#include "console/checks/engine_words.h"
#include "console/checks/named_bodies.h"
#include "console/command_words.h"
#include "console/console_commands.h"
#include "console/console_script.h"
#include "console/files/exec_rules.h"
#include "console/key_names.h"

namespace lv {

namespace {

constexpr int kDeepestBody = 2;

struct NameLimit {
    Console Of;
    std::size_t Most;
};

constexpr std::size_t kMostNameLetters = 15;

constexpr NameLimit kNameLimits[] = {
    {Console::DarkPlaces, 127},
    {Console::Fte, 63},
    {Console::HalfLife, 31},
};

struct OwnCommand {
    TextView Word;
    unsigned Bit;
};

/// Those that not every console has.
constexpr OwnCommand kOwnCommands[] = {
    {"set", has::kSet},   {"seta", has::kSeta},       {"setu", has::kSetu},
    {"sets", has::kSetu}, {"unalias", has::kUnalias}, {"unaliasall", has::kUnaliasAll},
};

/// As it is written, without any limit.
ConsoleRules WithoutLimits(const ConsoleRules& rules) {
    ConsoleRules free = rules;
    free.Line = 0;
    free.Words = 0;
    free.Word = 0;
    free.OddQuoteDrops = false;
    return free;
}

std::size_t NameLimitOf(Console console) {
    const auto* const row = std::ranges::find(kNameLimits, console, &NameLimit::Of);
    return row == std::end(kNameLimits) ? kMostNameLetters : row->Most;
}

class Check {
  public:
    explicit Check(const CheckedScript& script)
        : script_(script), rules_(RulesOf(script.Of)), graph_(NamedBodiesOf(script.Content, script.Of), script.Of) {}

    std::vector<Finding> Run() {
        const TextView all = script_.Content;
        if (rules_.Buffer > 0 && all.size() > rules_.Buffer) {
            Add(FindingKind::LongScript, 1, std::to_string(all.size()), std::to_string(rules_.Buffer));
        }
        const ConsoleRules free = WithoutLimits(rules_);
        CommandReader reader(all, free);
        ConsoleCommand command;
        while (findings_.size() < kMostFindings && reader.Next(command)) {
            CheckShape(command);
            CheckMeaning(command.Words, command.Line, 0);
            CheckEffects(command);
        }
        CheckEnd();
        CheckAliases();
        std::ranges::stable_sort(findings_, {}, &Finding::Line);
        return std::move(findings_);
    }

  private:
    using Words = std::vector<TextView>;

    void Add(FindingKind kind, std::size_t line, TextView about = {}, TextView second = {}) {
        if (findings_.size() < kMostFindings) {
            findings_.push_back(MakeFinding(kind, script_.File, line, about, second, rules_.Name));
        }
    }
    void CheckShape(const ConsoleCommand& command);
    void CheckLimits(const ConsoleCommand& command);
    void CheckMeaning(const Words& words, std::size_t line, int depth);
    void CheckBind(const Words& words, std::size_t line, int depth);
    void CheckExec(const Words& words, std::size_t line);
    void CheckBody(const Words& words, std::size_t line, int depth);
    void CheckEffects(const ConsoleCommand& command);
    void CheckEnd();
    void CheckAliases();
    [[nodiscard]] bool IsKnown(TextView word) const;

    const CheckedScript& script_;
    const ConsoleRules& rules_;
    AliasGraph graph_;
    std::vector<Finding> findings_;
    std::unordered_set<Text> toldWords_;  // that are unknown: each once
};

void Check::CheckShape(const ConsoleCommand& command) {
    if (command.HasOddQuote && (rules_.OddQuoteDrops || !command.IsQuoteInComment)) {
        Add(rules_.OddQuoteDrops ? FindingKind::OddQuoteDrops : FindingKind::OddQuote, command.Line);
    }
    if (command.IsBehindComment) {
        Add(FindingKind::RunsInComment, command.Line, command.Whole);
    }
    CheckLimits(command);
}

void Check::CheckLimits(const ConsoleCommand& command) {
    if (rules_.Line > 0 && command.Length > rules_.Line) {
        const FindingKind kind = rules_.Long == LongLine::Overruns ? FindingKind::LongLineOverruns
                                 : rules_.Long == LongLine::Cut    ? FindingKind::LongLineCut
                                                                   : FindingKind::LongLineDropped;
        Add(kind, command.Line, std::to_string(command.Length), std::to_string(rules_.Line));
    }
    if (rules_.Words > 0 && command.Words.size() > rules_.Words) {
        Add(FindingKind::ManyWords, command.Line, std::to_string(command.Words.size()), std::to_string(rules_.Words));
    }
    const std::size_t longest = std::ranges::max(command.Words, {}, &TextView::size).size();
    if (rules_.Word > 0 && longest > rules_.Word && longest <= rules_.Line) {
        Add(FindingKind::LongWord, command.Line, std::to_string(longest), std::to_string(rules_.Word));
    }
}

bool Check::IsKnown(TextView word) const {
    return UseOfWord(word) != WordUse::Unknown || IsEngineWord(word) || graph_.FindAlias(word) != nullptr ||
           (script_.KnownNames != nullptr && script_.KnownNames->contains(LowerCase(word)));
}

void Check::CheckMeaning(const Words& words, std::size_t line, int depth) {
    const TextView first = words.front();
    const auto* const own =
        std::ranges::find_if(kOwnCommands, [&](const OwnCommand& each) { return SameText(each.Word, first); });
    if (own != std::end(kOwnCommands) && (rules_.Has & own->Bit) == 0 && graph_.FindAlias(first) == nullptr) {
        Add(FindingKind::MissingCommand, line, first);
    } else if (!first.empty() && !IsKnown(first) && toldWords_.insert(LowerCase(first)).second) {
        Add(FindingKind::UnknownWord, line, first);
    }
    if (SameText(first, "exec")) {
        CheckExec(words, line);
    } else if (SameText(first, "bind") || SameText(first, "unbind")) {
        CheckBind(words, line, depth);
    } else if (SameText(first, "alias") && words.size() > 1) {
        if (words[1].size() > rules_.AliasName) {
            Add(FindingKind::LongAliasName, line, words[1], std::to_string(rules_.AliasName));
        }
        CheckBody(words, line, depth);
    }
}

void Check::CheckExec(const Words& words, std::size_t line) {
    if (words.size() < 2) {
        return;
    }
    if (words.size() > 2 && ExecRulesOf(script_.Of).OneWord && words[2] != "pls") {
        Add(FindingKind::ManyExecWords, line, words[1]);
    } else if (script_.IsThere && !script_.IsThere(words[1])) {
        Add(FindingKind::MissingScript, line, words[1]);
    }
}

void Check::CheckBind(const Words& words, std::size_t line, int depth) {
    if (words.size() > 1 && !IsKeyName(script_.Of, words[1])) {
        Add(FindingKind::UnknownKey, line, words[1]);
    }
    if (words.size() > 3 && rules_.Bind == BindWords::One) {
        Add(FindingKind::UnquotedBind, line, words[1]);
    } else {
        CheckBody(words, line, depth);
    }
}

/// The commands of a key or an alias.
void Check::CheckBody(const Words& words, std::size_t line, int depth) {
    if (depth >= kDeepestBody) {
        return;
    }
    Text body;
    for (std::size_t i = 2; i < words.size(); ++i) {
        body.append(i == 2 ? "" : " ").append(words[i]);
    }
    CommandReader reader(body, rules_);
    ConsoleCommand command;
    while (findings_.size() < kMostFindings && reader.Next(command)) {
        CheckMeaning(command.Words, line, depth + 1);
    }
}

void Check::CheckEffects(const ConsoleCommand& command) {
    const std::size_t most = NameLimitOf(script_.Of);
    const TextView first = command.Words.front();
    if (graph_.FindAlias(first) != nullptr || RunsScript(first)) {
        return;
    }
    const ScriptEffects effects = ConsoleEffects(command.Raw, script_.Of);
    for (const Effect& setting : effects.Settings.All()) {
        const bool isName = SameText(setting.Name, "name") || SameText(setting.Name, "_cl_name");
        if (isName && setting.Value.size() > most) {
            Add(FindingKind::LongPlayerName, command.Line, setting.Value, std::to_string(most));
        }
    }
}

void Check::CheckEnd() {
    const ExecRules& exec = ExecRulesOf(script_.Of);
    const TextView open = UnendedCommand(script_.Content, rules_);
    if (!exec.EndsScripts && open.find_first_not_of(" \t\r") != TextView::npos) {
        const auto line = std::count(script_.Content.begin(), script_.Content.end(), '\n');
        Add(FindingKind::OpenEnd, static_cast<std::size_t>(line) + 1);
        if (!exec.IsSure && findings_.back().Kind == FindingKind::OpenEnd) {
            findings_.back().How = Certainty::Perhaps;
        }
    }
}

/// Once for each loop: of the alias in it that comes first.
void Check::CheckAliases() {
    std::unordered_set<Text> told;
    for (const AliasNode& node : graph_.Nodes()) {
        if (!node.CallsItself || findings_.size() >= kMostFindings || told.contains(LowerCase(node.Name))) {
            continue;
        }
        const std::vector<Text> loop = graph_.LoopOf(node.Name);
        bool waits = false;
        Text way;
        for (const Text& name : loop) {
            way.append(way.empty() ? "" : ", ").append(name);
            told.insert(LowerCase(name));
            for (const NamedBody& body : graph_.FindAlias(name)->Bodies) {
                waits = waits || LowerCase(body.Body).find("wait") != Text::npos;
            }
        }
        Add(waits ? FindingKind::CallsItselfAfterWait : FindingKind::CallsItself, node.Bodies.front().Line, node.Name,
            way);
    }
}

}  // namespace

std::vector<Finding> CheckScript(const CheckedScript& script) {
    return script.Of == Console::Unreal ? std::vector<Finding>() : Check(script).Run();
}

}  // namespace lv
