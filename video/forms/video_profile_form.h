// video/forms/video_profile_form.h
//
// Shows VideoProfile_Frm, the live window beside the main window.

#pragma once

#include <wx/frame.h>
#include <wx/panel.h>
#include <wx/scrolwin.h>
#include <wx/sizer.h>
#include <wx/weakref.h>

#include <vector>

#include "foundation/forms/binder.h"
#include "foundation/forms/kept_place.h"
#include "foundation/forms/wx_user.h"
#include "video/video_profile_frm.h"

namespace lv {

class VideoProfileForm : public wxFrame {
  public:
    VideoProfileForm(VideoProfile_Frm& model, WxUser& user);

    /// Brings the controls in line with the struct, and the window to the size of what is shown.
    void ShowState();

    /// Puts the window where the struct says and shows it.
    void Open();
    void CloseUp();

  private:
    struct Row {
        const CheckBox* Model;
        std::vector<wxWindow*> Follows;  // come and go with the box
    };

    void BindEvents();
    wxSizer* MakeColumns();
    wxSizer* MakeCardRow();
    wxWindow* StartPanel(ProfilePanel panel);
    void EndPanel(wxSizer* column);
    void MakeResolutionRows();
    void MakeNo3DHardwareRow();
    void MakeBoxes(ProfilePanel panel);
    void MakeBox(ProfileBox& box);
    wxCheckBox* MakeCheck(const std::string& name, CheckBox& model, Binder::Handler click);
    wxChoice* MakeList(const std::string& name, ListBox& model, const Text& caption, Binder::Handler click);
    void AddRow(const CheckBox& model, wxCheckBox* check, const std::vector<wxChoice*>& lists);
    void FitToContent();
    void KeepSize();

    VideoProfile_Frm& model_;
    WxUser& user_;
    Binder binder_;
    KeptPlace place_;
    wxScrolledWindow* content_ = nullptr;
    wxPanel* panel_ = nullptr;  // the one that is being made
    wxStaticBoxSizer* rows_ = nullptr;
    std::vector<wxChoice*> lists_;  // of the panel that is being made
    std::vector<Row> followers_;
};

/// The window as the program has it: made when the struct opens for the first time. One that closes is only hidden, for
/// a dialog may stand over it at that moment.
class VideoProfileWindow {
  public:
    VideoProfileWindow(VideoProfile_Frm& model, WxUser& user);
    ~VideoProfileWindow();
    VideoProfileWindow(const VideoProfileWindow&) = delete;
    VideoProfileWindow& operator=(const VideoProfileWindow&) = delete;

  private:
    void ShowState();
    VideoProfileForm& TheForm();

    VideoProfile_Frm& model_;
    WxUser& user_;
    wxWeakRef<VideoProfileForm> form_;
};

}  // namespace lv
