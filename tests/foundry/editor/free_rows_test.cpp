#include "foundry/editor/free_rows.h"

#include "catalogs/editors/choose_script.h"
#include "foundation/settings.h"
#include "foundry/document/bindings.h"
#include "foundry/editor/line_dialogs.h"
#include "tests/foundry/editor/fig_fixture.h"

namespace lv {
namespace {

constexpr KeyIndex kA = 1;
constexpr KeyIndex kB = 2;

class FreeRows : public FigTest {
  protected:
    void SetUp() override { Open(kQuakeDialect); }

    template <class Dialog>
    void WillType(TextView text) {
        user.In<Dialog>([typed = Text(text)](Dialog& dialog) {
            dialog.Message_Txt.Text = typed;
            LineDialog_OK_Cmd_Click(dialog);
        });
    }
    void Say(TextView text) {
        WillType<SayStuff_Frm>(text);
        AddMessage_Cmd_Click(form);
    }
    void AddExtra(TextView text) {
        WillType<ExtraBinding_Frm>(text);
        AddExtraBinding_Cmd_Click(form);
    }
    void AddScript(TextView name) {
        user.In<ChooseScript_Frm>([typed = Text(name)](ChooseScript_Frm& dialog) {
            dialog.ScriptPath_Txt.Text = typed;
            ChooseScript_OK_Cmd_Click(dialog);
        });
        AddBoundScript_Cmd_Click(form);
    }
    /// Clicks the row, sees what the dialog offers, and types another text.
    template <class Dialog>
    Text EditRow(SlotNumber slot, TextView text) {
        Text offered;
        user.In<Dialog>([&offered, typed = Text(text)](Dialog& dialog) {
            offered = dialog.Message_Txt.Text;
            dialog.Message_Txt.Text = typed;
            LineDialog_OK_Cmd_Click(dialog);
        });
        FreeRow_LeftClick(form, slot);
        return offered;
    }

    void Bind(KeyIndex key, SlotNumber slot) { BindKey(form.Document, form, key, slot); }
    Text Shown(SlotNumber slot) { return form.Document.Bound_Lbl[slot].Caption; }
    Text Tip(SlotNumber slot) { return form.Document.Bound_Lbl[slot].ToolTip; }
    Text SlotCommand(SlotNumber slot) { return form.Document.SlotCommand[slot]; }
};

// Adding

TEST_F(FreeRows, AMessageTakesTheFirstFreeRow) {
    Say("hello");
    Say("bye");
    EXPECT_EQ(Shown(801), " hello");
    EXPECT_EQ(SlotCommand(801), "say hello");
    EXPECT_EQ(Tip(801), "");
    EXPECT_EQ(Shown(802), " bye");
    EXPECT_EQ(form.MessageResult, "bye");
    EXPECT_FALSE(form.Document.ScriptClean);
}

TEST_F(FreeRows, AMessageIsForWhomTheBoxOfItsRowTells) {
    form.Document.Say_Team_Chk[801].Value = 1;
    Say("base is taken");
    EXPECT_EQ(SlotCommand(801), "say_team base is taken");
}

TEST_F(FreeRows, AnExtraBindingIsKeptAsItWasTyped) {
    AddExtra(" +hook ");
    EXPECT_EQ(Shown(501), " +hook");
    EXPECT_EQ(SlotCommand(501), " +hook ");
    EXPECT_EQ(form.ExtraBindingResult, " +hook ");
}

TEST_F(FreeRows, AScriptIsRunByItsName) {
    AddScript(" rocket.cfg ");
    EXPECT_EQ(Shown(701), " rocket.cfg");
    EXPECT_EQ(SlotCommand(701), "exec rocket.cfg");
    EXPECT_EQ(Tip(701), "");
    EXPECT_FALSE(form.Document.ScriptClean);
}

TEST_F(FreeRows, TheDialogsOpenEmptyAndTheOneOfScriptsBrowsesBesideTheScript) {
    user.In<SayStuff_Frm>([](SayStuff_Frm& dialog) { EXPECT_EQ(dialog.Message_Txt.Text, ""); });
    AddMessage_Cmd_Click(form);
    user.In<ExtraBinding_Frm>([](ExtraBinding_Frm& dialog) { EXPECT_EQ(dialog.Message_Txt.Text, ""); });
    AddExtraBinding_Cmd_Click(form);
    user.In<ChooseScript_Frm>([](ChooseScript_Frm& dialog) {
        EXPECT_EQ(dialog.ScriptPath_Txt.Text, "");
        EXPECT_EQ(dialog.Directory, "C:\\GAME\\ID1\\");
    });
    AddBoundScript_Cmd_Click(form);
}

TEST_F(FreeRows, CancelAddsNothingAndEmptiesTheResult) {
    form.MessageResult = "old";
    form.ExtraBindingResult = "old";
    user.In<SayStuff_Frm>([](SayStuff_Frm& dialog) {
        dialog.Message_Txt.Text = "hello";
        LineDialog_Cancel_Cmd_Click(dialog);
    });
    AddMessage_Cmd_Click(form);
    user.In<ExtraBinding_Frm>([](ExtraBinding_Frm& dialog) { LineDialog_Cancel_Cmd_Click(dialog); });
    AddExtraBinding_Cmd_Click(form);
    user.In<ChooseScript_Frm>([](ChooseScript_Frm& dialog) {
        dialog.ScriptPath_Txt.Text = "a.cfg";
        Entry_Cancel_Cmd_Click(dialog);
    });
    AddBoundScript_Cmd_Click(form);
    EXPECT_EQ(form.MessageResult, "");
    EXPECT_EQ(form.ExtraBindingResult, "");
    EXPECT_EQ(Shown(801), "");
    EXPECT_EQ(Shown(501), "");
    EXPECT_EQ(Shown(701), "");
    EXPECT_TRUE(form.Document.ScriptClean);
}

TEST_F(FreeRows, OkWithAnEmptyTextAddsNothingButCountsAsAChange) {
    Say("");
    EXPECT_EQ(Shown(801), "");
    EXPECT_EQ(SlotCommand(801), "");
    EXPECT_FALSE(form.Document.ScriptClean);
}

TEST_F(FreeRows, ATextOfBlanksIsNotAdded) {
    Say("   ");
    AddExtra("   ");
    EXPECT_EQ(SlotCommand(801), "");
    EXPECT_EQ(SlotCommand(501), "");
}

TEST_F(FreeRows, TheSameTextTwiceKeepsOneRowWhateverBlanksAreAroundIt) {
    Say("hello");
    Say("  hello ");
    AddExtra("+hook");
    AddExtra(" +hook");
    AddScript("a.cfg");
    AddScript("a.cfg ");
    EXPECT_EQ(Shown(802), "");
    EXPECT_EQ(Shown(502), "");
    EXPECT_EQ(Shown(702), "");
}

TEST_F(FreeRows, TheSameTextInARowBehindAFreeOneIsFoundToo) {
    Say("one");
    Say("two");
    user.Expect({.Title = "Confirm Deletion", .Text_ = "one", .Answer = 0});
    FreeRow_RightClick(form, 801);
    Say("two");
    EXPECT_EQ(Shown(801), "");
    Say("three");
    EXPECT_EQ(Shown(801), " three");
}

TEST_F(FreeRows, AShortenedTextIsNotTheSame) {
    const Text longText(70, 'x');
    Say(longText);
    Say(longText);
    EXPECT_EQ(Tip(801), longText);
    EXPECT_EQ(Tip(802), longText);
}

TEST_F(FreeRows, TheFourteenthMessageIsDroppedInSilence) {
    for (int i = 1; i <= 14; ++i) {
        Say("message " + std::to_string(i));
    }
    EXPECT_EQ(Shown(801), " message 1");
    EXPECT_EQ(Shown(813), " message 13");
}

TEST_F(FreeRows, TheTwentyFifthExtraBindingIsDroppedInSilence) {
    for (int i = 1; i <= 25; ++i) {
        AddExtra("impulse " + std::to_string(100 + i));
    }
    EXPECT_EQ(Shown(524), " impulse 124");
    EXPECT_EQ(form.Document.SlotCommand[524], "impulse 124");
}

TEST_F(FreeRows, TheThirteenthScriptIsDroppedInSilence) {
    for (int i = 1; i <= 13; ++i) {
        AddScript(std::to_string(i) + ".cfg");
    }
    EXPECT_EQ(Shown(712), " 12.cfg");
}

// Shortening

TEST_F(FreeRows, ALongMessageIsShortenedAndItsToolTipHoldsItAll) {
    const Text fits(61, 'x');  // with two blanks 63 letters, in a label of 64
    Say(fits);
    EXPECT_EQ(Shown(801), " " + fits);
    EXPECT_EQ(Tip(801), "");
    const Text tooLong(62, 'y');
    Say(tooLong);
    EXPECT_EQ(Shown(802), " " + Text(59, 'y') + "...");
    EXPECT_EQ(Tip(802), tooLong);
    EXPECT_EQ(SlotCommand(802), "say " + tooLong);
}

TEST_F(FreeRows, AShortenedScriptGetsTheLastExtraBindingAsItsToolTip) {
    AddExtra("impulse 9");
    AddScript("a_very_long_name_indeed.cfg");
    EXPECT_EQ(Shown(701), " a_very_long_name_...");
    EXPECT_EQ(Tip(701), "impulse 9");
    EXPECT_EQ(SlotCommand(701), "exec a_very_long_name_indeed.cfg");
}

TEST_F(FreeRows, AScriptThatFitsKeepsItsToolTipEmpty) {
    AddExtra("impulse 9");
    AddScript("rocket.cfg");
    EXPECT_EQ(Tip(701), "");
}

// Editing

TEST_F(FreeRows, AClickOnAFreeRowAddsToTheFirstFreeRow) {
    WillType<SayStuff_Frm>("hello");
    FreeRow_LeftClick(form, 805);
    EXPECT_EQ(Shown(801), " hello");
    WillType<ExtraBinding_Frm>("+hook");
    FreeRow_LeftClick(form, 524);
    EXPECT_EQ(Shown(501), " +hook");
    user.In<ChooseScript_Frm>([](ChooseScript_Frm& dialog) {
        dialog.ScriptPath_Txt.Text = "a.cfg";
        ChooseScript_OK_Cmd_Click(dialog);
    });
    FreeRow_LeftClick(form, 712);
    EXPECT_EQ(Shown(701), " a.cfg");
}

TEST_F(FreeRows, EditingAMessageChangesWhatItsKeysSayAtOnce) {
    Say("hello");
    Bind(kA, 801);
    Bind(kB, 801);
    form.Document.ScriptClean = true;
    EXPECT_EQ(EditRow<SayStuff_Frm>(801, " good bye "), "hello");
    EXPECT_EQ(Shown(801), " good bye");
    EXPECT_EQ(SlotCommand(801), "say good bye");
    EXPECT_EQ(Command(kA), "say good bye");
    EXPECT_EQ(Command(kB), "say good bye");
    EXPECT_EQ(Keys(801), "{A} : {B}");
    EXPECT_FALSE(form.Document.ScriptClean);
}

TEST_F(FreeRows, EditingAMessageKeepsWhomItIsFor) {
    form.Document.Say_Team_Chk[801].Value = 1;
    Say("hello");
    EditRow<SayStuff_Frm>(801, "bye");
    EXPECT_EQ(SlotCommand(801), "say_team bye");
}

TEST_F(FreeRows, EditingAnExtraBindingChangesWhatItsKeysDo) {
    AddExtra("impulse 9");
    Bind(kA, 501);
    EXPECT_EQ(EditRow<ExtraBinding_Frm>(501, "impulse 255"), "impulse 9");
    EXPECT_EQ(Shown(501), " impulse 255");
    EXPECT_EQ(SlotCommand(501), "impulse 255");
    EXPECT_EQ(Command(kA), "impulse 255");
    EXPECT_EQ(form.ExtraBindingResult, "impulse 255");
}

TEST_F(FreeRows, TheLastMessageIsEditedToo) {
    for (int i = 1; i <= 13; ++i) {
        Say(std::to_string(i));
    }
    EXPECT_EQ(EditRow<SayStuff_Frm>(813, "last"), "13");
    EXPECT_EQ(Shown(813), " last");
}

TEST_F(FreeRows, EditingWithTheTextEmptiedKeepsTheRow) {
    Say("hello");
    Bind(kA, 801);
    EditRow<SayStuff_Frm>(801, "");
    EditRow<SayStuff_Frm>(801, "   ");
    EXPECT_EQ(Shown(801), " hello");
    EXPECT_EQ(Command(kA), "say hello");
    AddExtra("impulse 9");
    EditRow<ExtraBinding_Frm>(501, "");
    EXPECT_EQ(SlotCommand(501), "impulse 9");
}

TEST_F(FreeRows, CancelOfAnEditKeepsTheRow) {
    Say("hello");
    user.In<SayStuff_Frm>([](SayStuff_Frm& dialog) { LineDialog_Cancel_Cmd_Click(dialog); });
    FreeRow_LeftClick(form, 801);
    EXPECT_EQ(Shown(801), " hello");
    EXPECT_EQ(form.MessageResult, "");
}

TEST_F(FreeRows, AfterAnEditTheTextIsNotShortenedAndTheToolTipIsStale) {
    const Text first(70, 'x');
    const Text second(80, 'y');
    Say(first);
    EXPECT_EQ(EditRow<SayStuff_Frm>(801, second), first);
    EXPECT_EQ(Shown(801), " " + second);
    EXPECT_EQ(Tip(801), first);
    EXPECT_EQ(EditRow<SayStuff_Frm>(801, "short"), first);
    EXPECT_EQ(Shown(801), " short");
    EXPECT_EQ(Tip(801), first);
}

TEST_F(FreeRows, OtherRowsIgnoreClicks) {
    for (const int other : {100, 101, 601, 700, 800, 814, 815, 901, 1101}) {
        const auto slot = static_cast<SlotNumber>(other);
        FreeRow_LeftClick(form, slot);
        FreeRow_RightClick(form, slot);
    }
    EXPECT_TRUE(user.Asked.empty());
    EXPECT_TRUE(form.Document.ScriptClean);
}

// Opening a script

TEST_F(FreeRows, AScriptIsOpenedInNotepadUnlessAnotherEditorIsChosen) {
    AddScript("rocket.cfg");
    FreeRow_LeftClick(form, 701);
    ASSERT_TRUE(Save(run, kOptions, "ScriptEditor", "C:\\MY EDIT\\EDIT.EXE"));
    FreeRow_LeftClick(form, 701);
    EXPECT_EQ(system.Programs.Started, (std::vector<std::string>{"notepad.exe|C:\\GAME\\ID1\\rocket.cfg",
                                                                 "C:\\MY EDIT\\EDIT.EXE|C:\\GAME\\ID1\\rocket.cfg"}));
}

TEST_F(FreeRows, AScriptWithAToolTipOpensWhatThatNames) {
    AddExtra("impulse 9");
    AddScript("a_very_long_name_indeed.cfg");
    FreeRow_LeftClick(form, 701);
    EXPECT_EQ(system.Programs.Started, (std::vector<std::string>{"notepad.exe|C:\\GAME\\ID1\\impulse 9"}));
}

TEST_F(FreeRows, ANameWithBlanksAndSwitchesIsOneArgument) {
    AddScript("my own.cfg /p & del x");
    FreeRow_LeftClick(form, 701);
    EXPECT_EQ(system.Programs.Started.size(), 1U);
}

TEST_F(FreeRows, NotepadIsTriedWhereTheEditorFails) {
    ASSERT_TRUE(Save(run, kOptions, "ScriptEditor", "edit.exe"));
    AddScript("rocket.cfg");
    system.Programs.Refuse = MakeError(53);
    user.OnDialog = [&] { system.Programs.Refuse = {}; };
    user.Expect({.Title = "Error Opening Default Editor [edit.exe]",
                 .Text_ = "Error Number = 53\r\nError String = File not found",
                 .Whole = true,
                 .Buttons = "&OK"});
    FreeRow_LeftClick(form, 701);
    EXPECT_EQ(system.Programs.Started, (std::vector<std::string>{"notepad.exe|C:\\GAME\\ID1\\rocket.cfg"}));
}

TEST_F(FreeRows, BothFailuresAreTold) {
    AddScript("rocket.cfg");
    system.Programs.Refuse = MakeError(70);
    user.Expect({.Title = "Error Opening Default Editor [notepad.exe]",
                 .Text_ = "Error Number = 70\r\nError String = Permission denied",
                 .Whole = true});
    user.Expect({.Title = "Error Opening Notepad",
                 .Text_ = "Error Number = 70\r\nError String = Permission denied",
                 .Whole = true,
                 .Buttons = "&OK"});
    FreeRow_LeftClick(form, 701);
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(FreeRows, ANameWithControlCharactersIsRefused) {
    for (const TextView name : {"a\tb.cfg", "a\rb.cfg", "a\x7F.cfg", "a\x01.cfg"}) {
        Open(kQuakeDialect);
        form.Document.Bound_Lbl[701].Caption = name;
        user.Expect({.Title = "Setup Foundry", .Text_ = "can't be opened"});
        FreeRow_LeftClick(form, 701);
    }
    EXPECT_TRUE(system.Programs.Started.empty());
}

// Deleting

struct DeletedRow {
    SlotNumber Slot;
    Text Question;
};

TEST_F(FreeRows, ARightClickDeletesTheRowAndFreesItsKeys) {
    const DeletedRow rows[] = {
        {801, "text\r\n\r\nDelete this message?"},        {812, "text\r\n\r\nDelete this message?"},
        {501, "text\r\n\r\nDelete this extra binding?"},  {524, "text\r\n\r\nDelete this extra binding?"},
        {701, "text\r\n\r\nDelete this script binding?"}, {712, "text\r\n\r\nDelete this script binding?"},
    };
    for (const DeletedRow& row : rows) {
        form.Document.Bound_Lbl[row.Slot].Caption = " text";
        form.Document.Bound_Lbl[row.Slot].ToolTip = "the whole text";
        form.Document.SlotCommand[row.Slot] = "text";
        Bind(kA, row.Slot);
        Bind(kB, row.Slot);
        form.Document.ScriptClean = true;
        user.Expect({.Title = "Confirm Deletion", .Text_ = row.Question, .Whole = true, .Buttons = "&Yes,&No"});
        FreeRow_RightClick(form, row.Slot);
        EXPECT_EQ(Shown(row.Slot), "") << row.Slot;
        EXPECT_EQ(Tip(row.Slot), "");
        EXPECT_EQ(Keys(row.Slot), "");
        EXPECT_EQ(Command(kA), "");
        EXPECT_EQ(Command(kB), "");
        EXPECT_EQ(KeyColor(kA), kWhite);
        EXPECT_FALSE(form.Document.ScriptClean);
    }
}

TEST_F(FreeRows, NoKeepsTheRow) {
    Say("hello");
    Bind(kA, 801);
    user.Expect({.Title = "Confirm Deletion", .Text_ = "hello", .Answer = 1});
    FreeRow_RightClick(form, 801);
    EXPECT_EQ(Shown(801), " hello");
    EXPECT_EQ(Command(kA), "say hello");
}

TEST_F(FreeRows, AKeyListOfDamagedCaptionsIsEmptiedAllTheSame) {
    Say("hello");
    form.Document.Setting_Lbl[801].Caption = "no key";
    user.Expect({.Title = "Confirm Deletion", .Text_ = "hello"});
    FreeRow_RightClick(form, 801);
    EXPECT_EQ(Keys(801), "");
}

TEST_F(FreeRows, TheLastMessageHasNoRightClick) {
    form.Document.Bound_Lbl[813].Caption = " text";
    FreeRow_RightClick(form, 813);
    EXPECT_TRUE(user.Asked.empty());
    EXPECT_EQ(Shown(813), " text");
}

TEST_F(FreeRows, AFreeRowHasNoRightClick) {
    for (const SlotNumber slot : {kExtras.First, kBoundScripts.First, kMessages.First}) {
        FreeRow_RightClick(form, slot);
    }
    EXPECT_TRUE(user.Asked.empty());
}

// The boxes of the team

TEST_F(FreeRows, TheTeamsBoxChangesWhatTheKeysSay) {
    Say("hello");
    Bind(kA, 801);
    form.Document.ScriptClean = true;
    form.Document.Say_Team_Chk[801].Value = 1;
    Say_Team_Chk_Click(form, 801);
    EXPECT_EQ(SlotCommand(801), "say_team hello");
    EXPECT_EQ(Command(kA), "say_team hello");
    EXPECT_FALSE(form.Document.ScriptClean);
    form.Document.Say_Team_Chk[801].Value = 0;
    Say_Team_Chk_Click(form, 801);
    EXPECT_EQ(Command(kA), "say hello");
}

TEST_F(FreeRows, TheTeamsBoxOfARowWithoutKeysChangesNothing) {
    Say("hello");
    form.Document.ScriptClean = true;
    form.Document.Say_Team_Chk[801].Value = 1;
    Say_Team_Chk_Click(form, 801);
    EXPECT_EQ(SlotCommand(801), "say hello");
    EXPECT_TRUE(form.Document.ScriptClean);
}

TEST_F(FreeRows, AKeyBoundLaterSaysItToTheTeamAllTheSame) {
    Say("hello");
    form.Document.Say_Team_Chk[801].Value = 1;
    Say_Team_Chk_Click(form, 801);
    Bind(kA, 801);
    EXPECT_EQ(Command(kA), "say_team hello");
}

TEST_F(FreeRows, TheTeamsBoxIsIgnoredWhileTheReaderRuns) {
    Say("hello");
    Bind(kA, 801);
    form.Document.ScriptLoading = true;
    form.Document.Say_Team_Chk[801].Value = 1;
    Say_Team_Chk_Click(form, 801);
    EXPECT_EQ(Command(kA), "say hello");
}

TEST_F(FreeRows, AShortenedMessageLosesItsEndWithTheTeamsBox) {
    Say(Text(70, 'x'));
    Bind(kA, 801);
    form.Document.Say_Team_Chk[801].Value = 1;
    Say_Team_Chk_Click(form, 801);
    EXPECT_EQ(Command(kA), "say_team " + Text(59, 'x') + "...");
}

// The buttons that only tell

struct TellingButton {
    void (*Click)(Fig_Frm&);
    Text Title;
    Text Text_;
};

TEST_F(FreeRows, TheOtherButtonsTellHowItIsDone) {
    const TellingButton buttons[] = {
        {EditMessage_Cmd_Click, "Message Editing", "To edit a message, click it."},
        {DeleteMessage_Cmd_Click, "Message Editing", "To delete a message, right-click it."},
        {EditExtraBinding_Cmd_Click, "Extra Binding Editing", "To edit an extended binding, click it."},
        {DeleteExtraBinding_Cmd_Click, "Extra Binding Editing", "To delete an extra binding, right-click it."},
        {EditoundScript_Cmd_Click, "Bound Script Editing", "To edit an bound script, click it."},
        {DeleteBoundScript_Cmd_Click, "Bound Script Editing", "To delete a bound script, right-click it."},
    };
    for (const TellingButton& button : buttons) {
        user.Expect({.Title = button.Title, .Text_ = button.Text_, .Whole = true, .Buttons = "&OK"});
        button.Click(form);
    }
    EXPECT_TRUE(form.Document.ScriptClean);
}

TEST_F(FreeRows, AShortenedScriptWithoutAnExtraBindingOpensWhatItsCaptionShows) {
    AddExtra("impulse 9");
    user.In<ExtraBinding_Frm>([](ExtraBinding_Frm& dialog) { LineDialog_Cancel_Cmd_Click(dialog); });
    AddExtraBinding_Cmd_Click(form);  // Cancel empties the result
    AddScript("a_very_long_name_indeed.cfg");
    EXPECT_EQ(Tip(701), "");
    FreeRow_LeftClick(form, 701);
    EXPECT_EQ(system.Programs.Started, (std::vector<std::string>{"notepad.exe|C:\\GAME\\ID1\\a_very_long_name_..."}));
}

}  // namespace
}  // namespace lv
