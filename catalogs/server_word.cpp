#include "catalogs/server_word.h"

#include <algorithm>

#include "foundation/field_strings.h"
#include "foundation/numbers.h"
#include "foundation/shown_name.h"

namespace lv {

namespace {

constexpr std::size_t kLongestHost = 253;  // of a name in the domain name system
constexpr std::size_t kLongestPort = 5;
constexpr std::int32_t kLastPort = 65535;

constexpr TextView kSchemes[] = {"qw", "quake", "quake2"};

/// Between two dots; behind the last one none is needed.
bool HasEmptyLabel(TextView host) {
    return host.starts_with('.') || Holds(host, "..");
}

bool IsHost(TextView host) {
    const bool isName = !host.empty() && host.size() <= kLongestHost && host.front() != '-' && !HasEmptyLabel(host);
    return isName && std::ranges::all_of(host, [](char c) {
               return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '.' ||
                      c == '-' || c == '_';
           });
}

bool IsPort(TextView port) {
    return !port.empty() && port.size() <= kLongestPort &&
           std::ranges::all_of(port, [](char c) { return c >= '0' && c <= '9'; }) && ToLong(port) > 0 &&
           ToLong(port) <= kLastPort;
}

}  // namespace

Result<ServerAddress> ReadServerAddress(TextView word) {
    const std::size_t colon = word.find(':');
    const ServerAddress address{Text(word.substr(0, colon)),
                                colon == TextView::npos ? Text() : Text(word.substr(colon + 1))};
    if (!IsHost(address.Host) || (colon != TextView::npos && !IsPort(address.Port))) {
        return Error{error::kInvalidCall, Join("\"", Shown(word),
                                               "\" is no server's address. One looks like quake.example.com:27500, and "
                                               "its port is 1 to 65535.")};
    }
    return address;
}

std::span<const TextView> LinkSchemes() {
    return kSchemes;
}

std::optional<ServerLink> ReadServerLink(TextView word) {
    const std::size_t colon = word.find("://");
    if (colon == TextView::npos) {
        return std::nullopt;
    }
    const Text scheme = LowerCase(word.substr(0, colon));
    if (std::ranges::find(kSchemes, scheme) == std::end(kSchemes)) {
        return std::nullopt;
    }
    const TextView rest = word.substr(colon + 3);
    const auto address = ReadServerAddress(rest.substr(0, rest.find_first_of("/?#")));
    return address.Ok() ? std::optional(ServerLink{scheme, address.Value}) : std::nullopt;
}

}  // namespace lv
