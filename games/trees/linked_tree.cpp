#include "games/trees/linked_tree.h"

#include <algorithm>
#include <map>

#include "foundation/field_strings.h"

namespace lv {

namespace {

constexpr TextView kRerelease = "rerelease";  // a tree of its own

// What games write over, and so would through a link.
constexpr TextView kWritten[] = {".cfg", ".ini", ".qs", ".hs", ".q2s", ".sns", ".sav", ".gip", ".ssv", ".sv2", ".usa"};

bool IsWrittenByGames(TextView name) {
    return std::ranges::any_of(kWritten, [&](TextView end) {
        return name.size() > end.size() && SameText(name.substr(name.size() - end.size()), end);
    });
}

Text Below(TextView directory, TextView name) {
    return Join(directory, directory.ends_with('\\') ? "" : "\\", name);
}

// By the host's word, so that two ways to one directory are one.
Text RealPath(Files& files, TextView path) {
    Text real = files.FromHost(files.ToHost(path));
    return real.empty() ? Text(path) : real;
}

bool LiesWithin(TextView path, TextView directory) {
    return SameText(path, directory) || StartsWithText(path, Below(directory, ""));
}

Error MakeDirectories(Files& files, TextView path) {
    if (files.DirectoryExists(path)) {
        return {};
    }
    if (const std::size_t above = path.rfind('\\'); above != TextView::npos && above > 2) {
        if (Error failed = MakeDirectories(files, path.substr(0, above))) {
            return failed;
        }
    }
    return files.MakeDirectory(path);
}

// What stands in a directory, by name in lower case.
using Names = std::map<Text, DirectoryEntry>;

class Linking {
  public:
    Linking(Files& files, const GameTree& tree, TextView own)
        : files_(files), tree_(tree), own_(own), lowers_(tree.GameKind != Game::Unreal) {}

    LinkedTree Run() {
        done_.Fault = Prepare();
        if (!done_.Fault) {
            LinkDirectories(tree_.Directory, own_, 0);
        }
        return done_;
    }

  private:
    Error Prepare() {
        if (!files_.DirectoryExists(tree_.Directory)) {
            return MakeError(error::kPathNotFound, tree_.Directory);
        }
        const Text tree = RealPath(files_, tree_.Directory);
        const Text own = RealPathToBe(own_);
        if (LiesWithin(own, tree) || LiesWithin(tree, own)) {
            return MakeError(error::kPathFileAccess, own_);
        }
        return MakeDirectories(files_, own_);
    }

    // The real path of what is there, and the names that are still to be made.
    [[nodiscard]] Text RealPathToBe(const Text& path) const {
        const std::size_t above = path.rfind('\\');
        if (above == Text::npos || above <= 2 || files_.DirectoryExists(path)) {
            return RealPath(files_, path);
        }
        return Below(RealPathToBe(path.substr(0, above)), path.substr(above + 1));
    }

    [[nodiscard]] Text Spelled(TextView name) const { return lowers_ ? LowerCase(name) : Text(name); }

    // Of two that differ by letter case alone the one that is spelled right counts.
    [[nodiscard]] Names NamesIn(const Text& directory) const {
        Names names;
        for (const DirectoryEntry& entry : files_.List(directory).Value) {
            const Text key = LowerCase(entry.Name);
            if (entry.Name != "." && entry.Name != ".." &&
                (!names.contains(key) || Spelled(entry.Name) == entry.Name)) {
                names.insert_or_assign(key, entry);
            }
        }
        return names;
    }

    // At the top only directories are game directories; the files beside them belong to programs.
    void LinkDirectories(const Text& source, const Text& own, int depth) {
        const Names wanted = NamesIn(source);
        Names there = NamesIn(own);
        if (depth > 0) {
            if (RemoveGone(own, there) > 0) {
                there = NamesIn(own);
            }
            LinkFiles(source, own, wanted, there);
        }
        for (const auto& [key, entry] : wanted) {
            if (done_.Fault) {
                return;
            }
            if (entry.IsDirectory && !(depth == 0 && key == kRerelease)) {
                LinkDirectory(Below(source, entry.Name), own, Spelled(entry.Name), there, depth);
            }
        }
        for (const auto& [key, entry] : there) {
            if (entry.IsDirectory && !wanted.contains(key) && IsOwnDirectory(own, entry.Name)) {
                RemoveGoneBelow(Below(own, entry.Name), depth + 1);
            }
        }
    }

    void LinkDirectory(const Text& source, const Text& above, const Text& name, const Names& there, int depth) {
        if (depth >= kDeepestLinked || ++directories_ > kMostLinkedDirectories) {
            done_.IsWhole = false;
            return;
        }
        const auto found = there.find(LowerCase(name));
        if (found != there.end() && !(found->second.IsDirectory && IsOwnDirectory(above, found->second.Name))) {
            ++done_.Kept;
            return;
        }
        const Text own = Below(above, found == there.end() ? name : found->second.Name);
        if (found == there.end()) {
            done_.Fault = files_.MakeDirectory(own);
        }
        if (!done_.Fault) {
            LinkDirectories(source, own, depth + 1);
        }
    }

    void LinkFiles(const Text& source, const Text& own, const Names& wanted, const Names& there) {
        for (const auto& [key, entry] : wanted) {
            if (done_.Fault || entry.IsDirectory || entry.IsDevice) {
                continue;
            }
            if (++linked_ > kMostLinks) {
                done_.IsWhole = false;
                return;
            }
            const auto found = there.find(key);
            LinkFile(Below(source, entry.Name), own, Spelled(entry.Name),
                     found == there.end() ? nullptr : &found->second);
        }
    }

    void LinkFile(const Text& target, const Text& own, const Text& name, const DirectoryEntry* there) {
        if (IsWrittenByGames(name)) {
            if (there == nullptr) {
                done_.Fault = files_.Copy(target, Below(own, name));
                done_.Copied += done_.Fault ? 0 : 1;
            }
            return;
        }
        if (there != nullptr) {
            const Text path = Below(own, there->Name);
            const bool leadsThere = files_.IsLinkTo(path, target);
            if (leadsThere && there->Name == name) {
                return;
            }
            if (!leadsThere && !IsOurs(path)) {
                ++done_.Kept;
                return;
            }
            done_.Fault = files_.Delete(path);
        }
        if (!done_.Fault) {
            done_.Fault = files_.Link(target, Below(own, name));
            done_.Made += done_.Fault ? 0 : 1;
        }
    }

    [[nodiscard]] bool IsOurs(const Text& path) const { return !files_.LeadsInto(path, tree_.Directory).empty(); }

    // A directory in its own place, not by a link from elsewhere.
    [[nodiscard]] bool IsOwnDirectory(const Text& above, TextView name) const {
        return SameText(RealPath(files_, Below(above, name)), Below(RealPath(files_, above), name));
    }

    std::size_t RemoveGone(const Text& own, const Names& there) {
        std::size_t removed = 0;
        for (const auto& [key, entry] : there) {
            const Text path = Below(own, entry.Name);
            if (!entry.IsDirectory && !files_.FileExists(path) && IsOurs(path) && !files_.Delete(path)) {
                ++removed;
            }
        }
        done_.Removed += removed;
        return removed;
    }

    // A directory that had nothing but such links goes too.
    void RemoveGoneBelow(const Text& own, int depth) {
        if (depth > kDeepestLinked || ++directories_ > kMostLinkedDirectories) {
            return;
        }
        const Names there = NamesIn(own);
        const std::size_t before = done_.Removed;
        RemoveGone(own, there);
        for (const auto& [key, entry] : there) {
            if (entry.IsDirectory && IsOwnDirectory(own, entry.Name)) {
                RemoveGoneBelow(Below(own, entry.Name), depth + 1);
            }
        }
        if (done_.Removed > before && NamesIn(own).empty()) {
            files_.RemoveDirectory(own);
        }
    }

    Files& files_;
    const GameTree& tree_;
    Text own_;
    bool lowers_;
    LinkedTree done_;
    std::size_t linked_ = 0;
    std::size_t directories_ = 0;
};

}  // namespace

LinkedTree LinkTree(Files& files, const GameTree& tree, TextView directory) {
    return Linking(files, tree, directory).Run();
}

}  // namespace lv
