#include "foundation/device_names.h"

#include <algorithm>
#include <iterator>

#include "foundation/field_strings.h"

namespace lv {

namespace {

constexpr TextView kDevices[] = {"con", "prn", "aux", "nul", "conin$", "conout$"};
constexpr TextView kNumbered[] = {"com", "lpt"};
constexpr TextView kNumbers = "123456789\xB9\xB2\xB3";  // the last three stand high

bool IsNumbered(TextView stem) {
    return stem.size() == 4 && Holds(kNumbers, stem.substr(3)) &&
           std::ranges::find(kNumbered, stem.substr(0, 3)) != std::end(kNumbered);
}

}  // namespace

bool IsDeviceName(TextView name) {
    const Text stem = LowerCase(Trim(name.substr(0, name.find_first_of(".:"))));
    return std::ranges::find(kDevices, stem) != std::end(kDevices) || IsNumbered(stem);
}

}  // namespace lv
