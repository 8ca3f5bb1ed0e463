// launcher/menu/video_profile_menu.h
//
// The list of video profiles and its menu: choosing, adding, editing, deleting.

#pragma once

namespace lv {

struct Launcher;

void VideoProfiles_Cbo_Click(Launcher& launcher);

void VideoProfilesAdd_Bar_Click(Launcher& launcher);
/// Opens the live window of the current profile.
void VideoProfilesEdit_Bar_Click(Launcher& launcher);
void VideoProfileEdit_Cmd_Click(Launcher& launcher);
void VideoProfilesDelete_Bar_Click(Launcher& launcher);

}  // namespace lv
