#include "foundry/document/script_mark.h"

#include <cstdint>

#include "foundation/field_strings.h"

namespace lv {

Text ScriptMark(TextView script) {
    constexpr char kDigits[] = "0123456789abcdef";
    constexpr int kBits = 64;
    constexpr int kBitsOfDigit = 4;
    std::uint64_t hash = 0xcbf29ce484222325U;
    for (const char letter : LowerCase(script)) {
        hash = (hash ^ static_cast<unsigned char>(letter)) * 0x100000001b3U;
    }
    Text mark;
    for (int shift = kBits - kBitsOfDigit; shift >= 0; shift -= kBitsOfDigit) {
        mark += kDigits[(hash >> static_cast<unsigned>(shift)) & 0xfU];
    }
    return mark;
}

}  // namespace lv
