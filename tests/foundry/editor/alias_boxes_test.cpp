#include "foundry/editor/alias_boxes.h"

#include "foundry/document/bindings.h"
#include "tests/foundry/editor/fig_fixture.h"

namespace lv {
namespace {

constexpr KeyIndex kA = 1;
constexpr KeyIndex kB = 2;

class AliasBoxes : public FigTest {
  protected:
    void SetUp() override { Open(kQuakeDialect); }

    Text Shown(SlotNumber slot) { return form.Document.Bound_Lbl[slot].Caption; }
    Text Tip(SlotNumber slot) { return form.Document.Bound_Lbl[slot].ToolTip; }
};

TEST_F(AliasBoxes, AnAliasTakesTheFirstFreeBox) {
    EXPECT_TRUE(PutIntoBox(form, "zoom"));
    EXPECT_TRUE(PutIntoBox(form, "jump2"));
    EXPECT_EQ(Shown(601), " zoom");
    EXPECT_EQ(Tip(601), "");
    EXPECT_EQ(form.Document.SlotCommand[601], "zoom");
    EXPECT_EQ(Shown(602), " jump2");
    EXPECT_EQ(BoxOfAlias(form.Document, "JUMP2"), 602);
    EXPECT_EQ(BoxOfAlias(form.Document, "other"), kNoSlot);
    EXPECT_EQ(BoxOfAlias(form.Document, ""), kNoSlot);
}

TEST_F(AliasBoxes, ALongNameIsShortenedAndItsToolTipHoldsItAll) {
    PutIntoBox(form, "a_name_of_13_");
    EXPECT_EQ(Shown(601), " a_name_of_13_");
    EXPECT_EQ(Tip(601), "");
    PutIntoBox(form, "a_name_of_14__");
    EXPECT_EQ(Shown(602), " a_name_of_1...");
    EXPECT_EQ(Tip(602), "a_name_of_14__");
    EXPECT_EQ(form.Document.SlotCommand[602], "a_name_of_14__");
    EXPECT_EQ(BoxOfAlias(form.Document, "a_name_of_14__"), 602);
}

TEST_F(AliasBoxes, TheTwentyEighthIsRefusedWithAWayOut) {
    for (int i = 1; i <= 27; ++i) {
        EXPECT_TRUE(PutIntoBox(form, "alias" + std::to_string(i)));
    }
    EXPECT_EQ(Shown(627), " alias27");
    user.Expect({.Title = "Limitation Reached",
                 .Text_ = "Unable to place alias in a bindable box; the limitation of 27 bindable aliases would have "
                          "to be exceeded.\r\n\r\nYour Options:\r\n1) Bind this alias manually in the 'Free Form "
                          "Additions' section as follows:\r\nbind b \"zoom\" // this binds the alias to the b key",
                 .Whole = true,
                 .Buttons = "&OK"});
    EXPECT_FALSE(PutIntoBox(form, "zoom"));
}

TEST_F(AliasBoxes, KeysFollowARenamedAlias) {
    PutIntoBox(form, "zoom");
    BindKey(form.Document, form, kA, 601);
    BindKey(form.Document, form, kB, 601);
    RenameBox(form, 601, "zoom_in");
    EXPECT_EQ(Shown(601), " zoom_in");
    EXPECT_EQ(form.Document.SlotCommand[601], "zoom_in");
    EXPECT_EQ(Command(kA), "zoom_in");
    EXPECT_EQ(Command(kB), "zoom_in");
    EXPECT_EQ(Keys(601), "{A} : {B}");
}

TEST_F(AliasBoxes, AnEmptiedBoxFreesItsKeysAndIsFree) {
    PutIntoBox(form, "a_very_long_name");
    BindKey(form.Document, form, kA, 601);
    BindKey(form.Document, form, kB, 601);
    EXPECT_EQ(KeyColor(kA), 0xff80ffU);
    EmptyBox(form, 601);
    EXPECT_EQ(Shown(601), "");
    EXPECT_EQ(Tip(601), "");
    EXPECT_EQ(Keys(601), "");
    EXPECT_EQ(form.Document.SlotCommand[601], "");
    EXPECT_EQ(Command(kA), "");
    EXPECT_EQ(Command(kB), "");
    EXPECT_EQ(KeyColor(kA), kWhite);
    EXPECT_EQ(KeyColor(kB), kWhite);
    EXPECT_TRUE(PutIntoBox(form, "zoom"));
    EXPECT_EQ(Shown(601), " zoom");
}

TEST_F(AliasBoxes, ABoxWithKeysIsTakenAwayIfTheUserAgrees) {
    PutIntoBox(form, "zoom");
    BindKey(form.Document, form, kA, 601);
    user.Expect({.Title = "Alias is Bound",
                 .Text_ = "This alias is currently bound. Do you want to remove the binding?",
                 .Answer = 1,
                 .Whole = true,
                 .Buttons = "&Yes,&No"});
    EXPECT_FALSE(TakeOutOfBox(form, 601));
    EXPECT_EQ(Command(kA), "zoom");
    user.Expect({.Title = "Alias is Bound", .Text_ = "", .Answer = 0});
    EXPECT_TRUE(TakeOutOfBox(form, 601));
    EXPECT_EQ(Command(kA), "");
    EXPECT_EQ(Shown(601), "");
}

TEST_F(AliasBoxes, ABoxWithoutKeysIsTakenAwayUnasked) {
    PutIntoBox(form, "zoom");
    EXPECT_TRUE(TakeOutOfBox(form, 601));
    EXPECT_EQ(Shown(601), "");
}

TEST_F(AliasBoxes, TheReadersBoxesAreKnown) {
    Open(kQuakeDialect, "alias \"ZOOM\" \"fov 20\"\nbind a zoom\n");
    EXPECT_EQ(BoxOfAlias(form.Document, "zoom"), 601);
    EXPECT_EQ(Shown(601), " zoom");
}

}  // namespace
}  // namespace lv
