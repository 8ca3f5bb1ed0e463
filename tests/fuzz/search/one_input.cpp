// What libFuzzer calls. LV_FUZZED_READER is the name of this program's reader.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>

#include "tests/fuzz/readers.h"

namespace {

lv::FuzzedReader TheReader() {
    const auto* const found =
        std::find_if(std::begin(lv::kFuzzedReaders), std::end(lv::kFuzzedReaders),
                     [](const lv::FuzzedReader& reader) { return lv::TextView(reader.Name) == LV_FUZZED_READER; });
    lv::MustHold(found != std::end(lv::kFuzzedReaders), "the program has a reader");
    return *found;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const lv::FuzzedReader reader = TheReader();
    reader.Read(lv::TextView(reinterpret_cast<const char*>(data), size));
    return 0;
}
