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

// By the host's word, so that two ways to one directory are one.
Text RealPath(Files& files, TextView path) {
    Text real = files.FromHost(files.ToHost(path));
    return real.empty() ? Text(path) : real;
}

bool LiesWithin(TextView path, TextView directory) {
    return SameText(path, directory) || StartsWithText(path, PathBelow(directory, ""));
}

Error MakeDirectories(Files& files, TextView path) {
    if (files.DirectoryExists(path)) {
        return {};
    }
    if (const std::size_t above = path.rfind('\\'); above != TextView::npos && above > 2) {
        if (Error failed = MakeDirectories(files, path.substr(0, above))) {
            return failed;
        }
    }
    return files.MakeDirectory(path);
}

// The real path of what is there, and the names that are still to be made.
Text RealPathToBe(Files& files, TextView path) {
    const std::size_t above = path.rfind('\\');
    if (above == Text::npos || above <= 2 || files.DirectoryExists(path)) {
        return RealPath(files, path);
    }
    return PathBelow(RealPathToBe(files, path.substr(0, above)), path.substr(above + 1));
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

Error MakeLinkRoom(Files& files, TextView tree, TextView directory) {
    if (!files.DirectoryExists(tree)) {
        return MakeError(error::kPathNotFound, Text(tree));
    }
    const Text real = RealPath(files, tree);
    const Text own = RealPathToBe(files, directory);
    if (LiesWithin(own, real) || LiesWithin(real, own)) {
        return MakeError(error::kPathFileAccess, Text(directory));
    }
    return MakeDirectories(files, directory);
}

}  // namespace lv
