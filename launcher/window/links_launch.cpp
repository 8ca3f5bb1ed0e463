#include "launcher/window/links_launch.h"

#include "foundation/field_strings.h"
#include "foundation/question_box.h"
#include "games/trees/link_sources.h"

namespace lv {

namespace {

Text AboutSource(TextView before, const Text& source, TextView behind) {
    return Join(before, NewLine, NewLine, TabChar, source, NewLine, NewLine, behind);
}

}  // namespace

bool LinksAreUpToDate(Run& run, TextView directory) {
    const LinkRefresh refresh = RefreshLinks(run, directory);
    if (refresh.Source.empty()) {
        return true;
    }
    if (!refresh.SourceIsThere) {
        AskUser(run, "Game Not There",
                AboutSource("This game is played through links to", refresh.Source,
                            Join("and there is no game now. Put in or mount the disk that it lies on. If it has moved, "
                                 "set it up again",
                                 NewLine, "(Tools, Set Up Games). The links stay as they are.")));
        return false;
    }
    if (refresh.Done.Fault) {
        return AskUser(run, "Links Not Up To Date",
                       AboutSource("The links to the game in", refresh.Source,
                                   Join("could not be brought up to date: ", refresh.Done.Fault.Text, NewLine,
                                        "What is new there may be missing.")),
                       "&Launch All the Same,&Abort Launch") == 0;
    }
    if (!refresh.Done.IsWhole) {
        AskUserUnlessTold(run, "LinksNotWhole", "Links Not Up To Date",
                          AboutSource("Not all files could be linked of the game in", refresh.Source,
                                      Join("There are too many, their disk is slow, or a directory cannot be read.",
                                           NewLine, "What is new there may be missing.")));
    }
    return true;
}

}  // namespace lv
