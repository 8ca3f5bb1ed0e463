#include "foundation/forms/handbook.h"

#include <wx/dialog.h>
#include <wx/fileconf.h>
#include <wx/html/helpctrl.h>
#include <wx/html/helpfrm.h>
#include <wx/html/helpwnd.h>
#include <wx/html/winpars.h>
#include <wx/settings.h>
#include <wx/sstream.h>
#include <wx/treectrl.h>

#include "foundation/forms/help_key.h"
#include "foundation/forms/pictures.h"
#include "foundation/forms/readable_ink.h"
#include "foundation/forms/screen_fit.h"
#include "foundation/window_services.h"
#include "platform/toolkit/beside_dialogs.h"

namespace lv {

namespace {

constexpr int kContentsWidth = 240;  // at 100 %

/// Gives each page the colours of the user's theme.
class ThemedBody : public wxHtmlWinTagHandler {
  public:
    wxString GetSupportedTags() override { return "BODY"; }

    bool HandleTag(const wxHtmlTag&) override {
        const wxColour text = wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOWTEXT);
        const wxColour paper = wxSystemSettings::GetColour(wxSYS_COLOUR_WINDOW);
        m_WParser->SetActualColor(text);
        m_WParser->GetContainer()->InsertCell(new wxHtmlColourCell(text));
        m_WParser->SetLinkColor(ReadableInk(wxSystemSettings::GetColour(wxSYS_COLOUR_HOTLIGHT), paper));
        m_WParser->GetContainer()->InsertCell(new wxHtmlColourCell(paper, wxHTML_CLR_BACKGROUND));
        if (wxHtmlWindowInterface* window = m_WParser->GetWindowInterface()) {
            window->SetHTMLBackgroundColour(paper);
        }
        return false;  // what the page holds is read as ever
    }
};

/// GTK complains of lists without room for their scroll bars, though they are to get it the next moment.
void GiveRoom(const wxWindow& pages) {
    for (wxWindow* page : pages.GetChildren()) {
        page->SetSize(page->FromDIP(wxSize(kContentsWidth, kContentsWidth)));
        page->Layout();
    }
}

/// The last that came up; null without one.
const wxDialog* DialogThatIsUp() {
    const wxDialog* up = nullptr;
    for (const wxWindow* window : wxTopLevelWindows) {
        const auto* dialog = dynamic_cast<const wxDialog*>(window);
        up = dialog != nullptr && dialog->IsModal() && dialog->IsShown() ? dialog : up;
    }
    return up;
}

}  // namespace

class Handbook::Controller : public wxHtmlHelpController {
  public:
    Controller() : wxHtmlHelpController(wxHF_DEFAULT_STYLE | wxHF_OPEN_FILES) {}

    // What the toolkit does for the same, but for its own way beside a dialog: that keeps the dialog waiting until the
    // handbook is closed.
    void ShowContents() {
        CreateHelpWindow();
        m_helpWindow->DisplayContents();
    }

    HelpPlace Place;
    wxFileName Book;  // that is shown; none at first

  protected:
    // The window has its size, its place and its colours before its first page.
    wxHtmlHelpFrame* CreateHelpFrame(wxHtmlHelpData* data) override {
        wxStringInputStream empty("");
        wxFileConfig customs(empty);
        customs.Write("hcW", ToPixels(Place.Placement.Width));
        customs.Write("hcH", ToPixels(Place.Placement.Height));
        customs.Write("hcSashPos", wxWindow::FromDIP(kContentsWidth, nullptr));
        m_Config = &customs;
        wxHtmlHelpFrame* const frame = wxHtmlHelpController::CreateHelpFrame(data);
        frame->SetExtraStyle(frame->GetExtraStyle() |
                             wxTOPLEVEL_EX_DIALOG);  // else GTK closes no frame beside a dialog
        frame->Bind(wxEVT_CHAR_HOOK, [frame](wxKeyEvent& event) {
            if (event.GetKeyCode() == WXK_ESCAPE) {
                frame->Close();
            } else {
                event.Skip();
            }
        });
        m_Config = nullptr;
        frame->SetName("Handbook_Frm");
        frame->SetIcons(ProgramIcon());
        UsesHelpKey(frame);
        frame->GetHelpWindow()->GetHtmlWindow()->GetParser()->AddTagHandler(new ThemedBody);
        GiveRoom(*frame->GetHelpWindow()->GetTreeCtrl()->GetGrandParent());
        frame->Move(PlaceOnScreen(*frame, Place.Placement));
        StayOnScreen(*frame);
        if (Place.Placement.WindowState == kWindowMaximised) {
            frame->Maximize();
        }
        KeepPlaceOf(frame);
        return frame;
    }

  private:
    // Kept when the user turns to another window: the program may end before this one is closed.
    void KeepPlaceOf(wxHtmlHelpFrame* frame) {
        told_ = std::make_shared<std::function<void(const WindowPlacement&)>>(Place.Keep);
        const auto keep = [frame, told = std::weak_ptr(told_)] {
            const auto tell = told.lock();
            if (!tell) {
                return;  // the program has ended
            }
            WindowPlacement place;
            place.WindowState = frame->IsIconized()    ? kWindowMinimised
                                : frame->IsMaximized() ? kWindowMaximised
                                                       : kWindowNormal;
            place.Left = ToTwips(frame->GetPosition().x);
            place.Top = ToTwips(frame->GetPosition().y);
            place.Width = ToTwips(frame->GetSize().x);
            place.Height = ToTwips(frame->GetSize().y);
            (*tell)(place);
        };
        frame->Bind(wxEVT_ACTIVATE, [keep](wxActivateEvent& event) {
            event.Skip();
            if (!event.GetActive()) {
                keep();
            }
        });
        frame->Bind(wxEVT_CLOSE_WINDOW, [keep](wxCloseEvent& event) {
            event.Skip();
            keep();
        });
    }

    std::shared_ptr<std::function<void(const WindowPlacement&)>> told_;
};

Handbook::Handbook() : controller_(std::make_unique<Controller>()) {}

Handbook::~Handbook() = default;

Error Handbook::Open(const wxFileName& book, const HelpPlace& place) {
    Controller& help = *controller_;
    if (!help.Book.IsOk()) {
        if (!help.AddBook(book)) {
            return MakeError(error::kFileNotFound);
        }
        help.Book = book;
    }
    help.Place = place;
    const bool isNew = help.GetFrame() == nullptr;
    help.ShowContents();
    wxHtmlHelpFrame* const frame = help.GetFrame();
    if (frame == nullptr) {
        return MakeError(error::kFileNotFound);
    }
    if (isNew) {
        wxTreeCtrl* const contents = frame->GetHelpWindow()->GetTreeCtrl();
        contents->ExpandAll();
        wxTreeItemIdValue unused;
        contents->SetFocus();
        contents->ScrollTo(contents->GetFirstChild(contents->GetRootItem(), unused));
    }
    const wxDialog* const dialog = DialogThatIsUp();
    LetWorkBesideDialogs(frame->GetHandle(), dialog == nullptr ? nullptr : dialog->GetHandle());
    frame->Raise();
    return {};
}

}  // namespace lv
