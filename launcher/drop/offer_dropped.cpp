#include "launcher/drop/offer_dropped.h"

#include <algorithm>
#include <utility>

#include "catalogs/editors/add_exe.h"
#include "foundation/field_strings.h"
#include "foundation/question_box.h"
#include "foundation/shown_name.h"
#include "launcher/drop/copy_dropped.h"
#include "launcher/drop/join_server.h"
#include "launcher/drop/pick_dropped.h"
#include "launcher/menu/transfer_menu.h"
#include "launcher/window/lv_events.h"
#include "launcher/window/window_life.h"

namespace lv {

namespace {

using enum DroppedKind;

constexpr TextView kWhatCanBe =
    "These can be dropped: an archive (.pak, .sin, .pk3), a start map (.bsp, .unr), a script, a program, a directory "
    "or "
    "a file of a listed game, exported settings, and a server's address.";

Text OfOthers(std::size_t count) {
    return count < 2 ? Text()
                     : Join(NewLine, NewLine, "This is the first of ", std::to_string(count),
                            " that were dropped. The others are left alone.");
}

Text Dropped(const DroppedThing& thing) {
    return Join("This was dropped -->", NewLine, NewLine, PathLine(thing.Path), NewLine, NewLine);
}

void TellUnknown(Launcher& launcher, const DroppedThing& thing, const Text& others) {
    const Text why = thing.Why.empty() ? Text() : Join(thing.Why, NewLine, NewLine);
    TellOfDropped(launcher, Join(Dropped(thing), why, kWhatCanBe, others));
}

Text TitleFor(Launcher& launcher, TextView path) {
    const Text name = LastPathPart(path);
    const lv::Program* const program = ProgramOf(name);
    const Engine* const engine = EngineOf(launcher.Engines, name);
    Text title = engine != nullptr                                    ? engine->Name
                 : program != nullptr && !program->EntryTitle.empty() ? Text(program->EntryTitle)
                                                                      : name.substr(0, name.rfind('.'));
    std::ranges::replace_if(
        title, [](char c) { return c == ',' || c == ';' || static_cast<unsigned char>(c) < 0x20; }, ' ');
    return Trim(title);
}

void OfferProgram(Launcher& launcher, const DroppedThing& thing) {
    AddExe_Frm form(launcher.run, launcher.Lists, EntryMode::Add);
    form.ExeTitle_Txt.Text = TitleFor(launcher, thing.Path);
    form.ExePath_Txt.Text = thing.Path;
    form.ChangeGame = [&launcher] { Exe_Cbo_Click(launcher); };
    ShowModal(form);
}

/// For what opens a window of its own, where there is no room to say so: whether to go on with the first of several.
bool GoesOnWithTheFirst(Launcher& launcher, const DroppedThing& thing, const Text& others) {
    return others.empty() ||
           AskUser(launcher.run, kDroppedTitle, Join(Dropped(thing), TrimWhite(others)), "&Go On,&Cancel") == 0;
}

Text GamesOf(const DroppedThing& thing) {
    Text names;
    for (std::size_t i = 0; i < thing.Games.size(); ++i) {
        const bool isLast = i + 1 == thing.Games.size();
        names += Join(i == 0 ? "" : isLast ? " or " : ", ", FactsOf(thing.Games[i]).Name);
    }
    return names;
}

bool IsFor(const DroppedThing& thing, Game game) {
    return thing.Games.empty() || std::ranges::find(thing.Games, game) != thing.Games.end();
}

// An archive, a map or a script that lies in no place of its own.
void OfferCopy(Launcher& launcher, const DroppedThing& thing, const std::optional<PlaceInGame>& place,
               const Text& others) {
    const auto into = place ? std::optional(place->Program) : PickedProgram(launcher);
    const Game game = into ? into->Plays.Facts->GameKind : Game::None;
    if (game != Game::None && IsFor(thing, game)) {
        OfferToCopy(launcher, thing, *into, others);
        return;
    }
    const Text what = Join("This ", NameOf(thing.Kind), " is for ", GamesOf(thing), ". ");
    const Text plays = game == Game::None ? Text("No game is picked. ")
                                          : Join("\"", Shown(into->Title), "\" plays ", FactsOf(game).Name, ". ");
    TellOfDropped(launcher,
                  Join(Dropped(thing), what, plays, "Pick a program that plays it, and drop it again.", others));
}

void OfferFile(Launcher& launcher, const DroppedThing& thing, const Text& others) {
    const auto place = PlaceOf(launcher, thing.Path, thing.Kind != Map);
    if (place && IsInItsPlace(thing, *place) && IsFor(thing, place->Program.Plays.Facts->GameKind)) {
        OfferToPick(launcher, thing, *place, others);
    } else if (thing.Kind == DroppedKind::Program) {
        if (GoesOnWithTheFirst(launcher, thing, others)) {
            OfferProgram(launcher, thing);
        }
    } else if (thing.Kind == Directory) {
        TellUnknown(launcher, thing, others);
    } else {
        OfferCopy(launcher, thing, place, others);
    }
}

void Offer(Launcher& launcher, const DroppedThing& thing, const Text& others) {
    switch (thing.Kind) {
        case Unknown:
            TellUnknown(launcher, thing, others);
            return;
        case Server:
            OfferServer(launcher, thing.Server);
            return;
        case Settings:
            if (GoesOnWithTheFirst(launcher, thing, others)) {
                ImportSettingsFrom(launcher, thing.Path);
            }
            return;
        default:
            OfferFile(launcher, thing, others);
            return;
    }
}

}  // namespace

bool NoteDropped(Launcher& launcher, WaitingDrop dropped) {
    if (launcher.Dropped.IsThere() || launcher.run.Ended) {
        return false;
    }
    launcher.Dropped = std::move(dropped);
    return true;
}

bool DropIsDue(const Launcher& launcher) {
    return launcher.Dropped.IsThere() && launcher.run.MainFormLoaded && !launcher.run.Ended &&
           !launcher.LaunchUnderWay && !DialogIsUp(launcher.run);
}

void OfferDropped(Launcher& launcher) {
    if (!DropIsDue(launcher)) {
        return;
    }
    const WaitingDrop dropped = std::exchange(launcher.Dropped, {});
    if (dropped.Fault) {
        TellOfDropped(launcher, Join("What was dropped could not be reached: ", Shown(dropped.Fault.Text), "."));
        return;
    }
    Offer(launcher, ThingOf(launcher.run.System.Disk, dropped.Word), OfOthers(dropped.Count));
}

}  // namespace lv
