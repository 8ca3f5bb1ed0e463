// The binder's controls that hold many rows or pages.

#include <algorithm>
#include <utility>

#include "foundation/field_strings.h"
#include "foundation/forms/binder.h"
#include "foundation/forms/wx_text.h"

namespace lv {

namespace {

// Only what differs: a list that keeps its head keeps the text in its field too.
template <class View>
void ShowRows(const std::vector<Text>& items, std::vector<Text>& shown, View* view) {
    if (shown == items) {
        return;
    }
    const auto same = std::ranges::mismatch(shown, items).in1 - shown.begin();
    for (auto row = static_cast<std::ptrdiff_t>(shown.size()) - 1; row >= same; --row) {
        view->Delete(static_cast<unsigned>(row));
    }
    wxArrayString rows;
    for (auto row = same; row < static_cast<std::ptrdiff_t>(items.size()); ++row) {
        rows.Add(ToWx(items[static_cast<std::size_t>(row)]));
    }
    if (!rows.empty()) {
        view->Append(rows);
    }
    shown = items;
}

/// The tabs that are there, by their place among all pages.
std::vector<int> VisiblePages(const TabSet& model) {
    std::vector<int> visible;
    for (std::size_t page = 0; page < model.Pages.size(); ++page) {
        if (model[page].Visible && model[page].Enabled) {
            visible.push_back(static_cast<int>(page));
        }
    }
    return visible;
}

}  // namespace

void Binder::Bind(const char* name, ListBox& model, wxListBox* view, Handler click) {
    view->Bind(wxEVT_LISTBOX, [this, &model, view, click = std::move(click)](wxCommandEvent&) {
        if (!showing_) {
            model.ListIndex = view->GetSelection();
            Run(click);
        }
    });
    Add(name, model, view, Long(view, [&model, view, shown = std::vector<Text>()]() mutable {
            if (shown.empty() && view->GetCount() == 0) {
                wxArrayString rows;
                for (const Text& item : model.Items) {
                    rows.Add(ToWx(item));
                }
                view->Set(rows);
                shown = model.Items;
            }
            ShowRows(model.Items, shown, view);
            if (view->GetSelection() != model.ListIndex) {
                view->SetSelection(model.HasSelection() ? model.ListIndex : wxNOT_FOUND);
            }
            return false;
        }));
}

Binder::Shower Binder::Long(wxWindow* view, Shower show) {
    if (!fillLater_) {
        return show;
    }
    const auto waiting = std::make_shared<bool>(true);
    lateRows_.push_back({showers_.size(), waiting});
    return [view, waiting, show = std::move(show)]() mutable {
        *waiting = *waiting && !view->IsShownOnScreen();
        return !*waiting && show();
    };
}

void Binder::Bind(const char* name, ListBox& model, wxComboBox* view, Handler click,
                  std::function<void(TextView)> typed) {
    view->Bind(wxEVT_COMBOBOX, [this, &model, view, click = std::move(click)](wxCommandEvent&) {
        if (!showing_) {
            model.ListIndex = view->GetSelection();
            Run(click);
        }
    });
    view->Bind(wxEVT_TEXT, [this, &model, view, typed = std::move(typed)](wxCommandEvent&) {
        const Text text = FromWx(view->GetValue());
        if (!showing_ && text != model.Selected()) {
            Run([&] { typed(text); });
        }
    });
    const auto waiting = std::make_shared<bool>(fillLater_);
    if (fillLater_) {
        lateRows_.push_back({showers_.size(), waiting});
    }
    Add(name, model, view, [&model, view, waiting, late = fillLater_, shown = std::vector<Text>()]() mutable {
        const Text text = model.Selected();
        const bool same = SameText(FromWx(view->GetValue()), text);
        if (*waiting) {
            if (!same) {
                view->ChangeValue(ToWx(text));
            }
            return false;
        }
        ShowRows(model.Items, shown, view);
        const bool filled = std::exchange(late, false);
        if (model.HasSelection() && (filled || !same)) {
            view->SetSelection(model.ListIndex);
        } else if (!same) {
            view->ChangeValue("");
        }
        return false;
    });
}

bool Binder::FillOne() {
    if (lateRows_.empty()) {
        return false;
    }
    const LateRows next = std::move(lateRows_.front());
    lateRows_.pop_front();
    *next.Waiting = false;
    showing_ = true;
    showers_[next.Shower]();
    showing_ = false;
    return true;
}

void Binder::Bind(const char* name, TabSet& model, wxNotebook* view, std::vector<wxWindow*> pages,
                  std::function<void(int)> click) {
    // The page that comes takes the keyboard, and a list then selects a row: what follows from that waits for the turn,
    // for until then the struct has the page that goes.
    view->Bind(wxEVT_NOTEBOOK_PAGE_CHANGING, [this, view](wxBookCtrlEvent& event) {
        event.Skip();
        turning_ = turning_ || event.GetEventObject() == view;
    });
    view->Bind(wxEVT_NOTEBOOK_PAGE_CHANGED, [this, view, &model, click = std::move(click)](wxBookCtrlEvent& event) {
        event.Skip();
        turning_ = turning_ && event.GetEventObject() != view;
        const std::vector<int> visible = VisiblePages(model);
        const int tab = event.GetSelection();
        if (event.GetEventObject() == view && !showing_ && tab >= 0 && static_cast<std::size_t>(tab) < visible.size()) {
            Run([&] { click(visible[static_cast<std::size_t>(tab)]); });
        }
    });
    Add(name, model, view, [&model, view, pages = std::move(pages), shown = std::vector<int>()]() mutable {
        const std::vector<int> visible = VisiblePages(model);
        const bool changed = visible != shown;
        if (changed) {
            while (view->GetPageCount() > 0) {
                view->RemovePage(view->GetPageCount() - 1);
            }
            for (wxWindow* page : pages) {
                page->Hide();
            }
            for (const int page : visible) {
                pages[static_cast<std::size_t>(page)]->Show();
                view->AddPage(pages[static_cast<std::size_t>(page)], "", page == model.Tab);
            }
            shown = visible;
        }
        for (std::size_t tab = 0; tab < visible.size(); ++tab) {
            // A tab shows no access key; whoever takes keys for the window sees to them.
            const wxString caption =
                wxControl::RemoveMnemonics(ToWx(Trim(model[static_cast<std::size_t>(visible[tab])].Caption)));
            if (view->GetPageText(tab) != caption) {
                view->SetPageText(tab, caption);
            }
        }
        const auto at = std::ranges::find(visible, model.Tab);
        if (at != visible.end() && view->GetSelection() != static_cast<int>(at - visible.begin())) {
            view->ChangeSelection(static_cast<std::size_t>(at - visible.begin()));
        }
        return changed;
    });
}

}  // namespace lv
