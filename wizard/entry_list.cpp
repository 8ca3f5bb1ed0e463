#include "wizard/entry_list.h"

#include <algorithm>

#include "catalogs/catalog_store.h"
#include "foundation/field_strings.h"

namespace lv {

namespace {

constexpr std::size_t kLongestTitle = 100;

// Steam's games lie in directories called "common", which says nothing.
constexpr TextView kSteamLibrary = "\\steamapps\\common\\";
constexpr TextView kSteam = "\\Steam\\";

Text Readable(TextView tree) {
    Text path(tree);
    while (path.ends_with('\\')) {
        path.pop_back();
    }
    if (const std::size_t at = LowerCase(path).find(kSteamLibrary); at != Text::npos) {
        path.replace(at, kSteamLibrary.size(), kSteam);
    }
    return path;
}

/// The last `parts` of the path; all of it if it has no more.
Text EndOf(const Text& path, int parts) {
    std::size_t at = path.size();
    while (parts > 0 && at != 0 && at != Text::npos) {
        at = path.rfind('\\', at - 1);
        --parts;
    }
    return at == Text::npos || parts > 0 ? path : path.substr(at + 1);
}

/// Without what parts fields and captions, and without control characters.
Text FitForTitle(Text name) {
    std::ranges::replace_if(
        name,
        [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F' || c == ';' || c == ',' || c == '"'; },
        '?');
    return name;
}

bool HasTitle(TextView list, TextView title) {
    const std::vector<Text> fields = SplitFields(list);
    for (std::size_t i = 0; i + 1 < fields.size(); i += 2) {
        if (SameText(Trim(fields[i]), title)) {
            return true;
        }
    }
    return false;
}

}  // namespace

bool IsNewProgram(Run& run, TextView list, TextView program) {
    return FitsAField(program) && run.System.Disk.FileExists(program) && !Holds(LowerCase(list), program);
}

bool IsListed(TextView list, TextView path) {
    const std::vector<Text> fields = SplitFields(list);
    for (std::size_t i = 1; i < fields.size(); i += 2) {
        if (LowerCase(Trim(fields[i])) == path) {
            return true;
        }
    }
    return false;
}

Text TitleOfEntry(TextView list, TextView title, TextView tree, const std::vector<Text>& others) {
    if (!HasTitle(list, title)) {
        return Text(title);
    }
    const Text path = Readable(tree);
    const auto most = std::ranges::count(path, '\\') + 1;
    for (int parts = 1; parts <= most; ++parts) {
        const Text end = EndOf(path, parts);
        const Text named = Join(title, " (", FitForTitle(end), ")");
        const bool isOthersToo = std::ranges::any_of(
            others, [&](const Text& other) { return SameText(EndOf(Readable(other), parts), end); });
        if (!isOthersToo && named.size() <= kLongestTitle && !HasTitle(list, named)) {
            return named;
        }
    }
    for (int number = 2;; ++number) {
        Text named = Join(title, " (", std::to_string(number), ")");
        if (!HasTitle(list, named)) {
            return named;
        }
    }
}

}  // namespace lv
