#include "platform/linux/files/host_places.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <system_error>
#include <utility>

#include "platform/code_page.h"
#include "platform/linux/files/host_links.h"
#include "platform/linux/files/host_read.h"
#include "platform/linux/user_directories.h"

namespace lv {

namespace fs = std::filesystem;

std::optional<HostPlace> FindPlace(const DriveDirectories& directories, std::string_view path,
                                   const DrivePath& current) {
    auto taken = TakeApart(path, current);
    if (!taken) {
        return std::nullopt;
    }
    auto root = DriveEntry(directories, taken->Letter);
    if (!root) {
        return std::nullopt;
    }
    std::string host = HostPathBelow(*root, taken->Parts);
    return HostPlace{*std::move(taken), *std::move(root), std::move(host), EndsInSeparator(path)};
}

std::string LinkedHostPath(const HostPlace& place) {
    std::error_code failed;
    const fs::path root = fs::canonical(place.Root, failed);
    if (failed) {
        return place.Host;
    }
    const std::string below = place.Host.substr(place.Root.size());
    if (below.empty()) {
        return root.string();
    }
    return root == root.root_path() ? below : root.string() + below;
}

std::string DrivePathOf(const DriveDirectories& directories, std::string_view hostPath) {
    const fs::path given(hostPath);
    if (!given.is_absolute() || hostPath.find('\0') != std::string_view::npos) {
        return {};
    }
    const fs::path path = FollowButForAFile(given);
    std::size_t deepest = 0;
    std::optional<DrivePath> best;
    for (const char letter : DriveLetters(directories)) {
        std::error_code failed;
        const fs::path root = fs::canonical(*DriveEntry(directories, letter), failed);
        const auto depth = static_cast<std::size_t>(std::distance(root.begin(), root.end()));
        const auto below = failed ? std::nullopt : PartsBelow(root, path);
        if (!below || depth <= deepest) {
            continue;
        }
        deepest = depth;
        best = DrivePath{letter, {}};
        for (const fs::path& part : *below) {
            const auto name = NameFromHost(part.string());
            if (!name) {
                return {};
            }
            best->Parts.push_back(*name);
        }
    }
    return best ? PutTogether(*best) : std::string();
}

std::string LeadsAway(const HostPlace& place, const std::optional<HostPlace>& tree) {
    const auto end = FollowLinks(place.Host);
    if (!end) {
        return {};
    }
    const fs::path target = FollowAll(*end);
    const auto liesIn = [&target](const fs::path& directory) {
        const fs::path real = FollowAll(directory);
        return real != real.root_path() && PartsBelow(real, target);
    };
    // What the user has linked in the home is a file of the same kind; an archive's link to ".bashrc" is none.
    const bool sameKind = IsDirectoryAt(target.string()) || LowerCase(target.extension().string()) ==
                                                                LowerCase(fs::path(place.Host).extension().string());
    const bool stays =
        target == LinkedHostPath(place) || (sameKind && liesIn(HomeDirectory())) || (tree && liesIn(tree->Host));
    return stays ? std::string() : FromUtf8Lossy(target.string());
}

std::string LeadsInto(const HostPlace& place, const HostPlace& tree) {
    std::error_code failed;
    const std::string link = fs::read_symlink(place.Host, failed).string();
    return failed ? std::string() : PathInside(link, LinkedHostPath(tree));
}

std::string PathInside(std::string_view hostPath, std::string_view directory) {
    if (!hostPath.starts_with(directory)) {
        return {};
    }
    std::string_view inside = hostPath.substr(directory.size());
    if (!directory.ends_with('/')) {
        if (!inside.starts_with('/')) {
            return {};
        }
        inside.remove_prefix(1);
    }
    auto below = FromUtf8(inside);
    if (!below || below->find('\\') != std::string::npos) {
        return {};
    }
    std::replace(below->begin(), below->end(), '/', '\\');
    return *below;
}

}  // namespace lv
