// foundry/forms/late_pages.h
//
// The pages of the editor: made, warmed up and laid out no sooner than they are seen, or when nothing else is to be
// done.

#pragma once

#include <wx/panel.h>

#include <functional>
#include <set>
#include <vector>

#include "foundry/forms/fig_parts.h"

namespace lv {

/// A page whose content is made when it is first seen, or when nothing else is to be done.
class LatePage {
  public:
    LatePage(wxWindow* page, std::function<void()> make) : page_(page), make_(std::move(make)) {}

    [[nodiscard]] wxWindow* Page() const { return page_; }
    [[nodiscard]] bool IsMade() const { return !make_; }
    /// True if it was made now.
    bool Make();

  private:
    wxWindow* page_;
    std::function<void()> make_;
};

class LatePages {
  public:
    explicit LatePages(FigParts& parts) : parts_(parts) {}

    /// A page that scrolls, with what `make` puts into it; not made yet.
    wxWindow* AddLate(wxWindow* parent, std::function<void(wxPanel*)> make);
    /// A page that stands already, and lays out controls that come and go.
    void Add(wxWindow* page);

    /// Makes one of those that nobody has looked at; false if there is none.
    bool MakeOne();
    /// The same ahead of the window's first sight, with what can be had before there is anything to fill lists with.
    /// One at a time, for the splash has dots to draw.
    bool PrepareOne();
    /// Makes those that are seen; if `tells`, what they hold is told at a right click.
    void MakeShown(bool tells);

    /// Each page, and the others, are warmed up one by one in idle moments.
    void WarmUpLater(const wxWindowList& others);
    /// In idle moments, a few milliseconds each: a page that is turned to comes up with all that can be had before.
    bool WarmUpOne();

    /// All pages are to be laid out anew: those that are seen by LayOutShown, the others when they are turned to.
    void LayOutLater();
    void LayOutShown();

    /// The widest page, in pixels. What scrolls asks for no room of its own.
    [[nodiscard]] int Width() const;

  private:
    FigParts& parts_;
    std::vector<wxWindow*> pages_;
    std::set<wxWindow*> stale_;  // those of them that are to be laid out
    std::vector<LatePage> late_;
    std::vector<wxWindow*> cold_;  // what has not been seen, and can be warmed up
};

}  // namespace lv
