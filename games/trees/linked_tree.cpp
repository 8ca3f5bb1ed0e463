#include "games/trees/linked_tree.h"

#include <algorithm>
#include <map>
#include <span>
#include <utility>

#include "foundation/field_strings.h"
#include "games/trees/tree_room.h"

namespace lv {

namespace {

constexpr TextView kRerelease = "rerelease";  // a tree of its own

// What games write over, and so would through a link.
constexpr TextView kWritten[] = {".cfg", ".ini", ".qs", ".hs", ".q2s", ".sns", ".sav", ".gip", ".ssv", ".sv2", ".usa"};

// What a directory of the game holds at least one of: archives, a program of the game's, maps.
constexpr TextView kOfGames[] = {".pak", ".pk3", ".pkz", ".sin", ".dat", ".bsp", ".u", ".unr", ".utx", ".uax", ".umx"};

bool EndsInOneOf(TextView name, std::span<const TextView> endings) {
    return std::ranges::any_of(endings, [&](TextView end) {
        return name.size() > end.size() && SameText(name.substr(name.size() - end.size()), end);
    });
}

// What stands in a directory, by name in lower case.
template <class Entry>
using Names = std::map<Text, Entry>;
using Wanted = Names<LinkedEntry>;
using Own = Names<LinkedEntry>;

class Linking {
  public:
    Linking(Files& files, const GameTree& tree, TextView own, const std::function<bool()>& goesOn)
        : files_(files), tree_(tree), own_(own), lowers_(tree.GameKind != Game::Unreal), goesOn_(goesOn) {}

    LinkedTree Run() {
        done_.Fault = MakeLinkRoom(files_, tree_.Directory, own_);
        if (!done_.Fault) {
            LinkDirectories({}, own_, 0);
        }
        return done_;
    }

  private:
    [[nodiscard]] Text Spelled(TextView name) const { return lowers_ ? LowerCase(name) : Text(name); }

    // Of two that differ by letter case alone the one that is spelled right counts.
    template <class Entry>
    [[nodiscard]] Names<Entry> ByName(std::vector<Entry> entries) const {
        Names<Entry> names;
        for (Entry& entry : entries) {
            Text key = LowerCase(entry.Name);
            if (entry.Name != "." && entry.Name != ".." &&
                (!names.contains(key) || Spelled(entry.Name) == entry.Name)) {
                names.insert_or_assign(std::move(key), std::move(entry));
            }
        }
        return names;
    }

    [[nodiscard]] Own OwnIn(const Text& own) const { return ByName(files_.ListLinks(own, tree_.Directory).Value); }
    [[nodiscard]] Text InTree(const Text& below) const {
        return below.empty() ? tree_.Directory : PathBelow(tree_.Directory, below);
    }

    // False, and noted, once the work is to end.
    bool GoesOn() {
        if (!wasStopped_ && goesOn_ && !goesOn_()) {
            wasStopped_ = true;
            done_.IsWhole = false;
        }
        return !done_.Fault && !wasStopped_;
    }

    // At the top only directories are game directories; the files beside them belong to programs.
    void LinkDirectories(const Text& below, const Text& own, int depth) {
        auto listed = files_.ListLinks(InTree(below), tree_.Directory);
        if (!listed.Ok() && listed.Fault.Number != error::kPathNotFound) {
            done_.IsWhole = false;  // what cannot be read has not gone
            return;
        }
        const Wanted wanted = ByName(std::move(listed.Value));
        Own there = OwnIn(own);
        if (depth > 0) {
            if (RemoveGone(own, there) > 0) {
                there = OwnIn(own);
            }
            LinkFiles(below, own, wanted, there);
        }
        for (const auto& [key, entry] : wanted) {
            if (!GoesOn()) {
                return;
            }
            if (entry.IsDirectory && !(depth == 0 && key == kRerelease) && IsPartOfTheTree(entry, depth)) {
                LinkDirectory(below.empty() ? entry.Name : PathBelow(below, entry.Name), own, Spelled(entry.Name),
                              there, depth);
            }
        }
        for (const auto& [key, entry] : there) {
            if (IsOwnDirectory(entry) && !wanted.contains(key) && GoesOn()) {
                RemoveGoneBelow(PathBelow(own, entry.Name), depth + 1);
            }
        }
    }

    // A directory that lies elsewhere may lead anywhere, to the whole disk or back up: only as one of the game's own
    // does it count.
    bool IsPartOfTheTree(const LinkedEntry& directory, int depth) {
        if (!directory.IsElsewhere) {
            return true;
        }
        const auto listed = depth == 0 ? files_.List(InTree(directory.Name)) : MakeError(error::kPathNotFound);
        return listed.Ok() && std::ranges::any_of(listed.Value, [](const DirectoryEntry& entry) {
                   return !entry.IsDirectory && EndsInOneOf(entry.Name, kOfGames);
               });
    }

    void LinkDirectory(const Text& below, const Text& above, const Text& name, const Own& there, int depth) {
        if (depth >= kDeepestLinked || ++directories_ > kMostLinkedDirectories) {
            done_.IsWhole = false;
            return;
        }
        const auto found = there.find(LowerCase(name));
        if (found != there.end() && !IsOwnDirectory(found->second)) {
            ++done_.Kept;
            return;
        }
        const Text own = PathBelow(above, found == there.end() ? name : found->second.Name);
        if (found == there.end()) {
            done_.Fault = files_.MakeDirectory(own);
        }
        if (!done_.Fault) {
            LinkDirectories(below, own, depth + 1);
        }
    }

    void LinkFiles(const Text& below, const Text& own, const Wanted& wanted, const Own& there) {
        for (const auto& [key, entry] : wanted) {
            if (entry.IsDirectory || entry.IsDevice) {
                continue;
            }
            if (!GoesOn()) {
                return;
            }
            if (++linked_ > kMostLinks) {
                done_.IsWhole = false;
                return;
            }
            const auto found = there.find(key);
            const LinkedEntry* const already = found == there.end() ? nullptr : &found->second;
            const Text name = Spelled(entry.Name);
            if (!EndsInOneOf(name, kWritten)) {
                LinkFile(PathBelow(below, entry.Name), own, name, already);
            } else if (already == nullptr) {
                CopyFile(PathBelow(below, entry.Name), PathBelow(own, name), entry);
            }
        }
    }

    void CopyFile(const Text& below, const Text& to, const LinkedEntry& entry) {
        const Text from = InTree(below);
        const Error failed = entry.IsElsewhere ? MakeError(error::kPathFileAccess) : files_.Copy(from, to);
        if (!failed) {
            ++done_.Copied;
        } else if (entry.IsElsewhere || failed.Number == error::kOutOfMemory || !files_.Open(from).Ok()) {
            if (files_.FileExists(from)) {
                done_.LeftOut.push_back(below);
            }
        } else {
            done_.Fault = failed;  // not of this file, but of the place for all of them
        }
    }

    void LinkFile(const Text& below, const Text& own, const Text& name, const LinkedEntry* there) {
        const Text target = InTree(below);
        if (there != nullptr) {
            const Text path = PathBelow(own, there->Name);
            const bool isOurs = !there->LeadsInto.empty();
            const bool leadsThere = isOurs ? there->LeadsInto == below : files_.IsLinkTo(path, target);
            if (leadsThere && there->Name == name) {
                return;
            }
            if (!leadsThere && !isOurs) {
                ++done_.Kept;
                return;
            }
            done_.Fault = files_.Delete(path);
        }
        if (!done_.Fault) {
            done_.Fault = files_.Link(target, PathBelow(own, name));
            done_.Made += done_.Fault ? 0 : 1;
        }
        if (done_.Fault && !files_.FileExists(target)) {
            done_.Fault = {};  // it has gone since, or is a link to what has gone
        }
    }

    static bool IsOwnDirectory(const LinkedEntry& entry) { return entry.IsDirectory && !entry.IsElsewhere; }

    std::size_t RemoveGone(const Text& own, const Own& there) {
        std::size_t removed = 0;
        for (const auto& [key, entry] : there) {
            if (entry.IsGone && !entry.LeadsInto.empty() && !files_.Delete(PathBelow(own, entry.Name))) {
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
        const Own there = OwnIn(own);
        const std::size_t before = done_.Removed;
        RemoveGone(own, there);
        for (const auto& [key, entry] : there) {
            if (IsOwnDirectory(entry)) {
                RemoveGoneBelow(PathBelow(own, entry.Name), depth + 1);
            }
        }
        if (done_.Removed > before && OwnIn(own).empty()) {
            files_.RemoveDirectory(own);
        }
    }

    Files& files_;
    const GameTree& tree_;
    Text own_;
    bool lowers_;
    const std::function<bool()>& goesOn_;
    LinkedTree done_;
    std::size_t linked_ = 0;
    std::size_t directories_ = 0;
    bool wasStopped_ = false;
};

}  // namespace

LinkedTree LinkTree(Files& files, const GameTree& tree, TextView directory, const std::function<bool()>& goesOn) {
    return Linking(files, tree, directory, goesOn).Run();
}

}  // namespace lv
