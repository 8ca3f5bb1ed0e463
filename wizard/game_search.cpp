#include "wizard/game_search.h"

#include <algorithm>
#include <limits>

#include "foundation/field_strings.h"
#include "foundation/question_box.h"
#include "games/programs.h"
#include "wizard/disk_walk.h"
#include "wizard/searched_trees.h"

namespace lv {

namespace {

constexpr double kPumpSeconds = 0.02;  // between two looks at the window's events
constexpr std::size_t kLongestProgram = 12;

struct UsualPlace {
    std::size_t Row;
    const char* Path;
};

constexpr UsualPlace kUsualPlaces[] = {
    {wizard_row::kQuake, "\\quake\\"},
    {wizard_row::kQuake, "\\games\\quake\\"},
    {wizard_row::kQuake, "\\program files\\quake\\"},
    {wizard_row::kHexen2, "\\hexen2\\"},
    {wizard_row::kHexen2, "\\games\\hexen2\\"},
    {wizard_row::kHexen2, "\\program files\\hexen2\\"},
    {wizard_row::kQuake2, "\\quake2\\"},
    {wizard_row::kQuake2, "\\games\\quake2\\"},
    {wizard_row::kQuake2, "\\program files\\quake2\\"},
    {wizard_row::kUnreal, "\\unreal\\system\\"},
    {wizard_row::kUnreal, "\\games\\unreal\\system\\"},
    {wizard_row::kUnreal, "\\program files\\unreal\\system\\"},
    {wizard_row::kSin, "\\sin\\"},
    {wizard_row::kSin, "\\games\\sin\\"},
    {wizard_row::kSin, "\\program files\\sin\\"},
    {wizard_row::kSin, "\\activision\\sin\\"},
    {wizard_row::kSin, "\\games\\activision\\sin\\"},
    {wizard_row::kSin, "\\program files\\activision\\sin\\"},
    {wizard_row::kSin, "\\sin demo\\"},
    {wizard_row::kSin, "\\games\\sin demo\\"},
    {wizard_row::kSin, "\\program files\\sin demo\\"},
    {wizard_row::kSin, "\\activision\\sin demo\\"},
    {wizard_row::kSin, "\\games\\activision\\sin demo\\"},
    {wizard_row::kSin, "\\program files\\activision\\sin demo\\"},
    {wizard_row::kHeretic2, "\\heretic ii\\"},
    {wizard_row::kHeretic2, "\\games\\heretic ii\\"},
    {wizard_row::kHeretic2, "\\program files\\heretic ii\\"},
    {wizard_row::kHeretic2, "\\heretic ii demo\\"},
    {wizard_row::kHeretic2, "\\games\\heretic ii demo\\"},
    {wizard_row::kHeretic2, "\\program files\\heretic ii demo\\"},
    {wizard_row::kShogo, "\\shogo\\"},
    {wizard_row::kShogo, "\\games\\shogo\\"},
    {wizard_row::kShogo, "\\program files\\shogo\\"},
    {wizard_row::kBlood2, "\\blood2\\"},
    {wizard_row::kBlood2, "\\games\\blood2\\"},
    {wizard_row::kBlood2, "\\program files\\blood2\\"},
    {wizard_row::kHalfLife, "\\sierra\\half-life\\"},
    {wizard_row::kHalfLife, "\\games\\sierra\\half-life\\"},
    {wizard_row::kHalfLife, "\\program files\\sierra\\half-life\\"},
};

// Which games are looked for, and still open. A game that is known already is neither.
using Rows = std::array<bool, kWizardRows>;

Rows TickedRows(const Install_Frm& form) {
    Rows ticked{};
    std::transform(form.Game_Chk.begin(), form.Game_Chk.end(), ticked.begin(),
                   [](const CheckBox& box) { return box.Value == 1; });
    return ticked;
}

bool Any(const Rows& rows) {
    return std::find(rows.begin(), rows.end(), true) != rows.end();
}

// "A:" and "B:" are never touched, not even to see whether a disk is there.
std::vector<Text> SearchedDrives(Run& run) {
    std::vector<Text> drives = run.System.Disk.Drives();
    std::erase_if(drives, [](const Text& drive) { return SameText(drive, "A:") || SameText(drive, "B:"); });
    return drives;
}

// The search goes on behind a hit, so the last place and the last drive win. Gives the rows that stay open.
Rows SearchUsualPlaces(Install_Frm& form, const Rows& ticked) {
    Rows open = ticked;
    const std::vector<Text> drives = SearchedDrives(form.run);
    for (const UsualPlace& place : kUsualPlaces) {
        if (!ticked[place.Row]) {
            continue;
        }
        for (const Text& drive : drives) {
            const Text directory = Join(drive, place.Path);
            if (form.run.System.Disk.FileExists(Join(directory, SearchedProgram(place.Row)))) {
                form.GamePath_Txt[place.Row].Text = DropRight(directory, 1);
                open[place.Row] = false;
            }
        }
    }
    return open;
}

Text NamesOf(const Rows& rows) {
    Text names;
    for (std::size_t i = 0; i < kWizardRows; ++i) {
        if (rows[i]) {
            names += Join(InstallRows()[i].ListName, ", ");
        }
    }
    return DropRight(names, 2);
}

bool WantsWalk(Run& run, const Rows& open) {
    return AskUser(run, "",
                   Join("These games (", NamesOf(open), ") were not found in any of the 'usual' places.", NewLine,
                        NewLine, "Would you like me to do an extensive hard drive search?", NewLine,
                        "(This could take a few minutes)."),
                   "&Yes,&No") == 0;
}

void SetSearching(Install_Frm& form, bool searching) {
    form.SearchRunning = searching;
    form.CancelSearch = false;
    form.OK_Cmd.Enabled = !searching;
    form.Cancel_Cmd.Enabled = !searching;
    for (std::size_t i = 0; i < kWizardRows; ++i) {
        form.Browse_Cmd[i].Enabled = !searching && form.Game_Chk[i].Enabled;  // a known game's stays out of use
    }
    form.AutoSearch_Cmd.Caption = searching ? "Cancel &Search" : "&Do An Auto-Search";
}

bool MayBeProgram(const DirectoryEntry& entry) {
    return !entry.IsDirectory && !entry.IsDevice && entry.Name.size() <= kLongestProgram &&
           LowerCase(entry.Name.back()) == 'e';
}

void TakeHits(Install_Frm& form, const DiskWalk::Step& step, Rows& open) {
    for (const DirectoryEntry& entry : step.Entries) {
        if (!MayBeProgram(entry)) {
            continue;
        }
        for (std::size_t i = 0; i < kWizardRows; ++i) {
            if (open[i] && SameText(entry.Name, SearchedProgram(i))) {
                form.GamePath_Txt[i].Text = step.Path.ends_with('\\') ? DropRight(step.Path, 1) : step.Path;
                open[i] = false;
            }
        }
    }
}

// Shows where the search is and lets the user at the window, often enough for a cancel to take effect at once.
class Pulse {
  public:
    explicit Pulse(Install_Frm& form) : form_(form) {}

    /// False if the search is to end.
    bool GoOn(const Text& path) {
        Run& run = form_.run;
        if (run.System.Time.Seconds() >= due_) {
            form_.Status_Lbl.Caption = Join("Searching...  ", path);
            run.User.Refresh();
            run.User.PumpEvents();
            due_ = run.System.Time.Seconds() + kPumpSeconds;
        }
        return !form_.CancelSearch && !run.Ended;
    }

  private:
    Install_Frm& form_;
    double due_ = -std::numeric_limits<double>::infinity();  // the first time is at once
};

/// Gives the rows that stay open.
Rows WalkDisks(Install_Frm& form, Rows open, SearchedTrees& trees) {
    Files& disk = form.run.System.Disk;
    DiskWalk walk(disk);
    Pulse pulse(form);
    for (const Text& drive : SearchedDrives(form.run)) {
        if (disk.ProbeDrive(drive)) {
            continue;
        }
        walk.Enter(drive);
        while (const auto step = walk.Next()) {
            if (!pulse.GoOn(step->Path)) {
                return open;
            }
            const bool ignored = form.ZipMagic_Chk.Value == 1 && Holds(UpperCase(step->Path), ".ZIP");
            if (!ignored) {
                TakeHits(form, *step, open);
                trees.Take(disk, *step);
            }
            if (!Any(open)) {
                return open;
            }
        }
    }
    return open;
}

void TellFound(Install_Frm& form, const Rows& ticked, const Rows& open) {
    std::vector<Text> found;
    std::vector<Text> missing;
    for (std::size_t i = 0; i < kWizardRows; ++i) {
        if (ticked[i]) {
            (open[i] ? missing : found).emplace_back(InstallRows()[i].Name);
        }
    }
    ShowFound(form, SearchText(found, missing));
}

}  // namespace

void Install_AutoSearch_Cmd_Click(Install_Frm& form) {
    if (form.SearchRunning) {
        form.CancelSearch = true;
        return;
    }
    const Rows ticked = TickedRows(form);
    if (!Any(ticked)) {
        AskUser(form.run, "", "Please check the games you have before starting the Auto-Search.");
        return;
    }
    form.Hourglass = true;
    form.run.User.Refresh();
    Rows open = SearchUsualPlaces(form, ticked);
    SearchedTrees trees;
    if (Any(open) && WantsWalk(form.run, open)) {
        SetSearching(form, true);
        open = WalkDisks(form, open, trees);
        SetSearching(form, false);
    }
    trees.Fill(form, open);
    form.Status_Lbl.Caption = "Search Complete:";
    TellFound(form, ticked, open);
    form.Hourglass = false;
}

}  // namespace lv
