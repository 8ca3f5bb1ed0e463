#include "transfer/settings_text.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "foundation/check_sum.h"

namespace lv {

namespace {

using Values = std::vector<StoredValue>;

constexpr TextView kText =
    "Lorvane 3D settings 1\n"
    "Options\tGames\tCapture the Flag;-game ctf\n"
    "Mes r%E9glages\tk%09y\t100%25 of C:\\QUAKE%0D%0A\n"
    "end 2 ";

Text Whole(TextView above) {
    return Join(above, "end ", std::to_string(std::count(above.begin(), above.end(), '\n') - 1), " ",
                CheckSumText(CheckSum(above)), "\n");
}

Text OfLine(TextView line) {
    return Whole(Join("Lorvane 3D settings 1\n", line, "\n"));
}

Text FaultOf(TextView text) {
    const auto read = ReadSettingsText(text);
    EXPECT_EQ(read.Value.size(), 0u) << text;
    EXPECT_NE(read.Fault.Number, 0) << text;
    return read.Fault.Text;
}

const Values kValues = {{"Options", "Games", "Capture the Flag;-game ctf"},
                        {"Mes r\xE9glages", "k\ty", "100% of C:\\QUAKE\r\n"}};

}  // namespace

TEST(SettingsText, IsALineAValueInPlainAscii) {
    const auto text = WriteSettingsText(kValues);
    EXPECT_EQ(text.Fault.Number, 0);
    EXPECT_EQ(text.Value, Join(kText, "d70f4a3b\n"));
}

TEST(SettingsText, OfNoValuesIsATextAsWell) {
    EXPECT_EQ(WriteSettingsText({}).Value, "Lorvane 3D settings 1\nend 0 be462437\n");
    EXPECT_EQ(ReadSettingsText("Lorvane 3D settings 1\nend 0 be462437\n").Fault.Number, 0);
}

TEST(SettingsText, IsReadBack) {
    const auto read = ReadSettingsText(WriteSettingsText(kValues).Value);
    EXPECT_EQ(read.Fault.Text, "");
    EXPECT_EQ(read.Value, kValues);
}

TEST(SettingsText, KeepsEveryByteOfAValueAndAllButOneOfAName) {
    Text all;
    for (int i = 0; i < 256; ++i) {
        all += static_cast<char>(i);
    }
    const Values values = {
        {all.substr(1, 255), all.substr(1, 255), all}, {"a", "b", ""}, {"a", "c", Text(16000, '\xE9')}};
    EXPECT_EQ(ReadSettingsText(WriteSettingsText(values).Value).Value, values);
}

TEST(SettingsText, MayHaveComeWithCarriageReturns) {
    Text text;
    for (const char letter : WriteSettingsText(kValues).Value) {
        text += letter == '\n' ? Text("\r\n") : Text(1, letter);
    }
    EXPECT_EQ(ReadSettingsText(text).Value, kValues);
}

TEST(SettingsText, CutAnywhereIsAnError) {
    const Text text = WriteSettingsText(kValues).Value;
    for (std::size_t length = 0; length < text.size(); ++length) {
        EXPECT_EQ(ReadSettingsText(text.substr(0, length)).Fault.Number, 75) << length;
    }
}

TEST(SettingsText, WithAnyByteChangedIsAnError) {
    const Text text = WriteSettingsText(kValues).Value;
    for (std::size_t i = 0; i < text.size(); ++i) {
        for (const char other : {'x', '\t', '\n', '%', '\0', '\xE9', '0', ' '}) {
            Text changed = text;
            changed[i] = other;
            if (changed != text) {
                EXPECT_EQ(ReadSettingsText(changed).Fault.Number, 75) << i << " is " << static_cast<int>(other);
            }
        }
    }
}

TEST(SettingsText, WithAnyLineGoneTwiceOrInAnotherPlaceIsAnError) {
    const Text title = "Lorvane 3D settings 1\n";
    const Text a = "a\tb\tc\n";
    const Text b = "d\te\tf\n";
    const Text end = Whole(title + a + b).substr((title + a + b).size());
    EXPECT_EQ(ReadSettingsText(title + a + b + end).Fault.Number, 0);
    for (const Text& text : {title + a + end, title + b + a + end, title + a + a + b + end, a + b + end, title + end,
                             title + a + b + end + end, title + a + b + end + "\n", title + title + a + b + end}) {
        EXPECT_EQ(ReadSettingsText(text).Fault.Number, 75) << text;
    }
}

TEST(SettingsText, NamesTheLineOfTheDamage) {
    EXPECT_EQ(FaultOf(""), "This is no file of Lorvane 3D's settings");
    EXPECT_EQ(FaultOf("MZ\x90\n"), "This is no file of Lorvane 3D's settings");
    EXPECT_EQ(FaultOf("Lorvane 3D settings 1\na\tb\tc\n"),
              "The file is damaged: in line 3 its end is missing. Nothing of it was used");
    EXPECT_EQ(FaultOf("Lorvane 3D settings one\n"),
              "The file is damaged: in line 1 the number of the format is wrong. Nothing of it was used");
    EXPECT_EQ(FaultOf("Lorvane 3D settings 1\nend 1 be462437\n"),
              "The file is damaged: in line 2 the count of values is another. Nothing of it was used");
    EXPECT_EQ(FaultOf("Lorvane 3D settings 1\nend 0 00000000\n"),
              "The file is damaged: in line 2 the check sum is another, so something above it was changed. Nothing of "
              "it was used");
    EXPECT_EQ(FaultOf("Lorvane 3D settings 1\nend 0 be462437\nx"),
              "The file is damaged: in line 3 is something behind the end. Nothing of it was used");
}

TEST(SettingsText, TellsOneOfANewerProgram) {
    EXPECT_EQ(
        FaultOf("Lorvane 3D settings 2\nwhatever that is\n"),
        "The file is of a newer Lorvane 3D: its format has the number 2, and this program reads number 1. Nothing "
        "of it was used");
    EXPECT_EQ(FaultOf("Lorvane 3D settings 0\n"),
              "The file is damaged: in line 1 the number of the format is wrong. Nothing of it was used");
    EXPECT_NE(FaultOf("Lorvane 3D settings 99999999999999999999999\n"), "");
}

TEST(SettingsText, TakesNoLineThatIsNotAValueThoughItsCheckSumIsRight) {
    EXPECT_EQ(ReadSettingsText(OfLine("a\tb\tc")).Fault.Number, 0);
    for (const char* const line : {"", "a", "a\tb", "a\tb\tc\td", "\tb\tc", "a\t\tc", "a\tb\t%", "a\tb\t%4",
                                   "a\tb\t%zz", "a%00\tb\tc", "a\tb%00\tc", "a\tb\t\x80", "a\tb\tc\r\r", "end\tb"}) {
        EXPECT_EQ(FaultOf(OfLine(line)).find("The file is damaged: in line 2 "), 0u) << line;
    }
}

TEST(SettingsText, TakesEachNameOnce) {
    for (const char* const second : {"a\tb\tc", "A\tB\td", "a\t%62\te"}) {
        EXPECT_EQ(FaultOf(OfLine(Join("a\tb\tc\n", second))),
                  "The file is damaged: in line 3 is a value that was there before. Nothing of it was used");
    }
    EXPECT_EQ(FaultOf(OfLine("\xE9")).find("The file is damaged: in line 2 is a character"), 0u);
    EXPECT_EQ(FaultOf(OfLine("%E9\tb\tc\n%C9\tb\tc")).find("The file is damaged: in line 3 is a value that"), 0u);
}

TEST(SettingsText, TakesNamesAndValuesUpToTheirLengthsAndNoLonger) {
    const Text name(255, 'n');
    EXPECT_EQ(ReadSettingsText(OfLine(Join(name, "\t", name, "\t", Text(16000, 'v')))).Fault.Number, 0);
    EXPECT_EQ(ReadSettingsText(OfLine(Join(name, "n\tk\tv"))).Fault.Number, 75);
    EXPECT_EQ(ReadSettingsText(OfLine(Join("s\t", name, "n\tv"))).Fault.Number, 75);
    EXPECT_EQ(ReadSettingsText(OfLine(Join("s\tk\t", Text(16001, 'v')))).Fault.Number, 75);
    EXPECT_EQ(ReadSettingsText(OfLine(Join("s\tk\t", Text(48001, 'v')))).Fault.Number, 75);
}

TEST(SettingsText, SaysBeforehandWhatItCanHold) {
    EXPECT_TRUE(FitsSettingsText({"s", "k", ""}));
    EXPECT_TRUE(FitsSettingsText({Text(255, 's'), Text(255, 'k'), Text(16000, 'v')}));
    for (const StoredValue& value : Values{{"", "k", "v"},
                                           {"s", "", "v"},
                                           {Text(256, 's'), "k", "v"},
                                           {"s", Text(256, 'k'), "v"},
                                           {"s", "k", Text(16001, 'v')},
                                           {Text("s\0", 2), "k", "v"},
                                           {"s", Text("\0k", 2), "v"}}) {
        EXPECT_FALSE(FitsSettingsText(value)) << value.Section << ' ' << value.Key;
    }
}

TEST(SettingsText, HasNoMoreThan100000ValuesAnd16Megabytes) {
    Values values;
    for (int i = 0; i <= 100'000; ++i) {
        values.push_back({"s", std::to_string(i), ""});
    }
    EXPECT_EQ(WriteSettingsText(values).Fault.Number, 7);
    Text lines = "Lorvane 3D settings 1\n";
    for (const StoredValue& value : values) {
        lines += Join("s\t", value.Key, "\t\n");
    }
    EXPECT_EQ(FaultOf(Whole(lines)),
              "The file is damaged: in line 100002 begins more than there can be. Nothing of it was used");
    values.pop_back();
    EXPECT_EQ(ReadSettingsText(WriteSettingsText(values).Value).Value.size(), 100'000u);
    EXPECT_EQ(WriteSettingsText(Values(400, {"s", "k", Text(16000, '\xFF')})).Fault.Number, 7);
    EXPECT_EQ(ReadSettingsText(Text((16U << 20U) + 1, 'x')).Fault.Number, 7);
}

TEST(SettingsText, IsKnownByItsFirstLine) {
    EXPECT_TRUE(BeginsSettingsText(WriteSettingsText({}).Value));
    EXPECT_TRUE(BeginsSettingsText("Lorvane 3D settings 99"));
    EXPECT_FALSE(BeginsSettingsText("Lorvane 3D"));
    EXPECT_FALSE(BeginsSettingsText(" Lorvane 3D settings 1"));
    EXPECT_FALSE(BeginsSettingsText(""));
}

}  // namespace lv
