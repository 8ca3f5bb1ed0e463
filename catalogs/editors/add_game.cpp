#include "catalogs/editors/add_game.h"

#include "catalogs/editors/path_window.h"
#include "catalogs/modifications.h"
#include "foundation/browse.h"
#include "foundation/field_strings.h"
#include "foundation/padded_item.h"
#include "foundation/settings.h"
#include "foundation/typed_path.h"

namespace lv {

namespace {

constexpr TextView kInvalidPath = "Path is invalid.";

bool IsEdit(const AddGame_Frm& form) {
    return form.Mode == EntryMode::Edit && form.Lists.Game_Cbo.HasSelection();
}

bool Validate(AddGame_Frm& form, const Text& title, const Text& name) {
    const Text& directory = form.run.DefaultGameDirectory;
    if (title.empty()) {
        TellFault(form, "GameTitle_Txt", "Enter a Title for the game.");
    } else if (Holds(title, ",")) {
        TellFault(form, "GameTitle_Txt", "The Title may not contain a comma.");
    } else if (name.empty()) {
        TellFault(form, "GamePath_Txt", "Enter a Path.");
    } else if (directory.empty() || !form.run.System.Disk.DirectoryExists(Join(directory, "\\", name))) {
        TellFault(form, "GamePath_Txt", kInvalidPath);
    } else {
        return true;
    }
    return false;
}

}  // namespace

AddGame_Frm::AddGame_Frm(Run& owner, CatalogLists& lists, EntryMode mode)
    : EntryWindow(owner, "AddGame_Frm", mode), Lists(lists) {
    Caption = mode == EntryMode::Edit ? "Edit Current Game" : "Add Game";
    GameTitle_Lbl.Caption = "Game Title";
    GamePath_Lbl.Caption = "-game Directory";
    Browse_Cmd.Caption = "&Browse";
    if (mode == EntryMode::Edit && lists.Game_Cbo.HasSelection()) {
        GameTitle_Txt.Text = ItemTitle(lists.Game_Cbo.Selected());
        GamePath_Txt.Text = DirectoryOfOption(ItemValue(lists.Game_Cbo.Selected()));
    }
}

void AddGame_Browse_Cmd_Click(AddGame_Frm& form) {
    const Text& directory = form.run.DefaultGameDirectory;
    const Text typed = TypedName(form.run, form.GamePath_Txt.Text, directory);
    const Text inBox = typed.empty() ? Text() : Join(directory, "\\", typed);
    const Text path = ChoosePath(form.run, BrowseStart(form.run, inBox, directory));
    if (path == kPathCancelled) {
        return;
    }
    const Text name = NameBelow(directory, path);
    if (name.empty()) {
        TellFault(form, "GamePath_Txt", kInvalidPath);
        return;
    }
    form.GamePath_Txt.Text = name;
}

void AddGame_OK_Cmd_Click(AddGame_Frm& form) {
    ListBox& list = form.Lists.Game_Cbo;
    const Text title = Trim(form.GameTitle_Txt.Text);
    const Text name = TypedName(form.run, form.GamePath_Txt.Text, form.run.DefaultGameDirectory);
    if (!Validate(form, title, name)) {
        return;
    }
    const Text option = Join(kGameOption, name);
    const bool edit = IsEdit(form);
    const ListBox before = list;
    if (edit) {
        list.Items[static_cast<std::size_t>(list.ListIndex)] = MakeItem(title, option);
    } else {
        list.Items.push_back(MakeItem(title, option));
    }
    if (!SaveCatalog(form.run, form.Lists, kGames.Key, list)) {
        list = before;
        return;
    }
    if (edit) {
        Save(form.run, kOptions, "GamesPos", list.ListIndex);
    }
    ConfirmEntry(form, title, option);
}

}  // namespace lv
