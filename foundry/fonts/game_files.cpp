#include "foundry/fonts/game_files.h"

#include <algorithm>
#include <optional>

#include "catalogs/wildcard.h"
#include "foundation/game.h"
#include "foundry/fonts/pak_file.h"
#include "games/games.h"

namespace lv {

namespace {

/// The digits at the front, without the zeros before them.
TextView TakeNumber(TextView& text) {
    const std::size_t end = std::min(text.find_first_not_of("0123456789"), text.size());
    TextView number = text.substr(0, end);
    text.remove_prefix(end);
    number.remove_prefix(std::min(number.find_first_not_of('0'), number.size()));
    return number;
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Order of names in lower case in which numbers count by their values.
bool IsOlder(TextView a, TextView b) {
    while (!a.empty() && !b.empty()) {
        if (IsDigit(a[0]) && IsDigit(b[0])) {
            const TextView x = TakeNumber(a);
            const TextView y = TakeNumber(b);
            if (x != y) {
                return x.size() != y.size() ? x.size() < y.size() : x < y;
            }
        } else if (a[0] != b[0]) {
            return a[0] < b[0];
        } else {
            a.remove_prefix(1);
            b.remove_prefix(1);
        }
    }
    return a.size() < b.size();
}

std::optional<Text> ReadLoose(Files& disk, TextView directory, TextView name) {
    Text path = Join(directory, "\\", name);
    std::ranges::replace(path, '/', '\\');
    if (!disk.FileExists(path)) {
        return std::nullopt;
    }
    const auto file = disk.Open(path);
    if (!file.Ok() || file.Value->Size() > kLargestFontFile) {
        return std::nullopt;
    }
    auto read = file.Value->Read(0, kLargestFontFile);
    return read.Ok() ? std::optional(std::move(read.Value)) : std::nullopt;
}

bool TakeFromDirectory(Files& disk, TextView directory, Game gameKind, TextView name,
                       const std::function<bool(TextView)>& take) {
    const auto loose = ReadLoose(disk, directory, name);
    if (loose && take(*loose)) {
        return true;
    }
    return std::ranges::any_of(NewestArchives(disk, directory, gameKind), [&](const Text& archive) {
        const auto opened = disk.Open(Join(directory, "\\", archive));
        const auto content = opened.Ok() ? ReadFromPak(*opened.Value, name, kLargestFontFile) : std::nullopt;
        return content && take(*content);
    });
}

}  // namespace

std::vector<Text> NewestArchives(Files& disk, TextView directory, Game gameKind) {
    std::vector<Text> names = ListFiles(disk, directory, FactsOf(gameKind).Archives);
    std::ranges::sort(names, [](const Text& a, const Text& b) { return IsOlder(LowerCase(b), LowerCase(a)); });
    names.resize(std::min(names.size(), kMostArchives));
    return names;
}

bool TakeGameFile(Files& disk, const std::vector<Text>& directories, Game gameKind, TextView name,
                  const std::function<bool(TextView)>& take) {
    return std::ranges::any_of(
        directories, [&](const Text& directory) { return TakeFromDirectory(disk, directory, gameKind, name, take); });
}

}  // namespace lv
