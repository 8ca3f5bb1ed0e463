#include "games/trees/link_sources.h"

#include <algorithm>

#include "foundation/field_strings.h"
#include "foundation/question_box.h"
#include "foundation/settings.h"
#include "games/trees/tree_room.h"

namespace lv {

namespace {

constexpr TextView kSection = "LinkedTrees";

constexpr TextView kLeftOut = "LinksLeftOut";
constexpr std::size_t kMostNamed = 20;

Text KeyOf(TextView links) {
    return LowerCase(LastPathPart(links));
}

Text LinesOf(const std::vector<Text>& files) {
    Text lines;
    for (std::size_t i = 0; i < std::min(files.size(), kMostNamed); ++i) {
        lines += Join(TabChar, files[i], NewLine);
    }
    return files.size() <= kMostNamed
               ? lines
               : Join(lines, TabChar, "and ", std::to_string(files.size() - kMostNamed), " more", NewLine);
}

Text Noted(const std::vector<Text>& files) {
    Text noted;
    for (std::size_t i = 0; i < std::min(files.size(), kMostNamed); ++i) {
        noted += Join(files[i], ";");
    }
    return files.empty() ? noted : Join(noted, std::to_string(files.size()));
}

void TellLeftOut(Run& run, TextView links, TextView source, const LinkedTree& done) {
    const Text noted = Noted(done.LeftOut);
    if (done.Fault || !done.IsWhole || noted == GetSetting(run, run.AppName, kLeftOut, KeyOf(links))) {
        return;
    }
    Save(run, kLeftOut, KeyOf(links), noted);
    if (!done.LeftOut.empty()) {
        AskUser(run, "Settings Left Out",
                Join("This game is played through links to", NewLine, NewLine, TabChar, source, NewLine, NewLine,
                     "and these files of it are left out, as they cannot be read, are very large, or are links "
                     "themselves:",
                     NewLine, NewLine, LinesOf(done.LeftOut), NewLine, "All others are there."));
    }
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
    TellLeftOut(run, links, tree.Directory, made);
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
        TellLeftOut(run, links, refresh.Source, refresh.Done);
    }
    return refresh;
}

}  // namespace lv
