// F1 and the window that it opens.

#include "foundation/forms/handbook.h"

#include <gtest/gtest.h>
#include <wx/dialog.h>
#include <wx/dir.h>
#include <wx/display.h>
#include <wx/file.h>
#include <wx/filename.h>
#include <wx/frame.h>
#include <wx/html/helpfrm.h>
#include <wx/html/helpwnd.h>
#include <wx/html/htmlwin.h>
#include <wx/image.h>
#include <wx/settings.h>
#include <wx/treectrl.h>
#include <wx/uiaction.h>

#include <set>

#include "catalogs/forms/entry_forms.h"
#include "foundation/forms/help_bubble.h"
#include "foundation/question_box.h"
#include "foundation/settings.h"
#include "foundation/window_services.h"
#include "launcher/forms/launcher_user.h"
#include "launcher/launcher.h"
#include "launcher/start/install_params.h"
#include "platform/memory/memory_platform.h"
#include "tests/forms/form_driver.h"
#include "tests/forms/real_handbook.h"
#include "tests/support/test_paths.h"
#include "wizard/forms/install_form.h"
#include "wizard/wizard.h"

namespace lv {
namespace {

class HandbookForm : public ::testing::Test {
  protected:
    HandbookForm() {
        system.Disk.AddFile("C:\\LORVANE\\handbook\\handbook.hhp");
        user.SetRun(run);
        user.AddForms(MakeEntryForm);
        user.AddForms(MakeInstallForm);
        user.OnHelpKey([this] {
            ++Opened;
            OpenHelpFile(run);
        });
    }
    ~HandbookForm() override { CloseBook(); }

    void CloseBook() {
        if (Book() != nullptr) {
            Book()->Close();
        }
        EXPECT_TRUE(SettleUntil([] { return Book() == nullptr; }));
    }

    /// In the window on top.
    void PressF1() {
        const int before = Opened;
        PressKey(WXK_F1);
        EXPECT_TRUE(SettleUntil([] { return Book() != nullptr && Book()->IsShownOnScreen(); }));
        EXPECT_EQ(Opened, before + 1);
    }

    MemoryPlatform system;
    BookFiles files;
    LauncherUser user{files};
    lv::Run run{system.Services, user};
    Launcher launcher{run};
    int Opened = 0;
};

TEST_F(HandbookForm, F1OpensItInTheFirstTwoWindowsOfAFirstStart) {
    InstallParams_Frm card;
    WhenModal([this] {
        PressF1();
        CloseBook();
        BringForward(FindAs<wxTopLevelWindow>("InstallParams_Frm"));
        PressKey(WXK_ESCAPE);
    });
    user.ShowInstallParams(card);
    WhenModal([this] {
        PressF1();
        CloseBook();
        BringForward(FindAs<wxTopLevelWindow>("Install_Frm"));
        PressKey(WXK_ESCAPE);
    });
    EXPECT_FALSE(ShowInstallWizard(launcher));
}

TEST_F(HandbookForm, F1OpensItOverAMessage) {
    WhenModal([this] {
        PressF1();
        CloseBook();
        BringForward(FindAs<wxTopLevelWindow>("QuestionBox_Frm"));
        PressKey(WXK_RETURN);
    });
    AskUser(run, "A message", "Text");
}

TEST_F(HandbookForm, ItCanBeUsedWhileADialogWaits) {
    WhenModal([this] {
        PressF1();
        BringForward(Book());
        wxTreeCtrl* const contents = Book()->GetHelpWindow()->GetTreeCtrl();
        contents->SetFocus();
        wxTreeItemIdValue cookie;
        wxTreeItemId chapter = contents->GetFirstChild(contents->GetRootItem(), cookie);
        if (contents->ItemHasChildren(chapter)) {
            chapter = contents->GetLastChild(chapter);
        }
        contents->EnsureVisible(chapter);
        Settle(100);
        wxRect place;
        EXPECT_TRUE(contents->GetBoundingRect(chapter, place, true));
        wxUIActionSimulator hand;
        hand.MouseMove(contents->ClientToScreen(place.GetTopLeft() + place.GetSize() / 2));
        Settle(50);
        hand.MouseClick();
        EXPECT_TRUE(SettleUntil([] {
            return !Book()->GetHelpWindow()->GetHtmlWindow()->GetOpenedPage().EndsWith("index.html");
        })) << Book()->GetHelpWindow()->GetHtmlWindow()->GetOpenedPage();
        BringForward(FindAs<wxTopLevelWindow>("QuestionBox_Frm"));
        PressKey(WXK_RETURN);
    });
    AskUser(run, "A message", "Text");
}

TEST_F(HandbookForm, OpensLargeWithItsContentsUnfolded) {
    OpenHelpFile(run);
    ASSERT_TRUE(SettleUntil([] { return Book() != nullptr && Book()->IsShownOnScreen(); }));
    Settle(300);
    Screenshot("handbook");
    const wxRect screen = wxDisplay(0U).GetClientArea();
    EXPECT_TRUE(screen.Contains(Book()->GetScreenRect()));
    EXPECT_GE(Book()->GetSize().x, std::min(960, screen.width) - 20);
    EXPECT_GE(Book()->GetSize().y, screen.height * 8 / 10);
    const wxTreeCtrl* const contents = Book()->GetHelpWindow()->GetTreeCtrl();
    wxTreeItemIdValue cookie;
    int folded = 0;
    int chapters = 0;
    for (wxTreeItemId at = contents->GetFirstChild(contents->GetRootItem(), cookie); at.IsOk();
         at = contents->GetNextSibling(at)) {
        ++chapters;
        folded += contents->ItemHasChildren(at) && !contents->IsExpanded(at) ? 1 : 0;
    }
    EXPECT_GE(chapters, 1);
    EXPECT_EQ(folded, 0);
}

TEST_F(HandbookForm, ComesUpWhereItWasLeft) {
    OpenHelpFile(run);
    ASSERT_TRUE(SettleUntil([] { return Book() != nullptr && Book()->IsActive(); }));
    Book()->SetSize(40, 60, 620, 400);
    Settle(400);
    const wxRect left = Book()->GetRect();
    EXPECT_NEAR(left.width, 620, 20);
    CloseBook();
    OpenHelpFile(run);
    ASSERT_TRUE(SettleUntil([] { return Book() != nullptr && Book()->IsActive(); }));
    EXPECT_TRUE(SettleUntil([left] {
        const wxRect now = Book()->GetRect();
        return std::abs(now.x - left.x) <= 2 && std::abs(now.y - left.y) <= 2 &&
               std::abs(now.width - left.width) <= 2 && std::abs(now.height - left.height) <= 2;
    })) << Book()->GetRect().x
        << ", " << Book()->GetRect().y << ", " << Book()->GetRect().width << " x " << Book()->GetRect().height;
}

TEST_F(HandbookForm, ItsPagesHaveTheColoursOfTheTheme) {
    OpenHelpFile(run);
    ASSERT_TRUE(SettleUntil([] { return Book() != nullptr && Book()->IsShownOnScreen(); }));
    const wxHtmlWindow* const page = Book()->GetHelpWindow()->GetHtmlWindow();
    EXPECT_EQ(page->GetHTMLBackgroundColour(), wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOW));
    EXPECT_EQ(page->GetParser()->GetActualColor(), wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOWTEXT));
}

TEST(HandbookPages, ShowPicturesThatAreThereAndNotTooLarge) {
    const wxString folder = wxString::FromUTF8(TestSourceDir()) + "/docs/handbook/";
    wxArrayString pages;
    wxArrayString pictures;
    wxDir::GetAllFiles(folder, &pages, "*.html", wxDIR_FILES);
    wxDir::GetAllFiles(folder, &pictures, "*.png", wxDIR_FILES);
    std::set<wxString> shown;
    for (const wxString& page : pages) {
        wxString text;
        ASSERT_TRUE(wxFile(page).ReadAll(&text));
        const wxString mark = "<img src=\"";
        for (std::size_t at = text.find(mark); at != wxString::npos; at = text.find(mark, at + 1)) {
            const std::size_t begin = at + mark.size();
            shown.insert(text.substr(begin, text.find('"', begin) - begin));
        }
    }
    std::set<wxString> there;
    wxULongLong bytes = 0;
    for (const wxString& picture : pictures) {
        there.insert(wxFileName(picture).GetFullName());
        bytes += wxFileName::GetSize(picture);
        EXPECT_LE(wxImage(picture).GetWidth(), 700) << picture;  // beside the contents on a screen of 1024
    }
    EXPECT_EQ(shown, there);
    EXPECT_GE(there.size(), 20U);
    EXPECT_LE(bytes.ToULong(), 600U * 1024);
}

// What Windows makes of F1 beside the key itself.
TEST_F(HandbookForm, TheSystemsOwnEventOfF1TellsNothing) {
    WhenModal([] {
        wxWindow* const button = Find("Button_Cmd(0)");
        button->SetHelpText("What the button is for.");
        wxHelpEvent event(wxEVT_HELP, button->GetId(), button->GetScreenPosition());
        event.SetEventObject(button);
        EXPECT_TRUE(button->ProcessWindowEvent(event));
        Settle();
        EXPECT_EQ(wxWindow::FindWindowByName(kHelpBubbleName), nullptr);
        PressKey(WXK_RETURN);
    });
    AskUser(run, "A message", "Text");
}

}  // namespace
}  // namespace lv
