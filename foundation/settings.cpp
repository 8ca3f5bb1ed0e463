#include "foundation/settings.h"

#include "foundation/error_lines.h"
#include "foundation/numbers.h"
#include "foundation/question_box.h"

namespace lv {

namespace {

Text FaultOf(TextView section, TextView key, TextView value) {
    Text reason;
    if (section.empty()) {
        reason = "Attempt to insert an empty string as an area.";
    }
    if (key.empty()) {
        reason = "Attempt to insert an empty string as a key.";
    }
    if (value.size() > kLongestValue) {
        reason = "Attempt to insert too long a string as a value.";
    }
    return reason;
}

constexpr const char* kManyLost = "Settings could not be saved; the old ones are still there.";

void Tell(Run& run, TextView what, TextView which, const Error& failed) {
    if (run.LockTold && failed.Number == error::kAlreadyOpen) {
        return;
    }
    if (run.TellingOnce > 0 && run.FaultTold == failed.Number) {
        return;
    }
    run.FaultTold = failed.Number;
    Text title = run.AppName;
    AskUser(run, title,
            Join(run.TellingOnce > 0 ? kManyLost : what, NewLine, NewLine, which, which.empty() ? "" : NewLine,
                 ErrorLines(failed)));
}

constexpr int kNotThere = 2;  // the registry's number for a key or value that is missing

RegValue ReadableValue(const Result<RegistryValue>& read) {
    if (!read.Ok()) {
        return {};
    }
    const RegistryValue& value = read.Value;
    if (value.Type == kRegistryText) {
        return {kRegistryText, value.Text.substr(0, value.Text.find('\0')), 0};
    }
    if (value.Type == kRegistryNumber) {
        return {kRegistryNumber, {}, value.Number};
    }
    return {};
}

}  // namespace

Text GetSetting(Run& run, TextView application, TextView section, TextView key, TextView fallback) {
    auto stored = run.System.Settings.Read(application, section, key);
    return stored ? *std::move(stored) : Text(fallback);
}

Index GetNumber(Run& run, TextView section, TextView key, Index fallback) {
    const auto stored = run.System.Settings.Read(run.AppName, section, key);
    return stored ? ToIndex(*stored) : fallback;
}

bool SaveChecked(Run& run, Text& application, TextView section, TextView key, TextView value) {
    if (application.empty()) {
        application = run.AppName;
    }
    const Text reason = FaultOf(section, key, value);
    if (!reason.empty()) {
        Text title;
        AskUser(
            run, title,
            Join(reason, NewLine, "Regisrty alteration did not occure.", NewLine, "Please contact technical support.",
                 NewLine, NewLine, application, "\\/\\", section, "\\/\\", key, "\\/\\", "\\/\\", value, NewLine));
        return false;
    }
    if (run.GroupFailed) {
        return false;
    }
    if (const Error failed = run.System.Settings.Write(application, section, key, value)) {
        run.GroupFailed = run.SaveGroups > 0;
        Tell(run, "This setting could not be saved; the old one is still there.", Join(section, "\\/\\", key), failed);
        return false;
    }
    run.LockTold = false;
    return true;
}

void AskWhileLocked(Run& run) {
    run.System.Settings.WhenLocked([&run](const Error& reason) {
        run.LockTold = true;  // what is saved while the box is up
        Text title = run.AppName;
        const Index answer = AskUser(run, title,
                                     Join(reason.Text, NewLine, NewLine, "Retry waits for it once more.", NewLine,
                                          "With Cancel the program goes on, but no setting is saved", NewLine,
                                          "until the other program has finished."),
                                     "&Retry,&Cancel");
        run.LockTold = answer != 0;
        return answer == 0;
    });
}

SavesTogether::SavesTogether(Run& run) : run_(run) {
    ++run_.SaveGroups;
    run_.System.Settings.BeginGroup();
}

SavesTogether::~SavesTogether() {
    const Error failed = run_.System.Settings.EndGroup();
    const bool told = run_.GroupFailed;
    if (--run_.SaveGroups == 0) {
        run_.GroupFailed = false;
    }
    if (failed && !told) {
        Tell(run_, "These settings could not be saved; the old ones are still there.", "", failed);
    }
}

ToldOnce::ToldOnce(Run& run) : run_(run) {
    if (run_.TellingOnce++ == 0) {
        run_.FaultTold = 0;
    }
}

ToldOnce::~ToldOnce() {
    --run_.TellingOnce;
}

bool Save(Run& run, TextView section, TextView key, TextView value) {
    Text application = run.AppName;
    return SaveChecked(run, application, section, key, value);
}

bool Save(Run& run, TextView section, TextView key, int value) {
    return Save(run, section, key, TextView(std::to_string(value)));
}

RegValue RegQueryOpen(Run& run, const RegKey& key, TextView name) {
    return ReadableValue(run.System.Registry.Query(key.Path, name));
}

Result<std::vector<RegValue>> RegQueryAll(Run& run, std::span<const RegistryPlace> places) {
    std::vector<RegValue> values;
    values.reserve(places.size());
    for (const Result<RegistryValue>& read : run.System.Registry.QueryAll(places)) {
        if (!read.Ok() && read.Fault.Number != kNotThere) {
            return read.Fault;
        }
        values.push_back(ReadableValue(read));
    }
    return values;
}

RegValue RegQueryPath(Run& run, TextView path, TextView name) {
    return RegQueryOpen(run, {Text(path)}, name);
}

Error RegWriteOpen(Run& run, const RegKey& key, TextView name, const RegValue& value) {
    return run.System.Registry.Set(key.Path, name, {value.Type, value.String, value.Number});
}

Error RegWritePath(Run& run, TextView path, TextView name, const RegValue& value) {
    return RegWriteOpen(run, {Text(path)}, name, value);
}

Error RegWriteAll(Run& run, std::span<const RegistryEntry> entries) {
    return run.System.Registry.SetAll(entries);
}

}  // namespace lv
