#include "catalogs/wildcard.h"

namespace lv {

bool MatchesWildcard(TextView name, TextView pattern) {
    if (pattern == "*.*") {
        return true;
    }
    std::size_t at = 0;
    std::size_t in = 0;
    std::size_t star = TextView::npos;  // the last "*" passed
    std::size_t taken = 0;              // how far into the name that "*" reaches
    while (at < name.size()) {
        if (in < pattern.size() && pattern[in] == '*') {
            star = in++;
            taken = at;
        } else if (in < pattern.size() && (pattern[in] == '?' || LowerCase(pattern[in]) == LowerCase(name[at]))) {
            ++in;
            ++at;
        } else if (star != TextView::npos) {
            in = star + 1;
            at = ++taken;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', in) == TextView::npos;
}

std::vector<Text> ListFiles(Files& files, TextView directory, TextView pattern) {
    std::vector<Text> names;
    for (const DirectoryEntry& entry : files.List(directory).Value) {
        if (!entry.IsDirectory && !entry.IsDevice && MatchesWildcard(entry.Name, pattern)) {
            names.push_back(entry.Name);
        }
    }
    return names;
}

}  // namespace lv
