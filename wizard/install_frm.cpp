#include "wizard/install_frm.h"

#include "catalogs/editors/path_window.h"
#include "foundation/browse.h"

namespace lv {

namespace {

// "Half-File" is how the window has always called that game.
constexpr std::array<InstallRow, kInstallRows> kRows = {{
    {"Quake", "Quake", "Quake", "quake", "quake.exe", "quake.exe"},
    {"Hexen 2", "Hexen 2", "Hexen2", "hexen2", "h2.exe", "h2.exe"},
    {"Quake 2", "Quake 2", "Quake2", "quake2", "quake2.exe", "quake2.exe"},
    {"Unreal", "Unreal", "Unreal", "unreal", "unreal.exe", "unreal.exe"},
    {"Sin", "Sin", "Sin", "sin", "sin.exe", "sin.exe"},
    {"Heretic 2", "Heretic 2", "Heretic 2", "heretic2", "Heretic2.exe", "heretic2.exe"},
    {"Shogo", "Shogo", "Shogo", "shogo", "shogo.exe", "shogo.exe"},
    {"Blood2", "Blood 2", "Blood 2", "blood2", "blood2.exe", "blood2.exe"},
    {"Half-File", "Half-Life", "Half-Life", "halflife", "HL.exe", "hl.exe"},
}};

}  // namespace

const std::array<InstallRow, kInstallRows>& InstallRows() {
    return kRows;
}

Install_Frm::Install_Frm(Run& owner, const std::vector<KnownGame>& known) : ModalWindow(owner, "Install_Frm") {
    Caption = "Lorvane 3D Setup";
    for (std::size_t i = 0; i < kInstallRows; ++i) {
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
        const auto row = static_cast<std::size_t>(game.Row);
        Game_Chk[row].Value = 2;
        Game_Chk[row].Enabled = false;
        GamePath_Txt[row].Text = game.Directory;
        Browse_Cmd[row].Enabled = false;
    }
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
