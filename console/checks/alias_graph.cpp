#include "console/checks/alias_graph.h"

#include <algorithm>
#include <utility>

#include "console/console_commands.h"
#include "console/key_names.h"

namespace lv {

namespace {

constexpr std::size_t kMostBodies = 64;  // of one alias, that other bodies define
constexpr std::size_t kNowhere = static_cast<std::size_t>(-1);

Text JoinedFrom(const std::vector<TextView>& words, std::size_t first) {
    Text all;
    for (std::size_t i = first; i < words.size(); ++i) {
        all.append(i == first ? "" : " ").append(words[i]);
    }
    return all;
}

/// Whether running it runs the other.
bool IsRun(const AliasCall& call) {
    return call.How == CallKind::Runs;
}

/// Tarjan's components: nodes of one call each other.
class LoopSearch {
  public:
    explicit LoopSearch(std::vector<AliasNode>& nodes) : nodes_(nodes), marks_(nodes.size()) {}

    void Run() {
        for (std::size_t root = 0; root < nodes_.size(); ++root) {
            if (marks_[root].Index == kNowhere) {
                Enter(root);
            }
            while (!way_.empty()) {
                const std::size_t node = way_.back();
                if (marks_[node].Call < nodes_[node].Calls.size()) {
                    Follow(node, nodes_[node].Calls[marks_[node].Call++]);
                } else {
                    Leave(node);
                }
            }
        }
    }

  private:
    struct Mark {
        std::size_t Index = kNowhere;
        std::size_t Lowest = 0;
        std::size_t Call = 0;  // the next one to follow
        bool IsOpen = false;
    };

    void Enter(std::size_t node) {
        marks_[node] = {index_, index_, 0, true};
        ++index_;
        open_.push_back(node);
        way_.push_back(node);
    }

    void Follow(std::size_t node, const AliasCall& call) {
        if (!IsRun(call)) {
            return;
        }
        nodes_[node].CallsItself = nodes_[node].CallsItself || call.Other == node;
        if (marks_[call.Other].Index == kNowhere) {
            Enter(call.Other);
        } else if (marks_[call.Other].IsOpen) {
            marks_[node].Lowest = std::min(marks_[node].Lowest, marks_[call.Other].Index);
        }
    }

    void Leave(std::size_t node) {
        way_.pop_back();
        if (!way_.empty()) {
            marks_[way_.back()].Lowest = std::min(marks_[way_.back()].Lowest, marks_[node].Lowest);
        }
        if (marks_[node].Lowest != marks_[node].Index) {
            return;
        }
        const bool several = open_.back() != node;
        for (bool more = true; more;) {
            const std::size_t each = open_.back();
            open_.pop_back();
            marks_[each].IsOpen = false;
            nodes_[each].CallsItself = nodes_[each].CallsItself || several;
            more = each != node;
        }
    }

    std::vector<AliasNode>& nodes_;
    std::vector<Mark> marks_;
    std::vector<std::size_t> open_;
    std::vector<std::size_t> way_;
    std::size_t index_ = 0;
};

}  // namespace

AliasGraph::AliasGraph(std::span<const NamedBody> bodies, Console console) : console_(console) {
    for (const NamedBody& body : bodies) {
        nodes_[NodeOf(body)].Bodies.push_back(body);
    }
    FindBodies();
    for (std::size_t i = 0; i < nodes_.size(); ++i) {
        FindCalls(i);
    }
    MarkLoops();
}

std::size_t AliasGraph::NodeOf(const NamedBody& body) {
    const Text key = body.IsKey ? Join("=", KeyIdentity(console_, body.Name)) : LowerCase(body.Name);
    const auto [place, isNew] = places_.try_emplace(key, nodes_.size());
    if (isNew) {
        AliasNode& node = nodes_.emplace_back();
        node.Name = body.Name;
        node.IsKey = body.IsKey;
    }
    return place->second;
}

const AliasNode* AliasGraph::FindAlias(TextView name) const {
    const auto place = places_.find(LowerCase(name));
    return place == places_.end() ? nullptr : &nodes_[place->second];
}

/// The bodies that other bodies define. Those found are looked through in turn.
void AliasGraph::FindBodies() {
    for (std::size_t node = 0; node < nodes_.size(); ++node) {
        for (std::size_t at = 0; at < nodes_[node].Bodies.size(); ++at) {
            const NamedBody body = nodes_[node].Bodies[at];
            bytes_ += body.Body.size();
            if (bytes_ > kMostGraphBytes) {
                return;
            }
            CommandReader reader(body.Body, RulesOf(console_));
            ConsoleCommand command;
            while (reader.Next(command)) {
                const auto& words = command.Words;
                if (words.size() < 3 || !SameText(words[0], "alias")) {
                    continue;
                }
                const NamedBody inner{Text(words[1]), JoinedFrom(words, 2), false, body.Script, body.Line};
                std::vector<NamedBody>& known = nodes_[NodeOf(inner)].Bodies;
                if (known.size() < kMostBodies &&
                    std::ranges::find(known, inner.Body, &NamedBody::Body) == known.end()) {
                    known.push_back(inner);
                }
            }
        }
    }
}

void AliasGraph::FindCalls(std::size_t node) {
    for (std::size_t at = 0; at < nodes_[node].Bodies.size() && calls_ < kMostGraphCalls; ++at) {
        FindCallsOf(nodes_[node].Bodies[at].Body, node);
    }
}

void AliasGraph::FindCallsOf(TextView body, std::size_t node) {
    CommandReader reader(body, RulesOf(console_));
    ConsoleCommand command;
    while (calls_ < kMostGraphCalls && reader.Next(command)) {
        const auto& words = command.Words;
        AddCall(node, words[0], CallKind::Runs);
        if (nodes_[node].IsKey && words[0].starts_with('+')) {
            AddCall(node, Join("-", words[0].substr(1)), CallKind::OnRelease);
        }
        if (words.size() > 2 && SameText(words[0], "alias")) {
            AddCall(node, words[1], CallKind::Defines);
        }
        if (words.size() > 2 && SameText(words[0], "bind")) {
            const Text bound = JoinedFrom(words, 2);
            CommandReader inner(bound, RulesOf(console_));
            ConsoleCommand called;
            while (calls_ < kMostGraphCalls && inner.Next(called)) {
                AddCall(node, called.Words[0], CallKind::Binds);
            }
        }
    }
}

/// Of an alias that there is.
void AliasGraph::AddCall(std::size_t from, TextView name, CallKind how) {
    const auto place = places_.find(LowerCase(name));
    if (place == places_.end() || nodes_[place->second].IsKey) {
        return;
    }
    ++calls_;
    const std::uint64_t call =
        std::uint64_t{from} << 34U | std::uint64_t{place->second} << 2U | static_cast<unsigned>(how);
    if (known_.insert(call).second) {
        nodes_[from].Calls.push_back({place->second, how});
        nodes_[place->second].Callers.push_back({from, how});
    }
}

void AliasGraph::MarkLoops() {
    LoopSearch(nodes_).Run();
}

/// The shortest one.
std::vector<Text> AliasGraph::LoopOf(TextView name) const {
    const AliasNode* const start = FindAlias(name);
    if (start == nullptr || !start->CallsItself) {
        return {};
    }
    const auto first = static_cast<std::size_t>(start - nodes_.data());
    std::vector<std::size_t> before(nodes_.size(), kNowhere);
    std::vector<std::size_t> reached{first};
    for (std::size_t at = 0; at < reached.size(); ++at) {
        for (const AliasCall& call : nodes_[reached[at]].Calls) {
            if (!IsRun(call) || before[call.Other] != kNowhere) {
                continue;
            }
            before[call.Other] = reached[at];
            reached.push_back(call.Other);
            if (call.Other == first) {
                std::vector<Text> way{start->Name};
                for (std::size_t back = before[first]; back != first; back = before[back]) {
                    way.push_back(nodes_[back].Name);
                }
                way.push_back(start->Name);
                std::ranges::reverse(way);
                return way;
            }
        }
    }
    return {};
}

std::vector<TreeRow> RowsBelow(const AliasGraph& graph, std::span<const std::size_t> path, TreeOf tree) {
    const auto callsOf = [&](std::size_t node) -> const std::vector<AliasCall>& {
        return tree == TreeOf::Calls ? graph.Nodes()[node].Calls : graph.Nodes()[node].Callers;
    };
    std::vector<TreeRow> rows;
    if (path.empty() || path.back() >= graph.Nodes().size()) {
        return rows;
    }
    for (const AliasCall& call : callsOf(path.back())) {
        const bool isLoop = std::ranges::find(path, call.Other) != path.end();
        rows.push_back({call.Other, call.How, isLoop, !isLoop && !callsOf(call.Other).empty()});
    }
    return rows;
}

}  // namespace lv
