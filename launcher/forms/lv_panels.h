// launcher/forms/lv_panels.h
//
// The main window's content: the button bar and the panels, laid out in rows and columns.

#pragma once

#include <wx/scrolwin.h>
#include <wx/sizer.h>

#include <functional>
#include <optional>
#include <vector>

#include "foundation/forms/binder.h"
#include "launcher/launcher.h"

namespace lv {

class LvPanels : public wxScrolledWindow {
  public:
    LvPanels(wxWindow* parent, Launcher& launcher, Binder& binder);

    /// Shows what the window's size has room for, places the right column, and lays out what changed.
    void ShowState(bool changed);

    /// Lays the parts out in a window that has this size inside; what it has no room for scrolls.
    void ScrollIn(wxSize room);

    /// The places that the window's sizes are made from, in pixels.
    void Measure(WindowMeasures& measured);

  private:
    struct PlacedPanel {
        const Panel* Model;
        wxSizer* Sizer;
    };

    void MakeBarPart();
    void MakeTopPart();
    void MakeColumnsPart();
    void StartPart();
    wxWindow* MakePart(wxSizer* content, const wxSizerFlags& flags);
    wxSizer* MakeButtonBar();
    wxSizer* MakeExePanel();
    wxSizer* MakeCommandPanel();
    wxSizer* MakeModPanel();
    wxSizer* MakeScriptPanel();
    wxSizer* MakeVideoPanel();
    wxSizer* MakeMemoryPanel();
    wxSizer* MakeDemoPanel();
    wxSizer* MakeServerPanel();
    wxSizer* MakeQSpyPanel();
    wxSizer* MakeOtherPanel();

    wxStaticBoxSizer* MakePanel(const char* name, Panel LV_Frm::*panel);
    wxCheckBox* MakeOption(Option option, const wxString& label = {});
    wxChoice* MakeList(const char* name, ListBox LV_Frm::*list, const wxString& spoken, void (*click)(Launcher&));
    wxWindow* MakeMenuPicture(int index);
    wxWindow* MakeSmallButton(const char* name, CommandButton LV_Frm::*button, const char* picture, const char* spoken,
                              void (*click)(Launcher&));
    wxSizer* MakeRow(std::optional<Option> option, wxWindow* list, const std::vector<wxWindow*>& behind = {});
    void PlaceRightColumn();
    bool ShowParts();

    Launcher& launcher_;
    Binder& binder_;
    wxWindow* part_ = nullptr;  // the part that is being made
    wxWindow* at_ = nullptr;    // the parent of what is being made
    wxBoxSizer* rows_ = nullptr;
    wxWindow* bar_ = nullptr;
    wxWindow* top_ = nullptr;
    wxWindow* columns_ = nullptr;
    wxWindow* exes_ = nullptr;
    wxBoxSizer* right_ = nullptr;
    std::vector<PlacedPanel> rightPanels_;
    std::vector<int> rightTops_;
    int width_ = 0;  // before a first layout: under GTK the boxes then take the width they have for the least one
    int shownMode_ = -1;
};

}  // namespace lv
