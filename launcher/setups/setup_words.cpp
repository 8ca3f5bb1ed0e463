#include "launcher/setups/setup_words.h"

#include <algorithm>

#include "foundation/field_strings.h"
#include "foundation/padded_item.h"
#include "launcher/launcher.h"

namespace lv {

namespace {

constexpr unsigned char kFirstPrintable = 0x20;
constexpr unsigned char kDelete = 0x7F;

bool IsControl(char character) {
    const auto byte = static_cast<unsigned char>(character);
    return byte < kFirstPrintable || byte == kDelete;
}

Text GameOf(const Launcher& launcher, TextView path) {
    const auto& games = launcher.Window.Exe_Cbo.Items;
    const auto game = std::ranges::find_if(
        games, [path](const ImageComboItem& row) { return SameText(ReplaceSameLength(row.Key, "/", "\\"), path); });
    return game != games.end() ? game->Title : Join(LastPathPart(path), ", which is not in the list of games");
}

TextView Before(Option box) {
    return box == Option::Server_Chk ? ", on " : box == Option::Map_Chk ? ", at " : ", ";
}

}  // namespace

Text ShownText(TextView text) {
    Text shown(text);
    std::erase_if(shown, IsControl);
    return shown;
}

Text MenuText(TextView text) {
    Text shown;
    for (const char character : ShownText(text)) {
        shown.append(character == '&' ? 2U : 1U, character);
    }
    return shown;
}

Text WordsOf(const Launcher& launcher, const Setup& setup) {
    Text words = GameOf(launcher, setup.ExecutablePath);
    if (setup.Ticked.Has(Option::LaunchQspy_Chk)) {
        return ShownText(words + ", through GameSpy 3D");
    }
    for (const SetupRow& row : SetupRows()) {
        const bool counts = row.Box == Option::Game_Chk || row.Box == Option::Server_Chk || row.Box == Option::Map_Chk;
        if (const auto& value = setup.*row.Value; counts && value && setup.Ticked.Has(row.Box)) {
            words += Join(Before(row.Box), ShownRow(row, *value));
        }
    }
    if (setup.Ticked.Has(Option::Dedicated_Chk)) {
        words += ", dedicated server";
    } else if (setup.Ticked.Has(Option::Listen_Chk)) {
        words += ", listen server";
    }
    return ShownText(words);
}

Text OfferedName(const Launcher& launcher) {
    const LV_Frm& window = launcher.Window;
    if (!window.Exe_Cbo.HasSelection()) {
        return {};
    }
    Text name = window.Exe_Cbo.Items[static_cast<std::size_t>(window.Exe_Cbo.ListIndex)].Title;
    if (window.Box(Option::Game_Chk).Value == 1 && window.Game_Cbo.HasSelection()) {
        name += Join(", ", ItemTitle(window.Game_Cbo.Selected()));
    }
    return Trim(ShownText(name).substr(0, kLongestSetupName));
}

}  // namespace lv
