#include "foundry/forms/key_panels.h"

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/dcbuffer.h>
#include <wx/image.h>
#include <wx/log.h>
#include <wx/mstream.h>
#include <wx/stattext.h>

#include <algorithm>

#include "foundation/field_strings.h"
#include "foundation/forms/wx_text.h"
#include "foundation/window_services.h"
#include "foundry/editor/bindings_page.h"
#include "foundry/editor/controllers.h"

namespace lv {

namespace {

constexpr double kEnlarged = 1.38;  // the picture's twips were pixels of smaller screens
constexpr int kLegendLetters = 9;
constexpr std::uint64_t kMostPictureBytes = 4'000'000;
constexpr int kMostPicturePixels = 4000;  // both ways
constexpr std::size_t kBmpHeader = 34;    // up to the compression
constexpr int kPlain = 0;                 // Windows BMP: BI_RGB
constexpr int kPlainByMasks = 3;          // BI_BITFIELDS

constexpr int kAboveKeyboard = 210;  // twips over the highest key, where the panel's caption was

int TopOf(const KeyLabel& key, Index label) {
    return label >= kFirstJoyLabel && label < kKeyCount ? key.Top : key.Top - kAboveKeyboard;
}

int Scaled(const wxWindow* window, int twips) {
    return window->FromDIP(static_cast<int>(twips * kEnlarged / kTwipsPerPixel));
}

bool StandsOnController(Index label) {
    return label >= kFirstJoyLabel && label < kKeyCount;
}

CellLook LookOfKey(const Fig_Frm& form, Index label) {
    const KeyLabel& key = form.Key_Lbl[static_cast<std::size_t>(label)];
    return {.Caption = key.Caption,
            .Back = key.BackColor,
            .Highlighted = form.PickedKey != kNoKey && form.PickedKey == label,
            .Small = true,
            .Centered = true,
            .Dark = label >= kFirstUnbindable,
            .Visible = key.Visible,
            .ToolTip = key.ToolTip};
}

int NumberAt(TextView bytes, std::size_t at) {
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < 4; ++i) {
        number |= static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[at + i])) << (8 * i);
    }
    return static_cast<int>(number);
}

// A stranger's bitmap: what its header claims is looked at before memory is spent on it.
wxImage ReadBitmap(Files& disk, TextView path) {
    const auto file = disk.Open(path);
    if (!file.Ok() || file.Value->Size() > kMostPictureBytes) {
        return {};
    }
    const auto bytes = file.Value->Read(0, kMostPictureBytes);
    if (!bytes.Ok() || bytes.Value.size() < kBmpHeader) {
        return {};
    }
    const int width = NumberAt(bytes.Value, 18);
    const int height = NumberAt(bytes.Value, 22);
    if (width < 1 || width > kMostPicturePixels || height < -kMostPicturePixels || height > kMostPicturePixels) {
        return {};
    }
    const int compression = NumberAt(bytes.Value, 30);
    if (compression != kPlain && compression != kPlainByMasks) {
        return {};  // the toolkit makes stripes of run lengths
    }
    const wxLogNull quiet;
    wxMemoryInputStream stream(bytes.Value.data(), bytes.Value.size());
    wxImage image;
    image.LoadFile(stream, wxBITMAP_TYPE_BMP);
    return image;
}

}  // namespace

KeyPanels::KeyPanels(wxWindow* parent, FigParts& parts) : wxPanel(parent), parts_(parts) {
    keyboard_ = MakeKeyboard();
    controller_ = MakeController();
    auto* rows = new wxBoxSizer(wxVERTICAL);
    rows->Add(keyboard_, wxSizerFlags(1).Expand());
    rows->Add(controller_, wxSizerFlags(1).Expand());
    const wxSize size(std::max(keyboard_->GetBestSize().x, controller_->GetBestSize().x),
                      std::max(keyboard_->GetBestSize().y, controller_->GetBestSize().y));
    keyboard_->SetMinSize(size);
    controller_->SetMinSize(size);
    controller_->Hide();
    SetSizer(rows);
}

void KeyPanels::MakeKey(wxWindow* picture, Index label) {
    Fig_Frm& form = parts_.Model;
    CellLabel* key = parts_.MakeCell(
        picture, wxString::Format("Key_Lbl(%d)", label), [&form, label] { return LookOfKey(form, label); },
        StandsOnController(label) ? &parts_.ControllerKeys : &parts_.Keys);
    key->SetSpeaker([&form, label] { return SpokenKey(form, label); });
    parts_.KeyLabels[label] = key;
    parts_.WatchKey(key, label);
}

wxPanel* KeyPanels::MakePicture(wxWindow* panel, bool controller) {
    auto* picture = new wxPanel(panel);
    const PanelRoom room = controller ? RoomOfControllers() : PanelRoom();
    wxSize size(Scaled(this, room.Width), Scaled(this, room.Height));
    for (Index label = 0; label <= kLastKeyLabel; ++label) {
        const KeyLabel& key = parts_.Model.KeyLabelOf(label);
        if (key.Exists && StandsOnController(label) == controller) {
            MakeKey(picture, label);
            size.x = std::max(size.x, Scaled(this, key.Left + key.Width));
            size.y = std::max(size.y, Scaled(this, TopOf(key, label) + key.Height));
        }
    }
    picture->SetMinSize(size);
    return picture;
}

void KeyPanels::PlaceKeys() {
    for (const auto& [label, window] : parts_.KeyLabels) {
        const KeyLabel& key = parts_.Model.KeyLabelOf(label);
        const int top = TopOf(key, label);
        const wxPoint from(Scaled(this, key.Left), Scaled(this, top));
        const wxPoint to(Scaled(this, key.Left + key.Width), Scaled(this, top + key.Height));
        const wxRect place(from, wxSize(to.x - from.x, to.y - from.y));
        if (window->GetRect() != place) {
            window->SetSize(place);
        }
    }
}

wxSizer* KeyPanels::MakeLegend(wxWindow* panel) {
    // Those that a kind of game shows stand in this order.
    constexpr int kOrder[] = {7, 8, 9, 10, 0, 2, 1, 3, 4, 5, 6};
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    Fig_Frm& form = parts_.Model;
    for (const int index : kOrder) {
        const ColorLabel& color = form.ColorCode_Lbl[static_cast<std::size_t>(index)];
        CellLabel* label = parts_.MakeCell(panel, wxString::Format("ColorCode_Lbl(%d)", index), [&color] {
            return CellLook{.Caption = color.Caption,
                            .Back = color.BackColor,
                            .Centered = true,
                            .Visible = color.Visible,
                            .ToolTip = color.ToolTip};
        });
        label->SetMinSize(wxSize(kLegendLetters * panel->GetTextExtent("n").x, parts_.RowHeight(panel)));
        row->Add(label, wxSizerFlags().CenterVertical().Border(wxRIGHT, kCellGap));
    }
    return row;
}

wxPanel* KeyPanels::MakeKeyboard() {
    Fig_Frm& form = parts_.Model;
    auto* panel = new wxPanel(this);
    panel->SetName("Keyboard_Fra");
    auto* rows = new wxBoxSizer(wxVERTICAL);
    auto* top = new wxBoxSizer(wxHORIZONTAL);
    top->Add(MakeLegend(panel), wxSizerFlags(1).CenterVertical());
    wxButton* toggle =
        parts_.MakeButton(panel, "JoyToggle_Cmd(0)", form.JoyToggle_Cmd[0], [&form] { JoyToggle_Cmd_Click(form, 0); });
    top->Add(toggle);
    rows->Add(top, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT, kPageGap));
    wxPanel* picture = MakePicture(panel, false);
    rows->Add(picture, wxSizerFlags().Center().Border(wxLEFT | wxRIGHT | wxBOTTOM, kPageGap));
    toggle->MoveAfterInTabOrder(picture);  // Tab comes from the rows to the keys
    panel->SetSizer(rows);
    return panel;
}

wxPanel* KeyPanels::MakeController() {
    Fig_Frm& form = parts_.Model;
    auto* panel = new wxPanel(this);
    panel->SetName("Joy_Fra");
    auto* rows = new wxBoxSizer(wxVERTICAL);
    auto* top = new wxBoxSizer(wxHORIZONTAL);
    auto* caption = new wxStaticText(panel, wxID_ANY, ToWx(Trim(form.Joy_Fra.Caption)));
    top->Add(caption, wxSizerFlags().CenterVertical().Border(wxRIGHT, kPageGap));
    top->Add(parts_.MakeList(
                 panel, "Device_Cbo", form.Device_Cbo, [&form] { Device_Cbo_Click(form); }, "Controller"),
             wxSizerFlags().CenterVertical());
    top->AddStretchSpacer();
    wxButton* toggle =
        parts_.MakeButton(panel, "JoyToggle_Cmd(1)", form.JoyToggle_Cmd[1], [&form] { JoyToggle_Cmd_Click(form, 1); });
    top->Add(toggle);
    rows->Add(top, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT, kPageGap));
    devicePicture_ = MakePicture(panel, true);
    devicePicture_->SetName("Device_Pic");
    toggle->MoveAfterInTabOrder(devicePicture_);
    devicePicture_->Bind(wxEVT_PAINT, [this](wxPaintEvent&) {
        wxPaintDC canvas(devicePicture_);
        if (device_.IsOk()) {
            canvas.DrawBitmap(device_, 0, 0);
        }
    });
    rows->Add(devicePicture_, wxSizerFlags(1).Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, kPageGap));
    panel->SetSizer(rows);
    return panel;
}

void KeyPanels::LoadDevicePicture() {
    if (devicePath_ == parts_.Model.DevicePicture) {
        return;
    }
    devicePath_ = parts_.Model.DevicePicture;
    device_ = wxBitmap();
    if (!devicePath_.empty()) {
        wxImage image = ReadBitmap(parts_.Model.run.System.Disk, devicePath_);
        if (image.IsOk()) {
            image.Rescale(std::max(1, FromDIP(static_cast<int>(image.GetWidth() * kEnlarged))),
                          std::max(1, FromDIP(static_cast<int>(image.GetHeight() * kEnlarged))));
            device_ = wxBitmap(image);
        } else {
            CallAfter([this] { parts_.Controls.Run([this] { Device_Pic_LoadFailed(parts_.Model); }); });
        }
    }
    devicePicture_->Refresh();
}

wxWindow* KeyPanels::FirstOf(bool keyboard) const {
    return keyboard ? parts_.KeyLabels.begin()->second : FindWindow("Device_Cbo");
}

bool KeyPanels::ShowState() {
    const Fig_Frm& form = parts_.Model;
    PlaceKeys();
    LoadDevicePicture();
    const bool seen = form.Keyboard_Fra.Left >= 0;
    const bool keyboard = form.Keyboard_Fra.Front;
    bool changed = IsShown() != seen && Show(seen);
    if (keyboard_->IsShown() != keyboard) {
        changed = true;
        const bool had = IsDescendant(wxWindow::FindFocus());
        keyboard_->Show(keyboard);
        controller_->Show(!keyboard);
        if (had) {
            // Behind the press, which may give the pressed button the keyboard once more.
            CallAfter([this] { FirstOf(parts_.Model.Keyboard_Fra.Front)->SetFocus(); });
        }
    }
    return changed;
}

bool KeyPanels::Turn(Index button) {
    wxWindow* const pressed = FindWindow(wxString::Format("JoyToggle_Cmd(%d)", button));
    if (!pressed->IsShownOnScreen() || !pressed->IsEnabled()) {
        return false;
    }
    pressed->SetFocus();
    parts_.Controls.Run([&] { JoyToggle_Cmd_Click(parts_.Model, button); });
    return true;
}

}  // namespace lv
