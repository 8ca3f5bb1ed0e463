#include "foundry/forms/late_pages.h"

#include <wx/notebook.h>

#include <algorithm>
#include <utility>

#include "foundation/forms/whats_this.h"
#include "foundry/forms/scrolled_page.h"
#include "platform/toolkit/warm_up.h"

namespace lv {

namespace {

// All pages count as shown, those behind the others too.
bool IsOnTop(const wxWindow* window) {
    for (const wxWindow* parent = window->GetParent(); parent != nullptr;
         window = parent, parent = window->GetParent()) {
        const auto* tabs = dynamic_cast<const wxNotebook*>(parent);
        if (tabs != nullptr && tabs->GetCurrentPage() != window) {
            return false;
        }
    }
    return true;
}

/// A page that is not among the tabs belongs to the window all the same, but hangs in nothing.
bool IsInTabs(const wxWindow* window) {
    for (const wxWindow* parent = window->GetParent(); parent != nullptr;
         window = parent, parent = window->GetParent()) {
        const auto* tabs = dynamic_cast<const wxNotebook*>(parent);
        if (tabs != nullptr && tabs->FindPage(window) == wxNOT_FOUND) {
            return false;
        }
    }
    return true;
}

/// What comes or goes in the page moves the rest of it, and the end of what can be scrolled.
void LayOut(wxWindow* page) {
    if (auto* scrolled = dynamic_cast<ScrolledPage*>(page->GetParent())) {
        page->InvalidateBestSize();
        if (scrolled->Fill()) {
            return;
        }
    }
    page->Layout();
}

}  // namespace

bool LatePage::Make() {
    if (!make_) {
        return false;
    }
    const auto make = std::exchange(make_, nullptr);
    make();
    return true;
}

wxWindow* LatePages::AddLate(wxWindow* parent, std::function<void(wxPanel*)> make) {
    auto* page = new ScrolledPage(parent);
    page->Bind(wxEVT_SIZE, [this, page](wxSizeEvent& event) {
        event.Skip();
        if (IsOnTop(page)) {
            page->Fill();
        } else {
            stale_.insert(page->Content());
        }
    });
    pages_.push_back(page->Content());
    late_.emplace_back(page, [page, make = std::move(make)] { make(page->Content()); });
    return page;
}

void LatePages::Add(wxWindow* page) {
    pages_.push_back(page);
}

bool LatePages::MakeOne() {
    const auto page = std::ranges::find_if(late_, [](LatePage& late) { return late.Make(); });
    if (page == late_.end()) {
        return false;
    }
    parts_.Controls.Show();
    LayOut(page->Page()->GetChildren().front());
    GiveWhatsThis(page->Page());
    return true;
}

bool LatePages::PrepareOne() {
    const auto page = std::ranges::find_if(late_, [](LatePage& late) { return !late.IsMade(); });
    if (page == late_.end() || !MakeOne()) {
        return false;
    }
    WarmUp(page->Page()->GetHandle());
    return true;
}

void LatePages::MakeShown(bool tells) {
    for (LatePage& late : late_) {
        if (IsOnTop(late.Page()) && late.Make()) {
            parts_.Controls.Show();
            LayOut(late.Page()->GetChildren().front());
            if (tells) {
                GiveWhatsThis(late.Page());
            }
        }
    }
}

void LatePages::WarmUpLater(const wxWindowList& others) {
    cold_ = pages_;
    cold_.insert(cold_.end(), others.begin(), others.end());
}

bool LatePages::WarmUpOne() {
    if (cold_.empty()) {
        return false;
    }
    if (IsInTabs(cold_.back())) {
        WarmUpPart(cold_.back()->GetHandle());
    }
    cold_.pop_back();
    return true;
}

void LatePages::LayOutLater() {
    stale_.insert(pages_.begin(), pages_.end());
}

void LatePages::LayOutShown() {
    std::erase_if(stale_, [](wxWindow* page) {
        if (IsOnTop(page)) {
            LayOut(page);
            return true;
        }
        return false;
    });
}

int LatePages::Width() const {
    int width = 0;
    for (const wxWindow* page : pages_) {
        width = std::max(width, page->GetBestSize().x);
    }
    return width;
}

}  // namespace lv
