#include "platform/linux/files/walked_drive.h"

#include <algorithm>
#include <utility>

#include "platform/code_page.h"

namespace lv {

namespace {

constexpr std::size_t kRootLength = 3;  // "C:\"

// Names with one "\" between them, and none that stands for another.
bool IsPlain(std::string_view below) {
    while (!below.empty()) {
        const std::size_t end = std::min(below.find('\\'), below.size());
        const std::string_view name = below.substr(0, end);
        if (name.empty() || name == "." || name == ".." ||
            name.find_first_of(std::string_view("/\0", 2)) != name.npos) {
            return false;
        }
        below.remove_prefix(std::min(end + 1, below.size()));
    }
    return true;
}

}  // namespace

void WalkedDrive::Enter(char letter, std::string root) {
    letter_ = letter;
    root_ = std::move(root);
}

std::string WalkedDrive::HostPathOf(std::string_view path) const {
    if (letter_ == '\0' || path.size() <= kRootLength || UpperCase(path[0]) != letter_ || path[1] != ':' ||
        path[2] != '\\' || !IsPlain(path.substr(kRootLength))) {
        return {};
    }
    std::string host = root_ + ToUtf8(path.substr(kRootLength - 1));
    std::replace(host.begin() + static_cast<std::ptrdiff_t>(root_.size()), host.end(), '\\', '/');
    return host;
}

}  // namespace lv
