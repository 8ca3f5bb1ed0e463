#include "foundry/forms/difference_view.h"

#include <wx/settings.h>

#include <algorithm>

#include "foundation/forms/wx_text.h"

namespace lv {

namespace {

enum Column { kLeftLine, kLeft, kMark, kRightLine, kRight };

constexpr int kLineLetters = 7;
constexpr int kMarkLetters = 3;

bool IsDark(const wxColour& colour) {
    constexpr int kMiddle = 128;
    return (colour.Red() * 299 + colour.Green() * 587 + colour.Blue() * 114) / 1000 < kMiddle;
}

wxString Number(std::size_t line) {
    return line == 0 ? wxString() : wxString::Format("%zu", line);
}

}  // namespace

DifferenceView::DifferenceView(wxWindow* parent, const wxString& name, DifferenceList& model)
    : wxListCtrl(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                 wxLC_REPORT | wxLC_VIRTUAL | wxLC_SINGLE_SEL | wxLC_VRULES),
      model_(model) {
    SetName(name);
    SetFont(wxFontInfo(GetFont().GetPointSize()).Family(wxFONTFAMILY_TELETYPE));
    AppendColumn("");
    AppendColumn(ToWx(model.LeftTitle));
    AppendColumn("");
    AppendColumn("");
    AppendColumn(ToWx(model.RightTitle));
    const bool dark = IsDark(wxSystemSettings::GetColour(wxSYS_COLOUR_LISTBOX));
    changed_.SetBackgroundColour(dark ? wxColour(80, 70, 0) : wxColour(255, 245, 190));
    onlyLeft_.SetBackgroundColour(dark ? wxColour(90, 30, 30) : wxColour(255, 220, 215));
    onlyRight_.SetBackgroundColour(dark ? wxColour(20, 75, 30) : wxColour(215, 245, 215));
    Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
        event.Skip();
        ShareWidth();
    });
    Bind(wxEVT_LIST_ITEM_SELECTED,
         [this](wxListEvent& event) { model_.ListIndex = static_cast<int>(event.GetIndex()); });
}

void DifferenceView::ShareWidth() {
    const int letter = GetTextExtent("0").x;
    const int fixed = (2 * kLineLetters + kMarkLetters) * letter;
    const int bar = wxSystemSettings::GetMetric(wxSYS_VSCROLL_X, this);
    const int text = std::max((GetClientSize().x - fixed - bar) / 2, kLineLetters * letter);
    for (const Column column : {kLeftLine, kRightLine}) {
        SetColumnWidth(column, kLineLetters * letter);
    }
    SetColumnWidth(kMark, kMarkLetters * letter);
    for (const Column column : {kLeft, kRight}) {
        SetColumnWidth(column, text);
    }
}

void DifferenceView::ShowState() {
    if (shown_ != model_.Shown()) {
        shown_ = model_.Shown();
        SetItemCount(static_cast<long>(model_.Rows().size()));
        Refresh();
    }
    const long row = model_.ListIndex;
    if (row >= 0 && row < GetItemCount() && GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED) != row) {
        SetItemState(row, wxLIST_STATE_SELECTED | wxLIST_STATE_FOCUSED, wxLIST_STATE_SELECTED | wxLIST_STATE_FOCUSED);
        EnsureVisible(row);
    }
}

wxString DifferenceView::OnGetItemText(long row, long column) const {
    if (row < 0 || static_cast<std::size_t>(row) >= model_.Rows().size()) {
        return {};
    }
    const DifferenceRow& shown = model_.Rows()[static_cast<std::size_t>(row)];
    switch (column) {
        case kLeftLine:
            return Number(shown.LeftLine);
        case kLeft:
            return ToWx(ShownLine(shown.Left));
        case kMark:
            return ToWx(Text(MarkOfRow(shown.Kind)));
        case kRightLine:
            return Number(shown.RightLine);
        default:
            return ToWx(ShownLine(shown.Right));
    }
}

wxListItemAttr* DifferenceView::OnGetItemAttr(long row) const {
    if (row < 0 || static_cast<std::size_t>(row) >= model_.Rows().size()) {
        return nullptr;
    }
    switch (model_.Rows()[static_cast<std::size_t>(row)].Kind) {
        case RowKind::Changed:
            return &changed_;
        case RowKind::OnlyLeft:
            return &onlyLeft_;
        case RowKind::OnlyRight:
            return &onlyRight_;
        case RowKind::Same:
            break;
    }
    return nullptr;
}

}  // namespace lv
