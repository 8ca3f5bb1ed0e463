// foundry/forms/fig_form.h
//
// Shows Fig_Frm: the tabs, the keyboard under them, and the row above that finds.

#pragma once

#include <wx/dialog.h>
#include <wx/notebook.h>
#include <wx/scrolwin.h>
#include <wx/timer.h>

#include <set>
#include <vector>

#include "foundation/forms/kept_place.h"
#include "foundation/forms/wx_user.h"
#include "foundry/forms/fig_parts.h"
#include "foundry/forms/key_hand.h"
#include "foundry/forms/key_panels.h"

namespace lv {

class FigForm : public wxDialog {
  public:
    FigForm(wxWindow* owner, Fig_Frm& model, WxUser& user);
    ~FigForm() override;

    /// Made before the script is read, it is brought in line and placed by this.
    int ShowModal() override;
    void ShowState();

    [[nodiscard]] Fig_Frm& Model() const { return model_; }

    /// Makes all pages that nobody has looked at yet.
    void MakeAllPages();

  private:
    wxSizer* MakeFindRow();
    wxNotebook* MakeMainTab();
    wxNotebook* MakeTab(wxWindow* parent);
    wxPanel* AddPage(wxWindow* parent);
    [[nodiscard]] wxSize RoomToBegin() const;
    wxWindow* MakePlayerPage(wxNotebook* tabs);
    wxWindow* MakeBindingsTabs(wxNotebook* tabs);
    wxWindow* AddLate(wxWindow* parent, std::function<void(wxPanel*)> make);
    void BindEvents();
    void PressKey(wxKeyEvent& event);
    bool PressOnLabel(wxKeyEvent& event);
    bool PressShortcut(const wxKeyEvent& event);
    bool PressAccessKey(const wxKeyEvent& event);
    void MakeShownPages();
    bool MakeOnePage();
    bool WarmUpOne();
    void PrepareOnePage();
    void LeadToFound();
    void SpeakAnew();
    bool SpeakSome();
    void FitToScreen();
    wxSize WantedSize();
    int PagesWidth();
    int TabsHeight(int rows);
    void LayOutPages();
    void PlaceOnScreen();
    void KeepSize();
    void Finished();

    Fig_Frm& model_;
    WxUser& user_;
    FigParts parts_;
    KeyHand hand_;
    KeptPlace place_;
    wxScrolledWindow* content_ = nullptr;
    wxPanel* inside_ = nullptr;  // of what scrolls
    wxNotebook* tabs_ = nullptr;
    KeyPanels* keys_ = nullptr;
    std::vector<wxWindow*> pages_;  // those that lay out controls that come and go
    std::set<wxWindow*> stale_;     // those of them that are to be laid out
    std::vector<LatePage> late_;
    std::vector<wxWindow*> cold_;       // what has not been seen, and can be warmed up
    wxWindow* hint_ = nullptr;          // below all that scrolls, in sight whatever row waits for a key
    std::vector<CellLabel*> unspoken_;  // whose names may be old
    wxTimer saveTimer_;                 // Save_Tmr
    bool showing_ = false;
    bool painted_ = false;  // has been seen
};

/// The form of Fig_Frm and of its dialogs, for a user interface's makers.
WxUser::FormMaker MakeFoundryForms(WxUser& user);

}  // namespace lv
