#include "transfer/backups.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <optional>

#include "foundation/bounded_file.h"
#include "foundation/own_directory.h"
#include "transfer/settings_text.h"

namespace lv {

namespace {

// "settings 000000012 2026-11-23 08-52-11.txt"
constexpr TextView kStart = "settings ";
constexpr TextView kEnd = ".txt";
constexpr TextView kPattern = "000000000 0000-00-00 00-00-00";
constexpr std::size_t kDigits = 9;
constexpr std::size_t kTime = 11;  // where the time stands behind the number and its blank
constexpr std::uint32_t kLastNumber = 999'999'999;

Text DirectoryOfBackups(const Run& run) {
    return OwnDirectory(run, "backups");
}

bool FitsPattern(TextView text) {
    return std::ranges::equal(text, kPattern, [](char letter, char wanted) {
        return wanted == '0' ? letter >= '0' && letter <= '9' : letter == wanted;
    });
}

std::optional<Backup> BackupOfName(TextView directory, TextView name) {
    if (!name.starts_with(kStart) || !name.ends_with(kEnd) ||
        name.size() != kStart.size() + kPattern.size() + kEnd.size()) {
        return std::nullopt;
    }
    const TextView text = name.substr(kStart.size(), kPattern.size());
    if (!FitsPattern(text)) {
        return std::nullopt;
    }
    Backup backup{.Path = Join(directory, "\\", name), .When = Text(text.substr(kDigits + 1))};
    std::replace(backup.When.begin() + kTime, backup.When.end(), '-', ':');
    std::from_chars(text.data(), text.data() + kDigits, backup.Number);
    return backup;
}

/// A clock that tells of no date there is has a name all the same.
Text NameOf(std::uint32_t number, const LocalTime& now) {
    const auto held = [](int value, int most) { return std::clamp(value, 0, most); };
    std::array<char, 80> room{};
    const int length = std::snprintf(room.data(), room.size(), "%09u %04d-%02d-%02d %02d-%02d-%02d", number,
                                     held(now.Year, 9999), held(now.Month, 99), held(now.Day, 99), held(now.Hour, 99),
                                     held(now.Minute, 99), held(now.Second, 99));
    return Join(kStart, TextView(room.data(), static_cast<std::size_t>(std::max(length, 0))), kEnd);
}

bool Holds(Run& run, const Backup& backup, const Text& text) {
    const auto held = ReadBounded(run.System.Disk, backup.Path, kLargestSettingsText);
    return held.Ok() && held.Value == text;
}

/// Higher than all others, whatever the clock has said meanwhile.
std::uint32_t NextNumber(const std::vector<Backup>& backups) {
    return backups.empty() ? 1 : std::min(backups.front().Number + 1, kLastNumber);
}

}  // namespace

std::vector<Backup> Backups(Run& run) {
    const Text directory = DirectoryOfBackups(run);
    const auto entries = run.System.Disk.List(directory);
    std::vector<Backup> backups;
    for (const DirectoryEntry& entry : entries.Value) {
        auto backup = entry.IsDirectory || entry.IsDevice ? std::nullopt : BackupOfName(directory, entry.Name);
        if (backup) {
            backups.push_back(*std::move(backup));
        }
    }
    std::ranges::sort(backups, [](const Backup& a, const Backup& b) {
        return a.Number != b.Number ? a.Number > b.Number : a.When > b.When;
    });
    return backups;
}

Result<Text> KeepBackup(Run& run) {
    const auto values = CarriedNow(run);
    if (!values.Ok() || values.Value.empty()) {
        return values.Fault;
    }
    const auto text = WriteSettingsText(values.Value);
    if (!text.Ok()) {
        return text.Fault;
    }
    std::vector<Backup> backups = Backups(run);
    if (!backups.empty() && Holds(run, backups.front(), text.Value)) {
        return backups.front().Path;
    }
    const Text directory = DirectoryOfBackups(run);
    if (Error failed = MakeWholeDirectory(run.System.Disk, directory)) {
        return failed;
    }
    const Text path = Join(directory, "\\", NameOf(NextNumber(backups), run.System.Time.Now()));
    if (Error failed = run.System.Disk.ReplaceOwn(path, text.Value)) {
        return failed;
    }
    backups = Backups(run);
    for (std::size_t i = kMostBackups; i < backups.size(); ++i) {
        (void)run.System.Disk.Delete(backups[i].Path);
    }
    return path;
}

}  // namespace lv
