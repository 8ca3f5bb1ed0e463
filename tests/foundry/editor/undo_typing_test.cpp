// What of the typing into a text is one edit.

#include "tests/foundry/editor/undo_fixture.h"

namespace lv {
namespace {

using UndoTypingTest = UndoTest;

TEST_F(UndoTypingTest, LettersOfAWordAreOneEdit) {
    Start();
    Text& name = form.Document.Name_Txt.Text;
    name.clear();
    StartHistory(form);
    Type(name, 0, "Zoe the");
    EXPECT_EQ(EditCount(), 2U);
    Undo();
    EXPECT_EQ(name, "Zoe");
    Undo();
    EXPECT_EQ(name, "");
    Redo();
    Redo();
    EXPECT_EQ(name, "Zoe the");
}

TEST_F(UndoTypingTest, ALineEndBeginsAnEdit) {
    Start();
    Text& lines = form.Document.Sections.front().Text;
    lines.clear();
    StartHistory(form);
    Type(lines, 0, "fov");
    Enter(lines, "fov\r\n");
    Type(lines, 5, "r_x");
    EXPECT_EQ(EditCount(), 2U);
    Type(lines, 8, "\ny");  // by a box that parts its lines by one character
    EXPECT_EQ(EditCount(), 3U);
    Undo();
    EXPECT_EQ(lines, "fov\r\nr_x");
    Undo();
    EXPECT_EQ(lines, "fov");
}

TEST_F(UndoTypingTest, TypingBehindASaveIsAnEditOfItsOwn) {
    Start();
    Text& rate = form.Document.Rate_Txt.Text;
    rate.clear();
    StartHistory(form);
    Type(rate, 0, "25");
    NoteSaved(form);
    Type(rate, 2, "00");
    EXPECT_EQ(EditCount(), 2U);
    Undo();
    EXPECT_EQ(rate, "25");
    EXPECT_TRUE(form.Document.ScriptClean);
}

TEST_F(UndoTypingTest, TypingBehindAnUndoIsAnEditOfItsOwn) {
    Start();
    Text& name = form.Document.Name_Txt.Text;
    name.clear();
    StartHistory(form);
    Type(name, 0, "Zoe the");
    Undo();
    Type(name, 3, "y");
    EXPECT_EQ(EditCount(), 2U);
    Undo();
    EXPECT_EQ(name, "Zoe");
}

TEST_F(UndoTypingTest, LettersElsewhereInTheTextAreAnEditOfTheirOwn) {
    Start();
    Text& name = form.Document.Name_Txt.Text;
    name.clear();
    StartHistory(form);
    Type(name, 0, "end");
    Type(name, 0, "b");
    Type(name, 2, "x");
    EXPECT_EQ(EditCount(), 3U);
}

TEST_F(UndoTypingTest, LettersInAnotherBoxAreAnEditOfTheirOwn) {
    Start();
    form.Document.Name_Txt.Text.clear();
    form.Document.Rate_Txt.Text.clear();
    StartHistory(form);
    Type(form.Document.Name_Txt.Text, 0, "a");
    Type(form.Document.Rate_Txt.Text, 0, "1");
    EXPECT_EQ(EditCount(), 2U);
}

TEST_F(UndoTypingTest, AWordTypedBesideItsOwnLettersIsOneEdit) {
    Start();
    Text& name = form.Document.Name_Txt.Text;
    name = "balo";
    StartHistory(form);
    Type(name, 2, "lkm");  // the first letter could be the one before or behind it
    EXPECT_EQ(name, "balkmlo");
    EXPECT_EQ(EditCount(), 1U);
    Undo();
    EXPECT_EQ(name, "balo");

    name = "aaaa";
    StartHistory(form);
    Type(name, 1, "aab");
    EXPECT_EQ(name, "aaabaaa");
    EXPECT_EQ(EditCount(), 1U);
    Undo();
    EXPECT_EQ(name, "aaaa");
    Redo();
    EXPECT_EQ(name, "aaabaaa");
}

TEST_F(UndoTypingTest, EachDeletionIsAnEdit) {
    Start();
    Text& name = form.Document.Name_Txt.Text;
    name = "Zoe";
    StartHistory(form);
    Enter(name, "Zo");
    Enter(name, "Z");
    Type(name, 1, "a");
    EXPECT_EQ(EditCount(), 3U);
    Undo();
    Undo();
    EXPECT_EQ(name, "Zo");
}

TEST_F(UndoTypingTest, OnlyWhatIsTypedLetterByLetterGrows) {
    Start();
    Enter(form.Document.SlotCommand[501], "a");
    Enter(form.Document.SlotCommand[501], "ab");
    EXPECT_EQ(EditCount(), 2U);
}

}  // namespace
}  // namespace lv
