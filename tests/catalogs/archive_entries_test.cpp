#include "catalogs/archive_entries.h"

#include <gtest/gtest.h>

#include "tests/catalogs/packed_files.h"
#include "tests/support/damage.h"

namespace lv {
namespace {

class Archive : public RandomAccessFile {
  public:
    explicit Archive(Text bytes) : bytes_(std::move(bytes)) {}
    [[nodiscard]] std::uint64_t Size() const override { return bytes_.size(); }
    Result<std::string> Read(std::uint64_t offset, std::size_t count) override {
        return offset >= bytes_.size() ? Text() : bytes_.substr(static_cast<std::size_t>(offset), count);
    }

  private:
    Text bytes_;
};

/// "name=content, name=content", or "none".
Text Listed(const Text& bytes, std::uint32_t most = 100) {
    Archive archive(bytes);
    const auto entries = ReadArchiveEntries(archive);
    Text all;
    for (const ArchiveEntry& entry : entries.value_or(std::vector<ArchiveEntry>())) {
        all += Join(all.empty() ? "" : ", ", entry.Name, "=", ReadArchiveEntry(archive, entry, most).value_or("none"));
    }
    return entries ? all : "none";
}

const Text kDeflatedA("\x4b\x04\x00", 3);  // "a"

}  // namespace

TEST(ReadArchiveEntries, KnowsPaksOfEitherSort) {
    EXPECT_EQ(Listed(PackedFiles({{"default.cfg", "unbindall\n"}, {"Gfx/x.lmp", ""}})),
              "default.cfg=unbindall\n, Gfx/x.lmp=");
    EXPECT_EQ(Listed(PackedFiles({{"default.cfg", "1"}, {"b", "2"}}, "SPAK")), "default.cfg=1, b=2");
}

TEST(ReadArchiveEntries, KnowsZips) {
    EXPECT_EQ(Listed(ZippedFiles({StoredFile("autoexec.cfg", "fov 90\n"), {"x/a.cfg", kDeflatedA, 1, 8}})),
              "autoexec.cfg=fov 90\n, x/a.cfg=a");
}

TEST(ReadArchiveEntries, IsNoneForOtherFiles) {
    EXPECT_EQ(Listed(""), "none");
    EXPECT_EQ(Listed("PACK"), "none");
    EXPECT_EQ(Listed("bind a b\n"), "none");
}

TEST(ReadArchiveEntry, GivesNothingLongerThanWanted) {
    EXPECT_EQ(Listed(PackedFiles({{"a", "12345"}}), 4), "a=none");
    EXPECT_EQ(Listed(ZippedFiles({StoredFile("a", "12345")}), 4), "a=none");
    EXPECT_EQ(Listed(ZippedFiles({StoredFile("a", "12345")}), 5), "a=12345");
}

TEST(ReadArchiveEntry, RefusesWhatIsNotAsLongAsItSays) {
    EXPECT_EQ(Listed(ZippedFiles({{"a", kDeflatedA, 2, 8}})), "a=none");
    EXPECT_EQ(Listed(ZippedFiles({{"a", "1234", 5, 0}})), "a=none");
    EXPECT_EQ(Listed(ZippedFiles({{"a", Text(2000, 'x'), 1, 8}})), "a=none");
}

TEST(ReadArchiveEntry, StaysWithinTheArchiveHoweverItIsDamaged) {
    for (const Text& bytes : {PackedFiles({{"a", "1234"}, {"b", "56"}}),
                              ZippedFiles({StoredFile("a", "12"), {"b", kDeflatedA, 1, 8}}, "note")}) {
        ForEachDamage(bytes, 0, [](TextView damaged) {
            Archive archive{Text(damaged)};
            for (const ArchiveEntry& entry : ReadArchiveEntries(archive).value_or(std::vector<ArchiveEntry>())) {
                const auto content = ReadArchiveEntry(archive, entry, 100);
                EXPECT_LE(content ? content->size() : 0, 100U);
            }
        });
    }
}

}  // namespace lv
