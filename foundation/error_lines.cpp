#include "foundation/error_lines.h"

namespace lv {

Text ErrorLines(const Error& failed, TextView code) {
    const Text coded = code.empty() ? Text() : Join("Error Code = ", code, NewLine);
    return Join("Error Number = ", std::to_string(failed.Number), NewLine, coded, "Error String = ", failed.Text);
}

}  // namespace lv
