#include "launcher/launchers/setup_shortcut.h"

#include <algorithm>

#include "foundation/check_sum.h"
#include "foundation/desktop_entry_text.h"
#include "foundation/field_strings.h"
#include "foundation/percent_text.h"
#include "games/programs.h"
#include "launcher/setups/setup_words.h"
#include "platform/code_page.h"

namespace lv {

namespace {

constexpr std::size_t kLongestStem = 100;
constexpr std::size_t kKeptOfLongStem = 80;

bool IsPlain(char letter) {
    return (letter >= 'a' && letter <= 'z') || (letter >= '0' && letter <= '9') || letter == '-';
}

Text ImageOf(const Launcher& launcher, const Setup& setup) {
    const auto& games = launcher.Window.Exe_Cbo.Items;
    const auto row = std::ranges::find_if(games, [&setup](const ImageComboItem& item) {
        return SameText(ReplaceSameLength(item.Key, "/", "\\"), setup.ExecutablePath);
    });
    return LowerCase(row != games.end() ? row->Image : ImageKeyOf(LastPathPart(setup.ExecutablePath)));
}

}  // namespace

Text EntryNameOf(TextView setupName) {
    const Text key = LowerCase(setupName);
    Text stem = ReplaceText(PercentText(key, IsPlain), "%", "_");
    if (stem.size() > kLongestStem) {
        stem = Join(stem.substr(0, kKeptOfLongStem), "-", CheckSumText(CheckSum(key)));
    }
    return Join("lorvane3d-setup-", stem, ".desktop");
}

Text EntryMarkOf(TextView setupName) {
    return Join("X-Lorvane3D-Setup=", DesktopEntryValue(ToUtf8(LowerCase(setupName))));
}

std::vector<Text> WordsThatStart(TextView setupName) {
    return {Join("--setup=", setupName), "--tell"};
}

Text EntryOfSetup(const Setup& setup, TextView comment, TextView program, TextView picture) {
    Text exec = QuoteForExec(program);
    for (const Text& word : WordsThatStart(setup.Name)) {
        exec += Join(" ", QuoteForExec(ToUtf8(word)));
    }
    const auto line = [](TextView key, TextView value) { return Join(key, "=", DesktopEntryValue(value), "\n"); };
    return Join("[Desktop Entry]\nType=Application\nVersion=1.4\n", line("Name", ToUtf8(ShownText(setup.Name))),
                line("Comment", ToUtf8(comment)), "Exec=", exec, "\n", line("TryExec", program),
                line("Icon", picture.empty() ? "lorvane3d" : picture),
                "Terminal=false\nStartupNotify=false\nCategories=Game;\n", EntryMarkOf(setup.Name), "\n");
}

Shortcut ShortcutOf(const Launcher& launcher, const Setup& setup) {
    Shortcut made;
    made.Name = ShownText(setup.Name);
    made.Comment = WordsOf(launcher, setup);
    made.Words = WordsThatStart(setup.Name);
    made.PictureName = ImageOf(launcher, setup);
    if (launcher.PicturesOfGame) {
        made.Pictures = launcher.PicturesOfGame(made.PictureName);
    }
    made.EntryName = EntryNameOf(setup.Name);
    made.EntryMark = EntryMarkOf(setup.Name);
    made.Entry = [setup, comment = made.Comment](const Text& program, const Text& picture) {
        return EntryOfSetup(setup, comment, program, picture);
    };
    return made;
}

}  // namespace lv
