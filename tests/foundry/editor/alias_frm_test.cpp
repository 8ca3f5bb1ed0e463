#include "foundry/editor/alias_frm.h"

#include "foundry/document/bindings.h"
#include "foundry/editor/aliases_page.h"
#include "tests/foundry/editor/fig_fixture.h"

namespace lv {
namespace {

constexpr KeyIndex kA = 1;

class AliasFrm : public FigTest {
  protected:
    void SetUp() override { Open(kQuakeDialect); }

    /// "zoom=fov 20", with a star in front if it is bound; "(none)" if there is none.
    Text Entry(TextView name) {
        const AliasPlace at = FindAlias(form.Document, name);
        if (!at.Found) {
            return "(none)";
        }
        const Alias& alias = form.Document.AliasTable[at.Place];
        return Join(alias.Bound ? "*" : "", alias.Name, "=", alias.Body);
    }
    /// What a new alias of this text holds.
    Text BodyOf(TextView typed) {
        Alias_Frm dialog(form, std::nullopt);
        dialog.AliasName_Txt.Text = "made_" + std::to_string(++made_);
        dialog.AliasBody_Txt.Text = typed;
        Alias_OK_Cmd_Click(dialog);
        const AliasPlace at = FindAlias(form.Document, dialog.AliasName_Txt.Text);
        return at.Found ? form.Document.AliasTable[at.Place].Body : "(none)";
    }
    void Add(TextView name, TextView body, bool bindable) {
        Alias_Frm dialog(form, std::nullopt);
        dialog.AliasName_Txt.Text = name;
        dialog.AliasBody_Txt.Text = body;
        dialog.Bindable_Opt.Value = bindable ? 1 : 0;
        Alias_OK_Cmd_Click(dialog);
    }
    Text Added(TextView body, TextView command) {
        Alias_Frm dialog(form, std::nullopt);
        dialog.AliasBody_Txt.Text = body;
        const std::vector<Text>& rows = dialog.AddableCommands_Cbo.Items;
        for (std::size_t row = 0; row < rows.size(); ++row) {
            if (rows[row].starts_with(command)) {
                dialog.AddableCommands_Cbo.ListIndex = static_cast<int>(row);
                break;
            }
        }
        Alias_AddCommand_Cmd_Click(dialog);
        return dialog.AliasBody_Txt.Text;
    }

  private:
    int made_ = 0;
};

// The list of commands

TEST_F(AliasFrm, TheCommandsArePaddedToTwoTabsAndTwoPoints) {
    const Alias_Frm dialog(form, std::nullopt);
    ASSERT_EQ(dialog.AddableCommands_Cbo.Items.size(), 62U);
    EXPECT_EQ(dialog.AddableCommands_Cbo.Items[0], "+attack;          (start attacking)");
    EXPECT_EQ(dialog.AddableCommands_Cbo.Items[37], "cl_forwardspeed x;(sets the forward speed to x)");
}

TEST_F(AliasFrm, UnrealsCommandsHaveEmptyDescriptions) {
    Open(kUnrealDialect);
    const Alias_Frm dialog(form, std::nullopt);
    ASSERT_EQ(dialog.AddableCommands_Cbo.Items.size(), 63U);
    EXPECT_EQ(dialog.AddableCommands_Cbo.Items[0], "SwitchWeapon 1    ()");
    EXPECT_EQ(dialog.AddableCommands_Cbo.Items[51], "Help | FunctionKey 1()");
}

TEST_F(AliasFrm, ACommandIsAddedBehindASeparator) {
    EXPECT_EQ(Added("", "+attack;"), "+attack");
    EXPECT_EQ(Added("wait", "+attack;"), "wait;+attack");
    EXPECT_EQ(Added("wait;", "+attack;"), "wait;+attack");
    EXPECT_EQ(Added(";", "+attack;"), "+attack");
    EXPECT_EQ(Added("wait;;", "+attack;"), "wait;;+attack");
}

TEST_F(AliasFrm, ACommandWithoutASeparatorIsAddedWithoutItsDescription) {
    EXPECT_EQ(Added("wait", "m_yaw"), "wait;m_yaw");
}

TEST_F(AliasFrm, UnrealsCommandsAreAddedUpToTheirSeparator) {
    Open(kUnrealDialect);
    EXPECT_EQ(Added("", "Fire"), "Fire");
    EXPECT_EQ(Added("Fire|", "Jump"), "Fire|Jump");
    EXPECT_EQ(Added("", "Help | FunctionKey 1"), "Help ");
}

TEST_F(AliasFrm, NothingIsAddedWithoutASelection) {
    Alias_Frm dialog(form, std::nullopt);
    dialog.AliasBody_Txt.Text = "wait;";
    Alias_AddCommand_Cmd_Click(dialog);
    EXPECT_EQ(dialog.AliasBody_Txt.Text, "wait;");
}

// A new alias

TEST_F(AliasFrm, ANewAliasHasATrimmedNameInLowerCase) {
    Add("  ZoomIn ", "fov 20", false);
    EXPECT_EQ(Entry("zoomin"), "zoomin=fov 20");
    EXPECT_FALSE(form.Document.ScriptClean);
    ASSERT_EQ(form.Alias_Lst.Items.size(), 1U);
    EXPECT_EQ(form.Alias_Lst.Items[0], " [_] zoomin                  fov 20");
    EXPECT_EQ(form.Alias_Lst.ListIndex, 0);
}

TEST_F(AliasFrm, OkClosesTheDialogAndCancelChangesNothing) {
    Alias_Frm dialog(form, std::nullopt);
    dialog.AliasName_Txt.Text = "zoom";
    dialog.AliasBody_Txt.Text = "fov 20";
    Alias_Cancel_Cmd_Click(dialog);
    EXPECT_TRUE(dialog.Closed);
    EXPECT_TRUE(form.Document.AliasTable.empty());
    EXPECT_TRUE(form.Document.ScriptClean);
    dialog.Closed = false;
    Alias_OK_Cmd_Click(dialog);
    EXPECT_TRUE(dialog.Closed);
}

TEST_F(AliasFrm, LinesBecomeCommandsPartedByOneSeparator) {
    EXPECT_EQ(BodyOf("wait\r\n+attack"), "wait;+attack");
    EXPECT_EQ(BodyOf("wait;\r\n+attack;\r\n"), "wait;+attack");
    EXPECT_EQ(BodyOf("wait;;;;+attack;;"), "wait;+attack");
    EXPECT_EQ(BodyOf("wait\n+attack\r"), "wait;+attack");
    EXPECT_EQ(BodyOf(";wait | x"), ";wait | x");
}

TEST_F(AliasFrm, ABodyWithOnlySeparatorsIsEmpty) {
    for (const TextView body : {"", ";", ";;;;", "\r\n\r\n", ";\r\n;", " ; ; "}) {
        user.Expect({.Title = "Alias Not Done", .Text_ = "No commands were specified in the alias.", .Whole = true});
        EXPECT_EQ(BodyOf(body), "(none)") << body;
    }
}

TEST_F(AliasFrm, AFaultKeepsTheDialogOpen) {
    user.Expect({.Title = "Alias Not Done", .Text_ = "No commands were specified in the alias."});
    Alias_Frm dialog(form, std::nullopt);
    Alias_OK_Cmd_Click(dialog);
    EXPECT_FALSE(dialog.Closed);
    EXPECT_TRUE(form.Document.ScriptClean);
}

TEST_F(AliasFrm, ANameThatIsThereIsRefused) {
    Add("zoom", "fov 20", false);
    user.Expect({.Title = "Alias Name Exists",
                 .Text_ = "There is an existing alias with this name.",
                 .Whole = true,
                 .Buttons = "&OK"});
    Add("ZOOM", "fov 30", false);
    EXPECT_EQ(Entry("zoom"), "zoom=fov 20");
}

TEST_F(AliasFrm, AnEmptyNameCannotBeSaved) {
    user.Expect({.Title = "Internal Error", .Text_ = "Unable to save alias.", .Whole = true});
    Add("  ", "fov 20", false);
    EXPECT_TRUE(form.Document.AliasTable.empty());
}

TEST_F(AliasFrm, AnUnrealAliasIsPartedByBarsWithABlank) {
    Open(kUnrealDialect);
    Add("Both", "Fire\r\nJump|", false);
    EXPECT_EQ(Entry("both"), "both=Fire| Jump");
    Add("semicolons", "a;;b", false);
    EXPECT_EQ(Entry("semicolons"), "semicolons=a;;b");
}

TEST_F(AliasFrm, AnUnrealAliasThatAnIniCannotHoldIsNotSaved) {
    Open(kUnrealDialect);
    struct Damaged {
        TextView Name;
        TextView Body;
    };
    for (const Damaged& damaged : {Damaged{"None", "Fire"}, Damaged{"a)b", "Fire"}, Damaged{"both", "Say \"x\""},
                                   Damaged{"both", "Fire,ALIAS=x"}, Damaged{"", "Fire"}}) {
        user.Expect({.Title = "Internal Error", .Text_ = "Unable to save alias."});
        Add(damaged.Name, damaged.Body, false);
    }
    EXPECT_TRUE(form.Document.AliasTable.empty());
}

TEST_F(AliasFrm, AnAliasThatTheNextReadingWouldLoseIsNotSaved) {
    struct Damaged {
        TextView Name;
        TextView Body;
    };
    for (const Damaged& damaged : {Damaged{"qu\"ote", "wait"}, Damaged{"greet", "say \"hi\""},
                                   Damaged{"greet", "wait;//x"}, Damaged{"a//b", "wait"}}) {
        user.Expect({.Title = "Internal Error", .Text_ = "Unable to save alias.", .Whole = true});
        Add(damaged.Name, damaged.Body, false);
    }
    EXPECT_TRUE(form.Document.AliasTable.empty());
    Add("two words", "Say Hi / there ; wait", false);
    EXPECT_EQ(Entry("two words"), "two words=Say Hi / there ; wait");
}

// Boxes

TEST_F(AliasFrm, ABindableAliasTakesABox) {
    Add("zoom", "fov 20", true);
    EXPECT_EQ(Entry("zoom"), "*zoom=fov 20");
    EXPECT_EQ(form.Document.Bound_Lbl[601].Caption, " zoom");
    EXPECT_EQ(form.Document.SlotCommand[601], "zoom");
    EXPECT_EQ(form.Alias_Lst.Items[0], " [X] zoom                    fov 20");
}

TEST_F(AliasFrm, TheTwentyEighthBindableAliasStaysInTheTableUnbound) {
    for (int i = 101; i <= 127; ++i) {
        Add("alias" + std::to_string(i), "wait", true);
    }
    user.Expect({.Title = "Limitation Reached", .Text_ = "bind b \"zoom\" // this binds the alias to the b key"});
    Add("zoom", "fov 20", true);
    EXPECT_EQ(Entry("alias127"), "*alias127=wait");
    EXPECT_EQ(Entry("zoom"), "zoom=fov 20");
    EXPECT_EQ(form.Alias_Lst.Items.back(), " [_] zoom                    fov 20");
}

// Editing

class EditedAlias : public AliasFrm {
  protected:
    void SetUp() override {
        Open(kQuakeDialect, "alias jump2 \"+jump;wait;-jump\"\nalias zoom \"fov 20\"\nbind a zoom\n");
        FillAliasList(form);
    }
};

TEST_F(EditedAlias, IsShownWithItsNameBodyAndBox) {
    const Alias_Frm dialog(form, 1);
    EXPECT_EQ(dialog.AliasName_Txt.Text, "zoom");
    EXPECT_EQ(dialog.AliasBody_Txt.Text, "fov 20");
    EXPECT_EQ(dialog.Bindable_Opt.Value, 1);
    const Alias_Frm other(form, 0);
    EXPECT_EQ(other.AliasBody_Txt.Text, "+jump;wait;-jump");
    EXPECT_EQ(other.Bindable_Opt.Value, 0);
}

TEST_F(EditedAlias, GetsItsNewBody) {
    Alias_Frm dialog(form, 1);
    dialog.AliasBody_Txt.Text = "fov 30;";
    Alias_OK_Cmd_Click(dialog);
    EXPECT_EQ(Entry("zoom"), "*zoom=fov 30");
    EXPECT_EQ(form.Alias_Lst.Items[1], " [X] zoom                    fov 30");
    EXPECT_EQ(Command(kA), "zoom");
    EXPECT_EQ(form.Document.AliasTable.AliasCount(), 2U);
    EXPECT_FALSE(form.Document.ScriptClean);
}

TEST_F(EditedAlias, MovesWithItsNewNameAndTakesItsBoxAndKeysAlong) {
    Alias_Frm dialog(form, 1);
    dialog.AliasName_Txt.Text = "Close_Look";
    Alias_OK_Cmd_Click(dialog);
    EXPECT_EQ(Entry("zoom"), "(none)");
    EXPECT_EQ(Entry("close_look"), "*close_look=fov 20");
    EXPECT_EQ(form.Alias_Lst.Items[0], " [X] close_look              fov 20");
    EXPECT_EQ(form.Alias_Lst.ListIndex, 0);
    EXPECT_EQ(form.Document.Bound_Lbl[601].Caption, " close_look");
    EXPECT_EQ(form.Document.SlotCommand[601], "close_look");
    EXPECT_EQ(Command(kA), "close_look");
    EXPECT_EQ(Keys(601), "{A}");
}

TEST_F(EditedAlias, CannotTakeTheNameOfAnother) {
    Alias_Frm dialog(form, 1);
    dialog.AliasName_Txt.Text = "jump2";
    user.Expect({.Title = "Alias Name Exists", .Text_ = "There is an existing alias with this name."});
    Alias_OK_Cmd_Click(dialog);
    EXPECT_EQ(Entry("jump2"), "jump2=+jump;wait;-jump");
    EXPECT_EQ(Entry("zoom"), "*zoom=fov 20");
    EXPECT_FALSE(dialog.Closed);
}

TEST_F(EditedAlias, ThatIsGoneCannotBeSaved) {
    Alias_Frm dialog(form, 1);
    form.Document.AliasTable.Erase(1);
    user.Expect({.Title = "Internal Error", .Text_ = "Unable to save alias."});
    Alias_OK_Cmd_Click(dialog);
    EXPECT_EQ(Entry("zoom"), "(none)");
    Alias_Frm behindTheEnd(form, 7);
    behindTheEnd.AliasName_Txt.Text = "x";
    behindTheEnd.AliasBody_Txt.Text = "wait";
    user.Expect({.Title = "Internal Error", .Text_ = "Unable to save alias."});
    Alias_OK_Cmd_Click(behindTheEnd);
}

TEST_F(EditedAlias, LosesItsBoxAndKeysIfTheUserAgrees) {
    Alias_Frm dialog(form, 1);
    dialog.Bindable_Opt.Value = 0;
    user.Expect({.Title = "Alias is Bound",
                 .Text_ = "This alias is currently bound. Do you want to remove the binding?",
                 .Whole = true,
                 .Buttons = "&Yes,&No"});
    Alias_OK_Cmd_Click(dialog);
    EXPECT_EQ(Entry("zoom"), "zoom=fov 20");
    EXPECT_EQ(Command(kA), "");
    EXPECT_EQ(KeyColor(kA), kWhite);
    EXPECT_EQ(form.Document.Bound_Lbl[601].Caption, "");
    EXPECT_EQ(form.Alias_Lst.Items[1], " [_] zoom                    fov 20");
}

TEST_F(EditedAlias, KeepsItsBoxUnderItsNewNameIfTheUserDoesNot) {
    Alias_Frm dialog(form, 1);
    dialog.AliasName_Txt.Text = "zoomed";
    dialog.Bindable_Opt.Value = 0;
    user.Expect({.Title = "Alias is Bound", .Text_ = "", .Answer = 1});
    Alias_OK_Cmd_Click(dialog);
    EXPECT_EQ(Entry("zoomed"), "*zoomed=fov 20");
    EXPECT_EQ(Command(kA), "zoomed");
}

TEST_F(EditedAlias, TakesABoxLater) {
    Alias_Frm dialog(form, 0);
    dialog.Bindable_Opt.Value = 1;
    Alias_OK_Cmd_Click(dialog);
    EXPECT_EQ(Entry("jump2"), "*jump2=+jump;wait;-jump");
    EXPECT_EQ(form.Document.Bound_Lbl[602].Caption, " jump2");
}

}  // namespace
}  // namespace lv
