#include "launcher/window/hint.h"

#include "foundation/field_strings.h"
#include "foundation/padded_item.h"

namespace lv {

namespace {

bool Counts(const CheckBox& box, const ListBox& list) {
    return box.Value == 1 && list.HasSelection();
}

}  // namespace

Text HintText(const Launcher& launcher) {
    const LV_Frm& window = launcher.Window;
    if (window.Exe_Cbo.Items.empty()) {
        return "No game is in the list yet.";
    }
    if (!window.Exe_Cbo.HasSelection()) {
        return "Pick a game.";
    }
    if (window.Box(Option::LaunchQspy_Chk).Value == 1) {
        return "F2 configures GameSpy 3D to start your games.";
    }
    const Text program = LastPathPart(window.Exe_Cbo.Items[static_cast<std::size_t>(window.Exe_Cbo.ListIndex)].Key);
    if (launcher.run.GameKind == Game::None) {
        return Join("No known game lies beside ", program, ".");
    }
    Text hint = Join("F2 starts ", program);
    if (Counts(window.Box(Option::Game_Chk), window.Game_Cbo)) {
        hint += Join(", ", ItemTitle(window.Game_Cbo.Selected()));
    }
    if (Counts(window.Box(Option::Script_Chk), window.Script_Cbo)) {
        hint += Join(", with ", ItemTitle(window.Script_Cbo.Selected()));
    }
    if (Counts(window.Box(Option::Server_Chk), window.Server_Cbo)) {
        hint += Join(", on ", ItemTitle(window.Server_Cbo.Selected()));
    }
    if (Counts(window.Box(Option::Map_Chk), window.Map_Cbo)) {
        hint += Join(", at ", window.Map_Cbo.Selected());
    }
    return hint + ".";
}

}  // namespace lv
