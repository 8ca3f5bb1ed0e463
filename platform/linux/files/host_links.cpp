#include "platform/linux/files/host_links.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <climits>
#include <string_view>
#include <system_error>

namespace lv {

namespace {

namespace fs = std::filesystem;

constexpr int kMostLinks = 40;  // as many as the system itself follows

}  // namespace

std::optional<std::string> FollowLinks(std::string hostPath) {
    for (int i = 0; i < kMostLinks; ++i) {
        std::array<char, PATH_MAX> target{};
        const ssize_t length = readlink(hostPath.c_str(), target.data(), target.size());
        if (length < 0) {
            return hostPath;
        }
        const std::string_view text(target.data(), static_cast<std::size_t>(length));
        const std::size_t slash = hostPath.rfind('/');
        const std::string directory = slash == std::string::npos ? "./" : hostPath.substr(0, slash + 1);
        hostPath = text.starts_with('/') ? std::string(text) : directory + std::string(text);
    }
    return std::nullopt;
}

fs::path FollowAll(const fs::path& path) {
    std::error_code failed;
    const fs::path followed = fs::weakly_canonical(path, failed);
    const fs::path whole = failed ? path.lexically_normal() : followed;
    return whole.has_filename() || whole == whole.root_path() ? whole : whole.parent_path();
}

fs::path FollowButForAFile(const fs::path& path) {
    std::error_code failed;
    if (!path.has_filename() || fs::is_directory(path, failed)) {
        return FollowAll(path);
    }
    return FollowAll(path.parent_path()) / path.filename();
}

std::optional<std::vector<fs::path>> PartsBelow(const fs::path& directory, const fs::path& path) {
    const auto [left, right] = std::mismatch(directory.begin(), directory.end(), path.begin(), path.end());
    if (left != directory.end()) {
        return std::nullopt;
    }
    return std::vector<fs::path>(right, path.end());
}

}  // namespace lv
