#include "platform/file_bytes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "platform/files.h"

namespace lv {

namespace {

/// A file that gives at most `piece` bytes a read.
struct Source {
    std::string Bytes;
    std::size_t Piece = 3;
    std::vector<std::size_t> Asked{};  // the room of each read

    ReadSome Reader() {
        return [this](char* room, std::size_t most, std::uint64_t at) -> Result<std::size_t> {
            Asked.push_back(most);
            if (at >= Bytes.size()) {
                return std::size_t{0};
            }
            const std::size_t count = std::min({Piece, most, Bytes.size() - static_cast<std::size_t>(at)});
            std::copy_n(Bytes.begin() + static_cast<std::ptrdiff_t>(at), count, room);
            return count;
        };
    }
};

Result<std::size_t> Fails(char*, std::size_t, std::uint64_t) {
    return MakeError(error::kDeviceFault);
}

/// A file without an end, of which no byte is kept.
Result<std::size_t> NeverEnds(char*, std::size_t most, std::uint64_t) {
    return most;
}

}  // namespace

TEST(ReadRange, JoinsThePiecesThatTheSystemGives) {
    Source source{"0123456789"};
    EXPECT_EQ(ReadRange(10, 2, 7, source.Reader()).Value, "2345678");
}

TEST(ReadRange, EndsWithTheFile) {
    Source source{"0123456789"};
    EXPECT_EQ(ReadRange(10, 8, 100, source.Reader()).Value, "89");
    EXPECT_EQ(ReadRange(10, 10, 1, source.Reader()).Value, "");
    EXPECT_EQ(ReadRange(10, UINT64_MAX, 1, source.Reader()).Value, "");
}

TEST(ReadRange, GivesWhatIsLeftOfAFileThatBecameShorter) {
    Source source{"0123"};
    EXPECT_EQ(ReadRange(10, 2, 7, source.Reader()).Value, "23");
}

TEST(ReadRange, TellsAReadThatFails) {
    EXPECT_EQ(ReadRange(10, 0, 1, Fails).Fault.Number, error::kDeviceFault);
}

TEST(ReadRange, MemoryThatThereIsNotIsAnError) {
    Source source{"0123"};
    EXPECT_EQ(ReadRange(UINT64_MAX, 0, SIZE_MAX, source.Reader()).Fault.Number, error::kOutOfMemory);
}

TEST(ReadWhole, JoinsThePiecesThatTheSystemGives) {
    Source source{"0123456789"};
    EXPECT_EQ(ReadWhole(10, source.Reader()).Value, "0123456789");
}

TEST(ReadWhole, AsksForNoMoreThanTheFileSaysAndItsEnd) {
    Source source{"0123456789", 100};
    EXPECT_EQ(ReadWhole(10, source.Reader()).Value, "0123456789");
    EXPECT_EQ(source.Asked, (std::vector<std::size_t>{11, 1}));
}

TEST(ReadWhole, GoesOnWhereAFileIsLongerThanItSays) {
    Source source{std::string(10'000, 'x'), 1000};
    EXPECT_EQ(ReadWhole(10, source.Reader()).Value.size(), 10'000U);
    EXPECT_EQ(ReadWhole(0, source.Reader()).Value.size(), 10'000U);
}

TEST(ReadWhole, AFileThatSaysTooMuchIsRefusedUnread) {
    Source source{"0123"};
    EXPECT_EQ(ReadWhole(kLargestWholeFile + 1, source.Reader()).Fault.Number, error::kOutOfMemory);
    EXPECT_TRUE(source.Asked.empty());
}

TEST(ReadWhole, AFileWithoutAnEndIsRefused) {
    EXPECT_EQ(ReadWhole(0, NeverEnds).Fault.Number, error::kOutOfMemory);
}

TEST(ReadWhole, TellsAReadThatFails) {
    EXPECT_EQ(ReadWhole(10, Fails).Fault.Number, error::kDeviceFault);
}

}  // namespace lv
