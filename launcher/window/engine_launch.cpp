#include "launcher/window/engine_launch.h"

#include <algorithm>

#include "foundation/field_strings.h"
#include "foundation/path_fault.h"
#include "foundation/question_box.h"
#include "games/engines/start_rules.h"
#include "games/trees/tree_room.h"

namespace lv {

namespace {

/// Why the script has to be run from autoexec.cfg.
Text WhyByAutoexec(const FittedCommand& fitted) {
    const auto moved = std::ranges::find(fitted.Notes, FitKind::MovedToAutoexec, &FitNote::Kind);
    return moved == fitted.Notes.end() ? Text() : moved->Why;
}

bool MayWriteAutoexec(Run& run, const EngineLaunch& launch, TextView directory, TextView path) {
    const Text& name = launch.Its->Name;
    const bool isShareware = launch.Fitted.ForShareware;
    return IsLinkedTree(directory) ||
           AskUser(run, isShareware ? "Shareware Data" : "Command Line Too Short",
                   Join(isShareware ? Join("With the data of the shareware version ", name, " runs scripts only")
                                    : Join(name, " cannot be told to run the script by its command line (",
                                           WhyByAutoexec(launch.Fitted), "), but", NewLine, "it runs it"),
                        " from its file", NewLine, NewLine, TabChar, path, NewLine, NewLine,
                        "May Lorvane 3D add the lines of this launch to it? They stand between two marks, and the next",
                        NewLine, "launch takes them out again. Without them the game starts without the script."),
                   "&Yes,&No") == 0;
}

/// The user has kept autoexec.cfg as it is: what was to go there is lost to this launch.
void NoteRefusal(FittedCommand& fitted) {
    for (FitNote& note : fitted.Notes) {
        if (note.Kind == FitKind::MovedToAutoexec) {
            note.Kind = FitKind::LeftOut;
            note.Why = "autoexec.cfg stays as it is";
        }
    }
}

Error WriteAutoexec(Run& run, EngineLaunch& launch, TextView directory) {
    Files& disk = run.System.Disk;
    const Text path = AutoexecPathOf(run, directory);
    const Result<Text> read = disk.Read(path);
    if (!read.Ok() && read.Fault.Number != error::kFileNotFound) {
        return launch.Fitted.AutoexecTail.empty() ? Error() : FaultAt(disk, path, read.Fault);
    }
    const Text before = read.Ok() ? read.Value : Text();
    const Text text = AutoexecWith(before, launch.Fitted.AutoexecTail);
    if (text == before) {
        return {};
    }
    if (!launch.Fitted.AutoexecTail.empty() && !MayWriteAutoexec(run, launch, directory, path)) {
        NoteRefusal(launch.Fitted);
        return {};
    }
    const Error failed = text.empty() ? disk.Delete(path) : disk.Replace(path, text);  // it had no line but ours
    return failed ? FaultAt(disk, path, failed) : failed;
}

}  // namespace

bool PlaysAGame(Run& run, const EngineTable& engines, const LaunchSelection& selection, const LaunchGame& game) {
    const Engine* const engine = EngineOfLaunch(engines, selection, game);
    if (engine == nullptr || game.GameKind != Game::None) {
        return true;
    }
    AskUser(run, "",
            Join(engine->Name, " lies in no game's directory, and nothing is written beside it.", NewLine, NewLine,
                 "Delete this entry and add it anew (Game Executable, Add, Manual): you are asked then which game it "
                 "is to play."));
    return false;
}

FittedCommand FitTexts(const Engine& engine, Files& disk, const LaunchSelection& selection, const LaunchGame& game,
                       LaunchTexts& texts, Text& script) {
    FittedCommand fitted = FitLaunch(engine, disk, selection, game, texts, !script.empty());
    texts.GameCommand = fitted.Command;
    texts.GameGiven = fitted.Given;
    script = Join(fitted.ScriptHead, script, fitted.ScriptTail);
    return fitted;
}

Text AutoexecPathOf(const Run& run, TextView directory) {
    return Join(directory, "\\", run.BaseGameDir, "\\autoexec.cfg");
}

Error FitToEngine(Run& run, const EngineTable& engines, const LaunchSelection& selection, const LaunchGame& game,
                  LaunchTexts& texts, Text& script, EngineLaunch& launch) {
    launch.Its = EngineOfLaunch(engines, selection, game);
    const Text& directory = game.DefaultGameDirectory;
    if (launch.Its == nullptr || directory.empty()) {
        return {};
    }
    const EngineStart start{run.System.Programs.RunsAsRoot(), directory, run.System.Disk.DirectoryExists(directory)};
    if (const auto why = WhyNoUseToStart(*launch.Its, start)) {
        launch.Stopped = true;
        AskUser(run, "", *why);
        return {};
    }
    launch.Fitted = FitTexts(*launch.Its, run.System.Disk, selection, game, texts, script);
    const Error failed = WriteAutoexec(run, launch, directory);
    launch.Stopped = static_cast<bool>(failed);
    return failed;
}

Text AboutEngine(const EngineLaunch& launch) {
    const Text report = launch.Its != nullptr ? FitReport(*launch.Its, launch.Fitted) : Text();
    return report.empty() ? report : Join(NewLine, NewLine, report);
}

}  // namespace lv
