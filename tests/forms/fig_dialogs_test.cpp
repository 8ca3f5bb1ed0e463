// The dialogs over the editor, by mouse and keyboard.

#include <gmock/gmock.h>
#include <wx/checkbox.h>
#include <wx/listbox.h>
#include <wx/textctrl.h>

#include "tests/forms/fig_form_fixture.h"

namespace lv {
namespace {

using testing::HasSubstr;

constexpr const KindOfGame& kQuake = kGames[0];

class FigDialogs : public FigForm_ {
  protected:
    static void PickLastRow(const char* list) {
        Find(list)->SetFocus();
        Settle();
        PressKey(WXK_END);
    }
};

TEST_F(FigDialogs, AMessageIsTypedAndBound) {
    Use(kQuake, "");
    Edit([this] {
        TurnBindings(BindingsPage::Talking);
        DoAndAnswer([] { ClickOn(Find("AddMessage_Cmd")); },
                    [] {
                        EXPECT_EQ(wxGetTopLevelParent(Find("Message_Txt"))->GetLabel(), "You Got Something To Say?");
                        EXPECT_TRUE(HasKeyboard(Find("Message_Txt")));
                        TypeText("incoming");
                        Screenshot("foundry_say_stuff");
                        PressKey(WXK_RETURN);
                    });
        EXPECT_EQ(Shown("Bound_Lbl(801)"), "incoming");
        Drag("Key_Lbl(9)", "Setting_Lbl(801)");
        EXPECT_EQ(Shown("Setting_Lbl(801)"), "{I}");
        ClickOn(Find("Say_Team_Chk(801)"));
        EXPECT_EQ(form->Model().Document.KeyBinding[9], "say_team incoming");
        DoAndAnswer([] { RightClickOn(Find("Bound_Lbl(801)")); },
                    [] {
                        EXPECT_THAT(FindAs<wxTextCtrl>("Question_Txt")->GetValue().utf8_string(),
                                    HasSubstr("Delete this message?"));
                        ClickOn(Find("Button_Cmd(0)"));
                    });
        EXPECT_EQ(Shown("Bound_Lbl(801)"), "");
        EXPECT_EQ(BackOf("Key_Lbl(9)"), kWhite);
    });
}

TEST_F(FigDialogs, AnExtraBindingIsTypedByAClickOnAFreeRowAndEditedByAnother) {
    Use(kQuake, "");
    Edit([this] {
        TurnBindings(BindingsPage::Extended);
        DoAndAnswer([] { ClickOn(Find("Bound_Lbl(501)")); },
                    [] {
                        TypeText("impulse 99");
                        Screenshot("foundry_extra_binding");
                        ClickOn(Find("OK_Cmd"));
                    });
        EXPECT_EQ(Shown("Bound_Lbl(501)"), "impulse 99");
        DoAndAnswer([] { ClickOn(Find("Bound_Lbl(501)")); },
                    [] {
                        EXPECT_EQ(FindAs<wxTextCtrl>("Message_Txt")->GetValue(), "impulse 99");
                        PressKey(WXK_ESCAPE);
                    });
        EXPECT_EQ(Shown("Bound_Lbl(501)"), "impulse 99");
    });
}

TEST_F(FigDialogs, AScriptToRunIsNamed) {
    Use(kQuake, "");
    Edit([this] {
        TurnBindings(BindingsPage::Extended);
        DoAndAnswer([] { ClickOn(Find("AddBoundScript_Cmd")); },
                    [] {
                        TypeText("night.cfg");
                        Screenshot("foundry_choose_script");
                        PressKey(WXK_RETURN);
                    });
        EXPECT_EQ(Shown("Bound_Lbl(701)"), "night.cfg");
        EXPECT_EQ(form->Model().Document.SlotCommand[701], "exec night.cfg");
    });
}

TEST_F(FigDialogs, AnAliasIsMadeOfKnownCommandsAndGetsABox) {
    Use(kQuake, "");
    Edit([this] {
        Turn(EditorPage::Aliases);
        DoAndAnswer([] { ClickOn(Find("AddCustomAlias_Cmd")); },
                    [] {
                        TypeText("hop");
                        Find("AddableCommands_Cbo")->SetFocus();
                        Settle();
                        PressKey(WXK_DOWN);
                        ClickOn(Find("AddCommand_Cmd"));
                        EXPECT_EQ(FindAs<wxTextCtrl>("AliasBody_Txt")->GetValue(), "+attack");
                        if (FindAs<wxCheckBox>("Bindable_Opt")->Get3StateValue() != wxCHK_CHECKED) {
                            ClickOn(Find("Bindable_Opt"));
                        }
                        Screenshot("foundry_alias");
                        ClickOn(Find("OK_Cmd"));
                    });
        EXPECT_EQ(FindAs<wxListBox>("Alias_Lst")->GetCount(), 1U);
        EXPECT_EQ(Shown("Bound_Lbl(601)"), "hop");
        Drag("Key_Lbl(8)", "Setting_Lbl(601)");
        EXPECT_EQ(Shown("Setting_Lbl(601)"), "{H}");
        FindAs<wxListBox>("Alias_Lst")->SetSelection(0);
        form->Model().Alias_Lst.ListIndex = 0;
        DoAndAnswer([] { ClickOn(Find("DeleteAlias_Cmd")); },
                    [] {
                        EXPECT_EQ(wxGetTopLevelParent(Find("Button_Cmd(0)"))->GetLabel(), "Confirm Deletion");
                        ClickOn(Find("Button_Cmd(0)"));
                    });
        EXPECT_EQ(FindAs<wxListBox>("Alias_Lst")->GetCount(), 0U);
        EXPECT_EQ(Shown("Bound_Lbl(601)"), "");
        EXPECT_EQ(BackOf("Key_Lbl(8)"), kWhite);
    });
}

TEST_F(FigDialogs, AColorIsPickedFromItsSwatches) {
    Use(kQuake, "color 0 0\n");
    Edit([this] {
        DoAndAnswer([] { ClickOn(Find("PlayerColor_Lbl(0)")); },
                    [] {
                        Screenshot("foundry_color");
                        ClickOn(Find("Color_Lbl(4)"));
                    });
        EXPECT_EQ(form->Model().Document.PlayerColor_Lbl[0].Tag, 4);
        EXPECT_EQ(BackOf("PlayerColor_Lbl(0)"), 0x000080U);
        DoAndAnswer([] { ClickOn(Find("PlayerColor_Lbl(1)")); }, [] { ClickOn(Find("Cancel_Cmd")); });
        EXPECT_EQ(form->Model().Document.PlayerColor_Lbl[1].Tag, 0);
    });
}

TEST_F(FigDialogs, ANameIsPutTogetherFromTheGamesLetters) {
    Use(kQuake, "name player\n");
    Edit([this] {
        DoAndAnswer([] { ClickOn(Find("ViewCustomLetters_Cmd")); },
                    [this] {
                        EXPECT_EQ(wxGetTopLevelParent(Find("Picture1"))->GetLabel(),
                                  "Setup Foundry - Phun*Names Editor");
                        EXPECT_TRUE(Find("NamePosition_Lbl(7)")->IsShownOnScreen());
                        EXPECT_GE(Find("NamePosition_Lbl(7)")->GetSize().x, 30);
                        EXPECT_GE(Find("NamePosition_Lbl(7)")->GetSize().y, 5);
                        EXPECT_GT(Find("NamePosition_Lbl(7)")->GetScreenPosition().y,
                                  Find("Name_Pic")->GetScreenRect().GetBottom());
                        EXPECT_EQ(BackOf("NamePosition_Lbl(7)"), kCursorGreen);
                        // The cell of 145: column 10 of row 9.
                        wxUIActionSimulator().MouseMove(Find("Picture1")->GetScreenPosition() +
                                                        wxPoint(10 * 16 + 8, 9 * 16 + 8));
                        Settle(50);
                        wxUIActionSimulator().MouseClick();
                        Settle();
                        EXPECT_EQ(form->Model().Document.Name_Txt.Text, "player\x91");
                        Screenshot("foundry_phun_names");
                        ClickOn(Find("OK_Cmd"));
                    });
        EXPECT_EQ(form->Model().Document.Name_Txt.Text, "player\x91");
        EXPECT_FALSE(Find("NamePosition_Lbl(7)")->IsShown());
    });
}

TEST_F(FigDialogs, ATickOnASettingsPageIsAnEdit) {
    Use(kQuake, "");
    Edit([this] {
        ClickOn(Find("NoAim_Chk"));
        EXPECT_EQ(form->Model().Document.NoAim_Chk.Value, 1);
        EXPECT_FALSE(form->Model().Document.ScriptClean);
    });
}

TEST_F(FigDialogs, AModelThatIsPickedBringsItsSkins) {
    system.Disk.AddFile("C:\\QUAKE2\\BASEQ2\\players\\female\\athena.pcx");
    system.Disk.AddFile("C:\\QUAKE2\\BASEQ2\\players\\male\\grunt.pcx");
    run.DefaultGameDirectory = "C:\\QUAKE2";
    run.BaseGameDir = "BASEQ2";
    Use(kGames[3], "");
    Edit([this] {
        Find("Sex_Cbo")->SetFocus();
        Settle();
        PressKey(WXK_DOWN);
        EXPECT_EQ(form->Model().Document.Sex_Cbo.Selected(), "male");
        EXPECT_EQ(form->Model().Document.Skin_Cbo.Items, std::vector<Text>{"grunt"});
        EXPECT_FALSE(form->Model().Document.ScriptClean);
    });
}

TEST_F(FigDialogs, WeaponsOfUnrealMoveIntoTheirOrder) {
    Use(kGames[4], "");
    Edit([this] {
        FindAs<wxNotebook>("Options_Tab")->SetSelection(3);
        Settle();
        Find("WeaponsAvailable_Lst")->SetFocus();
        PickLastRow("WeaponsAvailable_Lst");
        auto* available = FindAs<wxListBox>("WeaponsAvailable_Lst");
        const wxString picked = available->GetStringSelection();
        ASSERT_FALSE(picked.empty());
        ClickOn(Find("SelectWeapon_Cmd(0)"));
        ASSERT_EQ(FindAs<wxListBox>("WeaponsPriority_Lst")->GetCount(), 1U);
        EXPECT_EQ(FindAs<wxListBox>("WeaponsPriority_Lst")->GetString(0), picked);
        EXPECT_EQ(available->FindString(picked), wxNOT_FOUND);
        DoAndAnswer([] { ClickOn(Find("WeaponMove_Cmd(0)")); }, [] { ClickOn(Find("Button_Cmd(0)")); });
    });
}

}  // namespace
}  // namespace lv
