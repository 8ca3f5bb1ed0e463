#include "transfer/import_settings.h"

#include <algorithm>
#include <unordered_map>

#include "transfer/backups.h"

namespace lv {

namespace {

/// What a start takes for its first one while it is not there.
constexpr TextView kFirstTime = "FirstTime";

struct CalledRow {
    TextView Key;
    TextView Name;
};

constexpr CalledRow kCalled[] = {
    {"ScriptEditor", "The text editor"},
    {"GameSpyLocation", "The place of GameSpy 3D"},
};

using Store = std::unordered_map<Text, Text>;  // by section and key in lower case

Text IdOf(TextView section, TextView key) {
    return Join(LowerCase(section), TextView("\0", 1), LowerCase(key));
}

Store StoreOf(const std::vector<StoredValue>& values) {
    Store store;
    for (const StoredValue& value : values) {
        store.emplace(IdOf(value.Section, value.Key), value.Value);
    }
    return store;
}

Text NotHere(const StoredValue& value) {
    const auto* const called =
        std::ranges::find_if(kCalled, [&value](const CalledRow& row) { return SameText(row.Key, value.Key); });
    return Join(called != std::end(kCalled) ? called->Name : TextView(value.Key), ": ", value.Value, " is not here");
}

/// A program's bare name is found by the system.
bool LeadsToSomething(Run& run, TextView path) {
    return !path.empty() && (path.find_first_of("\\/") == TextView::npos || IsHere(run.System.Disk, path));
}

/// What an import writes.
struct Plan {
    std::vector<StoredValue> Writes;
    std::vector<StoredValue> Removes;
    std::vector<Text> Kept;
};

void Take(Plan& plan, const Store& stored, const StoredValue& value) {
    const auto found = stored.find(IdOf(value.Section, value.Key));
    if (found == stored.end() || found->second != value.Value) {
        plan.Writes.push_back(value);
    }
}

void TakeFile(Plan& plan, Run& run, const Store& stored, const std::vector<StoredValue>& values) {
    const std::vector<Text> profiles = ProfileNames(values);
    for (const StoredValue& value : values) {
        const CarriedRule* const rule = RuleOf(profiles, value.Section, value.Key);
        if (rule != nullptr && rule->Goes == Carried::kIfThere && !LeadsToSomething(run, value.Value)) {
            plan.Kept.push_back(NotHere(value));
        } else {
            Take(plan, stored, value);
        }
    }
}

/// What is stored and does not stand in the file.
void TakeMissing(Plan& plan, const Store& stored, const std::vector<StoredValue>& now,
                 const std::vector<StoredValue>& values) {
    const Store inFile = StoreOf(values);
    const std::vector<Text> profiles = ProfileNames(now);
    for (const StoredValue& value : now) {
        if (inFile.contains(IdOf(value.Section, value.Key))) {
            continue;
        }
        const CarriedRule* const rule = RuleOf(profiles, value.Section, value.Key);
        if (rule != nullptr && rule->Missing) {
            Take(plan, stored, {value.Section, value.Key, Text(*rule->Missing)});
        } else {
            plan.Removes.push_back(value);
        }
    }
}

Plan PlanOf(Run& run, const std::vector<StoredValue>& all, const std::vector<StoredValue>& values) {
    const Store stored = StoreOf(all);
    Plan plan;
    TakeFile(plan, run, stored, values);
    std::vector<Text> tooLong;
    TakeMissing(plan, stored, CarriedOf(all, &tooLong), values);
    for (const Text& name : tooLong) {
        plan.Kept.push_back(Join(name, ": too long for a backup"));
    }
    Take(plan, stored, {Text(kStuff), Text(kFirstTime), "0"});
    return plan;
}

Error WriteAll(Run& run, const Plan& plan) {
    SettingsBacking& store = run.System.Settings;
    for (const StoredValue& value : plan.Writes) {
        if (Error failed = store.Write(run.AppName, value.Section, value.Key, value.Value)) {
            return failed;
        }
    }
    for (const StoredValue& value : plan.Removes) {
        if (Error failed = store.Remove(run.AppName, value.Section, value.Key)) {
            return failed;
        }
    }
    return {};
}

/// What is there is read, copied and replaced with nobody else writing in between.
Result<ImportedSettings> ImportInGroup(Run& run, const std::vector<StoredValue>& values) {
    const auto all = run.System.Settings.All(run.AppName);
    if (!all.Ok()) {
        return all.Fault;
    }
    Plan plan = PlanOf(run, all.Value, values);
    auto backup = KeepBackup(run);
    if (!backup.Ok()) {
        return backup.Fault;
    }
    if (Error failed = WriteAll(run, plan)) {
        return failed;
    }
    return ImportedSettings{.Values = values.size(),
                            .Changed = plan.Writes.size() + plan.Removes.size(),
                            .Kept = std::move(plan.Kept),
                            .Moved = {},
                            .LeftPlaces = {},
                            .Backup = std::move(backup.Value)};
}

}  // namespace

Result<ImportedSettings> ImportValues(Run& run, const std::vector<StoredValue>& values,
                                      const std::vector<PathMove>& moves) {
    const auto moved = MoveValues(values, moves);
    if (!moved.Ok()) {
        return moved.Fault;
    }
    if (Error failed = run.System.Settings.BeginAlone()) {
        return failed;
    }
    auto done = ImportInGroup(run, moved.Value);
    Error ended = run.System.Settings.EndGroup();
    if (!done.Ok() || ended) {
        return done.Ok() ? ended : done.Fault;
    }
    done.Value.Moved = moves;
    return done;
}

Result<SettingChanges> ChangesOfImport(Run& run, const std::vector<StoredValue>& values) {
    const auto all = run.System.Settings.All(run.AppName);
    if (!all.Ok()) {
        return all.Fault;
    }
    Plan plan = PlanOf(run, all.Value, values);
    std::vector<StoredValue> after = std::move(plan.Writes);
    const Store removed = StoreOf(plan.Removes);
    for (const StoredValue& value : all.Value) {  // of each name the first counts
        if (!removed.contains(IdOf(value.Section, value.Key))) {
            after.push_back(value);
        }
    }
    return ChangesBetween(CarriedOf(all.Value), CarriedOf(after));
}

Result<std::vector<PathMove>> AskForMovedPlaces(Run& run, const std::vector<StoredValue>& values,
                                                const MovedPlaceQuestion& ask, std::vector<Text>& left) {
    std::vector<PathMove> moves;
    for (const MovedPlace& place : MovedPlacesOf(run.System.Disk, values)) {
        const std::optional<Text> here = ask(place, LikelyPlace(run.System.Disk, place, moves));
        if (!here) {
            left.push_back(place.Directory);
            continue;
        }
        if (const Text fault = FaultOfPlace(*here); !fault.empty()) {
            return Error{error::kInvalidCall, fault};
        }
        moves.push_back({place.Directory, *here});
    }
    return moves;
}

Result<ImportedSettings> ImportSettings(Run& run, TextView path, const MovedPlaceQuestion& ask) {
    const auto values = ReadSettingsFile(run, path);
    if (!values.Ok()) {
        return values.Fault;
    }
    std::vector<Text> left;
    const auto moves = AskForMovedPlaces(run, values.Value, ask, left);
    if (!moves.Ok()) {
        return moves.Fault;
    }
    auto imported = ImportValues(run, values.Value, moves.Value);
    imported.Value.LeftPlaces = std::move(left);
    return imported;
}

}  // namespace lv
