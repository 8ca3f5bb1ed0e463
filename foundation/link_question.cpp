#include "foundation/link_question.h"

#include <algorithm>

#include "foundation/field_strings.h"
#include "foundation/game.h"
#include "foundation/question_box.h"
#include "foundation/settings.h"

namespace lv {

namespace {

constexpr TextView kUnrealSystem = "\\system";
constexpr Index kChangeIt = 1;
constexpr TextView kAgreedLinks = "FollowedLinks";
constexpr TextView kBetweenLinks = ";";

bool LiesBelow(TextView path, TextView directory) {
    return !directory.empty() && path.size() > directory.size() && path[directory.size()] == '\\' &&
           SameText(path.substr(0, directory.size()), directory);
}

bool IsAgreed(Run& run, TextView target) {
    const Text agreed = GetSetting(run, run.AppName, kStuff, kAgreedLinks, "");
    for (TextView rest = agreed; !rest.empty();) {
        const std::size_t end = std::min(rest.find(kBetweenLinks), rest.size());
        if (rest.substr(0, end) == target) {
            return true;
        }
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return false;
}

/// A place whose name the list cannot hold is asked about again.
void Agree(Run& run, TextView target) {
    if (target.find(kBetweenLinks) == TextView::npos) {
        const Text before = GetSetting(run, run.AppName, kStuff, kAgreedLinks, "");
        Save(run, kStuff, kAgreedLinks, before.empty() ? Text(target) : Join(before, kBetweenLinks, target));
    }
}

}  // namespace

Text GameTreeOf(const Run& run, TextView path) {
    TextView tree = run.DefaultGameDirectory;
    if (run.GameKind == Game::Unreal && LowerCase(tree).ends_with(kUnrealSystem)) {
        tree.remove_suffix(kUnrealSystem.size());
    }
    return LiesBelow(path, tree) ? Text(tree) : Text(path.substr(0, path.rfind('\\') + 1));
}

Text LinkTargetOutside(const Run& run, TextView path) {
    return run.System.Disk.LeadsAway(path, GameTreeOf(run, path));
}

bool AskToFollowLink(Run& run, TextView path, TextView target) {
    return AskUser(run, "Link To Another Place",
                   Join("The file -->", NewLine, NewLine, TabChar, DoubleQuote, path, DoubleQuote, NewLine, NewLine,
                        "is a link that leads out of the game, to -->", NewLine, NewLine, TabChar, DoubleQuote, target,
                        DoubleQuote, NewLine, NewLine,
                        "If it came in an archive from somebody else, leave that file alone."),
                   "&Leave It Alone,&Change That File") == kChangeIt;
}

bool MayWriteThroughLinks(Run& run, TextView path) {
    const Text target = LinkTargetOutside(run, path);
    return target.empty() || AskToFollowLink(run, path, target);
}

bool PutsOwnFileInside(Run& run, TextView path, TextView tree) {
    const Text target = run.System.Disk.LeadsAway(DirectoryOf(path), tree);
    return target.empty() || IsAgreed(run, target);
}

bool MayPutOwnFile(Run& run, TextView path, TextView tree) {
    if (PutsOwnFileInside(run, path, tree)) {
        return true;
    }
    const Text directory = DirectoryOf(path);
    const Text target = run.System.Disk.LeadsAway(directory, tree);
    const bool agreed = AskUser(run, "Link To Another Place",
                                Join("The directory -->", NewLine, NewLine, TabChar, DoubleQuote, directory,
                                     DoubleQuote, NewLine, NewLine, "is a link that leads out of the game, to -->",
                                     NewLine, NewLine, TabChar, DoubleQuote, target, DoubleQuote, NewLine, NewLine,
                                     "If it came in an archive from somebody else, leave that directory alone."),
                                "&Leave It Alone,&Write There") == kChangeIt;
    if (agreed) {
        Agree(run, target);
    }
    return agreed;
}

}  // namespace lv
