#include "platform/files.h"

#include <functional>

#include "platform/code_page.h"

namespace lv {

Result<WalkedDirectory> Files::ListForWalk(std::string_view directory) {
    auto listed = List(directory);
    if (!listed.Ok()) {
        return listed.Fault;
    }
    return WalkedDirectory{std::hash<std::string>()(LowerCase(directory)), std::move(listed.Value)};
}

Result<std::vector<LinkedEntry>> Files::ListLinks(std::string_view directory, std::string_view tree) {
    const auto listed = List(directory);
    if (!listed.Ok()) {
        return listed.Fault;
    }
    const std::string above = std::string(directory) + (directory.ends_with('\\') ? "" : "\\");
    const std::string real = FromHost(ToHost(directory)) + "\\";
    std::vector<LinkedEntry> entries;
    for (const DirectoryEntry& entry : listed.Value) {
        if (entry.Name == "." || entry.Name == "..") {
            continue;
        }
        const std::string path = above + entry.Name;
        LinkedEntry& linked = entries.emplace_back(LinkedEntry{entry, {}, false, false});
        linked.IsElsewhere = !SameText(FromHost(ToHost(path)), real + entry.Name);
        if (!entry.IsDirectory) {
            linked.LeadsInto = LeadsInto(path, tree);
            linked.IsGone = !entry.IsDevice && !FileExists(path);
        }
    }
    return entries;
}

}  // namespace lv
