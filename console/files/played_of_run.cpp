#include "console/files/played_of_run.h"

#include "console/engine_consoles.h"

namespace lv {

PlayedGame PlayedOfRun(const Run& run, const Engine* engine, TextView program, Game game, bool isQuakeWorld) {
    PlayedGame played;
    played.Of = ConsoleOfProgram(engine, program, game, isQuakeWorld);
    played.GameKind = game;
    played.Directory = run.DefaultGameDirectory;
    played.Base = run.BaseGameDir;
    played.Modification = SameText(run.CurrentGameDir, run.BaseGameDir) ? Text() : run.CurrentGameDir;
    played.Engine = engine != nullptr ? engine->Name : Text();
    played.UserHome = run.System.Disk.UserHome();
    return played;
}

}  // namespace lv
