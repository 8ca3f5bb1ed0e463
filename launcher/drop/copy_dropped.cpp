#include "launcher/drop/copy_dropped.h"

#include "catalogs/map_scan.h"
#include "catalogs/scripts.h"
#include "foundation/device_names.h"
#include "foundation/field_strings.h"
#include "foundation/shown_name.h"
#include "launcher/drop/copying.h"
#include "launcher/drop/dropped_names.h"
#include "launcher/drop/pick_dropped.h"

namespace lv {

namespace {

using enum DroppedKind;

/// Why a file is not copied under its own name; the device first, for that is no fault of the user's.
Text Refusal(const Copying& copy, TextView name, TextView rule) {
    const TextView why =
        IsDeviceName(name) ? "On Windows that is the name of a device, and no file can have it." : rule;
    return Join(copy.Intro(), why, " Rename it first.");
}

/// The name of the new modification, as the user agrees to it.
std::optional<Text> AgreedModification(const Copying& copy) {
    constexpr Index kCopyIt = 0;
    const GameFacts& game = *copy.Into.Plays.Facts;
    const auto fits = [&](TextView typed) { return IsModificationName(typed, game); };
    Text name = ModificationNameFor(copy.Thing.Path, game);
    for (;;) {
        const Text directory = PathBelow(copy.Into.Directory, name);
        const bool isTaken = IsTaken(copy.Disk(), directory);
        const Text target = PathBelow(directory, ArchiveNameFor(copy.Thing, game.GameKind));
        const Text plan = Join("Shall it be copied, to become the modification \"", name, "\" of \"",
                               Shown(copy.Into.Title), "\"?", NewLine, NewLine, PathLine(target));
        const Text clash = Join("\"", Shown(copy.Into.Title), "\" has a modification \"", name,
                                "\" already, which stays as it is. Shall this one get another name?", NewLine, NewLine,
                                PathLine(directory));
        const Index answer =
            copy.Ask(isTaken ? clash : plan, isTaken ? "Other &Name,&Cancel" : "&Copy It,Other &Name,&Cancel");
        const Index otherName = isTaken ? 0 : 1;
        if (!isTaken && answer == kCopyIt) {
            return name;
        }
        if (answer != otherName) {
            return std::nullopt;
        }
        const auto typed =
            AskForName(copy.TheRun(), "What is the modification to be called?", name, fits,
                       "A modification's name has letters, digits, \"_\", \"-\" and \".\", begins with a "
                       "letter or a digit, and is none of the game's own and no device of Windows', as \"con\" is.");
        name = typed.value_or(name);
    }
}

void CopyArchive(const Copying& copy) {
    if (copy.Thing.IsZip && copy.Into.Plays.OfToday == nullptr) {
        TellOfDropped(copy.At, Join(copy.Intro(),
                                    "Of the programs that play this game, some of today's engines alone "
                                    "read such an archive, and \"",
                                    Shown(copy.Into.Title), "\" is none. Pick one of them first."));
        return;
    }
    const auto name = AgreedModification(copy);
    if (!name || !PickProgram(copy, "")) {
        return;
    }
    const Text directory = PathBelow(copy.Into.Directory, *name);
    if (CopyInto(copy, directory, ArchiveNameFor(copy.Thing, copy.TheRun().GameKind))) {
        (void)PickAndTickModification(copy.At, *name);
    }
}

enum class MapAnswer { Nothing, Pick, Copy };

/// A world's client needs the maps of its servers too, but begins on none.
MapAnswer AskAboutMap(const Copying& copy, const Text& target) {
    const bool ticks = !copy.Into.IsOfAWorld();
    const Text title = Join("\"", Shown(copy.Into.Title), "\"");
    const Text path = Join(NewLine, NewLine, PathLine(target));
    if (!IsTaken(copy.Disk(), target)) {
        const TextView tick = ticks ? ", and be ticked as the start map?" : "?";
        const Index answer =
            copy.Ask(Join("Shall it be copied into the game of ", title, tick, path), "&Copy It,&Cancel");
        return answer == 0 ? MapAnswer::Copy : MapAnswer::Nothing;
    }
    const Text taken = Join(title, " has a map of that name already. ");
    const Index answer =
        ticks ? copy.Ask(Join(taken, "Shall that one be picked, or be replaced by this one?", path),
                         "&Pick That One,&Replace It,&Cancel")
              : copy.Ask(Join(taken, "Shall it be replaced by this one?", path), "&Leave It,&Replace It");
    if (answer == 1) {
        return MapAnswer::Copy;
    }
    return ticks && answer == 0 ? MapAnswer::Pick : MapAnswer::Nothing;
}

void CopyMap(const Copying& copy) {
    const Text stem = StemOf(copy.Name());
    if (!IsMapName(stem) || !LaunchTakes(copy, NameKind::Map, stem)) {
        TellOfDropped(copy.At, Refusal(copy, stem, "No game's console takes a map of that name."));
        return;
    }
    const Text data = DataDirectory(copy);
    const bool isUnreal = copy.Into.Plays.Facts->GameKind == Game::Unreal;
    const Text directory =
        isUnreal ? PathBelow(copy.Into.Tree(), "Maps") : PathBelow(PathBelow(copy.Into.Directory, data), "maps");
    const Text name = Join(stem, isUnreal ? ".unr" : ".bsp");
    const MapAnswer answer = AskAboutMap(copy, PathBelow(directory, name));
    if (answer == MapAnswer::Nothing || !PickProgram(copy, data)) {
        return;
    }
    if (answer == MapAnswer::Copy) {
        if (!CopyInto(copy, directory, name)) {
            return;
        }
        ScanForMaps(copy.TheRun(), copy.At.Lists);
    }
    if (!copy.Into.IsOfAWorld()) {
        PickAndTickMap(copy.At, stem);
    }
}

/// Where the script goes, and whether it is there already and only to be opened.
struct AgreedScript {
    Text Name;
    bool IsThere = false;
};

std::optional<AgreedScript> AgreeOnScript(const Copying& copy, const Text& directory) {
    Text name = copy.Name();
    if (!IsScriptName(name) || !LaunchTakes(copy, NameKind::Script, name)) {
        TellOfDropped(copy.At, Refusal(copy, name, "No launch takes a script of that name."));
        return std::nullopt;
    }
    const Text ending = name.substr(name.rfind('.'));
    const auto whole = [&](TextView typed) { return Holds(typed, ".") ? Text(typed) : Join(typed, ending); };
    const auto fits = [&](TextView typed) {
        return IsScriptName(whole(typed)) && LaunchTakes(copy, NameKind::Script, whole(typed));
    };
    for (;;) {
        const Text target = PathBelow(directory, name);
        if (!IsTaken(copy.Disk(), target)) {
            const Index answer =
                copy.Ask(Join("Shall it be copied to the scripts of \"", Shown(copy.Into.Title),
                              "\", and be opened in Setup Foundry?", NewLine, NewLine, PathLine(target)),
                         "&Copy It,&Cancel");
            return answer == 0 ? std::optional(AgreedScript{name, false}) : std::nullopt;
        }
        const Index answer = copy.Ask(Join("\"", Shown(copy.Into.Title),
                                           "\" has a script of that name already, which stays as it is. Shall that one "
                                           "be opened, or this one get another name?",
                                           NewLine, NewLine, PathLine(target)),
                                      "&Open That One,Other &Name,&Cancel");
        if (answer == 0) {
            return AgreedScript{name, true};
        }
        if (answer != 1) {
            return std::nullopt;
        }
        const auto typed =
            AskForName(copy.TheRun(), "What is the script to be called?", name, fits,
                       "A script's name has no \"\\\", \"/\", \":\", \";\" and no quote, is no device of "
                       "Windows', and nothing that a launch would misread.");
        name = whole(typed.value_or(name));
    }
}

void CopyScriptIn(const Copying& copy) {
    const bool isUnreal = copy.Into.Plays.Facts->GameKind == Game::Unreal;
    const Text data = DataDirectory(copy);
    const Text directory = isUnreal ? copy.Into.Directory : PathBelow(copy.Into.Directory, data);
    const auto agreed = AgreeOnScript(copy, directory);
    if (agreed && PickProgram(copy, data) && (agreed->IsThere || CopyInto(copy, directory, agreed->Name))) {
        OpenScript(copy.At, PathBelow(ScriptDirectory(copy.TheRun()), agreed->Name));
    }
}

}  // namespace

void OfferToCopy(Launcher& launcher, const DroppedThing& thing, const ListedProgram& into, TextView others) {
    const Copying copy{launcher, thing, into, others};
    switch (thing.Kind) {
        case Archive:
            CopyArchive(copy);
            return;
        case Map:
            CopyMap(copy);
            return;
        case Script:
            CopyScriptIn(copy);
            return;
        default:
            return;
    }
}

}  // namespace lv
