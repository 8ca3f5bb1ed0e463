#include "foundry/versions/version_file.h"

#include <gtest/gtest.h>

#include "foundation/field_strings.h"

namespace lv {

namespace {

const LocalTime kMorning = {2026, 11, 23, 8, 52, 11};
const LocalTime kEvening = {2026, 11, 22, 20, 1, 45};

constexpr TextView kTwo =
    "Lorvane 3D versions 1\n"
    "C:\\QUAKE\\ID1\\my.cfg\n"
    "2026-11-23 08:52:11 whole 27 27 22e5e084\n"
    "bind x quit\r\nbind y +jump\r\n\n"
    "2026-11-22 20:01:45 delta 13 5 8d9609ad\n"
    "=0 1\n\n";

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

TEST(VersionFile, AnEmptyFileHasNoVersions) {
    EXPECT_TRUE(ReadVersionFile("").Versions.empty());
    EXPECT_FALSE(ReadVersionFile("").IsDamaged);
}

TEST(VersionFile, KeepsWhatIsIntactAtEveryCut) {
    for (std::size_t length = 1; length < kTwo.size(); ++length) {
        const VersionFile file = ReadVersionFile(kTwo.substr(0, length));
        const bool isWholeVersions = length == kTwo.find("2026-11-23") || length == kTwo.find("2026-11-22");
        EXPECT_EQ(file.IsDamaged, !isWholeVersions) << length;
        EXPECT_LE(file.Versions.size(), 1u) << length;
    }
}

TEST(VersionFile, FindsEveryByteThatIsAnotherOne) {
    const Text good(kTwo);
    for (std::size_t at = 0; at < good.size(); ++at) {
        Text bad = good;
        bad[at] = static_cast<char>(bad[at] ^ 1);
        const VersionFile file = ReadVersionFile(bad);
        for (const ScriptVersion& version : file.Versions) {
            EXPECT_TRUE(version.Text == "bind x quit\r\nbind y +jump\r\n" || version.Text == "bind x quit\r\n") << at;
        }
    }
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

TEST(VersionFile, SmallChangesTakeLittleRoom) {
    Text text;
    for (int i = 0; i < 2000; ++i) {
        text += Join("bind ", std::to_string(i), " \"impulse ", std::to_string(i), "\"\r\n");
    }
    VersionFile day = {"s", {}};
    for (int i = 0; i < 50; ++i) {
        day.Versions.push_back({kMorning, Join(text, "echo ", std::to_string(i), "\r\n")});
    }
    EXPECT_LT(WriteVersionFile(day).size(), text.size() + 50 * 100);
}

}  // namespace lv
