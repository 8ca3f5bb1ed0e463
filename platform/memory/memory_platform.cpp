#include "platform/memory/memory_platform.h"

#include <algorithm>
#include <utility>

#include "platform/code_page.h"

namespace lv {

namespace {

std::string StoreKey(std::string_view a, std::string_view b, std::string_view c) {
    return LowerCase(a) + '\0' + LowerCase(b) + '\0' + LowerCase(c);
}

}  // namespace

std::optional<std::string> MemorySettings::Read(std::string_view application, std::string_view section,
                                                std::string_view key) {
    const auto found = values_.find(StoreKey(application, section, key));
    return found == values_.end() ? std::nullopt : std::optional(found->second.Value.Value);
}

Result<std::vector<StoredValue>> MemorySettings::All(std::string_view application) {
    if (RefuseReads) {
        return RefuseReads;
    }
    std::vector<StoredValue> values;
    for (const auto& [names, stored] : values_) {
        if (SameText(stored.Application, application)) {
            values.push_back(stored.Value);
        }
    }
    return values;
}

void MemorySettings::BeginGroup() {
    if (depth_++ == 0) {
        before_ = values_;
        groupFault_ = {};
    }
}

Error MemorySettings::EndGroup() {
    if (depth_ == 0 || --depth_ > 0) {
        return RefuseGroups;
    }
    Error failed = groupFault_ ? groupFault_ : RefuseGroups;
    if (failed) {
        values_ = std::move(before_);
    }
    before_.clear();
    groupFault_ = {};
    return failed;
}

Error MemorySettings::BeginAlone() {
    if (RefuseAlone) {
        return RefuseAlone;
    }
    WhenAlone();
    BeginGroup();
    return {};
}

Error MemorySettings::FaultOfWrite() {
    while (Locked) {
        if (!question_ || !question_(Locked)) {
            groupFault_ = Locked;
            return Locked;
        }
    }
    if (RefuseWrites) {
        groupFault_ = RefuseWrites;
    }
    return RefuseWrites;
}

Error MemorySettings::Write(std::string_view application, std::string_view section, std::string_view key,
                            std::string_view value) {
    if (Error failed = FaultOfWrite()) {
        return failed;
    }
    auto& stored = values_[StoreKey(application, section, key)];
    if (stored.Value.Key.empty()) {
        stored = {std::string(application), {std::string(section), std::string(key), {}}};
    }
    stored.Value.Value = value;
    Log.push_back(std::string(section) + '|' + std::string(key) + '|' + std::string(value));
    return {};
}

Error MemorySettings::Remove(std::string_view application, std::string_view section, std::string_view key) {
    if (Error failed = FaultOfWrite()) {
        return failed;
    }
    if (values_.erase(StoreKey(application, section, key)) > 0) {
        Log.push_back('-' + std::string(section) + '|' + std::string(key));
    }
    return {};
}

Result<RegistryValue> MemoryRegistry::Query(std::string_view path, std::string_view name) {
    if (RefuseQueries) {
        return RefuseQueries;
    }
    const auto found = Values.find(LowerCase(path) + '|' + LowerCase(name));
    if (found == Values.end()) {
        return Error{2, "The system cannot find the file specified."};
    }
    return found->second;
}

Error MemoryRegistry::SetAll(std::span<const RegistryEntry> entries) {
    Bursts.push_back(entries.size());
    return UserRegistry::SetAll(entries);
}

Error MemoryRegistry::Set(std::string_view path, std::string_view name, const RegistryValue& value) {
    if (RefuseWrites) {
        return RefuseWrites;
    }
    Values[LowerCase(path) + '|' + LowerCase(name)] = value;
    return {};
}

Error MemoryProcesses::StartBatch(std::string_view directory, std::string_view name, const BatchCommand& known) {
    if (Refuse) {
        return Refuse;
    }
    Known = known;
    Started.push_back(std::string(directory) + "\\" + std::string(name));
    return {};
}

Error MemoryProcesses::StartProgram(std::string_view program, const std::vector<std::string>& arguments) {
    if (Refuse) {
        return Refuse;
    }
    std::string line(program);
    for (const std::string& argument : arguments) {
        line += '|' + argument;
    }
    Started.push_back(line);
    return {};
}

std::optional<GameEnd> MemoryProcesses::EndOfLastGame() {
    ++LooksForEnd;
    if (End) {
        Watching = false;
    }
    return std::exchange(End, std::nullopt);
}

Error MemoryProcesses::StartHelpViewer(std::string_view path) {
    return HasHelpViewer ? StartProgram("winhlp32.exe", {std::string(path)}) : Processes::StartHelpViewer(path);
}

std::string MemoryClock::MonthName(int month) {
    static constexpr const char* kMonths[] = {"January", "February", "March",     "April",   "May",      "June",
                                              "July",    "August",   "September", "October", "November", "December"};
    return kMonths[std::clamp(month, 1, 12) - 1];
}

}  // namespace lv
