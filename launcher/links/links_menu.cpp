#include "launcher/links/links_menu.h"

#include "foundation/error_lines.h"
#include "foundation/field_strings.h"
#include "foundation/question_box.h"
#include "launcher/links/taken_links.h"

namespace lv {

namespace {

constexpr const char* kTitle = "Take Game Links";

Text Lines(const std::vector<Text>& rows) {
    Text lines;
    for (const Text& row : rows) {
        lines += Join(NewLine, TabChar, row);
    }
    return lines;
}

bool WantsLinks(Run& run) {
    const std::vector<Text> holders = HoldersOfLinks(run.System);
    return holders.empty() ||
           AskUser(run, kTitle,
                   Join("These links go to another program -->", NewLine, Lines(holders), NewLine, NewLine,
                        "Shall they come to Lorvane 3D? If you untick this item again, they go back."),
                   "&Take Them,&Cancel") == 0;
}

void TellFailure(Run& run, const Error& failed) {
    AskUser(run, kTitle, Join("Not all of this could be written.", NewLine, NewLine, ErrorLines(failed)));
}

void Take(Run& run) {
    if (!WantsLinks(run)) {
        return;
    }
    if (const Error failed = TakeLinks(run.System)) {
        TellFailure(run, failed);
    } else if (!TakesLinks(run.System)) {
        AskUser(run, kTitle,
                Join("Your system's own settings still give these links to another program -->", NewLine,
                     Lines(HoldersOfLinks(run.System)), NewLine, NewLine, "Choose Lorvane 3D there."));
    }
}

}  // namespace

void TakeLinks_Bar_Click(Launcher& launcher) {
    Run& run = launcher.run;
    if (!CanTakeLinks(run.System)) {
        return;
    }
    if (!TakesLinks(run.System)) {
        Take(run);
    } else if (const Error failed = LeaveLinks(run.System)) {
        TellFailure(run, failed);
    }
    Menu_Open(launcher);
}

void Menu_Open(Launcher& launcher) {
    MenuItemState& item = launcher.Window.Bar(MenuItem::TakeLinks_Bar);
    item.Enabled = CanTakeLinks(launcher.run.System);
    item.Checked = TakesLinks(launcher.run.System);
}

}  // namespace lv
