// catalogs/inflate.h
//
// What the archives of the zip kind are packed with: RFC 1951, "deflate".

#pragma once

#include <optional>

#include "foundation/text.h"

namespace lv {

/// What was packed. Nothing if the bytes are damaged, if they end too soon, or if it is longer than `most` bytes; what
/// stands behind the last block is not looked at.
std::optional<Text> Inflate(TextView packed, std::size_t most);

}  // namespace lv
