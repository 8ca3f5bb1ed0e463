#include "foundry/forms/scrolled_page.h"

#include "foundation/forms/screen_fit.h"
#include "platform/toolkit/scroll_bars.h"

namespace lv {

namespace {

constexpr int kScrollStep = 10;

}  // namespace

ScrolledPage::ScrolledPage(wxWindow* parent) : wxScrolledWindow(parent), content_(new wxPanel(this)) {
    KeepScrollBarsInSight(GetHandle());
    SetScrollRate(FromDIP(kScrollStep), FromDIP(kScrollStep));
    FollowKeyboard(*this);
}

bool ScrolledPage::Fill() {
    const wxSize least = content_->GetBestSize();
    const wxSize before = content_->GetSize();
    wxSize size = GetClientSize();
    const wxSize room = size;
    size.IncTo(least);
    SetVirtualSize(size);
    if (GetClientSize() != room) {  // a bar has come or gone
        size = GetClientSize();
        size.IncTo(least);
        SetVirtualSize(size);
    }
    content_->SetSize(wxRect(CalcScrolledPosition(wxPoint()), size));
    return size != before;
}

}  // namespace lv
