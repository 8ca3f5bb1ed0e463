#include "foundation/forms/binder.h"

#include <wx/dialog.h>

#include <algorithm>
#include <utility>

#include "foundation/field_strings.h"
#include "foundation/forms/binder_lists.h"
#include "foundation/forms/search_keys.h"
#include "foundation/forms/wx_text.h"
#include "foundation/padded_item.h"
#include "platform/toolkit/spoken_name.h"

namespace lv {

namespace {

// A control that shows no text of its own is called by its tool tip.
bool ShowControl(const Control& model, wxWindow* view, Text& tip) {
    if (view->IsThisEnabled() != model.Enabled) {
        // In a dialog a disabled control that has the keyboard would keep Escape from closing it.
        if (!model.Enabled && view->HasFocus() && dynamic_cast<wxDialog*>(wxGetTopLevelParent(view)) != nullptr) {
            view->Navigate();
        }
        view->Enable(model.Enabled);
    }
    if (tip != model.ToolTip) {
        const std::string said = view->GetLabel().empty() ? SpokenName(view->GetHandle()) : std::string();
        const bool hasOwnName = !said.empty() && said != ToUtf8(tip);
        tip = model.ToolTip;
        view->SetToolTip(ToWx(tip));
        if (view->GetLabel().empty() && !hasOwnName) {
            SetSpokenName(view->GetHandle(), ToUtf8(tip));
        }
    }
    return view->IsShown() != model.Visible && view->Show(model.Visible);
}

/// The caption with each "&" shown as one.
Text Literal(const Text& caption) {
    return ReplaceText(caption, "&", "&&");
}

void ShowLabel(const Text& caption, wxWindow* view) {
    const wxString label = ToWx(Trim(caption));
    if (view->GetLabel() != label) {
        view->SetLabel(label);
    }
}

Text TitleOf(const Text& row) {
    return ItemTitle(row);
}

Text TitleOf(const ImageComboItem& row) {
    return Trim(row.Title);
}

}  // namespace

template <class List>
void Binder::Search(List& model, wxWindow* view, const Handler& click) {
    SearchByTyping(view, {.Count = [&model] { return model.Items.size(); },
                          .Name = [&model](std::size_t row) { return TitleOf(model.Items[row]); },
                          .Selected = [&model] { return model.ListIndex; },
                          .Pick =
                              [this, &model, click](int row) {
                                  model.ListIndex = row;
                                  Run(click);
                              }});
}

void Binder::Add(const char* name, Control& model, wxWindow* view, Shower show) {
    view->SetName(name);
    showers_.push_back([&model, view, show = std::move(show), tip = Text()]() mutable {
        const bool changed = show();
        return ShowControl(model, view, tip) || changed;
    });
}

void Binder::Run(const Handler& handler) {
    if (showing_) {
        return;
    }
    handler();
    if (!turning_) {
        after_();
    }
}

bool Binder::Show() {
    showing_ = true;
    bool changed = false;
    for (Shower& show : showers_) {
        changed = show() || changed;
    }
    showing_ = false;
    return changed;
}

void Binder::Bind(const char* name, CheckBox& model, wxCheckBox* view, Handler click, Text (*shown)(TextView)) {
    view->Bind(wxEVT_CHECKBOX, [this, &model, view, click = std::move(click)](wxCommandEvent&) {
        model.Value = view->Get3StateValue() == wxCHK_CHECKED ? 1 : 0;
        Run(click);
    });
    Add(name, model, view, [&model, view, shown] {
        if (!model.Caption.empty()) {
            ShowLabel(shown != nullptr ? shown(model.Caption) : model.Caption, view);
        }
        const wxCheckBoxState state = model.Value == 2   ? wxCHK_UNDETERMINED
                                      : model.Value == 1 ? wxCHK_CHECKED
                                                         : wxCHK_UNCHECKED;
        if (view->Get3StateValue() != state) {
            view->Set3StateValue(state);
        }
        return false;
    });
}

void Binder::Bind(const char* name, CommandButton& model, wxAnyButton* view, Handler click) {
    view->Bind(wxEVT_BUTTON, [this, click = std::move(click)](wxCommandEvent&) { Run(click); });
    Add(name, model, view, [&model, view] {
        if (!model.Caption.empty()) {
            ShowLabel(model.Caption, view);
        }
        return false;
    });
}

void Binder::Bind(const char* name, ListBox& model, wxChoice* view, Handler click, const wxString& none) {
    Search(model, view, click);
    view->Bind(wxEVT_CHOICE, [this, &model, view, click = std::move(click)](wxCommandEvent&) {
        model.ListIndex = view->GetSelection();
        if (!model.HasSelection()) {
            model.ListIndex = -1;
        }
        Run(click);
    });
    Add(name, model, view, ChoiceShower(model, view, none));
}

void Binder::Bind(const char* name, ImageCombo& model, wxBitmapComboBox* view, Handler click) {
    Search(model, view, click);
    view->Bind(wxEVT_COMBOBOX, [this, &model, view, click = std::move(click)](wxCommandEvent&) {
        model.ListIndex = view->GetSelection();
        Run(click);
    });
    Add(name, model, view, ImageListShower(model, view));
}

void Binder::Bind(const char* name, ListBox& model, wxListBox* view, Handler click) {
    Search(model, view, click);
    view->Bind(wxEVT_LISTBOX, [this, &model, view, click = std::move(click)](wxCommandEvent&) {
        if (!showing_) {
            model.ListIndex = view->GetSelection();
            Run(click);
        }
    });
    Add(name, model, view, Long(view, ListShower(model, view)));
}

Shower Binder::Long(wxWindow* view, Shower show) {
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
    Add(name, model, view, FieldListShower(model, view, waiting));
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
    Add(name, model, view, PageShower(model, view, std::move(pages)));
}

void Binder::Bind(const char* name, TextBox& model, wxTextCtrl* view, Handler change) {
    view->Bind(wxEVT_TEXT, [this, &model, view, change = std::move(change)](wxCommandEvent&) {
        model.Text = FromWx(view->GetValue());
        Run(change);
    });
    Add(name, model, view, [&model, view] {
        // What has no form in the code page stays in sight while it is typed.
        if (FromWx(view->GetValue()) != model.Text) {
            view->ChangeValue(ToWx(model.Text));
        }
        return false;
    });
}

void Binder::Bind(const char* name, Label& model, wxStaticText* view, LabelText kind) {
    Add(name, model, view, [&model, view, kind] {
        const Text caption = Trim(kind == LabelText::Keyed ? model.Caption : Literal(model.Caption));
        const bool changed = view->GetLabel() != ToWx(caption);
        ShowLabel(caption, view);
        return changed;
    });
}

void Binder::Bind(const char* name, Panel& model, wxWindow* view) {
    Add(name, model, view, [&model, view] {
        ShowLabel(model.Caption, view);
        return false;
    });
}

}  // namespace lv
