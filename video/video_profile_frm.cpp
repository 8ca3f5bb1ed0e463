#include "video/video_profile_frm.h"

#include <algorithm>

#include "foundation/field_strings.h"
#include "foundation/game.h"
#include "foundation/numbers.h"
#include "foundation/settings.h"
#include "video/overclock.h"
#include "video/profile_model.h"

namespace lv {

namespace {

constexpr TextView kFormName = "VideoProfile_Frm";

struct CardRow {
    Index CardClass;
    bool Voodoo1, Voodoo2, VoodooScreenColor, NoSplash, Effects, NoEffects, No3DHardware;
};

// clang-format off
constexpr CardRow kCards[] = {
    //           Voodoo1  Voodoo2  ScreenColor  no splash  effects  no effects  no 3D hardware
    {0,          false,   false,   false,       false,     false,   false,      true},
    {1,          true,    false,   true,        true,      true,    false,      false},
    {2,          false,   true,    true,        true,      true,    false,      false},
    {kOtherCard, false,   false,   false,       false,     true,    false,      false},
};
// clang-format on

std::vector<Text> Texts(std::span<const TextView> items) {
    return {items.begin(), items.end()};
}

// A list that has no row for the stored position shows none; the stored one stays as it is.
void Select(ListBox& list, int position) {
    list.ListIndex = position;
    if (!list.HasSelection()) {
        list.ListIndex = -1;
    }
}

void SaveHere(VideoProfile_Frm& form, TextView key, int value) {
    if (!form.ProfileLoading) {
        Save(form.run, form.run.VideoProfileSection, key, value);
    }
}

void SaveListHere(VideoProfile_Frm& form, const ListBox& list, TextView key) {
    if (!form.ProfileLoading && list.HasSelection()) {
        Save(form.run, form.run.VideoProfileSection, key, list.ListIndex);
        Save(form.run, form.run.VideoProfileSection, Join(key, "_Content"), TextView(list.Selected()));
    }
}

void ShowCardPanels(VideoProfile_Frm& form) {
    const auto* const row = std::ranges::find(kCards, form.CardClass, &CardRow::CardClass);
    form.PanelOf(ProfilePanel::Voodoo1).Visible = row->Voodoo1;
    form.PanelOf(ProfilePanel::Voodoo2).Visible = row->Voodoo2;
    form.PanelOf(ProfilePanel::VoodooScreenColor).Visible = row->VoodooScreenColor;
    form.PanelOf(ProfilePanel::Effects).Visible = row->Effects;
    form.PanelOf(ProfilePanel::NoEffects).Visible = row->NoEffects;
    form.PanelOf(ProfilePanel::No3DHardware).Visible = row->No3DHardware;
    ProfileBox& splash = form.BoxOf("FX_GLIDE_NO_SPLASH");
    splash.Chk.Visible = row->NoSplash;
    splash.Cbo.Visible = row->NoSplash;
}

void ShowCard(VideoProfile_Frm& form) {
    const Index card = CardListIndexOf(ReadVidCard(form.run));
    form.VidCard_Cbo.ListIndex = card;
    form.CardClass = CardClassOf(card);
    ShowCardPanels(form);
}

void ShowSnapshot(VideoProfile_Frm& form, const ProfileSnapshot& profile) {
    for (ProfileBox& box : form.Boxes) {
        if (box.Tunable == nullptr) {
            box.Chk.Value = profile.Ticked(box.Row->Key) ? 1 : 0;
            continue;
        }
        const ProfileSnapshot::Tunable& stored = profile.Of(box.Row->Key);
        box.Chk.Value = stored.Flag == 1 ? 1 : 0;
        Select(box.Cbo, stored.Setting);
    }
    form.GL_Chk[0].Value = profile.UseRez == 1 ? 1 : 0;
    form.GL_Chk[1].Value = profile.UseBits == 1 ? 1 : 0;
    Select(form.Rez_Cbo, profile.ResolutionsPos);
    Select(form.Q2_Rez_Cbo, profile.Q2_ResolutionsPos);
    Select(form.Bits_Cbo, profile.BitsPos);
    form.Windowed_Chk.Value = profile.Windowed == 1 ? 1 : 0;
    form.GraphicsDriver_Chk.Value = profile.UseGraphicsDriver == 1 ? 1 : 0;
    Select(form.GraphicsDriver_Cbo, profile.GraphicsDriver);
}

}  // namespace

VideoProfile_Frm::VideoProfile_Frm(Run& owner) : run(owner) {
    Hint_Lbl.Caption = "Every change is saved at once and holds from the next launch on.";
    No3DHardware_Lbl.Caption = "Pick the card above to see what can be set for it.";
    VidCard_Lbl.Caption = "3D Card";
    VidCard_Cbo.Items = Texts(VideoCards());
    VidCard_Cbo.ToolTip = "The 3D card in this computer; it holds for all video profiles";
    for (const ProfilePanelRow& row : ProfilePanelRows()) {
        PanelOf(row.Panel).Caption = row.Caption;
    }
    Windowed_Chk.Caption = "&Windowed";
    Windowed_Chk.ToolTip = "Keep your Windows desktop from resizing";
    GL_Chk[0].Caption = "Resolution";
    GL_Chk[1].Caption = "Color depth";
    GraphicsDriver_Chk.Caption = "Graphics driver";
    Q2_Rez_Cbo.Items = Texts(Q2Resolutions());
    GraphicsDriver_Cbo.Items = Texts(GraphicsDrivers());
    for (const ProfileBoxRow& row : ProfileBoxRows()) {
        ProfileBox& box = Boxes.emplace_back();
        box.Row = &row;
        box.Tunable = FindTunable(row.Key);
        box.Chk.Caption = row.Caption;
        if (box.Tunable != nullptr) {
            box.Cbo.Items = Texts(box.Tunable->Items);
        }
    }
}

ProfileBox& VideoProfile_Frm::BoxOf(TextView name) {
    return *std::ranges::find_if(Boxes, [name](const ProfileBox& box) { return box.Row->Name == name; });
}

void VideoProfile_Frm_Load(VideoProfile_Frm& form) {
    form.Raise = true;
    if (form.VideoProfileWindowOpen) {
        return;
    }
    ShowGameControls(form);
    Videop(form);
    if (form.run.Ended) {
        return;
    }
    if (form.Measure) {
        const TwipsSize size = form.Measure();
        form.Placement.Width = size.Width;
        form.Placement.Height = size.Height;
    }
    LoadPlacement(form.run, kFormName, form.Placement, ScreenInTwips(form.run));
    form.VideoProfileWindowOpen = true;
    form.run.User.Refresh();
}

void VideoProfile_Frm_Unload(VideoProfile_Frm& form) {
    if (!form.VideoProfileWindowOpen) {
        return;
    }
    SavePlacement(form.run, kFormName, form.Placement);
    form.VideoProfileWindowOpen = false;
    form.run.User.Refresh();
}

void Videop(VideoProfile_Frm& form) {
    Run& run = form.run;
    if (!StoreProfile(run)) {
        return;
    }
    form.ProfileLoading = true;
    form.Caption =
        Join("Video Profile - '", run.VideoProfileSection == kOptions ? kBaseProfile : run.VideoProfileSection, "'");
    form.Rez_Cbo.Items = ProfileResolutions(run);
    form.Bits_Cbo.Items = ProfileBits(run);
    ShowSnapshot(form, ReadProfile(run));
    ShowCard(form);
    form.ProfileLoading = false;
}

void ShowGameControls(VideoProfile_Frm& form) {
    const bool quake2 = form.run.ScriptFamily == Dialect::Quake2;
    form.PanelOf(ProfilePanel::UnrealVideo).Visible = form.run.GameKind == Game::Unreal;
    form.Q2_Rez_Cbo.Visible = quake2;
    form.GraphicsDriver_Chk.Visible = quake2;
    form.GraphicsDriver_Cbo.Visible = quake2;
    form.Rez_Cbo.Visible = !quake2;
    form.Bits_Cbo.Visible = !quake2;
    form.GL_Chk[1].Visible = !quake2;
}

void VidCard_Cbo_Click(VideoProfile_Frm& form) {
    if (!form.VidCard_Cbo.HasSelection()) {
        return;
    }
    form.CardClass = CardClassOf(static_cast<Index>(form.VidCard_Cbo.ListIndex));
    if (!form.ProfileLoading) {
        Save(form.run, kOptions, "VidCard", form.CardClass);
    }
    ShowCardPanels(form);
}

void Profile_Chk_Click(VideoProfile_Frm& form, ProfileBox& box) {
    SaveHere(form, box.Row->Key, box.Chk.Value);
}

void Profile_Cbo_Click(VideoProfile_Frm& form, ProfileBox& box) {
    if (form.ProfileLoading || !box.Cbo.HasSelection()) {
        return;
    }
    if (!MayOverclock(form.run, *box.Tunable, ToIndex(box.Cbo.Selected()))) {
        box.Cbo.ListIndex = 0;
    }
    SaveTunableSetting(form.run, *box.Tunable, static_cast<Index>(box.Cbo.ListIndex));
}

void Windowed_Chk_Click(VideoProfile_Frm& form) {
    SaveHere(form, "Windowed", form.Windowed_Chk.Value);
}

void GL_Chk_Click(VideoProfile_Frm& form, int index) {
    SaveHere(form, index == 0 ? "UseRez" : "UseBits", form.GL_Chk[static_cast<std::size_t>(index)].Value);
}

void Rez_Cbo_Click(VideoProfile_Frm& form) {
    SaveListHere(form, form.Rez_Cbo, "ResolutionsPos");
}

void Q2_Rez_Cbo_Click(VideoProfile_Frm& form) {
    SaveListHere(form, form.Q2_Rez_Cbo, "Q2_ResolutionsPos");
}

void Bits_Cbo_Click(VideoProfile_Frm& form) {
    SaveListHere(form, form.Bits_Cbo, "BitsPos");
}

void GraphicsDriver_Chk_Click(VideoProfile_Frm& form) {
    SaveHere(form, "UseGraphicsDriver", form.GraphicsDriver_Chk.Value);
}

void GraphicsDriver_Cbo_Click(VideoProfile_Frm& form) {
    SaveHere(form, "GraphicsDriver", form.GraphicsDriver_Cbo.ListIndex);
}

}  // namespace lv
