#include "tests/foundry/editor/fig_fixture.h"

namespace lv {
namespace {

TEST_F(FigTest, AScriptsKeysTakeTheColorsOfTheirRows) {
    Open(kQuakeDialect, "bind w +forward\nbind mouse1 +attack\n");
    EXPECT_EQ(Keys(101), "{W}");
    EXPECT_EQ(KeyColor(23), 0x00c000U);
    EXPECT_EQ(KeyColor(1), kWhite);
    EXPECT_TRUE(form.Document.ScriptClean);
}

TEST_F(FigTest, LabelsOfMessagesAreTheWidest) {
    EXPECT_EQ(form.BoundLabelWidth(801), 512);
    EXPECT_EQ(form.BoundLabelWidth(501), 208);
    EXPECT_EQ(form.BoundLabelWidth(601), 128);
    EXPECT_EQ(form.BoundLabelWidth(701), 176);
}

TEST_F(FigTest, AnEditWhileTheReaderRunsIsNone) {
    Open(kQuakeDialect);
    form.Document.ScriptLoading = true;
    Edited(form);
    EXPECT_TRUE(form.Document.ScriptClean);
    form.Document.ScriptLoading = false;
    Edited(form);
    EXPECT_FALSE(form.Document.ScriptClean);
}

}  // namespace
}  // namespace lv
