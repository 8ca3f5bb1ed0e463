#include "foundry/document/script_document.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace lv {
namespace {

TEST(MakeScriptDocument, BuildsTheTablesOfItsDialect) {
    const ScriptDocument document = MakeScriptDocument(
        {.GameKind = Game::Quake2, .ScriptFamily = Dialect::Quake2, .IsQuakeWorld = false, .DecimalSeparator = ','});
    EXPECT_EQ(document.Dialect.GameKind, Game::Quake2);
    EXPECT_EQ(document.KeyCaption[77], "kp+");
    EXPECT_EQ(document.SlotCommand[201], "use Blaster");
    EXPECT_EQ(document.Bound_Lbl[201].Caption, " Blaster");
    EXPECT_EQ(document.volume_Cbo.Items[1], "0,1");
    EXPECT_EQ(document.Crosshair_Cbo.Items.size(), 4U);
}

TEST(MakeScriptDocument, HoldsNothingOfAScript) {
    const ScriptDocument document = MakeScriptDocument({.GameKind = Game::Quake, .ScriptFamily = Dialect::Quake});
    EXPECT_TRUE(std::ranges::all_of(document.KeyBinding, [](const Text& binding) { return binding.empty(); }));
    EXPECT_TRUE(document.AliasTable.empty());
    EXPECT_TRUE(document.Sections.empty());
    EXPECT_TRUE(document.ScriptClean);
    EXPECT_FALSE(document.ScriptLoading);
    EXPECT_FALSE(document.fov_Cbo.HasSelection());
    EXPECT_EQ(document.Unbindall_Chk.Value, 0);
}

TEST(MakeScriptDocument, CopiesAsAValue) {
    ScriptDocument document = MakeScriptDocument({.GameKind = Game::Quake});
    document.AliasTable.Insert({.Bound = false, .Name = "a", .Body = "wait"});
    const ScriptDocument copy = document;
    document.AliasTable.Erase(0);
    document.SlotCommand[501] = "+hook";
    EXPECT_EQ(copy.AliasTable.AliasCount(), 1U);
    EXPECT_EQ(copy.SlotCommand[501], "");
}

TEST(SlotArray, IsIndexedByTheNumberUpToBothEnds) {
    SlotArray<int, 801, 813> numbers;
    numbers[801] = 1;
    numbers[813] = 13;
    EXPECT_EQ(numbers[801], 1);
    EXPECT_EQ(numbers[802], 0);
    EXPECT_EQ(numbers[813], 13);
}

}  // namespace
}  // namespace lv
