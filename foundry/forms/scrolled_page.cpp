#include "foundry/forms/scrolled_page.h"

#include <wx/scrolwin.h>
#include <wx/sizer.h>

#include "foundation/forms/screen_fit.h"
#include "platform/scroll_bars.h"

namespace lv {

namespace {

constexpr int kScrollStep = 10;  // at 100 %

}  // namespace

wxPanel* MakeScrolledPage(wxWindow* parent) {
    auto* page = new wxScrolledWindow(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                                      wxTAB_TRAVERSAL | wxHSCROLL | wxVSCROLL);
    KeepScrollBarsInSight(page->GetHandle());
    page->SetScrollRate(page->FromDIP(kScrollStep), page->FromDIP(kScrollStep));
    FollowKeyboard(*page);
    return page;
}

void LayOutPage(wxWindow* page) {
    if (dynamic_cast<wxScrolledWindow*>(page) != nullptr && page->GetSizer() != nullptr) {
        page->FitInside();
    }
    page->Layout();
}

}  // namespace lv
