#include "launcher/menu/video_profile_menu.h"

#include <algorithm>

#include "foundation/field_strings.h"
#include "foundation/question_box.h"
#include "foundation/settings.h"
#include "launcher/launcher.h"
#include "video/add_vid_profile.h"
#include "video/profile_model.h"

namespace lv {

namespace {

constexpr int kOriginalProfiles = 4;
constexpr Index kNotCool = 1;

Text ShownName(const Run& run) {
    return Join("'", run.VideoProfileSection == kOptions ? kBaseProfile : TextView(run.VideoProfileSection), "'");
}

void TellOfLiveWindow(Run& run) {
    if (!MessageIsOn(run, "VideoProfiles")) {
        return;
    }
    AskUserUnlessTold(run, "VideoProfiles", "Video Profiles",
                      Join("The Video Profiles window is now open and active for the following Video Profile:", NewLine,
                           NewLine, ShownName(run), NewLine,
                           Join(NewLine, "This is a 'live' window.", NewLine,
                                "    -Everything changed is AUTOMATICALLY saved.", NewLine),
                           Join("    -There is no need to close the window when done - the main window still works.",
                                NewLine, "    -If you have the screen space, place the 2 windows side by side.")));
}

void SaveProfileList(Launcher& launcher) {
    Text joined;
    for (const Text& item : launcher.Window.VideoProfiles_Cbo.Items) {
        joined += Join(joined.empty() ? "" : ";", Trim(item));
    }
    Save(launcher.run, kOptions, "VideoProfileList", TextView(joined));
}

bool IsListed(const ListBox& profiles, TextView name) {
    return std::ranges::any_of(
        profiles.Items, [wanted = LowerCase(Trim(name))](const Text& item) { return LowerCase(Trim(item)) == wanted; });
}

void SelectRow(Launcher& launcher, int row, TextView nameOfEmptyList) {
    ListBox& profiles = launcher.Window.VideoProfiles_Cbo;
    if (profiles.Items.empty()) {
        profiles.Items.emplace_back(nameOfEmptyList);
    }
    profiles.ListIndex = row;
    if (!profiles.HasSelection()) {
        profiles.ListIndex = 0;
    }
    VideoProfiles_Cbo_Click(launcher);
}

/// Asks until there is a name; false if the user cancelled.
bool AskForName(Run& run, Text& name) {
    for (;;) {
        AddVidProfile_Frm dialog(run);
        ShowModal(dialog);
        if (!dialog.DialogResult) {
            return false;
        }
        name = Trim(dialog.LastEntry);
        if (!name.empty()) {
            return true;
        }
        AskUser(run, "", "A Video Profile must have a name.");
    }
}

}  // namespace

void VideoProfiles_Cbo_Click(Launcher& launcher) {
    const ListBox& profiles = launcher.Window.VideoProfiles_Cbo;
    if (!profiles.HasSelection()) {
        return;
    }
    Run& run = launcher.run;
    Save(run, kOptions, "VideoProfilePos", profiles.ListIndex);
    SelectVideoProfile(run, Trim(profiles.Selected()));
    if (!launcher.VideoProfile.VideoProfileWindowOpen) {
        return;
    }
    Videop(launcher.VideoProfile);
    if (!run.Ended && !launcher.ProfileChangeQuiet) {
        run.User.Refresh();
        TellOfLiveWindow(run);
    }
}

void VideoProfilesAdd_Bar_Click(Launcher& launcher) {
    Run& run = launcher.run;
    ListBox& profiles = launcher.Window.VideoProfiles_Cbo;
    Text name;
    if (!AskForName(run, name)) {
        return;
    }
    if (IsListed(profiles, name)) {
        AskUser(run, "", "A Video Profile by this name already exists.");
        return;
    }
    const auto row = static_cast<int>(profiles.Items.size());
    profiles.Items.push_back(name);
    SaveProfileList(launcher);
    launcher.ProfileChangeQuiet = true;  // the edit tells it
    SelectRow(launcher, row, "Default");
    launcher.ProfileChangeQuiet = false;
    if (!run.Ended) {
        VideoProfilesEdit_Bar_Click(launcher);
    }
}

void VideoProfilesEdit_Bar_Click(Launcher& launcher) {
    VideoProfile_Frm_Load(launcher.VideoProfile);
    if (!launcher.run.Ended) {
        TellOfLiveWindow(launcher.run);
    }
}

void VideoProfileEdit_Cmd_Click(Launcher& launcher) {
    VideoProfilesEdit_Bar_Click(launcher);
}

void VideoProfilesDelete_Bar_Click(Launcher& launcher) {
    Run& run = launcher.run;
    ListBox& profiles = launcher.Window.VideoProfiles_Cbo;
    if (profiles.ListIndex < kOriginalProfiles || !profiles.HasSelection()) {
        AskUser(run, "",
                Join("The original 4 profiles must be kept for administrative purposes. ", NewLine,
                     " You may only delete Video Profiles you have added."));
        return;
    }
    const Text question = Join("The selected Video Profile:", NewLine, Join("'", Trim(profiles.Selected()), "'"),
                               NewLine, "was deleted.");
    if (AskUser(run, "", question, "&Cool,&Not Cool") == kNotCool) {
        AskUser(run, "", "The the deletion was canceled");
        return;
    }
    profiles.Items.erase(profiles.Items.begin() + profiles.ListIndex);
    SelectRow(launcher, 0, kBaseProfile);
    SaveProfileList(launcher);
}

}  // namespace lv
