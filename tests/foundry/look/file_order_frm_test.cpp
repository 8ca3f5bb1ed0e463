#include "foundry/look/file_order_frm.h"

#include <algorithm>

#include "foundation/field_strings.h"
#include "foundry/look/script_text_frm.h"
#include "tests/foundry/look/game_start.h"

namespace lv {

namespace {

bool HasRow(const ListBox& list, TextView part) {
    return std::ranges::any_of(list.Items, [&](const Text& row) { return Holds(row, part); });
}

}  // namespace

class FileOrderForm : public GameStart {};

TEST_F(FileOrderForm, ListsTheScriptsInTheirOrderAndMarksWhatIsMissing) {
    const FileOrder_Frm form(run, request);
    EXPECT_EQ(form.Caption, "Which File Wins");
    EXPECT_TRUE(HasRow(form.Files_Lst, "autoexec.cfg   C:\\QUAKE\\ID1\\autoexec.cfg"));
    EXPECT_TRUE(HasRow(form.Files_Lst, "    more.cfg   "));
    EXPECT_TRUE(HasRow(form.Files_Lst, "gone.cfg   (NOT THERE)"));
    EXPECT_TRUE(HasRow(form.Files_Lst, "my.cfg   C:\\QUAKE\\ID1\\my.cfg"));
}

TEST_F(FileOrderForm, ShowsAScriptThatIsYetToBeWritten) {
    request.Given = {{"C:\\QUAKE\\ID1\\lv_666.qs", "exec my.cfg\r\nr_wateralpha .6\r\n", true}};
    request.Commands = {"exec lv_666.qs"};
    FileOrder_Frm form(run, request);
    EXPECT_TRUE(HasRow(form.Files_Lst, "lv_666.qs   C:\\QUAKE\\ID1\\lv_666.qs   (as a launch would write it now)"));
    form.Wanted_Txt.Text = "wateralpha";
    FileOrder_Wanted_Txt_Change(form);
    ASSERT_EQ(form.Set_Lst.Items, (std::vector<Text>{"setting r_wateralpha   \".6\"   lv_666.qs, line 2"}));
    user.In<ScriptText_Frm>([](ScriptText_Frm& script) {
        EXPECT_EQ(script.Lines_Lst.Items, (std::vector<Text>{"     1  exec my.cfg", "     2  r_wateralpha .6"}));
        EXPECT_EQ(script.Lines_Lst.ListIndex, 1);
    });
    FileOrder_Show_Cmd_Click(form);
}

TEST_F(FileOrderForm, NotesWhatIsOtherwiseThanInALaunch) {
    EXPECT_FALSE(FileOrder_Frm(run, request).Note_Lbl.Visible);
    const FileOrder_Frm form(run, request, "Here it is.");
    EXPECT_TRUE(form.Note_Lbl.Visible);
    EXPECT_EQ(form.Note_Lbl.Caption, "Here it is.");
}

TEST_F(FileOrderForm, SaysWhoWinsAndWhoIsOverridden) {
    FileOrder_Frm form(run, request);
    form.Wanted_Txt.Text = " X ";
    FileOrder_Wanted_Txt_Change(form);
    ASSERT_EQ(form.Set_Lst.Items.size(), 1u);
    EXPECT_EQ(form.Set_Lst.Items[0], "key x   \"+attack\"   my.cfg, line 1");
    EXPECT_EQ(form.Setters_Lbl.Caption, "The last one wins. It overrides 1 other:");
    EXPECT_EQ(form.Setters_Lst.Items,
              (std::vector<Text>{"autoexec.cfg, line 1   bind x +jump", "my.cfg, line 1   bind x +attack"}));
    EXPECT_EQ(form.Setters_Lst.ListIndex, 1);
}

TEST_F(FileOrderForm, FindsByAnyPartOfAName) {
    FileOrder_Frm form(run, request);
    form.Wanted_Txt.Text = "sens";
    FileOrder_Wanted_Txt_Change(form);
    ASSERT_EQ(form.Set_Lst.Items.size(), 1u);
    EXPECT_EQ(form.Set_Lst.Items[0], "setting sensitivity   \"3\"   autoexec.cfg, line 2");
    EXPECT_EQ(form.Setters_Lbl.Caption, "Nobody else sets the setting sensitivity:");
    form.Wanted_Txt.Text = "nothing like it";
    FileOrder_Wanted_Txt_Change(form);
    EXPECT_TRUE(form.Set_Lst.Items.empty());
    EXPECT_EQ(form.Setters_Lbl.Caption, "Nothing of that name is set.");
    EXPECT_FALSE(form.Show_Cmd.Enabled);
}

TEST_F(FileOrderForm, ShowsTheLine) {
    FileOrder_Frm form(run, request);
    form.Wanted_Txt.Text = "sens";
    FileOrder_Wanted_Txt_Change(form);
    user.In<ScriptText_Frm>([](ScriptText_Frm& script) {
        EXPECT_EQ(script.Place_Lbl.Caption, "C:\\QUAKE\\ID1\\autoexec.cfg");
        EXPECT_EQ(script.Lines_Lst.ListIndex, 1);
        ScriptText_Close_Cmd_Click(script);
    });
    FileOrder_Show_Cmd_Click(form);
}

TEST_F(FileOrderForm, ShowsAScriptOfTheListFromItsStart) {
    FileOrder_Frm form(run, request);
    const auto row = std::ranges::find_if(form.Files_Lst.Items, [](const Text& each) { return Holds(each, "my.cfg"); });
    form.Files_Lst.ListIndex = static_cast<int>(row - form.Files_Lst.Items.begin());
    FileOrder_Files_Lst_Click(form);
    EXPECT_EQ(form.Setters_Lst.ListIndex, -1);
    user.In<ScriptText_Frm>([](ScriptText_Frm& script) { EXPECT_EQ(script.Lines_Lst.ListIndex, 0); });
    FileOrder_Show_Cmd_Click(form);
}

TEST_F(FileOrderForm, EachFateHasItsWords) {
    const auto words = [](ScriptFate fate, bool mayLack = false) {
        RunScript script;
        script.Fate = fate;
        script.MayLack = mayLack;
        return FateText(script);
    };
    EXPECT_EQ(words(ScriptFate::Ran), "");
    EXPECT_EQ(words(ScriptFate::StoodIn), "not found; the game's own one is taken to say as usual");
    EXPECT_EQ(words(ScriptFate::Missing), "NOT THERE");
    EXPECT_EQ(words(ScriptFate::Missing, true), "not there, and not missed");
    EXPECT_EQ(words(ScriptFate::Loop), "A LOOP: it is being run already");
    EXPECT_EQ(words(ScriptFate::TooDeep), "NOT RUN: too many stand in each other");
    EXPECT_EQ(words(ScriptFate::TooLong), "NOT RUN: too long for the game, which drops it whole");
    EXPECT_EQ(words(ScriptFate::Unread), "could not be read");
    EXPECT_EQ(words(ScriptFate::Refused), "NOT RUN: exec takes one name");
    EXPECT_EQ(words(ScriptFate::IsPattern), "several at once, which are not looked for");
}

}  // namespace lv
