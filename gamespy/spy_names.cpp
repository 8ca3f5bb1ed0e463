#include "gamespy/spy_names.h"

#include <algorithm>

#include "foundation/field_strings.h"
#include "foundation/padded_item.h"
#include "launch/name_check.h"

namespace lv {

namespace {

void AddScript(std::vector<LaunchName>& names, GameSpyConfig_Frm& form, std::size_t slot) {
    const Text script = LastPathPart(ItemValue(form.ScriptSpy_Cbo[slot].Selected()));
    if (!script.empty()) {
        const bool isIni = slot == spy_slot::kUnreal;
        names.push_back(
            {.Kind = NameKind::Script, .Value = script, .Written = script, .InCommand = isIni, .InScript = !isIni});
    }
}

}  // namespace

std::vector<LaunchName> SpyNames(GameSpyConfig_Frm& form) {
    std::vector<LaunchName> names;
    for (std::size_t slot = 0; slot < kSpySlots; ++slot) {
        const Text path = ItemValue(form.ExeSpy_Cbo[slot].Selected());
        if (!SlotInUse(form, slot) || path.empty()) {
            continue;
        }
        const Text directory = DirectoryOf(path);
        names.push_back({.Kind = NameKind::GameDirectory,
                         .Value = directory,
                         .Written = Join(DoubleQuote, directory, DoubleQuote)});
        const Text executable = LastPathPart(path);
        names.push_back({.Kind = NameKind::Executable, .Value = executable, .Written = executable, .InCommand = true});
        AddScript(names, form, slot);
    }
    return names;
}

bool SpyNamesAreText(GameSpyConfig_Frm& form, const LaunchSelection& selection, const LaunchGame& game) {
    std::vector<LaunchName> names = SpyNames(form);
    const std::vector<LaunchName> places = names;
    for (LaunchName& name : NamesOf(selection, game)) {
        if (name.Kind != NameKind::Executable && name.Kind != NameKind::GameDirectory) {
            names.push_back(std::move(name));
        }
    }
    const bool areText = std::ranges::all_of(places, [&](const LaunchName& place) {
        return place.Kind != NameKind::GameDirectory ||
               NamesAreText(form.run, names, LineReader::kCommandProcessor, place.Value);
    });
    return areText && NamesMayBeCommands(form.run, names);
}

}  // namespace lv
