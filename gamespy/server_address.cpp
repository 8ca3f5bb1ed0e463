#include "gamespy/server_address.h"

#include <algorithm>

namespace lv {

namespace {

constexpr TextView kDigits = "0123456789";
constexpr TextView kHexDigits = "0123456789abcdefABCDEF";
constexpr TextView kPartSigns = "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ-_";
constexpr std::size_t kLongestIpv6 = 45;

bool Consists(TextView text, TextView of) {
    return !text.empty() && text.find_first_not_of(of) == TextView::npos;
}

/// Hexadecimal digits between two colons or more; the last four bytes may be dotted.
bool IsIpv6(TextView host) {
    const bool bracketed = host.starts_with('[') && host.ends_with(']');
    if (bracketed) {
        host = host.substr(1, host.size() - 2);
    }
    const auto isSign = [](char c) { return c == ':' || c == '.' || kHexDigits.find(c) != TextView::npos; };
    return host.size() <= kLongestIpv6 && std::ranges::count(host, ':') >= 2 && std::ranges::all_of(host, isSign);
}

}  // namespace

bool IsHostPart(TextView part) {
    return Consists(part, kPartSigns);
}

bool IsHost(TextView host) {
    while (!host.empty() && host.find(':') == TextView::npos) {
        const std::size_t dot = std::min(host.find('.'), host.size());
        if (!IsHostPart(host.substr(0, dot))) {
            return false;
        }
        if (dot == host.size()) {
            return true;
        }
        host.remove_prefix(dot + 1);
    }
    return IsIpv6(host);
}

bool IsPort(TextView port) {
    return Consists(port, kDigits);
}

}  // namespace lv
