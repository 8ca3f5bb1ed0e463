#include "platform/linux/reg_file.h"

#include <gtest/gtest.h>

#include <vector>

namespace lv {

namespace {

std::string Utf16(std::string_view ascii) {
    std::string bytes = "\xFF\xFE";
    for (const char c : ascii) {
        bytes += c;
        bytes += '\0';
    }
    return bytes;
}

constexpr std::string_view kFile =
    "Windows Registry Editor Version 5.00\r\n"
    "\r\n"
    "[HKEY_CURRENT_USER\\Software\\Valve]\r\n"
    "\"Name\"=\"outer\"\r\n"
    "\r\n"
    "[HKEY_CURRENT_USER\\Software\\Valve\\Half-Life]\r\n"
    "@=\"nameless\"\r\n"
    "\"Name\"=\"a \\\"b\\\" C:\\\\D\"\r\n"
    "\"Odd \\\"\\\\ name\"=\"x\"\r\n"
    "\"Lines\"=\"one\\r\\ntwo\"\r\n"
    "\"Number\"=dword:0000002a\r\n"
    "\"Most\"=dword:ffffffff\r\n"
    "\"Text\"=hex(1):41,00,e9,00,00,00\r\n"
    "\"Bytes\"=hex:01,02,\\\r\n"
    "  03,04\r\n"
    "\"Several\"=hex(7):41,00,00,00,00,00\r\n"
    "\"Last\"=\"\"\r\n"
    "\r\n"
    "[HKEY_CURRENT_USER\\Software\\Valve\\Half-Life\\Inner]\r\n"
    "\"Name\"=\"inner\"\r\n\r\n";

RegistryKey HalfLife(std::string_view text = kFile) {
    return ReadRegFile(Utf16(text), "Software\\Valve\\Half-Life").value_or(RegistryKey());
}

}  // namespace

TEST(ReadRegFile, ReadsTextWithItsEscapes) {
    const RegistryKey key = HalfLife();
    EXPECT_EQ(key.at("name").Type, 1u);
    EXPECT_EQ(key.at("name").Text, "a \"b\" C:\\D");
    EXPECT_EQ(key.at("odd \"\\ name").Text, "x");
    EXPECT_EQ(key.at("lines").Text, "one\r\ntwo");
    EXPECT_EQ(key.at("last").Text, "");
    EXPECT_EQ(key.at("").Text, "nameless");
}

TEST(ReadRegFile, ReadsNumbers) {
    const RegistryKey key = HalfLife();
    EXPECT_EQ(key.at("number").Type, 4u);
    EXPECT_EQ(key.at("number").Number, 42u);
    EXPECT_EQ(key.at("most").Number, 4294967295u);
}

TEST(ReadRegFile, ReadsTextInHex) {
    EXPECT_EQ(HalfLife().at("text").Type, 1u);
    EXPECT_EQ(HalfLife().at("text").Text, "A\xE9");
}

TEST(ReadRegFile, NamesTheTypesThatAreNotUsed) {
    EXPECT_EQ(HalfLife().at("bytes").Type, 3u);
    EXPECT_EQ(HalfLife().at("several").Type, 7u);
    EXPECT_EQ(HalfLife().size(), 10u);
}

TEST(ReadRegFile, FindsTheVeryKeyBlindToCase) {
    EXPECT_EQ(ReadRegFile(Utf16(kFile), "SOFTWARE\\valve")->at("name").Text, "outer");
    EXPECT_EQ(ReadRegFile(Utf16(kFile), "Software\\Valve\\Half-Life\\INNER")->at("name").Text, "inner");
    EXPECT_EQ(ReadRegFile(Utf16(kFile), "Software\\Valve\\Half"), std::nullopt);
    EXPECT_EQ(ReadRegFile(Utf16(kFile), ""), std::nullopt);
}

TEST(ReadRegFile, ReadsAccentsAndPutsAQuestionMarkForTheRest) {
    const std::string head = "[HKEY_CURRENT_USER\\A]\r\n\"n\"=\"";
    const std::string text("\xE9\x00\xAC\x20\xE5\x65\x3D\xD8\x00\xDE\x81\x00",
                           12);  // the last a surrogate pair, U+0081
    const auto key = ReadRegFile(Utf16(head) + text + Utf16("\"\r\n").substr(2), "A");
    EXPECT_EQ(key->at("n").Text, "\xE9\x80??\x81");
}

TEST(ReadRegFile, WantsAByteOrderMark) {
    EXPECT_EQ(ReadRegFile(kFile, "Software\\Valve"), std::nullopt);
    EXPECT_EQ(ReadRegFile(Utf16(kFile).substr(2), "Software\\Valve"), std::nullopt);
    EXPECT_EQ(ReadRegFile("", "Software\\Valve"), std::nullopt);
    EXPECT_EQ(ReadRegFile("\xFF", "Software\\Valve"), std::nullopt);
}

TEST(ReadRegFile, GivesOnlyWholeValuesOfAFileCutOffAnywhere) {
    const RegistryKey whole = HalfLife();
    const std::string bytes = Utf16(kFile);
    for (std::size_t size = 0; size < bytes.size(); ++size) {
        const auto key = ReadRegFile(std::string_view(bytes).substr(0, size), "Software\\Valve\\Half-Life");
        for (const auto& [name, value] : key.value_or(RegistryKey())) {
            ASSERT_TRUE(whole.contains(name)) << size;
            ASSERT_EQ(value.Type, whole.at(name).Type) << size;
            ASSERT_EQ(value.Text, whole.at(name).Text) << size;
            ASSERT_EQ(value.Number, whole.at(name).Number) << size;
        }
    }
}

TEST(ReadRegFile, PassesOverLinesThatMakeNoSense) {
    const RegistryKey key = HalfLife(
        "[HKEY_CURRENT_USER\\Software\\Valve\\Half-Life]\r\n"
        "\"no end\r\n"
        "\"no value\"\r\n"
        "\"no value either\"=\r\n"
        "\"behind\"=\"x\" y\r\n"
        "\"open\"=\"x\r\n"
        "\"long\"=dword:123456789\r\n"
        "\"none\"=dword:\r\n"
        "\"letters\"=dword:xyz\r\n"
        "\"negative\"=dword:-1\r\n"
        "\"byte\"=hex(1):41,000\r\n"
        "\"type\"=hex(1:41\r\n"
        "\"colon\"=hex(1)41\r\n"
        "\"comma\"=hex:1 2\r\n"
        "\"big\"=hex:100\r\n"
        "; a remark\r\n"
        "=\r\n"
        "@\r\n"
        "\"good\"=\"x\"\r\n");
    EXPECT_EQ(key.size(), 2u);
    EXPECT_EQ(key.at("good").Text, "x");
    EXPECT_EQ(key.at("byte").Text, "A");  // three digits, but still the byte 00
}

TEST(ReadRegFile, SurvivesAnyByteInAnyPlace) {
    const std::string bytes = Utf16(kFile);
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        for (const char odd : {'\0', '\n', '"', '\\', '[', '\xFF'}) {
            std::string damaged = bytes;
            damaged[at] = odd;
            const auto key = ReadRegFile(damaged, "Software\\Valve\\Half-Life");
            ASSERT_LE(key.value_or(RegistryKey()).size(), 12u);
        }
    }
}

TEST(ComposeRegFile, WritesText) {
    const RegistryValue value{kRegistryText, "a \"b\" C:\\D", 0};
    EXPECT_EQ(ComposeRegFile("Software\\Valve", "Chat \"Nickname\"", value),
              Utf16("Windows Registry Editor Version 5.00\r\n\r\n[HKEY_CURRENT_USER\\Software\\Valve]\r\n"
                    "\"Chat \\\"Nickname\\\"\"=\"a \\\"b\\\" C:\\\\D\"\r\n\r\n"));
}

TEST(ComposeRegFile, WritesNumbersAndTheNamelessValue) {
    EXPECT_EQ(ComposeRegFile("A", "", {kRegistryNumber, "", 3000000000u}),
              Utf16("Windows Registry Editor Version 5.00\r\n\r\n[HKEY_CURRENT_USER\\A]\r\n"
                    "@=dword:b2d05e00\r\n\r\n"));
}

TEST(ComposeRegFile, WritesTextWithControlCharactersInHex) {
    EXPECT_EQ(ComposeRegFile("A", "n", {kRegistryText, "x\r\n\"y", 0}),
              Utf16("Windows Registry Editor Version 5.00\r\n\r\n[HKEY_CURRENT_USER\\A]\r\n"
                    "\"n\"=hex(1):78,00,0d,00,0a,00,22,00,79,00,00,00\r\n\r\n"));
}

TEST(ComposeRegFile, WritesAccentsAsUtf16) {
    const auto file = ComposeRegFile("A", "n", {kRegistryText, "\x80\xE9", 0});
    ASSERT_TRUE(file.has_value());
    EXPECT_NE(file->find(std::string("\"\0\xAC\x20\xE9\0\"\0", 8)), std::string::npos);
}

TEST(ComposeRegFile, RefusesWhatCouldSaySomethingElse) {
    const RegistryValue text{kRegistryText, "x", 0};
    EXPECT_EQ(ComposeRegFile("A]\r\n[-HKEY_CURRENT_USER", "n", text), std::nullopt);
    EXPECT_EQ(ComposeRegFile("A", "n\n", text), std::nullopt);
    EXPECT_EQ(ComposeRegFile("", "n", text), std::nullopt);
    EXPECT_EQ(ComposeRegFile("A", "n", {3, "x", 0}), std::nullopt);
    EXPECT_EQ(ComposeRegFile("A", "n", {0, "", 0}), std::nullopt);
}

TEST(ComposeRegFile, IsReadBack) {
    std::string all;
    for (int i = 0; i < 256; ++i) {
        all += static_cast<char>(i);
    }
    const auto file = ComposeRegFile("A\\B", "n", {kRegistryText, all, 0});
    EXPECT_EQ(ReadRegFile(file.value_or(""), "a\\b")->at("n").Text, all);
    const auto plain = ComposeRegFile("A\\B", "n", {kRegistryText, all.substr(32), 0});
    EXPECT_EQ(ReadRegFile(plain.value_or(""), "a\\b")->at("n").Text, all.substr(32));
}

TEST(ComposeRegFile, NamesAKeyOnceForItsValues) {
    const std::vector<RegistryEntry> entries = {{{"A", "x"}, {kRegistryText, "1", 0}},
                                                {{"A", "y"}, {kRegistryNumber, "", 2}},
                                                {{"A\\B", ""}, {kRegistryText, "3", 0}}};
    EXPECT_EQ(ComposeRegFile(entries), Utf16("Windows Registry Editor Version 5.00\r\n"
                                             "\r\n"
                                             "[HKEY_CURRENT_USER\\A]\r\n"
                                             "\"x\"=\"1\"\r\n"
                                             "\"y\"=dword:00000002\r\n"
                                             "\r\n"
                                             "[HKEY_CURRENT_USER\\A\\B]\r\n"
                                             "@=\"3\"\r\n"
                                             "\r\n"));
}

TEST(ComposeRegFile, IsRefusedWholeForOneValue) {
    const std::vector<RegistryEntry> entries = {{{"A", "x"}, {kRegistryText, "1", 0}},
                                                {{"A", "new\nline"}, {kRegistryText, "1", 0}}};
    EXPECT_EQ(ComposeRegFile(entries), std::nullopt);
}

}  // namespace lv
