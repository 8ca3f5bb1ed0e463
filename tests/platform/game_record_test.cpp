#include "platform/linux/starting/game_record.h"

#include <gtest/gtest.h>

namespace lv {

TEST(GameEndRecord, IsReadBack) {
    EXPECT_EQ(GameEndRecord("12-34", {.Code = 1, .Seconds = 2.5}), "12-34 code 1 2500\n");
    EXPECT_EQ(GameEndRecord("12-34", {.Signal = 11, .Seconds = 0}), "12-34 signal 11 0\n");
    EXPECT_EQ(GameEndRecord("12-34", {.Code = 0, .Seconds = 1, .OthersRun = true}), "12-34 code 0 1000 others\n");
    EXPECT_TRUE(ReadGameEnd("12-34 code 0 1000 others\n", "12-34").value_or(GameEnd{}).OthersRun);
    const auto code = ReadGameEnd("12-34 code 1 2500\n", "12-34");
    ASSERT_TRUE(code);
    EXPECT_EQ(code->Code, 1);
    EXPECT_EQ(code->Signal, 0);
    EXPECT_EQ(code->Seconds, 2.5);
    EXPECT_FALSE(code->OthersRun);
    const auto signal = ReadGameEnd("12-34 signal 11 0\n", "12-34");
    ASSERT_TRUE(signal);
    EXPECT_EQ(signal->Code, 0);
    EXPECT_EQ(signal->Signal, 11);
}

TEST(ReadGameEnd, TakesNoRecordOfAnotherStartAndNoDamagedOne) {
    EXPECT_TRUE(ReadGameEnd("1 code 0 0\n", "1"));
    for (const char* record :
         {"", "\n", "2 code 0 0\n", "1 code 0 0", "1 code 0\n", "1 code x 0\n", "1 end 0 0\n", "1 code 0 0 0\n",
          "1 code 0 0 other\n", " others\n", "1 code -1 0\n", "1 code 99999999999 0\n", "1  code 0 0\n"}) {
        EXPECT_FALSE(ReadGameEnd(record, "1")) << record;
    }
}

TEST(OutputText, IsTextWithoutControlCharacters) {
    EXPECT_EQ(OutputText("one\ntwo\r\nthree\rfour\t!"), "one\r\ntwo\r\nthree\r\nfour\t!");
    EXPECT_EQ(OutputText(std::string_view("a\0b\x07"
                                          "c\x7F",
                                          6)),
              "a?b?c?");
    EXPECT_EQ(OutputText("\xC3\xA9 \xE2\x82\xAC"), "\xE9 \x80");
    EXPECT_EQ(OutputText("\xFFgold\xC2\x81"), "?gold?");
}

TEST(OutputText, LeavesOutWhatColorsATerminal) {
    EXPECT_EQ(OutputText("\x1B[1;31mred\x1B[0m \x1B[2Kx"), "red x");
    EXPECT_EQ(OutputText("\x1B]0;title\x07"), "?]0;title?");
    EXPECT_EQ(OutputText("\x1B[12"), "?[12");
    EXPECT_EQ(OutputText("\x1B"), "?");
}

TEST(EndOfText, IsWholeLinesIfThereIsOne) {
    EXPECT_EQ(EndOfText("one\r\ntwo\r\n", 99), "one\r\ntwo\r\n");
    EXPECT_EQ(EndOfText("one\r\ntwo\r\n", 7), "two\r\n");
    EXPECT_EQ(EndOfText("one\r\ntwo\r\n", 5), "two\r\n");
    EXPECT_EQ(EndOfText("one\r\ntwo", 3), "two");
    EXPECT_EQ(EndOfText("oneline", 4), "line");
    EXPECT_EQ(EndOfText("oneline\n", 4), "ine\n");
}

}  // namespace lv
