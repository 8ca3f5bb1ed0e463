#include "foundation/check_sum.h"

#include <array>

namespace lv {

namespace {

constexpr std::uint32_t kPolynomial = 0xEDB88320U;

constexpr auto kTable = [] {
    std::array<std::uint32_t, 256> made{};
    for (std::uint32_t i = 0; i < made.size(); ++i) {
        std::uint32_t value = i;
        for (int bit = 0; bit < 8; ++bit) {
            value = (value >> 1U) ^ ((value & 1U) != 0 ? kPolynomial : 0U);
        }
        made[i] = value;
    }
    return made;
}();

}  // namespace

std::uint32_t CheckSum(TextView text, std::uint32_t before) {
    std::uint32_t sum = ~before;
    for (const char letter : text) {
        sum = kTable[(sum ^ static_cast<unsigned char>(letter)) & 0xffU] ^ (sum >> 8U);
    }
    return ~sum;
}

Text CheckSumText(std::uint32_t sum) {
    constexpr TextView kDigits = "0123456789abcdef";
    Text text;
    for (unsigned shift = 32; shift > 0; shift -= 4) {
        text += kDigits[(sum >> (shift - 4)) & 0xfU];
    }
    return text;
}

}  // namespace lv
