#include "catalogs/pak_directory.h"

#include <iterator>
#include <random>

#include "tests/catalogs/catalogs_fixture.h"
#include "tests/catalogs/pak_file.h"

namespace lv {
namespace {

// Notes the largest stretch that was asked for.
class WatchedFile : public RandomAccessFile {
  public:
    explicit WatchedFile(Text bytes) : bytes_(std::move(bytes)) {}
    [[nodiscard]] std::uint64_t Size() const override { return bytes_.size(); }
    Result<std::string> Read(std::uint64_t offset, std::size_t count) override {
        MostAsked = std::max(MostAsked, count);
        ++Reads;
        return offset >= bytes_.size() ? Text() : bytes_.substr(static_cast<std::size_t>(offset), count);
    }

    std::size_t MostAsked = 0;
    int Reads = 0;

  private:
    Text bytes_;
};

TextList MapsOf(const Text& bytes, TextView magic = "PACK") {
    WatchedFile file(bytes);
    TextList names = PakMapNames(file, magic);
    EXPECT_LE(file.MostAsked, std::max(bytes.size(), kPakHeaderSize));
    EXPECT_LE(names.size(), bytes.size() / 64 + 1);
    return names;
}

TEST(PakMapNames, AreThoseOfTheMapsDirectory) {
    EXPECT_EQ(MapsOf(PakFile({"progs.dat", "maps/e1m1.bsp", "maps/start.bsp"})), (TextList{"e1m1", "start"}));
}

TEST(PakMapNames, OfAnArchiveWithoutMapsAreNone) {
    EXPECT_EQ(MapsOf(PakFile({"progs.dat", "gfx/a.lmp"})), TextList{});
}

TEST(PakMapNames, LeaveTheModelsOut) {
    EXPECT_EQ(MapsOf(PakFile({"maps/b_shell.bsp", "maps/base1.bsp", "maps/B_up.bsp"})), (TextList{"base1", "B_up"}));
}

TEST(PakMapNames, MatchAnywhereInTheEntry) {
    EXPECT_EQ(MapsOf(PakFile({"pics/maps/x.bsp"})), (TextList{"x"}));
}

TEST(PakMapNames, WantTheMapsDirectory) {
    EXPECT_EQ(MapsOf(PakFile({"foo.bsp", "foo.bsp/maps/"})), TextList{});
}

TEST(MapNameOfEntry, IsNothingWhenTheExtensionComesFirst) {
    EXPECT_FALSE(MapNameOfEntry("foo.bsp/maps/x"));
    EXPECT_FALSE(MapNameOfEntry("foo.bsp/maps/x.bsp"));
}

TEST(MapNameOfEntry, LooksAtTheNumbersBehindThePathToo) {
    // The path fills its 56 bytes, and the offset of the data happens to spell the extension.
    EXPECT_EQ(MapNameOfEntry("maps/" + Text(51, 'x') + ".bsp" + LittleEndian(4)), Text(51, 'x'));
}

TEST(PakMapNames, KeepASubdirectory) {
    EXPECT_EQ(MapsOf(PakFile({"maps/dm/one.bsp"})), (TextList{"dm/one"}));
}

TEST(PakMapNames, AreCaseSensitive) {
    EXPECT_EQ(MapsOf(PakFile({"MAPS/a.bsp", "maps/a.BSP", "maps/MiXed.bsp"})), (TextList{"MiXed"}));
}

TEST(PakMapNames, EndAtTheFirstExtension) {
    EXPECT_EQ(MapsOf(PakFile({"maps/a.bsp.bsp"})), (TextList{"a"}));
}

TEST(PakMapNames, MayBeEmpty) {
    EXPECT_EQ(MapsOf(PakFile({"maps/.bsp"})), (TextList{""}));
}

TEST(PakMapNames, ThatWouldBreakAListAreDropped) {
    EXPECT_EQ(MapsOf(PakFile({"maps/a;b.bsp", "maps/a\nb.bsp", Text("maps/a\0b.bsp", 12), "maps/ok.bsp"})),
              (TextList{"ok"}));
}

TEST(PakMapNames, OfAnotherMagicAreNone) {
    EXPECT_EQ(MapsOf(PakFile({"maps/a.bsp"}), "SPAK"), TextList{});
    EXPECT_EQ(MapsOf(PakFile({"maps/a.bsp"}, "SPAK"), "SPAK"), (TextList{"a"}));
    EXPECT_EQ(MapsOf(PakFile({"maps/a.bsp"}, "pack")), TextList{});
}

TEST(PakMapNames, AreReadInBlocks) {
    WatchedFile file(PakFile(TextList(20'000, "maps/a.bsp")));
    EXPECT_EQ(PakMapNames(file, "PACK").size(), 20'000U);
    EXPECT_EQ(file.Reads, 21);  // the header, and 1,024 entries at a time
    EXPECT_EQ(file.MostAsked, 65536U);
}

/// Gives nothing but zeros, as a file that is a single hole does, and notes what was read of it.
class Hole : public RandomAccessFile {
  public:
    explicit Hole(std::uint64_t size) : size_(size) {}
    [[nodiscard]] std::uint64_t Size() const override { return size_; }
    Result<std::string> Read(std::uint64_t offset, std::size_t count) override {
        MostAsked = std::max(MostAsked, count);
        Text bytes(static_cast<std::size_t>(std::min<std::uint64_t>(count, size_ - offset)), '\0');
        Total += bytes.size();
        const Text header = "PACK" + LittleEndian(12) + LittleEndian(0xFFFFFFF0);
        return offset == 0 ? bytes.replace(0, 12, header) : bytes;
    }
    std::size_t MostAsked = 0;
    std::uint64_t Total = 0;

  private:
    std::uint64_t size_;
};

TEST(PakMapNames, OfAnArchiveThatClaimsFourGigabytesAreLookedForInFourMegabytes) {
    Hole hole(4ULL << 30U);
    EXPECT_EQ(PakMapNames(hole, "PACK"), TextList{});
    EXPECT_EQ(hole.MostAsked, 65536U);
    EXPECT_EQ(hole.Total, 12U + 65536 * 64);
}

TEST(PakMapNames, AreNoMoreThanAreAskedFor) {
    WatchedFile file(PakFile(TextList(20'000, "maps/a.bsp")));
    EXPECT_EQ(PakMapNames(file, "PACK", 3).size(), 3U);
    EXPECT_EQ(file.Reads, 2);
    EXPECT_EQ(PakMapNames(file, "PACK", 0).size(), 0U);
}

TEST(PakMapNames, EndWhereAReadFails) {
    class Failing : public WatchedFile {
      public:
        using WatchedFile::WatchedFile;
        Result<std::string> Read(std::uint64_t offset, std::size_t count) override {
            return Reads == 3 ? MakeError(error::kDiskNotReady) : WatchedFile::Read(offset, count);
        }
    };
    Failing file(PakFile(TextList(20'000, "maps/a.bsp")));
    EXPECT_EQ(PakMapNames(file, "PACK").size(), 2048U);
}

TEST(PakFormats, AreIdSoftwaresAndSins) {
    ASSERT_EQ(std::size(kPakFormats), 2U);
    EXPECT_EQ(kPakFormats[0].Magic, "PACK");
    EXPECT_EQ(kPakFormats[0].NameSize, 56U);
    EXPECT_EQ(kPakFormats[0].EntrySize, 64U);
    EXPECT_EQ(kPakFormats[1].Magic, "SPAK");
    EXPECT_EQ(kPakFormats[1].NameSize, 120U);
    EXPECT_EQ(kPakFormats[1].EntrySize, 128U);
}

TEST(FormatOfPak, IsToldByTheMagicOfAWholeHeader) {
    EXPECT_EQ(FormatOfPak(PakFile({"a"})), &kPakFormats[0]);
    EXPECT_EQ(FormatOfPak(SinFile({"a"})), &kPakFormats[1]);
    EXPECT_EQ(FormatOfPak(PakFile({"a"}, "KCAP")), nullptr);
    EXPECT_EQ(FormatOfPak(PakFile({"a"}).substr(0, 11)), nullptr);
    EXPECT_EQ(FormatOfPak(""), nullptr);
}

TEST(PlaceOfEntry, StandsBehindTheNameOfEachFormat) {
    const Text numbers = LittleEndian(0xF1020304) + LittleEndian(0x8000000A);
    EXPECT_EQ(PlaceOfEntry(Text(56, 'x') + numbers, kPakFormats[0]).Offset, 0xF1020304U);
    EXPECT_EQ(PlaceOfEntry(Text(56, 'x') + numbers, kPakFormats[0]).Length, 0x8000000AU);
    EXPECT_EQ(PlaceOfEntry(Text(120, 'x') + numbers, kPakFormats[1]).Offset, 0xF1020304U);
    EXPECT_EQ(PlaceOfEntry(Text(120, 'x') + numbers, kPakFormats[1]).Length, 0x8000000AU);
}

TEST(PakEntryCount, IsRoundedToAWholeNumber) {
    EXPECT_EQ(PakEntryCount(0), 0U);
    EXPECT_EQ(PakEntryCount(31), 0U);
    EXPECT_EQ(PakEntryCount(32), 0U);  // a half goes to the even number
    EXPECT_EQ(PakEntryCount(33), 1U);
    EXPECT_EQ(PakEntryCount(64), 1U);
    EXPECT_EQ(PakEntryCount(95), 1U);
    EXPECT_EQ(PakEntryCount(96), 2U);
    EXPECT_EQ(PakEntryCount(160), 2U);
    EXPECT_EQ(PakEntryCount(161), 3U);
    EXPECT_EQ(PakEntryCount(4294967295U), 67108864U);
}

Text WithHeader(Text file, std::uint32_t offset, std::uint32_t length) {
    return file.replace(4, 8, LittleEndian(offset) + LittleEndian(length));
}

TEST(PakMapNames, OfALengthThatIsRoundedUpReachBehindIt) {
    const Text file = PakFile({"maps/a.bsp", "maps/b.bsp"});
    EXPECT_EQ(MapsOf(WithHeader(file, 16, 100)), (TextList{"a", "b"}));
    EXPECT_EQ(MapsOf(WithHeader(file, 16, 70)), (TextList{"a"}));
}

TEST(PakMapNames, OfAnEntryCutByTheEndOfTheFileAreRead) {
    const Text file = PakFile({"maps/a.bsp", "maps/b.bsp"});
    EXPECT_EQ(MapsOf(file.substr(0, 16 + 64 + 20)), (TextList{"a", "b"}));
    EXPECT_EQ(MapsOf(file.substr(0, 16 + 64 + 9)), (TextList{"a"}));
}

TEST(PakMapNames, OfAFourGigabyteLengthCostNoMoreThanTheFile) {
    EXPECT_EQ(MapsOf(WithHeader(PakFile({"maps/a.bsp", "maps/b.bsp"}), 16, 0xFFFFFFFF)), (TextList{"a", "b"}));
}

TEST(PakMapNames, OfAnOffsetBehindTheEndAreNone) {
    const Text file = PakFile({"maps/a.bsp"});
    EXPECT_EQ(MapsOf(WithHeader(file, 0xFFFFFFFF, 64)), TextList{});
    EXPECT_EQ(MapsOf(WithHeader(file, 0xFFFFFFFF, 0xFFFFFFFF)), TextList{});
    EXPECT_EQ(MapsOf(WithHeader(file, 80, 64)), TextList{});  // just behind the last byte
}

TEST(PakMapNames, OfAnOffsetIntoTheHeaderAreWhatStandsThere) {
    EXPECT_EQ(MapsOf(WithHeader(PakFile({"maps/a.bsp"}), 0, 64)), (TextList{"a"}));
}

TEST(PakMapNames, OfALengthOfZeroAreNone) {
    EXPECT_EQ(MapsOf(WithHeader(PakFile({"maps/a.bsp"}), 16, 0)), TextList{});
}

TEST(PakMapNames, OfAnArchiveCutAnywhereAreItsOwnEntries) {
    const Text file = PakFile({"maps/a.bsp", "maps/b.bsp", "maps/c.bsp"});
    const TextList whole = {"a", "b", "c"};
    std::size_t before = 0;
    for (std::size_t length = 0; length <= file.size(); ++length) {
        const TextList names = MapsOf(file.substr(0, length));
        ASSERT_LE(names.size(), 3U);
        EXPECT_GE(names.size(), before);
        EXPECT_EQ(names, TextList(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(names.size())));
        before = names.size();
    }
    EXPECT_EQ(before, 3U);
}

TEST(PakMapNames, OfEachDamagedHeaderByteAreBounded) {
    const Text file = PakFile({"maps/a.bsp", "maps/b.bsp", "maps/c.bsp"});
    for (std::size_t at = 0; at < 12; ++at) {
        for (int value = 0; value < 256; ++value) {
            Text damaged = file;
            damaged[at] = static_cast<char>(value);
            const TextList names = MapsOf(damaged);
            if (at < 4 && damaged[at] != file[at]) {
                EXPECT_EQ(names, TextList{});
            }
        }
    }
}

TEST(PakMapNames, OfRandomBytesAreBounded) {
    std::mt19937 random(64);
    for (int round = 0; round < 500; ++round) {
        Text bytes = "PACK" + LittleEndian(static_cast<std::uint32_t>(random() % 600)) +
                     LittleEndian(static_cast<std::uint32_t>(random()));
        while (bytes.size() < 500) {
            bytes += random() % 8 == 0   ? Text("maps/")
                     : random() % 8 == 0 ? Text(".bsp")
                                         : Text(1, static_cast<char>(random() % 256));
        }
        for (const Text& name : MapsOf(bytes)) {
            EXPECT_TRUE(FitsAField(name));
        }
    }
}

}  // namespace
}  // namespace lv
