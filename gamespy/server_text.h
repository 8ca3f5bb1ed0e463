// gamespy/server_text.h
//
// What GameSpy 3D copies to the clipboard, read: the address of one server, or up to twenty servers for the catalog.
// The text comes from other people's machines; nothing of it is trusted.

#pragma once

#include "foundation/text.h"

namespace lv {

/// "10.0.0.1:27500", or why there is none.
struct AssembledAddress {
    Text Address;
    const char* Fault = nullptr;
};

constexpr const char* kNoAddress = "Could not assemble IP address from data";
constexpr const char* kNoPort = "Could not assemble Port from data";

/// The address in free text. The dots of the address are the first three of the text. What is no host and no port by
/// server_address.h is refused.
AssembledAddress AssembleAddress(TextView text);

struct CapturedServer {
    Text Title;
    Text Host;
    Text Port;
};

constexpr Index kMostServers = 20;
constexpr std::size_t kLongestServerTitle = 19;

/// The copied lines as one text with "|" between them; a "|" of a server's name becomes "I". The clipboard of an X11
/// desktop ends lines with LF alone, which counts as well.
Text MarkLines(TextView copied);

/// The number of lines in a marked text, and one of them, from 0.
Index CountLines(TextView marked);
Text LineAt(TextView marked, Index index);

// In what the functions below give, host and port are empty if either is none by server_address.h.

/// Whether GameSpy copied addresses alone, without names.
bool IsAddressAlone(TextView line);

/// A line that was copied alone: columns of fixed width, or just the address, which leaves the title empty.
CapturedServer ReadOneServer(TextView line);

/// A line among several. Words: the third is the host, the fourth the port; a line whose address stands as in one that
/// is copied alone is read there. If `addressesOnly`, an address that also makes the title.
CapturedServer ReadListedServer(TextView line, bool addressesOnly);

}  // namespace lv
