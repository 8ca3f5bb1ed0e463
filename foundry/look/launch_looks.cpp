#include "foundry/look/launch_looks.h"

#include <algorithm>
#include <optional>

#include "foundation/field_strings.h"
#include "foundation/padded_item.h"
#include "foundation/question_box.h"
#include "foundry/look/file_order_frm.h"
#include "foundry/look/script_check_frm.h"
#include "launcher/window/planned_launch.h"

namespace lv {

namespace {

bool IsRun(Files& disk, const StartRequest& request, TextView script) {
    const StartRun start = RunStart(disk, request);
    return std::ranges::any_of(start.Scripts, [&](const RunScript& each) { return SameText(each.Path, script); });
}

/// "exec" takes one word.
Text QuotedIfBlank(const Text& name) {
    return Holds(name, Blank) ? Join(DoubleQuote, name, DoubleQuote) : name;
}

Text NoteOf(Files& disk, const StartRequest& request, TextView script) {
    const Text name = LastPathPart(script);
    const Text first = Join("A launch as the main window stands now does not execute ", name);
    if (!IsRun(disk, request, script)) {
        return Join(first, ", and the game would not find it in ", DirectoryOf(Text(script)), ".");
    }
    return request.Played.Of == Console::Unreal ? Join(first, ". Here it is read as if it did.")
                                                : Join(first, ". Here it is executed behind all else.");
}

/// Nothing if there is no game to be looked at, which the user was told.
std::optional<LookedStart> StartOfWindow(Launcher& launcher) {
    Run& run = launcher.run;
    if (launcher.LaunchUnderWay || run.Ended) {
        return std::nullopt;
    }
    if (!launcher.Window.Exe_Cbo.HasSelection()) {
        AskUser(run, "", "No executable is selected.");
        return std::nullopt;
    }
    if (run.GameKind == Game::None) {
        AskUser(run, "", "Nobody knows which scripts this program executes: it belongs to none of the games.");
        return std::nullopt;
    }
    StartRequest request = StartOfLaunch(launcher);
    const ListBox& scripts = launcher.Window.Script_Cbo;
    return scripts.HasSelection() ? StartWith(run.System.Disk, std::move(request), ItemValue(scripts.Selected()))
                                  : LookedStart{std::move(request), {}};
}

}  // namespace

LookedStart StartWith(Files& disk, StartRequest request, TextView script) {
    if (IsRun(disk, request, script)) {
        return {std::move(request), {}};
    }
    const Text name = QuotedIfBlank(LastPathPart(script));
    request.Commands.push_back(Join(request.Played.Of == Console::Unreal ? "INI=" : "exec ", name));
    Text note = NoteOf(disk, request, script);
    return {std::move(request), std::move(note)};
}

void ShowFileOrderOfLaunch(Launcher& launcher) {
    if (const auto start = StartOfWindow(launcher)) {
        FileOrder_Frm order(launcher.run, start->Request, start->Note);
        ShowModal(order);
    }
}

void ShowCheckOfLaunch(Launcher& launcher) {
    if (const auto start = StartOfWindow(launcher)) {
        ScriptCheck_Frm check(launcher.run, start->Request, start->Note);
        ShowModal(check);
    }
}

}  // namespace lv
