#include "foundry/forms/name_picture.h"

#include <wx/dcbuffer.h>
#include <wx/image.h>

#include <algorithm>
#include <cstdint>
#include <string>

#include "platform/toolkit/spoken_name.h"

namespace lv {

namespace {

constexpr int kLetter = 2 * kFontCell;
constexpr int kCells = 256;
const wxColour kNight(48, 40, 32);  // the games' consoles are dark

unsigned char Over(int below, int above, int opacity) {
    constexpr int kOpaque = 255;
    return static_cast<unsigned char>((above * opacity + below * (kOpaque - opacity)) / kOpaque);
}

/// Each pixel of the map `scale` pixels wide and high. Only of the letters that are seen: the whole map takes too long
/// for a paint event.
void PaintLetter(wxImage& name, const FontMap& map, const NameLetter& letter, int scale) {
    const int left = letter.ToX * scale / 2;
    const int size = std::min(kFontCell * scale, name.GetWidth() - left);
    for (int y = 0; y < kFontCell * scale; ++y) {
        for (int x = 0; x < size; ++x) {
            const std::uint8_t* pixel = map.Pixel(letter.FromX + x / scale, letter.FromY + y / scale);
            name.SetRGB(left + x, y, Over(kNight.Red(), pixel[0], pixel[3]), Over(kNight.Green(), pixel[1], pixel[3]),
                        Over(kNight.Blue(), pixel[2], pixel[3]));
        }
    }
}

int WholeScale(const wxWindow* window) {
    constexpr int kHundred = 100;
    return std::max(1, window->FromDIP(kHundred) / kHundred);
}

}  // namespace

wxBitmap ToBitmap(const FontMap& map, int scale) {
    wxImage image(kFontMapWidth, kFontMapHeight);
    image.InitAlpha();
    for (int y = 0; y < kFontMapHeight; ++y) {
        for (int x = 0; x < kFontMapWidth; ++x) {
            const std::uint8_t* pixel = map.Pixel(x, y);
            image.SetRGB(x, y, pixel[0], pixel[1], pixel[2]);
            image.SetAlpha(x, y, pixel[3]);
        }
    }
    if (scale > 1) {
        image.Rescale(kFontMapWidth * scale, kFontMapHeight * scale, wxIMAGE_QUALITY_NEAREST);
    }
    return wxBitmap(image);
}

NamePicture::NamePicture(wxWindow* parent, Fig_Frm& model) : model_(model) {
    SetBackgroundStyle(wxBG_STYLE_PAINT);
    const int scale = WholeScale(parent);
    Create(parent, wxID_ANY, wxDefaultPosition, wxSize(kLetter * kNameLength * scale, kLetter * scale),
           wxBORDER_NONE | wxFULL_REPAINT_ON_RESIZE, "Name_Pic");
    SetMinSize(GetSize());
    SetSpokenName(GetHandle(), "Name");
    Bind(wxEVT_PAINT, [this](wxPaintEvent&) { Paint(); });
}

void NamePicture::ShowState() {
    if (shown_ != model_.Document.Name_Txt.Text) {
        shown_ = model_.Document.Name_Txt.Text;
        Refresh();
    }
}

void NamePicture::Paint() {
    const int scale = WholeScale(this);
    wxImage name(kLetter * kNameLength * scale, kLetter * scale);
    name.SetRGB(wxRect(name.GetSize()), kNight.Red(), kNight.Green(), kNight.Blue());
    for (const NameLetter& letter : PaintName(model_)) {
        PaintLetter(name, model_.PhunNames.Map, letter, 2 * scale);
    }
    wxAutoBufferedPaintDC canvas(this);
    canvas.SetBackground(wxBrush(kNight));
    canvas.Clear();
    canvas.DrawBitmap(wxBitmap(name), 0, 0);
}

FontMapPicture::FontMapPicture(wxWindow* parent, const FontMap& map, std::function<void(int x, int y)> click)
    : click_(std::move(click)) {
    SetBackgroundStyle(wxBG_STYLE_PAINT);
    scale_ = WholeScale(parent);
    map_ = ToBitmap(map, scale_);
    Create(parent, wxID_ANY, wxDefaultPosition, wxSize(kFontMapWidth * scale_, kFontMapHeight * scale_),
           wxWANTS_CHARS | wxBORDER_NONE, "Picture1");
    SetMinSize(GetSize());
    Bind(wxEVT_PAINT, [this](wxPaintEvent&) { Paint(); });
    Bind(wxEVT_LEFT_UP, [this](wxMouseEvent& event) {
        SetFocus();
        MoveTo(event.GetY() / scale_ / kFontCell * kFontCellsInRow + event.GetX() / scale_ / kFontCell);
        click_(event.GetX() / scale_, event.GetY() / scale_);
    });
    Bind(wxEVT_KEY_DOWN, [this](wxKeyEvent& event) { Press(event); });
    const auto repaint = [this](wxFocusEvent& event) {
        event.Skip();
        Refresh();
    };
    Bind(wxEVT_SET_FOCUS, repaint);
    Bind(wxEVT_KILL_FOCUS, repaint);
    MoveTo(cell_);
}

void FontMapPicture::MoveTo(int cell) {
    cell_ = std::clamp(cell, 0, kCells - 1);
    SetSpokenName(GetHandle(), "Letter " + std::to_string(cell_) +
                                   (cell_ > ' ' && cell_ < 127 ? std::string(": ") + static_cast<char>(cell_) : ""));
    Refresh();
}

void FontMapPicture::Press(wxKeyEvent& event) {
    switch (event.GetKeyCode()) {
        case WXK_LEFT:
            MoveTo(cell_ - 1);
            break;
        case WXK_RIGHT:
            MoveTo(cell_ + 1);
            break;
        case WXK_UP:
            MoveTo(cell_ - kFontCellsInRow < 0 ? cell_ : cell_ - kFontCellsInRow);
            break;
        case WXK_DOWN:
            MoveTo(cell_ + kFontCellsInRow >= kCells ? cell_ : cell_ + kFontCellsInRow);
            break;
        case WXK_RETURN:
        case WXK_SPACE:
            click_(cell_ % kFontCellsInRow * kFontCell, cell_ / kFontCellsInRow * kFontCell);
            break;
        case WXK_TAB:
            Navigate(event.ShiftDown() ? wxNavigationKeyEvent::IsBackward : wxNavigationKeyEvent::IsForward);
            break;
        default:
            event.Skip();
    }
}

void FontMapPicture::Paint() {
    wxAutoBufferedPaintDC canvas(this);
    canvas.SetBackground(wxBrush(kNight));
    canvas.Clear();
    canvas.DrawBitmap(map_, 0, 0, true);
    if (HasFocus()) {
        canvas.SetBrush(*wxTRANSPARENT_BRUSH);
        canvas.SetPen(wxPen(*wxGREEN));
        const int size = kFontCell * scale_;
        canvas.DrawRectangle(cell_ % kFontCellsInRow * size, cell_ / kFontCellsInRow * size, size, size);
    }
}

}  // namespace lv
