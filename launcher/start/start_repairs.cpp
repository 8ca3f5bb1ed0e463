#include "launcher/start/start_repairs.h"

#include "foundation/field_strings.h"
#include "foundation/settings.h"

namespace lv {

namespace {

constexpr std::size_t kShortestRebuilt = 5;  // characters; up to here the last ";" stays

Text ReadOption(Run& run, TextView key) {
    return GetSetting(run, run.AppName, kOptions, key);
}

void SaveIfChanged(Run& run, TextView key, TextView before, TextView after) {
    if (after != before) {
        Save(run, kOptions, key, after);
    }
}

}  // namespace

void RepairVideoProfileList(Run& run) {
    const Text stored = ReadOption(run, "VideoProfileList");
    Text list = stored;
    while (list.ends_with(';')) {
        list.pop_back();
    }
    SaveIfChanged(run, "VideoProfileList", stored, list);
}

void RepairExecutables(Run& run) {
    const Text stored = ReadOption(run, "Executables");
    SaveIfChanged(run, "Executables", stored, ReplaceSameLength(stored, "/", "\\"));
}

Text WithoutDuplicateGames(TextView games) {
    Text rebuilt;
    const Index last = CountDelimiters(games, ";");
    for (int i = 0; i + 1 <= last; i += 2) {
        const Text option = GetField(games, static_cast<Index>(i + 1), ";") + ";";
        if (!Holds(rebuilt, option)) {
            rebuilt += Join(GetField(games, static_cast<Index>(i), ";"), ";", option);
        }
    }
    return rebuilt.size() > kShortestRebuilt ? DropRight(rebuilt, 1) : rebuilt;
}

void RepairGames(Run& run) {
    const Text stored = ReadOption(run, "Games");
    SaveIfChanged(run, "Games", stored, WithoutDuplicateGames(stored));
}

}  // namespace lv
