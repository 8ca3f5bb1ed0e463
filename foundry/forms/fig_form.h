// foundry/forms/fig_form.h
//
// Shows Fig_Frm: the tabs, the keyboard under them, and the row above that finds.

#pragma once

#include <wx/dialog.h>
#include <wx/notebook.h>
#include <wx/scrolwin.h>
#include <wx/timer.h>

#include <functional>
#include <memory>
#include <vector>

#include "foundation/forms/kept_place.h"
#include "foundation/forms/wx_user.h"
#include "foundry/forms/editor_keys.h"
#include "foundry/forms/fig_parts.h"
#include "foundry/forms/key_hand.h"
#include "foundry/forms/key_panels.h"
#include "foundry/forms/late_pages.h"

namespace lv {

class FigForm : public wxDialog {
  public:
    FigForm(wxWindow* owner, Fig_Frm& model, WxUser& user);
    ~FigForm() override;

    /// Made before the script is read, it is brought in line and placed by this.
    int ShowModal() override;
    void ShowState();

    [[nodiscard]] Fig_Frm& Model() const { return model_; }

    /// What idle moments are for: fills one list, or makes one page that nobody has looked at yet. False if there is
    /// none left.
    bool MakeSome();

  private:
    wxSizer* MakeFindRow();
    void BindEvents();
    /// What `make` says; nothing is shown anew in between.
    bool Make(const std::function<bool()>& make);
    void LeadToFound();
    void SpeakAnew();
    bool SpeakSome();
    void Fit() override;
    void PlaceOnScreen();
    void KeepSize();
    void Finished();

    Fig_Frm& model_;
    WxUser& user_;
    FigParts parts_;
    KeyHand hand_;
    LatePages pages_;
    KeptPlace place_;
    wxScrolledWindow* content_ = nullptr;
    wxPanel* inside_ = nullptr;  // of what scrolls
    wxNotebook* tabs_ = nullptr;
    KeyPanels* keys_ = nullptr;
    std::unique_ptr<EditorKeys> press_;
    wxWindow* hint_ = nullptr;          // below all that scrolls, in sight whatever row waits for a key
    std::vector<CellLabel*> unspoken_;  // whose names may be old
    wxTimer saveTimer_;                 // Save_Tmr
    bool showing_ = false;
    bool painted_ = false;  // has been seen
};

}  // namespace lv
