// video/video_profile_frm.h
//
// The video profile window: a live view of the section run.VideoProfileSection. Each click saves its own keys at once;
// there is nothing to confirm and nothing to lose.

#pragma once

#include <array>
#include <functional>
#include <vector>

#include "foundation/controls.h"
#include "foundation/window_services.h"
#include "video/profile_controls.h"
#include "video/profile_settings.h"

namespace lv {

/// A row of ProfileBoxRows with its state.
struct ProfileBox {
    const ProfileBoxRow* Row = nullptr;
    const ProfileTunable* Tunable = nullptr;  // null: a plain flag, without a list
    CheckBox Chk;
    ListBox Cbo;
};

struct VideoProfile_Frm {
    explicit VideoProfile_Frm(Run& owner);
    VideoProfile_Frm(const VideoProfile_Frm&) = delete;
    VideoProfile_Frm& operator=(const VideoProfile_Frm&) = delete;

    Run& run;
    Text Caption = "Video Profile";
    bool VideoProfileWindowOpen = false;
    bool Raise = false;  // the form comes to the front, and clears this
    WindowPlacement Placement;
    bool ProfileLoading = false;  // handlers save nothing and warn of nothing
    Index CardClass = 0;

    Label Hint_Lbl;
    Label No3DHardware_Lbl;
    Label VidCard_Lbl;
    ListBox VidCard_Cbo;
    std::array<Panel, kProfilePanels> Panels;  // in the order of ProfilePanel

    CheckBox Windowed_Chk;
    std::array<CheckBox, 2> GL_Chk;  // beside Rez_Cbo or Q2_Rez_Cbo, and beside Bits_Cbo
    ListBox Rez_Cbo;                 // padded items
    ListBox Q2_Rez_Cbo;
    ListBox Bits_Cbo;  // padded items
    CheckBox GraphicsDriver_Chk;
    ListBox GraphicsDriver_Cbo;

    std::vector<ProfileBox> Boxes;  // in the order of ProfileBoxRows

    /// Size of the window on the screen, in twips; without a form it is placed as a point.
    std::function<TwipsSize()> Measure;

    lv::Panel& PanelOf(ProfilePanel panel) { return Panels[static_cast<std::size_t>(panel)]; }
    ProfileBox& BoxOf(TextView name);
};

/// Opens the window where it was left, or brings the open one to the front.
void VideoProfile_Frm_Load(VideoProfile_Frm& form);

/// Closes it and keeps its place. Does nothing to a closed one.
void VideoProfile_Frm_Unload(VideoProfile_Frm& form);

/// Reads the current section into the controls and stores the keys that it lacks, as each load of a profile does; a
/// resolution or colour depth beyond its list is corrected. Look at run.Ended afterwards: a list that is no list of
/// pairs ends the program.
void Videop(VideoProfile_Frm& form);

/// Shows what the game of this moment uses.
void ShowGameControls(VideoProfile_Frm& form);

void VidCard_Cbo_Click(VideoProfile_Frm& form);
void Profile_Chk_Click(VideoProfile_Frm& form, ProfileBox& box);
void Profile_Cbo_Click(VideoProfile_Frm& form, ProfileBox& box);
void Windowed_Chk_Click(VideoProfile_Frm& form);
void GL_Chk_Click(VideoProfile_Frm& form, int index);
void Rez_Cbo_Click(VideoProfile_Frm& form);
void Q2_Rez_Cbo_Click(VideoProfile_Frm& form);
void Bits_Cbo_Click(VideoProfile_Frm& form);
void GraphicsDriver_Chk_Click(VideoProfile_Frm& form);
void GraphicsDriver_Cbo_Click(VideoProfile_Frm& form);

}  // namespace lv
