// console/checks/alias_graph.h
//
// What aliases call, and who calls them.

#pragma once

#include <cstdint>
#include <span>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "console/console_rules.h"

namespace lv {

/// Of one graph: beyond it bodies are not looked into.
constexpr std::size_t kMostGraphBytes = 4U << 20U;
constexpr std::size_t kMostGraphCalls = 100'000;

/// A definition, or a key and its command.
struct NamedBody {
    Text Name;
    Text Body;
    bool IsKey = false;
    std::size_t Script = 0;  // whatever the caller means by it
    std::size_t Line = 0;
};

enum class CallKind {
    Runs,
    OnRelease,  // "-zoom", of a key that calls "+zoom"
    Defines,    // gives it another body
    Binds,      // has a key call it
};

struct AliasCall {
    std::size_t Other = 0;  // who is called, or who calls
    CallKind How = CallKind::Runs;
};

struct AliasNode {
    Text Name;
    bool IsKey = false;
    std::vector<NamedBody> Bodies;  // of one that is defined anew all of them, those in other bodies too
    std::vector<AliasCall> Calls;   // each once
    std::vector<AliasCall> Callers;
    bool CallsItself = false;  // by whatever way
};

/// Keys and aliases in the order of their first bodies. An alias that several bodies are known of may call whatever any
/// of them calls.
class AliasGraph {
  public:
    AliasGraph(std::span<const NamedBody> bodies, Console console);

    [[nodiscard]] const std::vector<AliasNode>& Nodes() const { return nodes_; }
    /// In any letter case; null without one.
    [[nodiscard]] const AliasNode* FindAlias(TextView name) const;
    /// A way from an alias that calls itself back to it: "a", "b", "a". Empty for others.
    [[nodiscard]] std::vector<Text> LoopOf(TextView name) const;

  private:
    std::size_t NodeOf(const NamedBody& body);
    void FindBodies();
    void FindCalls(std::size_t node);
    void FindCallsOf(TextView body, std::size_t node);
    void AddCall(std::size_t from, TextView name, CallKind how);
    void MarkLoops();

    Console console_;
    std::vector<AliasNode> nodes_;
    std::unordered_map<Text, std::size_t> places_;  // keys behind a "="
    std::unordered_set<std::uint64_t> known_;       // calls
    std::size_t bytes_ = 0;
    std::size_t calls_ = 0;
};

/// A row of a tree, which is opened row by row.
struct TreeRow {
    std::size_t Node = 0;
    CallKind How = CallKind::Runs;
    bool IsLoop = false;  // it stands above itself already, and opens no further
    bool HasRows = false;
};

enum class TreeOf { Calls, Callers };

/// What stands below the last node of the path, which begins at a node of the root.
std::vector<TreeRow> RowsBelow(const AliasGraph& graph, std::span<const std::size_t> path, TreeOf tree);

}  // namespace lv
