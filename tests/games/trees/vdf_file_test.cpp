#include "games/trees/vdf_file.h"

#include <gtest/gtest.h>

namespace lv {

namespace {

// As "key=value" and "key{...}", to be compared at a glance.
Text Flat(const std::vector<VdfEntry>& entries) {
    Text flat;
    for (const VdfEntry& entry : entries) {
        flat +=
            entry.Block.empty() ? Join(entry.Key, "=", entry.Value, ";") : Join(entry.Key, "{", Flat(entry.Block), "}");
    }
    return flat;
}

Text Deep(int levels) {
    Text text;
    for (int i = 0; i < levels; ++i) {
        text += "\"a\" { ";
    }
    text += "\"last\" \"1\" ";
    for (int i = 0; i < levels; ++i) {
        text += "} ";
    }
    return text + "\"behind\" \"2\"";
}

}  // namespace

TEST(VdfFile, IsReadWithItsBlocks) {
    const auto entries = ReadVdf(
        "\"AppState\"\n{\n\t\"appid\"\t\t\"2310\"\n\t\"UserConfig\"\n\t{\n\t\t\"language\"\t\"english\""
        "\n\t}\n\t\"installdir\"\t\t\"Quake\"\n}\n");
    EXPECT_EQ(Flat(entries), "AppState{appid=2310;UserConfig{language=english;}installdir=Quake;}");
    EXPECT_EQ(VdfValue(entries.at(0).Block, "installdir"), "Quake");
}

TEST(VdfFile, HasNoLetterCaseInItsKeys) {
    const auto entries = ReadVdf("\"LibraryFolders\" { \"Path\" \"/a\" }");
    ASSERT_NE(FindVdf(entries, "libraryfolders"), nullptr);
    EXPECT_EQ(VdfValue(FindVdf(entries, "LIBRARYFOLDERS")->Block, "pAtH"), "/a");
    EXPECT_EQ(FindVdf(entries, "library"), nullptr);
    EXPECT_EQ(VdfValue(entries, "none"), "");
}

TEST(VdfFile, EscapesBackslashesAndQuotes) {
    EXPECT_EQ(Flat(ReadVdf(R"("a" "D:\\Games\\Steam")")), R"(a=D:\Games\Steam;)");
    EXPECT_EQ(Flat(ReadVdf(R"("a" "say \"hi\"")")), R"(a=say "hi";)");
    EXPECT_EQ(Flat(ReadVdf(R"("a" "D:\Games")")), R"(a=D:\Games;)");
    EXPECT_EQ(Flat(ReadVdf(R"("a" "D:\)")), R"(a=D:\;)");
}

TEST(VdfFile, PassesOverCommentsConditionsAndAByteOrderMark) {
    EXPECT_EQ(Flat(ReadVdf("\xEF\xBB\xBF// first\n\"a\" \"1\" // \"b\" \"2\"\n\"c\" \"http://x\" [$WIN32]\nd e")),
              "a=1;c=http://x;d=e;");
}

TEST(VdfFile, GivesOfDamagedTextWhatCouldBeRead) {
    EXPECT_EQ(Flat(ReadVdf("")), "");
    EXPECT_EQ(Flat(ReadVdf("\"a\" { \"b\" \"1\" \"c\"")), "a{b=1;}");
    EXPECT_EQ(Flat(ReadVdf("\"a\" { \"b\" \"un")), "a{b=un;}");
    EXPECT_EQ(Flat(ReadVdf("} } \"a\" \"1\" }")), "a=1;");
    EXPECT_EQ(Flat(ReadVdf("{ \"b\" \"1\" }")), "{b=1;}");
    EXPECT_EQ(Flat(ReadVdf("[")), "");
    EXPECT_EQ(Flat(ReadVdf(TextView("\"a\0b\" \"\xFF\"", 9))), Text("a\0b=\xFF;", 6));
}

TEST(VdfFile, PassesOverWhatLiesTooDeep) {
    EXPECT_EQ(Flat(ReadVdf(Deep(15))).find("last=1") != Text::npos, true);
    const Text deeper = Flat(ReadVdf(Deep(16)));
    EXPECT_EQ(deeper.find("last"), Text::npos);
    EXPECT_TRUE(deeper.ends_with("behind=2;"));
    EXPECT_EQ(ReadVdf(Text(4U << 20U, '{')).size(), 1u);
}

TEST(VdfFile, HasNoMoreEntriesThanIsSensible) {
    Text many;
    for (int i = 0; i < 30000; ++i) {
        many += "\"a\" \"1\"\n";
    }
    EXPECT_EQ(ReadVdf(many).size(), 20000u);
}

TEST(VdfFile, IsReadUpToEightMegabytes) {
    EXPECT_EQ(Flat(ReadVdf(Text((8U << 20U) - 8, ' ') + "\"a\" \"1\" \"b\" \"2\"")), "a=1;");
}

}  // namespace lv
