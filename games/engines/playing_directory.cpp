#include "games/engines/playing_directory.h"

#include "games/trees/link_sources.h"
#include "games/trees/tree_room.h"

namespace lv {

Result<Text> PlayingDirectory(Run& run, const Engine& engine, TextView directory) {
    Files& disk = run.System.Disk;
    const auto tree = TreeIn(disk, directory);
    if (!tree) {
        return MakeError(error::kPathNotFound, Text(directory));
    }
    const bool fitsTheCatalog = directory.find(';') == TextView::npos;
    const bool isReady = fitsTheCatalog && disk.CanWrite(directory) && tree->IsSpelledForToday;
    const bool needsAutoexec = engine.SharewareNeedsAutoexec && !tree->IsFull;
    if (tree->GameKind == Game::Unreal || IsLinkedTree(directory) || (isReady && !needsAutoexec)) {
        return Text(directory);
    }
    Text links = LinksOf(run, directory);
    const LinkedTree made = MakeLinks(run, *tree, links);
    return made.Fault ? Result<Text>(made.Fault) : Result<Text>(std::move(links));
}

}  // namespace lv
