#include <gtest/gtest.h>
#include <wx/button.h>
#include <wx/listbox.h>
#include <wx/textctrl.h>

#include "foundation/topmost.h"
#include "launcher/drop/offer_dropped.h"
#include "launcher/forms/drop_target.h"
#include "launcher/forms/join_server_form.h"
#include "tests/forms/form_driver.h"
#include "tests/forms/lv_form_fixture.h"

namespace lv {
namespace {

class DropForm : public LvForm_ {
  protected:
    DropForm() { user.AddForms(MakeJoinServerForm); }

    DropTarget& Target() { return *dynamic_cast<DropTarget*>(form->GetDropTarget()); }

    void Offer(const std::string& word) {
        ASSERT_TRUE(Target().OnDropText(word));
        OfferDropped(launcher);
    }
};

TEST_F(DropForm, ADroppedFileWaitsUnderItsPathOnTheDrives) {
    wxArrayString files;
    files.Add(wxString::FromUTF8(system.Disk.ToHost("C:\\QUAKE\\CTF\\pak0.pak")));
    files.Add("/elsewhere");
    EXPECT_TRUE(Target().OnDropFiles(files));
    EXPECT_TRUE(SameText(launcher.Dropped.Word, "C:\\quake\\ctf\\pak0.pak")) << launcher.Dropped.Word;
    EXPECT_EQ(launcher.Dropped.Count, 2u);
    EXPECT_FALSE(Target().OnDropFiles(files)) << "one waits";
}

TEST_F(DropForm, AFileThatNoDriveHasWaitsWithTheReason) {
    wxArrayString files;
    files.Add("/elsewhere");
    EXPECT_TRUE(Target().OnDropFiles(files));
    EXPECT_EQ(launcher.Dropped.Word, "");
    EXPECT_EQ(launcher.Dropped.Fault.Number, error::kPathNotFound);
}

TEST_F(DropForm, OfTextTheFirstLineCounts) {
    EXPECT_FALSE(Target().OnDropText(""));
    EXPECT_FALSE(Target().OnDropText("\nqw://second.example"));
    EXPECT_TRUE(Target().OnDropText(" qw://host.example:27500 \nThe title of a page"));
    EXPECT_EQ(launcher.Dropped.Word, "qw://host.example:27500");
}

TEST_F(DropForm, ALinkToAFileIsThatFile) {
    EXPECT_TRUE(Target().OnDropText("file://" + system.Disk.ToHost("C:\\QUAKE\\ID1\\my.cfg")));
    EXPECT_TRUE(launcher.Dropped.IsThere());
    EXPECT_EQ(launcher.Dropped.Word.find("file:"), Text::npos) << launcher.Dropped.Word;
}

TEST_F(DropForm, AnEndlessTextIsCut) {
    EXPECT_TRUE(Target().OnDropText(wxString('x', 1'000'000)));
    EXPECT_LE(launcher.Dropped.Word.size(), 4097u);
}

TEST_F(DropForm, UnderADialogNothingCanBeDropped) {
    const TopmostSuspension dialog(run);
    EXPECT_EQ(Target().OnDragOver(1, 1, wxDragCopy), wxDragNone);
    EXPECT_FALSE(Target().OnDrop(1, 1));
    EXPECT_FALSE(Target().OnDropText("qw://host"));
    EXPECT_FALSE(launcher.Dropped.IsThere());
}

TEST_F(DropForm, ADropCopiesAndNeverMoves) {
    EXPECT_EQ(Target().OnDragOver(1, 1, wxDragMove), wxDragCopy);
    EXPECT_TRUE(Target().OnDrop(1, 1));
}

TEST_F(DropForm, ADroppedMapIsPickedAfterTheQuestion) {
    system.Disk.AddFile("C:\\QUAKE\\ID1\\maps\\start.bsp", std::string("\x1D\0\0\0", 4));
    PickExe(1);
    wxArrayString files;
    files.Add(wxString::FromUTF8(system.Disk.ToHost("C:\\QUAKE\\ID1\\maps\\start.bsp")));
    ASSERT_TRUE(Target().OnDropFiles(files));
    WhenModal([] {
        Screenshot("dropped_map");
        ClickOn(Find("Button_Cmd(0)"));
    });
    OfferDropped(launcher);
    EXPECT_EQ(launcher.Window.Exe_Cbo.ListIndex, 0);
    EXPECT_EQ(launcher.Window.Map_Cbo.Selected(), "START");
}

TEST_F(DropForm, JoinServerStandsOnCancelAndEscapeLeavesIt) {
    WhenModal([] {
        EXPECT_NE(wxWindow::FindWindowByName("JoinServer_Frm"), nullptr);
        EXPECT_EQ(FindAs<wxTextCtrl>("JoinAddress_Txt")->GetValue(), "quake://host.example:26000");
        EXPECT_FALSE(FindAs<wxTextCtrl>("JoinAddress_Txt")->IsEditable());
        EXPECT_EQ(FindAs<wxListBox>("JoinPrograms_Lst")->GetString(0), "Quake (C:\\QUAKE\\GLQUAKE.EXE)");
        EXPECT_TRUE(HasKeyboard(Find("Cancel_Cmd")));
        Screenshot("join_server");
        PressKey(WXK_RETURN);
    });
    Offer("quake://host.example:26000");
    EXPECT_TRUE(system.Programs.Started.empty());
    WhenModal([] { PressKey(WXK_ESCAPE); });
    Offer("quake://host.example:26000");
    EXPECT_TRUE(system.Programs.Started.empty());
    EXPECT_EQ(GetSetting(run, run.AppName, kOptions, "NetServers"), "A server;10.0.0.1;26000;0;");
}

TEST_F(DropForm, JoinStartsTheProgram) {
    WhenModal([] { ClickOn(Find("Join_Cmd")); });
    Offer("quake://host.example:26000");
    EXPECT_TRUE(SettleUntil([this] { return !system.Programs.Started.empty(); }));
    EXPECT_EQ(launcher.Window.Box(Option::Server_Chk).Value, 1);
}

TEST_F(DropForm, WithoutAProgramJoinIsGrey) {
    WhenModal([] {
        EXPECT_FALSE(Find("Join_Cmd")->IsEnabled());
        EXPECT_TRUE(Find("JoinAdd_Cmd")->IsEnabled());
        Screenshot("join_server_none");
        PressKey(WXK_ESCAPE);
    });
    Offer("qw://host.example:27500");
}

}  // namespace
}  // namespace lv
