#include "foundry/forms/fig_parts.h"

#include <wx/button.h>

#include <utility>

#include "foundation/field_strings.h"
#include "foundation/forms/wx_text.h"
#include "foundry/editor/settings_pages.h"
#include "platform/toolkit/spoken_name.h"

namespace lv {

namespace {

constexpr int kRowMargin = 2;
constexpr int kComboMargin = 44;  // of its arrow and its frame, at 100 %

}  // namespace

CellLabel* FigParts::MakeCell(wxWindow* parent, const wxString& name, CellLabel::Look look, CellGroup* group) {
    auto* label = new CellLabel(parent, name, std::move(look), group);
    label->ShowState();
    Controls.OnShow([label] { return label->ShowState(); });
    return label;
}

wxStaticText* FigParts::MakeLabel(wxWindow* parent, const char* name, Label& model) {
    auto* label = new wxStaticText(parent, wxID_ANY, ToWx(Trim(model.Caption)));
    Controls.Bind(name, model, label);
    return label;
}

wxCheckBox* FigParts::MakeCheck(wxWindow* parent, const char* name, CheckBox& model, std::function<void()> click) {
    auto* check =
        new wxCheckBox(parent, wxID_ANY, ToWx(Trim(model.Caption)), wxDefaultPosition, wxDefaultSize, wxCHK_3STATE);
    Controls.Bind(name, model, check, std::move(click));
    return check;
}

wxButton* FigParts::MakeButton(wxWindow* parent, const char* name, CommandButton& model, std::function<void()> click) {
    auto* button = new wxButton(parent, wxID_ANY, ToWx(Trim(model.Caption)));
    Controls.Bind(name, model, button, std::move(click));
    return button;
}

wxTextCtrl* FigParts::MakeText(wxWindow* parent, const char* name, TextBox& model, std::function<void()> change,
                               const char* spoken, long style) {
    auto* text = new wxTextCtrl(parent, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, style);
    Controls.Bind(name, model, text, std::move(change));
    SetSpokenName(text->GetHandle(), spoken);
    return text;
}

wxChoice* FigParts::MakeList(wxWindow* parent, const char* name, ListBox& model, std::function<void()> click,
                             const char* spoken) {
    auto* list = new wxChoice(parent, wxID_ANY);
    Controls.Bind(name, model, list, std::move(click));
    SetSpokenName(list->GetHandle(), spoken);
    return list;
}

wxComboBox* FigParts::MakeCombo(wxWindow* parent, const char* name, ListBox& model, std::function<void()> click,
                                TextView spoken, int letters) {
    const wxSize size(letters * LetterWidth(parent) + parent->FromDIP(kComboMargin), -1);
    auto* combo = new wxComboBox(parent, wxID_ANY, "", wxDefaultPosition, size, 0, nullptr, wxCB_DROPDOWN);
    combo->SetMinSize(size);
    Controls.Bind(name, model, combo, std::move(click),
                  [this, &model](TextView text) { TypeIntoList(Model, model, text); });
    SetSpokenName(combo->GetHandle(), ToUtf8(Trim(spoken)));
    return combo;
}

void FigParts::Measure(const wxWindow* window) {
    constexpr int kWhole = 100;
    if (scale_ != window->FromDIP(kWhole)) {
        scale_ = window->FromDIP(kWhole);
        row_ = window->GetTextExtent("Wg").y + window->FromDIP(kRowMargin);
        letter_ = window->GetTextExtent("n").x;
    }
}

int FigParts::RowHeight(const wxWindow* window) {
    Measure(window);
    return row_;
}

int FigParts::LetterWidth(const wxWindow* window) {
    Measure(window);
    return letter_;
}

}  // namespace lv
