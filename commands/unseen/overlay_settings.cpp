#include "commands/unseen/overlay_settings.h"

#include <algorithm>
#include <utility>

#include "foundation/field_strings.h"

namespace lv {

namespace {

std::string KeyOf(std::string_view section, std::string_view key) {
    return LowerCase(Join(section, std::string_view("\0", 1), key));
}

}  // namespace

void OverlaySettings::LetThrough(std::string_view section, std::string_view key) {
    through_.push_back(KeyOf(section, key));
}

void OverlaySettings::LetAllThrough(std::string_view section) {
    sectionsThrough_.push_back(LowerCase(section));
}

bool OverlaySettings::GoesThrough(std::string_view section, const std::string& name) const {
    return std::ranges::find(through_, name) != through_.end() ||
           std::ranges::find(sectionsThrough_, LowerCase(section)) != sectionsThrough_.end();
}

std::optional<std::string> OverlaySettings::Read(std::string_view application, std::string_view section,
                                                 std::string_view key) {
    const auto written = written_.find(LowerCase(Join(application, "\n")) + KeyOf(section, key));
    if (written == written_.end()) {
        return below_.Read(application, section, key);
    }
    return written->second.IsGone ? std::nullopt : std::optional(written->second.Value.Value);
}

Error OverlaySettings::Write(std::string_view application, std::string_view section, std::string_view key,
                             std::string_view value) {
    const std::string name = KeyOf(section, key);
    if (GoesThrough(section, name)) {
        if (Error failed = below_.Write(application, section, key, value)) {
            return failed;
        }
    }
    written_[LowerCase(Join(application, "\n")) + name] = {
        std::string(application), {std::string(section), std::string(key), std::string(value)}};
    return {};
}

Error OverlaySettings::Remove(std::string_view application, std::string_view section, std::string_view key) {
    const std::string name = KeyOf(section, key);
    if (GoesThrough(section, name)) {
        if (Error failed = below_.Remove(application, section, key)) {
            return failed;
        }
    }
    written_[LowerCase(Join(application, "\n")) + name] = {
        std::string(application), {std::string(section), std::string(key), {}}, true};
    return {};
}

Result<std::vector<StoredValue>> OverlaySettings::All(std::string_view application) {
    Result<std::vector<StoredValue>> below = below_.All(application);
    if (!below.Ok()) {
        return below;
    }
    std::vector<StoredValue> values;
    const std::string start = LowerCase(Join(application, "\n"));
    for (StoredValue& value : below.Value) {
        if (!written_.contains(start + KeyOf(value.Section, value.Key))) {
            values.push_back(std::move(value));
        }
    }
    for (const auto& [name, written] : written_) {
        if (!written.IsGone && SameText(written.Application, application)) {
            values.push_back(written.Value);
        }
    }
    return values;
}

}  // namespace lv
