// foundry/forms/scrolled_page.h
//
// A page of tabs that asks for no room of its own: what it has no room for, it scrolls.

#pragma once

#include <wx/panel.h>
#include <wx/scrolwin.h>

namespace lv {

class ScrolledPage : public wxScrolledWindow {
  public:
    explicit ScrolledPage(wxWindow* parent);

    /// What stands in the page. GTK complains of rows that are hidden when it has to scroll them: they are no children
    /// of the page itself.
    [[nodiscard]] wxPanel* Content() const { return content_; }

    /// Makes the content as large as the page, or as large as it has to be; true if it was not. It is laid out then.
    bool Fill();

  protected:
    wxSize DoGetBestSize() const override { return {1, 1}; }

  private:
    wxPanel* content_;
};

}  // namespace lv
