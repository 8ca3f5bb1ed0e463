#include "foundry/look/script_check_frm.h"

#include <algorithm>

#include "foundation/field_strings.h"
#include "foundry/look/script_text_frm.h"
#include "tests/foundry/look/game_start.h"

namespace lv {

class ScriptCheckForm : public GameStart {
  protected:
    static int RowWith(const ScriptCheck_Frm& form, TextView part) {
        const auto row =
            std::ranges::find_if(form.Findings_Lst.Items, [&](const Text& each) { return Holds(each, part); });
        return row == form.Findings_Lst.Items.end() ? -1 : static_cast<int>(row - form.Findings_Lst.Items.begin());
    }
};

TEST_F(ScriptCheckForm, ListsWhatIsFoundWithFileAndLineTheSureFirst) {
    const ScriptCheck_Frm form(run, request);
    EXPECT_GE(RowWith(form, "my.cfg:2: "), 0);
    EXPECT_GE(RowWith(form, "my.cfg:3: "), 0);
    EXPECT_GE(RowWith(form, "autoexec.cfg:4: "), 0);
    EXPECT_TRUE(
        std::ranges::is_partitioned(form.Findings, [](const Finding& each) { return each.How == Certainty::Sure; }));
    EXPECT_TRUE(form.Findings_Lbl.Caption.starts_with("What the game takes otherwise than it may be meant: "));
}

TEST_F(ScriptCheckForm, ShowsTheLineOfARow) {
    ScriptCheck_Frm form(run, request);
    form.Findings_Lst.ListIndex = RowWith(form, "my.cfg:3: ");
    user.In<ScriptText_Frm>([](ScriptText_Frm& script) {
        EXPECT_EQ(script.Place_Lbl.Caption, "C:\\QUAKE\\ID1\\my.cfg");
        EXPECT_EQ(script.Lines_Lst.ListIndex, 2);
        ScriptText_Close_Cmd_Click(script);
    });
    ScriptCheck_Show_Cmd_Click(form);
}

TEST_F(ScriptCheckForm, AScriptWithoutAFaultIsToldSo) {
    system.Disk.AddFile("C:\\QUAKE\\ID1\\autoexec.cfg", "bind x +jump\n");
    system.Disk.AddFile("C:\\QUAKE\\ID1\\my.cfg", "bind x +attack\n");
    const ScriptCheck_Frm form(run, request);
    EXPECT_TRUE(form.Findings.empty()) << form.Findings_Lst.Items[0];
    EXPECT_EQ(form.Findings_Lbl.Caption, "Nothing was found that the game would take otherwise.");
    EXPECT_FALSE(form.Show_Cmd.Enabled);
    EXPECT_EQ(form.Focus, "Close_Cmd");
}

}  // namespace lv
