// gamespy/server_address.h
//
// What may be the address of a server in a text that comes from other people's machines.

#pragma once

#include "foundation/text.h"

namespace lv {

/// Letters, digits, ".", "-" and "_"; or an IPv6 address, "2001:db8::1", in square brackets or without.
bool IsHost(TextView host);

/// A stretch of a host between two dots.
bool IsHostPart(TextView part);

/// Digits, at least one.
bool IsPort(TextView port);

}  // namespace lv
