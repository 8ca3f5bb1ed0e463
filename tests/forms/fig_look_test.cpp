#include <gmock/gmock.h>
#include <wx/listbox.h>
#include <wx/listctrl.h>
#include <wx/textctrl.h>

#include <functional>
#include <numeric>

#include "foundry/versions/script_versions.h"
#include "tests/forms/fig_form_fixture.h"

namespace lv {

namespace {

using ::testing::HasSubstr;
using ::testing::Not;

class FigLooks : public FigForm_ {
  protected:
    Text File() { return system.Disk.Bytes(path); }

    /// Saves by the button of the page, and answers the window that comes up.
    void SaveAndAnswer(const std::function<void()>& answer) {
        Turn(EditorPage::SaveAndExit);
        const AnswersBoxes saved;
        DoAndAnswer([] { ClickOn(Find("View_Cmd(6)")); }, answer);
        Settle();
    }
    /// `answer` is the button that is pressed there.
    void SaveAndPress(const char* answer, const std::string& picture) {
        SaveAndAnswer([&] {
            ASSERT_NE(Find("Changes_Frm"), nullptr);
            if (!picture.empty()) {
                Screenshot(picture);
            }
            ClickOn(Find(answer));
        });
    }
};

int HeightOf(const std::vector<std::string>& lists) {
    return std::accumulate(lists.begin(), lists.end(), 0,
                           [](int sum, const std::string& each) { return sum + Find(each)->GetSize().y; });
}

/// Makes the window of the list larger and looks whether its lists take all that it has grown.
void ExpectToGrow(const std::vector<std::string>& lists) {
    wxWindow* const window = wxGetTopLevelParent(Find(lists.front()));
    const int before = HeightOf(lists);
    constexpr int kMore = 90;
    window->SetSize(window->GetSize() + wxSize(0, kMore));
    SettleUntil([&] { return HeightOf(lists) == before + kMore; }, 1000);
    EXPECT_EQ(HeightOf(lists), before + kMore) << lists.front();
    for (const std::string& each : lists) {
        EXPECT_LE(Find(each)->GetScreenRect().GetBottom(), window->GetScreenRect().GetBottom()) << each;
    }
}

constexpr TextView kLosing = "bind ESCAPE togglemenu\nbind x +attack\nalias empty \"\"\nbind F13 \"say hello\"\n";

}  // namespace

TEST_F(FigLooks, ASaveThatLosesSomethingShowsItAndCanBeCancelled) {
    Use(kGames[0], kLosing);
    const Text before = File();
    Edit([&] {
        SaveAndPress("Close_Cmd", "foundry_changes");
        EXPECT_EQ(File(), before);
    });
}

TEST_F(FigLooks, EnterKeepsWhatWouldBeLost) {
    Use(kGames[0], kLosing);
    Edit([&] {
        SaveAndAnswer([] {
            EXPECT_TRUE(HasKeyboard(Find("Keep_Cmd")));
            PressKey(WXK_RETURN);
        });
        EXPECT_THAT(File(), HasSubstr("bind ESCAPE togglemenu"));
        EXPECT_THAT(File(), HasSubstr("+attack"));
    });
}

TEST_F(FigLooks, EnterKeepsItFromTheListTheTextAndTheLinesToo) {
    for (const char* const part : {"Losses_Lst", "Loss_Txt", "Difference_Lst"}) {
        Use(kGames[0], kLosing);
        Edit([&] {
            SaveAndAnswer([&] {
                Find(part)->SetFocus();
                Settle();
                PressKey(WXK_RETURN);
            });
            EXPECT_THAT(File(), HasSubstr("bind ESCAPE togglemenu")) << part;
        });
    }
}

TEST_F(FigLooks, SaveAnywayLosesIt) {
    Use(kGames[0], kLosing);
    Edit([&] {
        SaveAndPress("Save_Cmd", "");
        EXPECT_THAT(File(), Not(HasSubstr("togglemenu")));
    });
}

TEST_F(FigLooks, ARowOfTheListLeadsToItsLine) {
    Use(kGames[0], kLosing);
    Edit([&] {
        Turn(EditorPage::SaveAndExit);
        DoAndAnswer([] { ClickOn(Find("ShowChanges_Cmd")); },
                    [&] {
                        auto* losses = FindAs<wxListBox>("Losses_Lst");
                        auto* lines = FindAs<wxListCtrl>("Difference_Lst");
                        ASSERT_GT(losses->GetCount(), 1u);
                        EXPECT_THAT(FromWx(losses->GetString(0)), HasSubstr("ESCAPE"));
                        EXPECT_THAT(FromWx(losses->GetString(1)), HasSubstr("empty"));
                        losses->SetFocus();
                        PressKey(WXK_DOWN);
                        Settle();
                        const long row = lines->GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED);
                        ASSERT_GE(row, 0);
                        EXPECT_THAT(FromWx(lines->GetItemText(row, 1)), HasSubstr("empty"));
                        PressKey(WXK_ESCAPE);
                    });
        EXPECT_TRUE(form->Model().Document.ScriptClean);
    });
}

TEST_F(FigLooks, TheSelectedRowStandsWholeBelowTheList) {
    Use(kGames[0],
        "bind x slot2\nbind ESCAPE \"say this one is so long that no window of any width has it in one "
        "line, and so are its words, and what follows is why nobody can keep it in any place\"\n");
    Edit([&] {
        Turn(EditorPage::SaveAndExit);
        DoAndAnswer([] { ClickOn(Find("ShowChanges_Cmd")); },
                    [&] {
                        auto* losses = FindAs<wxListBox>("Losses_Lst");
                        auto* row = FindAs<wxTextCtrl>("Loss_Txt");
                        ASSERT_NE(row, nullptr);
                        EXPECT_FALSE(row->IsEditable());
                        for (int i = 0; i < 2; ++i) {
                            losses->SetFocus();
                            PressKey(i == 0 ? WXK_HOME : WXK_DOWN);
                            Settle();
                            EXPECT_EQ(row->GetValue(),
                                      losses->GetString(static_cast<unsigned>(losses->GetSelection())));
                            EXPECT_GE(row->GetSize().x, losses->GetSize().x - 2);
                        }
                        const wxString longest = losses->GetString(1);
                        EXPECT_THAT(FromWx(longest), HasSubstr("Setup Foundry has no key ESCAPE."));
                        EXPECT_GT(row->GetTextExtent(longest).x, row->GetSize().x) << "goes over several lines";
                        wxPoint end = row->PositionToCoords(static_cast<long>(longest.size()));
                        EXPECT_GT(end.y, 0);
                        EXPECT_LT(end.y + row->GetCharHeight(), row->GetClientSize().y + 2) << "all of it is in sight";
                        EXPECT_LT(end.x, row->GetClientSize().x);
                        Screenshot("foundry_changes_row");
                        PressKey(WXK_ESCAPE);
                    });
    });
}

TEST_F(FigLooks, ListsGrowWithTheirWindow) {
    Use(kGames[0], kLosing);
    ASSERT_TRUE(KeepVersion(run, path).Ok());
    run.DefaultGameDirectory = "C:\\QUAKE";
    run.BaseGameDir = "ID1";
    run.CurrentGameDir = "ID1";
    Edit([&] {
        Turn(EditorPage::SaveAndExit);
        const std::pair<const char*, std::vector<std::string>> windows[] = {
            {"ShowChanges_Cmd", {"Losses_Lst", "Difference_Lst"}},
            {"FileOrder_Cmd", {"Files_Lst", "Set_Lst", "Setters_Lst"}},
            {"AliasGraph_Cmd", {"Tree_Lst"}},
            {"ScriptCheck_Cmd", {"Findings_Lst"}},
            {"Versions_Cmd", {"Versions_Lst", "Difference_Lst"}},
        };
        for (const auto& [button, lists] : windows) {
            DoAndAnswer([&] { ClickOn(Find(button)); },
                        [&] {
                            ExpectToGrow(lists);
                            PressKey(WXK_ESCAPE);
                        });
        }
    });
}

TEST_F(FigLooks, TheLossesKeepAThirdOfAHighWindow) {
    Use(kGames[0], kLosing);
    Edit([&] {
        Turn(EditorPage::SaveAndExit);
        DoAndAnswer([] { ClickOn(Find("ShowChanges_Cmd")); },
                    [&] {
                        wxWindow* const losses = Find("Losses_Lst");
                        const wxWindow* const lines = Find("Difference_Lst");
                        const int before = losses->GetSize().y;
                        wxWindow* const window = wxGetTopLevelParent(losses);
                        window->SetSize(window->GetSize() + wxSize(0, 90));
                        SettleUntil([&] { return losses->GetSize().y > before; }, 1000);
                        EXPECT_GE(losses->GetSize().y, before + 90 / 3 - 2);
                        EXPECT_GE(losses->GetSize().y * 2 + 20, lines->GetSize().y);
                        PressKey(WXK_ESCAPE);
                    });
    });
}

TEST_F(FigLooks, AnOlderVersionIsBroughtBackAndUndone) {
    Use(kGames[0], "bind x +attack\n");
    const Text first = File();
    Edit([&] {
        TurnBindings(BindingsPage::Standard);
        Drag("Key_Lbl(5)", "Setting_Lbl(112)");
        Turn(EditorPage::SaveAndExit);
        {
            const AnswersBoxes saved;
            ClickOn(Find("View_Cmd(6)"));
            Settle();
        }
        const Text second = File();
        EXPECT_NE(second, first);
        DoAndAnswer([] { ClickOn(Find("Versions_Cmd")); },
                    [&] {
                        Screenshot("foundry_versions");
                        EXPECT_EQ(FindAs<wxListBox>("Versions_Lst")->GetCount(), 1u);
                        ClickOn(Find("BringBack_Cmd"));
                    });
        EXPECT_EQ(File(), first);
        EXPECT_TRUE(form->Model().Document.ScriptClean);
        ASSERT_EQ(VersionsOf(run, path).size(), 2u);
        EXPECT_EQ(VersionsOf(run, path).front().Text, second);
    });
}

TEST_F(FigLooks, WhichFileWinsIsFoundByTypingAndShownAtItsLine) {
    system.Disk.AddFile("C:\\QUAKE\\ID1\\autoexec.cfg", "echo a\nbind x +jump\n");
    Use(kGames[0], "bind x +attack\n");
    run.DefaultGameDirectory = "C:\\QUAKE";
    run.BaseGameDir = "ID1";
    run.CurrentGameDir = "ID1";
    Edit([&] {
        Turn(EditorPage::SaveAndExit);
        Screenshot("foundry_save_page");
        DoAndAnswer([] { ClickOn(Find("FileOrder_Cmd")); },
                    [&] {
                        EXPECT_TRUE(HasKeyboard(Find("Wanted_Txt")));
                        TypeText("x");
                        auto* setters = FindAs<wxListBox>("Setters_Lst");
                        ASSERT_EQ(setters->GetCount(), 2u);
                        EXPECT_EQ(FromWx(setters->GetString(0)), "autoexec.cfg, line 2   bind x +jump");
                        Screenshot("foundry_file_order");
                        setters->SetFocus();
                        PressKey(WXK_UP);
                        DoAndAnswer([] { ClickOn(Find("Show_Cmd")); },
                                    [] {
                                        Screenshot("foundry_script_text");
                                        EXPECT_EQ(FindAs<wxListBox>("Lines_Lst")->GetSelection(), 1);
                                        PressKey(WXK_ESCAPE);
                                    });
                        PressKey(WXK_ESCAPE);
                    });
    });
}

TEST_F(FigLooks, TheAliasGraphIsWalkedByTheArrowKeys) {
    Use(kGames[0], "alias shoot \"aim\"\nalias aim \"shoot\"\nbind x shoot\n");
    Edit([&] {
        Turn(EditorPage::SaveAndExit);
        DoAndAnswer([] { ClickOn(Find("AliasGraph_Cmd")); },
                    [&] {
                        auto* tree = FindAs<wxListBox>("Tree_Lst");
                        EXPECT_TRUE(HasKeyboard(tree));
                        ASSERT_EQ(tree->GetCount(), 3u);
                        PressKey(WXK_RIGHT);
                        PressKey(WXK_DOWN);
                        PressKey(WXK_RIGHT);
                        Screenshot("foundry_alias_graph");
                        EXPECT_EQ(tree->GetCount(), 5u);
                        PressKey(WXK_LEFT);
                        EXPECT_EQ(tree->GetCount(), 4u);
                        PressKey(WXK_ESCAPE);
                    });
    });
}

TEST_F(FigLooks, TheCheckListsWhatItFinds) {
    Use(kGames[0], "bind x +attack\nalias a \"a\"\n");
    run.DefaultGameDirectory = "C:\\QUAKE";
    run.BaseGameDir = "ID1";
    run.CurrentGameDir = "ID1";
    Edit([&] {
        Turn(EditorPage::SaveAndExit);
        DoAndAnswer([] { ClickOn(Find("ScriptCheck_Cmd")); },
                    [&] {
                        Screenshot("foundry_script_check");
                        auto* findings = FindAs<wxListBox>("Findings_Lst");
                        ASSERT_GE(findings->GetCount(), 1u);
                        EXPECT_THAT(FromWx(findings->GetString(0)), HasSubstr("my.cfg:3: "));
                        PressKey(WXK_ESCAPE);
                    });
    });
}

}  // namespace lv
