// tests/foundry/editor/lifecycle_fixture.h
//
// The editor's window from its load to its unload, and what is asked and told on the way.

#pragma once

#include "foundry/editor/confirm_exit.h"
#include "foundry/editor/lifecycle.h"
#include "tests/foundry/editor/fig_fixture.h"

namespace lv {

constexpr TextView kEditedScript = "C:\\GAME\\ID1\\my.cfg";

class Lifecycle : public FigTest {
  protected:
    void OpenAndLoad(const ScriptDialect& dialect = kQuakeDialect, TextView script = "",
                     TextView path = kEditedScript) {
        Open(dialect, script, path);
        Fig_Frm_Load(form);
    }
    /// Opens it with auto save on at that row of Minutes_Cbo.
    void OpenWithAutoSave(int row, bool warning = false) {
        OpenAndLoad();
        form.AutoSaveEnable_Chk.Value = 1;
        form.AutoSaveWarning_Chk.Value = warning ? 1 : 0;
        form.Minutes_Cbo.ListIndex = row;
    }
    void Change() {
        form.Document.Name_Txt.Text = "Me";
        Edited(form);
    }
    void Minutes(int count) {
        for (int i = 0; i < count; ++i) {
            Save_Tmr_Timer(form);
        }
    }
    void Answer(bool yes, bool saveNow) {
        user.In<ConfirmExit_Frm>([=](ConfirmExit_Frm& box) {
            box.SaveNow_Chk.Value = saveNow ? 1 : 0;
            yes ? ConfirmExit_Yes_Cmd_Click(box) : ConfirmExit_No_Cmd_Click(box);
        });
    }
    void ExpectSuccess() {
        user.Expect({"Setup Foundry", "The script was saved successfully!", 0, false, true, "&OK"});
    }
    void ExpectWarning(int answer) {
        user.Expect({"Hey There...", "This is your 'Official AutoSave Warning'. Save this script now?", answer, false,
                     true, "&OK,&No Way!"});
    }
    void ExpectFailure() {
        user.Expect({"Error During Save", "Error Number = 61\r\nError String = Disk full", 0, false, true, "&OK"});
    }
    void RefuseWrites(bool refuse = true) {
        if (refuse) {
            system.Disk.Refused["c:\\game\\id1\\my.cfg"] = MakeError(error::kDiskFull);
        } else {
            system.Disk.Refused.clear();
        }
    }
    /// How often the script was written.
    int Saves() {
        int count = 0;
        for (const std::string& line : system.Disk.Log) {
            count += line.starts_with("replace C:\\GAME\\ID1\\") ? 1 : 0;
        }
        return count;
    }
    bool IsWritten(TextView line, TextView path = kEditedScript) {
        return CountLines(system.Disk.Bytes(path), line) == 1;
    }
    Text Setting(TextView key) { return Stored("SetupFoundry", key); }
    void Store(TextView key, TextView value) { Save(run, "SetupFoundry", key, value); }
};

}  // namespace lv
