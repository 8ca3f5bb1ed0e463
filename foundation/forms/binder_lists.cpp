#include "foundation/forms/binder_lists.h"

#include <wx/platinfo.h>

#include <algorithm>
#include <utility>

#include "foundation/field_strings.h"
#include "foundation/forms/pictures.h"
#include "foundation/forms/wx_text.h"
#include "platform/toolkit/list_cursor.h"
#include "platform/toolkit/long_list.h"

namespace lv {

namespace {

constexpr std::size_t kRowsOfAMenu = 256;  // that one may still want to look through
constexpr int kArrowWidth = 48;            // of a list's arrow and its margins, at 100 %

/// A list's row, measured. Measuring costs more than all else that brings a list in line.
struct MeasuredRow {
    wxString Row;
    int Width = -1;
    bool Cut = false;
};

// A row that is wider than its list shows in full as the list's tool tip.
void ShowFullRow(const Text& ownTip, const wxString& row, wxWindow* view, MeasuredRow& measured) {
    const int width = view->GetClientSize().x;
    if (measured.Row != row || measured.Width != width) {
        const bool cut = view->GetTextExtent(row).x > width - view->FromDIP(kArrowWidth);
        measured = {row, width, cut};
    }
    const wxString tip = measured.Cut ? row : ToWx(ownTip);
    if (view->GetToolTipText() != tip) {
        view->SetToolTip(tip);
    }
}

bool SameRows(const ImageCombo& model, const std::vector<Text>& shown) {
    if (model.Items.size() * 2 != shown.size()) {
        return false;
    }
    for (std::size_t i = 0; i < model.Items.size(); ++i) {
        if (shown[i * 2] != model.Items[i].Title || shown[i * 2 + 1] != model.Items[i].Image) {
            return false;
        }
    }
    return true;
}

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

// A tab shows no access key; whoever takes keys for the window sees to them. On Windows an "&" would be one all the
// same.
wxString TabText(TextView caption) {
    const wxString text = wxControl::RemoveMnemonics(ToWx(Trim(caption)));
    return wxPlatformInfo::Get().GetPortId() == wxPORT_MSW ? wxControl::EscapeMnemonics(text) : text;
}

}  // namespace

std::vector<int> VisiblePages(const TabSet& model) {
    std::vector<int> visible;
    for (std::size_t page = 0; page < model.Pages.size(); ++page) {
        if (model[page].Visible && model[page].Enabled) {
            visible.push_back(static_cast<int>(page));
        }
    }
    return visible;
}

Shower ChoiceShower(const ListBox& model, wxChoice* view, const wxString& none) {
    return [&model, view, none, shown = std::vector<Text>(), full = MeasuredRow()]() mutable {
        if (shown != model.Items) {
            shown = model.Items;
            wxArrayString rows;
            for (const Text& item : shown) {
                rows.Add(ShownItem(item));
            }
            if (!none.empty() && !rows.empty()) {
                rows.Add(none);
            }
            view->Clear();
            if (rows.size() > kRowsOfAMenu) {
                LetHaveManyRows(view->GetHandle());
            }
            view->Append(rows);
        }
        if (view->GetSelection() != model.ListIndex) {
            view->SetSelection(model.HasSelection() ? model.ListIndex : wxNOT_FOUND);
        }
        ShowFullRow(model.ToolTip, view->GetStringSelection(), view, full);
        return false;
    };
}

Shower ImageListShower(const ImageCombo& model, wxBitmapComboBox* view) {
    return [&model, view, shown = std::vector<Text>(), full = MeasuredRow()]() mutable {
        if (!SameRows(model, shown)) {
            shown.clear();
            while (view->GetCount() > 0) {
                view->Delete(view->GetCount() - 1);
            }
            for (const ImageComboItem& item : model.Items) {
                shown.push_back(item.Title);
                shown.push_back(item.Image);
                view->Append(ShownItem(item.Title), PictureOf(Join("icons/games/", LowerCase(item.Image))));
            }
        }
        if (view->GetSelection() != model.ListIndex) {
            view->SetSelection(model.HasSelection() ? model.ListIndex : wxNOT_FOUND);
        }
        ShowFullRow(model.ToolTip, view->GetStringSelection(), view, full);
        return false;
    };
}

Shower ListShower(const ListBox& model, wxListBox* view) {
    return [&model, view, shown = std::vector<Text>()]() mutable {
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
            PutListCursor(view->GetHandle(), model.ListIndex);
        }
        return false;
    };
}

Shower FieldListShower(const ListBox& model, wxComboBox* view, const std::shared_ptr<const bool>& waiting) {
    return [&model, view, late = *waiting, waiting, shown = std::vector<Text>()]() mutable {
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
    };
}

Shower PageShower(const TabSet& model, wxNotebook* view, std::vector<wxWindow*> pages) {
    return [&model, view, pages = std::move(pages), shown = std::vector<int>()]() mutable {
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
            const wxString caption = TabText(model[static_cast<std::size_t>(visible[tab])].Caption);
            if (view->GetPageText(tab) != caption) {
                view->SetPageText(tab, caption);
            }
        }
        const auto at = std::ranges::find(visible, model.Tab);
        if (at != visible.end() && view->GetSelection() != static_cast<int>(at - visible.begin())) {
            view->ChangeSelection(static_cast<std::size_t>(at - visible.begin()));
        }
        return changed;
    };
}

}  // namespace lv
