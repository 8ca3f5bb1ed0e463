// launcher/forms/lv_form.h
//
// Shows LV_Frm, the main window.

#pragma once

#include <wx/frame.h>
#include <wx/scrolwin.h>
#include <wx/sizer.h>

#include "foundation/forms/binder.h"
#include "foundation/forms/wx_user.h"
#include "launcher/launcher.h"

class wxStaticBoxSizer;

namespace lv {

class LvForm : public wxFrame {
  public:
    LvForm(Launcher& launcher, WxUser& user);
    ~LvForm() override;

    /// Brings the window in line with its struct.
    void ShowState();

  private:
    struct PlacedPanel {
        const Panel* Model;
        wxSizer* Sizer;
        wxWindow* Box;
    };

    void MakePanels(wxWindow* parent);
    wxSizer* MakeExePanel(wxWindow* parent);
    wxSizer* MakeModPanel(wxWindow* parent);
    wxSizer* MakeScriptPanel(wxWindow* parent);
    wxSizer* MakeVideoPanel(wxWindow* parent);
    wxSizer* MakeCommandPanel(wxWindow* parent);
    wxSizer* MakeMemoryPanel(wxWindow* parent);
    wxSizer* MakeDemoPanel(wxWindow* parent);
    wxSizer* MakeServerPanel(wxWindow* parent);
    wxSizer* MakeQSpyPanel(wxWindow* parent);
    wxSizer* MakeOtherPanel(wxWindow* parent);

    wxStaticBoxSizer* MakePanel(wxWindow* parent, const char* name, Panel LV_Frm::*model);
    wxCheckBox* MakeOption(wxWindow* parent, CheckBox LV_Frm::*box, const wxString& label = {});
    wxChoice* MakeList(wxWindow* parent, const char* name, ListBox LV_Frm::*list, const wxString& spoken,
                       void (*click)(Launcher&));
    wxSizer* MakeTickedList(wxWindow* parent, CheckBox LV_Frm::*box, wxWindow* list);
    void MakeKeys();
    void PlaceRightColumn();
    void FitToScreen();
    void PressLaunch(int index);

    Launcher& launcher_;
    WxUser& user_;
    Binder binder_;
    wxScrolledWindow* content_ = nullptr;
    wxBoxSizer* rightColumn_ = nullptr;
    std::vector<PlacedPanel> rightPanels_;
    std::vector<int> rightTops_;
};

}  // namespace lv
