#include "console/checks/alias_graph.h"

#include <gtest/gtest.h>

#include "console/checks/named_bodies.h"

namespace lv {
namespace {

AliasGraph GraphOf(TextView script) {
    return {NamedBodiesOf(script, Console::Quake), Console::Quake};
}

Text Listed(const AliasGraph& graph, const std::vector<AliasCall>& calls) {
    constexpr TextView kKinds[] = {"", "release ", "defines ", "binds "};
    Text all;
    for (const AliasCall& call : calls) {
        all += Join(all.empty() ? "" : ", ", kKinds[static_cast<int>(call.How)], graph.Nodes()[call.Other].Name);
    }
    return all;
}

Text CallsOf(const AliasGraph& graph, TextView name) {
    return Listed(graph, graph.FindAlias(name)->Calls);
}

Text CallersOf(const AliasGraph& graph, TextView name) {
    return Listed(graph, graph.FindAlias(name)->Callers);
}

Text Joined(const std::vector<Text>& names) {
    Text all;
    for (const Text& name : names) {
        all += Join(all.empty() ? "" : ">", name);
    }
    return all;
}

/// The tree below a node, opened down to a depth: "b(c d*)", a "*" where it would go round.
Text TreeBelow(const AliasGraph& graph, std::vector<std::size_t> path, TreeOf tree, int depth) {
    Text all;
    for (const TreeRow& row : RowsBelow(graph, path, tree)) {
        all += Join(all.empty() ? "" : " ", graph.Nodes()[row.Node].Name, row.IsLoop ? "*" : "");
        if (row.HasRows) {
            path.push_back(row.Node);
            all += Join("(", depth > 0 ? TreeBelow(graph, path, tree, depth - 1) : "...", ")");
            path.pop_back();
        }
    }
    return all;
}

}  // namespace

TEST(AliasGraph, HasWhatEachCallsAndWhoCallsIt) {
    const AliasGraph graph = GraphOf("alias a \"b; wait; B; c\"\nalias b \"echo hi\"\nalias c b\nbind x \"a; +b\"\n");
    EXPECT_EQ(CallsOf(graph, "A"), "b, c");
    EXPECT_EQ(CallsOf(graph, "b"), "");
    EXPECT_EQ(CallersOf(graph, "b"), "a, c");
    EXPECT_EQ(CallersOf(graph, "a"), "x");
    EXPECT_EQ(graph.FindAlias("x"), nullptr) << "a key is no alias";
    EXPECT_EQ(graph.FindAlias("echo"), nullptr);
}

TEST(AliasGraph, KnowsTheAliasOfARelease) {
    const AliasGraph graph =
        GraphOf("alias +zoom \"fov 30\"\nalias -zoom \"fov 90\"\nbind mouse2 +zoom\nalias a +zoom\n");
    EXPECT_EQ(CallersOf(graph, "-zoom"), "release mouse2");
    EXPECT_EQ(CallersOf(graph, "+zoom"), "mouse2, a");
}

TEST(AliasGraph, CountsAllBodiesOfAnAlias) {
    const AliasGraph graph =
        GraphOf("alias t t1\nalias t1 \"fov 30; alias t t2\"\nalias t2 \"fov 90; alias t t1\"\nbind F1 t\n");
    EXPECT_EQ(CallsOf(graph, "t"), "t1, t2");
    EXPECT_EQ(CallsOf(graph, "t1"), "defines t");
    EXPECT_EQ(graph.FindAlias("t")->Bodies.size(), 2U);
    EXPECT_FALSE(graph.FindAlias("t")->CallsItself) << "a switch goes no way round";
}

TEST(AliasGraph, KnowsWhoHasAKeyCallIt) {
    EXPECT_EQ(CallersOf(GraphOf("alias a \"bind x b\"\nalias b echo\n"), "b"), "binds a");
}

TEST(AliasGraph, FindsAliasesThatOthersDefine) {
    const AliasGraph graph = GraphOf("alias a \"alias b c; b\"\nalias c a\n");
    EXPECT_EQ(CallsOf(graph, "b"), "c");
    EXPECT_EQ(Joined(graph.LoopOf("b")), "b>c>a>b");
}

TEST(AliasGraph, MarksLoops) {
    const AliasGraph graph = GraphOf("alias a \"b; x\"\nalias b c\nalias c \"x; a\"\nalias x x\nalias y a\n");
    EXPECT_EQ(Joined(graph.LoopOf("a")), "a>b>c>a");
    EXPECT_EQ(Joined(graph.LoopOf("c")), "c>a>b>c");
    EXPECT_EQ(Joined(graph.LoopOf("x")), "x>x");
    EXPECT_EQ(Joined(graph.LoopOf("y")), "");
    EXPECT_FALSE(graph.FindAlias("y")->CallsItself);
    EXPECT_EQ(Joined(graph.LoopOf("nobody")), "");
}

TEST(AliasGraph, IsATreeThatEndsAtEachLoop) {
    const AliasGraph graph = GraphOf("alias a \"b; c\"\nalias b \"c; a\"\nalias c echo\n");
    EXPECT_EQ(TreeBelow(graph, {0}, TreeOf::Calls, 9), "b(c a*) c");
    EXPECT_EQ(TreeBelow(graph, {2}, TreeOf::Callers, 9), "a(b(a*)) b(a(b*))");
    EXPECT_EQ(TreeBelow(graph, {0}, TreeOf::Calls, 0), "b(...) c");
    EXPECT_TRUE(RowsBelow(graph, {}, TreeOf::Calls).empty());
}

TEST(AliasGraph, EndsHoweverLargeTheScript) {
    Text script;
    Text all = "alias all \"";
    for (int i = 0; i < 20000; ++i) {
        const Text name = Join("n", std::to_string(i));
        script += Join("alias ", name, " n", std::to_string(i + 1), "\n");
        all += Join(name, ";");
    }
    const AliasGraph graph(NamedBodiesOf(Join(script, all, "\"\nalias n20000 n0\n"), Console::Fte), Console::Fte);
    EXPECT_TRUE(graph.FindAlias("n77")->CallsItself);
    EXPECT_EQ(graph.LoopOf("n77").size(), 20002U);
    EXPECT_EQ(graph.FindAlias("all")->Calls.size(), 20000U);
}

}  // namespace lv
