#include "transfer/settings_file.h"

#include "foundation/bounded_file.h"
#include "transfer/settings_text.h"
#include "transfer/value_check.h"

namespace lv {

Result<std::vector<StoredValue>> CarriedNow(Run& run, std::vector<Text>* leftOut) {
    const auto all = run.System.Settings.All(run.AppName);
    return all.Ok() ? Result<std::vector<StoredValue>>(CarriedOf(all.Value, leftOut)) : all.Fault;
}

Result<std::vector<StoredValue>> ReadSettingsFile(Run& run, TextView path) {
    const auto text = ReadBounded(run.System.Disk, path, kLargestSettingsText);
    if (!text.Ok()) {
        return text.Fault;
    }
    const auto read = ReadSettingsText(text.Value);
    if (!read.Ok()) {
        return read.Fault;
    }
    std::vector<StoredValue> carried = CarriedOf(read.Value);
    for (const StoredValue& value : carried) {
        if (const Text fault = FaultOfValue(value); !fault.empty()) {
            return Error{error::kPathFileAccess, Join(fault, ". Nothing of the file was used")};
        }
    }
    return carried;
}

Result<ExportedSettings> ExportSettings(Run& run, TextView path, MayReplace mayReplace) {
    if (Error refused = FaultOfExport(run, path, mayReplace)) {
        return refused;
    }
    ExportedSettings done;
    const auto values = CarriedNow(run, &done.LeftOut);
    if (!values.Ok()) {
        return values.Fault;
    }
    const auto text = WriteSettingsText(values.Value);
    if (!text.Ok()) {
        return text.Fault;
    }
    if (Error failed = run.System.Disk.ReplaceOwn(path, text.Value)) {
        return failed;
    }
    done.Values = values.Value.size();
    return done;
}

}  // namespace lv
