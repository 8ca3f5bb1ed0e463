#include "foundry/editor/phun_names_frm.h"

#include <set>

#include "foundry/fonts/name_codes.h"
#include "foundry/fonts/own_font.h"
#include "foundry/writing/compose_script.h"
#include "tests/foundry/editor/fig_fixture.h"

namespace lv {
namespace {

class PhunNames : public FigTest {
  protected:
    /// The script is loaded and has that name.
    void Load(const ScriptDialect& dialect, TextView name) {
        Open(dialect);
        LoadPhunNames(form);
        form.Document.Name_Txt.Text = name;
        form.Document.ScriptClean = true;
    }

    /// Opens the editor of names, does that, and closes it.
    void Edit(const ScriptDialect& dialect, TextView name, std::function<void()> act) {
        Load(dialect, name);
        Edit(std::move(act));
    }
    void Edit(std::function<void()> act) {
        user.In<PhunNames_Frm>([act = std::move(act)](PhunNames_Frm&) { act(); });
        ViewCustomLetters_Cmd_Click(form);
    }

    /// A click into the middle of the letter's cell.
    void Click(int code) { PhunNames_Picture1_MouseUp(form, code % 15 * 16 + 8, code / 15 * 16 + 8); }

    Text Name() { return form.Document.Name_Txt.Text; }
    bool Back() { return names.Navigate_Cmd[0].Enabled; }
    bool Forward() { return names.Navigate_Cmd[2].Enabled; }

    /// The places that are green, as "4,"; all others must have the colour of buttons.
    Text Green() {
        Text green;
        for (std::size_t i = 1; i <= 15; ++i) {
            const Color color = form.NamePosition_Lbl[i].BackColor;
            EXPECT_TRUE(color == 0x00ff00 || color == 0x8000000f) << i;
            green += color == 0x00ff00 ? std::to_string(i) + "," : "";
        }
        return green;
    }
    int VisibleCells() {
        int visible = 0;
        for (std::size_t i = 1; i <= 15; ++i) {
            visible += form.NamePosition_Lbl[i].Visible ? 1 : 0;
        }
        return visible;
    }

    PhunNames_Frm& names = form.PhunNames;
};

TEST_F(PhunNames, SayWhatTheirButtonsDo) {
    EXPECT_EQ(names.Caption, "Setup Foundry - Phun*Names Editor");
    EXPECT_EQ(names.InsertChars_Chk.Caption, "Insert Characters");
    EXPECT_EQ(names.AutoAdvance_Chk.Caption, "Auto Advance");
    EXPECT_EQ(names.Navigate_Cmd[0].Caption, "<< &Back");
    EXPECT_EQ(names.Navigate_Cmd[2].Caption, "&Forward >>");
    EXPECT_EQ(names.ClearCurrent_Cmd.Caption, "Cl&ear Current");
    EXPECT_EQ(names.ClearAll_Cmd.Caption, "Clear &All");
    EXPECT_EQ(names.Restore_Cmd.Caption, "&Restore");
    EXPECT_EQ(names.OK_Cmd.Caption, "&Done");
    EXPECT_EQ(names.Cancel_Cmd.Caption, "&Cancel");
    EXPECT_EQ(names.Help_Lbl[0].Caption, " Restore name to when this form was loaded.");
    EXPECT_EQ(names.Help_Lbl[1].Caption, " Clears the entire name.");
    EXPECT_EQ(names.Help_Lbl[2].Caption, " Clears the current space.");
    EXPECT_EQ(names.Help_Lbl[3].Caption, " Moves the green cursor forward one space.");
    EXPECT_EQ(names.Help_Lbl[4].Caption, " Moves the green cursor back one space.");
    EXPECT_EQ(names.Help_Lbl[5].Caption,
              "To add a letter, number, or other character to the indicated place (green), click it.");
}

TEST_F(PhunNames, SayOnThePlayersPageHowLongANameIs) {
    Load(kQuakeDialect, "");
    EXPECT_EQ(form.Label6.Caption, "( Names have a 15 character limit )");
    EXPECT_EQ(form.Label6.ToolTip, "That's just the way it is");
    EXPECT_EQ(form.ViewCustomLetters_Cmd.Caption, "&Edit Name With Custom Letters");
    EXPECT_EQ(form.ViewCustomLetters_Cmd.ToolTip, "Use those cool custom letters!");
}

// The map.

TEST_F(PhunNames, ShowOurOwnLettersWithoutTheGamesData) {
    for (const ScriptDialect& dialect : {kQuakeDialect, kHexen2Dialect, kQuake2Dialect, kUnrealDialect, kSinDialect,
                                         kHeretic2Dialect, kHalfLifeDialect}) {
        Load(dialect, "");
        EXPECT_EQ(names.Map.Pixels, OwnFont(dialect.GameKind).Pixels) << static_cast<int>(dialect.GameKind);
    }
}

TEST_F(PhunNames, ShowTheGamesLettersFromBesideTheScript) {
    const auto addFont = [this](TextView directory, std::uint8_t opacityAndColor) {
        Text file = "\x04";
        file.resize(968, '\0');
        file[516] = 16;
        file[580] = 16;
        file[644] = '\xC8';
        file[645] = 3;
        file += Text(1024, static_cast<char>(opacityAndColor));
        system.Disk.AddFile(Join(directory, "\\pics\\misc\\conchars.m32"), file);
    };
    const auto color = [this] {
        LoadPhunNames(form);
        return int{*names.Map.Pixel(0, 0)};
    };
    Open(kHeretic2Dialect, "", "D:\\ELSEWHERE\\my.cfg");
    run.BaseGameDir = "BASE";
    run.CurrentGameDir = "MOD";
    addFont("C:\\GAME\\BASE", 50);
    EXPECT_EQ(color(), 50);
    addFont("C:\\GAME\\MOD", 60);
    EXPECT_EQ(color(), 60);
    addFont("D:\\ELSEWHERE", 70);
    EXPECT_EQ(color(), 70);
}

TEST_F(PhunNames, LookIntoEachDirectoryOnce) {
    Open(kHeretic2Dialect, "", "c:\\game\\id1\\my.cfg");
    system.Disk.Listed.clear();
    LoadPhunNames(form);
    EXPECT_EQ(system.Disk.Listed, (std::vector<std::string>{"c:\\game\\id1", "c:\\game\\id1"})) << "for two names";
}

TEST_F(PhunNames, LookOnlyBesideTheScriptWithoutAGameDirectory) {
    Open(kSinDialect, "", "C:\\my.cfg");
    run.DefaultGameDirectory.clear();
    system.Disk.Listed.clear();
    LoadPhunNames(form);
    EXPECT_EQ(std::set<std::string>(system.Disk.Listed.begin(), system.Disk.Listed.end()),
              (std::set<std::string>{"C:"}));
}

// Name_Pic.

TEST_F(PhunNames, AreDrawnFromTheCellsOfTheirCodes) {
    Load(kQuakeDialect, "A\xC1\x0f");
    const auto letters = PaintName(form);
    ASSERT_EQ(letters.size(), 3U);
    EXPECT_EQ(letters[0].FromX, 80);  // 65 is in row 4, column 5
    EXPECT_EQ(letters[0].FromY, 64);
    EXPECT_EQ(letters[0].ToX, 0);
    EXPECT_EQ(letters[1].FromX, 208);  // 193 is in row 12, column 13
    EXPECT_EQ(letters[1].FromY, 192);
    EXPECT_EQ(letters[1].ToX, 32);
    EXPECT_EQ(letters[2].FromX, 0);  // 15 is in row 1, column 0
    EXPECT_EQ(letters[2].FromY, 16);
    EXPECT_EQ(letters[2].ToX, 64);
}

TEST_F(PhunNames, AreDrawnToTheirFifteenthLetter) {
    Load(kQuakeDialect, "123456789012345");
    EXPECT_EQ(PaintName(form).size(), 15U);
    form.Document.Name_Txt.Text = "1234567890123456789";
    const auto letters = PaintName(form);
    ASSERT_EQ(letters.size(), 15U);
    EXPECT_EQ(letters[14].FromX, 128);  // "5", 53, is in row 3, column 8
    EXPECT_EQ(letters[14].ToX, 448);
}

TEST_F(PhunNames, AreDrawnWithoutBlanksAtTheirEnds) {
    Load(kQuakeDialect, "  a b  ");
    const auto letters = PaintName(form);
    ASSERT_EQ(letters.size(), 3U);
    EXPECT_EQ(letters[0].FromX, 112);  // "a", 97, is in row 6, column 7
    EXPECT_EQ(letters[1].FromX, 32);   // a blank, 32, is in row 2, column 2
    form.Document.Name_Txt.Text = Text(20, ' ');
    EXPECT_TRUE(PaintName(form).empty());
}

// Opening and closing.

TEST_F(PhunNames, HaveTheirCellsWhileTheWindowIsUp) {
    Load(kQuakeDialect, "Ranger");
    EXPECT_EQ(VisibleCells(), 0);
    Edit([this] { EXPECT_EQ(VisibleCells(), 15); });
    EXPECT_EQ(VisibleCells(), 0);
}

TEST_F(PhunNames, AreEditedBehindTheirLastLetter) {
    Edit(kQuakeDialect, "Ranger", [this] {
        EXPECT_EQ(names.NamePosition, 7);
        EXPECT_EQ(Green(), "7,");
        EXPECT_TRUE(Back());
        EXPECT_TRUE(Forward());
        EXPECT_EQ(names.PhunName, "Ranger         ");
        EXPECT_EQ(names.PhunNameBackup, "Ranger         ");
    });
    EXPECT_TRUE(form.Document.ScriptClean);
}

TEST_F(PhunNames, AreEditedAtTheFirstPlaceIfTheyAreEmpty) {
    for (const TextView empty : {"", "   ", "                    "}) {
        Edit(kQuakeDialect, empty, [this] {
            EXPECT_EQ(names.NamePosition, 1);
            EXPECT_EQ(Green(), "1,");
            EXPECT_FALSE(Back());
            EXPECT_TRUE(Forward());
        });
    }
}

TEST_F(PhunNames, AreEditedAtTheLastPlaceIfTheyFillAll) {
    for (const TextView full : {"123456789012345", "1234567890123456"}) {
        Edit(kQuakeDialect, full, [this] {
            EXPECT_EQ(names.NamePosition, 15);
            EXPECT_EQ(Green(), "15,");
            EXPECT_TRUE(Back());
            EXPECT_FALSE(Forward());
            EXPECT_EQ(names.PhunName, "123456789012345");
        });
    }
}

TEST_F(PhunNames, OfFourteenLettersAreEditedAtTheLastPlace) {
    Edit(kQuakeDialect, "12345678901234", [this] {
        EXPECT_EQ(names.NamePosition, 15);
        EXPECT_TRUE(Back());
        EXPECT_FALSE(Forward());
    });
}

TEST_F(PhunNames, AreEditedAgainAfterTheWindowWasClosed) {
    Edit(kQuakeDialect, "ab", [this] {
        Click('c');
        PhunNames_OK_Cmd_Click(form);
    });
    EXPECT_TRUE(names.Closed);
    Edit([this] {
        EXPECT_FALSE(names.Closed);
        EXPECT_EQ(names.NamePosition, 4);
        EXPECT_EQ(names.PhunNameBackup, "abc            ");
    });
}

TEST_F(PhunNames, OfHalfLifeComeWithAnExcuse) {
    Load(kHalfLifeDialect, "");
    user.Expect({.Title = "Half-Life Phun-Names",
                 .Text_ = "Sorry - these are just Quake1 letters...\r\nWe'll get the halflife letters in here soon.",
                 .Whole = true});
    bool shown = false;
    Edit([&shown] { shown = true; });
    EXPECT_TRUE(shown);
    EXPECT_EQ(Stored("ShowMessage", "HL_Phun-Names"), "(none)");
}

TEST_F(PhunNames, OfHalfLifeComeWithoutAnExcuseOnceTheUserHasHadEnough) {
    Load(kHalfLifeDialect, "");
    user.Expect({.Title = "Half-Life Phun-Names", .Text_ = "Quake1 letters", .TickNotAgain = true});
    Edit([] {});
    EXPECT_EQ(Stored("ShowMessage", "HL_Phun-Names"), "0");
    Edit([] {});
}

// The cursor.

TEST_F(PhunNames, AreWalkedThroughLetterByLetter) {
    Edit(kQuakeDialect, "abc", [this] {
        PhunNames_Navigate_Cmd_Click(form, 0);
        EXPECT_EQ(Green(), "3,");
        PhunNames_Navigate_Cmd_Click(form, 2);
        PhunNames_Navigate_Cmd_Click(form, 2);
        EXPECT_EQ(Green(), "5,");
        EXPECT_TRUE(Back());
        EXPECT_TRUE(Forward());
    });
    EXPECT_TRUE(form.Document.ScriptClean);
}

TEST_F(PhunNames, EndAtTheFirstAndTheLastPlace) {
    Edit(kQuakeDialect, "a", [this] {
        NavigatePosition(form, -1);
        EXPECT_FALSE(Back());
        EXPECT_TRUE(Forward());
        NavigatePosition(form, -1);
        EXPECT_EQ(Green(), "1,");
        NavigatePosition(form, 13);
        EXPECT_TRUE(Forward());
        NavigatePosition(form, 1);
        EXPECT_EQ(Green(), "15,");
        EXPECT_TRUE(Back());
        EXPECT_FALSE(Forward());
        NavigatePosition(form, 1);
        EXPECT_EQ(Green(), "15,");
        NavigatePosition(form, -15);
        EXPECT_EQ(Green(), "1,");
        EXPECT_FALSE(Back());
        EXPECT_TRUE(Forward()) << "it was off at place 15";
    });
}

// A click on the map.

TEST_F(PhunNames, TakeTheClickedLetterInThePlaceOfTheOldOne) {
    Edit(kQuakeDialect, "abc", [this] {
        NavigatePosition(form, -2);
        Click(193);
        EXPECT_EQ(Name(),
                  "a\xC1"
                  "c");
        EXPECT_EQ(names.PhunName,
                  "a\xC1"
                  "c            ");
        EXPECT_EQ(names.NamePosition, 2) << "no auto advance";
    });
    EXPECT_FALSE(form.Document.ScriptClean);
}

TEST_F(PhunNames, TakeTheCellOfTheGridThatWasClicked) {
    Edit(kQuakeDialect, "", [this] {
        PhunNames_Picture1_MouseUp(form, 239, 79);
        EXPECT_EQ(Name(), "J");  // row 4, column 14: 74
        PhunNames_Picture1_MouseUp(form, 0, 80);
        EXPECT_EQ(Name(), "K");  // row 5, column 0: 75
        PhunNames_Picture1_MouseUp(form, 15, 287);
        EXPECT_EQ(Name(), "\xFF");  // row 17, column 0: 255
    });
}

TEST_F(PhunNames, InsertTheClickedLetterIfTold) {
    Edit(kQuakeDialect, "abc", [this] {
        names.InsertChars_Chk.Value = 1;
        NavigatePosition(form, -2);
        Click('X');
        EXPECT_EQ(Name(), "aXbc");
    });
}

TEST_F(PhunNames, LoseTheirLastLetterWhenOneIsInserted) {
    Edit(kQuakeDialect, "123456789012345", [this] {
        names.InsertChars_Chk.Value = 1;
        NavigatePosition(form, -15);
        Click('X');
        EXPECT_EQ(Name(), "X12345678901234");
    });
}

TEST_F(PhunNames, ReplaceNothingBeyondTheLimitWhenOneIsInsertedAtTheLastPlace) {
    Edit(kQuakeDialect, "123456789012345", [this] {
        names.InsertChars_Chk.Value = 1;
        Click('X');
        EXPECT_EQ(Name(), "12345678901234X");
        EXPECT_EQ(names.PhunName.size(), 15U);
    });
}

TEST_F(PhunNames, AdvanceByThemselvesIfTold) {
    Edit(kQuakeDialect, "", [this] {
        names.AutoAdvance_Chk.Value = 1;
        Click('Q');
        Click('3');
        EXPECT_EQ(Name(), "Q3");
        EXPECT_EQ(Green(), "3,");
        EXPECT_TRUE(Back());
    });
}

TEST_F(PhunNames, StayAtTheLastPlaceAfterItsLetter) {
    Edit(kQuakeDialect, "12345678901234", [this] {
        names.AutoAdvance_Chk.Value = 1;
        Click('X');
        EXPECT_EQ(Name(), "12345678901234X");
        EXPECT_EQ(Green(), "15,");
        EXPECT_FALSE(Forward());
        EXPECT_TRUE(Back());
    });
}

TEST_F(PhunNames, KeepABlankBetweenLetters) {
    Edit(kQuakeDialect, "ab", [this] {
        names.AutoAdvance_Chk.Value = 1;
        Click(32);
        EXPECT_EQ(Name(), "ab");
        Click('c');
        EXPECT_EQ(Name(), "ab c");
    });
}

TEST_F(PhunNames, KeepTheirPlaceBehindBlanks) {
    Edit(kQuakeDialect, "", [this] {
        NavigatePosition(form, 2);
        Click('c');
        EXPECT_EQ(Name(), "  c");
    });
}

TEST_F(PhunNames, ArePaintedFromTheTextWithoutThePadding) {
    Edit(kQuakeDialect, "ab", [this] {
        Click('c');
        EXPECT_EQ(Name(), "abc");
        EXPECT_EQ(PaintName(form).size(), 3U);
    });
}

TEST_F(PhunNames, RefuseTheCodesThatNoNameCanHold) {
    for (const ScriptDialect& dialect : {kQuakeDialect, kQuake2Dialect, kUnrealDialect}) {
        Edit(dialect, "abc", [this, &dialect] {
            names.AutoAdvance_Chk.Value = 1;
            for (int code = 0; code < 256; ++code) {
                if (!NameTakes(dialect.GameKind, code)) {
                    user.Expect({.Title = "No Character",
                                 .Text_ = "The character you have clicked is not available.",
                                 .Whole = true,
                                 .Buttons = "&OK"});
                    Click(code);
                }
            }
            EXPECT_EQ(Name(), "abc");
            EXPECT_EQ(Green(), "4,");
        });
        EXPECT_TRUE(form.Document.ScriptClean);
    }
}

TEST_F(PhunNames, TakeABackslashButInQuake2) {
    Edit(kQuakeDialect, "", [this] { Click(92); });
    EXPECT_EQ(Name(), "\\");
    Edit(kQuake2Dialect, "", [this] {
        user.Expect({.Title = "No Character", .Text_ = "not available"});
        Click(92);
    });
    EXPECT_EQ(Name(), "");
}

TEST_F(PhunNames, RefuseTheCellsBehindTheLastLetter) {
    Edit(kQuakeDialect, "abc", [this] {
        user.Expect({.Title = "No Character", .Text_ = "not available"});
        Click(256);
        user.Expect({.Title = "No Character", .Text_ = "not available"});
        Click(269);
        EXPECT_EQ(Name(), "abc");
    });
}

TEST_F(PhunNames, AreNotChangedByAClickBesideTheMap) {
    Edit(kQuakeDialect, "abc", [this] {
        PhunNames_Picture1_MouseUp(form, -1, 5);
        PhunNames_Picture1_MouseUp(form, 5, -1);
        PhunNames_Picture1_MouseUp(form, 240, 5);
        PhunNames_Picture1_MouseUp(form, 5, 288);
        EXPECT_EQ(Name(), "abc");
    });
}

// The other buttons.

TEST_F(PhunNames, HaveAnUnderscoreWhereALetterIsCleared) {
    Edit(kQuakeDialect, "abc", [this] {
        NavigatePosition(form, -2);
        PhunNames_ClearCurrent_Cmd_Click(form);
        EXPECT_EQ(Name(), "a_c");
        EXPECT_EQ(Green(), "2,");
        names.AutoAdvance_Chk.Value = 1;
        PhunNames_ClearCurrent_Cmd_Click(form);
        EXPECT_EQ(Green(), "3,");
    });
    EXPECT_FALSE(form.Document.ScriptClean);
}

TEST_F(PhunNames, AreErasedAfterAQuestion) {
    Edit(kQuakeDialect, "123456789012345", [this] {
        user.Expect({.Title = "Confirm Clear", .Text_ = "Erase entire name?", .Whole = true, .Buttons = "&Do it!,&No"});
        PhunNames_ClearAll_Cmd_Click(form);
        EXPECT_EQ(Name(), "");
        EXPECT_EQ(names.PhunName, Text(15, ' '));
        EXPECT_EQ(Green(), "1,");
        EXPECT_FALSE(Back());
        EXPECT_TRUE(Forward());
    });
    EXPECT_FALSE(form.Document.ScriptClean);
}

TEST_F(PhunNames, AreNotErasedWithoutAYes) {
    Edit(kQuakeDialect, "abc", [this] {
        user.Expect({.Title = "Confirm Clear", .Text_ = "Erase", .Answer = 1});
        PhunNames_ClearAll_Cmd_Click(form);
        EXPECT_EQ(Name(), "abc");
        EXPECT_EQ(Green(), "4,");
    });
    EXPECT_TRUE(form.Document.ScriptClean);
}

TEST_F(PhunNames, AreRestoredAfterAQuestion) {
    Edit(kQuakeDialect, "abc", [this] {
        Click('d');
        user.Expect({.Title = "Confirm Restore", .Text_ = "Restore name?", .Whole = true, .Buttons = "&Do it!,&No"});
        PhunNames_Restore_Cmd_Click(form);
        EXPECT_EQ(Name(), "abc");
        EXPECT_EQ(names.PhunName, "abc            ");
        EXPECT_EQ(Green(), "1,");
    });
}

TEST_F(PhunNames, AreNotRestoredWithoutAYes) {
    Edit(kQuakeDialect, "abc", [this] {
        Click('d');
        user.Expect({.Title = "Confirm Restore", .Text_ = "Restore", .Answer = 1});
        PhunNames_Restore_Cmd_Click(form);
        EXPECT_EQ(Name(), "abcd");
        EXPECT_EQ(Green(), "4,");
    });
}

TEST_F(PhunNames, AreAsTheyWereAfterCancelWithoutAQuestion) {
    Edit(kQuakeDialect, "abc", [this] {
        Click('d');
        PhunNames_Cancel_Cmd_Click(form);
        EXPECT_TRUE(names.Closed);
        EXPECT_FALSE(names.Cancelling);
    });
    EXPECT_EQ(Name(), "abc");
    EXPECT_EQ(VisibleCells(), 0);
    Edit([this] {
        user.Expect({.Title = "Confirm Restore", .Text_ = "Restore", .Answer = 1});
        PhunNames_Restore_Cmd_Click(form);
    });
}

TEST_F(PhunNames, ThatWereOnlyLookedAtAreNotChanged) {
    for (const TextView name : {"abc", "abc  ", "a name of more than fifteen letters"}) {
        Edit(kQuakeDialect, name, [this] { PhunNames_Cancel_Cmd_Click(form); });
        EXPECT_EQ(Name(), name);
        EXPECT_TRUE(form.Document.ScriptClean) << name;
        Edit([this] { PhunNames_OK_Cmd_Click(form); });
        EXPECT_EQ(Name(), name);
        EXPECT_TRUE(form.Document.ScriptClean) << name;
    }
}

TEST_F(PhunNames, TakeTheirHighCodesToTheScriptAsTheyAre) {
    Edit(kQuakeDialect, "", [this] {
        names.AutoAdvance_Chk.Value = 1;
        for (const int code : {0xC1, 0x12, 0x90, 0xFF}) {
            Click(code);
        }
    });
    const Text script = ComposeScript(form.Document, kScriptDay);
    EXPECT_EQ(CountLines(script, "name \"\xC1\x12\x90\xFF\""), 1);
}

TEST_F(PhunNames, OfUnrealHaveNoPaddingInTheIni) {
    Open(kUnrealDialect, "[Engine.Pawn]\nPlayerName=ab\n");
    Edit([this] { Click('c'); });
    EXPECT_EQ(CountLines(ComposeScript(form.Document, kScriptDay), "PlayerName=abc"), 1);
}

}  // namespace
}  // namespace lv
