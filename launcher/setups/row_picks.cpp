#include "launcher/setups/row_picks.h"

#include "catalogs/missing_game.h"
#include "foundation/field_strings.h"
#include "foundation/padded_item.h"
#include "launcher/menu/video_profile_menu.h"
#include "launcher/window/lv_events.h"

namespace lv {

namespace {

constexpr int kNoRow = -1;

using TextOfRow = Text (*)(TextView row);
using SameTexts = bool (*)(TextView, TextView);

bool ToTheLetter(TextView a, TextView b) {
    return a == b;
}

Text Trimmed(TextView row) {
    return Trim(row);
}

int RowOf(const ListBox& list, TextOfRow textOf, TextView wanted, SameTexts same) {
    if (list.HasSelection() && same(textOf(list.Selected()), wanted)) {
        return list.ListIndex;
    }
    for (std::size_t i = 0; i < list.Items.size(); ++i) {
        if (same(textOf(list.Items[i]), wanted)) {
            return static_cast<int>(i);
        }
    }
    return kNoRow;
}

int RowOfAnyCase(const ListBox& list, TextOfRow textOf, TextView wanted) {
    const int row = RowOf(list, textOf, wanted, ToTheLetter);
    return row != kNoRow ? row : RowOf(list, textOf, wanted, SameText);
}

bool Pick(Launcher& launcher, ListBox& list, int row, void (*click)(Launcher&)) {
    if (row == kNoRow) {
        return false;
    }
    list.ListIndex = row;
    click(launcher);
    return true;
}

// A pick of a map is the map in the list, and nothing else.
void NothingMore(Launcher& /*launcher*/) {}

}  // namespace

bool PickExecutable(Launcher& launcher, TextView path) {
    ImageCombo& list = launcher.Window.Exe_Cbo;
    const Text wanted = OnDisk(Trim(path));
    const auto isWanted = [&](int row) {
        return SameText(OnDisk(Trim(list.Items[static_cast<std::size_t>(row)].Key)), wanted);
    };
    if (list.HasSelection() && isWanted(list.ListIndex)) {
        return true;
    }
    for (int row = 0; row < static_cast<int>(list.Items.size()); ++row) {
        if (isWanted(row)) {
            list.ListIndex = row;
            Exe_Cbo_Click(launcher);
            return true;
        }
    }
    return false;
}

bool PickModification(Launcher& launcher, TextView payload) {
    ListBox& list = launcher.Window.Game_Cbo;
    return Pick(launcher, list, RowOfAnyCase(list, ItemValue, Trim(payload)), Game_Cbo_Click);
}

bool PickMemory(Launcher& launcher, TextView payload) {
    ListBox& list = launcher.Window.Mem_Cbo;
    return Pick(launcher, list, RowOfAnyCase(list, ItemValue, Trim(payload)), Mem_Cbo_Click);
}

bool PickDemo(Launcher& launcher, TextView payload) {
    ListBox& list = launcher.Window.Demo_Cbo;
    return Pick(launcher, list, RowOfAnyCase(list, ItemValue, Trim(payload)), Demo_Cbo_Click);
}

bool PickScript(Launcher& launcher, TextView path) {
    ListBox& list = launcher.Window.Script_Cbo;
    return Pick(launcher, list, RowOf(list, ItemValue, Trim(path), SameText), Script_Cbo_Click);
}

bool PickServer(Launcher& launcher, TextView record) {
    ListBox& list = launcher.Window.Server_Cbo;
    return Pick(launcher, list, RowOf(list, ItemValue, Trim(record), ToTheLetter), Server_Cbo_Click);
}

bool PickMap(Launcher& launcher, TextView name) {
    ListBox& list = launcher.Window.Map_Cbo;
    return Pick(launcher, list, RowOfAnyCase(list, Trimmed, Trim(name)), NothingMore);
}

bool PickVideoProfile(Launcher& launcher, TextView name) {
    ListBox& list = launcher.Window.VideoProfiles_Cbo;
    return Pick(launcher, list, RowOfAnyCase(list, Trimmed, Trim(name)), VideoProfiles_Cbo_Click);
}

}  // namespace lv
