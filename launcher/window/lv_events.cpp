#include "launcher/window/lv_events.h"

#include "catalogs/game_identification.h"
#include "catalogs/map_scan.h"
#include "catalogs/missing_game.h"
#include "catalogs/modifications.h"
#include "catalogs/scripts.h"
#include "foundation/field_strings.h"
#include "foundation/game.h"
#include "foundation/link_question.h"
#include "foundation/padded_item.h"
#include "foundation/question_box.h"
#include "foundation/settings.h"
#include "games/games.h"
#include "launcher/window/option_rules.h"

namespace lv {

namespace {

void Tell(Launcher& launcher, TextView text) {
    AskUser(launcher.run, "", text);
}

void Game_Chk_Click(Launcher& launcher) {
    LV_Frm& window = launcher.Window;
    if (launcher.ClearingGameChk) {
        return;
    }
    if (!window.Game_Cbo.HasSelection()) {
        Tell(launcher, "No Modification Subdirectory is selected.");
        launcher.ClearingGameChk = true;
        SetOption(launcher, Option::Game_Chk, 0);
        launcher.ClearingGameChk = false;
        return;
    }
    ApplyModification(launcher);
    if (window.Box(Option::Game_Chk).Value == 1) {
        SetOption(launcher, Option::LaunchQspy_Chk, 0);
    }
    Save(launcher.run, kOptions, "UseGames", window.Box(Option::Game_Chk).Value);
    ScanForMaps(launcher.run, launcher.Lists);
}

void Listen_Chk_Click(Launcher& launcher) {
    if (launcher.Window.Box(Option::Listen_Chk).Value != 1 || launcher.run.GameKind != Game::HalfLife) {
        return;
    }
    AskUserUnlessTold(launcher.run, "HL_Listen_Server", "Half-Life Console Warning",
                      Join("After launching, you will see a Console button in the", NewLine,
                           "upper left hand corner or the Half-life menu area.", NewLine, NewLine,
                           "Click the button to launch the listen server.", NewLine, NewLine,
                           "Half-Life may ask for the CD to launch in this manner."));
}

void Bench_Chk_Click(Launcher& launcher) {
    Run& run = launcher.run;
    if (launcher.Window.Box(Option::Bench_Chk).Value != 1 || run.GameKind != Game::HalfLife) {
        return;
    }
    const Text demo = Join(run.DefaultGameDirectory, "\\", BaseDirectoryOf(FactsOf(Game::HalfLife)), "\\1.dem");
    if (!run.System.Disk.FileExists(demo)) {
        AskUserUnlessTold(run, "HL_TimeDemo_2", "Half-Life TimeDemo Warning",
                          Join("Half-Life does not ship a demo file to run a timedemo.", NewLine, NewLine,
                               "Please make one: start a game, open the console, and type", NewLine, NewLine,
                               "record 1", NewLine, NewLine, "and stop when you have played enough."));
        if (MayPutOwnFile(run, demo, run.DefaultGameDirectory)) {
            (void)run.System.Disk.CopyOwn(Join(run.AppDirectory, "\\hl1.dem"), demo);
        }
    }
    AskUserUnlessTold(run, "HL_TimeDemo", "Half-Life TimeDemo Warning",
                      Join("After launching, you will see a Console button in the", NewLine,
                           "upper left hand corner or the Half-life menu area.", NewLine, NewLine,
                           "Click the button to run the timedemo."));
}

void WriteKey(Launcher& launcher, const OptionBox& option) {
    if (*option.Key != '\0') {
        Save(launcher.run, kOptions, option.Key, launcher.Window.Box(option.Box).Value);
    }
}

void ClearExcluded(Launcher& launcher, Option option) {
    if (launcher.Window.Box(option).Value != 1) {
        return;
    }
    const OptionSet excluded = ExcludedBy(option);
    for (const OptionBox& row : OptionBoxes()) {
        if (excluded.Has(row.Box)) {
            SetOption(launcher, row.Box, 0);
        }
    }
}

void SavePosition(Launcher& launcher, TextView key, const ListBox& list) {
    Save(launcher.run, kOptions, key, list.ListIndex);
}

}  // namespace

void SetOption(Launcher& launcher, Option option, int value) {
    CheckBox& box = launcher.Window.Box(option);
    if (box.Value == value) {
        return;
    }
    box.Value = value;
    Option_Chk_Click(launcher, option);
}

void Option_Chk_Click(Launcher& launcher, Option option) {
    if (option == Option::Game_Chk) {
        Game_Chk_Click(launcher);
        return;
    }
    if (option == Option::Map_Chk && launcher.Window.Box(Option::Map_Chk).Value == 1 &&
        !launcher.Window.Map_Cbo.HasSelection()) {
        launcher.Window.Box(Option::Map_Chk).Value = 0;
        return;
    }
    if (option == Option::LaunchQspy_Chk) {
        ApplyGameSpyRule(launcher.Window);
    }
    WriteKey(launcher, OptionBoxOf(option));
    ClearExcluded(launcher, option);
    if (option == Option::Listen_Chk) {
        Listen_Chk_Click(launcher);
    } else if (option == Option::Bench_Chk) {
        Bench_Chk_Click(launcher);
    }
}

void ApplyModification(Launcher& launcher) {
    Run& run = launcher.run;
    LV_Frm& window = launcher.Window;
    if (window.Box(Option::Game_Chk).Value == 1 && window.Game_Cbo.HasSelection()) {
        const Text row = window.Game_Cbo.Selected();
        run.CurrentGameDir = DirectoryOfOption(ItemValue(row));
        window.PlayerScript_Pan.Caption = Join("Player Script - (", ItemTitle(row), ")");
    } else {
        run.CurrentGameDir = run.BaseGameDir;
        window.PlayerScript_Pan.Caption = "Player Script";
    }
    FillScriptsCombo(run, launcher.Lists);
}

const Engine* SelectedEngine(const Launcher& launcher) {
    const ImageCombo& list = launcher.Window.Exe_Cbo;
    return list.HasSelection()
               ? EngineOf(launcher.Engines,
                          LastPathPart(OnDisk(list.Items[static_cast<std::size_t>(list.ListIndex)].Key)))
               : nullptr;
}

void Exe_Cbo_Click(Launcher& launcher) {
    Run& run = launcher.run;
    LV_Frm& window = launcher.Window;
    if (!window.Exe_Cbo.HasSelection() || !IdentifyGame(run, launcher.Lists, launcher.RegistryToScript)) {
        return;
    }
    ApplyGamePanels(window, {run.GameKind, run.ScriptFamily, run.IsQuakeWorld, run.IsHexenWorld});
    ApplyEngine(window, SelectedEngine(launcher));
    ApplyMissionPackRule(run, launcher.Lists);
    ShowGameControls(launcher.VideoProfile);
    Videop(launcher.VideoProfile);  // into a closed window too: a launch finds every key
    if (run.Ended) {
        return;
    }
    window.Box(Option::LaunchQspy_Chk).Enabled = run.GameKind != Game::HalfLife && run.GameKind != Game::Heretic2;
    if (run.GameKind != Game::None && !run.DefaultGameDirectory.empty()) {
        ApplyModification(launcher);
    }
    ScanForMaps(run, launcher.Lists);
}

void Game_Cbo_Click(Launcher& launcher) {
    SavePosition(launcher, "GamesPos", launcher.Window.Game_Cbo);
    if (launcher.Window.Box(Option::Game_Chk).Value == 1) {
        Game_Chk_Click(launcher);
        return;
    }
    FillScriptsCombo(launcher.run, launcher.Lists);
}

void Script_Cbo_Click(Launcher& launcher) {
    Run& run = launcher.run;
    if (!launcher.Window.Script_Cbo.HasSelection()) {
        return;
    }
    // Each game directory and modification remembers its own script.
    Save(run, "DefaultScript", DefaultScriptKey(run), StoredItemValue(launcher.Window.Script_Cbo.Selected()));
}

void Mem_Cbo_Click(Launcher& launcher) {
    SavePosition(launcher, "MemoryPos", launcher.Window.Mem_Cbo);
}

void Demo_Cbo_Click(Launcher& launcher) {
    SavePosition(launcher, "DemoPos", launcher.Window.Demo_Cbo);
}

void Server_Cbo_Click(Launcher& launcher) {
    SavePosition(launcher, "ServerPos", launcher.Window.Server_Cbo);
}

void CommandLineAdditions_Txt_Change(Launcher& launcher) {
    Save(launcher.run, kOptions, "CustomCommandLineText", launcher.Window.CommandLineAdditions_Txt.Text);
}

}  // namespace lv
