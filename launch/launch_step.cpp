#include "launch/launch_step.h"

namespace lv {

Text ShownStep(LaunchStep step) {
    constexpr std::size_t kDigits = 5;
    const Text number = std::to_string(static_cast<int>(step));
    return Join("EC", Text(kDigits - number.size(), '0'), number);
}

}  // namespace lv
