#include "foundry/versions/version_record.h"

#include <gtest/gtest.h>

namespace lv {

namespace {

constexpr TextView kNew = "2026-11-23 08:52:11 whole 27 27 22e5e084 2 6d659085";
constexpr TextView kOld = "2026-11-22 20:01:45 delta 13 5 8d9609ad";

bool IsRead(TextView line, RecordForm form = RecordForm::Either) {
    return ReadRecordHead(line, form).has_value();
}

}  // namespace

TEST(VersionRecord, IsALineThePayloadAndALineFeed) {
    const ScriptVersion version = {{2026, 11, 23, 8, 52, 11}, "bind x quit\r\nbind y +jump\r\n"};
    EXPECT_EQ(RecordOf(version, nullptr, 2), Text(kNew) + "\nbind x quit\r\nbind y +jump\r\n\n");
    const Text newer = "bind x quit\r\nbind y +jump\r\n";
    EXPECT_EQ(RecordOf({{2026, 11, 22, 20, 1, 45}, "bind x quit\r\n"}, &newer, 2),
              "2026-11-22 20:01:45 delta 13 5 8d9609ad 2 ed9f031e\n=0 1\n\n");
}

TEST(VersionRecord, IsWholeWhereTheDifferenceIsNoShorter) {
    const Text newer = "bind x quit\r\n";
    EXPECT_NE(RecordOf({{}, "wait\r\n"}, &newer, 1).find(" whole 6 6 "), Text::npos);
}

TEST(VersionRecord, SaysWhatItIs) {
    const auto head = ReadRecordHead(kNew, RecordForm::New);
    ASSERT_TRUE(head);
    EXPECT_EQ(head->Date.Minute, 52);
    EXPECT_TRUE(head->IsWhole);
    EXPECT_EQ(head->TextSize, 27u);
    EXPECT_EQ(head->PayloadSize, 27u);
    EXPECT_EQ(head->Sum, 0x22e5e084u);
    EXPECT_EQ(head->Total, 2u);
    EXPECT_EQ(head->Checked, kNew.substr(0, kNew.rfind(' ') + 1));
    const auto old = ReadRecordHead(kOld, RecordForm::Old);
    ASSERT_TRUE(old);
    EXPECT_FALSE(old->IsWhole);
    EXPECT_EQ(old->Total, 0u);
}

TEST(VersionRecord, CountsInAFileOfItsFormAlone) {
    EXPECT_TRUE(IsRead(kNew));
    EXPECT_TRUE(IsRead(kOld));
    EXPECT_FALSE(IsRead(kNew, RecordForm::Old));
    EXPECT_FALSE(IsRead(kOld, RecordForm::New));
}

TEST(VersionRecord, IsNoneOfAnotherShapeOrBeyondTheBounds) {
    for (const TextView line : {
             TextView("bind x quit"),
             TextView(""),
             TextView("2026-13-22 20:01:45 delta 13 5 8d9609ad"),
             TextView("2026-11-22 20:01:45 other 13 5 8d9609ad"),
             TextView("2026-11-22 20:01:45 delta 13 5 8d9609ad 2"),
             TextView("2026-11-22 20:01:45 delta 13 5 8d9609ad 0 00000000"),
             TextView("2026-11-22 20:01:45 delta 13 5 8d9609ad 51 00000000"),
             TextView("2026-11-22 20:01:45 delta 13 5 8d9609ad 2 00000000 x"),
             TextView("2026-11-22 20:01:45 delta 4194305 5 8d9609ad"),
             TextView("2026-11-22 20:01:45 delta 13 8388609 8d9609ad"),
         }) {
        EXPECT_FALSE(IsRead(line)) << line;
    }
}

}  // namespace lv
