#include "transfer/path_moves.h"

#include <algorithm>
#include <unordered_set>

#include "catalogs/catalog_store.h"
#include "foundation/percent_text.h"
#include "foundation/settings.h"
#include "transfer/carried_values.h"

namespace lv {

namespace {

constexpr TextView kSetupPaths[] = {"Executable=", "Script="};

bool IsPlainInSetup(char letter) {
    return letter != ';' && letter != '\x7F' && static_cast<unsigned char>(letter) >= ' ';
}

bool IsSeparator(char letter) {
    return letter == '\\' || letter == '/';
}

TextView WithoutSlash(TextView directory) {
    while (!directory.empty() && IsSeparator(directory.back())) {
        directory.remove_suffix(1);
    }
    return directory;
}

bool SameInPath(char a, char b) {
    return a == b || (IsSeparator(a) && IsSeparator(b)) || LowerCase(a) == LowerCase(b);
}

bool LiesIn(TextView path, TextView directory) {
    return path.size() >= directory.size() &&
           std::ranges::equal(path.substr(0, directory.size()), directory, SameInPath) &&
           (path.size() == directory.size() || IsSeparator(path[directory.size()]));
}

bool IsLowerCase(TextView text) {
    return LowerCase(text) == text && UpperCase(text) != text;
}

/// Each field of a ";"-list, with the blanks around it.
template <class Change>
Text WithEachField(TextView list, const Change& change) {
    Text changed;
    for (std::size_t begin = 0; begin <= list.size();) {
        const std::size_t end = std::min(list.find(';', begin), list.size());
        changed += change(list.substr(begin, end - begin));
        if (end < list.size()) {
            changed += ';';
        }
        begin = end + 1;
    }
    return changed;
}

StoredValue Moved(const StoredValue& value, PathsIn where, const std::vector<PathMove>& moves) {
    StoredValue moved = value;
    switch (where) {
        case PathsIn::kNowhere:
            break;
        case PathsIn::kKeyToo:
            moved.Key = MovedPath(value.Key, moves);
            [[fallthrough]];
        case PathsIn::kWhole:
            moved.Value = MovedPath(value.Value, moves);
            break;
        case PathsIn::kFields:
            moved.Value = MovedFields(value.Value, moves);
            break;
        case PathsIn::kSetup:
            moved.Value = RewriteSetup(value.Value, [&moves](TextView path) { return MovedPath(path, moves); });
            break;
    }
    return moved;
}

}  // namespace

Text FaultOfPlace(TextView directory) {
    const bool isOnNetwork = directory.size() > 2 && directory.starts_with("\\\\");
    if (!isOnNetwork && (directory.size() < 2 || directory[1] != ':')) {
        return Join("\"", directory, "\" is no whole path, with its drive.");
    }
    if (!FitsAField(directory)) {
        return Join("\"", directory, "\" can't stand in the lists: \";\" parts their entries.");
    }
    return {};
}

Text MovedPath(TextView path, const std::vector<PathMove>& moves) {
    const PathMove* best = nullptr;
    std::size_t deepest = 0;
    for (const PathMove& move : moves) {
        const TextView from = WithoutSlash(move.From);
        if (from.size() > deepest && LiesIn(path, from)) {
            best = &move;
            deepest = from.size();
        }
    }
    if (best == nullptr) {
        return Text(path);
    }
    const TextView to = WithoutSlash(best->To);
    Text moved = IsLowerCase(path.substr(0, deepest)) ? LowerCase(to) : Text(to);
    moved += path.substr(deepest);
    return moved.ends_with(':') ? moved + '\\' : moved;
}

Text MovedFields(TextView list, const std::vector<PathMove>& moves) {
    return WithEachField(list, [&moves](TextView field) {
        const std::size_t blanks = std::min(field.find_first_not_of(' '), field.size());
        return Join(field.substr(0, blanks), MovedPath(field.substr(blanks), moves));
    });
}

Text RewriteSetup(TextView value, const PathRewrite& rewrite) {
    return WithEachField(value, [&rewrite](TextView field) {
        for (const TextView key : kSetupPaths) {
            const auto path = field.starts_with(key) ? FromPercentText(field.substr(key.size())) : std::nullopt;
            const Text moved = path ? rewrite(*path) : Text();
            if (path && moved != *path) {
                return Join(key, PercentText(moved, IsPlainInSetup));
            }
        }
        return Text(field);
    });
}

Result<std::vector<StoredValue>> MoveValues(const std::vector<StoredValue>& values,
                                            const std::vector<PathMove>& moves) {
    for (const PathMove& move : moves) {
        if (const Text fault = FaultOfPlace(move.To); !fault.empty()) {
            return Error{error::kInvalidCall, fault};
        }
    }
    const std::vector<Text> profiles = ProfileNames(values);
    std::vector<StoredValue> moved;
    std::unordered_set<Text> keys;  // of those that are paths
    for (const StoredValue& value : values) {
        const CarriedRule* const rule = RuleOf(profiles, value.Section, value.Key);
        const PathsIn where = rule != nullptr ? rule->Paths : PathsIn::kNowhere;
        StoredValue next = Moved(value, where, moves);
        if (next.Value.size() > kLongestValue) {
            return Error{error::kInvalidCall,
                         Join("The list \"", next.Key, "\" would be too long with the new places in it. Shorter paths ",
                              "would do.")};
        }
        if (where != PathsIn::kKeyToo || keys.insert(LowerCase(next.Key)).second) {
            moved.push_back(std::move(next));
        }
    }
    return moved;
}

}  // namespace lv
