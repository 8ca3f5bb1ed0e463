#include "launcher/window/launch_flow.h"

#include <exception>

#include "foundation/error_lines.h"
#include "foundation/field_strings.h"
#include "foundation/game.h"
#include "foundation/link_question.h"
#include "foundation/numbers.h"
#include "foundation/padded_item.h"
#include "foundation/path_fault.h"
#include "foundation/question_box.h"
#include "foundation/settings.h"
#include "games/engines/engine_seats.h"
#include "gamespy/configure.h"
#include "gamespy/game_spy_fetch.h"
#include "gamespy/spy_names.h"
#include "launch/environment_lines.h"
#include "launch/launch_composition.h"
#include "launch/launch_files.h"
#include "launch/missing_executable.h"
#include "launch/name_check.h"
#include "launcher/played/played_games.h"
#include "launcher/window/engine_launch.h"
#include "launcher/window/game_end.h"
#include "launcher/window/links_launch.h"
#include "launcher/window/unreal_options.h"
#include "launcher/window/window_life.h"
#include "video/profile_model.h"

namespace lv {

namespace {

// The tag of the batch file in error reports.
constexpr TextView kBatchTag = "0000005 File = ";

constexpr std::size_t kLongestWin9xLine = 128;

/// What one click works on.
struct Click {
    Launcher& launcher;
    Run& run;
    LaunchMode Mode;
    ProfileSnapshot Profile;
    LaunchSelection Selection;
    LaunchGame Game;
    LaunchTexts Texts;
    Text Script;  // what goes into lv_666.qs
    Text Batch;   // what goes into lv_666.bat
    Text FailureFile;
    EngineLaunch Engine;
};

void Tell(Run& run, TextView text) {
    AskUser(run, "", text);
}

void ReportError(Click& click, const Error& failed) {
    Run& run = click.run;
    Text report = Join(ErrorLines(failed, ShownStep(click.Texts.LaunchStep)), NewLine,
                       "Curreny System Directory = ", run.System.Disk.CurrentDirectory(), NewLine,
                       "Default Game Directory = ", run.DefaultGameDirectory, NewLine,
                       "Current Command Line = ", click.Texts.GameCommand);
    if (!click.FailureFile.empty()) {
        report += Join(NewLine, click.FailureFile);
    }
    AskUser(run, "", report);
}

bool ExecutableIsThere(Click& click) {
    Run& run = click.run;
    click.Texts.LaunchStep = LaunchStep::Executable;
    if (!click.launcher.Window.Exe_Cbo.HasSelection()) {
        Tell(run, "No executable is selected.");
        return false;
    }
    const Text& path = click.Selection.ExecutablePath;
    if (path.empty()) {
        AskUser(run, "Error in executable path", kEmptyExecutable);
        return false;
    }
    if (click.Selection.Ticked.Has(Option::LaunchQspy_Chk) || run.System.Disk.FileExists(path)) {
        return true;
    }
    const Text engine = AboutGoneEngine(run, &click.launcher.Engines, path);
    Tell(run, Join(MissingExecutableText(path, "4) Windows incorrectly reported that the file is missing."),
                   engine.empty() ? Text() : Join(NewLine, engine)));
    return false;
}

/// False if a name of the launch would be read as more than text; the user was told. Nothing is written before.
bool NamesOfLaunchAreText(Click& click) {
    const std::vector<LaunchName> names = NamesOf(click.Selection, click.Game);
    const Text command = ComposeLaunch(click.Selection, click.Game, click.Profile, {}).GameCommand;
    const Text& directory = click.Game.DefaultGameDirectory;
    const LineReader reader = click.run.System.Programs.ReaderOf(directory, command, ExecutableName(click.Selection));
    return NamesAreText(click.run, names, reader, directory) && NamesMayBeCommands(click.run, names);
}

LaunchHooks HooksOf(Launcher& launcher) {
    Run& run = launcher.run;
    LaunchHooks hooks;
    hooks.RewriteUnrealIni = [&launcher] { return SetUnrealVideoOptionsForLaunch(launcher); };
    hooks.ScriptToRegistry = launcher.ScriptToRegistry;
    hooks.GameSpyFetch = [&run] { return std::optional<Text>(GameSpyFetch(run)); };
    return hooks;
}

/// False if the composition stopped the launch; the user knows why.
bool Compose(Click& click) {
    click.Texts = ComposeLaunch(click.Selection, click.Game, click.Profile, HooksOf(click.launcher));
    switch (click.Texts.Stop.Kind) {
        case StopKind::None:
            return !click.run.Ended;  // the user may have ended the program while GameSpy 3D was asked
        case StopKind::Silent:
            return false;
        case StopKind::Message:
            Tell(click.run, click.Texts.Stop.Message);
            return false;
        case StopKind::Error:
            ReportError(click, click.Texts.Stop.Fault);
            return false;
    }
    return false;
}

/// Of the last launch.
void DeleteScript(Click& click) {
    const Text path = ScriptFilePath(click.Game);
    const Text& directory = click.Game.DefaultGameDirectory;
    if (!directory.empty() && PutsOwnFileInside(click.run, path, directory)) {
        (void)click.run.System.Disk.Delete(path);
    }
}

/// Replaces the script of the last launch, or takes it away when this one has none.
bool WriteScript(Click& click) {
    Files& disk = click.run.System.Disk;
    AddCommandLineAdditions(click.Selection, click.Texts);
    click.Script = ScriptText(click.Texts, click.Game);
    if (const Error failed = FitToEngine(click.run, click.launcher.Engines, click.Selection, click.Game, click.Texts,
                                         click.Script, click.Engine)) {
        ReportError(click, failed);
    }
    if (click.Engine.Stopped) {
        return false;
    }
    if (!HasScript(click.Script, click.Game)) {
        DeleteScript(click);
        return true;
    }
    const Text path = ScriptFilePath(click.Game);
    if (!MayPutOwnFile(click.run, path, click.Game.DefaultGameDirectory)) {
        return false;
    }
    if (const Error failed = disk.ReplaceOwn(path, click.Script)) {
        ReportError(click, FaultAt(disk, path, failed));
        return false;
    }
    if (click.Engine.Its == nullptr) {
        AddScriptExec(click.Texts);
    }
    return true;
}

bool WriteBatch(Click& click) {
    click.Texts.LaunchStep = LaunchStep::LaunchBatch;
    const bool hasDirectory = !click.Game.DefaultGameDirectory.empty();
    click.Batch = BatchText(
        Join(hasDirectory ? EnvironmentLines(click.Game, click.Profile) : Text(), FitEnvironment(click.Engine.Fitted)),
        click.Selection.Ticked.Has(Option::ShowSet_Chk), ExeDriveOf(click.Selection), click.Game.DefaultGameDirectory,
        click.Texts, click.Game);
    if (!hasDirectory) {
        return true;
    }
    const Text path = Join(click.Game.DefaultGameDirectory, "\\", kLaunchBatchFile);
    click.FailureFile = Join(kBatchTag, path);
    Files& disk = click.run.System.Disk;
    if (const Error failed = disk.ReplaceOwn(path, click.Batch)) {
        ReportError(click, disk.DirectoryExists(path) ? FaultAt(disk, path, failed) : failed);
        return false;
    }
    click.FailureFile.clear();
    click.Texts.LaunchStep = LaunchStep::LaunchBatchWritten;
    return true;
}

/// What the view box shows, and the clipboard gets.
Text ViewText(const Click& click) {
    return Join("AppDir = ", click.run.AppDirectory, NewLine, NewLine, "Batch File = ", NewLine, click.Batch, NewLine,
                NewLine, "Script File = ", NewLine,
                click.Game.GameKind == Game::Unreal ? click.launcher.Window.ChangedIniLines : click.Script,
                AboutEngine(click.Engine));
}

/// Shows the files where that was asked for. True if the game is to be started.
bool ViewOrGoOn(Click& click) {
    Run& run = click.run;
    int answer = 0;
    click.Texts.LaunchStep = LaunchStep::View;
    if (click.Mode == LaunchMode::View) {
        answer = AskUserFixedWidth(run, "Viewing Commands", ViewText(click),
                                   "&Cool - Thanks Man!,P&lace in Clipboard,Launch Me!");
    }
    click.Texts.LaunchStep = LaunchStep::Clipboard;
    if (answer == 1) {
        if (const Error failed = run.System.Clip.SetText(ViewText(click))) {
            ReportError(click, failed);
            return false;
        }
    }
    return click.Mode == LaunchMode::Launch || answer == 2;
}

bool LengthIsFine(Click& click) {
    const Text& command = click.Texts.GameCommand;
    if (!click.run.IsWin9x || command.size() <= kLongestWin9xLine) {
        return true;
    }
    return AskUser(click.run, "Command Line Problem",
                   Join("Command Line = ", command, NewLine, "Length = ", std::to_string(command.size()), NewLine,
                        "The total command line exceedes 128 characters.", NewLine,
                        "This will cause it to not work properly."),
                   "&That's OK,&Abort Launch") == 0;
}

void PutPif(const Click& click) {
    Files& disk = click.run.System.Disk;
    const Text pif = Join(click.Game.DefaultGameDirectory, "\\", kLaunchPifFile);
    const Text pattern = Join(click.run.AppDirectory, "\\", PifTemplateName(click.Game.GameKind));
    if (disk.CopyOwn(pattern, pif)) {
        (void)disk.Delete(pif);  // without a template the game starts without one
    }
}

void StartGame(Click& click) {
    Run& run = click.run;
    Save(run, "LV-Stuff", "LaunchCount",
         TextView(std::to_string(ToLong(GetSetting(run, run.AppName, "LV-Stuff", "LaunchCount", "0")) + 1)));
    const Text& directory = click.Game.DefaultGameDirectory;
    if (directory.empty()) {
        Tell(run, "DefaultGameDirectory not set - cannot launch");
        return;
    }
    if (const Error failed = SetCurrentPath(run, directory)) {
        ReportError(click, failed);
        return;
    }
    if (!LengthIsFine(click)) {
        return;
    }
    PutPif(click);
    HideForLaunch(click.launcher);
    const BatchCommand command = CommandOfBatch(click.Batch, click.Selection, click.Texts, click.Game);
    if (const Error failed = run.System.Programs.StartBatch(directory, kLaunchBatchFile, command)) {
        ShowMainWindow(click.launcher);  // no game has the screen, so the window comes back
        ReportError(click, failed);
        return;
    }
    NoteGameStart(click.launcher, click.Selection.ExecutablePath);
    NotePlayStart(run, click.Selection.ExecutablePath);
    if (click.launcher.Window.Box(Option::EndOnLaunch_Chk).Value == 1) {
        Exit_Bar_Click(click.launcher);
    }
}

void LeaveForGameSpy(Launcher& launcher, MinimizeLorvane choice) {
    if (choice == MinimizeLorvane::Minimize) {
        HideForLaunch(launcher);
    } else if (choice == MinimizeLorvane::Close) {
        Exit_Bar_Click(launcher);
    }
}

/// GameSpy starts the game later, so that this click leaves neither script nor batch of a launch behind.
void ConfigureInstead(Click& click, GameSpyConfig_Frm& form) {
    Run& run = click.run;
    const bool hasDirectory = !click.Game.DefaultGameDirectory.empty();
    AddCommandLineAdditions(click.Selection, click.Texts);
    DeleteScript(click);
    if (hasDirectory) {
        (void)run.System.Disk.Delete(Join(click.Game.DefaultGameDirectory, "\\", kLaunchBatchFile));
    }
    Launcher& launcher = click.launcher;
    SpyLaunch launch{
        .run = run,
        .Form = form,
        .Selection = click.Selection,
        .Texts = click.Texts,
        .EnvironmentLines = hasDirectory ? EnvironmentLines(click.Game, click.Profile) : Text(),
        .SetUnrealVideoOptions = [&launcher](const Text& ini) { return SetUnrealVideoOptionsForLaunch(launcher, ini); },
        .LeaveMainWindow = [&launcher](MinimizeLorvane choice) { LeaveForGameSpy(launcher, choice); }};
    const SpyFailure failed = ConfigureGameSpy(launch);
    if (failed.Fault) {
        click.FailureFile = failed.FailureFile;
        ReportError(click, failed.Fault);
    }
}

void LaunchThroughGameSpy(Click& click) {
    GameSpyConfig_Frm form(click.run, click.launcher.Window.Exe_Cbo);
    GameSpyConfig_Load(form);
    ShowModal(form);
    if (form.DialogResult != 0 && ExecutableIsThere(click) &&
        LinksAreUpToDate(click.run, click.Game.DefaultGameDirectory) &&
        SpyNamesAreText(form, click.Selection, click.Game) && Compose(click)) {
        ConfigureInstead(click, form);
    }
}

void LaunchDirectly(Click& click) {
    if (ExecutableIsThere(click) && PlaysAGame(click.run, click.launcher.Engines, click.Selection, click.Game) &&
        LinksAreUpToDate(click.run, click.Game.DefaultGameDirectory) && NamesOfLaunchAreText(click) && Compose(click) &&
        WriteScript(click) && WriteBatch(click) && ViewOrGoOn(click)) {
        StartGame(click);
    }
}

/// Above all for want of memory. No game has the screen, so the window comes back if it has gone.
void GiveUp(Click& click, const Error& failed) {
    if (!click.launcher.Window.Visible) {
        ShowMainWindow(click.launcher);
    }
    ReportError(click, failed);
}

std::optional<Text> Payload(const ListBox& list) {
    return list.HasSelection() ? std::optional(ItemValue(list.Selected())) : std::nullopt;
}

}  // namespace

LaunchSelection SelectionOf(const LV_Frm& window) {
    LaunchSelection selection;
    if (window.Exe_Cbo.HasSelection()) {
        const Text& key = window.Exe_Cbo.Items[static_cast<std::size_t>(window.Exe_Cbo.ListIndex)].Key;
        selection.ExecutablePath = ReplaceSameLength(key, "/", "\\");
    }
    for (const OptionBox& row : OptionBoxes()) {
        selection.Ticked.Set(row.Box, window.Box(row.Box).Value == 1);
    }
    selection.Server = Payload(window.Server_Cbo);
    selection.Game = Payload(window.Game_Cbo);
    selection.Memory = Payload(window.Mem_Cbo);
    selection.Script = Payload(window.Script_Cbo);
    selection.Demo = Payload(window.Demo_Cbo);
    if (window.Map_Cbo.HasSelection()) {
        selection.Map = window.Map_Cbo.Selected();
    }
    selection.CommandLineAdditions_Txt = window.CommandLineAdditions_Txt.Text;
    return selection;
}

LaunchGame GameOf(Run& run) {
    const Index card = ReadVidCard(run);
    return {run.GameKind,
            run.ScriptFamily,
            run.DefaultGameDirectory,
            run.CurrentGameDir,
            run.UsesAccelerator,
            CardClassOf(card),
            card};
}

void DoIt_Cmd_Click(Launcher& launcher, int index) {
    Run& run = launcher.run;
    if (launcher.LaunchUnderWay) {
        return;
    }
    Click click{launcher,
                run,
                static_cast<LaunchMode>(index),
                ReadProfile(run),
                SelectionOf(launcher.Window),
                GameOf(run),
                {},
                {},
                {},
                {},
                {}};
    launcher.LaunchUnderWay = true;
    try {
        if (click.Selection.Ticked.Has(Option::LaunchQspy_Chk)) {
            LaunchThroughGameSpy(click);
        } else {
            LaunchDirectly(click);
        }
    } catch (const std::exception& thrown) {
        GiveUp(click, ErrorOfException(thrown));
    }
    launcher.LaunchUnderWay = false;
}

}  // namespace lv
