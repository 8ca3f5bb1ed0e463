#include "foundation/forms/binder.h"

#include "foundation/field_strings.h"
#include "foundation/forms/pictures.h"
#include "foundation/forms/wx_text.h"
#include "platform/long_list.h"
#include "platform/spoken_name.h"

namespace lv {

namespace {

constexpr std::size_t kRowsOfAMenu = 256;  // that one may still want to look through
constexpr int kArrowWidth = 48;            // of a list's arrow and its margins, at 100 %

// A control that shows no text of its own is called by its tool tip.
bool ShowControl(const Control& model, wxWindow* view, Text& tip) {
    if (view->IsThisEnabled() != model.Enabled) {
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

}  // namespace

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
    view->Bind(wxEVT_CHOICE, [this, &model, view, click = std::move(click)](wxCommandEvent&) {
        model.ListIndex = view->GetSelection();
        if (!model.HasSelection()) {
            model.ListIndex = -1;
        }
        Run(click);
    });
    Add(name, model, view, [&model, view, none, shown = std::vector<Text>(), full = MeasuredRow()]() mutable {
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
    });
}

void Binder::Bind(const char* name, ImageCombo& model, wxBitmapComboBox* view, Handler click) {
    view->Bind(wxEVT_COMBOBOX, [this, &model, view, click = std::move(click)](wxCommandEvent&) {
        model.ListIndex = view->GetSelection();
        Run(click);
    });
    Add(name, model, view, [&model, view, shown = std::vector<Text>(), full = MeasuredRow()]() mutable {
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
    });
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
