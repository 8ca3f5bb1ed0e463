#include "app/kept_output.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>

#include "tests/platform/scratch_directory.h"

namespace lv {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kMegabyte = 1'048'576;

/// Lines that tell their places apart, to this many bytes.
std::string Lines(std::size_t bytes) {
    std::string lines;
    for (int i = 0; lines.size() < bytes; ++i) {
        lines += std::to_string(i) + "\n";
    }
    lines.resize(bytes);
    return lines;
}

fs::perms ModeOf(const fs::path& path) {
    return fs::symlink_status(path).permissions();
}

/// No file grows beyond this many bytes for the life of the object, as on a disk that is full.
class FullDisk {
  public:
    explicit FullDisk(rlim_t bytes) : signal_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit now{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &now);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, signal_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

  private:
    void (*signal_)(int);
    rlimit before_{};
};

struct KeptOutputTest : testing::Test {
    ScratchDirectory Scratch;
    fs::path File = Scratch / "output";
    fs::path Beside = Scratch / "output.new";
};

}  // namespace

TEST_F(KeptOutputTest, IsWholeUpToAMegabyte) {
    const std::string lines = Lines(kMegabyte);
    KeptOutput output(File);
    EXPECT_EQ(BytesOf(File), "");
    output.Append(lines.substr(0, 70'000));
    EXPECT_EQ(BytesOf(File), lines.substr(0, 70'000));
    output.Append(lines.substr(70'000));
    EXPECT_EQ(BytesOf(File), lines);
}

TEST_F(KeptOutputTest, IsTheFirstPartAndTheLastOfMore) {
    const std::string lines = Lines(kMegabyte + 1);
    KeptOutput output(File);
    output.Append(lines);
    const std::string kept =
        lines.substr(0, 65'536) + "\n... (lines are left out here) ...\n" + lines.substr(kMegabyte - 458'752);
    EXPECT_EQ(BytesOf(File), kept);
    EXPECT_FALSE(fs::exists(Beside));
    EXPECT_TRUE(output.IsOurs());
}

TEST_F(KeptOutputTest, IsNeverMoreThanAMegabyteHoweverMuchComes) {
    const std::string piece = Lines(100'000);
    KeptOutput output(File);
    for (int i = 0; i < 60; ++i) {
        output.Append(piece);
        ASSERT_LE(fs::file_size(File), kMegabyte);
    }
    output.Append("the last line\n");
    const std::string kept = BytesOf(File);
    EXPECT_TRUE(kept.starts_with(piece.substr(0, 65'536)));
    EXPECT_TRUE(kept.ends_with(piece.substr(90'000) + "the last line\n"));
    EXPECT_GE(kept.size(), kMegabyte / 2);
}

TEST_F(KeptOutputTest, IsForThisUsersEyesAlone) {
    const mode_t mask = umask(0);
    KeptOutput output(File);
    EXPECT_EQ(ModeOf(File), fs::perms::owner_read | fs::perms::owner_write);
    output.Append(Lines(kMegabyte + 1));
    umask(mask);
    EXPECT_EQ(ModeOf(File), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(KeptOutputTest, OpensNothingThatStandsAtItsName) {
    WriteBytes(Scratch / "mine", "mine");
    WriteBytes(File, "of another");
    {
        KeptOutput output(File);
        EXPECT_FALSE(output.IsOurs());
        output.Append("words");
    }
    EXPECT_EQ(BytesOf(File), "of another");
    fs::remove(File);
    fs::create_symlink(Scratch / "mine", File);
    KeptOutput output(File);
    output.Append("words");
    EXPECT_FALSE(output.IsOurs());
    EXPECT_EQ(BytesOf(Scratch / "mine"), "mine");
}

TEST_F(KeptOutputTest, IsAnothersOnceItIsBegunAnew) {
    KeptOutput output(File);
    output.Append("of the first");
    EXPECT_TRUE(output.IsOurs());
    fs::remove(File);
    EXPECT_FALSE(output.IsOurs());
    WriteBytes(File, "of the second");
    EXPECT_FALSE(output.IsOurs());
    output.Append(Lines(3 * kMegabyte));
    EXPECT_EQ(BytesOf(File), "of the second");
    EXPECT_FALSE(fs::exists(Beside));
}

TEST_F(KeptOutputTest, ReplacesWhatWasLeftBesideItAndFollowsNoLinkThere) {
    WriteBytes(Scratch / "mine", "mine");
    fs::create_symlink(Scratch / "mine", Beside);
    KeptOutput output(File);
    output.Append(Lines(kMegabyte + 1));
    EXPECT_EQ(BytesOf(Scratch / "mine"), "mine");
    EXPECT_LT(fs::file_size(File), kMegabyte);
    EXPECT_FALSE(fs::exists(fs::symlink_status(Beside)));
}

TEST_F(KeptOutputTest, EndsWhereTheDiskIsFullAndKeepsWhatIsThere) {
    const std::string lines = Lines(150'000);
    KeptOutput output(File);
    {
        const FullDisk full(100'000);
        output.Append(lines);
    }
    output.Append("too late");
    EXPECT_EQ(BytesOf(File), lines.substr(0, 100'000));
}

TEST_F(KeptOutputTest, StaysAsItIsWhereThereIsNoRoomToMakeSome) {
    const std::string lines = Lines(kMegabyte);
    KeptOutput output(File);
    output.Append(lines);
    {
        const FullDisk full(300'000);
        output.Append("one more line\n");
    }
    EXPECT_EQ(BytesOf(File), lines);
    EXPECT_FALSE(fs::exists(Beside));
}

struct PutInPlaceTest : KeptOutputTest {};

TEST_F(PutInPlaceTest, ReplacesAFileInOneStep) {
    EXPECT_TRUE(PutInPlace(File, "one"));
    const fs::path linked = Scratch / "linked";
    fs::create_hard_link(File, linked);
    EXPECT_TRUE(PutInPlace(File, "two"));
    EXPECT_EQ(BytesOf(File), "two");
    EXPECT_EQ(BytesOf(linked), "one") << "written into, not replaced";
    EXPECT_EQ(ModeOf(File), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_FALSE(fs::exists(Beside));
}

TEST_F(PutInPlaceTest, ReplacesALinkAndLeavesWhatItLeadsTo) {
    WriteBytes(Scratch / "mine", "mine");
    fs::create_symlink(Scratch / "mine", File);
    EXPECT_TRUE(PutInPlace(File, "one"));
    EXPECT_FALSE(fs::is_symlink(File));
    EXPECT_EQ(BytesOf(File), "one");
    EXPECT_EQ(BytesOf(Scratch / "mine"), "mine");
}

TEST_F(PutInPlaceTest, LeavesNothingBesideWhereItFails) {
    fs::create_directory(File);
    EXPECT_FALSE(PutInPlace(File, "one"));
    EXPECT_FALSE(fs::exists(Beside));
    EXPECT_FALSE(PutInPlace(Scratch / "none/output", "one"));
    const FullDisk full(1);
    EXPECT_FALSE(PutInPlace(Scratch / "other", "two"));
    EXPECT_FALSE(fs::exists(Scratch / "other"));
    EXPECT_FALSE(fs::exists(Scratch / "other.new"));
}

}  // namespace lv
