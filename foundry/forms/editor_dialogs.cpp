#include "foundry/forms/editor_dialogs.h"

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "foundation/field_strings.h"
#include "foundation/forms/modal_form.h"
#include "foundation/forms/screen_fit.h"
#include "foundation/forms/wx_text.h"
#include "foundry/editor/alias_frm.h"
#include "foundry/editor/confirm_exit.h"
#include "foundry/editor/line_dialogs.h"
#include "foundry/editor/player_page.h"
#include "foundry/forms/cell_label.h"
#include "platform/toolkit/spoken_name.h"

namespace lv {

namespace {

using Form = std::unique_ptr<ModalForm>;

constexpr int kLineWidth = 420;  // at 100 %
constexpr int kBodyHeight = 120;
constexpr int kSwatch = 44;
constexpr int kSwatchesInRow = 7;
constexpr int kGap = 6;

Form MakeLine(wxWindow* owner, LineDialog& dialog) {
    auto form = std::make_unique<ModalForm>(owner, dialog, [&dialog] { LineDialog_Cancel_Cmd_Click(dialog); });
    form->AddWide(form->MakeLabel(form.get(), "Label1", dialog.Label1));
    wxTextCtrl* text = form->MakeText("Message_Txt", dialog.Message_Txt, kLineWidth);
    SetSpokenName(text->GetHandle(), ToUtf8(Trim(dialog.Label1.Caption)));
    form->AddWide(text);
    form->Finish(form->MakeButton("OK_Cmd", dialog.OK_Cmd, [&dialog] { LineDialog_OK_Cmd_Click(dialog); }),
                 form->MakeButton("Cancel_Cmd", dialog.Cancel_Cmd, [&dialog] { LineDialog_Cancel_Cmd_Click(dialog); }));
    text->SetFocus();
    return form;
}

/// The toolkit's line ends in a field of several lines, CR LF in the struct.
void BindLines(ModalForm& form, const char* name, TextBox& model, wxTextCtrl* view) {
    view->SetName(name);
    view->Bind(wxEVT_TEXT, [&model, view](wxCommandEvent&) {
        wxString text = view->GetValue();
        text.Replace("\n", "\r\n");
        model.Text = FromWx(text);
    });
    form.Controls.OnShow([&model, view] {
        wxString wanted = ToWx(model.Text);
        wanted.Replace("\r\n", "\n");
        if (view->GetValue() != wanted) {
            view->ChangeValue(wanted);
        }
        return false;
    });
}

Form MakeAlias(wxWindow* owner, Alias_Frm& alias) {
    auto form = std::make_unique<ModalForm>(owner, alias, [&alias] { Alias_Cancel_Cmd_Click(alias); });
    form->AddField(alias.AliasName_Lbl, "AliasName_Lbl", form->MakeText("AliasName_Txt", alias.AliasName_Txt));
    auto* commands = new wxChoice(form.get(), wxID_ANY);
    commands->SetMinSize(form->FromDIP(wxSize(kLineWidth, -1)));
    form->Controls.Bind("AddableCommands_Cbo", alias.AddableCommands_Cbo, commands, [] {});
    form->AddField(
        alias.AddableCommands_Lbl, "AddableCommands_Lbl", commands,
        form->MakeButton("AddCommand_Cmd", alias.AddCommand_Cmd, [&alias] { Alias_AddCommand_Cmd_Click(alias); }));
    auto* body = new wxTextCtrl(form.get(), wxID_ANY, "", wxDefaultPosition,
                                form->FromDIP(wxSize(kLineWidth, kBodyHeight)), wxTE_MULTILINE);
    BindLines(*form, "AliasBody_Txt", alias.AliasBody_Txt, body);
    form->AddField(alias.AliasBody_Lbl, "AliasBody_Lbl", body);
    auto* bindable = new wxCheckBox(form.get(), wxID_ANY, ToWx(Trim(alias.Bindable_Opt.Caption)), wxDefaultPosition,
                                    wxDefaultSize, wxCHK_3STATE);
    form->Controls.Bind("Bindable_Opt", alias.Bindable_Opt, bindable, [] {});
    form->AddWide(bindable);
    form->Finish(form->MakeButton("OK_Cmd", alias.OK_Cmd, [&alias] { Alias_OK_Cmd_Click(alias); }),
                 form->MakeButton("Cancel_Cmd", alias.Cancel_Cmd, [&alias] { Alias_Cancel_Cmd_Click(alias); }));
    form->FindWindow("AliasName_Txt")->SetFocus();
    return form;
}

Form MakeConfirmExit(wxWindow* owner, ConfirmExit_Frm& confirm) {
    auto form = std::make_unique<ModalForm>(owner, confirm, [&confirm] { ConfirmExit_No_Cmd_Click(confirm); });
    const auto addLine = [&](const char* name, Label& line) {
        auto* row = new wxBoxSizer(wxVERTICAL);
        row->Add(form->MakeLabel(form.get(), name, line), wxSizerFlags().Center());
        form->AddWide(row);
    };
    addLine("Label1", confirm.Label1);
    addLine("Label2", confirm.Label2);
    auto* save = new wxCheckBox(form.get(), wxID_ANY, ToWx(confirm.SaveNow_Chk.Caption));
    form->Controls.Bind("SaveNow_Chk", confirm.SaveNow_Chk, save, [] {});
    auto* row = new wxBoxSizer(wxVERTICAL);
    row->Add(save, wxSizerFlags().Center());
    form->AddWide(row);
    // No button is the default: Enter must not decide on unsaved work.
    auto* buttons = new wxBoxSizer(wxHORIZONTAL);
    buttons->AddStretchSpacer();
    buttons->Add(form->MakeButton("Yes_Cmd", confirm.Yes_Cmd, [&confirm] { ConfirmExit_Yes_Cmd_Click(confirm); }));
    buttons->Add(form->MakeButton("No_Cmd", confirm.No_Cmd, [&confirm] { ConfirmExit_No_Cmd_Click(confirm); }),
                 wxSizerFlags().Border(wxLEFT | wxBOTTOM, 2 * kGap));
    buttons->AddStretchSpacer();
    form->AddWide(buttons);
    form->Arrange();
    return form;
}

/// The swatches lead each other to the keyboard, and go before the group that knows them.
class ColorForm : public ModalForm {
  public:
    ColorForm(wxWindow* owner, Color_Frm& colors)
        : ModalForm(owner, colors, [&colors] { Color_Cancel_Cmd_Click(colors); }) {
        auto* grid = new wxGridSizer(kSwatchesInRow, kGap, kGap);
        for (int index = 0; index < static_cast<int>(colors.Color_Lbl.size()); ++index) {
            grid->Add(MakeSwatch(colors, index));
        }
        AddWide(grid);
        wxButton* cancel = MakeButton("Cancel_Cmd", colors.Cancel_Cmd, [&colors] { Color_Cancel_Cmd_Click(colors); });
        auto* below = new wxBoxSizer(wxHORIZONTAL);
        below->AddStretchSpacer();
        below->Add(cancel, wxSizerFlags().Border(wxBOTTOM, 2 * kGap));
        AddWide(below);
        Arrange();
        PlaceBesideLabel();
        FindWindow("Color_Lbl(0)")->SetFocus();
    }
    ~ColorForm() override { DestroyChildren(); }

  private:
    // Beside the label that was clicked on, as far as the screen has room.
    void PlaceBesideLabel() {
        const wxWindow* const label = FindFocus();
        if (label == nullptr || !label->GetName().StartsWith("PlayerColor_Lbl")) {
            return;
        }
        const wxRect place = label->GetScreenRect();
        Move(place.GetRight() + kGap, place.y);
        StayOnScreen(*this);
    }

    CellLabel* MakeSwatch(Color_Frm& colors, int index) {
        const ColorLabel& color = colors.Color_Lbl[static_cast<std::size_t>(index)];
        auto* swatch = new CellLabel(
            this, wxString::Format("Color_Lbl(%d)", index),
            [&color, index] {
                return CellLook{.Caption = std::to_string(index), .Back = color.BackColor, .Centered = true};
            },
            &group_);
        swatch->SetMinSize(FromDIP(wxSize(kSwatch, kSwatch)));
        swatch->SetSpeaker([index] { return Join("Color ", std::to_string(index)); });
        swatch->ShowState();
        swatch->Speak();
        const auto choose = [this, &colors, index] { Controls.Run([&] { Color_Lbl_Click(colors, index); }); };
        swatch->Bind(wxEVT_LEFT_UP, [choose](wxMouseEvent&) { choose(); });
        swatch->Bind(wxEVT_CHAR_HOOK, [choose](wxKeyEvent& event) {
            if (event.GetKeyCode() == WXK_RETURN || event.GetKeyCode() == WXK_SPACE) {
                choose();
            } else {
                event.Skip();
            }
        });
        return swatch;
    }

    CellGroup group_;
};

}  // namespace

std::unique_ptr<wxDialog> MakeEditorDialog(wxWindow* owner, ModalWindow& window) {
    if (auto* line = dynamic_cast<LineDialog*>(&window)) {
        return MakeLine(owner, *line);
    }
    if (auto* alias = dynamic_cast<Alias_Frm*>(&window)) {
        return MakeAlias(owner, *alias);
    }
    if (auto* confirm = dynamic_cast<ConfirmExit_Frm*>(&window)) {
        return MakeConfirmExit(owner, *confirm);
    }
    if (auto* colors = dynamic_cast<Color_Frm*>(&window)) {
        return std::make_unique<ColorForm>(owner, *colors);
    }
    return nullptr;
}

}  // namespace lv
