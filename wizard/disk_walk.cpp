#include "wizard/disk_walk.h"

#include "catalogs/sorted_names.h"

namespace lv {

void DiskWalk::Enter(TextView drive) {
    levels_.clear();
    path_ = drive.substr(0, 2);
    root_ = Join(path_, "\\");
}

std::optional<DiskWalk::Step> DiskWalk::Next() {
    if (root_) {
        const Text root = *root_;
        root_.reset();
        return Visit(root);
    }
    while (!levels_.empty()) {
        Level& level = levels_.back();
        path_.resize(level.PathSize);
        if (level.At == level.Names.size()) {
            levels_.pop_back();
            continue;
        }
        const std::size_t end = level.Names.find('\0', level.At);
        path_.append("\\").append(level.Names, level.At, end - level.At);
        level.At = end + 1;
        if (auto step = Visit(path_)) {
            return step;
        }
    }
    return std::nullopt;
}

std::optional<DiskWalk::Step> DiskWalk::Visit(Text path) {
    auto listed = files_.ListForWalk(path);
    if (!listed.Ok() || !met_.insert(listed.Value.Identity).second) {
        return std::nullopt;
    }
    Level level;
    level.PathSize = path_.size();
    for (const Text& name : SortedDirectories(listed.Value.Entries)) {
        level.Names.append(name).push_back('\0');
    }
    levels_.push_back(std::move(level));
    return Step{std::move(path), std::move(listed.Value.Entries)};
}

}  // namespace lv
