// Captions that are cut where they do not fit.

#include <gtest/gtest.h>

#include "foundry/document/bindings.h"
#include "foundry/document/slot_captions.h"
#include "tests/foundry/watching_view.h"

namespace lv {
namespace {

struct SlotCaptions : testing::Test {
    ScriptDocument document;
    WatchingView view;  // ten to the character, a label of 200

    void Caption(TextView text) { CaptionSlot(document, view, 501, text); }
    Label& label() { return document.Bound_Lbl[501]; }
};

TEST_F(SlotCaptions, AShortTextStandsBehindABlank) {
    label().ToolTip = "old";
    Caption("  +hook ");
    EXPECT_EQ(label().Caption, " +hook");
    EXPECT_EQ(label().ToolTip, "");
    EXPECT_EQ(view.ChangedSlots, std::vector<SlotNumber>{501});
}

TEST_F(SlotCaptions, ATextMustBeNarrowerThanTheLabelWithTwoBlanks) {
    Caption("12345678901234567");  // 19 characters with the blanks
    EXPECT_EQ(label().Caption, " 12345678901234567");
    Caption("123456789012345678");  // 20: exactly as wide as the label
    EXPECT_EQ(label().Caption, " 123456789012345...");
    EXPECT_EQ(label().ToolTip, "123456789012345678");
}

TEST_F(SlotCaptions, ALongTextIsCutToTheLongestHeadThatFits) {
    Caption("abcdefghijklmnopqrstuvwxyz");
    EXPECT_EQ(label().Caption, " abcdefghijklmno...");  // two blanks, 15 and "..." are 20
    EXPECT_EQ(label().ToolTip, "abcdefghijklmnopqrstuvwxyz");
}

TEST_F(SlotCaptions, ThreeCharactersStayInTheNarrowestLabel) {
    view.LabelWidth = 0;
    EXPECT_EQ(ShortenToFit(view, "abcdef", 501), "abc...");
    EXPECT_EQ(ShortenToFit(view, "abcd", 501), "abc...");
    EXPECT_EQ(ShortenToFit(view, "abc", 501), "abc...");
    EXPECT_EQ(ShortenToFit(view, "a", 501), "a...");
    EXPECT_EQ(ShortenToFit(view, "", 501), "...");
}

TEST_F(SlotCaptions, ATextThatFitsIsNotCutButMarkedAllTheSame) {
    EXPECT_EQ(ShortenToFit(view, "abcdef", 501), "abcdef...");
}

TEST_F(SlotCaptions, AMillionCharactersAreCutWithFewMeasurements) {
    struct Counting : WatchingView {
        int TextWidth(TextView text) override {
            ++Measured;
            return WatchingView::TextWidth(text);
        }
        int Measured = 0;
    } counting;
    EXPECT_EQ(ShortenToFit(counting, Text(1'000'000, 'w'), 501), Text(15, 'w') + "...");
    EXPECT_LT(counting.Measured, 30);
}

TEST_F(SlotCaptions, AVeryLongTextIsNeverMeasuredWhole) {
    struct Measuring : WatchingView {
        int TextWidth(TextView text) override {
            Longest = std::max(Longest, text.size());
            return WatchingView::TextWidth(text);
        }
        std::size_t Longest = 0;
    } measuring;
    CaptionSlot(document, measuring, 501, Text(1'000'000, 'w'));
    EXPECT_EQ(label().Caption, " " + Text(15, 'w') + "...");
    EXPECT_EQ(label().ToolTip.size(), 1'000'000U);
    EXPECT_LE(measuring.Longest, 505U);
}

TEST_F(SlotCaptions, AnAmplyWideLabelShowsALongTextWhole) {
    view.LabelWidth = 100'000;
    CaptionSlot(document, view, 501, Text(9'000, 'w'));
    EXPECT_EQ(label().Caption, " " + Text(9'000, 'w'));
    EXPECT_EQ(ShortenToFit(view, Text(20'000, 'w'), 501), Text(9'995, 'w') + "...");
}

TEST_F(SlotCaptions, NothingIsCutWithoutAWindow) {
    ScriptView nobody;
    const Text text(500, 'w');
    CaptionSlot(document, nobody, 501, text);
    EXPECT_EQ(label().Caption, " " + text);
    EXPECT_EQ(label().ToolTip, "");
}

}  // namespace
}  // namespace lv
