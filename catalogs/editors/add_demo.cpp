#include "catalogs/editors/add_demo.h"

#include "foundation/browse.h"
#include "foundation/field_strings.h"
#include "foundation/padded_item.h"
#include "foundation/typed_path.h"
#include "games/games.h"

namespace lv {

namespace {

Text DemoDirectory(const Run& run) {
    return Join(run.DefaultGameDirectory, "\\", run.CurrentGameDir);
}

bool Validate(AddDemo_Frm& form, const Text& title, const Text& name) {
    if (title.empty()) {
        TellFault(form, "DemoTitle_Txt", "Enter a Title for the demo file.");
    } else if (Holds(title, ",")) {
        TellFault(form, "DemoTitle_Txt", "The Title may not contain a comma.");
    } else if (name.empty()) {
        TellFault(form, "DemoPath_Txt", "Enter the Demo File Name.");
    } else if (!form.run.System.Disk.FileExists(Join(DemoDirectory(form.run), "\\", name))) {
        TellFault(form, "DemoPath_Txt",
                  Join("File Name is invalid. The demo must be in the ", form.run.CurrentGameDir, " subdirectory"));
    } else {
        return true;
    }
    return false;
}

}  // namespace

AddDemo_Frm::AddDemo_Frm(Run& owner, CatalogLists& lists, EntryMode mode)
    : EntryWindow(owner, "AddDemo_Frm", mode), Lists(lists) {
    Caption = mode == EntryMode::Edit ? "Edit Current Demo" : "Add Demo";
    DemoTitle_Lbl.Caption = "Demo Title";
    DemoPath_Lbl.Caption = "Demo File Name";
    Browse_Cmd.Caption = "&Browse";
    if (mode == EntryMode::Edit && lists.Demo_Cbo.HasSelection()) {
        const Text command = ItemValue(lists.Demo_Cbo.Selected());
        const std::size_t blank = command.find(' ');
        DemoTitle_Txt.Text = ItemTitle(lists.Demo_Cbo.Selected());
        DemoPath_Txt.Text = blank == Text::npos ? command : Trim(TextView(command).substr(blank));
    }
}

void AddDemo_Browse_Cmd_Click(AddDemo_Frm& form) {
    const TextView own = FactsOf(form.run.GameKind).DemoFilter;
    const TextView filter = own.empty() ? kAllFilesFilter : own;
    const Text directory = DemoDirectory(form.run);
    const Text typed = TypedName(form.run, form.DemoPath_Txt.Text, directory);
    const Text inBox = typed.empty() ? Text() : Join(directory, "\\", typed);
    const auto path = BrowseForFile(form.run, filter, BrowseStart(form.run, inBox, directory));
    if (!path) {
        return;
    }
    const Text name = NameBelow(directory, *path);
    form.DemoPath_Txt.Text = name.empty() ? LastPathPart(*path) : name;
}

void AddDemo_OK_Cmd_Click(AddDemo_Frm& form) {
    ListBox& list = form.Lists.Demo_Cbo;
    const Text title = Trim(form.DemoTitle_Txt.Text);
    const Text name = TypedName(form.run, form.DemoPath_Txt.Text, DemoDirectory(form.run));
    if (!Validate(form, title, name)) {
        return;
    }
    const bool edit = form.Mode == EntryMode::Edit && list.HasSelection();
    const Text command = Join(!edit && form.run.GameKind == Game::Quake2 ? "demomap " : "playdemo ", name);
    const ListBox before = list;
    if (edit) {
        list.Items[static_cast<std::size_t>(list.ListIndex)] = MakeItem(title, command);
    } else {
        list.Items.push_back(MakeItem(title, command));
    }
    if (!SaveCatalog(form.run, form.Lists, kDemos.Key, list)) {
        list = before;
        return;
    }
    ConfirmEntry(form, title, command);
}

}  // namespace lv
