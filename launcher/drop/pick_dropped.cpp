#include "launcher/drop/pick_dropped.h"

#include "catalogs/modifications.h"
#include "catalogs/scripts.h"
#include "foundation/field_strings.h"
#include "foundation/question_box.h"
#include "foundation/shown_name.h"
#include "launcher/setups/row_picks.h"
#include "launcher/window/lv_events.h"

namespace lv {

namespace {

constexpr Index kYes = 0;

using enum DroppedKind;

bool IsUnreal(const PlaceInGame& place) {
    return place.Program.Plays.Facts->GameKind == Game::Unreal;
}

bool IsBase(const PlaceInGame& place) {
    return SameText(place.Below.front(), place.Program.Plays.Facts->BaseGameDir);
}

// The modification that it lies in; empty for the base game, and for Unreal, which has none.
Text ModificationOf(const PlaceInGame& place) {
    return IsUnreal(place) || IsBase(place) ? Text() : place.Below.front();
}

Text MapName(TextView file) {
    return Text(file.substr(0, file.rfind('.')));
}

Text WhatWillBe(const DroppedThing& thing, const PlaceInGame& place) {
    const Text mod = ModificationOf(place);
    const Text of = mod.empty() ? Text("the game as it is") : Join("the modification \"", Shown(mod), "\"");
    switch (thing.Kind) {
        case Map:
            return Join("pick this program and ", of, ", and tick the start map \"",
                        Shown(UpperCase(MapName(place.Below.back()))), "\"?");
        case Script:
            return Join("pick this program and ", of, ", and open the script in Setup Foundry?");
        case DroppedKind::Program:
            return "pick it?";
        default:
            return Join("pick this program and ", of, "?");
    }
}

void PickAll(Launcher& launcher, const DroppedThing& thing, const PlaceInGame& place) {
    if (!PickExecutable(launcher, place.Program.Path) || launcher.run.Ended || thing.Kind == DroppedKind::Program) {
        return;
    }
    if (!PickAndTickModification(launcher, ModificationOf(place)) || launcher.run.Ended) {
        return;
    }
    if (thing.Kind == Map) {
        PickAndTickMap(launcher, MapName(place.Below.back()));
    } else if (thing.Kind == Script) {
        OpenScript(launcher, PathBelow(ScriptDirectory(launcher.run), place.Below.back()));
    }
}

}  // namespace

bool IsInItsPlace(const DroppedThing& thing, const PlaceInGame& place) {
    const std::vector<Text>& below = place.Below;
    switch (thing.Kind) {
        case Archive:
            return below.size() == 2 && !IsUnreal(place);
        case Map:
            return IsUnreal(place) ? below.size() == 2 && SameText(below[0], "maps")
                                   : below.size() == 3 && SameText(below[1], "maps");
        case Script:
            return below.size() == 2 && (!IsUnreal(place) || SameText(below[0], "system"));
        case Directory:
            return below.size() == 1 && !IsUnreal(place);
        case DroppedKind::Program:
            return SameText(place.Program.Path, thing.Path);
        default:
            return false;
    }
}

void OfferToPick(Launcher& launcher, const DroppedThing& thing, const PlaceInGame& place, TextView others) {
    const Text question =
        Join("This ", NameOf(thing.Kind), " belongs to \"", Shown(place.Program.Title), "\" -->", NewLine, NewLine,
             PathLine(thing.Path), NewLine, NewLine, "Shall Lorvane 3D ", WhatWillBe(thing, place), others);
    const TextView buttons = thing.Kind == Script ? "&Open It,&Cancel" : "&Pick It,&Cancel";
    if (AskUser(launcher.run, kDroppedTitle, question, buttons) == kYes) {
        PickAll(launcher, thing, place);
    }
}

bool PickAndTickModification(Launcher& launcher, TextView directory) {
    if (launcher.run.GameKind == Game::Unreal) {
        return true;
    }
    if (directory.empty()) {
        SetOption(launcher, Option::Game_Chk, 0);
        return true;
    }
    if (!AddModification(launcher.run, launcher.Lists, directory) ||
        !PickModification(launcher, Join(kGameOption, directory))) {
        TellOfDropped(launcher, Join("The list of modifications has no room for \"", Shown(directory), "\"."));
        return false;
    }
    SetOption(launcher, Option::Game_Chk, 1);
    return launcher.Window.Box(Option::Game_Chk).Value == 1;
}

void PickAndTickMap(Launcher& launcher, TextView name) {
    if (!launcher.Window.Box(Option::Map_Chk).Enabled) {
        TellOfDropped(launcher, "The picked program plays on servers alone, and begins on no map.");
    } else if (PickMap(launcher, name)) {
        SetOption(launcher, Option::Map_Chk, 1);
    } else {
        TellOfDropped(launcher, Join("The map \"", Shown(name), "\" is not among the start maps of the game."));
    }
}

void OpenScript(Launcher& launcher, TextView path) {
    Run& run = launcher.run;
    if (!PickScript(launcher, path)) {
        (void)AddToScripts(run, LowerCase(LastPathPart(path)), path);
        if (run.Ended || !FillScriptsCombo(run, launcher.Lists)) {
            return;
        }
        if (!PickScript(launcher, path)) {
            TellOfDropped(launcher,
                          Join("The list of scripts has no room for this one -->", NewLine, NewLine, PathLine(path)));
            return;
        }
    }
    run.User.Refresh();
    if (launcher.OpenSetupFoundry) {
        launcher.OpenSetupFoundry();
    }
}

void TellOfDropped(Launcher& launcher, TextView text) {
    AskUser(launcher.run, kDroppedTitle, text);
}

Text PathLine(TextView path) {
    return Join(TabChar, DoubleQuote, Shown(path), DoubleQuote);
}

}  // namespace lv
