#include "console/checks/named_bodies.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

Text Listed(const std::vector<NamedBody>& bodies) {
    Text all;
    for (const NamedBody& body : bodies) {
        all += Join(all.empty() ? "" : ", ", std::to_string(body.Script), ":", std::to_string(body.Line), " ",
                    body.IsKey ? "key " : "", body.Name, "=", body.Body);
    }
    return all;
}

}  // namespace

TEST(NamedBodies, AreAllThatAScriptDefinesAndBinds) {
    EXPECT_EQ(Listed(NamedBodiesOf("alias a b\nfov 90; bind F1 \"a; b\"\nalias a c\nbind NOKEY x\n", Console::Quake)),
              "0:1 a=b, 0:2 key F1=a; b, 0:3 a=c");
    EXPECT_EQ(Listed(NamedBodiesOf("unalias a\nunbindall\nbind a\n", Console::DarkPlaces)), "");
}

TEST(NamedBodies, OfARunAreAllAliasesAndTheLastCommandOfEachKey) {
    StartRun run;
    run.Set.Put(EffectKind::Bind, "F1", "F1", {.Script = 1, .Line = 2, .Value = "old"});
    run.Set.Put(EffectKind::Bind, "F1", "F1", {.Script = 2, .Line = 3, .Value = "new"});
    run.Set.Put(EffectKind::Bind, "F2", "F2", {.Script = 2, .Line = 4, .Value = "", .IsSet = false});
    run.Set.Put(EffectKind::Alias, "a", "A", {.Script = 1, .Line = 5, .Value = "x"});
    run.Set.Put(EffectKind::Alias, "a", "A", {.Script = 2, .Line = 6, .Value = "y"});
    run.Set.Put(EffectKind::Setting, "fov", "fov", {.Script = 2, .Line = 7, .Value = "90"});
    EXPECT_EQ(Listed(NamedBodiesOf(run)), "2:3 key F1=new, 1:5 A=x, 2:6 A=y");
}

}  // namespace lv
