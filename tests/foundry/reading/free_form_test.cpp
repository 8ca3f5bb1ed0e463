#include "foundry/reading/free_form.h"

#include "tests/foundry/script_fixture.h"

namespace lv {
namespace {

class SectionReading : public ::testing::Test {
  protected:
    std::vector<Text> Names() {
        std::vector<Text> names;
        for (const ScriptSection& section : document.Sections) {
            names.push_back(section.Name);
        }
        return names;
    }
    using Lines = std::vector<Text>;

    ScriptDocument document = EmptyDocument(kUnrealDialect);
    SectionReader reader{document};
};

TEST(AddFreeForm, PutsEachLineOnALineOfItsOwn) {
    Text text;
    AddFreeForm(text, TextView("one"));
    EXPECT_EQ(text, "one");
    AddFreeForm(text, TextView("two"));
    AddFreeForm(text, Text("three"));
    EXPECT_EQ(text, "one\r\ntwo\r\nthree");
}

TEST(AddFreeForm, TakesTheFirstLineAsItIs) {
    Text text;
    AddFreeForm(text, Text("one"));
    EXPECT_EQ(text, "one");
}

TEST(AddFreeForm, KeepsAnEmptyLineBehindAnotherOne) {
    Text text = "one";
    AddFreeForm(text, TextView(""));
    AddFreeForm(text, TextView("two"));
    EXPECT_EQ(text, "one\r\n\r\ntwo");
}

TEST(AddFreeForm, LetsALargeTextGrowByAnEighth) {
    Text text(1 << 20, 'x');
    text.shrink_to_fit();
    AddFreeForm(text, TextView("one"));
    EXPECT_EQ(text.size(), (1U << 20U) + 5);
    EXPECT_LT(text.capacity(), (1U << 20U) + (1U << 17U) + 64);
}

TEST_F(SectionReading, BeginsWithOneSectionWithoutAName) {
    EXPECT_EQ(Names(), Lines{""});
    EXPECT_TRUE(document.Section_Cbo.Items.empty());
    EXPECT_FALSE(reader.SawHead());
}

TEST_F(SectionReading, GivesWhatStandsBeforeAnyHeadToTheFirstSection) {
    AddFreeForm(reader.Current(), TextView("before"));
    reader.Open("[URL]");
    AddFreeForm(reader.Current(), TextView("Port=7777"));
    EXPECT_EQ(Names(), Lines{"[URL]"});
    EXPECT_EQ(document.Sections[0].Text, "before\r\nPort=7777");
    EXPECT_TRUE(reader.SawHead());
}

TEST_F(SectionReading, OpensAnotherSectionAtEachFurtherHead) {
    reader.Open("[URL]");
    reader.Open("[Engine.Engine]");
    reader.Open("[URL]");
    EXPECT_EQ(Names(), (Lines{"[URL]", "[Engine.Engine]", "[URL]"}));
    EXPECT_EQ(document.Section_Cbo.Items, (Lines{"[URL]", "[Engine.Engine]", "[URL]"}));
}

TEST_F(SectionReading, KnowsTheInputSectionInAnyLetterCase) {
    reader.Open("[ENGINE.Input]");
    EXPECT_TRUE(reader.IsInput());
    reader.Open("[URL]");
    EXPECT_FALSE(reader.IsInput());
}

TEST_F(SectionReading, OpensNoSectionForItsOwn) {
    reader.Open("[URL]");
    reader.Open("[LORVANE 3D]");
    EXPECT_TRUE(reader.IsOwn());
    EXPECT_EQ(Names(), Lines{"[URL]"});
    reader.Open("[Core.System]");
    EXPECT_FALSE(reader.IsOwn());
    EXPECT_TRUE(reader.SawOwn());
}

TEST_F(SectionReading, TakesTheHeadsBeyondTheLastIndexAsLines) {
    for (std::size_t i = 0; i < 32767; ++i) {
        reader.Open("[a]");
    }
    EXPECT_EQ(document.Sections.size(), 32767U);
    reader.Open("[beyond]");
    EXPECT_EQ(document.Sections.size(), 32767U);
    EXPECT_EQ(reader.Current(), "[beyond]");
}

}  // namespace
}  // namespace lv
