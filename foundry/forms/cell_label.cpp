#include "foundry/forms/cell_label.h"

#include <wx/control.h>
#include <wx/dcbuffer.h>
#include <wx/settings.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "foundation/field_strings.h"
#include "foundation/forms/wx_text.h"
#include "foundry/editor/phun_names_frm.h"
#include "platform/toolkit/spoken_name.h"
#include "platform/toolkit/tab_stops.h"

namespace lv {

namespace {

constexpr int kLeftMargin = 3;
constexpr int kAsideCosts = 3;  // a label aside of the way is that much farther than one straight ahead

wxColour BackOf(const CellLook& look) {
    if (look.Highlighted) {
        return wxSystemSettings::GetColour(wxSYS_COLOUR_HIGHLIGHT);
    }
    if (look.Inactive) {
        return wxSystemSettings::GetColour(wxSYS_COLOUR_INACTIVEBORDER);
    }
    if (look.Back == kButtonFace) {
        return wxSystemSettings::GetColour(wxSYS_COLOUR_BTNFACE);
    }
    return look.Dark ? *wxBLACK : ToWxColour(look.Back);
}

double Linear(unsigned char channel) {
    const double part = channel / 255.0;
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

// The ink with the greater contrast: black on every group's colour, whatever the theme, white on dark player colours.
wxColour TextColorOn(const CellLook& look, const wxColour& back) {
    if (look.Highlighted) {
        return wxSystemSettings::GetColour(wxSYS_COLOUR_HIGHLIGHTTEXT);
    }
    constexpr double kMiddle = 0.179;
    const double light = 0.2126 * Linear(back.Red()) + 0.7152 * Linear(back.Green()) + 0.0722 * Linear(back.Blue());
    return light > kMiddle ? *wxBLACK : *wxWHITE;
}

}  // namespace

wxColour ToWxColour(Color color) {
    return {static_cast<unsigned char>(color & 0xffU), static_cast<unsigned char>(color >> 8U & 0xffU),
            static_cast<unsigned char>(color >> 16U & 0xffU)};
}

CellLabel::CellLabel(wxWindow* parent, const wxString& name, Look look, CellGroup* group)
    : look_(std::move(look)), group_(group) {
    SetBackgroundStyle(wxBG_STYLE_PAINT);
    Create(parent, wxID_ANY, wxDefaultPosition, wxSize(1, 1), wxWANTS_CHARS | wxBORDER_NONE | wxFULL_REPAINT_ON_RESIZE,
           name);
    Bind(wxEVT_PAINT, [this](wxPaintEvent&) { Paint(); });
    Bind(wxEVT_DPI_CHANGED, [this](wxDPIChangedEvent& event) {
        event.Skip();
        measured_ = {};
    });
    Bind(wxEVT_SYS_COLOUR_CHANGED, [this](wxSysColourChangedEvent& event) {
        event.Skip();
        measured_ = {};
    });
    if (group_ == nullptr) {
        return;
    }
    SetCanFocus(false);
    group_->Add(this);
    Bind(wxEVT_SET_FOCUS, [this](wxFocusEvent& event) {
        event.Skip();
        group_->SetEntry(this);
        Speak();
        Refresh();
    });
    Bind(wxEVT_KILL_FOCUS, [this](wxFocusEvent& event) {
        event.Skip();
        Refresh();
    });
    Bind(wxEVT_KEY_DOWN, [this](wxKeyEvent& event) { MoveFocus(event); });
}

CellLabel::~CellLabel() {
    // The toolkit would give the mouse back to a label that has gone, when the next one lets go of it.
    if (HasCapture()) {
        ReleaseMouse();
    }
    if (group_ != nullptr) {
        group_->Remove(this);
    }
}

// A toolkit that keeps the stops itself knows them by SetCanFocus, and takes a no to this for good.
bool CellLabel::AcceptsFocusFromKeyboard() const {
    return group_ != nullptr && (ToolkitKeepsTabStops() || (IsShown() && group_->Entry() == this));
}

// Where the toolkit itself walks from stop to stop, only a stop can have the keyboard.
void CellLabel::SetFocus() {
    if (group_ != nullptr) {
        SetCanFocus(true);
        group_->SetEntry(this);
    }
    wxWindow::SetFocus();
}

void CellLabel::Speak() {
    if (!speaker_) {
        return;
    }
    Text text = speaker_();
    if (text != spoken_) {
        spoken_ = std::move(text);
        SetLabel(ToWx(spoken_));  // what Windows calls a window that has no name of its own
        SetSpokenName(GetHandle(), ToUtf8(spoken_));
    }
}

bool CellLabel::ShowState() {
    CellLook look = look_();
    if (!fresh_ && look == shown_) {
        return false;
    }
    if (fresh_ || look.ToolTip != shown_.ToolTip) {
        if (look.ToolTip.empty()) {
            UnsetToolTip();
        } else {
            SetToolTip(ToWx(look.ToolTip));
        }
    }
    const bool came = look.Visible != IsShown();
    fresh_ = false;
    shown_ = std::move(look);
    if (came) {
        Show(shown_.Visible);
        if (group_ != nullptr) {
            group_->Settle();
        }
    }
    if (speaker_ && (!spoken_.empty() || HasFocus())) {
        Speak();
    }
    Refresh();
    return came;
}

// A page has a hundred labels and more: a text is measured once, and an empty one not at all.
void CellLabel::Measure() {
    if (measured_.Font.IsOk() && measured_.Caption == shown_.Caption && measured_.Bold == shown_.Bold &&
        measured_.Small == shown_.Small) {
        return;
    }
    const wxFont plain = GetFont();
    const wxFont font = shown_.Bold ? plain.Bold() : shown_.Small ? plain.Smaller() : plain;
    const wxString text = shown_.Centered ? ToWx(Trim(shown_.Caption)) : ToWx(shown_.Caption);
    measured_ = {shown_.Caption, shown_.Bold, shown_.Small, font, text, {}};
    GetTextExtent(text, &measured_.Extent.x, &measured_.Extent.y, nullptr, nullptr, &font);
    fitted_ = {};
}

void CellLabel::PaintText(wxDC& canvas) {
    if (Trim(shown_.Caption).empty()) {
        return;
    }
    const wxSize size = GetClientSize();
    const int margin = FromDIP(kLeftMargin);
    const int room = size.x - (shown_.Centered ? 2 : margin + 2);
    Measure();
    canvas.SetFont(measured_.Font);
    if (fitted_.Room != room || fitted_.Caption != shown_.Caption) {
        fitted_ = {room, shown_.Caption, measured_.Drawn, measured_.Extent};
        if (fitted_.Extent.x > room) {
            fitted_.Drawn = wxControl::Ellipsize(measured_.Drawn, canvas, wxELLIPSIZE_END, room);
            fitted_.Extent = canvas.GetTextExtent(fitted_.Drawn);
        }
    }
    const int left = shown_.Centered ? std::max(1, (size.x - fitted_.Extent.x) / 2) : margin;
    canvas.DrawText(fitted_.Drawn, left, (size.y - fitted_.Extent.y) / 2);
}

void CellLabel::Paint() {
    wxAutoBufferedPaintDC canvas(this);
    const wxSize size = GetClientSize();
    const wxColour back = BackOf(shown_);
    const wxColour ink = TextColorOn(shown_, back);
    canvas.SetBrush(wxBrush(back));
    canvas.SetPen(wxPen(wxColour(96, 96, 96)));
    canvas.DrawRectangle(0, 0, size.x, size.y);
    canvas.SetTextForeground(ink);
    PaintText(canvas);
    if (HasFocus()) {
        canvas.SetBrush(*wxTRANSPARENT_BRUSH);
        canvas.SetPen(wxPen(ink, std::max(2, FromDIP(2))));
        canvas.DrawRectangle(1, 1, size.x - 1, size.y - 1);
    }
}

void CellLabel::MoveFocus(wxKeyEvent& event) {
    int dx = 0;
    int dy = 0;
    switch (event.GetKeyCode()) {
        case WXK_LEFT:
            dx = -1;
            break;
        case WXK_RIGHT:
            dx = 1;
            break;
        case WXK_UP:
            dy = -1;
            break;
        case WXK_DOWN:
            dy = 1;
            break;
        case WXK_TAB:
            Navigate(event.ShiftDown() ? wxNavigationKeyEvent::IsBackward : wxNavigationKeyEvent::IsForward);
            return;
        default:
            event.Skip();
            return;
    }
    if (CellLabel* next = group_->Neighbour(*this, dx, dy)) {
        next->SetFocus();
    }
}

void CellGroup::Add(CellLabel* label) {
    labels_.push_back(label);
    if (stop_ == nullptr) {
        Settle();
    }
}

void CellGroup::Remove(CellLabel* label) {
    std::erase(labels_, label);
    entry_ = entry_ == label ? nullptr : entry_;
    stop_ = stop_ == label ? nullptr : stop_;
}

void CellGroup::SetEntry(CellLabel* label) {
    entry_ = label;
    Settle();
}

void CellGroup::Settle() {
    CellLabel* const stop = Entry();
    if (stop == stop_) {
        return;
    }
    if (stop_ != nullptr) {
        stop_->SetCanFocus(false);
    }
    stop_ = stop;
    if (stop_ != nullptr) {
        stop_->SetCanFocus(true);
    }
}

CellLabel* CellGroup::Entry() const {
    if (entry_ != nullptr && entry_->IsShown()) {
        return entry_;
    }
    const auto first = std::ranges::find_if(labels_, [](CellLabel* label) { return label->IsShown(); });
    return first == labels_.end() ? nullptr : *first;
}

CellLabel* CellGroup::Neighbour(const CellLabel& from, int dx, int dy) const {
    const wxRect start = from.GetScreenRect();
    const wxPoint middle(start.x + start.width / 2, start.y + start.height / 2);
    CellLabel* best = nullptr;
    int least = 0;
    for (CellLabel* label : labels_) {
        if (label == &from || !label->IsShownOnScreen()) {
            continue;
        }
        const wxRect place = label->GetScreenRect();
        const int x = place.x + place.width / 2 - middle.x;
        const int y = place.y + place.height / 2 - middle.y;
        const int ahead = dx * x + dy * y;
        const int aside = std::abs(dx != 0 ? y : x);
        if (ahead <= 0) {
            continue;
        }
        const int distance = ahead + kAsideCosts * aside;
        if (best == nullptr || distance < least) {
            best = label;
            least = distance;
        }
    }
    return best;
}

}  // namespace lv
