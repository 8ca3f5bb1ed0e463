#include "foundry/reading/scratch_script.h"

#include "foundry/writing/compose_script.h"
#include "tests/foundry/editor/fig_fixture.h"

namespace lv {

class ScratchScript : public FigTest {};

TEST_F(ScratchScript, IsWhatTheEditorReads) {
    for (const ScriptDialect& dialect : {kQuakeDialect, kQuake2Dialect, kUnrealDialect}) {
        Open(dialect, "bind x +attack\nalias a \"impulse 1\"\nskin \"male/grunt\"\nhand 1\nunknown 7\n");
        const Text path = form.Document.CurrentScriptPath;
        const ScriptDocument scratch = ReadScratch(run, dialect, path, system.Disk.Bytes(path));
        EXPECT_EQ(ComposeScript(scratch, {}), ComposeScript(form.Document, {}));
    }
}

TEST_F(ScratchScript, AsksTellsAndWritesNothing) {
    run.GameKind = Game::Quake;
    system.Disk.Log.clear();
    const ScriptDocument scratch = ReadScratch(run, kQuakeDialect, "C:\\GAME\\ID1\\foreign.cfg", "bind x +attack\n");
    EXPECT_EQ(scratch.KeyBinding[static_cast<std::size_t>(KeyFromName("x"))], "+attack");
    EXPECT_TRUE(system.Disk.Log.empty());
    EXPECT_TRUE(user.Asked.empty());
}

}  // namespace lv
