// tests/foundry/editor/fig_fixture.h
//
// The editor's window without a toolkit, over a platform in memory, on a script as a test writes it down.

#pragma once

#include <gtest/gtest.h>

#include "foundry/editor/fig_frm.h"
#include "foundry/reading/open_script.h"
#include "tests/foundry/script_fixture.h"
#include "tests/support/launcher_fixture.h"

namespace lv {

class FigTest : public LauncherTest {
  protected:
    /// Reads the script as the selected game's. No question is asked of a script that was written here before, as
    /// this one seems to be.
    void Open(const ScriptDialect& dialect, TextView script = "", TextView path = "C:\\GAME\\ID1\\my.cfg") {
        run.GameKind = dialect.GameKind;
        run.ScriptFamily = dialect.ScriptFamily;
        run.IsQuakeWorld = dialect.IsQuakeWorld;
        run.IsMissionPack = dialect.IsMissionPack;
        run.DecimalPointIsDot = dialect.DecimalSeparator == '.';
        run.DefaultGameDirectory = "C:\\GAME";
        run.BaseGameDir = "ID1";
        run.CurrentGameDir = "ID1";
        system.Disk.AddFile(Text(path), Join("//* Setup Foundry   *//", NewLine, Crlf(script)));
        ASSERT_TRUE(OpenScript(run, form.Document, form, path));
    }

    /// What the slot shows as its keys.
    Text Keys(SlotNumber slot) { return form.Document.Setting_Lbl[slot].Caption; }
    Text Command(KeyIndex key) { return form.Document.KeyBinding[static_cast<std::size_t>(key)]; }
    Color KeyColor(Index label) { return form.KeyLabelOf(label).BackColor; }

    Fig_Frm form{run, launcher.Lists};
};

}  // namespace lv
