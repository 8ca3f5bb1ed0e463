// catalogs/server_word.h
//
// A server's address as one word: typed, dropped, or of the command line.

#pragma once

#include <optional>
#include <span>

#include "foundation/text.h"
#include "platform/error.h"

namespace lv {

struct ServerAddress {
    Text Host;  // letters, digits, ".", "-" and "_"
    Text Port;  // 1 to 65535; empty: the game's own
};

/// "host" or "host:port". The error says what a server's address looks like.
Result<ServerAddress> ReadServerAddress(TextView word);

/// The schemes of such links, "quake2", in lower case.
std::span<const TextView> LinkSchemes();

/// An address that a link names, "quake2://host:port/", and the scheme in lower case; nothing if the word is no link of
/// a game's server. What stands behind the address is left out.
struct ServerLink {
    Text Scheme;
    ServerAddress Address;
};
std::optional<ServerLink> ReadServerLink(TextView word);

}  // namespace lv
