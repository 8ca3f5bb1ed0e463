#include "catalogs/archive_names.h"

#include <random>

#include "tests/catalogs/catalogs_fixture.h"
#include "tests/catalogs/pak_file.h"

namespace lv {
namespace {

// Notes the largest stretch that was asked for.
class WatchedArchive : public RandomAccessFile {
  public:
    explicit WatchedArchive(Text bytes) : bytes_(std::move(bytes)) {}
    [[nodiscard]] std::uint64_t Size() const override { return bytes_.size(); }
    Result<std::string> Read(std::uint64_t offset, std::size_t count) override {
        MostAsked = std::max(MostAsked, count);
        return offset >= bytes_.size() ? Text() : bytes_.substr(static_cast<std::size_t>(offset), count);
    }

    std::size_t MostAsked = 0;

  private:
    Text bytes_;
};

/// An archive of one entry whose file lies there.
Text Holding(std::uint32_t offset, std::uint32_t length) {
    Text bytes = PakFile({"a"});
    bytes.replace(16 + 56, 8, LittleEndian(offset) + LittleEndian(length));
    return bytes;
}

TextList NamesOf(const Text& bytes) {
    WatchedArchive archive(bytes);
    TextList names = ArchiveEntryNames(archive);
    EXPECT_LE(archive.MostAsked, std::max<std::size_t>(bytes.size(), 12));
    EXPECT_LE(names.size(), bytes.size() / 64 + 1);
    return names;
}

TEST(ArchiveEntryNames, AreThoseOfTheDirectoryInItsOrder) {
    EXPECT_EQ(NamesOf(PakFile({"players/male/tris.md2", "default.cfg", "players/Male/GRUNT.pcx"})),
              (TextList{"players/male/tris.md2", "default.cfg", "players/Male/GRUNT.pcx"}));
}

TEST(ArchiveEntryNames, OfSinsArchivesAreLonger) {
    const Text longName = "models/" + Text(90, 'x') + ".def";
    EXPECT_EQ(NamesOf(SinFile({longName, "b.cfg"})), (TextList{longName, "b.cfg"}));
}

TEST(ArchiveEntryNames, MayFillTheirWholeField) {
    EXPECT_EQ(NamesOf(PakFile({Text(56, 'a'), "b"})), (TextList{Text(56, 'a'), "b"}));
    EXPECT_EQ(NamesOf(SinFile({Text(120, 'a')})), (TextList{Text(120, 'a')}));
}

TEST(ArchiveEntryNames, EndAtTheirFirstZero) {
    EXPECT_EQ(NamesOf(PakFile({Text("a.cfg\0rest", 10)})), (TextList{"a.cfg"}));
}

TEST(ArchiveEntryNames, LeaveOutWhatIsNoFileName) {
    EXPECT_EQ(NamesOf(PakFile({"", "/a", "a/", "a//b", "../a", "a/../b", "./a", "a/.", "c:/a", "a\\b", "a\"; quit",
                               "a*", "a?", "a|b", "a<b", "a>b", "a\nb", "a\x01", "good/..name/x.y"})),
              (TextList{"good/..name/x.y"}));
}

TEST(ArchiveEntryNames, LeaveOutFilesBeyondTheEnd) {
    EXPECT_EQ(NamesOf(Holding(16, 64)), (TextList{"a"}));
    EXPECT_EQ(NamesOf(Holding(16, 65)), TextList{});
    EXPECT_EQ(NamesOf(Holding(0xffffffff, 0xffffffff)), TextList{});
}

TEST(ArchiveEntryNames, OfAnotherFileAreNone) {
    EXPECT_EQ(NamesOf(""), TextList{});
    EXPECT_EQ(NamesOf("PACK"), TextList{});
    EXPECT_EQ(NamesOf("PK\x03\x04 a zip archive of today"), TextList{});
    EXPECT_EQ(NamesOf(PakFile({"a"}, "KCAP")), TextList{});
}

TEST(ArchiveEntryNames, OfADirectoryBehindTheEndAreNone) {
    EXPECT_EQ(NamesOf("PACK" + LittleEndian(0xfffffff0) + LittleEndian(64)), TextList{});
    EXPECT_EQ(NamesOf("PACK" + LittleEndian(12) + LittleEndian(64)), TextList{});
}

TEST(ArchiveEntryNames, OfACutDirectoryAreThoseThatAreWhole) {
    Text bytes = PakFile({"a", "b", "c"});
    bytes.resize(bytes.size() - 1);
    EXPECT_EQ(NamesOf(bytes), (TextList{"a", "b"}));
}

TEST(ArchiveEntryNames, OfADirectoryThatClaimsMoreAreThoseItHas) {
    Text bytes = PakFile({"a", "b"});
    bytes.replace(8, 4, LittleEndian(0xffffffff));
    EXPECT_EQ(NamesOf(bytes), (TextList{"a", "b"}));
}

TEST(ArchiveEntryNames, AreNoMoreThanAnyGameReads) {
    TextList names(kMostArchiveEntries + 3, "x");
    EXPECT_EQ(NamesOf(PakFile(names)).size(), 20000U);
}

TEST(ArchiveEntryNames, SurviveAnyDamage) {
    const Text whole = PakFile({"players/male/grunt.pcx", "players/female/athena.pcx", "default.cfg"});
    std::mt19937 random(7);
    for (int round = 0; round < 2000; ++round) {
        Text damaged = whole.substr(0, random() % (whole.size() + 1));
        for (int i = 0; i < 4 && !damaged.empty(); ++i) {
            damaged[random() % damaged.size()] = static_cast<char>(random());
        }
        for (const Text& name : NamesOf(damaged)) {
            EXPECT_EQ(name.find_first_of("\\\"*:<>?|"), Text::npos);
            EXPECT_FALSE(name.empty());
        }
    }
}

}  // namespace
}  // namespace lv
