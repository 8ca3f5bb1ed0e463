#include "catalogs/editors/choose_script.h"

#include "foundation/browse.h"
#include "foundation/field_strings.h"
#include "foundation/typed_path.h"
#include "games/games.h"

namespace lv {

namespace {

// The games that came later share the plain filter here, Unreal too.
TextView FilterFor(Game gameKind) {
    const bool hasOwn = gameKind == Game::Quake || gameKind == Game::Hexen2 || gameKind == Game::Quake2;
    return hasOwn ? FactsOf(gameKind).ScriptFilter : "Scripts (*.cfg)|*.cfg|All Files (*.*)|*.*";
}

}  // namespace

ChooseScript_Frm::ChooseScript_Frm(Run& owner, TextView directory)
    : EntryWindow(owner, "ChooseScript_Frm", EntryMode::Add), Directory(directory) {
    Caption = "Choose Script";
    Label2.Caption = "Script File Name";
    Browse_Cmd.Caption = "&Browse";
}

void ChooseScript_Browse_Cmd_Click(ChooseScript_Frm& form) {
    if (auto path = BrowseForFile(form.run, FilterFor(form.run.GameKind), form.Directory)) {
        // The game looks for a script in its own directory, so one that lies there goes by its name.
        const Text name = NameBelow(form.Directory, *path);
        form.ScriptPath_Txt.Text = name.empty() ? *std::move(path) : name;
    }
}

void ChooseScript_OK_Cmd_Click(ChooseScript_Frm& form) {
    const Text name = TypedName(form.run, form.ScriptPath_Txt.Text, form.Directory);
    if (name.empty()) {
        TellFault(form, "ScriptPath_Txt", "No script name was entered.");
        return;
    }
    form.LastEntry = name;
    form.DialogResult = true;
    form.Closed = true;
}

}  // namespace lv
