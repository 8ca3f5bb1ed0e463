#include "games/trees/tree_room.h"

#include <cstdint>
#include <string>

#include "foundation/field_strings.h"

namespace lv {

namespace {

constexpr TextView kRoom = "c:\\lorvane3d\\";

/// FNV-1a of the path, so that trees of one name in different places keep apart.
std::uint32_t HashOf(TextView path) {
    std::uint32_t hash = 2166136261U;
    for (const char sign : path) {
        hash = (hash ^ static_cast<unsigned char>(sign)) * 16777619U;
    }
    return hash;
}

}  // namespace

Text LinkedTreeDirectory(TextView tree) {
    Text path = LowerCase(tree);
    while (path.ends_with('\\')) {
        path.pop_back();
    }
    Text name = LastPathPart(path);
    name = ReplaceText(name, ";", "");
    return Join(kRoom, name.empty() ? Text("game") : name, "-", std::to_string(HashOf(path) % 10000));
}

bool IsLinkedTree(TextView directory) {
    return LowerCase(directory).starts_with(kRoom);
}

}  // namespace lv
