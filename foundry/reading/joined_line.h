// foundry/reading/joined_line.h
//
// The lines of an ini's input section that its writer runs together.

#pragma once

#include "foundation/text.h"

namespace lv {

/// How many bytes in front of a line of the input section are mouse axes without a speed. Each is written as "MouseX="
/// or "MouseY=" and no line end, so what stands behind is the next line: the other axis, a comment, or another key.
std::size_t AxesWithoutSpeed(TextView line);

}  // namespace lv
