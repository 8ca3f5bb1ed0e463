#include "catalogs/list_room.h"

#include "foundation/question_box.h"
#include "foundation/text.h"

namespace lv {

void TellListIsFull(Run& run, Text& told, TextView directory, TextView what, std::size_t shown) {
    if (told == directory) {
        return;
    }
    told = directory;
    AskUserUnlessTold(run, "ListIsFull", "More Than a List Shows",
                      Join("There are more ", what, " than the list can show in", NewLine, directory, NewLine, NewLine,
                           "It shows the first ", std::to_string(shown), " of them. Move those that you do not need",
                           NewLine, "to another directory."));
}

}  // namespace lv
