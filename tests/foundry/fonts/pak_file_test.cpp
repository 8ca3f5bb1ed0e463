#include "foundry/fonts/pak_file.h"

#include "tests/foundry/fonts/font_files.h"

namespace lv {
namespace {

/// Says that it is of some size, and notes what is asked of it.
class WatchedArchive : public RandomAccessFile {
  public:
    explicit WatchedArchive(Text bytes) : bytes_(std::move(bytes)), SaidSize(bytes_.size()) {}
    [[nodiscard]] std::uint64_t Size() const override { return SaidSize; }
    Result<std::string> Read(std::uint64_t offset, std::size_t count) override {
        MostAsked = std::max(MostAsked, count);
        return offset >= bytes_.size() ? Text() : bytes_.substr(static_cast<std::size_t>(offset), count);
    }

  private:
    Text bytes_;

  public:
    std::uint64_t SaidSize;
    std::size_t MostAsked = 0;
};

Text Content(const Text& bytes, TextView name, std::uint32_t most = 100) {
    WatchedArchive archive(bytes);
    const auto content = ReadFromPak(archive, name, most);
    EXPECT_LE(archive.MostAsked, std::max(bytes.size(), std::size_t{12}));
    return content.value_or("none");
}

Text SmallPak() {
    return PackedFiles({{"gfx/a.lmp", "AAAA"}, {"gfx/b.lmp", "BBBBBB"}});
}

TEST(ReadFromPak, FindsAFileByItsName) {
    EXPECT_EQ(Content(SmallPak(), "gfx/a.lmp"), "AAAA");
    EXPECT_EQ(Content(SmallPak(), "gfx/b.lmp"), "BBBBBB");
    EXPECT_EQ(Content(SmallPak(), "b.lmp"), "none");
}

TEST(ReadFromPak, KnowsSinsLongerEntries) {
    const Text name = "pics/" + Text(100, 'x') + ".pcx";
    EXPECT_EQ(Content(PackedFiles({{"a", "1"}, {name, "2"}}, "SPAK"), name), "2");
}

TEST(ReadFromPak, IsBlindToLetterCase) {
    EXPECT_EQ(Content(PackedFiles({{"GFX/Palette.LMP", "colours"}}), "gfx/palette.lmp"), "colours");
}

TEST(ReadFromPak, KnowsNamesThatFillTheirField) {
    const Text name(56, 'n');
    EXPECT_EQ(Content(PackedFiles({{name, "1"}}), name), "1");
}

TEST(ReadFromPak, TakesTheFirstOfTwo) {
    EXPECT_EQ(Content(PackedFiles({{"a", "1"}, {"a", "2"}}), "a"), "1");
}

TEST(ReadFromPak, ReadsEmptyFilesAndEmptyArchives) {
    EXPECT_EQ(Content(PackedFiles({{"a", ""}}), "a"), "");
    EXPECT_EQ(Content(PackedFiles({}), "a"), "none");
}

TEST(ReadFromPak, ReadsNothingLongerThanWanted) {
    EXPECT_EQ(Content(SmallPak(), "gfx/b.lmp", 6), "BBBBBB");
    EXPECT_EQ(Content(SmallPak(), "gfx/b.lmp", 5), "none");
}

TEST(ReadFromPak, RefusesAFileThatLiesOutside) {
    Text pak = PackedFiles({{"a", "1234"}});  // 80 bytes, the entry from 16 on
    pak.replace(16 + 56, 4, Bytes32(76));
    EXPECT_EQ(Content(pak, "a").size(), 4U);
    pak.replace(16 + 56, 4, Bytes32(77));
    EXPECT_EQ(Content(pak, "a"), "none");
    pak.replace(16 + 56, 4, Bytes32(0xFFFFFFFF));
    EXPECT_EQ(Content(pak, "a"), "none");
    pak.replace(16 + 56, 8, Bytes32(0) + Bytes32(0xFFFFFFFF));
    EXPECT_EQ(Content(pak, "a", 0xFFFFFFFF), "none");
}

TEST(ReadFromPak, RefusesADirectoryThatLiesOutside) {
    Text pak = SmallPak();
    pak.replace(8, 4, Bytes32(129));
    EXPECT_EQ(Content(pak, "gfx/a.lmp"), "none");
    pak = SmallPak();
    pak.replace(4, 4, Bytes32(0xFFFFFFFF));
    EXPECT_EQ(Content(pak, "gfx/a.lmp"), "none");
}

TEST(ReadFromPak, LeavesOutTheRestOfADirectoryThatIsNoEntry) {
    Text pak = SmallPak();
    pak.replace(8, 4, Bytes32(127));
    EXPECT_EQ(Content(pak, "gfx/a.lmp"), "AAAA");
    EXPECT_EQ(Content(pak, "gfx/b.lmp"), "none");
}

TEST(ReadFromPak, ReadsNoDirectoryOfMoreThanFourMegabytes) {
    WatchedArchive archive(Text("PACK") + Bytes32(12) + Bytes32((4U << 20U) + 64));
    archive.SaidSize = std::uint64_t{1} << 32U;
    EXPECT_FALSE(ReadFromPak(archive, "a", 100));
    EXPECT_EQ(archive.MostAsked, 12U);
}

TEST(ReadFromPak, ReadsADirectoryOfFourMegabytes) {
    std::vector<Packed> files(65536, {"x", ""});
    files.back() = {"a", "1"};
    EXPECT_EQ(Content(PackedFiles(files), "a"), "1");
    files.push_back({"b", "2"});
    EXPECT_EQ(Content(PackedFiles(files), "a"), "none");
}

TEST(ReadFromPak, RefusesAnArchiveThatEndsWhereItSaidItDoesNot) {
    WatchedArchive archive(SmallPak().substr(0, 60));
    archive.SaidSize = 1000;
    EXPECT_FALSE(ReadFromPak(archive, "gfx/a.lmp", 100));
}

TEST(ReadFromPak, RefusesOtherFiles) {
    EXPECT_EQ(Content("", "a"), "none");
    EXPECT_EQ(Content("PACK", "a"), "none");
    EXPECT_EQ(Content(PackedFiles({{"a", "1"}}, "PKZP"), "a"), "none");
}

TEST(ReadFromPak, StaysWithinTheArchiveHoweverItIsDamaged) {
    for (const char* magic : {"PACK", "SPAK"}) {
        ForEachDamage(PackedFiles({{"a", "1234"}, {"b", "56"}}, magic), 0, [](TextView bytes) {
            WatchedArchive archive{Text(bytes)};
            for (const TextView name : {"a", "b"}) {
                const auto content = ReadFromPak(archive, name, 100);
                EXPECT_LE(content ? content->size() : 0, bytes.size());
            }
            EXPECT_LE(archive.MostAsked, std::max(bytes.size(), std::size_t{12}));
        });
    }
}

}  // namespace
}  // namespace lv
