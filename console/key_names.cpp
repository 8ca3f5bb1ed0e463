#include "console/key_names.h"

#include <algorithm>
#include <charconv>
#include <iterator>

#include "console/key_name_rows.h"

namespace lv {

namespace {

constexpr std::size_t kLongestName = 40;

bool HasConsole(ConsoleSet set, Console console) {
    return (set & In(console)) != 0;
}

bool IsOfRun(const KeyRunRow& run, TextView name) {
    if (!name.starts_with(run.Name)) {
        return false;
    }
    const TextView digits = name.substr(run.Name.size());
    unsigned number = 0;
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    const bool whole = read.ec == std::errc() && read.ptr == digits.data() + digits.size();
    return whole && (digits.size() == 1 || digits.front() != '0') && number >= run.First && number <= run.Last;
}

/// "X" of FTE's "CTRL+ALT+X".
TextView WithoutModifiers(Console console, TextView name) {
    constexpr TextView kModifiers[] = {"CTRL+", "ALT+", "SHIFT+"};
    for (bool found = console == Fte; found;) {
        const auto* const modifier = std::ranges::find_if(
            kModifiers, [name](TextView each) { return name.size() > each.size() && name.starts_with(each); });
        found = modifier != std::end(kModifiers);
        name.remove_prefix(found ? modifier->size() : 0);
    }
    return name;
}

}  // namespace

bool IsKeyName(Console console, TextView name) {
    if (console == Unreal || name.size() == 1) {
        return true;
    }
    if (name.empty() || name.size() > kLongestName) {
        return false;
    }
    const Text upper = UpperCase(name);
    const TextView key = WithoutModifiers(console, upper);
    const auto has = [&](const auto& row) { return HasConsole(row.Consoles, console); };
    return key.size() == 1 ||
           std::ranges::any_of(kKeyNames, [&](const auto& row) { return row.Name == key && has(row); }) ||
           std::ranges::any_of(kKeyRuns, [&](const auto& row) { return has(row) && IsOfRun(row, key); }) ||
           std::ranges::any_of(kKeyStarts, [&](const auto& row) { return has(row) && key.starts_with(row.Name); });
}

Text KeyIdentity(Console console, TextView name) {
    if (name.size() == 1) {
        return RulesOf(console).Letters == Capitals::Small ? LowerCase(name) : Text(name);
    }
    Text upper = UpperCase(name);
    if (console == Yamagi && upper == "QUOTE") {
        return "'";
    }
    if (console == DarkPlaces && upper == "QUOTE") {
        return "\"";
    }
    const auto* const same =
        console == Unreal ? std::end(kSameKeys) : std::ranges::find(kSameKeys, upper, &SameKeyRow::Name);
    return same == std::end(kSameKeys) ? upper : Text(same->Key);
}

}  // namespace lv
