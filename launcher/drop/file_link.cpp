#include "launcher/drop/file_link.h"

#include <algorithm>
#include <charconv>

#include "foundation/field_strings.h"

namespace lv {

namespace {

constexpr TextView kScheme = "file://";
constexpr TextView kThisMachine = "localhost";
constexpr std::size_t kCodeLength = 3;  // "%20"
constexpr int kSixteen = 16;

// Nothing where a "%" begins no character, or one that no name can have.
std::optional<std::string> Decoded(TextView text) {
    std::string decoded;
    while (!text.empty()) {
        if (text.front() != '%') {
            decoded += text.front();
            text.remove_prefix(1);
            continue;
        }
        unsigned char code = 0;
        const char* const end = text.data() + std::min(text.size(), kCodeLength);
        const auto read = std::from_chars(text.data() + 1, end, code, kSixteen);
        if (text.size() < kCodeLength || read.ptr != end || code == 0) {
            return std::nullopt;
        }
        decoded += static_cast<char>(code);
        text.remove_prefix(kCodeLength);
    }
    return decoded;
}

bool HasDrive(TextView path) {
    return path.size() > 2 && path[0] == '/' && path[2] == ':';
}

}  // namespace

std::optional<std::string> PathOfFileLink(TextView link) {
    if (!StartsWithText(link, kScheme)) {
        return std::nullopt;
    }
    TextView rest = link.substr(kScheme.size());
    if (StartsWithText(rest, kThisMachine)) {
        rest.remove_prefix(kThisMachine.size());
    }
    const auto path = rest.starts_with('/') ? Decoded(rest) : std::nullopt;
    return path && HasDrive(*path) ? ReplaceSameLength(TextView(*path).substr(1), "/", "\\") : path;
}

}  // namespace lv
