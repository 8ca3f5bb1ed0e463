#include "launcher/window/planned_launch.h"

#include "foundation/field_strings.h"
#include "games/engines/engine_seats.h"
#include "launcher/window/launch_flow.h"
#include "launcher/window/lv_events.h"
#include "tests/support/launcher_fixture.h"
#include "tests/support/shipped_engines.h"

namespace lv {

class PlannedLaunches : public LauncherTest {
  protected:
    void LoadWith(TextView program) {
        AddGames();
        Load();
        PickExe(program);
        system.Disk.Log.clear();
    }

    /// QuakeSpasm, which runs no command with the data of the shareware version, and so autoexec.cfg alone.
    void LoadEngine() {
        AddGames();
        launcher.Engines = ShippedEngines();
        system.Disk.AddFile("C:\\QUAKE\\ID1\\pak0.pak");
        system.Disk.AddFile("Z:\\usr\\games\\quakespasm");
        const Text seat = "c:\\quake\\quakespasm";
        SeatEngine(run, seat, "Z:\\usr\\games\\quakespasm");
        Save(run, kOptions, "Executables", Join("The engine;", seat));
        Load();
        PickExe(seat);
    }

    Text ContentOf(const StartRequest& request, TextView path) {
        for (const GivenScript& each : request.Given) {
            if (SameText(each.Path, path)) {
                EXPECT_TRUE(each.IsPlanned);
                return each.Content;
            }
        }
        return "(none)";
    }

    static constexpr const char* kScript = "C:\\QUAKE\\ID1\\lv_666.qs";
    static constexpr const char* kAutoexec = "C:\\QUAKE\\ID1\\autoexec.cfg";
};

TEST_F(PlannedLaunches, AreWhatALaunchWouldWriteAndWriteNothing) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    Click(Option::Script_Chk, 1);
    system.Disk.Log.clear();
    const PlannedLaunch plan = PlanLaunch(launcher);
    EXPECT_EQ(plan.ScriptPath, "c:\\quake\\ID1\\lv_666.qs");
    EXPECT_TRUE(plan.Script.starts_with("exec my.cfg\r\n")) << plan.Script;
    EXPECT_TRUE(plan.Command.starts_with("GLQUAKE.EXE ")) << plan.Command;
    EXPECT_TRUE(plan.Command.ends_with("+exec lv_666.qs ")) << plan.Command;
    EXPECT_EQ(plan.AutoexecPath, "");
    EXPECT_TRUE(system.Disk.Log.empty());
    EXPECT_EQ(system.Disk.Bytes(kScript), "(none)");
    DoIt_Cmd_Click(launcher, 2);
    EXPECT_EQ(system.Disk.Bytes(kScript), plan.Script);
    EXPECT_TRUE(system.Disk.Bytes("C:\\QUAKE\\lv_666.bat").ends_with(Trim(plan.Command)));
}

TEST_F(PlannedLaunches, WithoutAScriptExecuteNone) {
    LoadWith("C:\\UNREAL\\SYSTEM\\UNREAL.EXE");
    const PlannedLaunch plan = PlanLaunch(launcher);
    EXPECT_EQ(plan.ScriptPath, "");
    EXPECT_EQ(plan.Script, "");
    EXPECT_EQ(plan.Command.find("lv_666"), Text::npos);
    EXPECT_TRUE(plan.Command.starts_with("UNREAL.EXE ")) << plan.Command;
}

TEST_F(PlannedLaunches, AreAStartThatExecutesTheLaunchScript) {
    LoadWith("C:\\QUAKE\\GLQUAKE.EXE");
    Click(Option::Script_Chk, 1);
    system.Disk.AddFile("C:\\QUAKE\\ID1\\my.cfg", "bind x +jump\n");
    const StartRequest request = StartOfLaunch(launcher, GivenScript{"C:\\QUAKE\\ID1\\my.cfg", "bind x +attack\n"});
    EXPECT_EQ(request.Played.Of, Console::Quake);
    EXPECT_EQ(request.Commands.back(), "exec lv_666.qs");
    EXPECT_TRUE(ContentOf(request, kScript).starts_with("exec my.cfg\r\n"));
    const StartRun start = RunStart(system.Disk, request);
    const SetThing* const key = start.Set.Find(EffectKind::Bind, "x");
    ASSERT_NE(key, nullptr);
    EXPECT_EQ(key->Setters.back().Value, "+attack");
    const RunScript& setter = start.Scripts[key->Setters.back().Script];
    EXPECT_EQ(setter.Name, "my.cfg");
    EXPECT_EQ(start.Scripts[setter.By].Name, "lv_666.qs");
}

TEST_F(PlannedLaunches, OfAnEngineHaveItsCommandAndItsAutoexec) {
    LoadEngine();
    Click(Option::Script_Chk, 1);
    system.Disk.AddFile(kAutoexec, "bind x +jump\n");
    system.Disk.Log.clear();
    const PlannedLaunch plan = PlanLaunch(launcher);
    EXPECT_TRUE(plan.Command.starts_with("QUAKESPASM ")) << plan.Command;
    EXPECT_EQ(plan.Command.find("+exec"), Text::npos) << plan.Command;
    EXPECT_EQ(plan.AutoexecTail, "exec lv_666.qs\r\n");
    const StartRequest request = StartOfLaunch(launcher);
    EXPECT_EQ(request.Played.Of, Console::QuakeSpasm);
    EXPECT_EQ(ContentOf(request, kAutoexec),
              "bind x +jump\n// Lorvane 3D: this launch\r\nexec lv_666.qs\r\n// Lorvane 3D: end\r\n");
    EXPECT_TRUE(system.Disk.Log.empty());
    EXPECT_EQ(system.Disk.Bytes(kAutoexec), "bind x +jump\n");
}

TEST_F(PlannedLaunches, PutTheLinesOfTheLaunchIntoAnAutoexecThatIsEdited) {
    LoadEngine();
    Click(Option::Script_Chk, 1);
    const StartRequest request = StartOfLaunch(launcher, GivenScript{kAutoexec, "bind y +jump\n"});
    EXPECT_EQ(ContentOf(request, kAutoexec),
              "bind y +jump\n// Lorvane 3D: this launch\r\nexec lv_666.qs\r\n// Lorvane 3D: end\r\n");
}

}  // namespace lv
