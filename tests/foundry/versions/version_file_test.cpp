#include "foundry/versions/version_file.h"

#include <gtest/gtest.h>

#include <utility>

#include "foundation/field_strings.h"

namespace lv {

namespace {

const LocalTime kMorning = {2026, 11, 23, 8, 52, 11};
const LocalTime kEvening = {2026, 11, 22, 20, 1, 45};

constexpr TextView kTwo =
    "Lorvane 3D versions 2\n"
    "C:\\QUAKE\\ID1\\my.cfg\n"
    "2026-11-23 08:52:11 whole 27 27 22e5e084 2 6d659085\n"
    "bind x quit\r\nbind y +jump\r\n\n"
    "2026-11-22 20:01:45 delta 13 5 8d9609ad 2 ed9f031e\n"
    "=0 1\n\n";

constexpr TextView kOldTwo =
    "Lorvane 3D versions 1\n"
    "C:\\QUAKE\\ID1\\my.cfg\n"
    "2026-11-23 08:52:11 whole 27 27 22e5e084\n"
    "bind x quit\r\nbind y +jump\r\n\n"
    "2026-11-22 20:01:45 delta 13 5 8d9609ad\n"
    "=0 1\n\n";

/// Seven small versions, each with a line of its own.
VersionFile Seven() {
    VersionFile file = {"s", {}};
    for (int i = 1; i <= 7; ++i) {
        Text text;
        for (int line = 1; line <= 7; ++line) {
            text += Join("bind ", std::to_string(line), line <= i ? " quit\r\n" : " +jump\r\n");
        }
        file.Versions.push_back({kMorning, text});
    }
    return file;
}

std::size_t LineOf(const Text& bytes, std::size_t version) {
    std::size_t at = 0;
    for (std::size_t i = 0; i < version; ++i) {
        at = bytes.find("\n2026-11-23 ", at) + 1;
    }
    return at;
}

Text Bindings(std::size_t lines) {
    Text text;
    for (std::size_t i = 0; i < lines; ++i) {
        text += Join("bind ", std::to_string(i), " \"impulse ", std::to_string(i), "\"\r\n");
    }
    return text;
}

/// Fifty versions of a script, each with a change of its own.
VersionFile Fifty(const Text& text) {
    VersionFile file = {"s", {}};
    for (int i = 0; i < 50; ++i) {
        file.Versions.push_back({kMorning, Join(text, "echo ", std::to_string(i), "\r\n")});
    }
    return file;
}

std::vector<Text> TextsOf(const VersionFile& file) {
    std::vector<Text> texts;
    for (const ScriptVersion& version : file.Versions) {
        texts.push_back(version.Text);
    }
    return texts;
}

}  // namespace

TEST(VersionFile, IsWrittenAsItsHeaderSays) {
    EXPECT_EQ(WriteVersionFile({"C:\\QUAKE\\ID1\\my.cfg",
                                {{kMorning, "bind x quit\r\nbind y +jump\r\n"}, {kEvening, "bind x quit\r\n"}}}),
              kTwo);
}

TEST(VersionFile, IsReadAsItIsWritten) {
    const VersionFile file = ReadVersionFile(kTwo);
    EXPECT_FALSE(file.IsDamaged);
    EXPECT_EQ(file.Script, "C:\\QUAKE\\ID1\\my.cfg");
    EXPECT_EQ(TextsOf(file), (std::vector<Text>{"bind x quit\r\nbind y +jump\r\n", "bind x quit\r\n"}));
    EXPECT_EQ(file.Versions[0].Date.Second, 11);
    EXPECT_EQ(file.Versions[1].Date.Day, 22);
    EXPECT_EQ(file.Versions[1].Date.Hour, 20);
}

TEST(VersionFile, HoldsAnyBytesAndNoneAtAll) {
    const VersionFile file = {"s", {{kMorning, Text("\0\n\xff", 3)}, {kMorning, ""}, {kEvening, "\n\n"}}};
    EXPECT_EQ(TextsOf(ReadVersionFile(WriteVersionFile(file))), TextsOf(file));
}

TEST(VersionFile, AnEmptyFileIsDamaged) {
    const VersionFile file = ReadVersionFile("");
    EXPECT_TRUE(file.Versions.empty());
    EXPECT_TRUE(file.IsDamaged);
    EXPECT_FALSE(file.IsLostExact);
}

TEST(VersionFile, OfTheOldFormIsReadToo) {
    const VersionFile file = ReadVersionFile(kOldTwo);
    EXPECT_FALSE(file.IsDamaged);
    EXPECT_EQ(TextsOf(file), (std::vector<Text>{"bind x quit\r\nbind y +jump\r\n", "bind x quit\r\n"}));
    EXPECT_EQ(file.Versions[1].Date.Day, 22);
}

TEST(VersionFile, KnowsEveryCut) {
    for (std::size_t length = 1; length < kTwo.size(); ++length) {
        const VersionFile file = ReadVersionFile(kTwo.substr(0, length));
        EXPECT_TRUE(file.IsDamaged) << length;
        EXPECT_EQ(file.Versions.size(), length >= kTwo.find("2026-11-22") ? 1u : 0u) << length;
    }
    const VersionFile file = ReadVersionFile(kTwo.substr(0, kTwo.find("2026-11-22")));
    EXPECT_EQ(file.Lost, 1u);
    EXPECT_TRUE(file.IsLostExact);
}

TEST(VersionFile, OfTheOldFormKeepsWhatIsIntactAtEveryCut) {
    for (std::size_t length = 1; length < kOldTwo.size(); ++length) {
        const VersionFile file = ReadVersionFile(kOldTwo.substr(0, length));
        EXPECT_EQ(file.IsDamaged, length != kOldTwo.find("2026-11-22")) << length;
        EXPECT_EQ(file.Versions.size(), length >= kOldTwo.find("2026-11-22") ? 1u : 0u) << length;
        EXPECT_FALSE(file.IsLostExact);
    }
}

TEST(VersionFile, FindsEveryByteThatIsAnotherOne) {
    for (const TextView form : {kTwo, kOldTwo}) {
        const Text good(form);
        for (std::size_t at = 0; at < good.size(); ++at) {
            Text bad = good;
            bad[at] = static_cast<char>(bad[at] ^ 1);
            const VersionFile file = ReadVersionFile(bad);
            for (const ScriptVersion& version : file.Versions) {
                EXPECT_TRUE(version.Text == "bind x quit\r\nbind y +jump\r\n" || version.Text == "bind x quit\r\n")
                    << at;
            }
            if (form == kTwo && at >= good.find("2026-")) {
                EXPECT_TRUE(file.IsDamaged) << at;
                EXPECT_EQ(file.Versions.size(), at >= good.find("2026-11-22") ? 1u : 0u) << at;
            }
        }
    }
}

TEST(VersionFile, KeepsAllOfItBehindADamagedTitle) {
    Text bytes = WriteVersionFile(Seven());
    bytes.replace(0, 20, 20, 'x');
    const VersionFile file = ReadVersionFile(bytes);
    EXPECT_TRUE(file.IsDamaged);
    EXPECT_EQ(TextsOf(file), TextsOf(Seven()));
    EXPECT_EQ(file.Lost, 0u);
}

TEST(VersionFile, KeepsWhatStandsAheadOfADamageAndCountsTheRest) {
    Text bytes = WriteVersionFile(Seven());
    bytes.replace(LineOf(bytes, 4) + 60, 5, "#####");
    bytes.resize(bytes.size() - 9);
    const VersionFile file = ReadVersionFile(bytes);
    const std::vector<Text> all = TextsOf(Seven());
    EXPECT_EQ(TextsOf(file), (std::vector<Text>(all.begin(), all.begin() + 3)));
    EXPECT_TRUE(file.IsDamaged);
    EXPECT_EQ(file.Lost, 4u);
    EXPECT_TRUE(file.IsLostExact);
}

TEST(VersionFile, KeepsBehindADamageWhatNeedsNothingOfIt) {
    VersionFile whole = Seven();
    whole.Versions[4].Text = "another one\r\n";  // shares nothing, nor do those behind it with those ahead
    whole.Versions[5].Text = "another one\r\nand more\r\n";
    whole.Versions[6].Text = "another one\r\nand still more\r\n";
    Text bytes = WriteVersionFile(whole);
    bytes.replace(LineOf(bytes, 3) + 4, 40, 40, '\0');
    const VersionFile file = ReadVersionFile(bytes);
    EXPECT_EQ(TextsOf(file), (std::vector<Text>{whole.Versions[0].Text, whole.Versions[1].Text, whole.Versions[4].Text,
                                                whole.Versions[5].Text, whole.Versions[6].Text}));
    EXPECT_EQ(file.Lost, 2u);
}

TEST(VersionFile, KeepsBehindADamageWhatIsMadeAlikeOfTheLastThatCouldBeRead) {
    VersionFile file = {
        "s", {{kMorning, "a 1\r\nb\r\nc\r\n"}, {kMorning, "a 2\r\nb\r\nc\r\n"}, {kMorning, "a 3\r\nb\r\nc\r\n"}}};
    Text bytes = WriteVersionFile(file);
    bytes[LineOf(bytes, 2) + 62] = '#';
    EXPECT_EQ(TextsOf(ReadVersionFile(bytes)), (std::vector<Text>{file.Versions[0].Text, file.Versions[2].Text}));
}

TEST(VersionFile, TakesNoLineOfAScriptForAVersion) {
    const Text inner(kTwo.substr(kTwo.find("2026-")));
    Text bytes = WriteVersionFile({"s", {{kMorning, inner}, {kMorning, "bind x quit\r\n"}}});
    EXPECT_EQ(TextsOf(ReadVersionFile(bytes)), (std::vector<Text>{inner, "bind x quit\r\n"}));
}

TEST(VersionFile, TakesItsTimeWhateverAFileClaims) {
    Text bytes = "Lorvane 3D versions 2\ns\n";
    while (bytes.size() < (16U << 20U)) {
        bytes += "2026-11-23 08:52:11 whole 4194304 4194304 00000000 2 00000000\n";
    }
    const VersionFile file = ReadVersionFile(bytes);
    EXPECT_TRUE(file.IsDamaged);
    EXPECT_TRUE(file.Versions.empty());
}

TEST(VersionFile, TakesNoMoreThanItsBounds) {
    VersionFile many = {"s", {}};
    for (int i = 0; i < 60; ++i) {
        many.Versions.push_back({kMorning, std::to_string(i)});
    }
    EXPECT_EQ(ReadVersionFile(WriteVersionFile(many)).Versions.size(), kMostVersions);
    const VersionFile large = {"s", {{kMorning, Text(kLargestVersion + 1, 'x')}}};
    EXPECT_TRUE(ReadVersionFile(WriteVersionFile(large)).IsDamaged);
}

TEST(VersionFile, OneDamageCostsTenVersionsAtMost) {
    const VersionFile whole = Fifty(Bindings(100));
    const Text good = WriteVersionFile(whole);
    for (std::size_t version = 1; version <= 50; ++version) {
        for (const std::size_t into : {5U, 30U, 62U}) {  // the date, the sizes, the payload
            Text bad = good;
            const std::size_t at = LineOf(good, version) + into;
            bad[at] = static_cast<char>(bad[at] ^ 1);
            const VersionFile file = ReadVersionFile(bad);
            EXPECT_TRUE(file.IsDamaged) << version;
            EXPECT_TRUE(file.IsLostExact) << version;
            EXPECT_GE(file.Lost, 1U) << version;
            ASSERT_LE(file.Lost, 10U) << version;
            ASSERT_EQ(file.Versions.size(), 50 - file.Lost) << version;
            EXPECT_EQ(file.Versions.front().Text, whole.Versions[version == 1 ? 10 : 0].Text) << version;
        }
    }
}

TEST(VersionFile, ADamageOfTheNewestLeavesThoseThatNeedItNot) {
    const VersionFile whole = Fifty(Bindings(100));
    Text bytes = WriteVersionFile(whole);
    bytes[LineOf(bytes, 1) + 80] = '#';
    const std::vector<Text> all = TextsOf(whole);
    EXPECT_EQ(TextsOf(ReadVersionFile(bytes)), (std::vector<Text>(all.begin() + 10, all.end())));
}

TEST(VersionFile, EveryTenthOfAScriptIsWholeUpToABound) {
    const Text many(16U << 10U, '\n');
    const std::pair<Text, std::size_t> scripts[] = {
        {Bindings(100), 5}, {many.substr(9), 5}, {many, 1}, {Bindings(2000), 1}};
    for (const auto& [text, expected] : scripts) {
        const Text bytes = WriteVersionFile(Fifty(text));
        std::size_t count = 0;
        for (std::size_t at = bytes.find(" whole "); at != Text::npos; at = bytes.find(" whole ", at + 1)) {
            ++count;
        }
        EXPECT_EQ(count, expected) << text.size();
        EXPECT_LT(bytes.size(), text.size() + (64U << 10U) + 50 * 100) << text.size();
    }
}

TEST(VersionFile, SmallChangesTakeLittleRoom) {
    const Text text = Bindings(2000);
    EXPECT_LT(WriteVersionFile(Fifty(text)).size(), text.size() + 50 * 100);
}

}  // namespace lv
