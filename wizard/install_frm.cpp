#include "wizard/install_frm.h"

#include "catalogs/editors/path_window.h"
#include "foundation/browse.h"

namespace lv {

namespace {

// "Half-File" is how the window has always called that game.
constexpr std::array<InstallRow, kWizardRows> kRows = {{
    {"Quake", "Quake", "Quake", "quake"},
    {"Hexen 2", "Hexen 2", "Hexen2", "hexen2"},
    {"Quake 2", "Quake 2", "Quake2", "quake2"},
    {"Unreal", "Unreal", "Unreal", "unreal"},
    {"Sin", "Sin", "Sin", "sin"},
    {"Heretic 2", "Heretic 2", "Heretic 2", "heretic2"},
    {"Shogo", "Shogo", "Shogo", "shogo"},
    {"Blood2", "Blood 2", "Blood 2", "blood2"},
    {"Half-File", "Half-Life", "Half-Life", "halflife"},
}};

}  // namespace

const std::array<InstallRow, kWizardRows>& InstallRows() {
    return kRows;
}

Install_Frm::Install_Frm(Run& owner, const std::vector<KnownGame>& known) : ModalWindow(owner, "Install_Frm") {
    Caption = "Lorvane 3D Setup";
    for (std::size_t i = 0; i < kWizardRows; ++i) {
        Game_Chk[i].Caption = kRows[i].Caption;
        Browse_Cmd[i].Caption = "&Browse";
        Label1[i].Caption = "path -->";
        GameIcon_Pic[i].Index = static_cast<int>(i);
    }
    Label2[0].Caption = "1) Check any games you have installed.";
    Label2[1].Caption =
        "2) Enter all paths. This can be done manually, by Browsing, or by clicking 'Do An Auto Search'.";
    Label2[2].Caption = "3) Click 'OK' when you are done.";
    AutoSearch_Cmd.Caption = "&Do An Auto-Search";
    ZipMagic_Chk.Caption = "Auto-Search Ignores ZipMagic Folders";
    OK_Cmd.Caption = "&OK";
    OK_Cmd.Default = true;
    Cancel_Cmd.Caption = "&Cancel";
    for (const KnownGame& game : known) {
        Game_Chk[game.Row].Value = 2;
        Game_Chk[game.Row].Enabled = false;
        GamePath_Txt[game.Row].Text = game.Directory;
        Browse_Cmd[game.Row].Enabled = false;
    }
}

void ShowFoundGames(Install_Frm& form, const EngineTable& engines) {
    form.Engines = engines;
    form.Found = LookAround(form.run, form.Engines);
    for (std::size_t i = 0; i < kWizardRows; ++i) {
        const GameTree* const tree = form.Game_Chk[i].Enabled ? TreeOfRow(form.Found, i) : nullptr;
        if (tree != nullptr) {
            form.Game_Chk[i].Value = 1;
            form.FoundPaths[i] = ProgramDirectoryOf(*tree);
            form.GamePath_Txt[i].Text = form.FoundPaths[i];
        }
    }
    ShowFound(form, FoundText(form.Found));
}

void ShowFound(Install_Frm& form, TextView text) {
    form.Found_Lbl.Caption = text;
    form.Found_Lbl.ToolTip = text;  // the line may be longer than the window is wide
}

void Install_Browse_Cmd_Click(Install_Frm& form, int index) {
    const auto row = static_cast<std::size_t>(index);
    TextBox& box = form.GamePath_Txt[row];
    const Text path = ChoosePath(form.run, BrowseStart(form.run, box.Text), Join("Select ", kRows[row].Name, " Path."));
    if (path != kPathCancelled) {
        box.Text = path;
    }
}

void Install_Cancel_Cmd_Click(Install_Frm& form) {
    form.DialogResult = false;
    form.Closed = true;
}

bool Install_QueryUnload(Install_Frm& form) {
    if (form.SearchRunning) {
        form.CancelSearch = true;
        return false;
    }
    Install_Cancel_Cmd_Click(form);
    return true;
}

}  // namespace lv
