#include "foundry/editor/controllers.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "foundation/question_box.h"
#include "foundation/settings.h"
#include "foundry/editor/key_capture.h"

namespace lv {

namespace {

constexpr int kLabelWidth = 570;  // twips, as all places here
constexpr int kLabelHeight = 270;

struct DeviceRow {
    TextView Name;
    TextView Bitmap;  // below the program's directory; empty: the grid
};

constexpr DeviceRow kDevices[] = {
    {"Unlisted Device", ""},
    {"Gravis Xterminator", "\\gravispad.bmp"},
    {"Panther XL", "\\pantherXL.bmp"},
    {"Wingman Warrior", "\\warrior.bmp"},
};

struct Spot {
    int Top;
    int Left;
};

constexpr Spot kNone{-1, -1};

struct ButtonRow {
    Index Label;
    std::array<Spot, 3> Spots;  // of the controllers behind the unlisted one
};

// clang-format off
constexpr ButtonRow kButtonRows[] = {
    // Gravis Xterminator, Panther XL, Wingman Warrior
    {98, {{{420, 5280}, {1020, 5220}, {1290, 6150}}}},
    {99, {{{360, 5820}, {480, 3090}, {0, 4890}}}},
    {100, {{{300, 6360}, {60, 3450}, {450, 4140}}}},
    {101, {{{120, 5160}, {1320, 5220}, {150, 4380}}}},
    {108, {{{60, 5700}, {30, 6270}, {30, 6270}}}},
    {109, {{{0, 6240}, {300, 6540}, kNone}}},
    {110, {{{1260, 1440}, {570, 6270}, kNone}}},
    {111, {{{1260, 5700}, {300, 6000}, kNone}}},
    {112, {{{60, 3900}, {1020, 1380}, kNone}}},
    {113, {{{1020, 5040}, {1320, 1500}, kNone}}},
    {114, {{{360, 3840}, {240, 780}, kNone}}},
    {115, {{kNone, {240, 1380}, kNone}}},
    {116, {{kNone, {480, 1920}, kNone}}},
    {132, {{{1080, 3780}, {30, 5190}, {30, 6300}}}},
    {133, {{{1260, 4320}, {300, 5430}, {300, 6540}}}},
    {134, {{{1380, 3780}, {570, 5190}, {570, 6300}}}},
    {135, {{{1260, 3240}, {300, 4890}, {300, 6000}}}},
};
// clang-format on

/// A run of labels in columns, each filled from its top.
struct GridBlock {
    Index First;
    Index Last;
    int Left;
    int Rows;
};

constexpr GridBlock kGrid[] = {
    {98, 103, 60, 3},
    {104, 135, 1620, 5},
};
constexpr int kGridTop = 60;
constexpr int kColumnStep = 600;
constexpr int kRowStep = 300;

void Place(KeyLabel& label, Spot spot) {
    label.Top = spot.Top;
    label.Left = spot.Left;
    label.Width = kLabelWidth;
    label.Height = kLabelHeight;
    label.Visible = true;
}

void LayOverPicture(Fig_Frm& form, std::size_t controller) {
    for (Index label = kFirstJoyLabel; label < kKeyCount; ++label) {
        form.KeyLabelOf(label).Visible = false;
    }
    for (const ButtonRow& row : kButtonRows) {
        const Spot& spot = row.Spots[controller];
        if (spot.Top >= 0) {
            Place(form.KeyLabelOf(row.Label), spot);
        }
    }
}

void Do_HL_Warning(Fig_Frm& form) {
    constexpr TextView kMessageKey = "WackAssController_Msg";
    if (form.DeviceTold || !MessageIsOn(form.run, kMessageKey)) {
        return;
    }
    form.DeviceTold = true;
    Text title = "Specialixed Controller Pictures";
    AskUserOnce(form.run, title,
                Join("If you do not see a picture of the selected controller", NewLine,
                     "to the right, you need to download the controller", NewLine, "bitmaps, available at ",
                     form.run.HomePage));
    if (!form.run.ShowAgain) {
        Save(form.run, "ShowMessage", kMessageKey, "0");
    }
}

}  // namespace

void FillDevices(Fig_Frm& form) {
    form.Device_Cbo.Clear();
    for (const DeviceRow& device : kDevices) {
        form.Device_Cbo.Items.emplace_back(device.Name);
    }
    form.Device_Cbo.ListIndex = 0;
}

void LayOutGrid(Fig_Frm& form) {
    for (const GridBlock& block : kGrid) {
        for (Index label = block.First; label <= block.Last; ++label) {
            const int place = label - block.First;
            Place(form.KeyLabelOf(label), {.Top = kGridTop + place % block.Rows * kRowStep,
                                           .Left = block.Left + place / block.Rows * kColumnStep});
        }
    }
}

PanelRoom RoomOfControllers() {
    PanelRoom room;
    for (const ButtonRow& row : kButtonRows) {
        for (const Spot& spot : row.Spots) {
            room.Width = std::max(room.Width, spot.Left + kLabelWidth);
            room.Height = std::max(room.Height, spot.Top + kLabelHeight);
        }
    }
    return room;
}

void Device_Cbo_Click(Fig_Frm& form) {
    RestoreHint(form);
    const int device = form.Device_Cbo.ListIndex;
    form.DevicePicture.clear();
    if (device <= 0 || device >= static_cast<int>(std::size(kDevices))) {
        LayOutGrid(form);
        return;
    }
    const Text path = Join(form.run.AppDirectory, kDevices[device].Bitmap);
    if (form.run.System.Disk.FileExists(path)) {
        form.DevicePicture = path;
    } else {
        Do_HL_Warning(form);
    }
    LayOverPicture(form, static_cast<std::size_t>(device - 1));
}

void Device_Pic_LoadFailed(Fig_Frm& form) {
    form.DevicePicture.clear();
    Do_HL_Warning(form);
}

}  // namespace lv
