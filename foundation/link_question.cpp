#include "foundation/link_question.h"

#include "foundation/field_strings.h"
#include "foundation/game_numbers.h"
#include "foundation/question_box.h"

namespace lv {

namespace {

constexpr TextView kUnrealSystem = "\\system";
constexpr Index kChangeIt = 1;

bool LiesBelow(TextView path, TextView directory) {
    return !directory.empty() && path.size() > directory.size() && path[directory.size()] == '\\' &&
           SameText(path.substr(0, directory.size()), directory);
}

}  // namespace

Text GameTreeOf(const Run& run, TextView path) {
    TextView tree = run.DefaultGameDirectory;
    if (run.GameKind == game_kind::kUnreal && LowerCase(tree).ends_with(kUnrealSystem)) {
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
                        "is a link that leads out of the game, to -->", NewLine, NewLine, TabChar,
                        DoubleQuote, target, DoubleQuote, NewLine, NewLine,
                        "If it came in an archive from somebody else, leave that file alone."),
                   "&Leave It Alone,&Change That File") == kChangeIt;
}

bool MayWriteThroughLinks(Run& run, TextView path) {
    const Text target = LinkTargetOutside(run, path);
    return target.empty() || AskToFollowLink(run, path, target);
}

}  // namespace lv
