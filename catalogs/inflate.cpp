#include "catalogs/inflate.h"

#include <array>
#include <cstdint>
#include <span>

namespace lv {

namespace {

constexpr unsigned kLongestCode = 15;
constexpr std::size_t kMostLiterals = 288;  // and lengths
constexpr std::size_t kMostDistances = 30;
constexpr std::size_t kMostCodes = 320;
constexpr unsigned kEndOfBlock = 256;
constexpr unsigned kFirstLength = 257;

struct BaseRow {
    std::uint16_t Base;
    std::uint8_t MoreBits;
};

constexpr std::array<BaseRow, 29> kLengths = {{
    {3, 0},  {4, 0},  {5, 0},  {6, 0},   {7, 0},   {8, 0},   {9, 0},   {10, 0},  {11, 1},  {13, 1},
    {15, 1}, {17, 1}, {19, 2}, {23, 2},  {27, 2},  {31, 2},  {35, 3},  {43, 3},  {51, 3},  {59, 3},
    {67, 4}, {83, 4}, {99, 4}, {115, 4}, {131, 5}, {163, 5}, {195, 5}, {227, 5}, {258, 0},
}};

constexpr std::array<BaseRow, kMostDistances> kDistances = {{
    {1, 0},     {2, 0},     {3, 0},     {4, 0},      {5, 1},      {7, 1},      {9, 2},     {13, 2},
    {17, 3},    {25, 3},    {33, 4},    {49, 4},     {65, 5},     {97, 5},     {129, 6},   {193, 6},
    {257, 7},   {385, 7},   {513, 8},   {769, 8},    {1025, 9},   {1537, 9},   {2049, 10}, {3073, 10},
    {4097, 11}, {6145, 11}, {8193, 12}, {12289, 12}, {16385, 13}, {24577, 13},
}};

/// How the lengths of the codes are coded themselves, and in which order they come.
constexpr std::array<std::uint8_t, 19> kLengthOrder = {16, 17, 18, 0, 8,  7, 9,  6, 10, 5,
                                                       11, 4,  12, 3, 13, 2, 14, 1, 15};

/// Bits from the lowest of each byte on. Behind the end there are none, and Failed is set.
class BitReader {
  public:
    explicit BitReader(TextView bytes) : bytes_(bytes) {}

    unsigned Bits(unsigned count) {
        while (held_ < count) {
            if (at_ >= bytes_.size()) {
                Failed = true;
                return 0;
            }
            bits_ |= static_cast<std::uint32_t>(static_cast<unsigned char>(bytes_[at_++])) << held_;
            held_ += 8;
        }
        const unsigned bits = bits_ & ((1U << count) - 1U);
        bits_ >>= count;
        held_ -= count;
        return bits;
    }

    /// From the next whole byte on.
    TextView Bytes(std::size_t count) {
        bits_ = held_ = 0;
        Failed = Failed || count > bytes_.size() - at_;
        if (Failed) {
            return {};
        }
        at_ += count;
        return bytes_.substr(at_ - count, count);
    }

    bool Failed = false;

  private:
    TextView bytes_;
    std::size_t at_ = 0;
    std::uint32_t bits_ = 0;
    unsigned held_ = 0;
};

/// Codes in the order of their lengths, and of their symbols among those of a length.
class CodeTable {
  public:
    /// False if there are more codes than their lengths allow.
    bool Take(std::span<const std::uint8_t> lengths) {
        counts_.fill(0);
        for (const std::uint8_t length : lengths) {
            ++counts_[length];
        }
        counts_[0] = 0;
        std::array<std::uint16_t, kLongestCode + 2> first{};
        int left = 1;
        for (unsigned length = 1; length <= kLongestCode; ++length) {
            left = left * 2 - counts_[length];
            if (left < 0) {
                return false;
            }
            first[length + 1] = static_cast<std::uint16_t>(first[length] + counts_[length]);
        }
        for (std::size_t symbol = 0; symbol < lengths.size(); ++symbol) {
            if (lengths[symbol] != 0) {
                symbols_[first[lengths[symbol]]++] = static_cast<std::uint16_t>(symbol);
            }
        }
        return true;
    }

    unsigned Read(BitReader& reader) const {
        int code = 0;
        int first = 0;
        int index = 0;
        for (unsigned length = 1; length <= kLongestCode && !reader.Failed; ++length) {
            code |= static_cast<int>(reader.Bits(1));
            const int count = counts_[length];
            if (code - count < first) {
                return symbols_[static_cast<std::size_t>(index + code - first)];
            }
            index += count;
            first = (first + count) * 2;
            code *= 2;
        }
        reader.Failed = true;
        return 0;
    }

  private:
    std::array<std::uint16_t, kLongestCode + 1> counts_{};
    std::array<std::uint16_t, kMostCodes> symbols_{};
};

class Unpacking {
  public:
    Unpacking(TextView packed, std::size_t most) : reader_(packed), most_(most) {}

    bool Run() {
        bool last = false;
        while (!last && !reader_.Failed) {
            last = reader_.Bits(1) == 1;
            if (!TakeBlock(reader_.Bits(2))) {
                return false;
            }
        }
        return !reader_.Failed;
    }

    Text Out;

  private:
    bool TakeBlock(unsigned kind) {
        switch (kind) {
            case 0:
                return TakeStored();
            case 1:
                SetFixedCodes();
                return TakeCoded();
            case 2:
                return ReadCodes() && TakeCoded();
            default:
                return false;
        }
    }

    bool TakeStored() {
        const TextView head = reader_.Bytes(4);
        if (reader_.Failed) {
            return false;
        }
        const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(head[at]); };
        const auto length = static_cast<std::size_t>(byte(0) | byte(1) << 8);
        const auto opposite = static_cast<std::size_t>(byte(2) | byte(3) << 8);
        if ((length ^ opposite) != 0xFFFF || Out.size() + length > most_) {
            return false;
        }
        Out += reader_.Bytes(length);
        return !reader_.Failed;
    }

    void SetFixedCodes() {
        std::array<std::uint8_t, kMostLiterals> lengths{};
        for (std::size_t i = 0; i < lengths.size(); ++i) {
            lengths[i] = i < 144 ? 8 : i < 256 ? 9 : i < 280 ? 7 : 8;
        }
        literals_.Take(lengths);
        std::array<std::uint8_t, kMostDistances> five{};
        five.fill(5);
        distances_.Take(five);
    }

    bool ReadCodes() {
        const std::size_t literals = reader_.Bits(5) + kFirstLength;
        const std::size_t distances = reader_.Bits(5) + 1;
        const std::size_t coded = reader_.Bits(4) + 4;
        if (literals > kMostLiterals || distances > kMostDistances) {
            return false;
        }
        std::array<std::uint8_t, kLengthOrder.size()> ofLengths{};
        for (std::size_t i = 0; i < coded; ++i) {
            ofLengths[kLengthOrder[i]] = static_cast<std::uint8_t>(reader_.Bits(3));
        }
        if (!literals_.Take(ofLengths)) {
            return false;
        }
        std::array<std::uint8_t, kMostCodes> lengths{};
        if (!ReadLengths(std::span(lengths).first(literals + distances)) || lengths[kEndOfBlock] == 0) {
            return false;
        }
        return literals_.Take(std::span(lengths).first(literals)) &&
               distances_.Take(std::span(lengths).subspan(literals, distances));
    }

    bool ReadLengths(std::span<std::uint8_t> lengths) {
        for (std::size_t at = 0; at < lengths.size();) {
            const unsigned symbol = literals_.Read(reader_);
            if (reader_.Failed) {
                return false;
            }
            if (symbol < 16) {
                lengths[at++] = static_cast<std::uint8_t>(symbol);
                continue;
            }
            if (symbol == 16 && at == 0) {
                return false;
            }
            const std::uint8_t again = symbol == 16 ? lengths[at - 1] : std::uint8_t{0};
            const unsigned times = symbol == 16   ? 3 + reader_.Bits(2)
                                   : symbol == 17 ? 3 + reader_.Bits(3)
                                                  : 11 + reader_.Bits(7);
            if (times > lengths.size() - at) {
                return false;
            }
            for (unsigned i = 0; i < times; ++i) {
                lengths[at++] = again;
            }
        }
        return true;
    }

    bool TakeCoded() {
        for (;;) {
            const unsigned symbol = literals_.Read(reader_);
            if (reader_.Failed || (symbol != kEndOfBlock && Out.size() >= most_)) {
                return false;
            }
            if (symbol == kEndOfBlock) {
                return true;
            }
            if (symbol < kEndOfBlock) {
                Out += static_cast<char>(symbol);
            } else if (!Repeat(symbol - kFirstLength)) {
                return false;
            }
        }
    }

    bool Repeat(std::size_t row) {
        if (row >= kLengths.size()) {
            return false;
        }
        const std::size_t length = kLengths[row].Base + reader_.Bits(kLengths[row].MoreBits);
        const std::size_t far = distances_.Read(reader_);
        if (reader_.Failed || far >= kDistances.size()) {
            return false;
        }
        const std::size_t distance = kDistances[far].Base + reader_.Bits(kDistances[far].MoreBits);
        if (reader_.Failed || distance > Out.size() || Out.size() + length > most_) {
            return false;
        }
        for (std::size_t i = 0; i < length; ++i) {
            Out += Out[Out.size() - distance];
        }
        return true;
    }

    BitReader reader_;
    std::size_t most_;
    CodeTable literals_;
    CodeTable distances_;
};

}  // namespace

std::optional<Text> Inflate(TextView packed, std::size_t most) {
    Unpacking unpacking(packed, most);
    return unpacking.Run() ? std::optional(std::move(unpacking.Out)) : std::nullopt;
}

}  // namespace lv
