#include "games/trees/link_sources.h"

#include "foundation/field_strings.h"
#include "foundation/settings.h"
#include "games/trees/tree_room.h"

namespace lv {

namespace {

constexpr TextView kSection = "LinkedTrees";

Text KeyOf(TextView links) {
    return LowerCase(LastPathPart(links));
}

}  // namespace

Text LinksOf(Run& run, TextView tree) {
    const Text first = LinkedTreeDirectory(tree);
    Text links = first;
    for (int next = 2; next < 100; ++next) {
        const Text source = SourceOfLinks(run, links);
        if (source.empty() || SameText(source, tree)) {
            return links;
        }
        links = Join(first, "-", std::to_string(next));
    }
    return links;
}

Text SourceOfLinks(Run& run, TextView links) {
    return IsLinkedTree(links) ? GetSetting(run, run.AppName, kSection, KeyOf(links)) : Text();
}

LinkedTree MakeLinks(Run& run, const GameTree& tree, TextView links) {
    LinkedTree made = LinkTree(run.System.Disk, tree, links);
    if (!made.Fault && !SameText(SourceOfLinks(run, links), tree.Directory)) {
        Save(run, kSection, KeyOf(links), tree.Directory);  // without it the links stay as they are now
    }
    return made;
}

LinkRefresh RefreshLinks(Run& run, TextView links) {
    LinkRefresh refresh;
    refresh.Source = SourceOfLinks(run, links);
    if (refresh.Source.empty()) {
        return refresh;
    }
    const auto tree = TreeIn(run.System.Disk, refresh.Source);
    refresh.SourceIsThere = tree.has_value();
    if (tree) {
        const double end = run.System.Time.Seconds() + kLongestRefresh;
        refresh.Done = LinkTree(run.System.Disk, *tree, links, [&run, end] { return run.System.Time.Seconds() < end; });
    }
    return refresh;
}

}  // namespace lv
